#pragma once

#include <archive/ArchiveContext.h>
#include <axes/AxesCombination.h>
#include <axes/CombinationIndex.h>
#include <clconfigui_export.h>

#include <QJsonObject>
#include <QList>
#include <QString>

class ConfigRepresentation;

namespace cl::dataprocess {
class IDataStream;
}

/// All axes combinations that the application knows, in insertion order: those that the configuration document gives
/// and those derived from the data streams of an open file.
///
/// The manager owns its records by value. Invalid records (AxesCombination::isValid()) may stand in the list; every
/// query skips them. Queries look at names only, compare them exactly and case-sensitively, and never change the list.
/// An index kept beside the list answers them in constant time; they allocate nothing but their result.
///
/// No locks: queries may run on several threads at once as long as nothing changes the manager meanwhile.
class CLCONFIGUI_EXPORT AxesCombinationManager
{
public:
    AxesCombinationManager();
    AxesCombinationManager(const AxesCombinationManager& other);
    AxesCombinationManager& operator=(const AxesCombinationManager& other);
    virtual ~AxesCombinationManager();

    /// Replaces the list by the archived one, up to the first record that refuses to be read. Always returns true.
    /// Scales and flags are not archived: every record read is linear, linear, not orthonormal.
    virtual bool read(const QJsonObject& object, int version, cl::archive::ArchiveContext& context);

    /// Stores the records in list order, up to the first that refuses to be written. Always returns true.
    virtual bool write(QJsonObject& object, int version, cl::archive::ArchiveContext& context) const;

    /// The whole list, invalid records included. Valid until the manager changes.
    const QList<AxesCombination>& getAxesCombinations() const { return m_combinations; }

    /// Copies of the valid records whose X name is \p x, in list order; empty when there is none.
    QList<AxesCombination> getAxesCombinations(const QString& x) const;

    /// A copy of the first valid record with these two names, whatever its category; a default-constructed, invalid
    /// record when there is none.
    AxesCombination getAxesCombination(const QString& x, const QString& y) const;

    /// The X names of all valid records, each once, in the order of their first occurrence.
    QList<QString> getXAxesNames() const;

    /// The Y names of the valid records whose X name is \p x, each once, in the order of their first occurrence; empty
    /// when there is none.
    QList<QString> getYAxesNames(const QString& x) const;

    /// True when the X name of \p representation is paired with its first or its second Y name in at least one valid
    /// record; false for null.
    bool isRepresentationValid(const ConfigRepresentation* const representation) const;

    /// Appends a copy, valid or not, repeated or not.
    void append(const AxesCombination& combination);

    /// Appends the records of \p combinations in their order.
    void appendAll(QList<AxesCombination> combinations);

    /// Empties the list.
    void deleteAll();

    /// Pairs every stream with every stream, itself included, and appends the pairs as linear, not orthonormal
    /// combinations. \p index counts per stream; −1 means no index. A stream serves as X when \p index is below its
    /// count and, unless \p index is −1, its hasIndex() accepts \p index; as Y the count plays no part. Nothing is
    /// removed: call removeDuplicates() for a clean list.
    ///
    /// REQUIRES: no null in \p streams.
    void addCombinationsFromStreams(const QList<cl::dataprocess::IDataStream*>& streams, int index);

    /// Removes every invalid record and, of records with the same DataStreamCombination::toString(), all but the first.
    /// The others keep their order.
    void removeDuplicates();

    /// Reads the section "Axes combinations" of the configuration document and appends what it yields. On failure
    /// returns false with the reason in \p error; what was appended before stays.
    bool readAxesCombinations(const QJsonObject& root, QString& error);

    /// Reads one entry of that section: resolves its X and Y references against the catalogue of data arrays and
    /// appends one combination for every pair of the same category. Result as above.
    bool readAxesCombination(const QJsonObject& entry, QString& error);

private:
    /// Appends a record from an archive, whose texts are its own, with those of the records before it where they are
    /// the same: names of any of them, the category of the last one.
    void appendSharing(const AxesCombination& combination);
    void indexRecordsFrom(qsizetype first);
    void replaceCombinations(const QList<AxesCombination>& combinations);

    QList<AxesCombination> m_combinations;
    CombinationIndex m_index; // derived from m_combinations and kept in step with it
};
