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
class EntryReader
{
public:
    EntryReader(const QJsonObject& entry, qsizetype index, const ClConfigDataArrayManager& catalogue,
                QList<AxesCombination>& combinations, Refusals& refusals)
        : m_entry(entry)
        , m_index(index)
        , m_catalogue(catalogue)
        , m_combinations(combinations)
        , m_refusals(refusals)
    {
    }

    bool read()
    {
        const QCborValue x = m_entry.value(keys::X);
        if (!x.isArray() && !refuse(UnexpectedX, keys::X)) {
            return false;
        }
        m_yReferences = m_entry.array(keys::Y1Y2);
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

private:
    template <typename... Steps>
    bool refuse(const QString& sentence, const Steps&... steps)
    {
        return m_refusals.goOnAfter(sentence, jsonPointer(keys::AxesCombinations, m_index, steps...));
    }

    /// Appends the arrays that a reference names: one when it gives a category, all of that name when it does not.
    bool resolve(const JsonFields& reference, QLatin1StringView unknown, QLatin1StringView key, qsizetype index,
                 NamedArrays& arrays)
    {
        const QString name = reference.text(keys::Name);
        const QString category = reference.text(keys::Category);
        if (category.isEmpty()) {
            const auto named = m_catalogue.getConfigDataArrays(name);
            for (const auto* array : named) {
                arrays.append({array});
            }
        } else if (const auto* array = m_catalogue.getConfigDataArray(name, category)) {
            arrays.append({array});
        } else if (refuse(QString(unknown).arg(name, 0, u' ').arg(category, 0, u' '), key, index)) {
            arrays.append({&m_standIns.emplace_front(name, category), true});
        } else {
            return false;
        }
        return true;
    }

    bool pairWithYs(const NamedArrays& xs)
    {
        qsizetype index = 0;
        for (const auto& reference : std::as_const(m_yReferences)) {
            // Resolved when it is first needed, which decides what is appended before a refusal and which refusal
            // comes first; kept from then on, since it is the same for every X.
            if (index == m_ys.size()
                && !resolve(JsonFields(reference), UnknownY, keys::Y1Y2, index, m_ys.emplace_back())) {
                return false;
            }
            if (!pair(xs, m_ys[index++])) {
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
        if (!m_defaults && !readDefaults()) {
            return false;
        }
        if (!x.isStandIn && !y.isStandIn) {
            m_combinations.emplaceBack(*x.identifier, *y.identifier, m_defaults->scaleX, m_defaults->scaleY,
                                       m_defaults->orthonormal);
        }
        return true;
    }

    bool readDefaults()
    {
        const QString scaleX = m_entry.text(keys::ScaleX);
        const QString scaleY = m_entry.text(keys::ScaleY);
        const QString orthonormal = m_entry.text(keys::Orthonormal);
        if ((scaleX.isEmpty() && !refuse(UnexpectedScale, keys::ScaleX))
            || (scaleY.isEmpty() && !refuse(UnexpectedScale, keys::ScaleY))
            || (orthonormal.isEmpty() && !refuse(UnexpectedOrthonormal, keys::Orthonormal))) {
            return false;
        }
        m_defaults = {scaleFromWord(scaleX), scaleFromWord(scaleY), orthonormal == keys::TrueWord};
        return true;
    }

    const JsonFields m_entry;
    const qsizetype m_index;
    const ClConfigDataArrayManager& m_catalogue;
    QList<AxesCombination>& m_combinations;
    Refusals& m_refusals;
    QCborArray m_yReferences;
    QVarLengthArray<NamedArrays, 16> m_ys; // of the Y references that were resolved
    std::forward_list<DataArrayIdentifier> m_standIns;
    std::optional<PlotDefaults> m_defaults; // read when the first pair needs them
};

} // namespace

bool readAxesCombinations(const QJsonArray& entries, const ClConfigDataArrayManager& catalogue,
                          QList<AxesCombination>& combinations, Refusals& refusals)
{
    qsizetype index = 0;
    for (const auto& entry : entries) {
        const bool goesOn = entry.isObject()
            ? readAxesCombination(entry.toObject(), index, catalogue, combinations, refusals)
            : refusals.goOnAfter(EntryNotAnObject, jsonPointer(keys::AxesCombinations, index));
        if (!goesOn) {
            return false;
        }
        ++index;
    }
    return true;
}

bool readAxesCombination(const QJsonObject& entry, qsizetype index, const ClConfigDataArrayManager& catalogue,
                         QList<AxesCombination>& combinations, Refusals& refusals)
{
    return EntryReader(entry, index, catalogue, combinations, refusals).read();
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
