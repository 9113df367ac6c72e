#include "BackgroundLoad.h"

#include <QElapsedTimer>
#include <QMetaObject>

namespace cluiedit {

namespace {

constexpr qint64 MillisecondsBetweenReports = 40;

} // namespace

BackgroundLoad::BackgroundLoad(const uiconfig::Catalogue& catalogue, QObject* parent)
    : QObject(parent)
    , m_catalogue(catalogue)
{
}

void BackgroundLoad::load(const QStringList& paths)
{
    m_waiting += paths;
    if (!isLoading()) {
        readNext();
    }
}

void BackgroundLoad::cancel()
{
    m_waiting.clear();
    m_thread.request_stop();
}

void BackgroundLoad::readNext()
{
    if (m_waiting.isEmpty()) {
        return;
    }
    const QString path = m_waiting.takeFirst();
    // What the thread posts to this object is dropped with it; its last post says that it ends.
    m_thread = std::jthread([this, path](const std::stop_token& stop) {
        QElapsedTimer sinceReport;
        const auto reportNowAndThen = [&](qint64 read, qint64 of) {
            if (!sinceReport.isValid() || sinceReport.elapsed() >= MillisecondsBetweenReports) {
                sinceReport.start();
                const double fraction = of > 0 ? static_cast<double>(read) / static_cast<double>(of) : 1;
                QMetaObject::invokeMethod(
                    this, [=, this] { report(path, fraction); }, Qt::QueuedConnection);
            }
        };
        const auto file = std::make_shared<BdfFile>(readBdf(path, m_catalogue, stop, reportNowAndThen));
        QMetaObject::invokeMethod(
            this, [=, this] { take(path, file); }, Qt::QueuedConnection);
    });
    emit progress(path, 0);
}

void BackgroundLoad::report(const QString& path, double fraction)
{
    if (!m_thread.get_stop_token().stop_requested()) {
        emit progress(path, fraction);
    }
}

void BackgroundLoad::take(const QString& path, const std::shared_ptr<BdfFile>& file)
{
    const bool isWanted = !m_thread.get_stop_token().stop_requested();
    m_thread = {}; // waits for its very end
    readNext();
    if (isWanted && file->measurement) {
        emit loaded(std::make_shared<const Measurement>(*std::move(file->measurement)), file->unknownColumns);
    } else if (isWanted) {
        emit failed(path, file->error);
    }
    if (!isLoading()) {
        emit finished();
    }
}

} // namespace cluiedit
