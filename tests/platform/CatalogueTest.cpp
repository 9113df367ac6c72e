#include <archive/ArchiveContext.h>
#include <batterydata/ClConfigDataArrayManager.h>
#include <batterydata/RawDataCollection.h>

#include <QJsonArray>
#include <QJsonObject>

#include <gtest/gtest.h>

#include <memory>
#include <thread>
#include <type_traits>
#include <utility>
#include <vector>

using cl::archive::ArchiveContext;
using cl::batterydata::ClConfigDataArray;
using cl::batterydata::ClConfigDataArrayManager;
using cl::batterydata::RawDataCollection;
using cl::datastorage::ConfigDataArray;
using cl::datastorage::DataConfigType;
using cl::datastorage::DataType;
using cl::datastorage::PhysicalParameter;
using cl::datastorage::UsualUnit;

namespace {

// One object that nobody else can make.
static_assert(!std::is_default_constructible_v<RawDataCollection>);
static_assert(!std::is_copy_constructible_v<RawDataCollection>);
static_assert(!std::is_default_constructible_v<lumo::tools::Singleton<RawDataCollection>::token>);

std::unique_ptr<ClConfigDataArray> makeArray(const QString& name, const QString& category,
                                             const QString& description = {})
{
    return std::make_unique<ClConfigDataArray>(name, PhysicalParameter::None, DataType::Double, UsualUnit(),
                                               DataConfigType::Measured, description, QString(), category, false,
                                               QString());
}

QStringList categoriesOf(const QList<ConfigDataArray*>& arrays)
{
    QStringList categories;
    for (const ConfigDataArray* array : arrays) {
        categories.append(array->getCategory());
    }
    return categories;
}

} // namespace

TEST(Catalogue, IsEmptyAtFirst)
{
    const ClConfigDataArrayManager catalogue;
    EXPECT_TRUE(catalogue.getAll().isEmpty());
    EXPECT_TRUE(catalogue.getCategories().isEmpty());
    EXPECT_EQ(catalogue.getConfigDataArray(QString(), QString()), nullptr);
    EXPECT_TRUE(catalogue.getConfigDataArrays(QString()).isEmpty());
}

TEST(Catalogue, FindsAnArrayByItsNameAndCategoryOnly)
{
    ClConfigDataArrayManager catalogue;
    const ClConfigDataArray* inCycle = catalogue.append(makeArray(u"Voltage"_qs, u"Cycle"_qs));
    const ClConfigDataArray* inStep = catalogue.append(makeArray(u"Voltage"_qs, u"Step"_qs));
    EXPECT_EQ(catalogue.getConfigDataArray(u"Voltage"_qs, u"Cycle"_qs), inCycle);
    EXPECT_EQ(catalogue.getConfigDataArray(u"Voltage"_qs, u"Step"_qs), inStep);
    EXPECT_EQ(catalogue.getConfigDataArray(u"Voltage"_qs, u"Loop"_qs), nullptr);
    EXPECT_EQ(catalogue.getConfigDataArray(u"Voltage"_qs, QString()), nullptr);
    EXPECT_EQ(catalogue.getConfigDataArray(u"voltage"_qs, u"Cycle"_qs), nullptr);
    EXPECT_EQ(catalogue.getConfigDataArray(u"Cycle"_qs, u"Voltage"_qs), nullptr);
}

TEST(Catalogue, FindsAnArrayOfEmptyTexts)
{
    ClConfigDataArrayManager catalogue;
    const ClConfigDataArray* array = catalogue.append(makeArray(QString(), QString()));
    EXPECT_EQ(catalogue.getConfigDataArray(u""_qs, QString()), array);
    EXPECT_EQ(catalogue.getConfigDataArrays(u""_qs), QList<ConfigDataArray*>{catalogue.getAll().first()});
}

TEST(Catalogue, FindsAllArraysOfANameInCatalogueOrder)
{
    ClConfigDataArrayManager catalogue;
    for (const QString& category : {u"Step"_qs, u"Cycle"_qs, u"Loop"_qs}) {
        catalogue.append(makeArray(u"Voltage"_qs, category));
        catalogue.append(makeArray(u"Current"_qs, category));
    }
    EXPECT_EQ(categoriesOf(catalogue.getConfigDataArrays(u"Voltage"_qs)),
              (QStringList{u"Step"_qs, u"Cycle"_qs, u"Loop"_qs}));
    EXPECT_TRUE(catalogue.getConfigDataArrays(u"Power"_qs).isEmpty());
    EXPECT_EQ(catalogue.getCategories(), (QStringList{u"Step"_qs, u"Cycle"_qs, u"Loop"_qs}));
    EXPECT_EQ(catalogue.getAll().size(), 6);
    EXPECT_EQ(catalogue.getAll().value(1)->getName(), u"Current"_qs);
}

TEST(Catalogue, HandsOutTheSameListToEveryCall)
{
    ClConfigDataArrayManager catalogue;
    catalogue.append(makeArray(u"Voltage"_qs, u"Cycle"_qs));
    EXPECT_EQ(catalogue.getConfigDataArrays(u"Voltage"_qs).constData(),
              catalogue.getConfigDataArrays(u"Voltage"_qs).constData());
}

