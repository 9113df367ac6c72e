// The matrix of the axes against the application's own pairs.

#include "Snapshots.h"

#include <cluiedit/tabs/AxesMatrix.h>
#include <cluiedit/tabs/AxesPlaces.h>
#include <cluiedit/tabs/AxesTab.h>

#include <support/QtPrinters.h>

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

using namespace Qt::StringLiterals;
using cl::datastorage::DataArrayIdentifier;
using cluiedit::AxesMatrix;
using cluiedit::AxesPlaces;
using cluiedit::AxesTab;
using cluiedit::Snapshot;

namespace {

/// Every cell says what the application says of its two axes, and no axis is missing.
void expectContent(const AxesMatrix& matrix, const AxesCombinationManager& axes)
{
    const QStringList names = axes.getXAxesNames();
    ASSERT_EQ(matrix.columnCount(), names.size());
    qsizetype pairs = 0;
    for (int column = 0; column < matrix.columnCount(); ++column) {
        EXPECT_EQ(matrix.xName(column), names.at(column));
        const QStringList partners = axes.getYAxesNames(names.at(column));
        pairs += partners.size();
        qsizetype marks = 0;
        for (int row = 0; row < matrix.rowCount(); ++row) {
            AxesCombination known = axes.getAxesCombination(matrix.xName(column), matrix.yName(row));
            const auto pair = matrix.pairAt(matrix.index(row, column));
            ASSERT_EQ(pair.has_value(), known.isValid());
            if (pair) {
                ++marks;
                EXPECT_EQ(pair->isLogarithmicX, known.getDefaultScaleX() == QCPAxis::stLogarithmic);
                EXPECT_EQ(pair->isLogarithmicY, known.getDefaultScaleY() == QCPAxis::stLogarithmic);
                EXPECT_EQ(pair->isOrthonormal, known.isOrthonormal());
            }
        }
        EXPECT_EQ(marks, partners.size());
    }
    EXPECT_EQ(matrix.pairCount(), pairs);
    EXPECT_EQ(matrix.shownPairCount(), pairs);
}

/// The entry at the place of every pair gives it, and no entry before does.
void expectPlaces(const Snapshot& snapshot)
{
    const AxesPlaces places(snapshot.root());
    const QJsonArray entries = snapshot.root()[u"Axes combinations"_s].toArray();
    QSet<std::pair<QString, QString>> seen;
    for (qsizetype i = 0; i < entries.size(); ++i) {
        AxesCombinationManager entry;
        QString error;
        entry.readAxesCombination(entries.at(i).toObject(), error);
        for (const AxesCombination& pair : entry.getAxesCombinations()) {
            const std::pair axes(pair.getConfigX().getName(), pair.getConfigY().getName());
            if (pair.isValid() && !seen.contains(axes)) {
                seen.insert(axes);
                EXPECT_EQ(places.placeOf(axes.first, axes.second), u"/Axes combinations/%1"_s.arg(i));
            }
        }
    }
    EXPECT_EQ(places.placeOf(u"no"_s, u"such"_s), u"/Axes combinations"_s);
}

AxesCombination pair(const QString& x, const QString& y, bool isLogarithmicX = false, bool isLogarithmicY = false,
                     bool isOrthonormal = false)
{
    const auto scale = [](bool isLogarithmic) { return isLogarithmic ? QCPAxis::stLogarithmic : QCPAxis::stLinear; };
    return {DataArrayIdentifier(x, u"Step"_s), DataArrayIdentifier(y, u"Step"_s), scale(isLogarithmicX),
            scale(isLogarithmicY), isOrthonormal};
}

struct AxesTabOnScreen : testing::Test
{
    AxesTabOnScreen()
    {
        tab.resize(640, 700);
        tab.present(snapshot);
        tab.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&tab));
        filters = tab.findChildren<QLineEdit*>();
        view = tab.findChild<QTableView*>();
        matrix = qobject_cast<const AxesMatrix*>(view->model());
    }

    /// The first cell with a pair, or the first without one.
    QModelIndex cell(bool hasPair) const
    {
        for (int row = 0; row < matrix->rowCount(); ++row) {
            for (int column = 0; column < matrix->columnCount(); ++column) {
                if (matrix->pairAt(matrix->index(row, column)).has_value() == hasPair) {
                    return matrix->index(row, column);
                }
            }
        }
        return {};
    }

    QString texts() const
    {
        QStringList all;
        for (const auto* label : tab.findChildren<QLabel*>()) {
            all.append(label->text());
        }
        return all.join(u'\n');
    }

    std::shared_ptr<const Snapshot> snapshot = shippedSnapshot();
    AxesTab tab;
    QList<QLineEdit*> filters;
    QTableView* view = nullptr;
    const AxesMatrix* matrix = nullptr;
};

} // namespace

