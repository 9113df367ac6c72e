#include <axes/AxesCombinationManager.h>

#include <batterydata/ClConfigDataArrayManager.h>
#include <batterydata/RawDataCollection.h>
#include <config/Singleton.h>

#include <QCborArray>
#include <QCborMap>
#include <QJsonArray>
#include <QVarLengthArray>

#include <optional>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr auto SectionKey = "Axes combinations"_L1;
constexpr auto XKey = "X"_L1;
constexpr auto YKey = "Y1/Y2"_L1;
constexpr auto ScaleXKey = "DEFAULT_SCALE_X"_L1;
constexpr auto ScaleYKey = "DEFAULT_SCALE_Y"_L1;
constexpr auto OrthonormalKey = "ORTHONORMAL_AXIS"_L1;
constexpr auto NameKey = "Name"_L1;
constexpr auto CategoryKey = "Category"_L1;

constexpr auto LinearWord = "LINEAR"_L1;
constexpr auto TrueWord = "TRUE"_L1;

constexpr auto SectionMissing = "Axes combinations array missing"_L1;
constexpr auto EntryNotAnObject = "Axes combination is not Json object"_L1;
constexpr auto UnexpectedX = "Unexpected axes combination X"_L1;
constexpr auto UnknownX = "Unexpected axes combination X: %1 (%2)"_L1;
constexpr auto UnknownY = "Unexpected axes combination Y1/Y2: %1 (%2)"_L1;
constexpr auto UnexpectedScale = "Unexpected axes combination default scale"_L1;
constexpr auto UnexpectedOrthonormal = "Unexpected axes combination orthonormal parameter"_L1;

using cl::batterydata::ClConfigDataArrayManager;
using DataArrays = QVarLengthArray<const cl::datastorage::ConfigDataArray*, 4>;

/// The text under \p key, empty when it is missing or no text.
QString text(const QCborMap& fields, QLatin1StringView key)
{
    const auto field = fields.constFind(key);
    return field == fields.constEnd() ? QString() : field->toString();
}

/// The arrays that a reference names: one when it gives a category, all of that name when it does not. Empty optional,
/// with \p error filled from \p unknownMessage, when the category has no such array.
std::optional<DataArrays> resolveReference(const ClConfigDataArrayManager& catalogue, const QCborMap& reference,
                                           QLatin1StringView unknownMessage, QString& error)
{
    const QString name = text(reference, NameKey);
    const QString category = text(reference, CategoryKey);
    if (category.isEmpty()) {
        const auto arrays = catalogue.getConfigDataArrays(name);
        return DataArrays(arrays.cbegin(), arrays.cend());
    }
    if (const auto* array = catalogue.getConfigDataArray(name, category)) {
        return DataArrays{array};
    }
    error = QString(unknownMessage).arg(name, 0, u' ').arg(category, 0, u' ');
    return std::nullopt;
}

struct PlotDefaults
{
    QCPAxis::ScaleType scaleX;
    QCPAxis::ScaleType scaleY;
    bool orthonormal;
};

QCPAxis::ScaleType scaleFromWord(const QString& word)
{
    return word == LinearWord ? QCPAxis::stLinear : QCPAxis::stLogarithmic;
}

std::optional<PlotDefaults> readPlotDefaults(const QCborMap& entry, QString& error)
{
    const QString scaleX = text(entry, ScaleXKey);
    const QString scaleY = text(entry, ScaleYKey);
    if (scaleX.isEmpty() || scaleY.isEmpty()) {
        error = UnexpectedScale;
        return std::nullopt;
    }
    const QString orthonormal = text(entry, OrthonormalKey);
    if (orthonormal.isEmpty()) {
        error = UnexpectedOrthonormal;
        return std::nullopt;
    }
    return PlotDefaults{scaleFromWord(scaleX), scaleFromWord(scaleY), orthonormal == TrueWord};
}

} // namespace

bool AxesCombinationManager::readAxesCombinations(const QJsonObject& root, QString& error)
{
    const QJsonValue section = root.value(SectionKey);
    if (!section.isArray()) {
        error = SectionMissing;
        return false;
    }
    const QJsonArray entries = section.toArray();
    for (const auto& entry : entries) {
        if (!entry.isObject()) {
            error = EntryNotAnObject;
            return false;
        }
        if (!readAxesCombination(entry.toObject(), error)) {
            return false;
        }
    }
    return true;
}

bool AxesCombinationManager::readAxesCombination(const QJsonObject& entry, QString& error)
{
    // The same data seen as CBOR, in which keys are found and elements are passed in half the time. References make up
    // most of a document.
    const QCborMap fields = QCborMap::fromJsonObject(entry);
    const QCborValue x = fields.value(XKey);
    if (!x.isArray()) {
        error = UnexpectedX;
        return false;
    }
    const QCborArray xReferences = x.toArray();
    const QCborArray yReferences = fields.value(YKey).toArray();
    const ClConfigDataArrayManager& catalogue =
        lumo::tools::Singleton<cl::batterydata::RawDataCollection>::instance().getDataConfiguration();

    // Resolved and read when they are first needed, which decides what is appended before a failure and which failure
    // comes first; kept from then on, since neither can change from pair to pair.
    std::vector<DataArrays> yArrays;
    yArrays.reserve(static_cast<size_t>(yReferences.size()));
    std::optional<PlotDefaults> defaults;

    for (const auto& xReference : xReferences) {
        const auto xArrays = resolveReference(catalogue, xReference.toMap(), UnknownX, error);
        if (!xArrays) {
            return false;
        }
        size_t y = 0;
        for (const auto& yReference : yReferences) {
            if (y == yArrays.size()) {
                auto resolved = resolveReference(catalogue, yReference.toMap(), UnknownY, error);
                if (!resolved) {
                    return false;
                }
                yArrays.push_back(*std::move(resolved));
            }
            for (const auto* arrayX : *xArrays) {
                for (const auto* arrayY : yArrays[y]) {
                    if (arrayX->getCategory() != arrayY->getCategory()) {
                        continue;
                    }
                    if (!defaults && !(defaults = readPlotDefaults(fields, error))) {
                        return false;
                    }
                    append(*arrayX, *arrayY, defaults->scaleX, defaults->scaleY, defaults->orthonormal);
                }
            }
            ++y;
        }
    }
    return true;
}
