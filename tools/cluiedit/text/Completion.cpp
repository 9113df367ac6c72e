#include "Completion.h"

#include "JsonPlace.h"
#include "SchemaPlace.h"

#include <base/DocumentKeys.h>
#include <cluiedit/reading/Catalogue.h>
#include <search/FtsStrategy.h>
#include <search/FuzzyFinder.h>

#include <QJsonArray>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

using namespace Qt::StringLiterals;
namespace keys = uiconfig::keys;

namespace cluiedit {

namespace {

constexpr qsizetype LongestQuery = 256; // nobody types more to find a name

QStringList categoriesOf(const QString& name)
{
    QStringList categories;
    for (const auto* array : catalogue().getConfigDataArrays(name)) {
        categories.append(array->getCategory());
    }
    return categories;
}

Candidate word(const QString& text, const QString& note = {})
{
    return {QString::fromUtf8(jsonString(text)), text, note};
}

/// What \p schema says of itself, in a few words.
QString noteOn(const QJsonObject& schema)
{
    const QString title = schema.value("title"_L1).toString();
    const QString description = schema.value("description"_L1).toString();
    return title.isEmpty() ? description.section(u". "_s, 0, 0) : title;
}

QStringList strings(const QJsonValue& list)
{
    return list.toVariant().toStringList();
}

/// Whether an object with \p schema must not lose \p key, or not every time.
bool isNeeded(const QString& key, const QJsonObject& schema)
{
    const QJsonArray choices = schema.value("anyOf"_L1).toArray();
    return strings(schema.value("required"_L1)).contains(key)
        || std::any_of(choices.begin(), choices.end(), [&](const auto& choice) {
               return strings(choice.toObject().value("required"_L1)).contains(key);
           });
}

/// What kind of value \p token begins, as schemas call it.
QString typeOf(const JsonToken& token, const QString& text)
{
    return token.isString ? u"string"_s : text == u"true" || text == u"false" ? u"boolean"_s : u"number"_s;
}

/// Makes a list of all that may stand at one place.
class Collector
{
public:
    Collector(QByteArrayView text, const JsonPlace& place, const uiconfig::Configuration& lastGood)
        : m_text(text)
        , m_place(place)
        , m_at(schemaAt(place))
        , m_lastGood(lastGood)
    {
    }

    QList<Candidate> collect()
    {
        if (m_place.isKey) {
            addKeys();
        } else if (m_at.namesCategory) {
            addCategories();
        } else if (m_at.namesArray) {
            addArrays();
        } else {
            addWords();
            addNames();
        }
        return std::move(m_list);
    }

private:
    void addKeys()
    {
        if (isNeeded(m_place.text, m_at.schema) && m_place.hasColon) {
            addKey(m_place.text);
            return;
        }
        QStringList known = m_at.schema.value("properties"_L1).toObject().keys();
        known += strings(m_at.schema.value("propertyNames"_L1).toObject().value("enum"_L1));
        if (m_at.namesCategory) {
            known += catalogue().getCategories();
        }
        for (const QString& key : std::as_const(known)) {
            if (!m_place.keys.contains(key) && (key == m_place.text || fitsValue(key))) {
                addKey(key);
            }
        }
    }

    void addKey(const QString& key)
    {
        Candidate candidate = word(key, noteOn(memberSchema(m_at.schema, key)));
        if (!m_place.hasColon) {
            candidate.text += u": "_s;
        }
        m_list.append(candidate);
    }

    /// Whether the value that stands behind the key at the place may stand behind \p key as well.
    bool fitsValue(const QString& key) const
    {
        const QString type = memberSchema(m_at.schema, key).value("type"_L1).toString();
        if (!m_place.value.exists()) {
            const QString before = memberSchema(m_at.schema, m_place.text).value("type"_L1).toString();
            return !m_place.hasColon || before.isEmpty() || before == type;
        }
        const QString value = tokenText(m_text.sliced(m_place.value.begin, m_place.value.end - m_place.value.begin));
        JsonPlace there = m_place;
        there.isKey = false;
        there.path.append({key});
        const SchemaPlace schema = schemaAt(there);
        if (schema.namesArray) {
            return !categoriesOf(value).isEmpty();
        }
        if (schema.namesCategory) {
            return catalogue().getCategories().contains(value);
        }
        return type.isEmpty() || type == typeOf(m_place.value, value);
    }

    void addCategories()
    {
        QStringList names;
        for (const auto& [key, text] : m_place.texts) {
            if (m_at.arrayKeys.contains(key) && !categoriesOf(text).isEmpty()) {
                names.append(text);
            }
        }
        const auto holds = [](const QString& category) {
            return [&category](const QString& name) { return categoriesOf(name).contains(category); };
        };
        QStringList all = catalogue().getCategories();
        if (!names.isEmpty()) {
            all.removeIf([&](const QString& each) { return std::ranges::none_of(names, holds(each)); });
            const auto holdsAll = [&](const QString& each) { return std::ranges::all_of(names, holds(each)); };
            if (std::ranges::any_of(all, holdsAll)) {
                all.removeIf([&](const QString& each) { return !holdsAll(each); });
            }
        }
        for (const QString& category : std::as_const(all)) {
            m_list.append(word(category));
        }
    }