TEST(AxesMatrix, ShowsThePairsOfTheShippedDocument)
{
    const auto snapshot = shippedSnapshot();
    AxesMatrix matrix;
    const QAbstractItemModelTester tester(&matrix, QAbstractItemModelTester::FailureReportingMode::Fatal);
    EXPECT_TRUE(matrix.show(snapshot->axes().getAxesCombinations()));
    expectContent(matrix, snapshot->axes());
    EXPECT_GT(matrix.pairCount(), 100);
    EXPECT_FALSE(matrix.show(shippedSnapshot()->axes().getAxesCombinations()));
}

TEST(AxesMatrix, ShowsThePairsOfRandomDocuments)
{
    AxesMatrix matrix;
    forRandomSnapshots(150, [&](const auto& snapshot) {
        matrix.show(snapshot->axes().getAxesCombinations());
        expectContent(matrix, snapshot->axes());
    });
}

TEST(AxesMatrix, SeesAChangeOfAScaleAlone)
{
    AxesMatrix matrix;
    EXPECT_TRUE(matrix.show({pair(u"a"_s, u"b"_s)}));
    EXPECT_TRUE(matrix.show({pair(u"a"_s, u"b"_s, true)}));
    EXPECT_FALSE(matrix.show({pair(u"a"_s, u"b"_s, true), pair(u"a"_s, u"b"_s)})); // the first one counts
    EXPECT_TRUE(matrix.show({pair(u"a"_s, u"b"_s, true, false, true)}));
    EXPECT_EQ(matrix.words(matrix.index(0, 0)), u"a × b: logarithmic, linear, orthonormal"_s);
    EXPECT_TRUE(matrix.show({}));
    EXPECT_FALSE(matrix.show({AxesCombination()})); // which is not valid
    EXPECT_EQ(matrix.words(matrix.index(0, 0)), QString());
}

TEST(AxesMatrix, FiltersSortsAndHides)
{
    AxesMatrix matrix;
    matrix.show({pair(u"Time / s"_s, u"Voltage / V"_s), pair(u"Step Time / s"_s, u"current / A"_s),
                 pair(u"Cycle"_s, u"Energy / Wh"_s, false, true)});
    EXPECT_EQ(matrix.words(matrix.index(2, 2)), u"Cycle × Energy / Wh: linear, logarithmic"_s);
    EXPECT_EQ(matrix.words(matrix.index(0, 2)), u"Cycle × Voltage / V: not offered"_s);

    matrix.setView({.xWords = {u"time"_s}, .order = AxesMatrix::Order::Name});
    EXPECT_EQ(matrix.columnCount(), 2);
    EXPECT_EQ(matrix.rowCount(), 2);
    EXPECT_EQ(matrix.xName(0), u"Step Time / s"_s);
    EXPECT_EQ(matrix.yName(0), u"current / A"_s);
    EXPECT_EQ(matrix.shownPairCount(), 2);
    EXPECT_FALSE(matrix.cellOf(u"Cycle"_s, u"Energy / Wh"_s).isValid());
    EXPECT_EQ(matrix.cellOf(u"Time / s"_s, u"Voltage / V"_s), matrix.index(1, 1));

    matrix.setView({.xWords = {u"time"_s}, .hidesEmpty = false});
    EXPECT_EQ(matrix.rowCount(), 3);
    matrix.setView({.xWords = {u"time"_s}, .yWords = {u"energy"_s}});
    EXPECT_EQ(matrix.rowCount() + matrix.columnCount(), 0);
}

