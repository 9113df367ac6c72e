#pragma once

#include <QCborArray>
#include <QCborMap>
#include <QJsonObject>
#include <QLatin1StringView>
#include <QList>
#include <QString>

/// The members of an entry of a document or an archive as the readers take them: what is missing or has another type
/// reads as empty. An object whose keys are anybody's choice (titles, categories) is walked as the QJsonObject that it
/// is.
///
/// It looks at the same data as CBOR, in which a member is found and an element is passed in half the time; a document
/// of some size has thousands of them.
class JsonFields
{
public:
    /// The members of an object.
    explicit JsonFields(const QJsonObject& object)
        : m_members(QCborMap::fromJsonObject(object))
    {
    }

    /// An element of array(); one that is not an object reads as an object without members.
    explicit JsonFields(const QCborValueConstRef& element)
        : m_members(element.toMap())
    {
    }

    /// What is under \p key, undefined if it is missing.
    QCborValue value(QLatin1StringView key) const { return m_members.value(key); }

    /// The text under \p key, empty if it is missing or no text.
    QString text(QLatin1StringView key) const { return value(key).toString(); }
    /// The truth value under \p key, false if it is missing or none.
    bool flag(QLatin1StringView key) const { return value(key).toBool(); }
    /// The array under \p key, empty if it is missing or none.
    QCborArray array(QLatin1StringView key) const { return value(key).toArray(); }

    /// The texts of the array \p key in order; an element that is not a string gives an empty text in its place.
    QList<QString> texts(QLatin1StringView key) const
    {
        const QCborArray elements = array(key);
        QList<QString> result;
        result.reserve(elements.size());
        for (const auto& element : elements) {
            result.append(element.toString());
        }
        return result;
    }

private:
    QCborMap m_members;
};
