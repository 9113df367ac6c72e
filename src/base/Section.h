#pragma once

#include <base/JsonPointer.h>
#include <base/Refusals.h>

#include <QJsonObject>
#include <QJsonValue>
#include <QLatin1StringView>

namespace uiconfig {

/// A section of the document: a member of its root.
struct Section
{
    /// The JSON type that the value of a section has.
    enum class Type { Object, Array };

    QLatin1StringView key; ///< The member of the root.
    Type type = Type::Object; ///< What its value must be.
    QLatin1StringView missing; ///< The sentence when it is missing or has another type; empty when it may be left out.

    /// Whether a document without the section is refused.
    bool isRequired() const { return !missing.isEmpty(); }
    /// Whether \p value has the type of the section.
    bool isTypeOf(const QJsonValue& value) const { return type == Type::Array ? value.isArray() : value.isObject(); }
};

/// Looks \p section up in \p root and has \p read read its value. False when the reading is to stop.
template <typename Read>
bool readSection(const Section& section, const QJsonObject& root, Refusals& refusals, Read read)
{
    const QJsonValue value = root.value(section.key);
    if (section.isTypeOf(value)) {
        return read(value);
    }
    return !section.isRequired() || refusals.goOnAfter(section.missing, jsonPointer(section.key));
}

} // namespace uiconfig
