#include "SchemaPlace.h"

#include <check/Schema.h>

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace cluiedit {

namespace {

const QJsonObject& documentSchema()
{
    static const QJsonObject schema = QJsonDocument::fromJson(cluiconfig::check::documentSchema()).object();
    return schema;
}

/// \p schema, or what it refers to.
QJsonObject resolved(const QJsonValue& schema)
{
    constexpr auto Prefix = "#/definitions/"_L1;
    const QJsonObject object = schema.toObject();
    const QString reference = object.value("$ref"_L1).toString();
    return reference.isEmpty()
        ? object
        : documentSchema().value("definitions"_L1).toObject().value(reference.sliced(Prefix.size())).toObject();
}

QString textBeside(const JsonPlace& place, const QString& key)
{
    const auto found = std::ranges::find(place.texts, key, &std::pair<QString, QString>::first);
    return found == place.texts.end() ? QString() : found->second;
}

} // namespace

QJsonObject memberSchema(const QJsonObject& schema, const QString& key)
{
    const QJsonObject properties = schema.value("properties"_L1).toObject();
    return resolved(properties.contains(key) ? properties.value(key) : schema.value("additionalProperties"_L1));
}

SchemaPlace schemaAt(const JsonPlace& place)
{
    constexpr auto NamesKey = "x-names"_L1;
    SchemaPlace result;
    result.schema = documentSchema();
    QJsonObject names; // of the last object on the way
    QString key;
    for (const JsonStep& step : place.path) {
        if (step.isKey()) {
            names = result.schema.value(NamesKey).toObject();
            key = step.key;
            result.schema = memberSchema(result.schema, key);
        } else {
            result.schema = resolved(result.schema.value("items"_L1));
        }
    }
    if (place.isKey) {
        result.namesCategory = result.schema.value(NamesKey).toObject().contains("keys"_L1);
        return result;
    }
    if (names.contains("keys"_L1)) {
        result.namesArray = true;
        result.category = key;
        return result;
    }
    const QString categoryKey = names.value("category"_L1).toString();
    const QStringList arrayKeys = names.value("arrays"_L1).toVariant().toStringList();
    result.namesArray = arrayKeys.contains(key);
    result.namesCategory = !categoryKey.isEmpty() && key == categoryKey;
    if (result.namesArray || result.namesCategory) {
        result.categoryKey = categoryKey;
        result.arrayKeys = arrayKeys;
        result.category = categoryKey.isEmpty() ? names.value("in"_L1).toString() : textBeside(place, categoryKey);
    }
    return result;
}

} // namespace cluiedit
