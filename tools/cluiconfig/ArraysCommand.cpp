#include "Commands.h"
#include "NearMiss.h"
#include "Output.h"
#include "TableOutput.h"

#include <batterydata/RawDataCollection.h>
#include <datastorage/Converter.h>

#include <algorithm>
#include <iterator>
#include <memory>
#include <span>
#include <string>
#include <vector>

using namespace Qt::StringLiterals;
using cl::batterydata::ClConfigDataArray;
using cl::batterydata::ExportCategory;
using cl::datastorage::Converter;
using cl::datastorage::DataType;

namespace cluiconfig {

namespace {

constexpr int MostNearMatches = 10;

struct ArraysOptions
{
    std::vector<std::string> words;
    std::string category;
    TableFormat format;
};

using Arrays = QList<const ClConfigDataArray*>;

// The words of a catalogue file.

QString text(ExportCategory category)
{
    switch (category) {
    case ExportCategory::Never:
        return u"Never"_s;
    case ExportCategory::OnDemand:
        return u"On demand"_s;
    case ExportCategory::Standard:
        return u"Standard"_s;
    case ExportCategory::Complete:
        return u"Complete"_s;
    }
    return {};
}

QString text(DataType type)
{
    switch (type) {
    case DataType::Double:
        return u"Double"_s;
    case DataType::Float:
        return u"Float"_s;
    case DataType::Integer:
        return u"Integer"_s;
    case DataType::Boolean:
        return u"Boolean"_s;
    case DataType::Text:
        return u"Text"_s;
    }
    return {};
}

struct Column
{
    QString name;
    QJsonValue (*value)(const ClConfigDataArray&);
};

/// What there is to tell of an array: first what people are shown, the category foremost.
std::span<const Column> columns()
{
    static const std::vector<Column> all{
        {u"Category"_s, [](const ClConfigDataArray& array) { return QJsonValue(array.getCategory()); }},
        {u"Name"_s, [](const ClConfigDataArray& array) { return QJsonValue(array.getName()); }},
        {u"Unit"_s,
         [](const ClConfigDataArray& array) { return QJsonValue(Converter::toString(array.getUsualUnit())); }},
        {u"Parameter"_s,
         [](const ClConfigDataArray& array) { return QJsonValue(Converter::toString(array.getPhysicalParameter())); }},
        {u"Export"_s, [](const ClConfigDataArray& array) { return QJsonValue(text(array.getExportCategory())); }},
        {u"Machine name"_s, [](const ClConfigDataArray& array) { return QJsonValue(array.getMachineName()); }},
        {u"Type"_s, [](const ClConfigDataArray& array) { return QJsonValue(text(array.getDataType())); }},
        {u"Required"_s, [](const ClConfigDataArray& array) { return QJsonValue(array.isRequired()); }},
        {u"Description"_s, [](const ClConfigDataArray& array) { return QJsonValue(array.getDescription()); }},
        {u"Formula"_s, [](const ClConfigDataArray& array) { return QJsonValue(array.getFormula()); }},
    };
    return all;
}

constexpr std::size_t ShownColumns = 6;

Table tableOf(const QString& name, const Arrays& arrays, std::span<const Column> columns)
{
    Table table{.name = name};
    for (const Column& column : columns) {
        table.columns.append(column.name);
    }
    for (const ClConfigDataArray* array : arrays) {
        QList<QJsonValue> row;
        for (const Column& column : columns) {
            row.append(column.value(*array));
        }
        table.rows.append(row);
    }
    return table;
}

/// The arrays of the catalogue, or of the category \p category unless it is empty.
Arrays arraysOf(const QString& category)
{
    const auto& catalogue =
        lumo::tools::Singleton<cl::batterydata::RawDataCollection>::instance().getDataConfiguration();
    const QStringList& known = catalogue.getCategories();
    if (!category.isEmpty() && !known.contains(category, Qt::CaseInsensitive)) {
        const QString near = didYouMean(category, known);
        fail(u"There is no category \"%1\"."_s.arg(category)
             + (near.isEmpty() ? u" The categories are: "_s + known.join(u", "_s) : near));
    }
    Arrays arrays;
    for (const ClConfigDataArray* array : catalogue.getAll()) {
        if (category.isEmpty() || array->getCategory().compare(category, Qt::CaseInsensitive) == 0) {
            arrays.append(array);
        }
    }
    return arrays;
}

/// Those whose name or machine name contains each of \p words.
Arrays containing(const QStringList& words, const Arrays& arrays)
{
    Arrays found;
    std::copy_if(arrays.begin(), arrays.end(), std::back_inserter(found), [&](const ClConfigDataArray* array) {
        return std::all_of(words.begin(), words.end(), [&](const QString& word) {
            return array->getName().contains(word, Qt::CaseInsensitive)
                || array->getMachineName().contains(word, Qt::CaseInsensitive);
        });
    });
    return found;
}

/// Those whose names have the letters of \p pattern in their order, best first.
Arrays nearTo(const QString& pattern, const Arrays& arrays)
{
    QStringList names;
    for (const ClConfigDataArray* array : arrays) {
        names << array->getName() << array->getMachineName();
    }
    names.removeDuplicates();
    Arrays found;
    const QStringList matches = abbreviated(pattern, names, MostNearMatches);
    for (const QString& match : matches) {
        for (const ClConfigDataArray* array : arrays) {
            if ((array->getName() == match || array->getMachineName() == match) && !found.contains(array)) {
                found.append(array);
            }
        }
    }
    return found;
}

/// Where not even the letters are there: a slip of the hand in a name, in the quantity before its unit, or in a word.
[[noreturn]] void failUnknown(const QString& pattern, const Arrays& arrays, const QString& category)
{
    QStringList names;
    QStringList words;
    for (const ClConfigDataArray* array : arrays) {
        const QString quantity = array->getName().section(u" / "_s, 0, 0);
        names << array->getName() << array->getMachineName() << quantity;
        words << quantity.split(u' ');
    }
    const QString where = category.isEmpty() ? QString() : u" of the category \"%1\""_s.arg(category);
    fail(u"No data array%1 has a name like \"%2\"."_s.arg(where, pattern) + didYouMean(pattern, names + words),
         ExitRefused);
}

/// A table a category, in catalogue order.
QList<Table> byCategory(const Arrays& arrays)
{
    QList<Table> tables;
    for (const ClConfigDataArray* array : arrays) {
        const QString& category = array->getCategory();
        const bool isThere =
            std::any_of(tables.begin(), tables.end(), [&](const Table& table) { return table.name == category; });
        if (!isThere) {
            Arrays ofCategory;
            std::copy_if(arrays.begin(), arrays.end(), std::back_inserter(ofCategory),
                         [&](const ClConfigDataArray* each) { return each->getCategory() == category; });
            tables.append(tableOf(category, ofCategory, columns().subspan(1, ShownColumns - 1)));
        }
    }
    return tables;
}

void arrays(const ArraysOptions& options)
{
    QStringList words;
    for (const std::string& word : options.words) {
        words.append(QString::fromStdString(word));
    }
    const QString category = QString::fromStdString(options.category);
    const Arrays all = arraysOf(category);
    const Arrays found = containing(words, all);
    const bool isForPrograms = options.format.name == "json";
    if (!found.isEmpty() || words.isEmpty()) {
        options.format.print(isForPrograms || found.isEmpty() ? QList{tableOf(u"Data arrays"_s, found, columns())}
                                                              : byCategory(found));
        return;
    }
    const QString pattern = words.join(u' ');
    const Arrays near = nearTo(pattern, all);
    if (near.isEmpty()) {
        failUnknown(pattern, all, category);
    }
    options.format.print({isForPrograms
                              ? tableOf(u"Near matches"_s, near, columns())
                              : tableOf(u"No name contains \"%1\"; those that come near, best first"_s.arg(pattern),
                                        near, columns().first(ShownColumns))});
}

} // namespace

void addArraysCommand(CLI::App& program)
{
    auto options = std::make_shared<ArraysOptions>();
    CLI::App* command = program.add_subcommand(
        "arrays", "The data arrays that documents may name, by category: the catalogue, or what matches in it.");
    command->add_option("PATTERN", options->words,
                        "List only the arrays whose name or machine name contains each of these, in upper or lower "
                        "case. Where none does, those are listed that have the letters in their order, best first.");
    command->add_option("--category", options->category, "List the arrays of one category only.");
    options->format.addTo(*command);
    command->footer(R"(JSON also has type, description and formula of each array, and whether every record has it.

Examples:
  cluiconfig arrays                              the whole catalogue
  cluiconfig arrays voltage                      what has to do with voltages
  cluiconfig arrays charging capacity            what has both words
  cluiconfig arrays capacity --category Cycle    the capacities of a cycle
  cluiconfig arrays --catalogue mine.json        the catalogue of a site of its own

Exit code: 0, 1 when nothing comes near, 2 when there is no such category.)");
    command->callback([options] { arrays(*options); });
}

} // namespace cluiconfig
