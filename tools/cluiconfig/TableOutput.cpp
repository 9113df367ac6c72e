#include "TableOutput.h"

#include <check/Cells.h>
#include <check/Text.h>

#include <QColor>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <iterator>
#include <numeric>
#include <utility>

using namespace Qt::StringLiterals;

namespace cluiconfig {

namespace {

constexpr auto Indent = "  "_L1;
constexpr auto Gap = "  "_L1;
constexpr auto ListIndent = "      "_L1;
constexpr auto Swatch = "      "_L1;

/// The number among a terminal's 256 colours of the one nearest to \p color in the cube of six steps a channel.
int paletteIndex(const QColor& color)
{
    const auto step = [](int channel) { return (channel * 5 + 127) / 255; };
    return 16 + 36 * step(color.red()) + 6 * step(color.green()) + step(color.blue());
}

/// Blanks on the colour that \p name names ("#0072b2"), set off from the name; empty where it names none.
QString swatch(const QString& name, ColorDepth colors)
{
    const QColor color(name);
    if (colors == ColorDepth::None || !color.isValid()) {
        return {};
    }
    const QString background = colors == ColorDepth::TrueColor
        ? u"2;%1;%2;%3"_s.arg(color.red()).arg(color.green()).arg(color.blue())
        : u"5;%1"_s.arg(paletteIndex(color));
    return Gap + u"\x1b[48;"_s + background + u'm' + Swatch + u"\x1b[0m"_s;
}

/// Calls \p visit with the texts of each row, those put together that are joined: one at a time, since of axes
/// combinations there may be millions.
template <typename Visit>
void forEachTextRow(const Table& table, Visit visit)
{
    const qsizetype joined = table.joinedColumn;
    std::optional<QStringList> last;
    QString others; // to be joined to the last row
    const auto end = [&] {
        if (last) {
            if (joined >= 0) {
                (*last)[joined] += others;
            }
            visit(*last);
        }
    };
    for (const auto& values : table.rows) {
        QStringList row;
        for (const QJsonValue& value : values) {
            row.append(check::printable(cellText(value)));
        }
        if (joined >= 0 && last) {
            const QString text = std::exchange(row[joined], last->at(joined));
            if (row == *last) {
                others += u", "_s + text;
                continue;
            }
            row[joined] = text;
        }
        end();
        last = row;
        others.clear();
    }
    end();
}

/// How many cells a column may have.
struct Column
{
    qsizetype least = 0; ///< For its longest word.
    qsizetype most = 0; ///< For its longest text; its name may take several lines.
    qsizetype all = 0; ///< For its longest text and its name.
};

QList<Column> columnsOf(const Table& table)
{
    const auto longestWord = [](const QString& text) {
        const QStringList all = check::words(text);
        return std::ranges::max(all, {}, check::cellCount);
    };
    QList<Column> columns;
    for (const QString& name : table.columns) {
        columns.append(Column{.least = check::cellCount(longestWord(name))});
    }
    forEachTextRow(table, [&](const QStringList& row) {
        for (qsizetype i = 0; i < columns.size(); ++i) {
            Column& column = columns[i];
            column.least = std::max(column.least, check::cellCount(longestWord(row.at(i))));
            column.most = std::max(column.most, check::cellCount(row.at(i)));
        }
    });
    for (qsizetype i = 0; i < columns.size(); ++i) {
        Column& column = columns[i];
        column.most = std::max(column.most, column.least);
        column.all = std::max(column.most, check::cellCount(table.columns.at(i)));
    }
    return columns;
}

/// What a row has of a line besides its cells.
qsizetype blanksBeside(const QList<Column>& columns)
{
    return Indent.size() + (columns.size() - 1) * Gap.size();
}

/// The size of a row in which nothing is wrapped.
qsizetype widest(const QList<Column>& columns)
{
    return std::accumulate(columns.begin(), columns.end(), blanksBeside(columns),
                           [](qsizetype sum, const Column& column) { return sum + column.all; });
}

/// Gives each of \p room to the narrowest of \p widths that has not what it wants, until all have or nothing is left.
QList<qsizetype> shared(qsizetype room, QList<qsizetype> widths, const QList<qsizetype>& wanted)
{
    for (qsizetype rest = room - std::accumulate(widths.begin(), widths.end(), qsizetype{0}); rest > 0; --rest) {
        qsizetype narrowest = -1;
        for (qsizetype i = 0; i < widths.size(); ++i) {
            if (widths.at(i) < wanted.at(i) && (narrowest < 0 || widths.at(i) < widths.at(narrowest))) {
                narrowest = i;
            }
        }
        if (narrowest < 0) {
            break;
        }
        ++widths[narrowest];
    }
    return widths;
}

/// The widths of \p columns in a line of \p available cells: as wide as they want if that fits; otherwise no word is
/// cut if that fits, and what is left goes to the narrow ones first.
QList<qsizetype> widthsWithin(const QList<Column>& columns, qsizetype available)
{
    const auto each = [&](qsizetype Column::*size) {
        QList<qsizetype> sizes;
        std::ranges::transform(columns, std::back_inserter(sizes), size);
        return sizes;
    };
    if (widest(columns) <= available) {
        return each(&Column::all);
    }
    const qsizetype room = available - blanksBeside(columns);
    const QList<qsizetype> words = shared(room, QList<qsizetype>(columns.size(), 1), each(&Column::least));
    return shared(room, words, each(&Column::most));
}

QString withoutBlanksAtEnd(const QString& text)
{
    const auto last = std::find_if(text.rbegin(), text.rend(), [](QChar c) { return c != u' '; });
    return text.first(std::distance(last, text.rend()));
}

/// A row of a table, \p end behind its first line.
QString aligned(const QStringList& cells, const QList<qsizetype>& widths, const QString& end)
{
    QList<QStringList> columns;
    qsizetype height = 0;
    for (qsizetype i = 0; i < cells.size(); ++i) {
        columns.append(check::wrapped(cells.at(i), widths.at(i)));
        height = std::max(height, columns.constLast().size());
    }
    QString text;
    for (qsizetype line = 0; line < height; ++line) {
        // Blanks are written when something follows them: not in each row as many as the longest one has.
        QString row;
        qsizetype blanks = Indent.size();
        for (qsizetype i = 0; i < columns.size(); ++i) {
            const QString cell = columns.at(i).value(line);
            if (!cell.isEmpty()) {
                row += QString(blanks, u' ') + cell;
                blanks = 0;
            }
            blanks += widths.at(i) - check::cellCount(cell) + Gap.size();
        }
        text += withoutBlanksAtEnd(row) + (line == 0 ? end : QString()) + u'\n';
    }
    return text;
}

/// \p list in lines of its own.
QString indented(const QString& list, qsizetype available)
{
    const QString margin = ListIndent;
    return margin + check::wrapped(list, available - margin.size()).join(u'\n' + margin) + u'\n';
}

/// Prints an array with one object a row, each on a line, the columns as keys. Row by row: a tree of all rows would
/// take ten times the memory of its text.
void printRows(const Table& table)
{
    QByteArray before = "[\n        ";
    for (const auto& row : table.rows) {
        printJson(before + QJsonDocument(toObject(table, row)).toJson(QJsonDocument::Compact));
        before = ",\n        ";
    }
    printJson(table.rows.isEmpty() ? "[]" : "\n    ]");
}

} // namespace

QJsonObject toObject(const Table& table, const QList<QJsonValue>& row)
{
    QJsonObject object;
    for (qsizetype i = 0; i < row.size(); ++i) {
        object.insert(table.columns.at(i), row.at(i));
    }
    return object;
}

void printText(const Table& table, ColorDepth colors, std::optional<qsizetype> room)
{
    print(u"%1 (%2)\n"_s.arg(check::printable(table.name)).arg(table.rows.size()).toUtf8());
    if (table.rows.isEmpty()) {
        return;
    }
    QList<Column> columns = columnsOf(table);
    const qsizetype available = room.value_or(widest(columns))
        - (table.endsInColors && colors != ColorDepth::None ? Gap.size() + Swatch.size() : 0);
    const bool hasListBelow = table.joinedColumn >= 0 && widest(columns) > available;
    if (hasListBelow) {
        columns.removeLast();
    }
    const QList<qsizetype> widths = widthsWithin(columns, available);
    const auto printRow = [&](const QStringList& cells, const QString& end) {
        QString text = aligned(cells.first(widths.size()), widths, end);
        if (hasListBelow) {
            text += indented(cells.constLast(), available);
        }
        print(text.toUtf8());
    };
    printRow(table.columns, {});
    forEachTextRow(table, [&](const QStringList& row) {
        printRow(row, table.endsInColors ? swatch(row.constLast(), colors) : QString());
    });
}

void TableFormat::addTo(CLI::App& command)
{
    command.add_option("--format", name, "Aligned text for people, or JSON for programs.")
        ->check(CLI::IsMember({"text", "json"}))
        ->capture_default_str();
    addWideOption(command, isWide);
}

void addWideOption(CLI::App& command, bool& isWide)
{
    command.add_flag("--wide", isWide, "On a terminal too, write what belongs on a line on one, however long it is.");
}

void TableFormat::print(const QList<Table>& tables) const
{
    if (name == "json") {
        QByteArray before = "{\n    ";
        for (const Table& table : tables) {
            const QByteArray key = QJsonDocument(QJsonArray{table.name}).toJson(QJsonDocument::Compact);
            printJson(before + key.sliced(1, key.size() - 2) + ": ");
            printRows(table);
            before = ",\n    ";
        }
        printJson("\n}\n");
        return;
    }
    for (const Table& table : tables) {
        if (&table != &tables.constFirst()) {
            cluiconfig::print("\n");
        }
        printText(table, colorDepth(), isWide ? std::nullopt : terminalWidth());
    }
}

} // namespace cluiconfig
