#include "NamedSchema.h"

#include <batterydata/ClConfigDataArrayManager.h>

#include <QJsonArray>
#include <QJsonValue>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace cluiconfig {

namespace {

constexpr auto Definitions = "definitions"_L1;
constexpr auto Properties = "properties"_L1;
constexpr auto Items = "items"_L1;
constexpr auto Reference = "$ref"_L1;
constexpr auto ReferencePrefix = "#/definitions/"_L1;
constexpr auto Annotation = "x-names"_L1;

/// One of \p names, or the empty text, which stands for none. What is no text another part of the schema refuses.
QJsonObject oneOf(const QStringList& names)
{
    QJsonArray alternatives{QJsonObject{{u"maxLength"_s, 0}}};
    if (!names.isEmpty()) {
        alternatives.prepend(QJsonObject{{u"enum"_s, QJsonArray::fromStringList(names)}});
    }
    return {{u"anyOf"_s, alternatives}};
}

QJsonObject reference(const QString& definition)
{
    return {{Reference, ReferencePrefix + definition}};
}

/// Goes through a schema and makes one with the names.
class Builder
{
public:
    Builder(const QJsonObject& schema, const cl::batterydata::ClConfigDataArrayManager& catalogue)
        : m_schema(schema)
        , m_catalogue(catalogue)
    {
    }

    QJsonObject build()
    {
        QJsonObject schema = named(m_schema).toObject();
        QJsonObject definitions = schema.value(Definitions).toObject();
        definitions.insert(CategoryName, oneOf(m_catalogue.getCategories()));
        QStringList all;
        for (const auto* array : m_catalogue.getAll()) {
            all.append(array->getName());
        }
        all.removeDuplicates();
        definitions.insert(AnyArray, oneOf(all));
        for (const QString& category : std::as_const(m_categories)) {
            definitions.insert(nameOf(category), oneOf(arraysOf(category)));
        }
        schema.insert(Definitions, definitions);
        schema.insert(u"$id"_s, schema.value("$id"_L1).toString() + u":names"_s);
        return schema;
    }

private:
    static constexpr auto CategoryName = "categoryName"_L1;
    static constexpr auto AnyArray = "anyArray"_L1;

    QStringList arraysOf(const QString& category) const
    {
        QStringList names;
        for (const auto* array : m_catalogue.getAll()) {
            if (array->getCategory() == category) {
                names.append(array->getName());
            }
        }
        return names;
    }

    /// The definition of the names of a category. It has a number, since a category may have signs that a reference has
    /// to escape.
    QString nameOf(const QString& category)
    {
        if (!m_categories.contains(category)) {
            m_categories.append(category);
        }
        return u"arraysOfCategory"_s + QString::number(m_categories.indexOf(category) + 1);
    }

    QJsonValue named(const QJsonValue& value)
    {
        if (value.isArray()) {
            QJsonArray array = value.toArray();
            for (auto element : array) {
                element = named(element);
            }
            return array;
        }
        if (!value.isObject()) {
            return value;
        }
        QJsonObject object = value.toObject();
        for (auto member : object) {
            member = named(member);
        }
        const QJsonObject names = object.value(Annotation).toObject();
        if (names.contains("keys"_L1)) {
            nameKeys(object);
        } else if (!names.isEmpty()) {
            nameMembers(object, names);
        }
        return object;
    }

    /// The keys of the object are categories, its members lists of their arrays.
    void nameKeys(QJsonObject& object)
    {
        QJsonObject properties;
        for (const QString& category : m_catalogue.getCategories()) {
            QJsonObject list = object.value("additionalProperties"_L1).toObject();
            list.insert(Items, QJsonObject{{u"allOf"_s, QJsonArray{list.value(Items), reference(nameOf(category))}}});
            properties.insert(category, list);
        }
        object.insert(Properties, properties);
        object.insert(u"additionalProperties"_s, false);
    }

    /// Members of the object name arrays; \p names, the annotation, says which members, and of which category.
    void nameMembers(QJsonObject& object, const QJsonObject& names)
    {
        QJsonObject properties = object.value(Properties).toObject();
        const auto members = [&](const QStringList& keys, const QString& definition) {
            QJsonObject schemas;
            for (const QString& key : keys) {
                const QJsonObject schema = reference(definition);
                const bool isList = properties.value(key).toObject().value("type"_L1) == u"array"_s;
                schemas.insert(key, isList ? QJsonObject{{Items, schema}} : schema);
            }
            return QJsonObject{{Properties, schemas}};
        };

        QStringList arrays;
        for (const auto& key : names.value("arrays"_L1).toArray()) {
            arrays.append(key.toString());
        }
        const QString category = names.value("category"_L1).toString();
        QJsonArray rules;
        if (!category.isEmpty()) {
            const auto isGiven = [&](const QJsonObject& as) {
                return QJsonObject{{u"required"_s, QJsonArray{category}}, {Properties, QJsonObject{{category, as}}}};
            };
            rules.append(members({category}, CategoryName));
            for (const QString& each : m_catalogue.getCategories()) {
                rules.append(
                    QJsonObject{{u"if"_s, isGiven({{u"const"_s, each}})}, {u"then"_s, members(arrays, nameOf(each))}});
            }
            rules.append(
                QJsonObject{{u"if"_s, isGiven({{u"minLength"_s, 1}})}, {u"else"_s, members(arrays, AnyArray)}});
        } else {
            const QString in = names.value("in"_L1).toString();
            rules.append(members(arrays, in.isEmpty() ? QString(AnyArray) : nameOf(in)));
        }
        object.insert(u"allOf"_s, rules);
        for (const QString& key : arrays + QStringList{category}) {
            if (properties.contains(key)) {
                properties.insert(key, withoutExamples(properties.value(key)));
            }
        }
        object.insert(Properties, properties);
    }

    /// \p schema, or what it refers to, without its examples, which are names of the shipped catalogue: editors would
    /// offer them beside the names.
    QJsonObject withoutExamples(const QJsonValue& value) const
    {
        QJsonObject schema = value.toObject();
        const QString definition = schema.value(Reference).toString();
        if (!definition.isEmpty()) {
            schema = m_schema.value(Definitions).toObject().value(definition.sliced(ReferencePrefix.size())).toObject();
        }
        schema.remove("examples"_L1);
        if (schema.contains(Items)) {
            schema.insert(Items, withoutExamples(schema.value(Items)));
        }
        return schema;
    }

    const QJsonObject m_schema;
    const cl::batterydata::ClConfigDataArrayManager& m_catalogue;
    QStringList m_categories; // in the order of their definitions
};

} // namespace

QJsonObject namedSchema(const QJsonObject& schema, const cl::batterydata::ClConfigDataArrayManager& catalogue)
{
    return Builder(schema, catalogue).build();
}

} // namespace cluiconfig
