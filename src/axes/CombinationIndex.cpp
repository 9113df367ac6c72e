#include <axes/CombinationIndex.h>

#include <algorithm>
#include <utility>

namespace {

constexpr size_t FirstSlots = 64;

/// Spreads the pairs of small numbers over \p places, a power of two.
size_t spread(qint32 x, qint32 y, size_t places)
{
    const quint64 pair = (static_cast<quint64>(static_cast<quint32>(x)) << 32) | static_cast<quint32>(y);
    return static_cast<size_t>((pair * 0x9E3779B97F4A7C15U) >> 32) & (places - 1);
}

} // namespace

void CombinationIndex::add(const QString& x, const QString& y, qsizetype record)
{
    if (m_lastGroup == Slot::Free || m_xNames.at(m_lastGroup) != x) {
        m_lastGroup = groupOf(x);
        if (m_lastGroup == Slot::Free) {
            m_lastGroup = static_cast<qint32>(m_groups.size());
            m_groupNumbers.insert(x, m_lastGroup);
            m_xNames.append(x);
            m_groups.emplace_back();
        }
    }
    Group& group = m_groups[static_cast<size_t>(m_lastGroup)];
    group.records.append(record);

    const qsizetype knownNames = m_yNumbers.size();
    qint32& yNumber = m_yNumbers[y];
    if (m_yNumbers.size() != knownNames) {
        yNumber = static_cast<qint32>(knownNames);
    }
    if (4 * (m_pairs + 1) > 3 * m_slots.size()) {
        grow();
    }
    Slot& slot = m_slots[slotOf(m_slots, m_lastGroup, yNumber)];
    if (slot.x == Slot::Free) {
        slot = {m_lastGroup, yNumber, static_cast<qint32>(record)};
        group.yNames.append(y);
        ++m_pairs;
    }
}

void CombinationIndex::clear()
{
    *this = {};
}

qsizetype CombinationIndex::find(const QString& x, const QString& y) const
{
    const qint32 xNumber = groupOf(x);
    const qint32 yNumber = m_yNumbers.value(y, Slot::Free);
    if (xNumber == Slot::Free || yNumber == Slot::Free) {
        return -1;
    }
    const Slot& slot = m_slots[slotOf(m_slots, xNumber, yNumber)];
    return slot.x == Slot::Free ? -1 : slot.record;
}

QList<qsizetype> CombinationIndex::records(const QString& x) const
{
    const Group* group = groupNamed(x);
    return group == nullptr ? QList<qsizetype>() : group->records;
}

QList<QString> CombinationIndex::yNames(const QString& x) const
{
    const Group* group = groupNamed(x);
    return group == nullptr ? QList<QString>() : group->yNames;
}

qint32 CombinationIndex::groupOf(const QString& x) const
{
    return m_groupNumbers.value(x, Slot::Free);
}

const CombinationIndex::Group* CombinationIndex::groupNamed(const QString& x) const
{
    const qint32 group = groupOf(x);
    return group == Slot::Free ? nullptr : &m_groups[static_cast<size_t>(group)];
}

/// The place where the pair stands, or the free one where it belongs.
size_t CombinationIndex::slotOf(const std::vector<Slot>& slotTable, qint32 x, qint32 y)
{
    size_t place = spread(x, y, slotTable.size());
    while (slotTable[place].x != Slot::Free && (slotTable[place].x != x || slotTable[place].y != y)) {
        place = (place + 1) & (slotTable.size() - 1);
    }
    return place;
}

void CombinationIndex::grow()
{
    std::vector<Slot> grown(std::max(FirstSlots, 2 * m_slots.size()));
    for (const Slot& slot : m_slots) {
        if (slot.x != Slot::Free) {
            grown[slotOf(grown, slot.x, slot.y)] = slot;
        }
    }
    m_slots = std::move(grown);
}
