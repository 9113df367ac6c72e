#include <search/NarrowingSearch.h>

#include "private/Ascii.h"
#include "private/FtsScorer.h"
#include "private/Ranking.h"
#include "private/TechniqueScorer.h"

#include <optional>
#include <string_view>
#include <utility>

namespace {

using Candidates = std::vector<std::string>;

/// What matched a query, by ascending index.
struct Level
{
    std::string query;
    std::vector<FuzzyMatch> matches;
};

} // namespace

class NarrowingSearch::Rule
{
public:
    explicit Rule(Candidates candidates)
        : m_candidates(std::move(candidates))
    {
    }
    virtual ~Rule() = default;

    std::vector<std::size_t> search(const std::string& query, int maxResults)
    {
        const std::optional<std::string> letters = lettersOf(query);
        if (!letters) {
            return {};
        }
        while (m_depth > 0 && !letters->starts_with(m_levels[m_depth - 1].query)) {
            --m_depth;
        }
        if (m_depth == 0 || m_levels[m_depth - 1].query != *letters) {
            if (m_depth == m_levels.size()) {
                m_levels.emplace_back();
            }
            Level& level = m_levels[m_depth];
            level.query = *letters;
            level.matches.clear();
            match(*letters, m_candidates, m_depth == 0 ? nullptr : &m_levels[m_depth - 1], level.matches);
            ++m_depth;
        }
        return search::firstOf(search::indicesBestFirst(m_levels[m_depth - 1].matches), maxResults);
    }

private:
    /// The letters that \p query looks for, such that whatever matches them matches every beginning of them; nothing if
    /// no text matches.
    virtual std::optional<std::string> lettersOf(const std::string& query) const = 0;

    /// Adds what matches \p letters to \p matches: of \p before, which matched a beginning of them, or of all
    /// candidates.
    virtual void match(const std::string& letters, const Candidates& candidates, const Level* before,
                       std::vector<FuzzyMatch>& matches) = 0;

    Candidates m_candidates;
    // The query of each of the first m_depth levels is a beginning of the next. The others keep their memory: to get it
    // from the system again would cost as much as the search.
    std::vector<Level> m_levels;
    std::size_t m_depth = 0;
};

class NarrowingSearch::TechniqueRule final : public Rule
{
public:
    using Rule::Rule;

private:
    using Path = search::TechniqueScorer::Path;

    std::optional<std::string> lettersOf(const std::string& query) const override { return search::toLower(query); }

    void match(const std::string& letters, const Candidates& candidates, const Level* before,
               std::vector<FuzzyMatch>& matches) override
    {
        const search::TechniqueScorer scorer(letters);
        if (before == nullptr) {
            search::addMatches(letters, candidates, scorer, matches);
            m_lettersOfPaths.reset(); // for one letter, which is what most begin with, paths are not worth their memory
            return;
        }
        const bool isNext = m_lettersOfPaths == before->query;
        const std::size_t found = isNext ? before->query.size() : 0;
        m_lettersOfPaths.reset();
        if (!isNext) {
            m_paths.assign(before->matches.size(), Path());
        }
        matches.resize(before->matches.size());
        std::size_t count = 0;
        for (std::size_t i = 0; i < before->matches.size(); ++i) {
            const std::size_t index = before->matches[i].index;
            const std::string_view text = candidates[index];
            Path path = m_paths[i];
            int score = 0;
            if (scorer.canFollow(text)) {
                if (!scorer.follow(path, found, text)) {
                    continue;
                }
                score = scorer.scoreOf(path, text);
            } else if (const std::optional<int> other = scorer.score(text)) {
                score = *other;
            } else {
                continue;
            }
            m_paths[count] = path;
            matches[count++] = {index, score};
        }
        matches.resize(count);
        m_paths.resize(count);
        m_lettersOfPaths = letters;
    }

    std::optional<std::string> m_lettersOfPaths;
    std::vector<Path> m_paths; // of those letters, for each text that has them
};

class NarrowingSearch::TextRule final : public Rule
{
public:
    using Rule::Rule;

private:
    std::optional<std::string> lettersOf(const std::string& query) const override
    {
        const std::string_view letters = search::ftsQuery(query);
        // No text matches an empty query, though it is a beginning of all.
        return letters.empty() ? std::nullopt : std::optional(search::toLower(letters));
    }

    void match(const std::string& letters, const Candidates& candidates, const Level* before,
               std::vector<FuzzyMatch>& matches) override
    {
        const search::FtsScorer scorer(letters);
        if (before == nullptr) {
            search::addMatches(letters, candidates, scorer, matches);
            return;
        }
        std::vector<std::string_view> texts;
        texts.reserve(before->matches.size());
        for (const FuzzyMatch& match : before->matches) {
            texts.push_back(candidates[match.index]);
        }
        search::addMatches(letters, texts, scorer, matches);
        for (FuzzyMatch& match : matches) {
            match.index = before->matches[match.index].index;
        }
    }
};

NarrowingSearch::NarrowingSearch(std::vector<std::string> candidates, Strategy strategy)
{
    if (strategy == Strategy::Technique) {
        m_rule = std::make_unique<TechniqueRule>(std::move(candidates));
    } else {
        m_rule = std::make_unique<TextRule>(std::move(candidates));
    }
}

NarrowingSearch::NarrowingSearch(NarrowingSearch&& other) noexcept = default;
NarrowingSearch& NarrowingSearch::operator=(NarrowingSearch&& other) noexcept = default;
NarrowingSearch::~NarrowingSearch() = default;

std::vector<std::size_t> NarrowingSearch::search(const std::string& query, int maxResults)
{
    return m_rule ? m_rule->search(query, maxResults) : std::vector<std::size_t>();
}
