#include <config/UIConfig.h>

#include <base/DocumentKeys.h>
#include <base/JsonFields.h>
#include <config/Configuration.h>

#include <utility>

using namespace Qt::StringLiterals;

namespace uiconfig {

namespace {

constexpr auto CommandNotAnArray = " command is not a Json array"_L1;

bool readCommand(const QJsonObject& section, const QString& command, QList<RecipeEntry>& list, Refusals& refusals)
{
    const QJsonValue group = section.value(command);
    if (!group.isArray()) {
        return refusals.goOnAfter(command + CommandNotAnArray, jsonPointer(keys::Recipe, command));
    }
    const auto elements = QCborArray::fromJsonArray(group.toArray());
    for (const auto& element : elements) {
        const JsonFields fields(element);
        RecipeEntry entry{command, fields.text(keys::UITitle), {}};
        for (const QLatin1StringView key : keys::Parameters) {
            if (const QCborValue parameter = fields.value(key); parameter.isString()) {
                entry.parameters.append(parameter.toString());
            }
        }
        list.append(std::move(entry));
    }
    return true;
}

} // namespace

bool readRecipe(const QJsonValue& section, const Reading& with)
{
    const QJsonObject commands = section.toObject();
    Recipe& recipe = with.to.recipe;
    return readCommand(commands, keys::GraphCommand, recipe.graphCombinations, with.refusals)
        && readCommand(commands, keys::ToolSummaryCommand, recipe.toolsTables, with.refusals)
        && readCommand(commands, keys::ToolStatisticsCommand, recipe.toolsGraphs, with.refusals)
        && readCommand(commands, keys::ToolProcessedDataCommand, recipe.toolsGraphs, with.refusals);
}

} // namespace uiconfig

bool UIConfig::readContentListForRecipe(const QJsonObject& root, QString& error)
{
    return readSection(uiconfig::keys::Recipe, root, error);
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): the interface takes the value by value
bool UIConfig::readRecipeCommandConfig(QJsonValue recipe, const QString& command, QList<RecipeConfigItem>& list,
                                       QString& error)
{
    uiconfig::Refusals refusals(uiconfig::Refusals::AtFirst::Stop);
    QList<uiconfig::RecipeEntry> entries;
    uiconfig::readCommand(recipe.toObject(), command, entries, refusals);
    appendRecipeItems(entries, list);
    return refusals.isEmpty(error);
}

void UIConfig::appendRecipeItems(const QList<uiconfig::RecipeEntry>& entries, QList<RecipeConfigItem>& list)
{
    for (const uiconfig::RecipeEntry& entry : entries) {
        RecipeConfigItem& item = list.emplaceBack();
        item.setType(entry.command);
        item.setUiTitle(entry.title);
        for (const QString& parameter : entry.parameters) {
            item.addParameter(parameter);
        }
    }
}

QString UIConfig::graphCommand()
{
    return uiconfig::keys::GraphCommand;
}

QString UIConfig::toolSummaryCommand()
{
    return uiconfig::keys::ToolSummaryCommand;
}

QString UIConfig::toolStatisticsCommand()
{
    return uiconfig::keys::ToolStatisticsCommand;
}

QString UIConfig::toolRagonePlotCommand()
{
    return u"ToolRagonePlotCommand"_s; // no recipe of the document has it
}

QString UIConfig::toolProcessedDataCommand()
{
    return uiconfig::keys::ToolProcessedDataCommand;
}
