#include <config/UIConfig.h>

#include <axes/private/JsonFields.h>

#include <QJsonArray>

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr auto RecipeKey = "Recipe"_L1;
constexpr auto TitleKey = "UITitle"_L1;
constexpr std::array ParameterKeys{"Param1"_L1, "Param2"_L1, "Param3"_L1, "Param4"_L1, "Param5"_L1};

constexpr auto RecipeMissing = "Missing recipe node"_L1;
constexpr auto CommandNotAnArray = " command is not a Json array"_L1;

} // namespace

bool UIConfig::readContentListForRecipe(const QJsonObject& root, QString& error)
{
    const QJsonValue recipe = root.value(RecipeKey);
    if (!recipe.isObject()) {
        error = RecipeMissing;
        return false;
    }
    return readRecipeCommandConfig(recipe, graphCommand(), m_recipeGraphCombinationsList, error)
        && readRecipeCommandConfig(recipe, toolSummaryCommand(), m_recipeToolsTablesList, error)
        && readRecipeCommandConfig(recipe, toolStatisticsCommand(), m_recipeToolsGraphsList, error)
        && readRecipeCommandConfig(recipe, toolProcessedDataCommand(), m_recipeToolsGraphsList, error);
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): the interface takes the value by value
bool UIConfig::readRecipeCommandConfig(QJsonValue recipe, const QString& command, QList<RecipeConfigItem>& list,
                                       QString& error)
{
    const QJsonValue group = recipe.toObject().value(command);
    if (!group.isArray()) {
        error = command + CommandNotAnArray;
        return false;
    }
    const auto entries = QCborArray::fromJsonArray(group.toArray());
    for (const auto& element : entries) {
        const JsonFields entry(element);
        RecipeConfigItem& item = list.emplaceBack();
        item.setType(command);
        item.setUiTitle(entry.text(TitleKey));
        for (const QLatin1StringView key : ParameterKeys) {
            if (const QCborValue parameter = entry.value(key); parameter.isString()) {
                item.addParameter(parameter.toString());
            }
        }
    }
    return true;
}
