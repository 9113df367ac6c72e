#include "LoaderPlace.h"

#include <axes/AxesCombinationManager.h>

#include <QJsonArray>
#include <QRegularExpression>

#include <algorithm>
#include <initializer_list>
#include <iterator>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

QJsonArray elements(const QJsonObject& document, const QString& section)
{
    return document.value(section).toArray();
}

/// The first element of \p array that \p isIt accepts; its size if there is none.
template <typename Predicate>
qsizetype firstOf(const QJsonArray& array, Predicate isIt)
{
    return std::distance(array.begin(), std::find_if(array.begin(), array.end(), isIt));
}

/// The axes combination that the application's own reader refuses first.
qsizetype refusedAxesCombination(const QJsonObject& document)
{
    AxesCombinationManager manager;
    return firstOf(elements(document, u"Axes combinations"_s), [&](const QJsonValue& entry) {
        QString error;
        return !entry.isObject() || !manager.readAxesCombination(entry.toObject(), error);
    });
}

QString escaped(const QString& text)
{
    return QRegularExpression::escape(QString(text).replace(u'~', u"~0"_s).replace(u'/', u"~1"_s));
}

/// The place of a reference to \p name and \p category among those of \p key, in the entry that is refused.
QString referencePlace(const QJsonObject& document, const QString& key, const QString& name, const QString& category)
{
    const qsizetype entry = refusedAxesCombination(document);
    const QJsonArray references = elements(document, u"Axes combinations"_s).at(entry).toObject().value(key).toArray();
    const qsizetype reference = firstOf(references, [&](const QJsonValue& each) {
        return each.toObject().value("Name"_L1).toString() == name
            && each.toObject().value("Category"_L1).toString() == category;
    });
    return u"/Axes combinations/%1/%2/%3"_s.arg(QString::number(entry), escaped(key), QString::number(reference));
}

QString axesPlace(const QString& message, const QJsonObject& document)
{
    static const QRegularExpression unknown(u"^Unexpected axes combination (X|Y1/Y2): (.*) \\((.*)\\)$"_s,
                                            QRegularExpression::DotMatchesEverythingOption);
    if (const auto match = unknown.match(message); match.hasMatch()) {
        return referencePlace(document, match.captured(1), match.captured(2), match.captured(3));
    }
    QString entry = u"/Axes combinations/%1"_s.arg(refusedAxesCombination(document));
    if (message == "Axes combination is not Json object"_L1) {
        return entry;
    }
    if (message == "Unexpected axes combination X"_L1) {
        return entry + u"/X"_s;
    }
    return entry
        + (message == "Unexpected axes combination default scale"_L1 ? u"/DEFAULT_SCALE_[XY]"_s
                                                                     : u"/ORTHONORMAL_AXIS"_s);
}

/// Representations have their names in the messages, except those without one.
QString representationPlace(const QString& message, const QJsonObject& document)
{
    const auto nameOf = [](const QJsonValue& each) { return each.toObject().value("Name"_L1).toString(); };
    const auto textOf = [](const QJsonValue& each, const QString& key) {
        return each.toObject().value(key).toString();
    };
    const QJsonArray all = elements(document, u"Representations"_s);
    const auto place = [](qsizetype index, const QString& rest) {
        return u"/Representations/%1%2"_s.arg(index).arg(rest);
    };
    if (message == "No name set for representation"_L1) {
        return place(firstOf(all, [&](const QJsonValue& each) { return nameOf(each).isEmpty(); }), u"/Name"_s);
    }
    for (const QString& key : {u"Y1"_s, u"Y2"_s}) {
        const QString start = u"Unexpected %1 "_s.arg(key);
        if (message.startsWith(start)) {
            const QString name = message.sliced(start.size());
            return place(firstOf(all, [&](const QJsonValue& each) { return textOf(each, key) == name; }), u'/' + key);
        }
    }
    // Of several representations with the name, the message does not say which.
    const QString name = message.section(u"for representation "_s, 1);
    const auto hasName = [&](const QJsonValue& each) { return nameOf(each) == name; };
    const QString rest = message.startsWith("X not set"_L1) ? u"/X"_s : QString();
    return std::count_if(all.begin(), all.end(), hasName) == 1 ? place(firstOf(all, hasName), rest)
                                                               : u"/Representations/\\d+"_s + rest;
}

