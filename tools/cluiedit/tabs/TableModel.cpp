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

using namespace Qt::StringLiterals;
using cluiconfig::cellText;
using cluiconfig::Table;

namespace cluiedit {

namespace {

constexpr int SwatchSize = 12;

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

} // namespace cluiedit
