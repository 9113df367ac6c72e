#include "Commands.h"
#include "DocumentFile.h"
#include "NearMiss.h"
#include "Output.h"
#include "TableOutput.h"

#include <axes/AxesCombinationManager.h>
#include <base/DocumentKeys.h>
#include <config/Configuration.h>
#include <document/DocumentTables.h>

#include <QFileInfo>

#include <memory>
#include <string>

using namespace Qt::StringLiterals;

namespace cluiconfig {

namespace {

struct AxesOptions
{
    std::string first;
    std::string second;
    std::string third;
    TableFormat format;
};

/// What the words of the command line stand for.
struct Question
{
    std::string document;
    QString x;
    QString y;
};

/// A name of a data array neither ends in ".json" nor is there a file of that name.
bool isDocument(const std::string& argument)
{
    const QString word = QString::fromStdString(argument);
    return isStandardInput(argument) || word.endsWith(u".json"_s, Qt::CaseInsensitive) || QFileInfo::exists(word);
}

Question questionFrom(const AxesOptions& options)
{
    if (!options.third.empty() || isDocument(options.first)) {
        return {options.first, QString::fromStdString(options.second), QString::fromStdString(options.third)};
    }
    return {ShippedDocument, QString::fromStdString(options.first), QString::fromStdString(options.second)};
}

[[noreturn]] void failUnknown(const QString& sentence, const QString& name, const QStringList& known)
{
    fail(sentence + didYouMean(name, known), ExitRefused);
}

QList<Table> xAxes(const AxesCombinationManager& manager)
{
    Table table{.name = u"X axes"_s, .columns = {u"X"_s, u"Y axes against it"_s}};
    const QStringList names = manager.getXAxesNames();
    for (const QString& x : names) {
        table.rows.append({x, manager.getYAxesNames(x).size()});
    }
    return {table};
}

QList<Table> yAxes(const AxesCombinationManager& manager, const QString& x)
{
    Table table{.name = u"Y axes against %1"_s.arg(x), .columns = {u"Y"_s}};
    const QStringList names = manager.getYAxesNames(x);
    if (names.isEmpty()) {
        failUnknown(u"No axes combination has \"%1\" on its X axis."_s.arg(x), x, manager.getXAxesNames());
    }
    for (const QString& y : names) {
        table.rows.append({y});
    }
    return {table};
}

QList<Table> pair(const AxesCombinationManager& manager, const QList<ConfigRepresentation>& all, const QString& x,
                  const QString& y)
{
    const QList<Table> against = yAxes(manager, x);
    const AxesCombination taken = manager.getAxesCombination(x, y);
    if (!taken.isValid()) {
        failUnknown(u"No axes combination has \"%1\" on its X axis and \"%2\" on its Y axis."_s.arg(x, y), y,
                    manager.getYAxesNames(x));
    }

    Table combinations{
        .name = u"Combinations"_s,
        .columns = {u"X"_s, u"Y"_s, u"Category"_s, u"X scale"_s, u"Y scale"_s, u"Orthonormal"_s, u"Taken"_s}};
    const QList<AxesCombination> candidates = manager.getAxesCombinations(x);
    for (AxesCombination combination : candidates) {
        if (combination.getConfigY().getName() == y) {
            combinations.rows.append({x, y, combination.getConfigX().getCategory(),
                                      scaleText(combination.getDefaultScaleX()),
                                      scaleText(combination.getDefaultScaleY()), combination.isOrthonormal(),
                                      combinations.rows.isEmpty()}); // a lookup by names takes the first
        }
    }

    Table representations{.name = uiconfig::keys::Representations, .columns = {u"Name"_s, u"Has Y as"_s, u"Default"_s}};
    for (const ConfigRepresentation& representation : all) {
        if (representation.x() == x && (representation.y1() == y || representation.y2() == y)) {
            representations.rows.append(
                {representation.name(), representation.y1() == y ? u"Y1"_s : u"Y2"_s, representation.isDefault()});
        }
    }
    return {combinations, representations};
}

void axes(const AxesOptions& options)
{
    const Question question = questionFrom(options);
    const uiconfig::Configuration configuration = loadDocument(question.document);
    AxesCombinationManager manager;
    manager.appendAll(configuration.axesCombinations);
    options.format.print(question.x.isEmpty() ? xAxes(manager)
                             : question.y.isEmpty()
                             ? yAxes(manager, question.x)
                             : pair(manager, configuration.representations, question.x, question.y));
}

} // namespace

void addAxesCommand(CLI::App& program)
{
    auto options = std::make_shared<AxesOptions>();
    CLI::App* command = program.add_subcommand(
        "axes", "What may be plotted against what: the X axes, the Y axes against one of them, or all about one pair.");
    command->add_option(
        "DOCUMENT", options->first,
        "The document; the shipped one when none is named. A first word is taken for a document when "
        "it ends in .json or is \"-\", which is standard input, when there is a file of that name, or when "
        "X and Y follow.");
    command->add_option("X", options->second, "The data array on the X axis: print the Y axes against it.");
    command->add_option("Y", options->third,
                        "The data array on the Y axis: print the combination, and the representations that use it. "
                        "Where several categories have the pair, the application takes the first.");
    options->format.addTo(*command);
    command->footer(R"(Examples:
  cluiconfig axes                                        the X axes of the shipped document
  cluiconfig axes "Test Time / s"                        the Y axes against one of them
  cluiconfig axes "Test Time / s" "Voltage / V"          all about the pair
  cluiconfig axes my.json "Test Time / s" "Voltage / V"  the same in a document of your own

Exit code: 0, 1 when there is no such axis or the application would not load the document, 2 when the command could not
run.)");
    command->callback([options] { axes(*options); });
}

} // namespace cluiconfig
