#include "Commands.h"
#include "NearMiss.h"
#include "Output.h"
#include "TableOutput.h"

#include <config/UIFilteredUnits.h>
#include <datastorage/Converter.h>
#include <document/UnitTables.h>

#include <QRegularExpression>

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <utility>

using namespace Qt::StringLiterals;
using cl::datastorage::Converter;
using cl::datastorage::PhysicalParameter;
using cl::datastorage::UsualUnit;

namespace cluiconfig {

namespace {

struct UnitsOptions
{
    std::string word;
    TableFormat format;
};

/// The unit of that symbol, which may be spelt with the letters of any keyboard, as in names of data arrays: "ohm cm2"
/// is Ω·cm².
std::optional<UsualUnit> unitFromWord(const QString& word)
{
    if (const std::optional<UsualUnit> unit = Converter::getUnitFromString(word)) {
        return unit;
    }
    static const std::array spellings{
        std::pair{QRegularExpression(u"[ *.⋅]"_s), u"·"_s},
        std::pair{QRegularExpression(u"(^|[·/])[uμ]"_s), u"\\1µ"_s}, // the Greek letter, too
        std::pair{QRegularExpression(u"[Oo]hm"_s), u"Ω"_s},
        std::pair{QRegularExpression(u"deg"_s), u"°"_s},
        std::pair{QRegularExpression(u"\\^?2(?=$|[·/])"_s), u"²"_s},
        std::pair{QRegularExpression(u"\\^?3(?=$|[·/])"_s), u"³"_s},
    };
    QString symbol = word.normalized(QString::NormalizationForm_C); // which knows one Ω and one Å
    for (const auto& [spelling, sign] : spellings) {
        symbol.replace(spelling, sign);
    }
    return Converter::getUnitFromString(symbol);
}

/// The parameter that \p unit measures, and whether the unit is to be had for it.
Table measuredIn(const UsualUnit& unit, PhysicalParameter parameter)
{
    const QString symbol = Converter::toString(unit);
    const bool isOffered = Converter::getAvailableUnits(parameter).contains(unit);
    const bool isShown = UIFilteredUnits::getFilteredUnits(parameter).contains(unit);
    const QString reason = !isOffered ? u"%1 is not among the units that are offered"_s.arg(symbol)
        : isShown                     ? QString()
                                      : reasonAgainst(unit);
    return {.name = u"Physical parameters measured in %1"_s.arg(symbol),
            .columns = {u"Parameter"_s, u"Offered"_s, u"Shown"_s, u"Why not"_s},
            .rows = {{Converter::toString(parameter), isOffered, isShown, reason}}};
}

[[noreturn]] void failUnknown(const QString& word)
{
    const QStringList parameters = Converter::getPhysicalParameterNames();
    QStringList known = parameters;
    for (const QString& name : parameters) {
        const QList<UsualUnit> units = Converter::getAvailableUnits(Converter::getPhysicalParameterFromString(name));
        for (const UsualUnit& unit : units) {
            known.append(Converter::toString(unit));
        }
    }
    const QString near = didYouMean(word, known);
    fail(u"There is no physical parameter and no unit \"%1\"."_s.arg(word)
         + (near.isEmpty() ? u" \"cluiconfig units\" lists the parameters."_s : near));
}

QList<Table> about(const QString& word)
{
    if (Converter::getPhysicalParameterNames().contains(word)) {
        return {unitsTable(Converter::getPhysicalParameterFromString(word))};
    }
    const std::optional<UsualUnit> unit = unitFromWord(word);
    if (!unit) {
        failUnknown(word);
    }
    const PhysicalParameter parameter = Converter::getPhysicalParameterFromUnits(*unit);
    if (parameter == PhysicalParameter::None) {
        fail(u"No physical parameter is measured in %1."_s.arg(Converter::toString(*unit)));
    }
    return {measuredIn(*unit, parameter), unitsTable(parameter)};
}

void units(const UnitsOptions& options)
{
    options.format.print(options.word.empty() ? QList<Table>{parametersTable()}
                                              : about(QString::fromStdString(options.word)));
}

} // namespace

void addUnitsCommand(CLI::App& program)
{
    auto options = std::make_shared<UnitsOptions>();
    CLI::App* command = program.add_subcommand(
        "units", "The units of a physical parameter, which of them the user interface shows, and why not the others.");
    command->add_option("PARAMETER", options->word,
                        "The parameter by its exact name, as in \"PhysicalParameter\" of a document; or one of its "
                        "units, to find the parameter. Without it, the parameters are listed.");
    options->format.addTo(*command);
    command->footer(R"(Examples:
  cluiconfig units                                 all parameters, with the numbers of their units
  cluiconfig units Voltage                         the units of one
  cluiconfig units mAh/g                           what is measured in mAh/g, and the other units of it
  cluiconfig units "ohm cm2"                       the same for Ω·cm², spelt as in names of data arrays
  cluiconfig units "Specific charge" --format json for a program

Exit code: 0, 2 when there is no such parameter or unit.)");
    command->callback([options] { units(*options); });
}

} // namespace cluiconfig
