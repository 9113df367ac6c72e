#include "TableModel.h"

#include "TableWords.h"
#include "Texts.h"

#include <check/Text.h>

#include <QColor>
#include <QGuiApplication>
#include <QPainter>
#include <QPalette>
#include <QPixmap>

#include <algorithm>
#include <cmath>
#include <optional>

using namespace Qt::StringLiterals;
using cluiconfig::cellText;
using cluiconfig::Table;

namespace cluiedit {

namespace {

constexpr int SwatchSize = 12;

/// The number that \p text is; nothing for other texts, and for "nan", which has no place among numbers.
std::optional<double> number(const QString& text)
{
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    return isNumber && !std::isnan(number) ? std::optional(number) : std::nullopt;
}

/// The colour of a name such as "#0072b2", with an outline that tells it from the ground; nothing for other texts.
QVariant swatch(const QString& name)
{
    if (!name.startsWith(u'#') || !QColor::isValidColor(name)) {
        return {};
    }
    QPixmap pixmap(SwatchSize, SwatchSize);
    pixmap.fill(QColor(name));
    QPainter painter(&pixmap);
    painter.setPen(QGuiApplication::palette().color(QPalette::Mid));
    painter.drawRect(0, 0, SwatchSize - 1, SwatchSize - 1);
    return pixmap;
}

} // namespace

void TableModel::show(const Table& table)
{
    if (table.name != m_table.name || table.columns != m_table.columns) {
        beginResetModel();
        m_table = table;
        endResetModel();
        return;
    }
    const auto& before = m_table.rows;
    const auto& after = table.rows;
    const qsizetype shorter = std::min(before.size(), after.size());
    const qsizetype same = std::ranges::mismatch(before, after).in1 - before.begin();
    const qsizetype sameAtEnd =
        std::mismatch(before.rbegin(), before.rbegin() + (shorter - same), after.rbegin()).first - before.rbegin();
    const auto changedEnd = static_cast<int>(shorter - sameAtEnd);
    if (same < changedEnd) {
        std::copy(after.begin() + same, after.begin() + changedEnd, m_table.rows.begin() + same);
        emit dataChanged(index(static_cast<int>(same), 0), index(changedEnd - 1, columnCount() - 1));
    }
    if (after.size() < before.size()) {
        beginRemoveRows({}, changedEnd, static_cast<int>(before.size() - sameAtEnd) - 1);
        m_table = table;
        endRemoveRows();
    } else if (after.size() > before.size()) {
        beginInsertRows({}, changedEnd, static_cast<int>(after.size() - sameAtEnd) - 1);
        m_table = table;
        endInsertRows();
    }
}

QString TableModel::shown(qsizetype row, qsizetype column) const
{
    return tableCell(value(row, column), m_table.columns.at(column));
}

QString TableModel::text(qsizetype row, qsizetype column) const
{
    return cluiconfig::check::printable(shown(row, column));
}

int TableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_table.rows.size());
}

int TableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_table.columns.size());
}

QVariant TableModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    switch (role) {
    case Qt::DisplayRole:
        return text(index.row(), index.column());
    case Qt::ToolTipRole:
        return toolTipText(text(index.row(), index.column()));
    case Qt::DecorationRole:
        return m_table.endsInColors && index.column() == columnCount() - 1
            ? swatch(cellText(value(index.row(), index.column())))
            : QVariant();
    default:
        return {};
    }
}

QVariant TableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount()) {
        return {};
    }
    if (role == Qt::TextAlignmentRole) {
        return QVariant::fromValue(Qt::Alignment(Qt::AlignLeft | Qt::AlignVCenter));
    }
    return role == Qt::DisplayRole ? tableWord(m_table.columns.at(section)) : QVariant();
}

TableRows::TableRows(TableModel& model, QObject* parent)
    : QSortFilterProxyModel(parent)
    , m_model(model)
{
    setSourceModel(&model);
}

void TableRows::setWords(const QStringList& words)
{
    if (words != m_words) {
        m_words = words;
        invalidateFilter();
    }
}

bool TableRows::filterAcceptsRow(int row, const QModelIndex& parent) const
{
    if (m_words.isEmpty() || parent.isValid()) {
        return true;
    }
    QString all;
    for (int column = 0; column < m_model.columnCount(); ++column) {
        all += m_model.shown(row, column) + u'\n';
    }
    return containsAll(all, m_words);
}

bool TableRows::lessThan(const QModelIndex& left, const QModelIndex& right) const
{
    const QString a = m_model.shown(left.row(), left.column());
    const QString b = m_model.shown(right.row(), right.column());
    const std::optional<double> numberA = number(a);
    const std::optional<double> numberB = number(b);
    if (numberA.has_value() != numberB.has_value()) {
        return numberA.has_value(); // numbers first
    }
    return numberA ? *numberA < *numberB : a.compare(b, Qt::CaseInsensitive) < 0;
}

} // namespace cluiedit
