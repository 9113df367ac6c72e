#include "TableDifference.h"

#include <check/Cells.h>
#include <check/Text.h>

#include <QHash>
#include <QJsonArray>

#include <algorithm>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace cluiconfig {

namespace {

constexpr qsizetype NoRow = -1;

/// \p count times no row. A list that is constructed with its size does not notice when there is no memory for it.
QList<qsizetype> noRows(qsizetype count)
{
    QList<qsizetype> rows;
    rows.resize(count);
    return rows.fill(NoRow);
}

QString valueText(const QJsonValue& value)
{
    if (value.isBool()) {
        return value.toBool() ? u"yes"_s : u"no"_s;
    }
    if (value.isArray()) {
        QStringList parts;
        const QJsonArray array = value.toArray();
        for (const auto& element : array) {
            parts.append(valueText(element));
        }
        return u'[' + parts.join(u", "_s) + u']';
    }
    return value.isNull() ? u"(unknown)"_s : u'"' + value.toString() + u'"';
}

QString columnsText(const QStringList& columns, const QJsonObject& row)
{
    QStringList parts;
    for (const QString& column : columns) {
        parts.append(column + u' ' + valueText(row.value(column)));
    }
    return parts.join(u", "_s);
}

/// The rows of two tables, each with its partner in the other one if there is one.
class Pairing
{
public:
    Pairing(const Table& table, const QJsonArray& before, const QJsonArray& after)
        : m_before(before)
        , m_after(after)
        , m_ofBefore(noRows(before.size()))
        , m_ofAfter(noRows(after.size()))
    {
        // Documents have most rows in common, and equal rows at the front need no searching.
        for (qsizetype i = 0; i < std::min(before.size(), after.size()) && before.at(i) == after.at(i); ++i) {
            m_ofBefore[i] = i;
            m_ofAfter[i] = i;
        }
        pairEqual([&](const QJsonObject& row) { return columnsText(table.keys, row); });
        for (const QString& name : table.names) {
            pairEqual([&](const QJsonObject& row) {
                QStringList others = row.keys();
                others.removeOne(name);
                return columnsText(others, row);
            });
        }
    }

    const QList<qsizetype>& ofBefore() const { return m_ofBefore; }
    const QList<qsizetype>& ofAfter() const { return m_ofAfter; }

private:
    /// Pairs the rows without partners that have equal \p keyOf, the first with the first.
    template <typename KeyOf>
    void pairEqual(KeyOf keyOf)
    {
        QHash<QString, QList<qsizetype>> rows; // last one first
        for (qsizetype i = m_before.size() - 1; i >= 0; --i) {
            if (m_ofBefore.at(i) == NoRow) {
                rows[keyOf(m_before.at(i).toObject())].append(i);
            }
        }
        for (qsizetype i = 0; i < m_after.size(); ++i) {
            if (m_ofAfter.at(i) == NoRow) {
                const auto found = rows.find(keyOf(m_after.at(i).toObject()));
                if (found != rows.end() && !found->isEmpty()) {
                    m_ofAfter[i] = found->takeLast();
                    m_ofBefore[m_ofAfter.at(i)] = i;
                }
            }
        }
    }

    const QJsonArray& m_before;
    const QJsonArray& m_after;
    QList<qsizetype> m_ofBefore;
    QList<qsizetype> m_ofAfter;
};

/// The indices of \p places that are not part of its longest ascending sequence; NoRow counts for nothing.
QList<qsizetype> outOfOrder(const QList<qsizetype>& places)
{
    QList<qsizetype> ends; // for each length, the index at which the sequence with the lowest end ends
    QList<qsizetype> previous = noRows(places.size());
    for (qsizetype i = 0; i < places.size(); ++i) {
        if (places.at(i) == NoRow) {
            continue;
        }
        const auto position = std::lower_bound(ends.begin(), ends.end(), i, [&](qsizetype end, qsizetype index) {
            return places.at(end) < places.at(index);
        });
        if (position != ends.begin()) {
            previous[i] = *std::prev(position);
        }
        if (position == ends.end()) {
            ends.append(i);
        } else {
            *position = i;
        }
    }
    std::vector<bool> isInOrder(static_cast<size_t>(places.size()), false);
    for (qsizetype i = ends.isEmpty() ? NoRow : ends.constLast(); i != NoRow; i = previous.at(i)) {
        isInOrder[static_cast<size_t>(i)] = true;
    }
    QList<qsizetype> others;
    for (qsizetype i = 0; i < places.size(); ++i) {
        if (places.at(i) != NoRow && !isInOrder[static_cast<size_t>(i)]) {
            others.append(i);
        }
    }
    return others;
}

/// The columns of \p row that \p table does not recognise it by.
QStringList contentColumns(const Table& table, const QJsonObject& row)
{
    QStringList columns = row.keys();
    columns.removeIf([&](const QString& column) { return table.keys.contains(column); });
    return columns;
}

/// Makes lines such as `  + Name "Nyquist plot": X "Frequency / Hz"`, of which the first or the second part may be
/// missing.
class Lines
{
public:
    explicit Lines(std::optional<qsizetype> room)
        : m_room(room)
    {
    }

