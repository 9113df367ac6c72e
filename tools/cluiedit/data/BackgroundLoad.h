#pragma once

#include <cluiedit/data/BdfFile.h>

#include <QObject>
#include <QStringList>

#include <memory>
#include <thread>

namespace cluiedit {

/// Reads files of measurements beside the user interface, one after the other. All signals come in the thread of this
/// object. Destroying it ends the reading at once.
class BackgroundLoad : public QObject
{
    Q_OBJECT

public:
    /// \param catalogue must outlive this object, and not change while it loads
    explicit BackgroundLoad(const uiconfig::Catalogue& catalogue, QObject* parent = nullptr);

    /// Reads \p paths after those that are waiting. Each of them is loaded, fails, or is cancelled.
    void load(const QStringList& paths);
    /// Ends the reading and forgets what waits: nothing of it is loaded or fails any more. finished() follows.
    void cancel();

    /// Until finished().
    bool isLoading() const { return m_thread.joinable(); }
    /// How many files wait behind the one that is read.
    qsizetype waiting() const { return m_waiting.size(); }

signals:
    /// The \p fraction of the file \p path, 0 to 1, is read.
    void progress(const QString& path, double fraction);
    void loaded(const std::shared_ptr<const cluiedit::Measurement>& measurement, const QStringList& unknownColumns);
    void failed(const QString& path, const QString& error);
    /// Nothing is read or waits any more.
    void finished();

private:
    void readNext();
    void report(const QString& path, double fraction);
    void take(const QString& path, const std::shared_ptr<BdfFile>& file);

    const uiconfig::Catalogue& m_catalogue;
    QStringList m_waiting;
    std::jthread m_thread; // joinable while a file is read; the last, to end before the others go
};

} // namespace cluiedit
