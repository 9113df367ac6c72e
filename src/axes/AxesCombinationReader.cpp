#include <axes/AxesCombinationManager.h>

#include <axes/private/JsonFields.h>
#include <batterydata/ClConfigDataArrayManager.h>
#include <batterydata/RawDataCollection.h>
#include <config/Singleton.h>

#include <QCborArray>
#include <QJsonArray>
#include <QVarLengthArray>

#include <optional>
#include <utility>

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

/// An array that a reference names, and its number in the index from the first pair on.
struct NamedArray
{
    const cl::datastorage::ConfigDataArray* array = nullptr;
    qint32 number = Unnumbered;

    static constexpr qint32 Unnumbered = -1;
};
using NamedArrays = QVarLengthArray<NamedArray, 4>;

/// The arrays that a reference names: one when it gives a category, all of that name when it does not. Empty optional,
/// with \p error filled from \p unknownMessage, when the category has no such array.
std::optional<NamedArrays> resolveReference(const ClConfigDataArrayManager& catalogue, const JsonFields& reference,
                                            QLatin1StringView unknownMessage, QString& error)
{
    const QString name = reference.text(NameKey);
    const QString category = reference.text(CategoryKey);
    NamedArrays arrays;
    if (category.isEmpty()) {
        const auto named = catalogue.getConfigDataArrays(name);
        for (const auto* array : named) {
            arrays.append({array});
        }
    } else if (const auto* array = catalogue.getConfigDataArray(name, category)) {
        arrays.append({array});
    } else {
        error = QString(unknownMessage).arg(name, 0, u' ').arg(category, 0, u' ');
        return std::nullopt;
    }
    return arrays;
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

std::optional<PlotDefaults> readPlotDefaults(const JsonFields& entry, QString& error)
{
    const QString scaleX = entry.text(ScaleXKey);
    const QString scaleY = entry.text(ScaleYKey);
    if (scaleX.isEmpty() || scaleY.isEmpty()) {
        error = UnexpectedScale;
        return std::nullopt;
    }
    const QString orthonormal = entry.text(OrthonormalKey);
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
    const JsonFields fields(entry);
    const QCborValue x = fields.value(XKey);
    if (!x.isArray()) {
        error = UnexpectedX;
        return false;
    }
    const QCborArray xReferences = x.toArray();
    const QCborArray yReferences = fields.array(YKey);
    const ClConfigDataArrayManager& catalogue =
        lumo::tools::Singleton<cl::batterydata::RawDataCollection>::instance().getDataConfiguration();

    // Resolved and read when they are first needed, which decides what is appended before a failure and which failure
    // comes first; kept from then on, since neither can change from pair to pair.
    QVarLengthArray<NamedArrays, 16> yArrays;
    std::optional<PlotDefaults> defaults;

    for (const auto& xReference : xReferences) {
        auto xArrays = resolveReference(catalogue, JsonFields(xReference), UnknownX, error);
        if (!xArrays) {
            return false;
        }
        qsizetype y = 0;
        for (const auto& yReference : yReferences) {
            if (y == yArrays.size()) {
                auto resolved = resolveReference(catalogue, JsonFields(yReference), UnknownY, error);
                if (!resolved) {
                    return false;
                }
                yArrays.push_back(*std::move(resolved));
            }
            for (NamedArray& arrayX : *xArrays) {
                for (NamedArray& arrayY : yArrays[y]) {
                    if (arrayX.array->getCategory() != arrayY.array->getCategory()) {
                        continue;
                    }
                    if (!defaults && !(defaults = readPlotDefaults(fields, error))) {
                        return false;
                    }
                    m_combinations.emplaceBack(*arrayX.array, *arrayY.array, defaults->scaleX, defaults->scaleY,
                                               defaults->orthonormal);
                    if (m_combinations.constLast().isValid()) {
                        if (arrayX.number == NamedArray::Unnumbered) {
                            arrayX.number = m_index.numberX(arrayX.array->getName());
                        }
                        if (arrayY.number == NamedArray::Unnumbered) {
                            arrayY.number = m_index.numberY(arrayY.array->getName());
                        }
                        m_index.add(arrayX.number, arrayY.number, m_combinations.size() - 1);
                    }
                }
            }
            ++y;
        }
    }
    return true;
}
