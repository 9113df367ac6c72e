#include "TableRows.h"

#include "TableModel.h"

#include <algorithm>
#include <cmath>
#include <utility>

using namespace Qt::StringLiterals;

namespace cluiedit {

TableRows::TableRows(TableModel& model, QObject* parent)
    : QSortFilterProxyModel(parent)
    , m_model(model)
{
    // Connected before the base class, which compares rows when it hears of a change.
    connect(&model, &TableModel::dataChanged, this, &TableRows::forget);
    connect(&model, &TableModel::rowsInserted, this, &TableRows::forget);
    connect(&model, &TableModel::rowsRemoved, this, &TableRows::forget);
    connect(&model, &TableModel::modelReset, this, &TableRows::forget);
    setSourceModel(&model);
}

void TableRows::setWords(const QStringList& words)
{
    QStringList folded;
    for (const QString& word : words) {
        folded.append(word.toCaseFolded());
    }
    if (folded != m_words) {
        m_words = folded;
        invalidateFilter();
    }
}

void TableRows::forget()
{
    m_keys.clear();
    m_foldedTexts.clear();
}

const TableRows::Key& TableRows::key(int row, int column) const
{
    if (column != m_keyColumn || m_keys.empty()) {
        m_keyColumn = column;
        m_keys.assign(static_cast<std::size_t>(m_model.rowCount()), {});
    }
    Key& key = m_keys.at(static_cast<std::size_t>(row));
    if (!key.isMade) {
        const QString text = m_model.shown(row, column);
        key.isMade = true;
        key.number = text.toDouble(&key.isNumber);
        key.isNumber = key.isNumber && !std::isnan(key.number); // which has no place among numbers
        key.text = text.toCaseFolded();
    }
    return key;
}

const QString& TableRows::foldedText(int row) const
{
    if (m_foldedTexts.empty()) {
        m_foldedTexts.resize(static_cast<std::size_t>(m_model.rowCount()));
    }
    QString& text = m_foldedTexts.at(static_cast<std::size_t>(row));
    if (text.isNull()) {
        QString all = u""_s; // not null, also of a row without cells
        for (int column = 0; column < m_model.columnCount(); ++column) {
            all += m_model.shown(row, column);
            all += u'\n';
        }
        text = std::move(all).toCaseFolded();
    }
    return text;
}

bool TableRows::filterAcceptsRow(int row, const QModelIndex& parent) const
{
    if (m_words.isEmpty() || parent.isValid()) {
        return true;
    }
    const QString& text = foldedText(row);
    return std::ranges::all_of(m_words, [&text](const QString& word) { return text.contains(word); });
}

bool TableRows::lessThan(const QModelIndex& left, const QModelIndex& right) const
{
    const Key& a = key(left.row(), left.column());
    const Key& b = key(right.row(), right.column());
    if (a.isNumber != b.isNumber) {
        return a.isNumber; // numbers first
    }
    return a.isNumber ? a.number < b.number : a.text < b.text;
}

} // namespace cluiedit
