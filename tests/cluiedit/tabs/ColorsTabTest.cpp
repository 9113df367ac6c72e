// The palette as people see it: the published formulas, what looks alike, and how the tab shows it.

#include "Snapshots.h"

#include <cluiedit/tabs/ColorVision.h>
#include <cluiedit/tabs/ColorsTab.h>
#include <cluiedit/tabs/LookAlikes.h>

#include <support/QtPrinters.h>
#include <support/Random.h>

#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <memory>
#include <numbers>

using namespace Qt::StringLiterals;
using cluiedit::ColorsTab;
using cluiedit::difference;
using cluiedit::Lab;
using cluiedit::labSeenAs;
using cluiedit::LookAlike;
using cluiedit::seenAs;
using cluiedit::Vision;

namespace {

QList<QColor> randomPalette(qsizetype size, Random& random)
{
    QList<QColor> palette;
    for (qsizetype i = 0; i < size; ++i) {
        palette.append(QColor(random.below(256), random.below(256), random.below(256)));
    }
    return palette;
}

/// Colours of a small part of the cube.
QList<QColor> similarPalette(qsizetype size, Random& random)
{
    const std::array corner{random.below(206), random.below(206), random.below(206)};
    QList<QColor> palette;
    for (qsizetype i = 0; i < size; ++i) {
        palette.append(
            QColor(corner[0] + random.below(50), corner[1] + random.below(50), corner[2] + random.below(50)));
    }
    return palette;
}

/// CIEDE2000 with the angles that it is written down with.
double byTheFormula(const Lab& one, const Lab& other)
{
    constexpr double Degree = std::numbers::pi / 180;
    const auto share = [](double chroma) {
        return std::sqrt(std::pow(chroma, 7) / (std::pow(chroma, 7) + std::pow(25, 7)));
    };
    const auto hueOf = [](double a, double b) {
        return a == 0 && b == 0 ? 0 : std::fmod(std::atan2(b, a) / Degree + 360, 360);
    };
    const double stretch = 1.5 - 0.5 * share((std::hypot(one.a, one.b) + std::hypot(other.a, other.b)) / 2);
    const double chroma1 = std::hypot(one.a * stretch, one.b);
    const double chroma2 = std::hypot(other.a * stretch, other.b);
    const double hue1 = hueOf(one.a * stretch, one.b);
    const double hue2 = hueOf(other.a * stretch, other.b);
    const bool hasGrey = chroma1 * chroma2 == 0;
    const double hueStep = hasGrey ? 0 : std::fmod(hue2 - hue1 + 540, 360) - 180;
    double meanHue = hasGrey ? hue1 + hue2 : (hue1 + hue2) / 2;
    if (!hasGrey && std::abs(hue1 - hue2) > 180) {
        meanHue += hue1 + hue2 < 360 ? 180 : -180;
    }
    const double meanChroma = (chroma1 + chroma2) / 2;
    const double square = std::pow((one.lightness + other.lightness) / 2 - 50, 2);
    const auto cosine = [](double degrees) { return std::cos(degrees * Degree); };
    const double t = 1 - 0.17 * cosine(meanHue - 30) + 0.24 * cosine(2 * meanHue) + 0.32 * cosine(3 * meanHue + 6)
        - 0.20 * cosine(4 * meanHue - 63);
    const double lightness = (other.lightness - one.lightness) / (1 + 0.015 * square / std::sqrt(20 + square));
    const double chroma = (chroma2 - chroma1) / (1 + 0.045 * meanChroma);
    const double hue = 2 * std::sqrt(chroma1 * chroma2) * std::sin(hueStep / 2 * Degree) / (1 + 0.015 * meanChroma * t);
    const double turn = 60 * std::exp(-std::pow((meanHue - 275) / 25, 2));
    const double rotation = -std::sin(turn * Degree) * 2 * share(meanChroma);
    return std::sqrt(lightness * lightness + chroma * chroma + hue * hue + rotation * chroma * hue);
}

/// Colours by their names and components.
QJsonObject documentWith(const QList<std::pair<QString, QJsonArray>>& palette, const QJsonObject& defaults = {})
{
    QJsonArray colors;
    for (const auto& [name, rgb] : palette) {
        colors.append(QJsonObject{{u"name"_s, name}, {u"RGB"_s, rgb}});
    }
    QJsonObject document = shippedSnapshot()->root();
    document[u"Colors"_s] = QJsonObject{{u"Custom colors"_s, colors}, {u"Default colors"_s, defaults}};
    return document;
}

struct ColorsTabOnScreen : testing::Test
{
    ColorsTabOnScreen()
    {
        tab.resize(640, 700);
        tab.present(snapshot);
        tab.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&tab));
        for (auto* each : tab.findChildren<QTableView*>()) {
            view = each->isVisible() ? each : view;
        }
        for (auto* each : tab.findChildren<QListView*>()) {
            list = each->accessibleName() == u"Colours that look alike"_s ? each : list;
        }
    }

    QStringList sentences() const
    {
        QStringList all;
        for (int row = 0; row < list->model()->rowCount(); ++row) {
            all.append(list->model()->index(row, 0).data().toString());
        }
        return all;
    }

    QString heading() const
    {
        for (const auto* label : tab.findChildren<QLabel*>()) {
            if (label->isVisible() && label->text().contains(u"alike"_s)) {
                return label->text();
            }
        }
        return {};
    }

    std::shared_ptr<const cluiedit::Snapshot> snapshot = shippedSnapshot();
    ColorsTab tab;
    QTableView* view = nullptr;
    QListView* list = nullptr;
};

} // namespace

