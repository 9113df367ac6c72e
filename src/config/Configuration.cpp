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

struct SectionReader
{
    Section section;
    bool (*read)(const QJsonValue& section, const Reading& with) = nullptr;
};

bool readAxes(const QJsonValue& section, const Reading& with)
{
    return with.takesAxesCombinations
        ? readAxesCombinations(section.toArray(), with.catalogue, with.to.axesCombinations, with.refusals)
        : lookThroughAxesCombinations(section.toArray(), with.catalogue, with.refusals);
}

constexpr std::array SectionReaders{
    SectionReader{AxesCombinationsSection, readAxes},
    SectionReader{{keys::Representations, Array, "Representations array missing"_L1}, readRepresentations},
    SectionReader{{keys::MSVUnits, Array, "Multi units combinations array missing"_L1}, readMSVUnits},
    SectionReader{{keys::Filters, Object, MayBeMissing}, readFilters},
    SectionReader{{keys::Tools, Object, MayBeMissing}, readTools},
    SectionReader{{keys::Colors, Object, "Missing colors configuration node"_L1}, readColors},
    SectionReader{{keys::Statistics, Object, "Missing statistics graphs configuration node"_L1}, readStatistics},
    SectionReader{{keys::RagonePlot, Object, "Missing Ragone Plot graphs configuration node"_L1}, readRagonePlot},
    SectionReader{{keys::ProcessedData, Array, "Missing processed data graphs configuration node"_L1},
                  readProcessedData},
    SectionReader{{keys::Recipe, Object, "Missing recipe node"_L1}, readRecipe},
    SectionReader{{keys::ProcessFormula, Object, "Missing Process Formula configuration node"_L1}, readProcessFormula},
    SectionReader{{keys::DQdU, Object, "Missing dQ/dU node"_L1}, readDQdU},
    SectionReader{{keys::Debug, Object, MayBeMissing}, readDebug},
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

void readConfiguration(const QJsonObject& root, const Reading& with)
{
    QString error;
    if (!JsonUtils::checkVersionNumber(root, FormatVersion, error)
        && !with.refusals.goOnAfter(error, jsonPointer(keys::Version))) {
        return;
    }
    for (const SectionReader& reader : SectionReaders) {
        if (!read(reader, root, with)) {
            return;
        }
    }
}

void readSection(QLatin1StringView key, const QJsonObject& root, const Reading& with)
{
    const auto* reader =
        std::ranges::find(SectionReaders, key, [](const SectionReader& each) { return each.section.key; });
    Q_ASSERT(reader != SectionReaders.end());
    read(*reader, root, with);
}

} // namespace uiconfig
