#include "TableText.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace cluiedit {

namespace {

QString tsvCell(QString cell)
{
    for (const QChar separator : {u'\t', u'\n', u'\r'}) {
        cell.replace(separator, u' ');
    }
    return cell;
}

QString csvCell(QString cell)
{
    const bool needsQuotes = std::ranges::any_of(u",\"\r\n"_s, [&](QChar sign) { return cell.contains(sign); });
    return needsQuotes ? u'"' + cell.replace(u'"', u"\"\""_s) + u'"' : cell;
}

template <typename Cell>
QString joined(const QList<QStringList>& rows, QChar separator, const QString& lineEnd, Cell cellOf)
{
    QString text;
    for (const QStringList& row : rows) {
        QStringList cells;
        std::ranges::transform(row, std::back_inserter(cells), cellOf);
        text += cells.join(separator) + lineEnd;
    }
    return text;
}

} // namespace

QString asTsv(const QList<QStringList>& rows)
{
    return joined(rows, u'\t', u"\n"_s, tsvCell);
}

QString asCsv(const QList<QStringList>& rows)
{
    return joined(rows, u',', u"\r\n"_s, csvCell);
}

} // namespace cluiedit
