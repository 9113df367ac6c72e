#include <config/TitledGraphsTest.h>

using namespace Qt::StringLiterals;

namespace {

/// The statistics section.
struct Statistics
{
    static constexpr auto Key = "Statistics";
    static constexpr auto Missing = "Missing statistics graphs configuration node";
    static constexpr auto Reader = &UIConfigReaders::readStatsGraph;
    static const QList<StatisticsItem>& graphs(const UIConfig& config) { return config.getStatsGraph(); }
    static StatisticsItem find(const UIConfig& config, const QString& title)
    {
        return config.getStatGraphFromTitle(title);
    }
};

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(OfStatistics, TitledGraphs, Statistics);

TEST_F(UIConfigTest, StatisticsCurveFromTheDocumentHasNoFlagSet)
{
    EXPECT_EQ(read(&UIConfigReaders::readStatsGraph,
                   R"({"Statistics": {"graph": [{"isStatisticsEnvelope": true, "isStatisticsErrorBars": true}]}})"),
              Success);
    const StatisticsChildItem curve = config.getStatsGraph().constFirst().getGraphItemsList().constFirst();
    EXPECT_FALSE(curve.getIsStatisticsEnvelope());
    EXPECT_FALSE(curve.getIsStatisticsErrorBars());
}
