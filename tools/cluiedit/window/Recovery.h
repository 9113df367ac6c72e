#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QLockFile>
#include <QString>

#include <memory>

namespace cluiedit {

/// Unsaved text of an editor that did not come to its end.
struct LostText
{
    QString file; ///< where it is kept
    QString path; ///< of the document that it belongs to; empty for one that was never saved
    QDateTime time; ///< when it was kept
    QByteArray text;
};

/// Keeps the unsaved text of this editor on disk, so that it survives whatever happens to the program, and finds what
/// other editors have left there.
class Recovery
{
public:
    /// \param directory where texts are kept; made when it is needed
    explicit Recovery(QString directory);
    Recovery(const Recovery&) = delete;
    Recovery& operator=(const Recovery&) = delete;
    ~Recovery();

    /// Keeps \p text of the document \p path in place of what was kept. False when the disk does not take it.
    bool keep(const QString& path, const QByteArray& text);

    /// Nothing is unsaved any more.
    void forget();

    /// What editors left that are no longer running, the latest first.
    QList<LostText> lost() const;

    /// Deletes what was found.
    void discard(const LostText& text) const;

    /// The directory of the user's own data where editors keep their texts.
    static QString usualDirectory();

private:
    QString m_directory;
    QString m_file; // empty until something is kept
    std::unique_ptr<QLockFile> m_lock; // held while this editor runs: its file is not lost
};

} // namespace cluiedit
