#include "FindBar.h"

#include "Editor.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace cluiedit {

namespace {

constexpr int LargeDelay = 300; // milliseconds, for texts that take time to search

} // namespace

FindBar::FindBar(Editor& editor, QWidget* parent)
    : QWidget(parent)
    , m_editor(editor)
{
    build();
    hide();
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &FindBar::refresh);
    connect(&m_editor, &Editor::bytesChanged, this, &FindBar::refreshLater);
    connect(&m_editor, &Editor::cursorMoved, this, [this] {
        if (isVisible()) {
            showCount();
        }
    });
    connect(m_pattern, &QLineEdit::textEdited, this, &FindBar::findTyped);
    for (const QCheckBox* const option : {m_matchCase, m_wholeWords, m_expression}) {
        connect(option, &QCheckBox::toggled, this, &FindBar::findTyped);
    }
    connect(m_replaceOne, &QPushButton::clicked, this, &FindBar::replaceOne);
    connect(m_replaceAll, &QPushButton::clicked, this, &FindBar::replaceAll);
}

void FindBar::build()
{
    m_pattern = new QLineEdit;
    m_pattern->setClearButtonEnabled(true);
    auto* const patternLabel = new QLabel(tr("Find:"));
    patternLabel->setBuddy(m_pattern);
    m_count = new QLabel;
    m_count->setAccessibleName(tr("How often it was found"));
    m_count->setMinimumWidth(fontMetrics().horizontalAdvance(tr("%1 of %2").arg(9999).arg(9999)));
    auto* const previous = new QPushButton(tr("Previous"));
    previous->setToolTip(tr("Shift+F3"));
    connect(previous, &QPushButton::clicked, this, &FindBar::findPrevious);
    auto* const next = new QPushButton(tr("Next"));
    next->setToolTip(tr("F3"));
    connect(next, &QPushButton::clicked, this, &FindBar::findNext);
    auto* const closeButton = new QToolButton;
    closeButton->setText(u"✕"_s);
    closeButton->setAutoRaise(true);
    closeButton->setToolTip(tr("Close (Esc)"));
    closeButton->setAccessibleName(tr("Close the search"));
    connect(closeButton, &QToolButton::clicked, this, &QWidget::hide);

    m_replacement = new QLineEdit;
    m_replacement->setClearButtonEnabled(true);
    m_replacement->setToolTip(tr("In a regular expression, \\1 stands for what its first group found."));
    auto* const replacementLabel = new QLabel(tr("Replace with:"));
    replacementLabel->setBuddy(m_replacement);
    m_replaceOne = new QPushButton(tr("Replace"));
    m_replaceAll = new QPushButton(tr("Replace all"));

    auto* const findRow = new QHBoxLayout;
    for (QWidget* const widget : std::initializer_list<QWidget*>{patternLabel, m_pattern, m_count, previous, next}) {
        findRow->addWidget(widget);
    }
    findRow->addWidget(closeButton);
    findRow->setStretchFactor(m_pattern, 1);

    m_replacePart = new QWidget;
    auto* const replaceRow = new QHBoxLayout(m_replacePart);
    replaceRow->setContentsMargins(0, 0, 0, 0);
    for (QWidget* const widget :
         std::initializer_list<QWidget*>{replacementLabel, m_replacement, m_replaceOne, m_replaceAll}) {
        replaceRow->addWidget(widget);
    }
    replaceRow->setStretchFactor(m_replacement, 1);

    m_matchCase = new QCheckBox(tr("Match case"));
    m_wholeWords = new QCheckBox(tr("Whole words"));
    m_expression = new QCheckBox(tr("Regular expression"));
    auto* const optionRow = new QHBoxLayout;
    for (QCheckBox* const option : {m_matchCase, m_wholeWords, m_expression}) {
        optionRow->addWidget(option);
    }
    optionRow->addStretch();

    auto* const layout = new QVBoxLayout(this);
    const int margin = layout->spacing();
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->addLayout(findRow);
    layout->addWidget(m_replacePart);
    layout->addLayout(optionRow);
}

void FindBar::openToFind()
{
    open(false);
}

void FindBar::openToReplace()
{
    open(true);
}

void FindBar::open(bool replaces)
{
    m_replacePart->setVisible(replaces);
    const QString selected = m_editor.selectedText();
    if (!selected.isEmpty() && !selected.contains(u'\n') && !selected.contains(u'\r')) {
        m_pattern->setText(selected);
        m_expression->setChecked(false);
    }
    m_start = m_editor.SendScintilla(QsciScintilla::SCI_GETSELECTIONSTART);
    show();
    m_pattern->setFocus();
    m_pattern->selectAll();
    m_isOutdated = true;
    refresh();
}

SearchTerms FindBar::terms() const
{
    return {m_pattern->text(), m_matchCase->isChecked(), m_wholeWords->isChecked(), m_expression->isChecked()};
}

