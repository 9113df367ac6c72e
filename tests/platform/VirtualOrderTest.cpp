#include <batterydata/ClConfigDataArrayManager.h>
#include <dataprocess/IDataStream.h>
#include <datastorage/DataArrayIdentifier.h>
#include <support/VirtualSlot.h>

#include <gtest/gtest.h>

#if HAVE_VIRTUAL_SLOTS

// The two destructors take slots 0 and 1.

TEST(VirtualOrder, OfAnIdentifierIsDestructorReadWrite)
{
    using cl::datastorage::DataArrayIdentifier;
    EXPECT_EQ(virtualSlot(&DataArrayIdentifier::read), 2U);
    EXPECT_EQ(virtualSlot(&DataArrayIdentifier::write), 3U);
    EXPECT_EQ(virtualSlots<DataArrayIdentifier>(), 4U);
    EXPECT_EQ(virtualSlots<cl::batterydata::ClConfigDataArray>(), 4U);
}

TEST(VirtualOrder, OfTheCatalogueEndsWithTheLookupByNameAndCategory)
{
    using cl::batterydata::ClConfigDataArrayManager;
    EXPECT_EQ(virtualSlot(&ClConfigDataArrayManager::read), 2U);
    EXPECT_EQ(virtualSlot(&ClConfigDataArrayManager::write), 3U);
    EXPECT_EQ(virtualSlot(&ClConfigDataArrayManager::getConfigDataArray), 4U);
    EXPECT_EQ(virtualSlots<ClConfigDataArrayManager>(), 5U);
}

TEST(VirtualOrder, OfADataStreamGoesFromCategoryToCount)
{
    using cl::dataprocess::IDataStream;
    EXPECT_EQ(virtualSlot(&IDataStream::getCategory), 2U);
    EXPECT_EQ(virtualSlot(&IDataStream::getName), 3U);
    EXPECT_EQ(virtualSlot(&IDataStream::getPhysicalParameter), 4U);
    EXPECT_EQ(virtualSlot(&IDataStream::getDataType), 5U);
    EXPECT_EQ(virtualSlot(&IDataStream::getUsualUnit), 6U);
    EXPECT_EQ(virtualSlot(&IDataStream::hasIndex), 7U);
    EXPECT_EQ(virtualSlot(&IDataStream::getCount), 8U);
}

#endif
