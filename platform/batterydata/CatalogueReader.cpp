#include <batterydata/private/CatalogueReader.h>

#include <datastorage/Converter.h>
#include <datastorage/JsonUtils.h>

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>

#include <array>
#include <optional>
#include <utility>

namespace cl::batterydata {

using cl::datastorage::Converter;
using cl::datastorage::DataConfigType;
using cl::datastorage::DataType;
using cl::datastorage::JsonUtils;
using cl::datastorage::PhysicalParameter;
using cl::datastorage::UsualUnit;

namespace {

constexpr int CatalogueVersion = 1;

constexpr QLatin1String CategoriesKey("Categories");
constexpr QLatin1String NameKey("Name");
constexpr QLatin1String ArraysKey("Arrays");
constexpr QLatin1String ParameterKey("Parameter");
constexpr QLatin1String UnitKey("Unit");
constexpr QLatin1String TypeKey("Type");
constexpr QLatin1String ExportKey("Export");
constexpr QLatin1String RequiredKey("Required");
constexpr QLatin1String FormulaKey("Formula");
constexpr QLatin1String MachineNameKey("Machine name");
constexpr QLatin1String DescriptionKey("Description");

constexpr std::array<std::pair<QLatin1String, DataType>, 5> DataTypes = {{
    {QLatin1String("Double"), DataType::Double},
    {QLatin1String("Float"), DataType::Float},
    {QLatin1String("Integer"), DataType::Integer},
    {QLatin1String("Boolean"), DataType::Boolean},
    {QLatin1String("Text"), DataType::Text},
}};

constexpr std::array<std::pair<QLatin1String, ExportCategory>, 4> ExportCategories = {{
    {QLatin1String("Never"), ExportCategory::Never},
    {QLatin1String("On demand"), ExportCategory::OnDemand},
    {QLatin1String("Standard"), ExportCategory::Standard},
    {QLatin1String("Complete"), ExportCategory::Complete},
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
            refuse(QStringLiteral("not an object"));
        }
    }

    const QString& getProblem() const { return m_problem; }

    QString readText(QLatin1String key, const QString& fallback = {})
    {
        const QJsonValue value = m_object.value(key);
        if (!value.isString() && !value.isUndefined()) {
            refuse(quoted(key) + QStringLiteral(" is not a string"));
        }
        return value.toString(fallback);
    }

    QString readRequiredText(QLatin1String key)
    {
        QString text = readText(key);
        if (text.isEmpty()) {
            refuse(quoted(key) + QStringLiteral(" is missing or empty"));
        }
        return text;
    }

    bool readFlag(QLatin1String key)
    {
        const QJsonValue value = m_object.value(key);
        if (!value.isBool() && !value.isUndefined()) {
            refuse(quoted(key) + QStringLiteral(" is neither true nor false"));
        }
        return value.toBool();
    }

    QJsonArray readArray(QLatin1String key)
    {
        const QJsonValue value = m_object.value(key);
        if (!value.isArray()) {
            refuse(quoted(key) + QStringLiteral(" is missing or not an array"));
        }
        return value.toArray();
    }

    template <typename Names>
    auto readName(QLatin1String key, const Names& names, QLatin1String fallback)
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
            refuse(QStringLiteral("the unit %1 does not measure %2")
                       .arg(quoted(symbol), quoted(Converter::toString(parameter))));
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

    void refuseValue(QLatin1String key, const QString& value)
    {
        refuse(QStringLiteral("%1 is not known for %2").arg(quoted(value), quoted(key)));
    }

    QJsonObject m_object;
    QString m_problem;
};

std::unique_ptr<ClConfigDataArray> readDataArray(Entry& entry, const QString& category)
{
    const QString name = entry.readRequiredText(NameKey);
    const PhysicalParameter parameter = entry.readParameter();
    const UsualUnit unit = entry.readUnit(parameter);
    const DataType dataType = entry.readName(TypeKey, DataTypes, QLatin1String("Double"));
    const QString formula = entry.readText(FormulaKey);
    const DataConfigType configType = formula.isEmpty() ? DataConfigType::Measured : DataConfigType::Computed;
    auto array = std::make_unique<ClConfigDataArray>(name, parameter, dataType, unit, configType,
                                                     entry.readText(DescriptionKey), entry.readText(MachineNameKey),
                                                     category, entry.readFlag(RequiredKey), formula);
    array->setExportCategory(entry.readName(ExportKey, ExportCategories, QLatin1String("Standard")));
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
        error = quoted(path) + QStringLiteral(": ") + problem;
        return false;
    }
    const auto refuse = [&](const QString& pointer, const Entry& entry) {
        error = QStringLiteral("%1: %2 (at %3)").arg(quoted(path), entry.getProblem(), pointer);
        return false;
    };

    Entry document(root);
    const QJsonArray categories = document.readArray(CategoriesKey);
    if (!document.getProblem().isEmpty()) {
        return refuse(u'/' + QString(CategoriesKey), document);
    }
    for (qsizetype i = 0; i < categories.size(); ++i) {
        const QString pointer = QStringLiteral("/%1/%2").arg(CategoriesKey, QString::number(i));
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
                return refuse(QStringLiteral("%1/%2/%3").arg(pointer, ArraysKey, QString::number(j)), entry);
            }
        }
    }
    return true;
}

} // namespace cl::batterydata