void FindBar::refreshLater()
{
    m_isOutdated = true;
    if (isVisible() && !m_isReplacing) {
        m_timer.start(m_editor.length() >= Editor::LargeSize ? LargeDelay : 0);
    }
}

void FindBar::refresh()
{
    if (!m_isOutdated) {
        return;
    }
    m_timer.stop();
    m_matches = findAll(m_editor.bytes(), terms(), m_replacement->text());
    m_isOutdated = false;
    m_editor.showMatches(isVisible() ? m_matches : QList<Match>());
    showCount();
}

void FindBar::findTyped()
{
    m_isOutdated = true;
    refresh();
    if (m_matches.isEmpty()) {
        return;
    }
    const auto found = std::ranges::lower_bound(m_matches, m_start, {}, &Match::begin);
    selectMatch(found == m_matches.end() ? 0 : std::distance(m_matches.begin(), found));
}

bool FindBar::findNext()
{
    if (m_pattern->text().isEmpty()) {
        openToFind();
    }
    refresh();
    if (m_matches.isEmpty()) {
        return false;
    }
    const qsizetype end = m_editor.SendScintilla(QsciScintilla::SCI_GETSELECTIONEND);
    const auto found = std::ranges::lower_bound(m_matches, end, {}, &Match::begin);
    selectMatch(found == m_matches.end() ? 0 : std::distance(m_matches.begin(), found));
    return true;
}

bool FindBar::findPrevious()
{
    if (m_pattern->text().isEmpty()) {
        openToFind();
    }
    refresh();
    if (m_matches.isEmpty()) {
        return false;
    }
    const qsizetype begin = m_editor.SendScintilla(QsciScintilla::SCI_GETSELECTIONSTART);
    const auto found = std::ranges::upper_bound(m_matches, begin, {}, &Match::end);
    selectMatch((found == m_matches.begin() ? m_matches.size() : std::distance(m_matches.begin(), found)) - 1);
    return true;
}

void FindBar::selectMatch(qsizetype index)
{
    m_editor.select(m_matches.at(index).begin, m_matches.at(index).end);
    m_start = m_matches.at(index).begin;
    showCount();
}

qsizetype FindBar::selectedMatch() const
{
    const qsizetype begin = m_editor.SendScintilla(QsciScintilla::SCI_GETSELECTIONSTART);
    const qsizetype end = m_editor.SendScintilla(QsciScintilla::SCI_GETSELECTIONEND);
    const auto found = std::ranges::lower_bound(m_matches, begin, {}, &Match::begin);
    return found != m_matches.end() && found->begin == begin && found->end == end
        ? std::distance(m_matches.begin(), found)
        : -1;
}

void FindBar::showCount()
{
    const QString error = errorIn(terms());
    const qsizetype selected = selectedMatch();
    m_count->setToolTip(error);
    if (!error.isEmpty()) {
        m_count->setText(tr("not valid"));
    } else if (m_pattern->text().isEmpty()) {
        m_count->clear();
    } else if (m_matches.isEmpty()) {
        m_count->setText(tr("not found"));
    } else if (selected < 0) {
        m_count->setText(tr("%1 found").arg(m_matches.size()));
    } else {
        m_count->setText(tr("%1 of %2").arg(selected + 1).arg(m_matches.size()));
    }
    m_replaceOne->setEnabled(!m_matches.isEmpty());
    m_replaceAll->setEnabled(!m_matches.isEmpty());
}

void FindBar::replaceOne()
{
    m_isOutdated = true; // What replaces may have changed.
    refresh();
    const qsizetype index = selectedMatch();
    if (index >= 0) {
        const Match match = m_matches.at(index);
        m_editor.replaceAll({match});
        const qsizetype end = match.begin + match.replacement.size();
        m_editor.select(end, end);
    }
    findNext();
}

void FindBar::replaceAll()
{
    m_isOutdated = true;
    refresh();
    m_isReplacing = true;
    m_editor.replaceAll(m_matches);
    m_isReplacing = false;
    const qsizetype count = m_matches.size();
    m_isOutdated = true;
    refresh();
    if (m_matches.isEmpty()) {
        m_count->setText(tr("%1 replaced").arg(count));
    }
}

void FindBar::keyPressEvent(QKeyEvent* event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->key() == Qt::Key_Escape) {
        hide();
    } else if (isReturn && m_replacement->hasFocus()) {
        replaceOne();
    } else if (isReturn && event->modifiers().testFlag(Qt::ShiftModifier)) {
        findPrevious();
    } else if (isReturn) {
        findNext();
    } else {
        QWidget::keyPressEvent(event);
    }
}

void FindBar::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    m_editor.showMatches({});
    if (!event->spontaneous()) {
        m_editor.setFocus();
    }
}

} // namespace cluiedit
