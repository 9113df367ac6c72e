#include "Structure.h"

#include "StructureMessages.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSet>

#include <valijson/adapters/qtjson_adapter.hpp>
#include <valijson/schema.hpp>
#include <valijson/schema_parser.hpp>
#include <valijson/validation_visitor.hpp>

#include <regex>
#include <unordered_map>

using namespace Qt::StringLiterals;

namespace cluiconfig::check {

namespace {

using valijson::Subschema;
using valijson::adapters::QtJsonAdapter;

constexpr auto PropertiesKey = "properties"_L1;

/// The schema twice: as the validator reads it, and with the annotations that the validator does not keep.
struct CompiledSchema
{
    CompiledSchema()
        : json(QJsonDocument::fromJson(documentSchema()).object())
    {
        valijson::SchemaParser parser;
        parser.populateSchema(QtJsonAdapter(QJsonValue(json)), schema);
    }

    /// \p given, or what it refers to.
    QJsonObject resolved(const QJsonValue& given) const
    {
        constexpr auto Prefix = "#/definitions/"_L1;
        const QJsonObject object = given.toObject();
        const QString reference = object.value("$ref"_L1).toString();
        return reference.isEmpty()
            ? object
            : json.value("definitions"_L1).toObject().value(reference.sliced(Prefix.size())).toObject();
    }

    QJsonObject json;
    valijson::Schema schema;
};

struct Validation
{
    using Properties = QHash<QString, const Subschema*>;

    const Properties& properties(const valijson::constraints::PropertiesConstraint& constraint)
    {
        Properties& properties = known[&constraint];
        if (properties.isEmpty()) {
            constraint.applyToProperties([&](const auto& name, const Subschema* subschema) {
                properties.insert(QString::fromStdString(std::string(name)), subschema);
                return true;
            });
        }
        return properties;
    }

    const CompiledSchema& compiled;
    Findings& findings;
    std::unordered_map<std::string, std::regex> regexes{};
    QHash<const void*, Properties> known{};
};

/// Validates one value. The library's visitor says whether it satisfies a constraint; this one walks to the members and
/// elements itself, in the document and in the schema at once, so that it knows where it is in both.
class StructureVisitor : public valijson::ValidationVisitor<QtJsonAdapter>
{
    using Base = valijson::ValidationVisitor<QtJsonAdapter>;

public:
    static void validate(const Value& value, const Subschema& subschema, const QJsonObject& json,
                         const std::optional<Value>& parent, Validation& validation)
    {
        StructureVisitor visitor(value, json, validation);
        visitor.validateSchema(subschema);
        visitor.report(parent);
    }

    using Base::visit;

    bool visit(const TypeConstraint& constraint) override { return satisfies(constraint, u"type"_s); }
    bool visit(const ConstConstraint& constraint) override { return satisfies(constraint, u"const"_s); }
    bool visit(const EnumConstraint& constraint) override { return satisfies(constraint, u"enum"_s); }
    bool visit(const MinLengthConstraint& constraint) override { return satisfies(constraint, u"minLength"_s); }
    bool visit(const MinItemsConstraint& constraint) override { return satisfies(constraint, u"minItems"_s); }
    bool visit(const MaxItemsConstraint& constraint) override { return satisfies(constraint, u"maxItems"_s); }
    bool visit(const MinimumConstraint& constraint) override { return satisfies(constraint, u"minimum"_s); }
    bool visit(const MaximumConstraint& constraint) override { return satisfies(constraint, u"maximum"_s); }
    bool visit(const AnyOfConstraint& constraint) override { return satisfies(constraint, u"anyOf"_s); }

    bool visit(const RequiredConstraint& constraint) override
    {
        if (m_value.isObject()) {
            const QJsonObject object = m_value.json().toObject();
            constraint.applyToRequiredProperties([&](const auto& name) {
                const QString key = QString::fromStdString(std::string(name));
                if (!object.contains(key)) {
                    reportMissing(key);
                }
                return true;
            });
        }
        return true;
    }

    bool visit(const PropertiesConstraint& constraint) override
    {
        if (m_value.isObject()) {
            const Validation::Properties& known = m_validation.properties(constraint);
            const Subschema* additional = constraint.getAdditionalPropertiesSubschema();
            const QJsonObject schemas = m_schema.value(PropertiesKey).toObject();
            const QJsonObject additionalSchema =
                m_validation.compiled.resolved(m_schema.value("additionalProperties"_L1));
            m_value.forEach([&](const Value& member) {
                const QString key = member.key();
                if (const Subschema* subschema = known.value(key)) {
                    validate(member, *subschema, m_validation.compiled.resolved(schemas.value(key)), m_value,
                             m_validation);
                } else if (additional != nullptr) {
                    validate(member, *additional, additionalSchema, m_value, m_validation);
                } else {
                    m_validation.findings.addAtKey(Rule::UnknownKey, Severity::Warning, member, [&] {
                        return unknownKeyMessage(member, m_value.json().toObject(), m_schema);
                    });
                }
            });
        }
        return true;
    }

