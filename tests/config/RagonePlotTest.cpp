#include <config/TitledGraphsTest.h>

using namespace Qt::StringLiterals;

namespace {

/// The Ragone-plot section, which holds the same as the statistics.
struct RagonePlot
{
    static constexpr auto Key = "Ragone Plot";
    static constexpr auto Missing = "Missing Ragone Plot graphs configuration node";
    static constexpr auto Reader = &UIConfigReaders::readRagonePlotGraph;
    static const QList<RagonePlotItem>& graphs(const UIConfig& config) { return config.getRagonePlotGraph(); }
    static RagonePlotItem find(const UIConfig& config, const QString& title)
    {
        return config.getRagonePlotGraphFromTitle(title);
    }
};

template <typename Curve>
QStringList texts(const QList<Curve>& curves)
{
    QStringList result;
    for (const Curve& curve : curves) {
        result.append(
            QStringList{curve.getTitle(), curve.getCategory(), curve.getStreamX(), curve.getStreamY(), curve.getType()}
                .join(u", "_s));
    }
    return result;
}

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(OfRagonePlot, TitledGraphs, RagonePlot);

TEST_F(UIConfigTest, SameSnippetGivesStatisticsAndRagonePlotTheSameGraphs)
{
    const QJsonValue snippet =
        jsonObject(R"({"b": [{"Title": "1", "Category": "c", "X": "x", "Y": "y"}, {"Title": "2", "Type": "t"}],
                       "a": [{}]})");
    EXPECT_EQ(read(&UIConfigReaders::readStatsGraph, QJsonObject{{u"Statistics"_s, snippet}}), Success);
    EXPECT_EQ(read(&UIConfigReaders::readRagonePlotGraph, QJsonObject{{u"Ragone Plot"_s, snippet}}), Success);
    ASSERT_EQ(config.getStatsGraph().size(), config.getRagonePlotGraph().size());
    for (qsizetype i = 0; i < config.getStatsGraph().size(); ++i) {
        const StatisticsItem& statistics = config.getStatsGraph().at(i);
        const RagonePlotItem& ragone = config.getRagonePlotGraph().at(i);
        EXPECT_EQ(statistics.getTitle(), ragone.getTitle());
        EXPECT_EQ(texts(statistics.getGraphItemsList()), texts(ragone.getGraphItemsList()));
    }
    EXPECT_EQ(texts(config.getStatsGraph().at(1).getGraphItemsList()),
              QStringList({u"1, c, x, y, "_s, u"2, , , , t"_s}));
}
