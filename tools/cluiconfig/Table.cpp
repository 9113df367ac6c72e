#include "Table.h"

#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace cluiconfig {

namespace {

constexpr auto Indent = "  "_L1;
constexpr auto Gap = "  "_L1;

QString cellText(const QJsonValue& value)
{
    if (value.isBool()) {
        return value.toBool() ? u"yes"_s : u"no"_s;
    }
    if (value.isArray()) {
        QStringList parts;
        const QJsonArray array = value.toArray();
        for (const auto& element : array) {
            parts.append(element.toString());
        }
        return parts.join(u", "_s);
    }
    return value.isNull() ? u"(unknown)"_s : value.toString();
}

QList<QStringList> textRows(const Table& table)
{
    const qsizetype joined = table.joinedColumn;
    QList<QStringList> rows;
    for (const auto& values : table.rows) {
        QStringList row;
        for (const QJsonValue& value : values) {
            row.append(cellText(value));
        }
        if (joined >= 0 && !rows.isEmpty()) {
            QStringList previous = rows.constLast();
            previous[joined] = row.at(joined);
            if (previous == row) {
                rows.last()[joined] += u", "_s + row.at(joined);
                continue;
            }
        }
        rows.append(row);
    }
    return rows;
}

} // namespace

QString toText(const Table& table)
{
    QList<QStringList> lines = textRows(table);
    lines.prepend(table.columns);

    QList<qsizetype> widths(table.columns.size(), 0);
    for (const QStringList& line : std::as_const(lines)) {
        for (qsizetype i = 0; i < line.size(); ++i) {
            widths[i] = std::max(widths.at(i), line.at(i).size());
        }
    }

    QString text = table.name + u" ("_s + QString::number(table.rows.size()) + u")\n"_s;
    if (table.rows.isEmpty()) {
        return text;
    }
    for (const QStringList& line : std::as_const(lines)) {
        QString row = Indent;
        for (qsizetype i = 0; i < line.size(); ++i) {
            row += line.at(i).leftJustified(widths.at(i)) + Gap;
        }
        text += row.trimmed().prepend(Indent) + u'\n';
    }
    return text;
}

QJsonValue toJson(const Table& table)
{
    QJsonArray array;
    for (const auto& values : table.rows) {
        QJsonObject object;
        for (qsizetype i = 0; i < values.size(); ++i) {
            object.insert(table.columns.at(i), values.at(i));
        }
        array.append(object);
    }
    return array;
}

} // namespace cluiconfig
