#include <config/UIConfig.h>

#include <base/DocumentKeys.h>
#include <base/JsonFields.h>
#include <config/Configuration.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace uiconfig {

namespace {

constexpr auto CustomColorsNotAnArray = "Custom colors is not an array node"_L1;
constexpr auto ColorNotAnObject = "Color is not a Json object"_L1;
constexpr auto RgbNotAnArray = "Color %1 is not a Json array"_L1;
constexpr auto RgbMalformed = "Color %1 is not correctly formed"_L1;
constexpr auto DefaultColorsNotAnObject = "Default colors is not an object node"_L1;

bool readCustomColor(const QCborValueConstRef& element, qsizetype index, Colors& colors, Refusals& refusals)
{
    const auto refuse = [&](const QString& sentence, const auto&... steps) {
        return refusals.goOnAfter(sentence, jsonPointer(keys::Colors, keys::CustomColors, index, steps...));
    };
    if (!element.isMap()) {
        return refuse(ColorNotAnObject);
    }
    const JsonFields entry(element);
    const QString name = entry.text(keys::ColorName);
    const QCborValue triple = entry.value(keys::Rgb);
    if (!triple.isArray()) {
        return refuse(QString(RgbNotAnArray).arg(name), keys::Rgb);
    }
    const QJsonArray rgb = triple.toArray().toJsonArray(); // which reads a number that is not whole as 0
    if (rgb.size() != 3) {
        return refuse(QString(RgbMalformed).arg(name), keys::Rgb);
    }
    colors.custom.append({name, QColor(rgb.at(0).toInt(), rgb.at(1).toInt(), rgb.at(2).toInt(), 255)});
    return true;
}

bool readCustomColors(const QJsonArray& palette, Colors& colors, Refusals& refusals)
{
    const auto elements = QCborArray::fromJsonArray(palette);
    qsizetype index = 0;
    for (const auto& element : elements) {
        if (!readCustomColor(element, index++, colors, refusals)) {
            return false;
        }
    }
    return true;
}

void readDefaultColors(const QJsonObject& defaults, Colors& colors)
{
    for (auto it = defaults.begin(); it != defaults.end(); ++it) {
        colors.defaults.insert(it.key(), it.value().toString());
    }
}

} // namespace

bool readColors(const QJsonValue& section, const Reading& with)
{
    const QJsonObject members = section.toObject();
    const QJsonValue palette = members.value(keys::CustomColors);
    const QString place = jsonPointer(keys::Colors, keys::CustomColors);
    if (palette.isArray() ? !readCustomColors(palette.toArray(), with.to.colors, with.refusals)
                          : !with.refusals.goOnAfter(CustomColorsNotAnArray, place)) {
        return false;
    }
    const QJsonValue defaults = members.value(keys::DefaultColors);
    if (!defaults.isObject()) {
        return with.refusals.goOnAfter(DefaultColorsNotAnObject, jsonPointer(keys::Colors, keys::DefaultColors));
    }
    readDefaultColors(defaults.toObject(), with.to.colors);
    return true;
}

namespace {

std::optional<QColor> find(const decltype(Colors::custom)& custom, const decltype(Colors::defaults)& defaults,
                           const QString& key)
{
    const QString name = defaults.value(key);
    const auto found =
        std::find_if(custom.cbegin(), custom.cend(), [&name](const auto& each) { return each.first == name; });
    return found == custom.cend() ? std::nullopt : std::optional(found->second);
}

} // namespace

std::optional<QColor> defaultColor(const Colors& colors, const QString& key)
{
    return find(colors.custom, colors.defaults, key);
}

} // namespace uiconfig

bool UIConfig::readColors(const QJsonObject& root, QString& error)
{
    return readSection(uiconfig::keys::Colors, root, error);
}

bool UIConfig::readCustomColors(const QJsonValue& customColors, QString& error)
{
    return takeRead(error, [&](const uiconfig::Reading& with) {
        uiconfig::readCustomColors(customColors.toArray(), with.to.colors, with.refusals);
    });
}

bool UIConfig::readDefaultColors(const QJsonValue& defaultColors, QString& error)
{
    return takeRead(error, [&](const uiconfig::Reading& with) {
        uiconfig::readDefaultColors(defaultColors.toObject(), with.to.colors);
    });
}

bool UIConfig::getDefaultColor(const QString& key, QColor& color) const
{
    const std::optional<QColor> found = uiconfig::find(m_customColors, m_defaultColors, key);
    color = found.value_or(color);
    return found.has_value();
}
