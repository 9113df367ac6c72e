#pragma once

#include "Snapshot.h"

#include <QByteArray>
#include <QObject>
#include <QString>

#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <stop_token>
#include <thread>

namespace cluiedit {

/// Makes snapshots of a text that changes, in a thread of its own. The text is only asked for when the thread is free
/// to read it: whoever types waits for nothing but one copy of the text, however long a reading takes.
class Reader : public QObject
{
    Q_OBJECT

public:
    /// \param text gives the text as it is now; called in the thread of this object
    explicit Reader(std::function<QByteArray()> text, QObject* parent = nullptr);
    Reader(const Reader&) = delete;
    Reader& operator=(const Reader&) = delete;
    ~Reader() override;

    /// What people call the text, in messages.
    void setName(const QString& name);

    /// The text is another one: reads it as soon as the thread is free. A reading that is going on is cancelled.
    void textChanged();

    /// Whether the snapshot that was made last is not one of the text as it is now.
    bool isBehind() const { return m_isChanged || m_isReading; }

signals:
    /// \p snapshot is made of the text as it is now. Never null.
    void made(const std::shared_ptr<const cluiedit::Snapshot>& snapshot);

private:
    struct Job
    {
        QByteArray text;
        QString name;
        std::stop_token stop;
    };

    void startReading();
    void take(const std::shared_ptr<const Snapshot>& snapshot);
    void run(const std::stop_token& end);

    std::function<QByteArray()> m_text;
    QString m_name;
    bool m_isChanged = false; // since the text was asked for
    bool m_isReading = false;
    std::stop_source m_stopReading;

    std::mutex m_mutex; // for the next member
    std::optional<Job> m_job;
    std::condition_variable_any m_hasJob;
    std::jthread m_thread; // the last member: it ends first
};

} // namespace cluiedit
