#pragma once

#include <base/DocumentKeys.h>
#include <base/JsonFields.h>
#include <base/RecordList.h>

#include <QJsonArray>
#include <QJsonObject>
#include <QLatin1StringView>
#include <QList>

/// What statistics graphs and Ragone plots have in common: a title and a list of curves, each with five texts.
namespace curves {

/// The keys of the five texts of a curve, in the configuration document or in a saved project.
struct Keys
{
    QLatin1StringView title;
    QLatin1StringView category;
    QLatin1StringView streamX;
    QLatin1StringView streamY;
    QLatin1StringView type;
};

inline constexpr Keys ConfigurationKeys{uiconfig::keys::Title, uiconfig::keys::Category, uiconfig::keys::X,
                                        uiconfig::keys::Y, uiconfig::keys::Type};
inline constexpr Keys ArchiveKeys{QLatin1StringView("title"), QLatin1StringView("category"),
                                  QLatin1StringView("streamX"), QLatin1StringView("streamY"),
                                  QLatin1StringView("type")};
inline constexpr QLatin1StringView GraphItemsKey("graphItemsList");

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

/// Replaces \p title and \p curves by the archived ones.
template <typename Curve, typename Context>
bool readGraph(QString& title, QList<Curve>& curves, const QJsonObject& object, int version, Context& context)
{
    title = object.value(ArchiveKeys.title).toString();
    curves = readRecords<Curve>(object.value(GraphItemsKey).toArray(), version, context);
    return true;
}

template <typename Curve, typename Context>
bool writeGraph(const QString& title, const QList<Curve>& curves, QJsonObject& object, int version, Context& context)
{
    object.insert(ArchiveKeys.title, title);
    object.insert(GraphItemsKey, writeRecords(curves, version, context));
    return true;
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
