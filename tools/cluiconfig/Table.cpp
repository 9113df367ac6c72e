#include "Table.h"

#include <check/Text.h>

#include <QColor>
#include <QJsonArray>
#include <QJsonDocument>

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
    if (value.isDouble()) {
        return QString::number(value.toInteger());
    }
    return value.isNull() ? u"(unknown)"_s : value.toString();
}

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
    return u"  \x1b[48;"_s + background + u"m      \x1b[0m"_s;
}

QList<QStringList> textRows(const Table& table)
{
    const qsizetype joined = table.joinedColumn;
    QList<QStringList> rows;
    for (const auto& values : table.rows) {
        QStringList row;
        for (const QJsonValue& value : values) {
            row.append(check::printable(cellText(value)));
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

QJsonObject toObject(const Table& table, const QList<QJsonValue>& row)
{
    QJsonObject object;
    for (qsizetype i = 0; i < row.size(); ++i) {
        object.insert(table.columns.at(i), row.at(i));
    }
    return object;
}

QString toText(const Table& table, ColorDepth colors)
{
    QList<QStringList> lines = textRows(table);
    lines.prepend(table.columns);

    QList<qsizetype> widths(table.columns.size(), 0);
    for (const QStringList& line : std::as_const(lines)) {
        for (qsizetype i = 0; i < line.size(); ++i) {
            widths[i] = std::max(widths.at(i), line.at(i).size());
        }
    }

    QString text = check::printable(table.name) + u" ("_s + QString::number(table.rows.size()) + u")\n"_s;
    if (table.rows.isEmpty()) {
        return text;
    }
    for (const QStringList& line : std::as_const(lines)) {
        QString row = Indent;
        for (qsizetype i = 0; i < line.size(); ++i) {
            row += line.at(i).leftJustified(widths.at(i)) + Gap;
        }
        text +=
            row.trimmed().prepend(Indent) + (table.endsInColors ? swatch(line.constLast(), colors) : QString()) + u'\n';
    }
    return text;
}

QByteArray toJson(const Table& table)
{
    QByteArray lines;
    for (const auto& row : table.rows) {
        lines += (lines.isEmpty() ? "\n        " : ",\n        ")
            + QJsonDocument(toObject(table, row)).toJson(QJsonDocument::Compact);
    }
    return '[' + lines + (lines.isEmpty() ? "]" : "\n    ]");
}

void TableFormat::addTo(CLI::App& command)
{
    command.add_option("--format", name, "Aligned text for people, or JSON for programs.")
        ->check(CLI::IsMember({"text", "json"}))
        ->capture_default_str();
}

void TableFormat::print(const QList<Table>& tables) const
{
    if (name == "json") {
        // Row by row: a tree of all rows would take ten times the memory of its text.
        QByteArray text;
        for (const Table& table : tables) {
            const QByteArray key = QJsonDocument(QJsonArray{table.name}).toJson(QJsonDocument::Compact);
            text += (text.isEmpty() ? "{\n    " : ",\n    ") + key.sliced(1, key.size() - 2) + ": " + toJson(table);
        }
        printJson(text + "\n}\n");
        return;
    }
    QStringList texts;
    for (const Table& table : tables) {
        texts.append(toText(table, colorDepth()));
    }
    cluiconfig::print(texts.join(u'\n').toUtf8());
}

} // namespace cluiconfig
