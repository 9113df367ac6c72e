#include <axes/CombinationIndex.h>

#include <algorithm>
#include <utility>

namespace {

constexpr size_t FirstSlots = 64;

quint32 pairHash(qint32 group, const QString& y)
{
    return static_cast<quint32>(qHash(y, static_cast<size_t>(group)));
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

    if (2 * (m_pairs + 1) > m_slots.size()) {
        grow();
    }
    const quint32 hash = pairHash(m_lastGroup, y);
    Slot& slot = m_slots[slotOf(hash, m_lastGroup, y)];
    if (slot.group == Slot::Free) {
        slot = {hash, m_lastGroup, static_cast<qint32>(group.yNames.size()), static_cast<qint32>(record)};
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
    const qint32 group = groupOf(x);
    if (group == Slot::Free) {
        return -1;
    }
    const Slot& slot = m_slots[slotOf(pairHash(group, y), group, y)];
    return slot.group == Slot::Free ? -1 : slot.record;
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
size_t CombinationIndex::slotOf(quint32 hash, qint32 group, const QString& y) const
{
    const size_t mask = m_slots.size() - 1;
    for (size_t place = hash & mask;; place = (place + 1) & mask) {
        const Slot& slot = m_slots[place];
        if (slot.group == Slot::Free
            || (slot.hash == hash && slot.group == group
                && m_groups[static_cast<size_t>(group)].yNames.at(slot.y) == y)) {
            return place;
        }
    }
}

void CombinationIndex::grow()
{
    std::vector<Slot> grown(std::max(FirstSlots, 2 * m_slots.size()));
    const size_t mask = grown.size() - 1;
    for (const Slot& slot : m_slots) {
        if (slot.group != Slot::Free) {
            size_t place = slot.hash & mask;
            while (grown[place].group != Slot::Free) {
                place = (place + 1) & mask;
            }
            grown[place] = slot;
        }
    }
    m_slots = std::move(grown);
}
