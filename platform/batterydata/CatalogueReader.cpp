#include <batterydata/private/CatalogueReader.h>

#include <datastorage/Converter.h>
#include <datastorage/JsonUtils.h>

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>

#include <array>
#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

namespace cl::batterydata {

using cl::datastorage::Converter;
using cl::datastorage::DataConfigType;
using cl::datastorage::DataType;
using cl::datastorage::JsonUtils;
using cl::datastorage::PhysicalParameter;
using cl::datastorage::UsualUnit;

namespace {

constexpr int CatalogueVersion = 1;

constexpr auto CategoriesKey = "Categories"_L1;
constexpr auto NameKey = "Name"_L1;
constexpr auto ArraysKey = "Arrays"_L1;
constexpr auto ParameterKey = "Parameter"_L1;
constexpr auto UnitKey = "Unit"_L1;
constexpr auto TypeKey = "Type"_L1;
constexpr auto ExportKey = "Export"_L1;
constexpr auto RequiredKey = "Required"_L1;
constexpr auto FormulaKey = "Formula"_L1;
constexpr auto MachineNameKey = "Machine name"_L1;
constexpr auto DescriptionKey = "Description"_L1;

constexpr std::array<std::pair<QLatin1StringView, DataType>, 5> DataTypes = {{
    {"Double"_L1, DataType::Double},
    {"Float"_L1, DataType::Float},
    {"Integer"_L1, DataType::Integer},
    {"Boolean"_L1, DataType::Boolean},
    {"Text"_L1, DataType::Text},
}};

constexpr std::array<std::pair<QLatin1StringView, ExportCategory>, 4> ExportCategories = {{
    {"Never"_L1, ExportCategory::Never},
    {"On demand"_L1, ExportCategory::OnDemand},
    {"Standard"_L1, ExportCategory::Standard},
    {"Complete"_L1, ExportCategory::Complete},
}};

QString quoted(const QString& text)
{
    return u'"' + text + u'"';
}

// Reads the members of one entry and remembers the first thing that is wrong with it.
class Entry
{
public:
    explicit Entry(const QJsonValue& value)
        : m_object(value.toObject())
    {
        if (!value.isObject()) {
            refuse(u"not an object"_s);
        }
    }

    const QString& getProblem() const { return m_problem; }

    QString readText(QLatin1StringView key, const QString& fallback = {})
    {
        const QJsonValue value = m_object.value(key);
        if (!value.isString() && !value.isUndefined()) {
            refuse(quoted(key) + u" is not a string"_s);
        }
        return value.toString(fallback);
    }

    QString readRequiredText(QLatin1StringView key)
    {
        QString text = readText(key);
        if (text.isEmpty()) {
            refuse(quoted(key) + u" is missing or empty"_s);
        }
        return text;
    }

    bool readFlag(QLatin1StringView key)
    {
        const QJsonValue value = m_object.value(key);
        if (!value.isBool() && !value.isUndefined()) {
            refuse(quoted(key) + u" is neither true nor false"_s);
        }
        return value.toBool();
    }

    QJsonArray readArray(QLatin1StringView key)
    {
        const QJsonValue value = m_object.value(key);
        if (!value.isArray()) {
            refuse(quoted(key) + u" is missing or not an array"_s);
        }
        return value.toArray();
    }

    template <typename Names>
    auto readName(QLatin1StringView key, const Names& names, QLatin1StringView fallback)
    {
        const QString text = readText(key, fallback);
        for (const auto& [name, value] : names) {
            if (name == text) {
                return value;
            }
        }
        refuseValue(key, text);
        return names.front().second;
    }

    PhysicalParameter readParameter()
    {
        const QString name = readText(ParameterKey, Converter::toString(PhysicalParameter::None));
        const PhysicalParameter parameter = Converter::getPhysicalParameterFromString(name);
        if (Converter::toString(parameter) != name) {
            refuseValue(ParameterKey, name);
        }
        return parameter;
    }

    UsualUnit readUnit(PhysicalParameter parameter)
    {
        const QString symbol = readText(UnitKey);
        const std::optional<UsualUnit> unit = Converter::getUnitFromString(symbol);
        if (!unit) {
            refuseValue(UnitKey, symbol);
        } else if (Converter::getPhysicalParameterFromUnits(*unit) != parameter) {
            refuse(u"the unit %1 does not measure %2"_s.arg(quoted(symbol), quoted(Converter::toString(parameter))));
        }
        return unit.value_or(UsualUnit());
    }

private:
    void refuse(const QString& problem)
    {
        if (m_problem.isEmpty()) {
            m_problem = problem;
        }
    }

    void refuseValue(QLatin1StringView key, const QString& value)
    {
        refuse(u"%1 is not known for %2"_s.arg(quoted(value), quoted(key)));
    }

    QJsonObject m_object;
    QString m_problem;
};

std::unique_ptr<ClConfigDataArray> readDataArray(Entry& entry, const QString& category)
{
    const QString name = entry.readRequiredText(NameKey);
    const PhysicalParameter parameter = entry.readParameter();
    const UsualUnit unit = entry.readUnit(parameter);
    const DataType dataType = entry.readName(TypeKey, DataTypes, "Double"_L1);
    const QString formula = entry.readText(FormulaKey);
    const DataConfigType configType = formula.isEmpty() ? DataConfigType::Measured : DataConfigType::Computed;
    auto array = std::make_unique<ClConfigDataArray>(name, parameter, dataType, unit, configType,
                                                     entry.readText(DescriptionKey), entry.readText(MachineNameKey),
                                                     category, entry.readFlag(RequiredKey), formula);
    array->setExportCategory(entry.readName(ExportKey, ExportCategories, "Standard"_L1));
    return array;
}

} // namespace

bool readCatalogueFile(const QString& path, QString& error, std::vector<std::unique_ptr<ClConfigDataArray>>& arrays)
{
    QJsonObject root;
    if (!JsonUtils::openJsonDocument(path, error, root)) {
        return false;
    }
    QString problem;
    if (!JsonUtils::checkVersionNumber(root, CatalogueVersion, problem)) {
        error = quoted(path) + u": "_s + problem;
        return false;
    }
    const auto refuse = [&](const QString& pointer, const Entry& entry) {
        error = u"%1: %2 (at %3)"_s.arg(quoted(path), entry.getProblem(), pointer);
        return false;
    };

    Entry document(root);
    const QJsonArray categories = document.readArray(CategoriesKey);
    if (!document.getProblem().isEmpty()) {
        return refuse(u'/' + QString(CategoriesKey), document);
    }
    for (qsizetype i = 0; i < categories.size(); ++i) {
        const QString pointer = u"/%1/%2"_s.arg(CategoriesKey, QString::number(i));
        Entry category(categories.at(i));
        const QString categoryName = category.readRequiredText(NameKey);
        const QJsonArray entries = category.readArray(ArraysKey);
        if (!category.getProblem().isEmpty()) {
            return refuse(pointer, category);
        }
        for (qsizetype j = 0; j < entries.size(); ++j) {
            Entry entry(entries.at(j));
            arrays.push_back(readDataArray(entry, categoryName));
            if (!entry.getProblem().isEmpty()) {
                return refuse(u"%1/%2/%3"_s.arg(pointer, ArraysKey, QString::number(j)), entry);
            }
        }
    }
    return true;
}

} // namespace cl::batterydata