    void addArrays()
    {
        const bool isKnown = catalogue().getCategories().contains(m_at.category);
        QStringList names;
        for (const auto* array : catalogue().getAll()) {
            if (!isKnown || array->getCategory() == m_at.category) {
                names.append(array->getName());
            }
        }
        names.removeDuplicates();
        for (const QString& name : std::as_const(names)) {
            if (!isListed(name)) {
                m_list.append(word(name, categoriesOf(name).join(u", "_s)));
            }
        }
    }

    /// Whether the list around the place has \p name already.
    bool isListed(const QString& name) const
    {
        if (m_place.path.size() < 2 || m_place.path.constLast().isKey()) {
            return false;
        }
        const QString& key = m_place.path.at(m_place.path.size() - 2).key;
        return m_place.texts.contains(std::pair(key, name));
    }

    /// What the schema lists.
    void addWords()
    {
        for (const QString& each : strings(m_at.schema.value("enum"_L1))) {
            if (!isListed(each)) {
                m_list.append(word(each));
            }
        }
        const QJsonValue constant = m_at.schema.value("const"_L1);
        if (constant.isDouble()) {
            const QString number = QString::number(constant.toInt());
            m_list.append({number, number, {}});
        }
        if (m_at.schema.value("type"_L1) == u"boolean"_s) {
            m_list.append({u"true"_s, u"true"_s, {}});
            m_list.append({u"false"_s, u"false"_s, {}});
        }
    }

    /// Names that other parts of the document give.
    void addNames()
    {
        if (m_place.path.size() < 3 || !m_place.path.constLast().isKey()) {
            return;
        }
        const QString& section = m_place.path.constFirst().key;
        const QString& part = m_place.path.at(1).key;
        const QString& key = m_place.path.constLast().key;
        if (section == keys::Colors && part == keys::DefaultColors) {
            for (const auto& [name, color] : m_lastGood.colors.custom) {
                m_list.append(word(name, color.name()));
            }
        } else if (section == keys::Representations && key == keys::Category) {
            QStringList headings;
            for (const ConfigRepresentation& each : m_lastGood.representations) {
                headings.append(each.category());
            }
            headings.removeDuplicates();
            headings.removeAll(QString());
            addAll(headings);
        } else if (section == keys::Recipe) {
            addTitles(part, key);
        }
    }

    /// What the parameter \p key of an entry of \p command may name.
    void addTitles(const QString& command, const QString& key)
    {
        const bool isFirst = key == keys::Parameters[0];
        if (command == keys::ToolSummaryCommand && isFirst) {
            addAll(QStringList(keys::SummaryTableKinds.begin(), keys::SummaryTableKinds.end()));
        } else if (command == keys::ToolStatisticsCommand) {
            for (const StatisticsItem& graph : m_lastGood.statistics) {
                if (isFirst) {
                    m_list.append(word(graph.getTitle()));
                } else if (key == keys::Parameters[1]
                           && m_place.texts.contains(std::pair(QString(keys::Parameters[0]), graph.getTitle()))) {
                    addAll(graph.getGraphItemsTitleList());
                }
            }
        } else if (command == keys::ToolProcessedDataCommand && isFirst) {
            for (const ProcessedDataItem& graph : m_lastGood.processedData) {
                m_list.append(word(graph.getTitle()));
            }
        }
    }

    void addAll(const QStringList& texts)
    {
        for (const QString& each : texts) {
            m_list.append(word(each));
        }
    }

    QByteArrayView m_text;
    const JsonPlace& m_place;
    SchemaPlace m_at;
    const uiconfig::Configuration& m_lastGood;
    QList<Candidate> m_list;
};

/// Those of \p all that \p typed may mean: what begins so, then what has all the words, then what has the letters.
QList<Candidate> ranked(const QList<Candidate>& all, const QString& typed)
{
    const QStringList words = typed.split(u' ', Qt::SkipEmptyParts);
    if (words.isEmpty()) {
        return all;
    }
    QList<Candidate> beginning;
    QList<Candidate> holding;
    QList<Candidate> others;
    std::vector<std::string> labels; // of the others
    for (const Candidate& each : all) {
        const auto holds = [&](const QString& part) { return each.label.contains(part, Qt::CaseInsensitive); };
        if (each.label.startsWith(typed, Qt::CaseInsensitive)) {
            beginning.append(each);
        } else if (std::ranges::all_of(words, holds)) {
            holding.append(each);
        } else {
            others.append(each);
            labels.push_back(each.label.toStdString());
        }
    }
    QList<Candidate> result = beginning + holding;
    if (typed.size() <= LongestQuery) {
        for (const std::size_t index :
             FuzzyFinder::search(words.join(QString()).toStdString(), labels, -1, std::make_unique<FtsStrategy>())) {
            result.append(others.at(static_cast<qsizetype>(index)));
        }
    }
    return result;
}

} // namespace

Candidates candidates(const QByteArray& text, qsizetype offset, const uiconfig::Configuration& lastGood)
{
    const JsonPlace place = placeAt(text, offset);
    Candidates result;
    result.begin = offset;
    result.end = offset;
    if (place.token.exists()) {
        const JsonToken& token = place.token;
        result.begin = token.begin;
        result.end = token.end;
        result.typed = tokenText(QByteArrayView(text).sliced(token.begin, offset - token.begin));
        result.isOpen = token.isString && offset > token.begin && (offset < token.end || !token.isClosed);
    }
    result.list = ranked(Collector(text, place, lastGood).collect(), result.typed);
    return result;
}

} // namespace cluiedit
