#include <axes/AxesCombinations.h>

#include <axes/AxesCombinationManager.h>
#include <base/JsonFields.h>
#include <base/Singleton.h>
#include <batterydata/ClConfigDataArrayManager.h>
#include <batterydata/RawDataCollection.h>

#include <QCborArray>
#include <QVarLengthArray>

#include <forward_list>
#include <optional>
#include <utility>

using namespace Qt::StringLiterals;
using cl::batterydata::ClConfigDataArrayManager;
using cl::datastorage::DataArrayIdentifier;

namespace uiconfig {

namespace {

constexpr auto EntryNotAnObject = "Axes combination is not Json object"_L1;
constexpr auto UnexpectedX = "Unexpected axes combination X"_L1;
constexpr auto UnknownX = "Unexpected axes combination X: %1 (%2)"_L1;
constexpr auto UnknownY = "Unexpected axes combination Y1/Y2: %1 (%2)"_L1;
constexpr auto UnexpectedScale = "Unexpected axes combination default scale"_L1;
constexpr auto UnexpectedOrthonormal = "Unexpected axes combination orthonormal parameter"_L1;

/// An array that a reference names, or one that stands in for an array that the catalogue lacks.
struct NamedArray
{
    const DataArrayIdentifier* identifier = nullptr;
    bool isStandIn = false;
};
using NamedArrays = QVarLengthArray<NamedArray, 4>;

struct PlotDefaults
{
    QCPAxis::ScaleType scaleX;
    QCPAxis::ScaleType scaleY;
    bool orthonormal;
};

QCPAxis::ScaleType scaleFromWord(const QString& word)
{
    return word == keys::LinearWord ? QCPAxis::stLinear : QCPAxis::stLogarithmic;
}

/// Reads one entry. What it does returns false when the reading is to stop.
struct EntryReader
{
    bool read()
    {
        const QCborValue x = entry.value(keys::X);
        if (!x.isArray() && !refuse(UnexpectedX, keys::X)) {
            return false;
        }
        yReferences = entry.array(keys::Y1Y2);
        const QCborArray xReferences = x.toArray();
        qsizetype index = 0;
        for (const auto& reference : xReferences) {
            NamedArrays xs;
            if (!resolve(JsonFields(reference), UnknownX, keys::X, index++, xs) || !pairWithYs(xs)) {
                return false;
            }
        }
        return true;
    }

    template <typename... Steps>
    bool refuse(const QString& sentence, const Steps&... steps)
    {
        return refusals.goOnAfter(sentence, jsonPointer(keys::AxesCombinations, number, steps...));
    }

    /// Appends the arrays that a reference names: one when it gives a category, all of that name when it does not.
    bool resolve(const JsonFields& reference, QLatin1StringView unknown, QLatin1StringView key, qsizetype index,
                 NamedArrays& arrays)
    {
        const QString name = reference.text(keys::Name);
        const QString category = reference.text(keys::Category);
        if (category.isEmpty()) {
            const auto named = catalogue.getConfigDataArrays(name);
            for (const auto* array : named) {
                arrays.append({array});
            }
        } else if (const auto* array = catalogue.getConfigDataArray(name, category)) {
            arrays.append({array});
        } else if (refuse(QString(unknown).arg(name, 0, u' ').arg(category, 0, u' '), key, index)) {
            arrays.append({&standIns.emplace_front(name, category), true});
        } else {
            return false;
        }
        return true;
    }

    bool pairWithYs(const NamedArrays& xs)
    {
        if (combinations == nullptr && defaults && resolvedYs.size() == yReferences.size()) {
            return true; // no pair can be refused any more
        }
        qsizetype index = 0;
        for (const auto& reference : std::as_const(yReferences)) {
            // Resolved when it is first needed, which decides what is appended before a refusal and which refusal
            // comes first; kept from then on, since it is the same for every X.
            if (index == resolvedYs.size()
                && !resolve(JsonFields(reference), UnknownY, keys::Y1Y2, index, resolvedYs.emplace_back())) {
                return false;
            }
            if (!pair(xs, resolvedYs[index++])) {
                return false;
            }
        }
        return true;
    }

    bool pair(const NamedArrays& xs, const NamedArrays& ys)
    {
        for (const NamedArray& x : xs) {
            for (const NamedArray& y : ys) {
                if (x.identifier->getCategory() == y.identifier->getCategory() && !append(x, y)) {
                    return false;
                }
            }
        }
        return true;
    }

