#include "InputFile.h"

#include "Output.h"

#include <QFile>
#include <QTemporaryDir>

#include <cstdio>
#include <filesystem>
#include <system_error>

using namespace Qt::StringLiterals;

namespace cluiconfig {

namespace {

/// All that standard input has.
QByteArray readStandardInputOnce()
{
    static bool isRead = false;
    if (isRead) {
        fail(u"\"-\" is named twice: standard input can be read only once. Save it in a file first."_s);
    }
    isRead = true;
    constexpr qsizetype PieceSize = qsizetype{1} << 20;
    QByteArray bytes;
    qsizetype size = 0;
    for (qsizetype found = PieceSize; found == PieceSize; size += found) {
        bytes.resize(size + PieceSize);
        found = static_cast<qsizetype>(readStandardInput(bytes.data() + size, std::size_t{PieceSize}));
    }
    bytes.resize(size);
    return bytes;
}

} // namespace

InputFile::InputFile(const std::string& argument)
    : m_name(QString::fromStdString(argument))
    , m_path(m_name)
{
    if (!isStandardInput(argument) && m_path.toStdString() == argument) {
        return;
    }
    m_stead = std::make_unique<QTemporaryDir>();
    if (!m_stead->isValid()) {
        fail(u"Cannot make a temporary directory: %1"_s.arg(m_stead->errorString()));
    }
    m_path = m_stead->filePath(u"document.json"_s);
    if (isStandardInput(argument)) {
        m_name = u"<standard input>"_s;
        const QByteArray bytes = readStandardInputOnce();
        QFile copy(m_path);
        if (!copy.open(QIODevice::WriteOnly) || copy.write(bytes) != bytes.size() || !copy.flush()) {
            fail(u"Cannot keep what standard input gives in \"%1\": %2"_s.arg(m_path, copy.errorString()));
        }
        return;
    }
    std::error_code error;
    std::filesystem::create_symlink(std::filesystem::absolute(argument, error), m_path.toStdString(), error);
    if (error) {
        fail(u"Cannot open \"%1\", whose name is no UTF-8, by the link \"%2\": %3"_s.arg(
            m_name, m_path, QString::fromStdString(error.message())));
    }
}

InputFile::~InputFile() = default;

QString InputFile::named(QString message) const
{
    return isInPlace() ? message : message.replace(m_path, m_name);
}

bool isStandardInput(const std::string& argument)
{
    return argument == "-";
}

std::size_t readStandardInput(char* bytes, std::size_t size)
{
    if (std::feof(stdin) != 0) {
        return 0; // who types need not say a second time that this is all
    }
    const std::size_t found = std::fread(bytes, 1, size, stdin);
    if (std::ferror(stdin) != 0) {
        fail(u"standard input: "_s + lastError());
    }
    return found;
}

} // namespace cluiconfig