    QString operator()(QChar sign, const QString& row, const QString& content) const
    {
        const QString colon = row.isEmpty() || content.isEmpty() ? QString() : u": "_s;
        const QString text = check::printable(row + colon + content);
        const QStringList lines = m_room ? check::wrapped(text, *m_room - Margin.size()) : QStringList{text};
        return u"  "_s + sign + u' ' + lines.join(u'\n' + QString(Margin)) + u'\n';
    }

private:
    static constexpr auto Margin = "    "_L1;

    std::optional<qsizetype> m_room;
};

QJsonArray rowsOf(const Table& table)
{
    QJsonArray rows;
    for (const auto& row : table.rows) {
        rows.append(toObject(table, row));
    }
    return rows;
}

QJsonArray toArray(const QList<QJsonObject>& rows)
{
    QJsonArray array;
    std::copy(rows.begin(), rows.end(), std::back_inserter(array));
    return array;
}

} // namespace

TableDifference difference(const Table& tableBefore, const Table& tableAfter)
{
    const QJsonArray before = rowsOf(tableBefore);
    const QJsonArray after = rowsOf(tableAfter);
    TableDifference result;
    if (before == after) {
        return result;
    }
    const Pairing pairing(tableBefore, before, after);
    for (qsizetype i = 0; i < before.size(); ++i) {
        if (pairing.ofBefore().at(i) == NoRow) {
            result.lost.append(before.at(i).toObject());
        }
    }
    for (qsizetype i = 0; i < after.size(); ++i) {
        const QJsonObject now = after.at(i).toObject();
        const qsizetype partner = pairing.ofAfter().at(i);
        if (partner == NoRow) {
            result.gained.append(now);
            continue;
        }
        const QJsonObject then = before.at(partner).toObject();
        QList<TableDifference::Change> changes;
        for (auto it = then.begin(); it != then.end(); ++it) {
            if (it.value() != now.value(it.key())) {
                changes.append({it.key(), it.value(), now.value(it.key())});
            }
        }
        if (!changes.isEmpty()) {
            result.changed.append({then, changes});
        }
    }
    for (const qsizetype i : outOfOrder(pairing.ofAfter())) {
        result.moved.append({after.at(i).toObject(), pairing.ofAfter().at(i) + 1, i + 1});
    }
    return result;
}

QString toText(const Table& table, const TableDifference& difference, std::optional<qsizetype> room)
{
    const Lines line(room);
    QStringList counts;
    const auto count = [&counts](qsizetype number, const QString& what) {
        if (number > 0) {
            counts.append(QString::number(number) + u' ' + what);
        }
    };
    count(difference.gained.size(), u"gained"_s);
    count(difference.lost.size(), u"lost"_s);
    count(difference.changed.size(), u"changed"_s);
    count(difference.moved.size(), u"moved"_s);

    QString text = table.name + u": "_s + counts.join(u", "_s) + u'\n';
    for (const QJsonObject& row : difference.gained) {
        text += line(u'+', columnsText(table.keys, row), columnsText(contentColumns(table, row), row));
    }
    for (const QJsonObject& row : difference.lost) {
        text += line(u'-', columnsText(table.keys, row), columnsText(contentColumns(table, row), row));
    }
    for (const auto& [row, changes] : difference.changed) {
        QStringList parts;
        for (const auto& [column, from, to] : changes) {
            parts.append(column + u' ' + valueText(from) + u" → "_s + valueText(to));
        }
        text += line(u'~', columnsText(table.keys, row), parts.join(u", "_s));
    }
    for (const auto& [row, from, to] : difference.moved) {
        text += line(u'>', columnsText(table.keys, row), u"place %1 → %2"_s.arg(from).arg(to));
    }
    return text;
}

QJsonObject toJson(const Table& table, const TableDifference& difference)
{
    QJsonArray changed;
    for (const auto& [row, changes] : difference.changed) {
        QJsonArray list;
        for (const auto& [column, from, to] : changes) {
            list.append(QJsonObject{{u"column"_s, column}, {u"from"_s, from}, {u"to"_s, to}});
        }
        changed.append(QJsonObject{{u"row"_s, row}, {u"changes"_s, list}});
    }
    QJsonArray moved;
    for (const auto& [row, from, to] : difference.moved) {
        moved.append(QJsonObject{{u"row"_s, row}, {u"from"_s, from}, {u"to"_s, to}});
    }
    return {{u"table"_s, table.name},
            {u"gained"_s, toArray(difference.gained)},
            {u"lost"_s, toArray(difference.lost)},
            {u"changed"_s, changed},
            {u"moved"_s, moved}};
}

} // namespace cluiconfig
