#pragma once

#include <clconfigui_export.h>

#include <cstddef>
#include <string>
#include <vector>

/// One way of deciding which texts a typed query matches and how well.
///
/// Strategies have no state: one object may be used from several threads at once, and two objects of one class are
/// interchangeable.
class CLCONFIGUI_EXPORT AFuzzyFinderStrategy
{
public:
    AFuzzyFinderStrategy();
    AFuzzyFinderStrategy(const AFuzzyFinderStrategy& other);
    AFuzzyFinderStrategy& operator=(const AFuzzyFinderStrategy& other);
    virtual ~AFuzzyFinderStrategy();

    /// Returns the indices into \p candidates of those that match \p query, by descending score; among equal scores the
    /// larger index comes first. Empty when nothing matches.
    virtual std::vector<std::size_t> applyAlgorithm(const std::string& query,
                                                    const std::vector<std::string>& candidates) const = 0;
};
