#include "Findings.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace cluiconfig::check {

namespace {

/// Keys in the order in which the loader reads them, as far as it is not the alphabetical one.
qint64 readingRank(const QString& key)
{
    static const QStringList order{
        u"Version"_s,
        u"Axes combinations"_s,
        u"Representations"_s,
        u"MSVUnits"_s,
        u"Filters"_s,
        u"Tools"_s,
        u"Colors"_s,
        u"Statistics"_s,
        u"Ragone Plot"_s,
        u"Processed Data"_s,
        u"Recipe"_s,
        u"Process Formula"_s,
        u"dQ_dU"_s,
        u"Debug"_s,
        u"Per step"_s,
        u"Per cycle"_s,
        u"Per loop"_s,
        u"Custom colors"_s,
        u"Default colors"_s,
        u"GraphCommand"_s,
        u"ToolSummaryCommand"_s,
        u"ToolStatisticsCommand"_s,
        u"ToolProcessedDataCommand"_s,
        u"Name"_s,
        u"X"_s,
        u"Y1"_s,
        u"Y2"_s,
    };
    const qsizetype rank = order.indexOf(key);
    return rank < 0 ? order.size() : rank;
}

bool isEarlier(const Finding& a, const Finding& b)
{
    return std::pair(a.offset, a.sequence) < std::pair(b.offset, b.sequence);
}

} // namespace

LoadOrder Findings::loadOrder(const Value& place, const QString& missingKey, qint64 step)
{
    constexpr size_t EntryOfASection = 2;
    constexpr size_t CategoryOfASummaryTable = 3;
    const std::vector<Value::Step> path = place.path();
    const bool isInTools = !path.empty() && path.front().key == u"Tools"_s;
    LoadOrder order;
    for (size_t depth = 0; depth < path.size(); ++depth) {
        const Value::Step& each = path[depth];
        if (depth == EntryOfASection) {
            order.emplace_back(step, QString());
        }
        if (each.isElement) {
            order.emplace_back(each.number, QString());
        } else if (isInTools && depth == CategoryOfASummaryTable) {
            order.emplace_back(0, each.key); // any name may stand there: the alphabet decides
        } else {
            order.emplace_back(readingRank(each.key), each.key);
        }
    }
    if (!missingKey.isEmpty()) {
        if (path.size() == EntryOfASection) {
            order.emplace_back(step, QString());
        }
        order.emplace_back(readingRank(missingKey), missingKey);
    }
    return order;
}

bool Findings::comesFirst(LoadOrder order)
{
    if (m_firstError && order >= m_firstErrorOrder) {
        return false;
    }
    m_firstErrorOrder = std::move(order);
    return true;
}

bool Findings::isKept(Rule rule, Severity severity, qsizetype offset)
{
    OfRule& ofRule = m_ofRule[rule];
    ++ofRule.count;
    ofRule.worst = std::max(ofRule.worst, severity);
    return std::ssize(ofRule.kept) < MostOfARule || offset < ofRule.kept.front().offset;
}

void Findings::keep(const Finding& finding)
{
    // A heap with the last one of the document in front.
    std::vector<Finding>& kept = m_ofRule[finding.rule].kept;
    kept.push_back(finding);
    kept.back().sequence = m_ofRule[finding.rule].count;
    std::push_heap(kept.begin(), kept.end(), isEarlier);
    if (std::ssize(kept) > MostOfARule) {
        std::pop_heap(kept.begin(), kept.end(), isEarlier);
        kept.pop_back();
    }
}

void Findings::add(const Finding& finding)
{
    if (finding.severity == Severity::Error && !m_firstError) {
        m_firstError = finding;
    }
    if (isKept(finding.rule, finding.severity, finding.offset)) {
        keep(finding);
    }
}

QList<Finding> Findings::list() const
{
    QList<Finding> all;
    for (const auto& [rule, ofRule] : m_ofRule) {
        for (const Finding& finding : ofRule.kept) {
            all.append(finding);
        }
        const qsizetype others = ofRule.count - std::ssize(ofRule.kept);
        if (others > 0) {
            Finding summary = ofRule.kept.front();
            summary.severity = ofRule.worst;
            summary.message = u"%1 more findings of this rule follow, %2 in all."_s.arg(others).arg(ofRule.count);
            all.append(summary);
        }
    }
    std::stable_sort(all.begin(), all.end(), isEarlier);
    if (m_firstError) {
        const auto isFirstError = [this](const Finding& finding) {
            return finding.rule == m_firstError->rule && finding.pointer == m_firstError->pointer
                && finding.message == m_firstError->message;
        };
        all.removeIf(isFirstError);
        all.prepend(*m_firstError);
    }
    return all;
}

} // namespace cluiconfig::check
