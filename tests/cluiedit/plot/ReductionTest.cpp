#include <cluiedit/plot/Reduction.h>

#include <support/Random.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <numeric>

#include <gtest/gtest.h>

using cluiedit::PickAmounts;
using cluiedit::Picks;
using cluiedit::Reduction;
using cluiedit::Values;

namespace {

constexpr double NaN = std::numeric_limits<double>::quiet_NaN();
constexpr double Infinity = std::numeric_limits<double>::infinity();

struct Curve
{
    std::vector<double> x;
    std::vector<double> y;
};

Reduction reductionOf(const Curve& curve, double floorX = Reduction::NoFloor, double floorY = Reduction::NoFloor)
{
    return {std::make_shared<const std::vector<double>>(curve.x), std::make_shared<const std::vector<double>>(curve.y),
            floorX, floorY};
}

double between(Random& random, double low, double high)
{
    return low + (high - low) * random.below(1'000'001) / 1e6;
}

/// Curves of many shapes, by number.
Curve randomCurve(Random& random, std::size_t size)
{
    Curve curve;
    const int shapeX = random.below(6);
    const int shapeY = random.below(6);
    const int holes = random.below(4);
    double walk = 0;
    for (std::size_t i = 0; i < size; ++i) {
        const auto at = static_cast<double>(i);
        double x = at;
        switch (shapeX) {
        case 1: // many points have the same x
            x = std::floor(at / 7);
            break;
        case 2: // back and forth
            x = std::abs(std::fmod(at, 400) - 200) + between(random, 0, 0.5);
            break;
        case 3: // anything
            x = between(random, -100, 100);
            break;
        case 4: // backwards
            x = -at * 3;
            break;
        case 5: // always the same
            x = 5;
            break;
        default:
            break;
        }
        walk += between(random, -1, 1);
        double y = walk;
        switch (shapeY) {
        case 1:
            y = -2.5;
            break;
        case 2:
            y = std::floor(at / 50);
            break;
        case 3:
            y = random.oneIn(500) ? between(random, -1e9, 1e9) : walk;
            break;
        case 4:
            y = between(random, -10, 10);
            break;
        case 5:
            y = std::sin(at / 20) * 1e-9;
            break;
        default:
            break;
        }
        if (holes > 0 && random.oneIn(holes == 3 ? 2 : 60)) {
            (random.oneIn(3) ? x : y) = random.oneIn(4) ? (random.oneIn(2) ? Infinity : -Infinity) : NaN;
        }
        curve.x.push_back(x);
        curve.y.push_back(y);
    }
    if (size > 40 && random.oneIn(2)) { // a long gap
        const auto begin = static_cast<std::size_t>(random.below(static_cast<qsizetype>(size / 2)));
        std::fill_n(curve.y.begin() + static_cast<std::ptrdiff_t>(begin), size / 3, NaN);
    }
    return curve;
}

std::vector<double> edgesOf(double from, double to, int columns)
{
    std::vector<double> edges;
    for (int i = 0; i <= columns; ++i) {
        edges.push_back(i == columns ? to
                                     : std::max(edges.empty() ? from : edges.back(), from + (to - from) * i / columns));
    }
    return edges;
}

struct Extremes
{
    double lowest = Infinity;
    double highest = -Infinity;
    bool operator==(const Extremes& other) const = default;
};

/// By column: what a glance at every one of the points \p indices gives.
template <typename Indices>
std::map<std::size_t, Extremes> extremes(const Reduction& curve, const Indices& indices,
                                         const std::vector<double>& edges)
{
    std::map<std::size_t, Extremes> result;
    for (const std::size_t i : indices) {
        const double x = curve.x(i);
        if (!curve.isDrawable(i) || x < edges.front() || x > edges.back()) {
            continue;
        }
        std::size_t column = edges.size() - 2;
        while (x < edges[column]) {
            --column;
        }
        Extremes& of = result[column];
        of.lowest = std::min(of.lowest, curve.y(i));
        of.highest = std::max(of.highest, curve.y(i));
    }
    return result;
}

std::vector<std::size_t> allIndices(const Reduction& curve)
{
    std::vector<std::size_t> indices(curve.size());
    std::iota(indices.begin(), indices.end(), std::size_t{0});
    return indices;
}

std::vector<std::size_t> indicesOf(const Picks& picks)
{
    std::vector<std::size_t> indices;
    for (const auto& pick : picks.points) {
        indices.push_back(pick.index);
    }
    return indices;
}

void expectInOrder(const Reduction& curve, const Picks& picks)
{
    for (std::size_t i = 0; i < picks.points.size(); ++i) {
        ASSERT_TRUE(curve.isDrawable(picks.points[i].index));
        if (i > 0) {
            ASSERT_LT(picks.points[i - 1].index, picks.points[i].index);
        }
    }
    EXPECT_TRUE(picks.points.empty() || !picks.points.front().isJoined);
}

} // namespace

