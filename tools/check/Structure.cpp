#include "private/Structure.h"

#include "Schema.h"
#include "private/StructureMessages.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSet>

#include <valijson/adapters/qtjson_adapter.hpp>
#include <valijson/schema.hpp>
#include <valijson/schema_parser.hpp>
#include <valijson/validation_visitor.hpp>

#include <algorithm>
#include <initializer_list>
#include <regex>
#include <unordered_map>
#include <utility>

using namespace Qt::StringLiterals;

namespace cluiconfig::check {

namespace {

using valijson::Subschema;
using valijson::adapters::QtJsonAdapter;

constexpr auto PropertiesKey = "properties"_L1;

/// The schema twice: as the validator reads it, and with the annotations that the validator does not keep.
struct CompiledSchema
{
    explicit CompiledSchema(const QByteArray& text)
        : json(QJsonDocument::fromJson(text).object())
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

const CompiledSchema& schemaOf(Subject subject)
{
    if (subject == Subject::Catalogue) {
        static const CompiledSchema catalogue(catalogueSchema());
        return catalogue;
    }
    static const CompiledSchema document(documentSchema());
    return document;
}

QByteArray resource(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

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
                         Validation& validation)
    {
        StructureVisitor visitor(value, json, validation);
        visitor.validateSchema(subschema);
        visitor.report();
    }

    using Base::visit;

    bool visit(const TypeConstraint& constraint) override { return satisfies(constraint, u"type"_s); }
    bool visit(const ConstConstraint& constraint) override { return satisfies(constraint, u"const"_s); }
    bool visit(const EnumConstraint& constraint) override { return satisfies(constraint, u"enum"_s); }
    bool visit(const MinItemsConstraint& constraint) override { return satisfies(constraint, u"minItems"_s); }
    bool visit(const MaxItemsConstraint& constraint) override { return satisfies(constraint, u"maxItems"_s); }
    bool visit(const MinimumConstraint& constraint) override { return satisfies(constraint, u"minimum"_s); }
    bool visit(const MaximumConstraint& constraint) override { return satisfies(constraint, u"maximum"_s); }
    // What these say is known better elsewhere: by a section, or by what looks at units.
    bool visit(const AnyOfConstraint& /*constraint*/) override { return true; }
    bool visit(const ConditionalConstraint& /*constraint*/) override { return true; }

    // The library's own stops counting at a NUL.
    bool visit(const MinLengthConstraint& constraint) override
    {
        if (m_value.json().isString() && std::cmp_less(m_value.text().size(), constraint.getMinLength())) {
            m_violated.insert(u"minLength"_s);
        }
        return true;
    }

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
                    validate(member, *subschema, m_validation.compiled.resolved(schemas.value(key)), m_validation);
                } else if (additional != nullptr) {
                    validate(member, *additional, additionalSchema, m_validation);
                } else {
                    m_validation.findings.warnAtKey(Rule::UnknownKey, member, [&] {
                        return unknownKeyMessage(key, keysMeantBy(key, m_value.json().toObject(), m_schema), m_schema);
                    });
                }
            });
        }
        return true;
    }

    bool visit(const PropertyNamesConstraint& /*constraint*/) override
    {
        if (m_value.isObject()) {
            const QJsonObject schema = m_validation.compiled.resolved(m_schema.value("propertyNames"_L1));
            const QJsonArray names = schema.value("enum"_L1).toArray();
            m_value.forEach([&](const Value& member) {
                if (!names.contains(member.key())) {
                    m_validation.findings.warnAtKey(Rule::UnknownWord, member, [&] {
                        Advice advice = unknownWordMessage(member.key(), schema, QString());
                        advice.instead = insteadOfKey(advice.instead, m_value);
                        return advice;
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
                validate(element, *constraint.getItemsSubschema(), schema, m_validation);
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

    void reportMissing(const QString& key)
    {
        if (!m_validation.findings.isRefused(m_value, key) && isMisspelt(key)) {
            return; // the finding about the misspelt key says what to do
        }
        const QJsonObject schema = m_validation.compiled.resolved(m_schema.value(PropertiesKey).toObject().value(key));
        m_validation.findings.reportMissing(
            m_value, key, [&](bool isRefused) { return missingKeyMessage(key, schema, refusal(isRefused)); });
    }

    /// Whether the value has an unknown key by which the known \p key may be meant.
    bool isMisspelt(const QString& key) const
    {
        const QJsonObject object = m_value.json().toObject();
        const QJsonObject known = m_schema.value(PropertiesKey).toObject();
        const QStringList given = object.keys();
        return std::any_of(given.begin(), given.end(), [&](const QString& each) {
            return !known.contains(each) && keysMeantBy(each, object, m_schema) == QStringList{key};
        });
    }

    /// What to say of a value that is refused; nothing of one that is not.
    QString refusal(bool isRefused) const { return isRefused ? m_validation.findings.refuses() : QString(); }

    bool isViolated(std::initializer_list<QString> keywords) const
    {
        return std::any_of(keywords.begin(), keywords.end(),
                           [this](const QString& keyword) { return m_violated.contains(keyword); });
    }

    void report()
    {
        Findings& findings = m_validation.findings;
        if (isViolated({u"type"_s})) {
            findings.reportWhole(Rule::WrongType, m_value, [this](bool isRefused) {
                return wrongTypeMessage(m_value, m_schema, refusal(isRefused));
            });
            return;
        }
        if (isViolated({u"const"_s})) {
            findings.report(Rule::WrongVersion, m_value, [&](bool /*isRefused*/) {
                return wrongVersionMessage(m_value, m_schema, findings.refuses());
            });
        }
        if (isViolated({u"minLength"_s})) {
            findings.report(Rule::EmptyText, m_value,
                            [this](bool isRefused) { return emptyTextMessage(m_value, m_schema, refusal(isRefused)); });
        } else if (isViolated({u"enum"_s})) {
            findings.report(Rule::UnknownWord, m_value, [this](bool isRefused) {
                return unknownWordMessage(m_value.text(), m_schema, refusal(isRefused));
            });
        }
        if (isViolated({u"minItems"_s, u"maxItems"_s})) {
            findings.report(Rule::WrongLength, m_value, [&](bool /*isRefused*/) {
                return wrongLengthMessage(m_value, m_schema, findings.refuses());
            });
        }
        if (isViolated({u"minimum"_s, u"maximum"_s})) {
            findings.warn(Rule::OutOfRange, m_value, [this] { return outOfRangeMessage(m_value, m_schema); });
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
    return resource(u":/cluiconfig/UIConfig.schema.json"_s);
}

QByteArray catalogueSchema()
{
    return resource(u":/cluiconfig/DataArrays.schema.json"_s);
}

void checkStructure(const Value& root, Findings& findings)
{
    const CompiledSchema& compiled = schemaOf(findings.subject());
    Validation validation{compiled, findings};
    StructureVisitor::validate(root, *compiled.schema.root(), compiled.json, validation);
}

} // namespace cluiconfig::check