    bool append(const NamedArray& x, const NamedArray& y)
    {
        if (!defaults && !readDefaults()) {
            return false;
        }
        if (combinations != nullptr && !x.isStandIn && !y.isStandIn) {
            combinations->emplaceBack(*x.identifier, *y.identifier, defaults->scaleX, defaults->scaleY,
                                      defaults->orthonormal);
        }
        return true;
    }

    bool readDefaults()
    {
        const QString scaleX = entry.text(keys::ScaleX);
        const QString scaleY = entry.text(keys::ScaleY);
        const QString orthonormal = entry.text(keys::Orthonormal);
        if ((scaleX.isEmpty() && !refuse(UnexpectedScale, keys::ScaleX))
            || (scaleY.isEmpty() && !refuse(UnexpectedScale, keys::ScaleY))
            || (orthonormal.isEmpty() && !refuse(UnexpectedOrthonormal, keys::Orthonormal))) {
            return false;
        }
        defaults = {scaleFromWord(scaleX), scaleFromWord(scaleY), orthonormal == keys::TrueWord};
        return true;
    }

    const JsonFields entry;
    const qsizetype number; // of the entry
    const ClConfigDataArrayManager& catalogue;
    QList<AxesCombination>* const combinations; // null when only refusals are asked for
    Refusals& refusals;
    QCborArray yReferences{};
    QVarLengthArray<NamedArrays, 16> resolvedYs{}; // of the Y references so far
    std::forward_list<DataArrayIdentifier> standIns{};
    std::optional<PlotDefaults> defaults{}; // read when the first pair needs them
};

bool readEntry(const QJsonObject& entry, qsizetype index, const ClConfigDataArrayManager& catalogue,
               QList<AxesCombination>* combinations, Refusals& refusals)
{
    return EntryReader{JsonFields(entry), index, catalogue, combinations, refusals}.read();
}

bool readEntries(const QJsonArray& entries, const ClConfigDataArrayManager& catalogue,
                 QList<AxesCombination>* combinations, Refusals& refusals)
{
    qsizetype index = 0;
    for (const auto& entry : entries) {
        const bool goesOn = entry.isObject()
            ? readEntry(entry.toObject(), index, catalogue, combinations, refusals)
            : refusals.goOnAfter(EntryNotAnObject, jsonPointer(keys::AxesCombinations, index));
        if (!goesOn) {
            return false;
        }
        ++index;
    }
    return true;
}

} // namespace

bool readAxesCombinations(const QJsonArray& entries, const ClConfigDataArrayManager& catalogue,
                          QList<AxesCombination>& combinations, Refusals& refusals)
{
    return readEntries(entries, catalogue, &combinations, refusals);
}

bool readAxesCombination(const QJsonObject& entry, qsizetype index, const ClConfigDataArrayManager& catalogue,
                         QList<AxesCombination>& combinations, Refusals& refusals)
{
    return readEntry(entry, index, catalogue, &combinations, refusals);
}

bool lookThroughAxesCombinations(const QJsonArray& entries, const ClConfigDataArrayManager& catalogue,
                                 Refusals& refusals)
{
    return readEntries(entries, catalogue, nullptr, refusals);
}

} // namespace uiconfig

namespace {

const ClConfigDataArrayManager& processCatalogue()
{
    return lumo::tools::Singleton<cl::batterydata::RawDataCollection>::instance().getDataConfiguration();
}

} // namespace

bool AxesCombinationManager::readAxesCombinations(const QJsonObject& root, QString& error)
{
    uiconfig::Refusals refusals(uiconfig::Refusals::AtFirst::Stop);
    QList<AxesCombination> combinations;
    uiconfig::readSection(uiconfig::AxesCombinationsSection, root, refusals, [&](const QJsonValue& section) {
        return uiconfig::readAxesCombinations(section.toArray(), processCatalogue(), combinations, refusals);
    });
    appendAll(std::move(combinations));
    return refusals.isEmpty(error);
}

bool AxesCombinationManager::readAxesCombination(const QJsonObject& entry, QString& error)
{
    uiconfig::Refusals refusals(uiconfig::Refusals::AtFirst::Stop);
    QList<AxesCombination> combinations;
    uiconfig::readAxesCombination(entry, 0, processCatalogue(), combinations, refusals);
    appendAll(std::move(combinations));
    return refusals.isEmpty(error);
}
