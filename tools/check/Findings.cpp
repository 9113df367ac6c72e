#include "private/Findings.h"

#include <algorithm>
#include <tuple>
#include <utility>

using namespace Qt::StringLiterals;

namespace cluiconfig::check {

Findings::Findings(const uiconfig::Refusals& refusals, const Value& root, Subject subject)
    : m_refusals(refusals)
    , m_subject(subject)
    , m_refused(refusals, root)
{
}

QString Findings::refuses() const
{
    return m_subject == Subject::Catalogue ? u"the application refuses the catalogue"_s : Refuses;
}

bool Findings::explain(RefusedPlaces::Refused& refused)
{
    return !std::exchange(refused.isExplained, true) && refused.index == 0;
}

bool Findings::isEarlier(const Kept& a, const Kept& b)
{
    return std::tie(a.finding.offset, a.sequence) < std::tie(b.finding.offset, b.sequence);
}

bool Findings::isKept(Rule rule, Severity severity, qsizetype offset)
{
    OfRule& ofRule = m_ofRule[rule];
    ++ofRule.count;
    ofRule.worst = std::max(ofRule.worst, severity);
    return !ofRule.isFull || offset < ofRule.kept.front().finding.offset;
}

Finding Findings::made(Rule rule, Severity severity, qsizetype offset, const QString& pointer, const Advice& advice)
{
    return {rule, severity, offset, pointer, advice.text, advice.instead};
}

void Findings::keep(const Finding& finding)
{
    // A heap with the last one of the document in front.
    OfRule& ofRule = m_ofRule[finding.rule];
    ofRule.kept.push_back({finding, ofRule.count});
    ofRule.pointerSize += finding.pointer.size();
    std::push_heap(ofRule.kept.begin(), ofRule.kept.end(), isEarlier);
    const auto isTooMuch = [&] {
        return std::ssize(ofRule.kept) > MostOfARule
            || (ofRule.pointerSize > LongestPointers && ofRule.kept.size() > 1);
    };
    while (isTooMuch()) {
        std::pop_heap(ofRule.kept.begin(), ofRule.kept.end(), isEarlier);
        ofRule.pointerSize -= ofRule.kept.back().finding.pointer.size();
        ofRule.kept.pop_back();
        ofRule.isFull = true;
    }
}

void Findings::add(const Finding& finding)
{
    if (isKept(finding.rule, finding.severity, finding.offset)) {
        keep(finding);
    }
}

void Findings::addUnexplained()
{
    for (const auto& [place, refused] : m_refused.all()) {
        if (!refused.isExplained) {
            Finding finding;
            finding.pointer = place;
            finding.message =
                u"%1: %2."_s.arg(refuses().replace(0, 1, u"T"_s), m_refusals.all().at(refused.index).sentence);
            if (refused.index == 0) {
                m_firstError = finding;
            }
            add(finding);
        }
    }
}

QList<Finding> Findings::list() const
{
    std::vector<Kept> all;
    for (const auto& [rule, ofRule] : m_ofRule) {
        all.insert(all.end(), ofRule.kept.begin(), ofRule.kept.end());
        const qsizetype others = ofRule.count - std::ssize(ofRule.kept);
        if (others > 0) {
            Kept summary = ofRule.kept.front();
            summary.finding.severity = ofRule.worst;
            summary.finding.instead.clear();
            summary.finding.message =
                u"%1 more findings of this rule follow, %2 in all."_s.arg(others).arg(ofRule.count);
            all.push_back(summary);
        }
    }
    std::stable_sort(all.begin(), all.end(), isEarlier);
    QList<Finding> list;
    if (m_firstError) {
        list.append(*m_firstError);
    }
    for (const Kept& each : all) {
        const bool isFirstError = m_firstError && each.finding.rule == m_firstError->rule
            && each.finding.pointer == m_firstError->pointer && each.finding.message == m_firstError->message;
        if (!isFirstError) {
            list.append(each.finding);
        }
    }
    return list;
}

} // namespace cluiconfig::check