// Pairs of the data published with the formula (Sharma, Wu and Dalal 2005).
TEST(ColorVision, MeasuresDifferencesAsPublished)
{
    struct Published
    {
        Lab one;
        Lab other;
        double difference;
    };
    const QList<Published> all{{{50, 2.6772, -79.7751}, {50, 0, -82.7485}, 2.0425},
                               {{50, 3.1571, -77.2803}, {50, 0, -82.7485}, 2.8615},
                               {{50, 2.8361, -74.0200}, {50, 0, -82.7485}, 3.4412},
                               {{50, -1.3802, -84.2814}, {50, 0, -82.7485}, 1.0000},
                               {{50, 0, 0}, {50, -1, 2}, 2.3669},
                               {{50, 2.49, -0.001}, {50, -2.49, 0.0009}, 7.1792},
                               {{50, 2.49, -0.001}, {50, -2.49, 0.0011}, 7.2195},
                               {{50, -0.001, 2.49}, {50, 0.0009, -2.49}, 4.8045},
                               {{50, -0.001, 2.49}, {50, 0.0011, -2.49}, 4.7461},
                               {{50, 2.5, 0}, {50, 0, -2.5}, 4.3065},
                               {{50, 2.5, 0}, {73, 25, -18}, 27.1492},
                               {{50, 2.5, 0}, {61, -5, 29}, 22.8977},
                               {{50, 2.5, 0}, {56, -27, -3}, 31.9030},
                               {{50, 2.5, 0}, {58, 24, 15}, 19.4535},
                               {{60.2574, -34.0099, 36.2677}, {60.4626, -34.1751, 39.4387}, 1.2644},
                               {{2.0776, 0.0795, -1.1350}, {0.9033, -0.0636, -0.5514}, 0.9082}};
    for (const Published& pair : all) {
        EXPECT_NEAR(difference(pair.one, pair.other), pair.difference, 5e-5);
        EXPECT_NEAR(difference(pair.other, pair.one), pair.difference, 5e-5);
        EXPECT_EQ(difference(pair.one, pair.one), 0);
    }
}

