// A class of which the process has one object must have one in the whole process, however many libraries ask for it.
// With hidden visibility, and in a DLL always, a template's static object would otherwise exist once a library.
//
// Records are made in one library and deleted in another one, which only knows their base.

#include <batterydata/RawDataCollection.h>
#include <config/MSVUnitsCombination.h>
#include <config/UIConfig.h>
#include <config/second_module/SecondModule.h>
#include <items/StatisticsChildItem.h>

#include <gtest/gtest.h>

#include <thread>
#include <vector>

using cl::batterydata::RawDataCollection;
using lumo::tools::Singleton;

namespace {

/// A record of the program's own.
class CountedItem : public StatisticsChildItem
{
public:
    ~CountedItem() override { ++deleted; }

    static inline int deleted = 0;
};

} // namespace

TEST(SecondModule, SeesTheSameConfiguration)
{
    EXPECT_EQ(&uiConfigOfSecondModule(), &Singleton<UIConfig>::instance());
}

TEST(SecondModule, SeesTheSameBatteryData)
{
    EXPECT_EQ(&rawDataCollectionOfSecondModule(), &Singleton<RawDataCollection>::instance());
}

TEST(SecondModule, SeesTheSameConfigurationWhenManyThreadsComeFirst)
{
    std::vector<UIConfig*> objects(8);
    std::vector<std::thread> threads;
    threads.reserve(objects.size());
    for (UIConfig*& object : objects) {
        const bool isOdd = threads.size() % 2 == 1;
        threads.emplace_back(
            [&object, isOdd] { object = isOdd ? &uiConfigOfSecondModule() : &Singleton<UIConfig>::instance(); });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(objects, std::vector<UIConfig*>(8, &Singleton<UIConfig>::instance()));
}

TEST(SecondModule, ItsRecordsAreDeletedByTheProgram)
{
    const AAnalysisItem* item = newItemOfSecondModule();
    EXPECT_EQ(recordsOfSecondModuleDeleted(), 0);
    delete item;
    EXPECT_EQ(recordsOfSecondModuleDeleted(), 1);
}

TEST(SecondModule, ItsRecordsAreDeletedByTheLibrary)
{
    MSVUnitsCombinationManager& manager = Singleton<UIConfig>::instance().getMSVUnitsCombinationManager();
    manager.append(newUnitsOfSecondModule());
    manager.append(newUnitsOfSecondModule());
    EXPECT_EQ(recordsOfSecondModuleDeleted(), 0);
    uiConfigOfSecondModule().deleteAll();
    EXPECT_EQ(recordsOfSecondModuleDeleted(), 2);
    EXPECT_TRUE(manager.getMSVUnitsCombinationsList().isEmpty());
}

TEST(SecondModule, DeletesRecordsOfTheProgram)
{
    deleteInSecondModule(new CountedItem);
    EXPECT_EQ(CountedItem::deleted, 1);
}
