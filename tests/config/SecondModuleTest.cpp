// A class of which the process has one object must have one in the whole process, however many libraries ask for it.
// With hidden visibility, and in a DLL always, a template's static object would otherwise exist once a library.

#include <batterydata/RawDataCollection.h>
#include <config/UIConfig.h>
#include <config/second_module/SecondModule.h>

#include <gtest/gtest.h>

#include <thread>
#include <vector>

using cl::batterydata::RawDataCollection;
using lumo::tools::Singleton;

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