QString colorPlace(const QString& message, const QJsonObject& document)
{
    const QJsonArray palette = document.value("Colors"_L1).toObject().value("Custom colors"_L1).toArray();
    const qsizetype index = firstOf(palette, [&](const QJsonValue& each) {
        return !each.isObject() || each.toObject().value("RGB"_L1).toArray().size() != 3;
    });
    return u"/Colors/Custom colors/%1%2"_s.arg(QString::number(index),
                                               message == "Color is not a Json object"_L1 ? QString() : u"/RGB"_s);
}

QString summaryPlace(const QJsonObject& document)
{
    const QJsonObject table = document.value("Tools"_L1).toObject().value("Summary Table"_L1).toObject();
    for (const QString& kind : {u"Per step"_s, u"Per cycle"_s, u"Per loop"_s}) {
        const QJsonObject categories = table.value(kind).toObject();
        for (auto it = categories.begin(); it != categories.end(); ++it) {
            if (!it.value().isArray()) {
                return u"/Tools/Summary Table/%1/%2"_s.arg(kind, escaped(it.key()));
            }
        }
    }
    return {};
}

/// A regular expression for the pointer.
QString expectedPlace(const QString& message, const QJsonObject& document)
{
    const std::initializer_list<std::pair<QString, QString>> sections = {
        {u"Axes combinations array missing"_s, u"/Axes combinations"_s},
        {u"Representations array missing"_s, u"/Representations"_s},
        {u"Multi units combinations array missing"_s, u"/MSVUnits"_s},
        {u"Missing colors configuration node"_s, u"/Colors"_s},
        {u"Custom colors is not an array node"_s, u"/Colors/Custom colors"_s},
        {u"Default colors is not an object node"_s, u"/Colors/Default colors"_s},
        {u"Missing statistics graphs configuration node"_s, u"/Statistics"_s},
        {u"Missing Ragone Plot graphs configuration node"_s, u"/Ragone Plot"_s},
        {u"Missing recipe node"_s, u"/Recipe"_s},
        {u"GraphCommand command is not a Json array"_s, u"/Recipe/GraphCommand"_s},
        {u"ToolSummaryCommand command is not a Json array"_s, u"/Recipe/ToolSummaryCommand"_s},
        {u"ToolStatisticsCommand command is not a Json array"_s, u"/Recipe/ToolStatisticsCommand"_s},
        {u"ToolProcessedDataCommand command is not a Json array"_s, u"/Recipe/ToolProcessedDataCommand"_s},
        {u"Missing Process Formula configuration node"_s, u"/Process Formula"_s},
        {u"Missing dQ/dU node"_s, u"/dQ_dU"_s},
        {u"Missing dQ/dU table configuration node"_s, u"/dQ_dU/Table"_s},
    };
    for (const auto& [text, place] : sections) {
        if (message == text) {
            return place;
        }
    }
    if (message.startsWith("The format version"_L1)) {
        return u"/Version"_s;
    }
    if (message == "Missing processed data graphs configuration node"_L1) {
        const QJsonArray graphs = elements(document, u"Processed Data"_s);
        const qsizetype index = firstOf(graphs, [](const QJsonValue& each) { return !each.isObject(); });
        return index == graphs.size() ? u"/Processed Data"_s : u"/Processed Data/%1"_s.arg(index);
    }
    if (message.startsWith("Unexpected axes"_L1) || message.startsWith("Axes combination"_L1)) {
        return axesPlace(message, document);
    }
    if (message.startsWith("Color "_L1)) {
        return colorPlace(message, document);
    }
    if (message.startsWith("Summary table"_L1)) {
        return summaryPlace(document);
    }
    return representationPlace(message, document);
}

} // namespace

bool isPlaceOf(const QString& message, const QJsonObject& document, const QString& pointer)
{
    const QRegularExpression place(QRegularExpression::anchoredPattern(expectedPlace(message, document)));
    return place.match(pointer).hasMatch();
}
