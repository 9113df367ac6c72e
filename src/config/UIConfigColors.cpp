#include <config/UIConfig.h>

#include <QJsonArray>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr auto ColorsKey = "Colors"_L1;
constexpr auto CustomColorsKey = "Custom colors"_L1;
constexpr auto DefaultColorsKey = "Default colors"_L1;
constexpr auto NameKey = "name"_L1;
constexpr auto RgbKey = "RGB"_L1;

constexpr auto ColorsMissing = "Missing colors configuration node"_L1;
constexpr auto CustomColorsNotAnArray = "Custom colors is not an array node"_L1;
constexpr auto ColorNotAnObject = "Color is not a Json object"_L1;
constexpr auto RgbNotAnArray = "Color %1 is not a Json array"_L1;
constexpr auto RgbMalformed = "Color %1 is not correctly formed"_L1;
constexpr auto DefaultColorsNotAnObject = "Default colors is not an object node"_L1;

} // namespace

bool UIConfig::readColors(const QJsonObject& root, QString& error)
{
    const QJsonValue section = root.value(ColorsKey);
    if (!section.isObject()) {
        error = ColorsMissing;
        return false;
    }
    const QJsonObject colors = section.toObject();
    const QJsonValue customColors = colors.value(CustomColorsKey);
    if (!customColors.isArray()) {
        error = CustomColorsNotAnArray;
        return false;
    }
    if (!readCustomColors(customColors, error)) {
        return false;
    }
    const QJsonValue defaultColors = colors.value(DefaultColorsKey);
    if (!defaultColors.isObject()) {
        error = DefaultColorsNotAnObject;
        return false;
    }
    return readDefaultColors(defaultColors, error);
}

bool UIConfig::readCustomColors(const QJsonValue& customColors, QString& error)
{
    const QJsonArray palette = customColors.toArray();
    for (const auto& element : palette) {
        if (!element.isObject()) {
            error = ColorNotAnObject;
            return false;
        }
        const QJsonObject entry = element.toObject();
        const QString name = entry.value(NameKey).toString();
        const QJsonValue triple = entry.value(RgbKey);
        if (!triple.isArray()) {
            error = QString(RgbNotAnArray).arg(name);
            return false;
        }
        const QJsonArray rgb = triple.toArray();
        if (rgb.size() != 3) {
            error = QString(RgbMalformed).arg(name);
            return false;
        }
        m_customColors.append({name, QColor(rgb.at(0).toInt(), rgb.at(1).toInt(), rgb.at(2).toInt(), 255)});
    }
    return true;
}

bool UIConfig::readDefaultColors(const QJsonValue& defaultColors, QString& /*error*/)
{
    const QJsonObject defaults = defaultColors.toObject();
    for (auto it = defaults.begin(); it != defaults.end(); ++it) {
        m_defaultColors[it.key()] = it.value().toString();
    }
    return true;
}

bool UIConfig::getDefaultColor(const QString& key, QColor& color) const
{
    const QString name = m_defaultColors.value(key);
    const auto found = std::find_if(m_customColors.cbegin(), m_customColors.cend(),
                                    [&name](const auto& custom) { return custom.first == name; });
    if (found == m_customColors.cend()) {
        return false;
    }
    color = found->second;
    return true;
}
