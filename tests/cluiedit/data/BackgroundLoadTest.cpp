#include <cluiedit/data/LoadingBar.h>

#include <base/Singleton.h>
#include <batterydata/ClConfigDataArrayManager.h>
#include <batterydata/RawDataCollection.h>

#include <QElapsedTimer>
#include <QFile>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <thread>

using namespace Qt::StringLiterals;

namespace cluiedit {

namespace {

const uiconfig::Catalogue& catalogue()
{
    return lumo::tools::Singleton<cl::batterydata::RawDataCollection>::instance().getDataConfiguration();
}

class BackgroundLoadTest : public testing::Test
{
protected:
    QString write(const QString& name, int rows)
    {
        QFile file(directory.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("voltage_volt,own_column\n");
        file.write(QByteArray("3.5,1\n").repeated(rows));
        return file.fileName();
    }

    bool waitForEnd()
    {
        return QTest::qWaitFor([this] { return finished.count() > 0; }, 60000);
    }

    QTemporaryDir directory;
    BackgroundLoad background{catalogue()};
    QSignalSpy loaded{&background, &BackgroundLoad::loaded};
    QSignalSpy failed{&background, &BackgroundLoad::failed};
    QSignalSpy finished{&background, &BackgroundLoad::finished};
    QSignalSpy progress{&background, &BackgroundLoad::progress};
};

constexpr int ManyRows = 3000000;

TEST_F(BackgroundLoadTest, SeveralFilesAreLoadedInTheirOrderAndBadOnesFail)
{
    bool isInThisThread = true;
    const auto thisThread = std::this_thread::get_id();
    QObject::connect(&background, &BackgroundLoad::loaded, &background,
                     [&] { isInThisThread = isInThisThread && std::this_thread::get_id() == thisThread; });
    const QString missing = directory.filePath(u"missing.csv"_s);
    background.load({write(u"a.csv"_s, 10), missing, write(u"b.csv"_s, 20)});
    EXPECT_TRUE(background.isLoading());
    EXPECT_EQ(background.waiting(), 2);
    ASSERT_TRUE(waitForEnd());

    ASSERT_EQ(loaded.count(), 2);
    const auto first = loaded.at(0).at(0).value<std::shared_ptr<const Measurement>>();
    const auto second = loaded.at(1).at(0).value<std::shared_ptr<const Measurement>>();
    EXPECT_EQ(first->name(), u"a.csv");
    EXPECT_EQ(second->name(), u"b.csv");
    EXPECT_EQ(second->values({u"Voltage / V"_s, u"Potentiostat"_s})->size(), 20);
    EXPECT_EQ(loaded.at(0).at(1).toStringList(), QStringList(u"own_column"_s));
    ASSERT_EQ(failed.count(), 1);
    EXPECT_EQ(failed.at(0).at(0).toString(), missing);
    EXPECT_FALSE(failed.at(0).at(1).toString().isEmpty());
    EXPECT_EQ(finished.count(), 1);
    EXPECT_TRUE(isInThisThread);
    EXPECT_FALSE(background.isLoading());
}

TEST_F(BackgroundLoadTest, ProgressGrows)
{
    background.load({write(u"a.csv"_s, ManyRows)});
    ASSERT_TRUE(waitForEnd());
    double before = 0;
    for (const QList<QVariant>& report : progress) {
        EXPECT_GE(report.at(1).toDouble(), before);
        before = report.at(1).toDouble();
        EXPECT_LE(before, 1);
    }
    EXPECT_GE(progress.count(), 2);
}

TEST_F(BackgroundLoadTest, NothingComesAfterACancellation)
{
    background.load({write(u"a.csv"_s, ManyRows), write(u"b.csv"_s, 10)});
    background.cancel();
    ASSERT_TRUE(waitForEnd());
    QTest::qWait(50);
    EXPECT_EQ(loaded.count() + failed.count(), 0);
    EXPECT_EQ(finished.count(), 1);
}

TEST_F(BackgroundLoadTest, WhatIsWantedAfterACancellationIsLoaded)
{
    const QString small = write(u"b.csv"_s, 10);
    background.load({write(u"a.csv"_s, ManyRows)});
    background.cancel();
    background.load({small});
    ASSERT_TRUE(waitForEnd());
    ASSERT_EQ(loaded.count(), 1);
    EXPECT_EQ(loaded.at(0).at(0).value<std::shared_ptr<const Measurement>>()->name(), u"b.csv");
}

TEST_F(BackgroundLoadTest, CancellingNothingDoesNothing)
{
    background.cancel();
    background.load({});
    QTest::qWait(20);
    EXPECT_EQ(finished.count(), 0);
    EXPECT_FALSE(background.isLoading());
}

TEST_F(BackgroundLoadTest, ItIsDestroyedPromptlyWhileItLoads)
{
    const QString path = write(u"a.csv"_s, 4 * ManyRows);
    auto load = std::make_unique<BackgroundLoad>(catalogue());
    load->load({path, path, path});
    QTest::qWait(20);
    EXPECT_TRUE(load->isLoading());
    QElapsedTimer timer;
    timer.start();
    load.reset();
    EXPECT_LT(timer.elapsed(), 1000); // reading the files would take longer
    QTest::qWait(20);
}

TEST_F(BackgroundLoadTest, TheBarShowsWhatIsReadAndCancels)
{
    QWidget window;
    LoadingBar bar(background, &window);
    bar.resize(600, 30);
    window.show();
    EXPECT_FALSE(bar.isVisible());

    background.load({write(u"a.csv"_s, ManyRows), write(u"b.csv"_s, 10)});
    EXPECT_TRUE(bar.isVisible());
    EXPECT_EQ(bar.findChild<QProgressBar*>()->accessibleName(), u"Loading a.csv (1 more to come)");
    EXPECT_TRUE(bar.findChild<QLabel*>()->text().contains("a.csv"_L1));
    auto* cancel = bar.findChild<QPushButton*>();
    cancel->setFocus();
    QTest::keyClick(cancel, Qt::Key_Space);
    ASSERT_TRUE(waitForEnd());
    EXPECT_FALSE(bar.isVisible());
    EXPECT_EQ(loaded.count(), 0);
}

TEST_F(BackgroundLoadTest, ALongNameDoesNotWidenTheBar)
{
    LoadingBar bar(background);
    const int width = bar.minimumSizeHint().width();
    background.load({write(QString(200, u'x'), 10)});
    EXPECT_EQ(bar.minimumSizeHint().width(), width);
    ASSERT_TRUE(waitForEnd());
}

} // namespace

} // namespace cluiedit
