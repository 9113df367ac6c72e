#include <datastorage/JsonUtils.h>

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonParseError>
#include <QLocale>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace cl::datastorage {

namespace {

constexpr auto VersionKey = "Version"_L1;
constexpr QByteArrayView ByteOrderMark("\xEF\xBB\xBF");

// Where a byte of a document stands, for people: both numbers start at 1, a column is a character of the line.
struct Position
{
    qsizetype line;
    qsizetype column;
};

// The byte at which the document goes wrong. The parser has already passed it in most cases, and stands on the next
// line if the line ends there.
qsizetype offsetOf(const QJsonParseError& parseError)
{
    switch (parseError.error) {
    case QJsonParseError::UnterminatedObject:
    case QJsonParseError::MissingNameSeparator:
    case QJsonParseError::UnterminatedArray:
    case QJsonParseError::MissingValueSeparator:
    case QJsonParseError::IllegalValue:
    case QJsonParseError::MissingObject:
        return parseError.offset - 1;
    default:
        return parseError.offset;
    }
}

Position positionOf(const QByteArray& bytes, qsizetype offset)
{
    const QByteArrayView before = QByteArrayView(bytes).first(std::clamp<qsizetype>(offset, 0, bytes.size()));
    const qsizetype line = before.count('\n') + 1;
    QByteArrayView lineStart = before.sliced(before.lastIndexOf('\n') + 1);
    if (line == 1 && lineStart.startsWith(ByteOrderMark)) {
        lineStart = lineStart.sliced(ByteOrderMark.size());
    }
    const auto startsCharacter = [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U; };
    return {line, std::count_if(lineStart.begin(), lineStart.end(), startsCharacter) + 1};
}

bool isBlank(const QByteArray& bytes)
{
    return bytes.trimmed().isEmpty() || bytes.trimmed() == ByteOrderMark;
}

} // namespace

bool JsonUtils::openJsonDocument(const QString& path, QString& error, QJsonObject& root)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        error = QFileInfo(path).isDir() ? u"Cannot open \"%1\": it is a directory"_s.arg(path)
                                        : u"Cannot open \"%1\": %2"_s.arg(path, file.errorString());
        return false;
    }
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError) {
        error = u"Cannot read \"%1\": %2"_s.arg(path, file.errorString());
        return false;
    }

    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &parseError);
    if (document.isObject()) {
        root = document.object();
        return true;
    }
    if (isBlank(bytes)) {
        error = u"\"%1\" is empty"_s.arg(path);
    } else if (parseError.error != QJsonParseError::NoError) {
        const Position position = positionOf(bytes, offsetOf(parseError));
        error = u"\"%1\" is not valid JSON: line %2, column %3: %4"_s.arg(
            path, QString::number(position.line), QString::number(position.column), parseError.errorString());
    } else {
        error = u"\"%1\" does not hold a JSON object"_s.arg(path);
    }
    return false;
}

bool JsonUtils::checkVersionNumber(const QJsonObject& root, int version, QString& error)
{
    const QJsonValue value = root.value(VersionKey);
    if (value.isDouble() && value.toDouble() == version) {
        return true;
    }
    if (value.isUndefined()) {
        error = u"The format version is missing: expected \"%1\": %2"_s.arg(VersionKey).arg(version);
    } else if (!value.isDouble()) {
        error = u"The format version is not a number: expected \"%1\": %2"_s.arg(VersionKey).arg(version);
    } else {
        error = u"The format version is %1: expected %2"_s.arg(value.toDouble(), 0, 'g', QLocale::FloatingPointShortest)
                    .arg(version);
    }
    return false;
}

QStringList JsonUtils::QStringListFromJsonArray(const QJsonArray& array)
{
    QStringList list;
    list.reserve(array.size());
    for (const auto value : array) {
        list.append(value.toString());
    }
    return list;
}

QJsonArray JsonUtils::QStringListToJsonArray(const QStringList& list)
{
    return QJsonArray::fromStringList(list);
}

} // namespace cl::datastorage
