// Two documents, with a byte between them that is in neither: nothing differs between a document and itself, and what
// differs between two is empty exactly if their tables are equal.

#include "Fuzz.h"

#include <cluiconfig/TableDifference.h>
#include <document/DocumentTables.h>

#include <QJsonDocument>

#include <optional>

using cluiconfig::Table;
using cluiconfig::TableDifference;
using fuzz::require;

namespace {

constexpr char Between = '\xFF'; // is in no UTF-8

QList<Table> tables(const QByteArray& text)
{
    uiconfig::Refusals refusals(uiconfig::Refusals::AtFirst::GoOn);
    uiconfig::Configuration configuration;
    uiconfig::readConfiguration(QJsonDocument::fromJson(text).object(), {fuzz::catalogue(), configuration, refusals});
    return cluiconfig::documentTables(configuration);
}

void requireConsistent(const Table& before, const Table& after)
{
    require(cluiconfig::difference(before, before).isEmpty(), "a table does not differ from itself");
    const TableDifference there = cluiconfig::difference(before, after);
    const TableDifference back = cluiconfig::difference(after, before);
    require(there.isEmpty() == (before.rows == after.rows), "two tables differ exactly if their rows do");
    require(there.gained.size() == back.lost.size() && there.lost.size() == back.gained.size()
                && there.changed.size() == back.changed.size() && there.moved.size() == back.moved.size(),
            "there and back is as far");
    require(after.rows.size() - before.rows.size() == there.gained.size() - there.lost.size(),
            "rows are gained and lost as the tables grow");
    const bool isSaid = !cluiconfig::toText(before, there, std::nullopt).isEmpty();
    require(isSaid || there.isEmpty(), "a difference is said");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray input = fuzz::bytes(data, size);
    const qsizetype between = input.indexOf(Between);
    const QList<Table> before = tables(between < 0 ? input : input.first(between));
    const QList<Table> after = tables(input.sliced(between + 1));
    require(before.size() == after.size(), "every document gives the same tables");
    for (qsizetype i = 0; i < before.size(); ++i) {
        requireConsistent(before.at(i), after.at(i));
    }
    return 0;
}