TEST(ColorVision, MeasuresDifferencesByTheFormula)
{
    Random random(9);
    const auto colour = [&random](bool isGreyish) {
        const qsizetype widest = isGreyish ? 5 : 120;
        return Lab{random.below(10'001) / 100.0, static_cast<double>(random.below(2 * widest) - widest),
                   static_cast<double>(random.below(2 * widest) - widest)};
    };
    for (int turn = 0; turn < 100'000; ++turn) {
        const Lab one = colour(random.oneIn(3));
        const Lab other = random.oneIn(20) ? Lab{one.lightness, -one.a, 0.01 - one.b} : colour(random.oneIn(3));
        // Rounding decides what is between opposite hues, and whether what is on the A axis is at 0 or at 360 degrees.
        const bool areOpposite = one.a * other.b == one.b * other.a && one.a * other.a + one.b * other.b < 0;
        const bool areMirrored = one.a * other.b == -one.b * other.a && one.a * other.a > 0;
        if (areOpposite || areMirrored) {
            continue;
        }
        ASSERT_NEAR(difference(one, other), byTheFormula(one, other), 1e-7)
            << one.a << ' ' << one.b << ' ' << other.a << ' ' << other.b;
    }
}

TEST(ColorVision, KnowsTheEndsOfCielab)
{
    const Lab white = labSeenAs(Qt::white, Vision::Normal);
    EXPECT_NEAR(white.lightness, 100, 1e-4);
    EXPECT_NEAR(white.a, 0, 1e-3);
    EXPECT_NEAR(white.b, 0, 1e-3);
    EXPECT_NEAR(labSeenAs(Qt::black, Vision::Normal).lightness, 0, 1e-9);
    const Lab red = labSeenAs(QColor(255, 0, 0), Vision::Normal); // of the sRGB primaries
    EXPECT_NEAR(red.lightness, 53.24, 0.01);
    EXPECT_NEAR(red.a, 80.09, 0.01);
    EXPECT_NEAR(red.b, 67.20, 0.01);
}

TEST(ColorVision, LeavesGreysAndNormalVisionAlone)
{
    for (const Vision vision : cluiedit::Visions) {
        for (const int grey : {0, 1, 60, 128, 200, 255}) {
            EXPECT_EQ(seenAs(QColor(grey, grey, grey), vision), QColor(grey, grey, grey));
        }
        EXPECT_FALSE(seenAs(QColor(), vision).isValid());
    }
    EXPECT_EQ(seenAs(QColor(0, 114, 178), Vision::Normal), QColor(0, 114, 178));
}

TEST(ColorVision, TakesTheColourOutOfRedsAndGreensOrOfBluesAndYellows)
{
    EXPECT_EQ(seenAs(QColor(255, 0, 0), Vision::Protanopia).name(), u"#6d5f00"_s);
    const auto between = [](const QColor& one, const QColor& other, Vision vision) {
        return difference(labSeenAs(one, vision), labSeenAs(other, vision));
    };
    const QColor rust(160, 90, 0);
    const QColor olive(110, 110, 0);
    EXPECT_GT(between(rust, olive, Vision::Normal), 3 * between(rust, olive, Vision::Deuteranopia));
    const QColor blue(60, 130, 160);
    const QColor green(60, 135, 120);
    EXPECT_GT(between(blue, green, Vision::Normal), 2 * between(blue, green, Vision::Tritanopia));
}

TEST(ColorVision, KnowsTheContrastOfBlackAndWhite)
{
    EXPECT_NEAR(cluiedit::contrast(Qt::white, Qt::black), 21, 1e-5);
    EXPECT_NEAR(cluiedit::contrast(Qt::black, Qt::white), 21, 1e-5);
    EXPECT_NEAR(cluiedit::contrast(QColor(118, 118, 118), Qt::white), 4.54,
                0.005); // the darkest grey that WCAG lets pass
    EXPECT_EQ(cluiedit::contrast(Qt::red, Qt::red), 1);
}

TEST(ColorVision, FindsWhatALoopOverAllPairsFinds)
{
    Random random(7);
    for (int turn = 0; turn < 100; ++turn) {
        QList<QColor> palette = turn % 2 == 0 ? randomPalette(60, random) : similarPalette(60, random);
        palette[random.below(60)] = QColor();
        palette[random.below(60)] = palette.at(0);
        qsizetype expected = 0;
        const QList<LookAlike> found = cluiedit::lookAlikes(palette);
        for (const Vision vision : cluiedit::Visions) {
            for (qsizetype i = 0; i < palette.size(); ++i) {
                for (qsizetype j = i + 1; j < palette.size(); ++j) {
                    if (!palette.at(i).isValid() || !palette.at(j).isValid()) {
                        continue;
                    }
                    const double amount =
                        byTheFormula(labSeenAs(palette.at(i), vision), labSeenAs(palette.at(j), vision));
                    if (amount < cluiedit::LeastDifference) {
                        ++expected;
                        EXPECT_TRUE(std::ranges::any_of(found, [&](const LookAlike& pair) {
                            return pair.first == i && pair.second == j && pair.vision == vision
                                && std::abs(pair.difference - amount) < 1e-9;
                        }));
                    }
                }
            }
        }
        EXPECT_EQ(found.size(), expected);
    }
}

TEST(ColorVision, ComparesAThousandColours)
{
    Random random(8);
    const QList<QColor> palette = randomPalette(1000, random);
    QElapsedTimer timer;
    timer.start();
    const QList<LookAlike> found = cluiedit::lookAlikes(palette);
    std::printf("%lld pairs after %lld ms\n", static_cast<long long>(found.size()), timer.elapsed());
    EXPECT_GT(found.size(), 100);
}

TEST(PaletteTable, HasEveryColourWithItsUsers)
{
    const auto expectTable = [](const auto& snapshot) {
        const uiconfig::Colors& colors = snapshot->configuration().colors;
        const cluiconfig::Table table = cluiedit::paletteTable(colors);
        ASSERT_EQ(table.rows.size(), colors.custom.size());
        QHash<QString, QString> users;
        for (qsizetype i = 0; i < table.rows.size(); ++i) {
            const auto& [name, color] = colors.custom.at(i);
            const QList<QJsonValue>& row = table.rows.at(i);
            ASSERT_EQ(row.size(), table.columns.size());
            EXPECT_EQ(row.at(0).toString(), name);
            EXPECT_EQ(row.at(1).toString(), color.isValid() ? color.name() : u"(invalid)"_s);
            EXPECT_EQ(row.at(2).toString(), color.isValid() ? color.name() : QString());
            if (!users.contains(name)) {
                users.insert(name, row.constLast().toString());
            }
            const QJsonValue entry = valueAt(snapshot->root(), u"/Colors/Custom colors/%1"_s.arg(i));
            EXPECT_EQ(entry[u"name"_s].toString(), name);
        }
        for (auto it = colors.defaults.begin(); it != colors.defaults.end(); ++it) {
            EXPECT_TRUE(!users.contains(it.value()) || users.value(it.value()).split(u", "_s).contains(it.key()))
                << it.key().toStdString();
        }
    };
    expectTable(shippedSnapshot());
    forRandomSnapshots(200, expectTable);
}

TEST_F(ColorsTabOnScreen, ShowsThePaletteOfWhichNoTwoLookAlike)
{
    EXPECT_EQ(view->model()->rowCount(), snapshot->configuration().colors.custom.size());
    EXPECT_EQ(sentences(), QStringList());
    EXPECT_FALSE(list->isVisible());
    EXPECT_TRUE(heading().startsWith(u"No two colours look alike"_s)) << heading().toStdString();
}

TEST_F(ColorsTabOnScreen, NamesThePairsThatLookAlike)
{
    const auto changed = snapshotOf(documentWith(
        {{u"Rust"_s, {160, 90, 0}}, {u"Night"_s, {0, 0, 30}}, {u"None"_s, {0, 0, 300}}, {u"Olive"_s, {125, 104, 0}}}));
    tab.present(changed);
    const auto found = cluiedit::lookAlikes({QColor(160, 90, 0), QColor(0, 0, 30), QColor(), QColor(125, 104, 0)});
    ASSERT_FALSE(found.isEmpty());
    QStringList expected;
    for (const LookAlike& pair : found) {
        const QString vision = cluiedit::visionName(pair.vision).toLower();
        expected.append(u"Rust and Olive look alike with %1 (ΔE00 %2)"_s.arg(vision).arg(pair.difference, 0, 'f', 1));
    }
    EXPECT_EQ(sentences(), expected);
    EXPECT_TRUE(sentences().join(u'\n').contains(u"look alike with deuteranopia"_s))
        << expected.join(u'\n').toStdString();
    EXPECT_TRUE(list->isVisible());
    EXPECT_TRUE(heading().endsWith(u": %1"_s.arg(found.size()))) << heading().toStdString();

    QSignalSpy places(&tab, &ColorsTab::placeWanted);
    list->setFocus();
    list->setCurrentIndex(list->model()->index(0, 0));
    QTest::keyClick(list, Qt::Key_Return);
    ASSERT_EQ(places.count(), 1);
    EXPECT_EQ(places.at(0).at(0).toString(), u"/Colors/Custom colors/3"_s);
    view->setFocus();
    view->selectRow(1);
    QTest::keyClick(view, Qt::Key_Return);
    ASSERT_EQ(places.count(), 2);
    EXPECT_EQ(places.at(1).at(0).toString(), u"/Colors/Custom colors/1"_s);

    tab.present(emptySnapshot());
    EXPECT_EQ(view->model()->rowCount(), 0);
    EXPECT_EQ(sentences(), QStringList());
    tab.present(snapshot);
    EXPECT_EQ(view->model()->rowCount(), 20);
}

TEST_F(ColorsTabOnScreen, ListsNoMoreThanSomebodyReads)
{
    QList<std::pair<QString, QJsonArray>> palette;
    for (int i = 0; i < 1000; ++i) {
        palette.append({u"Colour %1"_s.arg(i), QJsonArray{i % 10 * 25, i / 10 % 10 * 25, i / 100 * 25}});
    }
    const auto many = snapshotOf(documentWith(palette));
    QElapsedTimer timer;
    timer.start();
    tab.present(many);
    std::printf("present() of 1000 colours: %lld ms\n", timer.restart());
    tab.grab();
    std::printf("painted after %lld ms\n", timer.elapsed());
    EXPECT_EQ(view->model()->rowCount(), 1000);
    EXPECT_EQ(sentences().size(), 200);
    EXPECT_TRUE(heading().endsWith(u"of which 200 are listed"_s)) << heading().toStdString();
}

TEST_F(ColorsTabOnScreen, SortsContrastsBySizeAndFiltersByUsers)
{
    view->sortByColumn(6, Qt::AscendingOrder);
    for (int row = 1; row < view->model()->rowCount(); ++row) {
        EXPECT_LE(view->model()->index(row - 1, 6).data().toString().toDouble(),
                  view->model()->index(row, 6).data().toString().toDouble());
    }
    QTest::keyClick(&tab, Qt::Key_L, Qt::ControlModifier);
    auto* line = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    ASSERT_NE(line, nullptr);
    QTest::keyClicks(line, u"pressure"_s);
    ASSERT_EQ(view->model()->rowCount(), 1);
    EXPECT_EQ(view->model()->index(0, 0).data().toString(), u"Steel blue"_s);
}

TEST_F(ColorsTabOnScreen, IsQuickToSeeThatNothingChanged)
{
    QSignalSpy changes(view->model(), &QAbstractItemModel::dataChanged);
    const auto again = shippedSnapshot();
    QElapsedTimer timer;
    timer.start();
    tab.present(again);
    std::printf("present() of the same: %.3f ms\n", static_cast<double>(timer.nsecsElapsed()) / 1e6);
    EXPECT_EQ(changes.count(), 0);
}
