#include "FindEntries.h"

#include <base/DocumentKeys.h>
#include <base/JsonPointer.h>
#include <cluiedit/reading/Catalogue.h>

#include <QCoreApplication>
#include <QHash>
#include <QJsonArray>
#include <QSet>

#include <algorithm>
#include <array>
#include <numeric>
#include <string>

using namespace Qt::StringLiterals;
namespace keys = uiconfig::keys;

namespace cluiedit {

namespace {

/// What names something for people instead of naming an array.
constexpr std::array NoArrays{keys::Category, keys::Title, keys::UITitle, keys::Type, keys::ColorName};

/// Texts of the document that may name arrays, and where each stands first: in a reference of the axes combinations, or
/// else anywhere.
class Places
{
public:
    explicit Places(const QJsonObject& root)
    {
        const QJsonArray entries = root.value(keys::AxesCombinations).toArray();
        qsizetype index = 0;
        for (const auto& entry : entries) {
            for (const QLatin1StringView axis : {keys::X, keys::Y1Y2}) {
                add(entry.toObject().value(axis), jsonPointer(keys::AxesCombinations, index, axis));
            }
            ++index;
        }
        for (auto it = root.begin(); it != root.end(); ++it) {
            if (it.key() != keys::AxesCombinations) {
                add(it.value(), jsonPointer(it.key()));
            }
        }
    }

    QString of(const QString& text) const { return m_places.value(text); }

private:
    void add(const QJsonValue& value, const QString& pointer)
    {
        if (value.isString()) {
            if (!m_places.contains(value.toString())) {
                m_places.insert(value.toString(), pointer);
            }
        } else if (value.isArray()) {
            const QJsonArray elements = value.toArray();
            qsizetype index = 0;
            for (const auto& element : elements) {
                add(element, pointer + jsonPointer(index++));
            }
        } else if (value.isObject()) {
            const QJsonObject members = value.toObject();
            for (auto it = members.begin(); it != members.end(); ++it) {
                if (std::ranges::find(NoArrays, it.key()) == NoArrays.end()) {
                    add(it.value(), pointer + jsonPointer(it.key()));
                }
            }
        }
    }

    QHash<QString, QString> m_places;
};

/// Appends entries that have a name.
struct Collector
{
    void add(const QString& text, FindKind kind, const QString& pointer)
    {
        if (!text.isEmpty()) {
            entries.append({text, kind, pointer});
        }
    }

    void addArrays(const Snapshot& snapshot)
    {
        const Places places(snapshot.root());
        QSet<QString> known;
        const auto addOnce = [&](const QString& name) {
            if (!known.contains(name)) {
                known.insert(name);
                add(name, FindKind::Array, places.of(name));
            }
        };
        for (const AxesCombination& pair : snapshot.axes().getAxesCombinations()) {
            addOnce(pair.getConfigX().getName());
            addOnce(pair.getConfigY().getName());
        }
        for (const auto* array : catalogue().getAll()) {
            addOnce(array->getName());
        }
    }

    template <typename Graph>
    void addGraphs(const QList<Graph>& graphs, QLatin1StringView section)
    {
        for (const Graph& graph : graphs) {
            add(graph.getTitle(), FindKind::Graph, jsonPointer(section, graph.getTitle()));
        }
    }

    void addRecipe(const uiconfig::Recipe& recipe)
    {
        QHash<QString, qsizetype> counts; // of the entries of each command so far
        for (const auto* list : {&recipe.graphCombinations, &recipe.toolsTables, &recipe.toolsGraphs}) {
            for (const uiconfig::RecipeEntry& entry : *list) {
                add(entry.title, FindKind::RecipeEntry,
                    jsonPointer(keys::Recipe, entry.command, counts[entry.command]++));
            }
        }
    }

