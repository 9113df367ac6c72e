#pragma once

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <memory>
#include <string>

class QTemporaryDir;

namespace cluiconfig {

/// A file as the command line names it, made such that everybody can read it by a path: standard input, which is called
/// "-", and a file whose name is no UTF-8, which a path of Qt cannot hold, get another path for the time being.
class InputFile
{
public:
    /// Ends the command with ExitCannotRun when standard input cannot be read, as a second time it never can.
    explicit InputFile(const std::string& argument);
    ~InputFile();
    InputFile(const InputFile&) = delete;
    InputFile& operator=(const InputFile&) = delete;

    /// What to open.
    const QString& path() const { return m_path; }

    /// What people call it: the argument, or "<standard input>".
    const QString& name() const { return m_name; }

    /// Whether writing to the path would change the file that was named.
    bool isInPlace() const { return m_stead == nullptr; }

    /// \p message, of somebody who only knows the path, with the name instead.
    QString named(QString message) const;

private:
    QString m_name;
    QString m_path;
    std::unique_ptr<QTemporaryDir> m_stead; ///< Where the path leads when it is another one.
};

/// Whether \p argument names standard input.
bool isStandardInput(const std::string& argument);

/// Puts the next \p size bytes of standard input to \p bytes and returns how many there were, fewer only at its end.
/// Ends the command with ExitCannotRun when it cannot be read.
std::size_t readStandardInput(char* bytes, std::size_t size);

} // namespace cluiconfig
