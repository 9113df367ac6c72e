#include <config/Configuration.h>

#include <axes/AxesCombinations.h>
#include <base/DocumentKeys.h>
#include <datastorage/JsonUtils.h>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;
using cl::datastorage::JsonUtils;

namespace uiconfig {

namespace {

constexpr int FormatVersion = 29;

constexpr auto Object = Section::Type::Object;
constexpr auto Array = Section::Type::Array;
constexpr QLatin1StringView MayBeMissing;

/// What is read with, and where to.
struct Reading
{
    const Catalogue& catalogue;
    Configuration& to;
    Refusals& refusals;
};

struct SectionReader
{
    Section section;
    bool (*read)(const QJsonValue& value, const Reading& reading);
};

const std::array SectionReaders{
    SectionReader{AxesCombinationsSection,
                  [](const QJsonValue& value, const Reading& with) {
                      return readAxesCombinations(value.toArray(), with.catalogue, with.to.axesCombinations,
                                                  with.refusals);
                  }},
    SectionReader{{keys::Representations, Array, "Representations array missing"_L1},
                  [](const QJsonValue& value, const Reading& with) {
                      return readRepresentations(value.toArray(), with.catalogue, with.to.representations,
                                                 with.refusals);
                  }},
    SectionReader{
        {keys::MSVUnits, Array, "Multi units combinations array missing"_L1},
        [](const QJsonValue& value, const Reading& with) { return readMSVUnits(value.toArray(), with.to.msvUnits); }},
    SectionReader{{keys::Filters, Object, MayBeMissing},
                  [](const QJsonValue& value, const Reading& with) {
                      return readFilters(value.toObject(), with.to.skippedTasks);
                  }},
    SectionReader{{keys::Tools, Object, MayBeMissing},
                  [](const QJsonValue& value, const Reading& with) {
                      return readTools(value.toObject(), with.catalogue, with.to.summaryTables, with.refusals);
                  }},
    SectionReader{{keys::Colors, Object, "Missing colors configuration node"_L1},
                  [](const QJsonValue& value, const Reading& with) {
                      return readColors(value.toObject(), with.to.colors, with.refusals);
                  }},
    SectionReader{{keys::Statistics, Object, "Missing statistics graphs configuration node"_L1},
                  [](const QJsonValue& value, const Reading& with) {
                      return readStatistics(value.toObject(), with.to.statistics);
                  }},
    SectionReader{{keys::RagonePlot, Object, "Missing Ragone Plot graphs configuration node"_L1},
                  [](const QJsonValue& value, const Reading& with) {
                      return readRagonePlot(value.toObject(), with.to.ragonePlots);
                  }},
    SectionReader{{keys::ProcessedData, Array, "Missing processed data graphs configuration node"_L1},
                  [](const QJsonValue& value, const Reading& with) {
                      return readProcessedData(value.toArray(), with.to.processedData, with.refusals);
                  }},
    SectionReader{{keys::Recipe, Object, "Missing recipe node"_L1},
                  [](const QJsonValue& value, const Reading& with) {
                      return readRecipe(value.toObject(), with.to.recipe, with.refusals);
                  }},
    SectionReader{{keys::ProcessFormula, Object, "Missing Process Formula configuration node"_L1},
                  [](const QJsonValue& value, const Reading& with) {
                      return readProcessFormula(value.toObject(), with.to.processFormulas);
                  }},
    SectionReader{{keys::DQdU, Object, "Missing dQ/dU node"_L1},
                  [](const QJsonValue& value, const Reading& with) {
                      return readDQdU(value.toObject(), with.catalogue, with.to.dQdU, with.refusals);
                  }},
    SectionReader{
        {keys::Debug, Object, MayBeMissing},
        [](const QJsonValue& value, const Reading& with) { return readDebug(value.toObject(), with.to.debugFlags); }},
};

bool read(const SectionReader& reader, const QJsonObject& root, const Reading& with)
{
    return readSection(reader.section, root, with.refusals,
                       [&](const QJsonValue& value) { return reader.read(value, with); });
}

} // namespace

QList<Section> sections()
{
    QList<Section> sections;
    for (const SectionReader& reader : SectionReaders) {
        sections.append(reader.section);
    }
    return sections;
}

void readConfiguration(const QJsonObject& root, const Catalogue& catalogue, Configuration& configuration,
                       Refusals& refusals)
{
    QString error;
    if (!JsonUtils::checkVersionNumber(root, FormatVersion, error)
        && !refusals.goOnAfter(error, jsonPointer(keys::Version))) {
        return;
    }
    const Reading with{catalogue, configuration, refusals};
    for (const SectionReader& reader : SectionReaders) {
        if (!read(reader, root, with)) {
            return;
        }
    }
}

void readSection(QLatin1StringView key, const QJsonObject& root, const Catalogue& catalogue,
                 Configuration& configuration, Refusals& refusals)
{
    const auto reader =
        std::ranges::find(SectionReaders, key, [](const SectionReader& each) { return each.section.key; });
    Q_ASSERT(reader != SectionReaders.end());
    read(*reader, root, {catalogue, configuration, refusals});
}

} // namespace uiconfig