    QList<FindEntry> entries{};
};

/// Of equally good ones the finder takes the later one first.
std::vector<std::string> textsFromTheLast(const QList<FindEntry>& entries)
{
    std::vector<std::string> texts;
    texts.reserve(static_cast<std::size_t>(entries.size()));
    std::for_each(entries.rbegin(), entries.rend(),
                  [&texts](const FindEntry& entry) { texts.push_back(entry.text.toStdString()); });
    return texts;
}

char16_t folded(QChar sign)
{
    return sign >= u'A' && sign <= u'Z' ? static_cast<char16_t>(sign.unicode() + ('a' - 'A')) : sign.unicode();
}

} // namespace

QString kindName(FindKind kind)
{
    switch (kind) {
    case FindKind::Array:
        return QCoreApplication::translate("cluiedit::FindAnything", "Data array");
    case FindKind::Representation:
        return QCoreApplication::translate("cluiedit::FindAnything", "Representation");
    case FindKind::Color:
        return QCoreApplication::translate("cluiedit::FindAnything", "Colour");
    case FindKind::Graph:
        return QCoreApplication::translate("cluiedit::FindAnything", "Graph");
    case FindKind::RecipeEntry:
        return QCoreApplication::translate("cluiedit::FindAnything", "Recipe entry");
    case FindKind::Section:
        return QCoreApplication::translate("cluiedit::FindAnything", "Section");
    }
    return {};
}

QList<FindEntry> findEntries(const Snapshot& snapshot)
{
    const uiconfig::Configuration& configuration = snapshot.configuration();
    Collector all;
    all.addArrays(snapshot);
    qsizetype index = 0;
    for (const ConfigRepresentation& representation : configuration.representations) {
        all.add(representation.name(), FindKind::Representation, jsonPointer(keys::Representations, index++));
    }
    index = 0;
    for (const auto& [name, color] : configuration.colors.custom) {
        all.add(name, FindKind::Color, jsonPointer(keys::Colors, keys::CustomColors, index++));
    }
    all.addGraphs(configuration.statistics, keys::Statistics);
    all.addGraphs(configuration.ragonePlots, keys::RagonePlot);
    index = 0;
    for (const ProcessedDataItem& graph : configuration.processedData) {
        all.add(graph.getTitle(), FindKind::Graph, jsonPointer(keys::ProcessedData, index++));
    }
    if (configuration.dQdU.graph) {
        all.add(configuration.dQdU.graph->getTitle(), FindKind::Graph, jsonPointer(keys::DQdU, keys::Graph));
    }
    all.addRecipe(configuration.recipe);
    for (const uiconfig::Section& section : uiconfig::sections()) {
        if (snapshot.root().contains(section.key)) {
            all.add(section.key, FindKind::Section, jsonPointer(section.key));
        }
    }
    return all.entries;
}

FindIndex::FindIndex(const QList<FindEntry>& entries)
    : m_count(entries.size())
    , m_search(textsFromTheLast(entries), NarrowingSearch::Strategy::Technique)
{
}

std::vector<qsizetype> FindIndex::find(const QString& query)
{
    std::vector<qsizetype> numbers(query.isEmpty() ? static_cast<std::size_t>(m_count) : 0);
    if (query.isEmpty()) {
        std::iota(numbers.begin(), numbers.end(), 0);
        return numbers;
    }
    for (const std::size_t found : m_search.search(query.toStdString())) {
        numbers.push_back(m_count - 1 - static_cast<qsizetype>(found));
    }
    return numbers;
}

QList<qsizetype> matchedPlaces(const QString& query, const QString& text)
{
    const auto isSame = [](QChar a, QChar b) { return folded(a) == folded(b); };
    QList<qsizetype> places;
    const auto* from = std::search(text.begin(), text.end(), query.begin(), query.end(), isSame);
    const bool isWhole = from != text.end();
    from = isWhole ? from : text.begin();
    for (const QChar letter : query) {
        from = std::find_if(from, text.end(), [&](QChar sign) { return isSame(sign, letter); });
        if (from == text.end()) {
            return {};
        }
        places.append(from - text.begin());
        ++from;
    }
    return places;
}

} // namespace cluiedit
