#pragma once

#include "Completion.h"

#include <QTreeWidget>

class QKeyEvent;

namespace cluiedit {

/// The list of what may stand at a place of the text, below that place. The text keeps the focus and passes on keys.
class CompletionPopup : public QTreeWidget
{
    Q_OBJECT

public:
    /// \p parent is what people type in.
    explicit CompletionPopup(QWidget* parent);

    /// Shows \p list, with \p current chosen, beside \p place, a rectangle of the screen. An empty list hides.
    void present(const QList<Candidate>& list, qsizetype current, const QRect& place);

    /// Does what \p event means for the list; false if it means nothing here.
    bool handleKey(const QKeyEvent& event);

signals:
    void chosen(const cluiedit::Candidate& candidate);

private:
    void choose();
    void moveTo(int row);
    void layOut(const QRect& place);

    QList<Candidate> m_list;
};

} // namespace cluiedit
