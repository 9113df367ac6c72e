#pragma once

#include <axes/private/JsonFields.h>

#include <QJsonArray>
#include <QJsonObject>
#include <QLatin1StringView>
#include <QList>

/// What the curves of statistics graphs and of Ragone plots have in common: five texts with the same keys.
namespace curves {

/// The keys of the five texts, in the configuration document or in a saved project.
struct Keys
{
    QLatin1StringView title;
    QLatin1StringView category;
    QLatin1StringView streamX;
    QLatin1StringView streamY;
    QLatin1StringView type;
};

constexpr Keys ConfigurationKeys{QLatin1StringView("Title"), QLatin1StringView("Category"), QLatin1StringView("X"),
                                 QLatin1StringView("Y"), QLatin1StringView("Type")};
constexpr Keys ArchiveKeys{QLatin1StringView("title"), QLatin1StringView("category"), QLatin1StringView("streamX"),
                           QLatin1StringView("streamY"), QLatin1StringView("type")};

template <typename Curve>
void readTexts(Curve& curve, const JsonFields& fields, const Keys& keys)
{
    curve.setTitle(fields.text(keys.title));
    curve.setCategory(fields.text(keys.category));
    curve.setStreamX(fields.text(keys.streamX));
    curve.setStreamY(fields.text(keys.streamY));
    curve.setType(fields.text(keys.type));
}

template <typename Curve>
void writeTexts(const Curve& curve, QJsonObject& object)
{
    object.insert(ArchiveKeys.title, curve.getTitle());
    object.insert(ArchiveKeys.category, curve.getCategory());
    object.insert(ArchiveKeys.streamX, curve.getStreamX());
    object.insert(ArchiveKeys.streamY, curve.getStreamY());
    object.insert(ArchiveKeys.type, curve.getType());
}

/// Appends the curves of one graph of a configuration section, which stand in an array, to \p curves.
template <typename Curve>
void appendFromConfiguration(QList<Curve>& curves, const QJsonArray& array)
{
    curves.reserve(curves.size() + array.size());
    const auto elements = QCborArray::fromJsonArray(array);
    for (const auto& element : elements) {
        readTexts(curves.emplaceBack(), JsonFields(element), ConfigurationKeys);
    }
}

/// The titles of all curves in list order, empty and repeated ones included.
template <typename Curve>
QList<QString> titles(const QList<Curve>& curves)
{
    QList<QString> result;
    result.reserve(curves.size());
    for (const Curve& curve : curves) {
        result.append(curve.getTitle());
    }
    return result;
}

} // namespace curves