TEST(AxesMatrix, HasAHundredThousandPairs)
{
    QList<AxesCombination> pairs;
    for (int x = 0; x < 250; ++x) {
        for (int y = 0; y < 400; ++y) {
            pairs.append(pair(u"X %1"_s.arg(x), u"Y %1"_s.arg(y), (x + y) % 2 == 0));
        }
    }
    AxesMatrix matrix;
    QElapsedTimer timer;
    timer.start();
    matrix.show(pairs);
    std::printf("shown after %lld ms\n", timer.restart());
    EXPECT_FALSE(matrix.show(pairs));
    std::printf("found the same after %lld ms\n", timer.restart());
    matrix.setView({.xWords = {u"9"_s}, .order = AxesMatrix::Order::Name});
    std::printf("filtered after %lld ms\n", timer.restart());
    EXPECT_EQ(matrix.pairCount(), 100'000);
    matrix.setView({});
    QTableView view;
    view.setModel(&matrix);
    view.resize(640, 700);
    view.show();
    timer.restart();
    view.grab();
    std::printf("painted after %lld ms\n", timer.restart());
    EXPECT_TRUE(matrix.pairAt(matrix.index(399, 249)).has_value());
}

TEST(AxesPlaces, LeadToTheFirstEntryWithThePair)
{
    expectPlaces(*shippedSnapshot());
    forRandomSnapshots(60, [](const auto& snapshot) { expectPlaces(*snapshot); });
}

TEST(AxesPlaces, AreFoundAmongAThousandEntries)
{
    const QJsonArray entries = shippedSnapshot()->root()[u"Axes combinations"_s].toArray();
    QJsonArray many;
    for (int i = 0; i < 1000; ++i) {
        many.append(entries.at(i % entries.size()));
    }
    QElapsedTimer timer;
    timer.start();
    const AxesPlaces places(QJsonObject{{u"Axes combinations"_s, many}});
    std::printf("read after %lld ms\n", timer.restart());
    EXPECT_EQ(places.placeOf(u"no"_s, u"such"_s), u"/Axes combinations"_s);
    std::printf("looked up after %lld ms\n", timer.restart());
}

TEST_F(AxesTabOnScreen, ShowsThePairs)
{
    expectContent(*matrix, snapshot->axes());
    EXPECT_TRUE(texts().contains(u"Pairs shown: %1 of %1."_s.arg(matrix->pairCount()))) << texts().toStdString();
    tab.present(emptySnapshot());
    EXPECT_EQ(matrix->rowCount() + matrix->columnCount(), 0);
    EXPECT_TRUE(texts().contains(u"The document gives none."_s));
    view->setFocus();
    QTest::keyClick(view, Qt::Key_Return);
}

TEST_F(AxesTabOnScreen, IsQuickToSeeThatNothingChanged)
{
    QSignalSpy resets(matrix, &QAbstractItemModel::modelReset);
    const auto again = shippedSnapshot();
    QElapsedTimer timer;
    timer.start();
    tab.present(again);
    std::printf("present() of the same: %.3f ms\n", static_cast<double>(timer.nsecsElapsed()) / 1e6);
    EXPECT_EQ(resets.count(), 0);
}

TEST_F(AxesTabOnScreen, LeadsToPlotAndPlaceByClickAndByEnter)
{
    QSignalSpy places(&tab, &AxesTab::placeWanted);
    QSignalSpy plots(&tab, &AxesTab::plotWanted);
    const QModelIndex mark = cell(true);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(mark).center());
    ASSERT_EQ(places.count(), 1);
    ASSERT_EQ(plots.count(), 1);
    EXPECT_EQ(plots.at(0).at(0).toString(), matrix->xName(mark.column()));
    EXPECT_EQ(plots.at(0).at(1).toString(), matrix->yName(mark.row()));
    EXPECT_EQ(places.at(0).at(0).toString(), u"/Axes combinations/0"_s);
    EXPECT_TRUE(texts().contains(matrix->words(mark)));
    view->setFocus();
    QTest::keyClick(view, Qt::Key_Return);
    EXPECT_EQ(plots.count(), 2);

    view->setCurrentIndex(cell(false));
    QTest::keyClick(view, Qt::Key_Enter);
    EXPECT_EQ(plots.count(), 2); // nothing is offered there
}

TEST_F(AxesTabOnScreen, FiltersByKeyboardAndKeepsTheChosenCell)
{
    const QModelIndex last = matrix->cellOf(u"Test Time / s"_s, u"Voltage / V"_s);
    ASSERT_TRUE(last.isValid());
    view->setCurrentIndex(last);
    view->setFocus();
    QTest::keyClick(&tab, Qt::Key_L, Qt::ControlModifier);
    ASSERT_TRUE(filters.at(0)->hasFocus());
    QTest::keyClicks(filters.at(0), u"cycle"_s);
    EXPECT_GT(matrix->columnCount(), 0);
    for (int column = 0; column < matrix->columnCount(); ++column) {
        EXPECT_TRUE(matrix->xName(column).contains(u"cycle"_s, Qt::CaseInsensitive));
    }
    EXPECT_FALSE(matrix->cellOf(u"Test Time / s"_s, u"Voltage / V"_s).isValid());
    QTest::keyClick(filters.at(0), Qt::Key_Escape);
    EXPECT_EQ(view->currentIndex(), matrix->cellOf(u"Test Time / s"_s, u"Voltage / V"_s));

    QTest::keyClick(filters.at(0), Qt::Key_L, Qt::ControlModifier);
    EXPECT_TRUE(filters.at(1)->hasFocus());
    tab.findChild<QComboBox*>()->setCurrentIndex(1);
    for (int row = 1; row < matrix->rowCount(); ++row) {
        EXPECT_LE(matrix->yName(row - 1).compare(matrix->yName(row), Qt::CaseInsensitive), 0);
    }
    EXPECT_EQ(view->currentIndex(), matrix->cellOf(u"Test Time / s"_s, u"Voltage / V"_s));
    QTest::keyClicks(filters.at(1), u"no such axis"_s);
    EXPECT_EQ(matrix->rowCount(), 0);
    QTest::keyClick(filters.at(1), Qt::Key_Return); // to a table without cells
    QTest::keyClick(view, Qt::Key_Return);
}
