#include <search/AFuzzyFinderStrategy.h>

AFuzzyFinderStrategy::AFuzzyFinderStrategy() = default;
AFuzzyFinderStrategy::AFuzzyFinderStrategy(const AFuzzyFinderStrategy& other) = default;
AFuzzyFinderStrategy& AFuzzyFinderStrategy::operator=(const AFuzzyFinderStrategy& /*other*/) = default;
AFuzzyFinderStrategy::~AFuzzyFinderStrategy() = default;
