#pragma once

#include <clconfigui_export.h>

#include <QHash>
#include <QList>
#include <QString>

#include <vector>

/// Finds the records of a list of axes combinations by their X and Y names without walking the list.
///
/// The owner adds the valid records in list order, each with its place in the list, and clears the index when the list
/// is replaced.
class CLCONFIGUI_EXPORT CombinationIndex
{
public:
    /// The number by which add() takes an X name. REQUIRES: a record is added under it at once, since the name counts
    /// as one of the X names from here on.
    qint32 numberX(const QString& x);

    /// The number by which add() takes a Y name.
    qint32 numberY(const QString& y);

    /// \{
    /// The name that has the number, in the text that numberX() or numberY() was given first. REQUIRES: they have given
    /// the number out.
    const QString& xName(qint32 x) const { return m_xNames.at(x); }
    const QString& yName(qint32 y) const { return m_yNames.at(y); }
    /// \}

    /// Adds a record under the names of two numbers. Who adds many records asks for each number once. REQUIRES: records
    /// are added in ascending order.
    void add(qint32 x, qint32 y, qsizetype record);
    /// Adds a record under two names.
    void add(const QString& x, const QString& y, qsizetype record) { add(numberX(x), numberY(y), record); }

    /// Forgets the records, the names and their numbers.
    void clear();

    /// Makes room for \p records altogether.
    void reserve(qsizetype records) { m_entries.reserve(static_cast<size_t>(records)); }

    /// The first record added under the two names, −1 when there is none.
    qsizetype find(const QString& x, const QString& y) const;

    /// How many records were added under \p x.
    qsizetype count(const QString& x) const;

    /// Calls \p visit with every record added under \p x, in order.
    template <typename Visitor>
    void forEachRecord(const QString& x, Visitor visit) const
    {
        for (qint32 entry = firstEntry(x); entry != None; entry = m_entries[static_cast<size_t>(entry)].next) {
            visit(static_cast<qsizetype>(m_entries[static_cast<size_t>(entry)].record));
        }
    }

    /// The X names, each once, in the order of their first occurrence.
    const QList<QString>& xNames() const { return m_xNames; }

    /// The Y names added under \p x, each once, in the order of their first occurrence.
    QList<QString> yNames(const QString& x) const;

private:
    static constexpr qint32 None = -1;

    /// What was added under one X name: a chain of entries.
    struct Group
    {
        qint32 first = None;
        qint32 last = None;
        qint32 records = 0;
        qint32 yNames = 0;
    };

    /// An added record, and the Y name that it was the first to bring to its X name.
    struct Entry
    {
        qint32 record;
        qint32 newY = None;
        qint32 next = None;
    };

    /// A place of the hash table of all pairs: an X and a Y name by their numbers, and the first record with them.
    /// Small, and compared without touching a text, so that a lookup among many pairs waits for memory once.
    struct Slot
    {
        qint32 x = None;
        qint32 y = 0;
        qint32 record = 0;
    };

    const Group* groupNamed(const QString& x) const;
    qint32 firstEntry(const QString& x) const;
    static size_t slotOf(const std::vector<Slot>& slotTable, qint32 x, qint32 y);
    void grow();

    QList<QString> m_xNames; // by their numbers
    std::vector<Group> m_groups; // of the X names, in their order
    QHash<QString, qint32> m_xNumbers;
    QList<QString> m_yNames; // by their numbers
    QHash<QString, qint32> m_yNumbers;
    std::vector<Entry> m_entries; // in the order of adding
    std::vector<Slot> m_slots; // open addressing; a power of two of them, at most three quarters of them taken
    size_t m_pairs = 0;
    qint32 m_lastX = 0;
};
