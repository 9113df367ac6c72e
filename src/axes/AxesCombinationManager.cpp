#include <axes/AxesCombinationManager.h>

#include <axes/ConfigRepresentation.h>
#include <base/RecordList.h>
#include <batterydata/ClConfigDataArray.h>
#include <dataprocess/IDataStream.h>

#include <QJsonArray>
#include <QSet>

#include <optional>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr auto CombinationsKey = "axesCombinations"_L1;

constexpr int NoIndex = -1;

/// The text key of a record's identities, as DataStreamCombination::toString() gives it, by its hash: the text itself
/// is only made when two hashes are equal.
struct IdentityKey
{
    size_t hash = 0;
    const AxesCombination* combination = nullptr;

    friend size_t qHash(const IdentityKey& key, size_t /*seed*/) { return key.hash; }
    friend bool operator==(const IdentityKey& a, const IdentityKey& b)
    {
        return a.hash == b.hash
            && (*a.combination == *b.combination
                || a.combination->getDataStreamCombination().toString()
                    == b.combination->getDataStreamCombination().toString());
    }
};

/// \p buffer is scratch space, so that a long list allocates it once.
IdentityKey identityKey(const AxesCombination& combination, QString& buffer)
{
    const auto& x = combination.getConfigX();
    const auto& y = combination.getConfigY();
    buffer.resize(0);
    buffer.append(x.getCategory()).append(u' ').append(x.getName()).append(u' ');
    buffer.append(y.getCategory()).append(u' ').append(y.getName());
    return {qHash(QStringView(buffer)), &combination};
}

cl::datastorage::DataArrayIdentifier identifierOf(const cl::dataprocess::IDataStream& stream)
{
    const cl::batterydata::ClConfigDataArray array(
        stream.getName(), stream.getPhysicalParameter(), stream.getDataType(), stream.getUsualUnit(),
        cl::datastorage::DataConfigType{}, QString(), QString(), stream.getCategory(), false, QString());
    return {array.getName(), array.getCategory()};
}

} // namespace

AxesCombinationManager::AxesCombinationManager() = default;
AxesCombinationManager::AxesCombinationManager(const AxesCombinationManager& other) = default;
AxesCombinationManager& AxesCombinationManager::operator=(const AxesCombinationManager& other) = default;
AxesCombinationManager::~AxesCombinationManager() = default;

bool AxesCombinationManager::read(const QJsonObject& object, int version, cl::archive::ArchiveContext& context)
{
    deleteAll();
    const QJsonArray array = object.value(CombinationsKey).toArray();
    m_combinations.reserve(array.size());
    m_index.reserve(array.size());
    for (const auto& element : array) {
        AxesCombination combination;
        if (!combination.read(element.toObject(), version, context)) {
            break;
        }
        appendSharing(combination);
    }
    return true;
}

bool AxesCombinationManager::write(QJsonObject& object, int version, cl::archive::ArchiveContext& context) const
{
    object.insert(CombinationsKey, writeRecords(m_combinations, version, context));
    return true;
}

QList<AxesCombination> AxesCombinationManager::getAxesCombinations(const QString& x) const
{
    QList<AxesCombination> result;
    result.reserve(m_index.count(x));
    m_index.forEachRecord(x, [&](qsizetype record) { result.append(m_combinations.at(record)); });
    return result;
}

AxesCombination AxesCombinationManager::getAxesCombination(const QString& x, const QString& y) const
{
    const qsizetype record = m_index.find(x, y);
    return record < 0 ? AxesCombination() : m_combinations.at(record);
}

QList<QString> AxesCombinationManager::getXAxesNames() const
{
    return m_index.xNames();
}

QList<QString> AxesCombinationManager::getYAxesNames(const QString& x) const
{
    return m_index.yNames(x);
}

bool AxesCombinationManager::isRepresentationValid(const ConfigRepresentation* const representation) const
{
    return representation != nullptr
        && (m_index.find(representation->x(), representation->y1()) >= 0
            || m_index.find(representation->x(), representation->y2()) >= 0);
}

