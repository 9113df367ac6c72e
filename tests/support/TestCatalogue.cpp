#include <support/TestCatalogue.h>

#include <archive/ArchiveContext.h>
#include <base/Singleton.h>
#include <batterydata/ClConfigDataArray.h>
#include <batterydata/ClConfigDataArrayManager.h>
#include <batterydata/RawDataCollection.h>

#include <gtest/gtest.h>

#include <memory>

using cl::batterydata::ClConfigDataArray;

namespace {

constexpr int AnyVersion = 1;

cl::batterydata::ClConfigDataArrayManager& catalogue()
{
    return lumo::tools::Singleton<cl::batterydata::RawDataCollection>::instance().getDataConfiguration();
}

} // namespace

TestCatalogue::TestCatalogue(std::initializer_list<Array> arrays)
{
    cl::archive::ArchiveContext context;
    catalogue().write(m_replaced, AnyVersion, context);
    catalogue().clear();
    for (const Array& array : arrays) {
        add(array);
    }
}

TestCatalogue::~TestCatalogue()
{
    cl::archive::ArchiveContext context;
    EXPECT_TRUE(catalogue().read(m_replaced, AnyVersion, context)) << "the replaced catalogue is lost";
}

ClConfigDataArray* TestCatalogue::add(const Array& array)
{
    auto added = std::make_unique<ClConfigDataArray>(
        array.name, cl::datastorage::PhysicalParameter{}, cl::datastorage::DataType{}, cl::datastorage::UsualUnit(),
        cl::datastorage::DataConfigType{}, QString(), QString(), array.category, false, QString());
    added->setExportCategory(array.exportCategory);
    return catalogue().append(std::move(added));
}
