#include "Reader.h"

#include <QMetaObject>

#include <utility>

namespace cluiedit {

Reader::Reader(std::function<QByteArray()> text, QObject* parent)
    : QObject(parent)
    , m_text(std::move(text))
    , m_thread([this](const std::stop_token& end) { run(end); })
{
}

Reader::~Reader()
{
    m_stopReading.request_stop();
}

void Reader::setName(const QString& name)
{
    m_name = name;
}

void Reader::textChanged()
{
    if (m_isReading) {
        m_isChanged = true;
        m_stopReading.request_stop();
    } else if (!m_isChanged) {
        // Several changes of one action are read as one.
        m_isChanged = true;
        QMetaObject::invokeMethod(this, &Reader::startReading, Qt::QueuedConnection);
    }
}

void Reader::startReading()
{
    m_isChanged = false;
    m_isReading = true;
    m_stopReading = std::stop_source();
    {
        const std::scoped_lock lock(m_mutex);
        m_job = Job{m_text(), m_name, m_stopReading.get_token()};
    }
    m_hasJob.notify_one();
}

void Reader::take(const std::shared_ptr<const Snapshot>& snapshot)
{
    m_isReading = false;
    if (m_isChanged) {
        startReading();
    } else {
        emit made(snapshot);
    }
}

void Reader::run(const std::stop_token& end)
{
    while (!end.stop_requested()) {
        Job job;
        {
            std::unique_lock lock(m_mutex);
            if (!m_hasJob.wait(lock, end, [this] { return m_job.has_value(); })) {
                return;
            }
            job = *std::exchange(m_job, std::nullopt);
        }
        auto snapshot = makeSnapshot(job.text, job.name, job.stop);
        QMetaObject::invokeMethod(
            this, [this, snapshot = std::move(snapshot)] { take(snapshot); }, Qt::QueuedConnection);
    }
}

} // namespace cluiedit
