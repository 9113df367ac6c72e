#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QLatin1StringView>
#include <QList>
#include <QString>

/// The members of a JSON object as the readers take them: what is missing or has another type reads as empty.
///
/// They look a member up where it stands, which costs half of what making a QJsonValue of it first does; a document of
/// some size has thousands of them.
namespace jsonfields {

inline QString text(const QJsonObject& object, QLatin1StringView key)
{
    const auto member = object.constFind(key);
    return member == object.constEnd() ? QString() : member->toString();
}

inline bool flag(const QJsonObject& object, QLatin1StringView key)
{
    const auto member = object.constFind(key);
    return member != object.constEnd() && member->toBool();
}

inline QJsonArray array(const QJsonObject& object, QLatin1StringView key)
{
    const auto member = object.constFind(key);
    return member == object.constEnd() ? QJsonArray() : member->toArray();
}

/// The texts of the array \p key in order; an element that is not a string gives an empty text in its place.
inline QList<QString> texts(const QJsonObject& object, QLatin1StringView key)
{
    const QJsonArray elements = array(object, key);
    QList<QString> result;
    result.reserve(elements.size());
    for (const auto& element : elements) {
        result.append(element.toString());
    }
    return result;
}

} // namespace jsonfields
