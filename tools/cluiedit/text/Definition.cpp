#include "Definition.h"

#include "JsonPlace.h"
#include "JsonScanner.h"
#include "SchemaPlace.h"

#include <base/DocumentKeys.h>
#include <base/JsonPointer.h>
#include <check/Places.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;
namespace keys = uiconfig::keys;

namespace cluiedit {

namespace {

/// The pointer to the member \p key of the first object in the list at \p pointer in which it is \p name; empty if
/// none.
QString firstIn(const QJsonValue& list, const QString& pointer, QLatin1StringView key, const QString& name)
{
    const QJsonArray array = list.toArray();
    for (qsizetype i = 0; i < array.size(); ++i) {
        if (array.at(i)[key].toString() == name) {
            return pointer + jsonPointer(i, key);
        }
    }
    return {};
}

/// The first reference to an array called \p name in the axes combinations, of \p category unless that is empty.
QString axesReference(const QJsonObject& root, const QString& name, const QString& category)
{
    QString ofAnother;
    const QJsonArray entries = root.value(keys::AxesCombinations).toArray();
    for (qsizetype i = 0; i < entries.size(); ++i) {
        for (const QLatin1StringView axis : {keys::X, keys::Y1Y2}) {
            const QJsonArray references = entries.at(i)[axis].toArray();
            for (qsizetype j = 0; j < references.size(); ++j) {
                if (references.at(j)[keys::Name].toString() != name) {
                    continue;
                }
                QString pointer = jsonPointer(keys::AxesCombinations, i, axis, j, keys::Name);
                const QString given = references.at(j)[keys::Category].toString();
                if (category.isEmpty() || given.isEmpty() || given == category) {
                    return pointer;
                }
                ofAnother = ofAnother.isEmpty() ? pointer : ofAnother;
            }
        }
    }
    return ofAnother;
}

/// What the parameter \p key of an entry of \p command names when it is \p name.
QString namedInRecipe(const QJsonObject& root, const QString& command, const QString& key, const JsonPlace& place)
{
    const bool isFirst = key == keys::Parameters[0];
    if (key == keys::UITitle) {
        return firstIn(root.value(keys::Representations), jsonPointer(keys::Representations), keys::Name, place.text);
    }
    if (command == keys::ToolSummaryCommand && isFirst) {
        return jsonPointer(keys::Tools, keys::SummaryTable, place.text);
    }
    if (command == keys::ToolProcessedDataCommand && isFirst) {
        return firstIn(root.value(keys::ProcessedData), jsonPointer(keys::ProcessedData), keys::Title, place.text);
    }
    if (command == keys::ToolStatisticsCommand && isFirst) {
        return jsonPointer(keys::Statistics, place.text);
    }
    if (command == keys::ToolStatisticsCommand && key == keys::Parameters[1]) {
        for (const auto& [otherKey, title] : place.texts) {
            if (otherKey == keys::Parameters[0]) {
                return firstIn(root.value(keys::Statistics).toObject().value(title),
                               jsonPointer(keys::Statistics, title), keys::Title, place.text);
            }
        }
    }
    return {};
}

/// The pointer to what defines the string at \p place; empty when nothing does.
QString definingPointer(const QJsonObject& root, const JsonPlace& place)
{
    if (place.isKey || !place.token.isString || place.text.isEmpty() || place.path.size() < 2) {
        return {};
    }
    const QString& section = place.path.constFirst().key;
    const QString& key = place.path.constLast().key;
    const QString& part = place.path.at(1).key;
    if (section == keys::Colors) {
        return firstIn(root.value(keys::Colors)[keys::CustomColors], jsonPointer(keys::Colors, keys::CustomColors),
                       keys::ColorName, place.text);
    }
    const SchemaPlace at = schemaAt(place);
    if (at.namesArray) {
        return axesReference(root, place.text, at.category);
    }
    return section == keys::Recipe ? namedInRecipe(root, part, key, place) : QString();
}

/// Where the string of \p token stands the next time, as a value; from the start again behind the end.
qsizetype nextMention(const QByteArray& text, const JsonToken& token)
{
    const QByteArray wanted = text.sliced(token.begin, token.end - token.begin);
    qsizetype first = -1;
    JsonScanner scanner(text);
    while (scanner.next()) {
        const JsonToken& each = scanner.token();
        const bool isMention = scanner.sign() == 0 && each.begin != token.begin && !scanner.isBeforeColon()
            && QByteArrayView(text).sliced(each.begin, each.end - each.begin) == wanted;
        if (isMention && each.begin > token.begin) {
            return each.begin;
        }
        first = isMention && first < 0 ? each.begin : first;
    }
    return first;
}

/// Whether \p root has a value at \p pointer.
bool exists(const QJsonObject& root, const QString& pointer)
{
    QJsonValue value = root;
    const QStringList steps = pointer.split(u'/').sliced(1);
    for (QString step : steps) {
        step.replace(u"~1"_s, u"/"_s).replace(u"~0"_s, u"~"_s);
        value = value.isArray() ? value[step.toLongLong()] : value[step];
    }
    return !value.isUndefined();
}

} // namespace

qsizetype definitionOf(const QByteArray& text, qsizetype offset)
{
    const QJsonDocument document = QJsonDocument::fromJson(text);
    if (!document.isObject()) {
        return -1;
    }
    const JsonPlace place = placeAt(text, offset);
    const QJsonObject root = document.object();
    const QString pointer = definingPointer(root, place);
    if (pointer.isEmpty() || !exists(root, pointer)) {
        return -1;
    }
    const qsizetype found = cluiconfig::check::offsetOf(text, root, pointer);
    return found == place.token.begin ? nextMention(text, place.token) : found;
}

} // namespace cluiedit