TEST(Catalogue, OfARepeatedIdentityTheFirstStays)
{
    ClConfigDataArrayManager catalogue;
    ClConfigDataArray* first = catalogue.append(makeArray(u"Voltage"_qs, u"Cycle"_qs, u"first"_qs));
    EXPECT_EQ(catalogue.append(makeArray(u"Voltage"_qs, u"Cycle"_qs, u"second"_qs)), first);
    EXPECT_EQ(first->getDescription(), u"first"_qs);
    EXPECT_EQ(catalogue.getAll(), QList<ClConfigDataArray*>{first});
    EXPECT_EQ(catalogue.getConfigDataArrays(u"Voltage"_qs), QList<ConfigDataArray*>{first});
}

TEST(Catalogue, ClearDeletesTheArraysAndLeavesAUsableCatalogue)
{
    ClConfigDataArrayManager catalogue;
    catalogue.append(makeArray(u"Voltage"_qs, u"Cycle"_qs));
    catalogue.clear();
    EXPECT_TRUE(catalogue.getAll().isEmpty());
    EXPECT_TRUE(catalogue.getCategories().isEmpty());
    EXPECT_EQ(catalogue.getConfigDataArray(u"Voltage"_qs, u"Cycle"_qs), nullptr);
    EXPECT_TRUE(catalogue.getConfigDataArrays(u"Voltage"_qs).isEmpty());
    const ClConfigDataArray* again = catalogue.append(makeArray(u"Voltage"_qs, u"Cycle"_qs));
    EXPECT_EQ(catalogue.getConfigDataArray(u"Voltage"_qs, u"Cycle"_qs), again);
}

TEST(Catalogue, WritesItsArraysAndReadsThemBackInOrder)
{
    ArchiveContext context;
    ClConfigDataArrayManager catalogue;
    catalogue.append(makeArray(u"Voltage"_qs, u"Step"_qs, u"a description"_qs));
    catalogue.append(makeArray(u"Current"_qs, u"Cycle"_qs));
    QJsonObject object;
    EXPECT_TRUE(catalogue.write(object, 1, context));

    ClConfigDataArrayManager other;
    other.append(makeArray(u"Replaced"_qs, u"Step"_qs));
    EXPECT_TRUE(other.read(object, 1, context));
    ASSERT_EQ(other.getAll().size(), 2);
    EXPECT_EQ(other.getAll().first()->getName(), u"Voltage"_qs);
    EXPECT_EQ(other.getAll().first()->getDescription(), u"a description"_qs);
    EXPECT_EQ(other.getCategories(), (QStringList{u"Step"_qs, u"Cycle"_qs}));
    EXPECT_NE(other.getConfigDataArray(u"Current"_qs, u"Cycle"_qs), nullptr);
    EXPECT_EQ(other.getConfigDataArray(u"Replaced"_qs, u"Step"_qs), nullptr);
}

TEST(Catalogue, StaysAsItWasWhenOneArrayCannotBeRead)
{
    ArchiveContext context;
    ClConfigDataArrayManager catalogue;
    catalogue.append(makeArray(u"Voltage"_qs, u"Step"_qs));
    QJsonObject object;
    catalogue.write(object, 1, context);
    QJsonArray arrays = object.value(u"dataArrays"_qs).toArray();
    arrays.append(3);
    object.insert(u"dataArrays"_qs, arrays);

    ClConfigDataArrayManager other;
    const ClConfigDataArray* kept = other.append(makeArray(u"Kept"_qs, u"Step"_qs));
    EXPECT_FALSE(other.read(object, 1, context));
    EXPECT_EQ(other.getConfigDataArray(u"Kept"_qs, u"Step"_qs), kept);
    EXPECT_EQ(other.getAll().size(), 1);
}

TEST(Catalogue, ReadsNoArraysFromAnObjectWithoutThem)
{
    ArchiveContext context;
    ClConfigDataArrayManager catalogue;
    catalogue.append(makeArray(u"Voltage"_qs, u"Step"_qs));
    EXPECT_TRUE(catalogue.read({}, 1, context));
    EXPECT_TRUE(catalogue.getAll().isEmpty());
}

TEST(RawDataCollection, IsReadByManyThreadsAtOnce)
{
    constexpr int ThreadCount = 4;
    std::vector<std::pair<const void*, qsizetype>> seen(ThreadCount);
    std::vector<std::thread> threads;
    threads.reserve(ThreadCount);
    for (auto& [array, count] : seen) {
        threads.emplace_back([&array = array, &count = count] {
            const ClConfigDataArrayManager& catalogue = RawDataCollection::instance().getDataConfiguration();
            array = catalogue.getConfigDataArray(u"Voltage / V"_qs, ClConfigDataArray::PotentiostatMeasure());
            for (const ClConfigDataArray* each : catalogue.getAll()) {
                count += catalogue.getConfigDataArrays(each->getName()).size();
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_NE(seen.front().first, nullptr);
    EXPECT_GE(seen.front().second, RawDataCollection::instance().getDataConfiguration().getAll().size());
    EXPECT_EQ(seen, decltype(seen)(ThreadCount, seen.front()));
}
