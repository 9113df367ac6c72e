#pragma once

#include "TextSearch.h"

#include <QList>
#include <QTimer>
#include <QWidget>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QToolButton;

namespace cluiedit {

class Editor;

/// Finds and replaces in the text of an editor.
class FindBar : public QWidget
{
    Q_OBJECT

public:
    /// \p editor must live longer.
    explicit FindBar(Editor& editor, QWidget* parent = nullptr);

    /// Shows the bar, with what is selected in the text to be found if that is in one line, or also the part that
    /// replaces.
    void openToFind();
    void openToReplace();

    /// Selects the next or the previous place, from the other end behind the last; false if there is none.
    bool findNext();
    bool findPrevious();

    /// Replaces what is selected if that is a place, and goes on to the next.
    void replaceOne();
    /// Replaces all, as one step to undo.
    void replaceAll();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void build();
    QCheckBox* addOption(const QString& text, const QString& toolTip);
    void open(bool replaces);
    void refresh();
    void refreshLater();
    void findTyped();
    void selectMatch(qsizetype index);
    /// The place that is selected; −1 if none is.
    qsizetype selectedMatch() const;
    void showCount();
    SearchTerms terms() const;

    Editor& m_editor;
    QLineEdit* m_pattern = nullptr; // the widgets are children
    QLabel* m_count = nullptr;
    QLineEdit* m_replacement = nullptr;
    QWidget* m_replacePart = nullptr;
    QPushButton* m_replaceOne = nullptr;
    QPushButton* m_replaceAll = nullptr;
    QCheckBox* m_matchCase = nullptr;
    QCheckBox* m_wholeWords = nullptr;
    QCheckBox* m_expression = nullptr;
    QList<Match> m_matches;
    QTimer m_timer;
    qsizetype m_start = 0; // where people began to search
    bool m_isOutdated = true;
    bool m_isReplacing = false;
};

} // namespace cluiedit
