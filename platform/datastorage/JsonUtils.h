#pragma once

#include <cldatastorage_export.h>

#include <QStringList>

class QJsonArray;
class QJsonObject;

namespace cl::datastorage {

/// Help for reading and writing JSON. Nothing throws: what goes wrong is a false result and one sentence of English.
class CLDATASTORAGE_EXPORT JsonUtils
{
public:
    JsonUtils() = delete;

    /// Reads the file \p path, whose content must be one JSON object, into \p root; true on success. A UTF-8
    /// byte-order mark at the start is accepted.
    ///
    /// On failure \p root is untouched and \p error names the path and what is wrong: the file cannot be opened or
    /// read, is empty, is not JSON (with line and column of the place, counted from 1, a column being a character), or
    /// is not an object. On success \p error is untouched.
    static bool openJsonDocument(const QString& path, QString& error, QJsonObject& root);

    /// Whether the member "Version" of \p root is the number \p version. If not, \p error says what it is instead;
    /// otherwise \p error is untouched.
    static bool checkVersionNumber(const QJsonObject& root, int version, QString& error);

    /// The texts of \p array in its order. An element that is not a string gives an empty text.
    // NOLINTNEXTLINE(readability-identifier-naming): the application calls it so
    static QStringList QStringListFromJsonArray(const QJsonArray& array);
    /// An array of strings, one a text of \p list, in its order.
    // NOLINTNEXTLINE(readability-identifier-naming): the application calls it so
    static QJsonArray QStringListToJsonArray(const QStringList& list);
};

} // namespace cl::datastorage