void AxesCombinationManager::append(const AxesCombination& combination)
{
    m_combinations.append(combination);
    indexRecordsFrom(m_combinations.size() - 1);
}

void AxesCombinationManager::appendAll(QList<AxesCombination> combinations)
{
    const qsizetype first = m_combinations.size();
    if (first == 0) {
        m_combinations = std::move(combinations);
        m_index.reserve(m_combinations.size());
    } else {
        m_combinations.append(std::move(combinations));
    }
    indexRecordsFrom(first);
}

void AxesCombinationManager::appendSharing(const AxesCombination& combination)
{
    if (!combination.isValid()) {
        m_combinations.append(combination);
        return;
    }
    const auto& configX = combination.getConfigX();
    const auto& configY = combination.getConfigY();
    const QString category =
        (m_combinations.isEmpty() ? combination : m_combinations.constLast()).getConfigX().getCategory();
    const auto shared = [&category](const QString& text) { return text == category ? category : text; };
    const qint32 x = m_index.numberX(configX.getName());
    const qint32 y = m_index.numberY(configY.getName());
    m_combinations.emplaceBack(cl::datastorage::DataArrayIdentifier(m_index.xName(x), shared(configX.getCategory())),
                               cl::datastorage::DataArrayIdentifier(m_index.yName(y), shared(configY.getCategory())),
                               QCPAxis::stLinear, QCPAxis::stLinear, false);
    m_index.add(x, y, m_combinations.size() - 1);
}

void AxesCombinationManager::deleteAll()
{
    replaceCombinations({});
}

void AxesCombinationManager::addCombinationsFromStreams(const QList<cl::dataprocess::IDataStream*>& streams, int index)
{
    const auto takesPart = [index](const cl::dataprocess::IDataStream& stream) {
        return index == NoIndex || stream.hasIndex(index);
    };
    std::optional<std::vector<cl::datastorage::DataArrayIdentifier>> ys; // the same for every X
    for (const auto* stream : streams) {
        // The count comes first: a stream need not know what to say of an index that it does not have.
        if (index >= stream->getCount() || !takesPart(*stream)) {
            continue;
        }
        const auto x = identifierOf(*stream);
        if (!ys) {
            ys.emplace();
            for (const auto* other : streams) {
                if (takesPart(*other)) {
                    ys->push_back(identifierOf(*other));
                }
            }
        }
        for (const auto& y : *ys) {
            append({x, y, QCPAxis::stLinear, QCPAxis::stLinear, false});
        }
    }
}

void AxesCombinationManager::removeDuplicates()
{
    QSet<IdentityKey> seen;
    seen.reserve(m_combinations.size());
    std::vector<const AxesCombination*> kept;
    kept.reserve(static_cast<size_t>(m_combinations.size()));
    QString buffer;
    for (const AxesCombination& combination : std::as_const(m_combinations)) {
        if (!combination.isValid()) {
            continue;
        }
        const qsizetype known = seen.size();
        seen.insert(identityKey(combination, buffer));
        if (seen.size() != known) {
            kept.push_back(&combination);
        }
    }
    if (static_cast<qsizetype>(kept.size()) == m_combinations.size()) {
        return;
    }
    QList<AxesCombination> combinations;
    combinations.reserve(static_cast<qsizetype>(kept.size()));
    for (const AxesCombination* combination : kept) {
        combinations.append(*combination);
    }
    replaceCombinations(combinations);
}

void AxesCombinationManager::indexRecordsFrom(qsizetype first)
{
    for (qsizetype record = first; record < m_combinations.size(); ++record) {
        const AxesCombination& combination = m_combinations.at(record);
        if (combination.isValid()) {
            m_index.add(combination.getConfigX().getName(), combination.getConfigY().getName(), record);
        }
    }
}

void AxesCombinationManager::replaceCombinations(const QList<AxesCombination>& combinations)
{
    m_combinations = combinations;
    m_index.clear();
    m_index.reserve(m_combinations.size());
    indexRecordsFrom(0);
}