TEST(Reduction, KeepsTheLowestAndHighestOfEveryColumnOfAnyCurve)
{
    Random random(20240607);
    for (int round = 0; round < 400; ++round) {
        SCOPED_TRACE(round);
        const bool isLogarithmic = random.oneIn(4);
        const Reduction curve =
            reductionOf(randomCurve(random, static_cast<std::size_t>(random.below(6000))),
                        random.oneIn(6) ? 0 : Reduction::NoFloor, isLogarithmic ? 0 : Reduction::NoFloor);
        const double left = curve.drawable() > 0 ? curve.lowestX() : 0;
        const double right = curve.drawable() > 0 ? curve.highestX() : 1;
        double from = random.oneIn(3) ? left : between(random, left - 1, right);
        double to = random.oneIn(3) ? right : between(random, from, right + 1);
        if (random.oneIn(10)) {
            to = from + (right - left) / 1e5;
        }
        const auto edges = edgesOf(from, to, 1 + random.below(120));
        const PickAmounts amounts{.whole = static_cast<std::size_t>(random.below(300)),
                                  .most = static_cast<std::size_t>(500 + random.below(2000))};
        const auto picks = curve.picks(edges, amounts);
        EXPECT_LE(picks.points.size(), amounts.most);
        expectInOrder(curve, picks);
        const auto expected = extremes(curve, allIndices(curve), edges);
        EXPECT_TRUE(extremes(curve, indicesOf(picks), edges) == expected);

        std::size_t inView = 0;
        for (std::size_t i = 0; i < curve.size(); ++i) {
            inView += curve.isDrawable(i) && curve.x(i) >= from && curve.x(i) <= to ? 1U : 0U;
        }
        if (picks.isSampled) {
            EXPECT_EQ(picks.inView, std::min(inView, amounts.most / 2 + 1));
        } else {
            EXPECT_EQ(picks.inView, inView);
        }
        if (picks.isWhole) {
            const auto indices = indicesOf(picks);
            EXPECT_EQ(std::count_if(indices.begin(), indices.end(),
                                    [&](std::size_t i) { return curve.x(i) >= from && curve.x(i) <= to; }),
                      static_cast<std::ptrdiff_t>(inView));
        }
    }
}

TEST(Reduction, LeavesNothingOutWhereFewPointsAreInView)
{
    Random random(7);
    for (int round = 0; round < 100; ++round) {
        const Reduction curve = reductionOf(randomCurve(random, 900));
        if (curve.drawable() == 0) {
            continue;
        }
        const auto picks = curve.picks(edgesOf(curve.lowestX(), curve.highestX(), 30), {.whole = 900});
        ASSERT_TRUE(picks.isWhole);
        ASSERT_EQ(picks.points.size(), curve.drawable());
        for (std::size_t i = 1; i < picks.points.size(); ++i) {
            // A line leads from point to point, unless there is a gap between them.
            EXPECT_EQ(picks.points[i].isJoined, picks.points[i].index == picks.points[i - 1].index + 1);
        }
    }
}

TEST(Reduction, JoinsNoPointsOfDifferentColumnsAcrossAGap)
{
    Random random(8);
    for (int round = 0; round < 200; ++round) {
        const Reduction curve = reductionOf(randomCurve(random, 3000));
        if (curve.drawable() == 0) {
            continue;
        }
        const auto edges = edgesOf(curve.lowestX(), curve.highestX(), 40);
        const auto picks = curve.picks(edges, {.whole = 0});
        const auto column = [&](double x) {
            return std::upper_bound(edges.begin(), edges.end() - 1, x) - edges.begin();
        };
        for (std::size_t i = 1; i < picks.points.size(); ++i) {
            const auto before = picks.points[i - 1].index;
            const auto here = picks.points[i].index;
            bool hasGap = false;
            for (auto at = before + 1; at < here; ++at) {
                hasGap = hasGap || !curve.isDrawable(at);
            }
            if (!picks.isSampled && column(curve.x(before)) != column(curve.x(here))) {
                ASSERT_EQ(picks.points[i].isJoined, !hasGap);
            }
        }
    }
}

