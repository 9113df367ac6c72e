#pragma once

#include <QHash>
#include <QList>
#include <QString>

#include <vector>

/// Finds the records of a list of axes combinations by their X and Y names without walking the list.
///
/// The owner adds the valid records in list order, each with its place in the list, and clears the index when the list
/// is replaced.
class CombinationIndex
{
public:
    /// REQUIRES: records are added in ascending order.
    void add(const QString& x, const QString& y, qsizetype record);
    void clear();

    /// The first record added under the two names, −1 when there is none.
    qsizetype find(const QString& x, const QString& y) const;

    /// Every record added under \p x, in order.
    QList<qsizetype> records(const QString& x) const;

    /// The X names, each once, in the order of their first occurrence.
    const QList<QString>& xNames() const { return m_xNames; }

    /// The Y names added under \p x, each once, in the order of their first occurrence.
    QList<QString> yNames(const QString& x) const;

private:
    /// What was added under one X name.
    struct Group
    {
        QList<qsizetype> records;
        QList<QString> yNames;
    };

    /// A place of the hash table of all pairs: an X and a Y name by their numbers, and the first record with them.
    /// Small, and compared without touching a text, so that a lookup among many pairs waits for memory once.
    struct Slot
    {
        qint32 x = Free;
        qint32 y = 0;
        qint32 record = 0;

        static constexpr qint32 Free = -1;
    };

    qint32 groupOf(const QString& x) const;
    const Group* groupNamed(const QString& x) const;
    static size_t slotOf(const std::vector<Slot>& slotTable, qint32 x, qint32 y);
    void grow();

    QList<QString> m_xNames;
    std::vector<Group> m_groups; // of the X names, in their order
    QHash<QString, qint32> m_groupNumbers;
    QHash<QString, qint32> m_yNumbers;
    std::vector<Slot> m_slots; // open addressing; a power of two of them, at most three quarters of them taken
    size_t m_pairs = 0;
    qint32 m_lastGroup = Slot::Free; // combinations of one X name come one after the other
};
