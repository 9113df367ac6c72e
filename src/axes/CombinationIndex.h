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

    /// A place of the hash table of all pairs: which Y name of which group stands there, and the first record with it.
    struct Slot
    {
        quint32 hash = 0;
        qint32 group = Free;
        qint32 y = 0;
        qint32 record = 0;

        static constexpr qint32 Free = -1;
    };

    qint32 groupOf(const QString& x) const;
    const Group* groupNamed(const QString& x) const;
    size_t slotOf(quint32 hash, qint32 group, const QString& y) const;
    void grow();

    QList<QString> m_xNames;
    std::vector<Group> m_groups; // of the X names, in their order
    QHash<QString, qint32> m_groupNumbers;
    std::vector<Slot> m_slots; // open addressing; a power of two of them, at most half of them taken
    size_t m_pairs = 0;
    qint32 m_lastGroup = Slot::Free; // combinations of one X name come one after the other
};
