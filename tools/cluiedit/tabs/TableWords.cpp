#include "TableWords.h"

#include <document/Table.h>

#include <QCoreApplication>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace cluiedit {

namespace {

constexpr std::array Words{
    // headings
    QT_TRANSLATE_NOOP("cluiedit::Tables", "Axes combinations"),
    QT_TRANSLATE_NOOP("cluiedit::Tables", "Representations"),
    QT_TRANSLATE_NOOP("cluiedit::Tables", "Compound units"),
    QT_TRANSLATE_NOOP("cluiedit::Tables", "Skipped tasks"),
    QT_TRANSLATE_NOOP("cluiedit::Tables", "Summary table columns"),
    QT_TRANSLATE_NOOP("cluiedit::Tables", "Palette"),
    QT_TRANSLATE_NOOP("cluiedit::Tables", "Default colours"),
    QT_TRANSLATE_NOOP("cluiedit::Tables", "Statistics graphs"),
    QT_TRANSLATE_NOOP("cluiedit::Tables", "Ragone plots"),
    QT_TRANSLATE_NOOP("cluiedit::Tables", "Processed-data graphs"),
    QT_TRANSLATE_NOOP("cluiedit::Tables", "Recipe entries"),
    QT_TRANSLATE_NOOP("cluiedit::Tables", "Process formulas"),
    QT_TRANSLATE_NOOP("cluiedit::Tables", "dQ/dU columns"),
    QT_TRANSLATE_NOOP("cluiedit::Tables", "dQ/dU graph"),
    QT_TRANSLATE_NOOP("cluiedit::Tables", "Debug switches"),
    QT_TRANSLATE_NOOP("cluiedit::Tables", "Physical parameters"),
    QT_TRANSLATE_NOOP("cluiedit::Tables", "Units of %1"),
    // titles of columns
    QT_TRANSLATE_NOOP("cluiedit::Tables", "X"),
    QT_TRANSLATE_NOOP("cluiedit::Tables", "Y"),
    QT_TRANSLATE_NOOP("cluiedit::Tables", "Y1"),
    QT_TRANSLATE_NOOP("cluiedit::Tables", "Y2"),
    QT_TRANSLATE_NOOP("cluiedit::Tables", "X scale"),
    QT_TRANSLATE_NOOP("cluiedit::Tables", "Y scale"),
    QT_TRANSLATE_NOOP("cluiedit::Tables", "Orthonormal"),
    QT_TRANSLATE_NOOP("cluiedit::Tables", "Name"),
    QT_TRANSLATE_NOOP("cluiedit::Tables", "Category"),
    QT_TRANSLATE_NOOP("cluiedit::Tables", "Default"),
    QT_TRANSLATE_NOOP("cluiedit::Tables", "Drawn"),
    QT_TRANSLATE_NOOP("cluiedit::Tables", "Physical parameter"),
    QT_TRANSLATE_NOOP("cluiedit::Tables", "Operator"),
    QT_TRANSLATE_NOOP("cluiedit::Tables", "With"),
    QT_TRANSLATE_NOOP("cluiedit::Tables", "Task"),
    QT_TRANSLATE_NOOP("cluiedit::Tables", "Table"),
    QT_TRANSLATE_NOOP("cluiedit::Tables", "Column"),
    QT_TRANSLATE_NOOP("cluiedit::Tables", "Unit"),
    QT_TRANSLATE_NOOP("cluiedit::Tables", "Colour"),
    QT_TRANSLATE_NOOP("cluiedit::Tables", "Element"),
    QT_TRANSLATE_NOOP("cluiedit::Tables", "Graph"),
    QT_TRANSLATE_NOOP("cluiedit::Tables", "Curve"),
    QT_TRANSLATE_NOOP("cluiedit::Tables", "Type"),
    QT_TRANSLATE_NOOP("cluiedit::Tables", "Processed Y"),
    QT_TRANSLATE_NOOP("cluiedit::Tables", "Command"),
    QT_TRANSLATE_NOOP("cluiedit::Tables", "Title"),
    QT_TRANSLATE_NOOP("cluiedit::Tables", "Parameters"),
    QT_TRANSLATE_NOOP("cluiedit::Tables", "Axis"),
    QT_TRANSLATE_NOOP("cluiedit::Tables", "Displayed"),
    QT_TRANSLATE_NOOP("cluiedit::Tables", "Compiled"),
    QT_TRANSLATE_NOOP("cluiedit::Tables", "Switch"),
    QT_TRANSLATE_NOOP("cluiedit::Tables", "On"),
    QT_TRANSLATE_NOOP("cluiedit::Tables", "Parameter"),
    QT_TRANSLATE_NOOP("cluiedit::Tables", "Units"),
    QT_TRANSLATE_NOOP("cluiedit::Tables", "Shown"),
    QT_TRANSLATE_NOOP("cluiedit::Tables", "Why not"),
    // cells
    QT_TRANSLATE_NOOP("cluiedit::Tables", "yes"),
    QT_TRANSLATE_NOOP("cluiedit::Tables", "no"),
    QT_TRANSLATE_NOOP("cluiedit::Tables", "(unknown)"),
    QT_TRANSLATE_NOOP("cluiedit::Tables", "nothing"),
    QT_TRANSLATE_NOOP("cluiedit::Tables", "Y1 and Y2"),
    QT_TRANSLATE_NOOP("cluiedit::Tables", "Identifiers in the import dialog"),
    QT_TRANSLATE_NOOP("cluiedit::Tables", "Keep imported Parquet files"),
    QT_TRANSLATE_NOOP("cluiedit::Tables", "Keep input data of impedance fits"),
    QT_TRANSLATE_NOOP("cluiedit::Tables", "%1 stands behind an operator: of the times only s and h may"),
    QT_TRANSLATE_NOOP("cluiedit::Tables", "%1 is not among the units that may be shown"),
    QT_TRANSLATE_NOOP("cluiedit::Tables", "%1 is a time at the fourth place"),
};

/// The columns that hold words of the tables instead of names from the document.
constexpr std::array ColumnsOfWords{"Drawn"_L1, "Switch"_L1, "Why not"_L1};

} // namespace

QStringList tableWords()
{
    QStringList words;
    std::ranges::transform(Words, std::back_inserter(words), [](const char* word) { return QLatin1StringView(word); });
    return words;
}

QString tableWord(const QString& text)
{
    for (const char* each : Words) {
        const QLatin1StringView word(each);
        if (text == word) {
            return QCoreApplication::translate("cluiedit::Tables", each);
        }
        const qsizetype place = word.indexOf("%1"_L1);
        if (place < 0) {
            continue;
        }
        const QLatin1StringView after = word.sliced(place + 2);
        if (text.size() >= place + after.size() && text.startsWith(word.first(place)) && text.endsWith(after)) {
            return QCoreApplication::translate("cluiedit::Tables", each)
                .arg(text.sliced(place, text.size() - place - after.size()));
        }
    }
    return text;
}

QString tableCell(const QJsonValue& value, const QString& column)
{
    const QString text = cluiconfig::cellText(value);
    const bool isWord = value.isBool() || value.isNull()
        || std::ranges::any_of(ColumnsOfWords, [&](QLatin1StringView title) { return column == title; });
    return isWord ? tableWord(text) : text;
}

} // namespace cluiedit