TEST(Reduction, KeepsTheNeighboursBeyondTheRange)
{
    Curve curve;
    for (int i = 0; i < 100'000; ++i) {
        curve.x.push_back(i);
        curve.y.push_back(i % 10);
    }
    const Reduction reduction = reductionOf(curve);
    const auto picks = reduction.picks(edgesOf(50'000.25, 50'000.75, 500), {});
    EXPECT_EQ(picks.inView, std::size_t{0});
    const auto indices = indicesOf(picks);
    EXPECT_TRUE(std::find(indices.begin(), indices.end(), 50'000) != indices.end());
    const auto after =
        std::find_if(picks.points.begin(), picks.points.end(), [](const auto& pick) { return pick.index == 50'001; });
    ASSERT_NE(after, picks.points.end());
    EXPECT_TRUE(after->isJoined);
}

TEST(Reduction, LeavesOutAndCountsWhatALogarithmicAxisCannotShow)
{
    const Reduction curve = reductionOf({{1, 2, 3, 4, 5, -1}, {1, 0, -3, 7, NaN, 5}}, 0, 0);
    EXPECT_EQ(curve.belowFloor(), std::size_t{3});
    EXPECT_EQ(curve.drawable(), std::size_t{2});
    EXPECT_DOUBLE_EQ(curve.lowestY(), 1);
    EXPECT_DOUBLE_EQ(curve.highestX(), 4);
    const auto picks = curve.picks(edgesOf(0.1, 10, 100), {});
    ASSERT_EQ(picks.points.size(), std::size_t{2});
    EXPECT_FALSE(picks.points[1].isJoined);
}

TEST(Reduction, SampledCurvesKeepTheirExtremes)
{
    // A hundred thousand points back and forth many times: bins are fine enough for wide columns only.
    Random random(9);
    Curve curve;
    for (int i = 0; i < 200'000; ++i) {
        curve.x.push_back(std::abs(std::fmod(i, 2000) - 1000) + between(random, 0, 1));
        curve.y.push_back(random.oneIn(5000) ? between(random, -900, 900) : std::sin(i * 0.01) * 5);
    }
    const Reduction reduction = reductionOf(curve);
    ASSERT_GT(reduction.binWidth(), 0);
    for (const int columns : {50, 300, 1000, 3000}) {
        const PickAmounts amounts{.most = 20'000};
        const auto edges = edgesOf(100, 900, columns);
        const auto picks = reduction.picks(edges, amounts);
        ASSERT_TRUE(picks.isSampled);
        EXPECT_LE(picks.points.size(), amounts.most);
        EXPECT_GT(picks.points.size(), std::size_t{1000});
        expectInOrder(reduction, picks);
        const auto expected = extremes(reduction, allIndices(reduction), edges);
        const bool hasBins = 800.0 / columns >= reduction.binWidth();
        EXPECT_EQ(hasBins, columns <= 1000);
        if (!hasBins) {
            EXPECT_TRUE(extremes(reduction, indicesOf(picks), edges) == expected);
            continue;
        }
        for (const auto& [column, extreme] : expected) {
            Extremes shown;
            for (const std::size_t i : indicesOf(picks)) {
                if (reduction.x(i) >= edges[column] - 1.001 * reduction.binWidth()
                    && reduction.x(i) <= edges[column + 1] + 1.001 * reduction.binWidth()) {
                    shown.lowest = std::min(shown.lowest, reduction.y(i));
                    shown.highest = std::max(shown.highest, reduction.y(i));
                }
            }
            ASSERT_LE(shown.lowest, extreme.lowest);
            ASSERT_GE(shown.highest, extreme.highest);
        }
    }
}

TEST(Reduction, FindsTheNearestPoint)
{
    Random random(10);
    for (int round = 0; round < 200; ++round) {
        const Reduction curve = reductionOf(randomCurve(random, static_cast<std::size_t>(random.below(4000))));
        const QPointF at(between(random, -150, 4100), between(random, -30, 30));
        const auto position = [](double x, double y) { return QPointF(2 * x + 3, -y); };
        std::size_t best = curve.size();
        double least = Infinity;
        for (std::size_t i = 0; i < curve.size(); ++i) {
            const QPointF away = position(curve.x(i), curve.y(i)) - at;
            if (curve.isDrawable(i) && std::hypot(away.x(), away.y()) < least) {
                least = std::hypot(away.x(), away.y());
                best = i;
            }
        }
        const std::size_t found = curve.nearest(at, position);
        if (best == curve.size()) {
            EXPECT_EQ(found, best);
        } else {
            ASSERT_LT(found, curve.size());
            const QPointF away = position(curve.x(found), curve.y(found)) - at;
            EXPECT_DOUBLE_EQ(std::hypot(away.x(), away.y()), least);
        }
    }
}

TEST(Reduction, OfNothingGivesNothing)
{
    for (const Curve& curve : {Curve{}, Curve{{NaN, 1, Infinity}, {1, NaN, 3}}, Curve{{1, 2}, {}}}) {
        const Reduction reduction = reductionOf(curve);
        EXPECT_EQ(reduction.drawable(), std::size_t{0});
        EXPECT_TRUE(reduction.picks({0, 1, 2}, {}).points.empty());
        EXPECT_EQ(reduction.nearest({0, 0}, [](double x, double y) { return QPointF(x, y); }), reduction.size());
    }
}

TEST(Reduction, TakesLittleMemoryBesideThePoints)
{
    for (const double period : {0.0, 5000.0}) { // sorted, and not
        Curve curve;
        for (int i = 0; i < 1'000'000; ++i) {
            curve.x.push_back(period > 0 ? std::fmod(i, period) : i);
            curve.y.push_back(i % 1000);
        }
        const Values x = std::make_shared<const std::vector<double>>(curve.x);
        const Values y = std::make_shared<const std::vector<double>>(curve.y);
        const Reduction reduction(x, y);
        EXPECT_EQ(x.use_count(), 2);
        EXPECT_EQ(reduction.isSorted(), period == 0);
        EXPECT_LT(static_cast<double>(reduction.overhead()), 0.03 * 16e6);
    }
}