    bool visit(const SingularItemsConstraint& constraint) override
    {
        if (m_value.isArray()) {
            const QJsonObject schema = m_validation.compiled.resolved(m_schema.value("items"_L1));
            m_value.forEach([&](const Value& element) {
                validate(element, *constraint.getItemsSubschema(), schema, m_value, m_validation);
            });
        }
        return true;
    }

private:
    StructureVisitor(const Value& value, const QJsonObject& schema, Validation& validation)
        : Base(QtJsonAdapter(value.json()), {}, true, nullptr, validation.regexes)
        , m_value(value)
        , m_schema(schema)
        , m_validation(validation)
    {
    }

    /// Always true, so that the other constraints are looked at as well.
    template <typename Constraint>
    bool satisfies(const Constraint& constraint, const QString& keyword)
    {
        if (!Base::visit(constraint)) {
            m_violated.insert(keyword);
        }
        return true;
    }

    Severity severity(const QJsonObject& schema, const QString& keyword, const std::optional<Value>& parent,
                      const QString& key) const
    {
        const bool isRead = !parent || m_validation.findings.step(*parent, key) != Findings::NeverRead;
        return isRead && isRefused(schema, keyword) ? Severity::Error : Severity::Warning;
    }

    void reportMissing(const QString& key)
    {
        const QJsonObject schema = m_validation.compiled.resolved(m_schema.value(PropertiesKey).toObject().value(key));
        const Severity howMuch = severity(schema, u"missing"_s, m_value, key);
        m_validation.findings.add(
            Rule::MissingKey, howMuch, m_value,
            [&] { return missingKeyMessage(key, schema, howMuch == Severity::Error); }, key,
            m_validation.findings.step(m_value, key));
    }

    template <typename Message>
    void reportIf(const QString& keyword, Rule rule, const std::optional<Value>& parent, Message message)
    {
        if (m_violated.contains(keyword)) {
            const QString key = m_value.key();
            const Severity howMuch = severity(m_schema, keyword, parent, key);
            m_validation.findings.add(
                rule, howMuch, m_value, [&] { return message(howMuch == Severity::Error); }, {},
                parent ? m_validation.findings.step(*parent, key) : 0);
        }
    }

    void report(const std::optional<Value>& parent)
    {
        if (m_violated.contains(u"type"_s)) {
            reportIf(u"type"_s, Rule::WrongType, parent,
                     [&](bool isError) { return wrongTypeMessage(m_value, m_schema, isError); });
            return;
        }
        reportIf(u"const"_s, Rule::WrongVersion, parent, [&](bool) { return wrongVersionMessage(m_value, m_schema); });
        if (m_violated.contains(u"minLength"_s)) {
            reportIf(u"minLength"_s, Rule::EmptyText, parent,
                     [&](bool isError) { return emptyTextMessage(m_value, m_schema, isError); });
        } else {
            reportIf(u"enum"_s, Rule::UnknownWord, parent, [&](bool) { return unknownWordMessage(m_value, m_schema); });
        }
        for (const QString& keyword : {u"minItems"_s, u"maxItems"_s}) {
            reportIf(keyword, Rule::WrongLength, parent, [&](bool) { return wrongLengthMessage(m_value, m_schema); });
        }
        for (const QString& keyword : {u"minimum"_s, u"maximum"_s}) {
            reportIf(keyword, Rule::OutOfRange, parent, [&](bool) { return outOfRangeMessage(m_value, m_schema); });
        }
        if (m_violated.contains(u"anyOf"_s)) {
            m_validation.findings.add(
                Rule::MissingY, severity(m_schema, u"anyOf"_s, std::nullopt, {}), m_value,
                [] {
                    return u"The representation has neither \"Y1\" nor \"Y2\": the application refuses the document. "
                           "Name an array for one of them."_s;
                },
                u"Y1"_s);
        }
    }

    Value m_value;
    QJsonObject m_schema;
    Validation& m_validation;
    QSet<QString> m_violated; // keywords
};

} // namespace

QByteArray documentSchema()
{
    QFile file(u":/cluiconfig/UIConfig.schema.json"_s);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void checkStructure(const Value& root, Findings& findings)
{
    static const CompiledSchema compiled;
    Validation validation{compiled, findings};
    StructureVisitor::validate(root, *compiled.schema.root(), compiled.json, std::nullopt, validation);
}

} // namespace cluiconfig::check
