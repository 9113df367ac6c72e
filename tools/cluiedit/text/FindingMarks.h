#pragma once

#include <check/Finding.h>

#include <QList>
#include <QString>

#include <vector>

class QsciScintilla;

namespace cluiedit {

/// The findings that are shown in a text: a line under each, a sign in the margin on its line, and its message. They
/// move with the text when that is edited.
class FindingMarks
{
public:
    static constexpr int ErrorIndicator = 8; // the first that lexers leave alone
    static constexpr int WarningIndicator = 9;
    static constexpr int ErrorSign = 1;
    static constexpr int WarningSign = 2;

    /// \p view must live longer.
    explicit FindingMarks(QsciScintilla& view);

    /// Sets how the marks look; \p isDark is the background.
    void setLook(bool isDark);

    /// Shows \p findings in place of what is shown.
    void show(const QList<cluiconfig::check::Finding>& findings);

    /// Tells that \p count bytes came in at \p offset, or went if it is negative.
    void shift(qsizetype offset, qsizetype count);

    /// The messages of the findings at \p offset, a line each; empty if there are none.
    QString messagesAt(qsizetype offset) const;
    /// Of those that begin between \p begin and \p end.
    QString messagesWithin(qsizetype begin, qsizetype end) const;

    /// A finding at \p offset, or else between \p begin and \p end, that knows what to write instead; null if there is
    /// none. Valid until the marks change.
    const cluiconfig::check::Finding* mendable(qsizetype offset, qsizetype begin, qsizetype end) const;

private:
    struct Mark
    {
        cluiconfig::check::Finding finding;
        qsizetype end = 0; // of what is underlined, which begins at or just before the finding's offset
    };

    void draw(const Mark& mark);

    QsciScintilla& m_view;
    QList<cluiconfig::check::Finding> m_shown;
    std::vector<Mark> m_marks;
    bool m_isMoved = false; // the text has changed since the marks were drawn
};

} // namespace cluiedit
