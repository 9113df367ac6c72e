#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QList>
#include <QString>
#include <QStringList>

#include <utility>

namespace cluiedit {

/// A step on the way from the root of a document to a value: the key of a member, or the index of an element.
struct JsonStep
{
    QString key{};
    qsizetype index = -1; ///< −1 for a member

    bool isKey() const { return index < 0; }
    bool operator==(const JsonStep&) const = default;
};

/// A piece of a JSON text that is a string, or a word or number without quotes.
struct JsonToken
{
    qsizetype begin = -1; ///< in bytes; −1 where there is none
    qsizetype end = -1;
    bool isString = false; ///< it begins with a quote
    bool isClosed = false; ///< a string that has its second quote

    bool exists() const { return begin >= 0; }
};

/// What place an offset is in a JSON text.
struct JsonPlace
{
    QList<JsonStep> path; ///< to the value, or to the object where a key belongs
    bool isKey = false; ///< a key belongs here, else a value
    JsonToken token; ///< the one that the offset is within or beside
    QString text; ///< of the token, without quotes and escapes
    JsonToken value; ///< behind a key, if it is no object or array
    bool hasColon = false; ///< behind a key

    // What the nearest object around the place has, the place itself left out.
    QStringList keys;
    QList<std::pair<QString, QString>> texts; ///< keys with the strings that stand there, elements of lists as well
};

/// What place the byte \p offset is in \p text, which may be no JSON because somebody is typing in it. A string without
/// its second quote ends before the next string or at the end of its line. Takes time in proportion to \p text.
JsonPlace placeAt(QByteArrayView text, qsizetype offset);

/// The text that the JSON string or word \p token stands for, as far as it can be told.
QString tokenText(QByteArrayView token);

/// \p text as a JSON string, in quotes.
QByteArray jsonString(const QString& text);

} // namespace cluiedit
