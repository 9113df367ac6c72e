#pragma once

#include <QByteArray>
#include <QFileSystemWatcher>
#include <QObject>
#include <QString>
#include <QTimer>

#include <optional>

namespace cluiedit {

/// The file of the document: what stands in it as far as we know, and whether another program has changed it since.
class DocumentFile : public QObject
{
    Q_OBJECT

public:
    explicit DocumentFile(QObject* parent = nullptr);

    /// The absolute path; empty while the document has no file.
    const QString& path() const { return m_path; }
    /// The name without the directory; "Untitled" while there is none.
    QString name() const;

    /// What the file held when it was last opened or saved.
    const QByteArray& known() const { return m_known; }

    /// Takes \p path for the document's file and returns what it holds; nothing, with the reason in \p error, when it
    /// cannot be read or is no text in UTF-8. Then everything stays as it was.
    std::optional<QByteArray> open(const QString& path, QString& error);

    /// Forgets the file.
    void close();

    /// Writes \p bytes into \p path, which becomes the document's file, in one step: whatever goes wrong, it holds the
    /// old text or the new one. Permissions stay, and a symbolic link stays one. False, with the reason in \p error,
    /// when that cannot be done.
    bool save(const QString& path, const QByteArray& bytes, QString& error);

    /// What another program has written into the file since we know it; nothing if it has not. A file that is gone
    /// holds nothing new: saving makes it again.
    std::optional<QByteArray> changeByOthers() const;

signals:
    /// Another program has changed the file: changeByOthers() has its text.
    void changedByOthers();

private:
    void watch();
    void look();

    QString m_path;
    QByteArray m_known;
    QByteArray m_announced; // what changedByOthers() was last said of
    QFileSystemWatcher m_watcher;
    QTimer m_settling; // many programs empty a file before they write it
};

} // namespace cluiedit
