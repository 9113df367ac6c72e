#include <axes/CombinationIndex.h>

#include <algorithm>
#include <utility>

namespace {

constexpr size_t FirstSlots = 256;

/// Spreads the pairs of small numbers over \p places, a power of two.
size_t spread(qint32 x, qint32 y, size_t places)
{
    const quint64 pair = (static_cast<quint64>(static_cast<quint32>(x)) << 32) | static_cast<quint32>(y);
    return static_cast<size_t>((pair * 0x9E3779B97F4A7C15U) >> 32) & (places - 1);
}

/// The number of \p name, the next one if it is new.
qint32 numberOf(const QString& name, QHash<QString, qint32>& numbers, QList<QString>& names)
{
    qint32& number = numbers[name];
    if (numbers.size() != names.size()) {
        number = static_cast<qint32>(names.size());
        names.append(name);
    }
    return number;
}

} // namespace

qint32 CombinationIndex::numberX(const QString& x)
{
    // Combinations of one X name mostly come one after the other.
    if (!m_xNames.isEmpty() && m_xNames.at(m_lastX) == x) {
        return m_lastX;
    }
    m_lastX = numberOf(x, m_xNumbers, m_xNames);
    m_groups.resize(static_cast<size_t>(m_xNames.size()));
    return m_lastX;
}

qint32 CombinationIndex::numberY(const QString& y)
{
    return numberOf(y, m_yNumbers, m_yNames);
}

void CombinationIndex::add(qint32 x, qint32 y, qsizetype record)
{
    const auto entry = static_cast<qint32>(m_entries.size());
    m_entries.push_back({static_cast<qint32>(record)});
    Group& group = m_groups[static_cast<size_t>(x)];
    (group.last == None ? group.first : m_entries[static_cast<size_t>(group.last)].next) = entry;
    group.last = entry;
    ++group.records;

    if (4 * (m_pairs + 1) > 3 * m_slots.size()) {
        grow();
    }
    Slot& slot = m_slots[slotOf(m_slots, x, y)];
    if (slot.x == None) {
        slot = {x, y, static_cast<qint32>(record)};
        m_entries.back().newY = y;
        ++group.yNames;
        ++m_pairs;
    }
}

void CombinationIndex::clear()
{
    *this = {};
}

qsizetype CombinationIndex::find(const QString& x, const QString& y) const
{
    const qint32 xNumber = m_xNumbers.value(x, None);
    const qint32 yNumber = m_yNumbers.value(y, None);
    if (xNumber == None || yNumber == None) {
        return -1;
    }
    const Slot& slot = m_slots[slotOf(m_slots, xNumber, yNumber)];
    return slot.x == None ? -1 : slot.record;
}

qsizetype CombinationIndex::count(const QString& x) const
{
    const Group* group = groupNamed(x);
    return group == nullptr ? 0 : group->records;
}

QList<QString> CombinationIndex::yNames(const QString& x) const
{
    QList<QString> names;
    if (const Group* group = groupNamed(x)) {
        names.reserve(group->yNames);
        for (qint32 entry = group->first; entry != None; entry = m_entries[static_cast<size_t>(entry)].next) {
            if (const qint32 y = m_entries[static_cast<size_t>(entry)].newY; y != None) {
                names.append(m_yNames.at(y));
            }
        }
    }
    return names;
}

const CombinationIndex::Group* CombinationIndex::groupNamed(const QString& x) const
{
    const qint32 group = m_xNumbers.value(x, None);
    return group == None ? nullptr : &m_groups[static_cast<size_t>(group)];
}

qint32 CombinationIndex::firstEntry(const QString& x) const
{
    const Group* group = groupNamed(x);
    return group == nullptr ? None : group->first;
}

/// The place where the pair stands, or the free one where it belongs.
size_t CombinationIndex::slotOf(const std::vector<Slot>& slotTable, qint32 x, qint32 y)
{
    size_t place = spread(x, y, slotTable.size());
    while (slotTable[place].x != None && (slotTable[place].x != x || slotTable[place].y != y)) {
        place = (place + 1) & (slotTable.size() - 1);
    }
    return place;
}

void CombinationIndex::grow()
{
    std::vector<Slot> grown(std::max(FirstSlots, 2 * m_slots.size()));
    for (const Slot& slot : m_slots) {
        if (slot.x != None) {
            grown[slotOf(grown, slot.x, slot.y)] = slot;
        }
    }
    m_slots = std::move(grown);
}
