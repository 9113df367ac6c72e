#pragma once

#include "JsonPlace.h"

#include <QJsonObject>
#include <QString>

namespace cluiedit {

/// What the JSON Schema of documents says of a place.
struct SchemaPlace
{
    QJsonObject schema; ///< of the value there, or, for a key, of its object; empty where the schema knows nothing
    bool namesArray = false; ///< The name of a data array stands there.
    bool namesCategory = false; ///< A category of the catalogue stands there.
    QString category; ///< of which the array must be; empty where any will do
    QString categoryKey; ///< the member beside the place that says so; empty where there is none
    QStringList arrayKeys; ///< the members beside the place that name arrays of that category
};

SchemaPlace schemaAt(const JsonPlace& place);

/// The schema of the member \p key of an object with \p schema; empty where there must not be one.
QJsonObject memberSchema(const QJsonObject& schema, const QString& key);

} // namespace cluiedit
