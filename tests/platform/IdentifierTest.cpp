#include <archive/ArchiveContext.h>
#include <batterydata/ClConfigDataArray.h>
#include <datastorage/ConfigDataArray.h>
#include <datastorage/DataArrayIdentifier.h>
#include <support/Archive.h>
#include <support/QtPrinters.h>

#include <QJsonObject>

#include <gtest/gtest.h>

using cl::archive::ArchiveContext;
using cl::batterydata::ClConfigDataArray;
using cl::batterydata::ExportCategory;
using cl::datastorage::ConfigDataArray;
using cl::datastorage::DataArrayIdentifier;
using cl::datastorage::DataConfigType;
using cl::datastorage::DataType;
using cl::datastorage::PhysicalParameter;
using cl::datastorage::UsualUnit;
using cl::datastorage::UsualUnitOperator;
using cl::datastorage::UsualUnitType;

namespace {

ClConfigDataArray makeSpecificCharge()
{
    ClConfigDataArray array(u"Specific Charge"_qs, PhysicalParameter::SpecificCharge, DataType::Float,
                            UsualUnit(UsualUnitType::MilliampereHour, UsualUnitOperator::Divide, UsualUnitType::Gram),
                            DataConfigType::Computed, u"Charge per mass"_qs, u"specific_charge"_qs, u"Cycle"_qs, true,
                            u"Charge / mass"_qs);
    array.setExportCategory(ExportCategory::OnDemand);
    return array;
}

} // namespace

TEST(DataArrayIdentifier, IsEmptyByDefault)
{
    const DataArrayIdentifier identifier;
    EXPECT_EQ(identifier.getName(), QString());
    EXPECT_EQ(identifier.getCategory(), QString());
}

TEST(DataArrayIdentifier, TakesNameBeforeCategory)
{
    DataArrayIdentifier identifier(u"Voltage"_qs, u"Cycle"_qs);
    EXPECT_EQ(identifier.getName(), u"Voltage"_qs);
    EXPECT_EQ(identifier.getCategory(), u"Cycle"_qs);
    identifier.setName(u"Current"_qs);
    identifier.setCategory(u"Step"_qs);
    EXPECT_EQ(identifier.getName(), u"Current"_qs);
    EXPECT_EQ(identifier.getCategory(), u"Step"_qs);
}

TEST(DataArrayIdentifier, WritesNameAndCategoryAndReadsThemBack)
{
    ArchiveContext context;
    QJsonObject object{{u"other"_qs, 1}};
    EXPECT_TRUE(DataArrayIdentifier(u"Voltage"_qs, u"Cycle"_qs).write(object, 7, context));
    const QJsonObject expected{{u"other"_qs, 1}, {u"name"_qs, u"Voltage"_qs}, {u"category"_qs, u"Cycle"_qs}};
    EXPECT_EQ(object, expected);

    DataArrayIdentifier identifier;
    EXPECT_TRUE(identifier.read(object, 7, context));
    EXPECT_EQ(identifier.getName(), u"Voltage"_qs);
    EXPECT_EQ(identifier.getCategory(), u"Cycle"_qs);
}

TEST(DataArrayIdentifier, EmptyTextsSurviveTheArchive)
{
    ArchiveContext context;
    QJsonObject object;
    EXPECT_TRUE(DataArrayIdentifier().write(object, 1, context));
    DataArrayIdentifier identifier(u"Voltage"_qs, u"Cycle"_qs);
    EXPECT_TRUE(identifier.read(object, 1, context));
    EXPECT_EQ(identifier.getName(), QString());
    EXPECT_EQ(identifier.getCategory(), QString());
}

TEST(DataArrayIdentifier, RefusesAMissingOrMistypedTextAndStaysAsItWas)
{
    ArchiveContext context;
    DataArrayIdentifier identifier(u"Voltage"_qs, u"Cycle"_qs);
    EXPECT_FALSE(identifier.read({}, 1, context));
    EXPECT_FALSE(identifier.read({{u"name"_qs, u"Current"_qs}}, 1, context));
    EXPECT_FALSE(identifier.read({{u"category"_qs, u"Step"_qs}}, 1, context));
    EXPECT_FALSE(identifier.read({{u"name"_qs, u"Current"_qs}, {u"category"_qs, 3}}, 1, context));
    EXPECT_FALSE(identifier.read({{u"name"_qs, QJsonValue::Null}, {u"category"_qs, u"Step"_qs}}, 1, context));
    EXPECT_EQ(identifier.getName(), u"Voltage"_qs);
    EXPECT_EQ(identifier.getCategory(), u"Cycle"_qs);
}

TEST(ConfigDataArray, IsOnNoAxisUntilItIsSet)
{
    ConfigDataArray array(u"Voltage"_qs, u"Cycle"_qs);
    EXPECT_EQ(array.getName(), u"Voltage"_qs);
    EXPECT_FALSE(array.isDefaultX());
    EXPECT_FALSE(array.isDefaultY1());
    EXPECT_FALSE(array.isDefaultY2());
    array.setDefaultY1(true);
    EXPECT_FALSE(array.isDefaultX());
    EXPECT_TRUE(array.isDefaultY1());
    EXPECT_FALSE(array.isDefaultY2());
    array.setDefaultX(true);
    array.setDefaultY2(true);
    array.setDefaultY1(false);
    EXPECT_TRUE(array.isDefaultX());
    EXPECT_FALSE(array.isDefaultY1());
    EXPECT_TRUE(array.isDefaultY2());
}

TEST(ConfigDataArray, IsEmptyByDefault)
{
    EXPECT_EQ(ConfigDataArray().getName(), QString());
}

TEST(ClConfigDataArray, TakesTheCategoryAsEighthArgument)
{
    const ClConfigDataArray array = makeSpecificCharge();
    EXPECT_EQ(array.getName(), u"Specific Charge"_qs);
    EXPECT_EQ(array.getPhysicalParameter(), PhysicalParameter::SpecificCharge);
    EXPECT_EQ(array.getDataType(), DataType::Float);
    EXPECT_EQ(array.getUsualUnit().getUnit2(), UsualUnitType::Gram);
    EXPECT_EQ(array.getDataConfigType(), DataConfigType::Computed);
    EXPECT_EQ(array.getDescription(), u"Charge per mass"_qs);
    EXPECT_EQ(array.getMachineName(), u"specific_charge"_qs);
    EXPECT_EQ(array.getCategory(), u"Cycle"_qs);
    EXPECT_TRUE(array.isRequired());
    EXPECT_EQ(array.getFormula(), u"Charge / mass"_qs);
}

TEST(ClConfigDataArray, TheExportCategoryThatAllowsDefaultAxesIsTwo)
{
    EXPECT_EQ(static_cast<int>(ExportCategory::Standard), 2);
    EXPECT_EQ(ClConfigDataArray().getExportCategory(), ExportCategory::Complete);
}

TEST(ClConfigDataArray, TheFirstConfigTypeIsZero)
{
    EXPECT_EQ(static_cast<int>(DataConfigType::Measured), 0);
}

TEST(ClConfigDataArray, WritesItsWholeDescriptionAndReadsItBack)
{
    ArchiveContext context;
    QJsonObject object;
    EXPECT_TRUE(makeSpecificCharge().write(object, 1, context));
    EXPECT_EQ(object.value(u"unit"_qs), QJsonValue(u"mAh/g"_qs));
    EXPECT_EQ(object.value(u"physicalParameter"_qs), QJsonValue(32));

    ClConfigDataArray array;
    array.setDefaultX(true);
    EXPECT_TRUE(array.read(object, 1, context));
    EXPECT_EQ(array.getName(), u"Specific Charge"_qs);
    EXPECT_EQ(array.getCategory(), u"Cycle"_qs);
    EXPECT_EQ(array.getPhysicalParameter(), PhysicalParameter::SpecificCharge);
    EXPECT_EQ(array.getDataType(), DataType::Float);
    EXPECT_EQ(array.getUsualUnit(), makeSpecificCharge().getUsualUnit());
    EXPECT_EQ(array.getDataConfigType(), DataConfigType::Computed);
    EXPECT_EQ(array.getDescription(), u"Charge per mass"_qs);
    EXPECT_EQ(array.getMachineName(), u"specific_charge"_qs);
    EXPECT_TRUE(array.isRequired());
    EXPECT_EQ(array.getFormula(), u"Charge / mass"_qs);
    EXPECT_EQ(array.getExportCategory(), ExportCategory::OnDemand);
    EXPECT_TRUE(array.isDefaultX()) << "default axes are no part of the archive";
}

TEST(ClConfigDataArray, RefusesEveryMissingOrWrongKeyAndStaysAsItWas)
{
    ArchiveContext context;
    const QJsonObject complete = written(makeSpecificCharge());
    EXPECT_EQ(complete.size(), 11);
    ClConfigDataArray array;
    const QJsonObject before = written(array);
    for (const QString& key : complete.keys()) {
        EXPECT_NE(before.value(key), complete.value(key)) << qPrintable(key);
        QJsonObject object = complete;
        object.remove(key);
        EXPECT_FALSE(array.read(object, 1, context)) << qPrintable(key);
        object.insert(key, QJsonObject());
        EXPECT_FALSE(array.read(object, 1, context)) << qPrintable(key);
        EXPECT_EQ(written(array), before) << qPrintable(key);
    }
    const QList<std::pair<QString, QJsonValue>> wrongValues = {
        {u"unit"_qs, u"mAh/x"_qs}, {u"dataType"_qs, 5},         {u"dataType"_qs, -1},          {u"configType"_qs, 2},
        {u"exportCategory"_qs, 4}, {u"exportCategory"_qs, 1.5}, {u"physicalParameter"_qs, 22},
    };
    for (const auto& [key, value] : wrongValues) {
        QJsonObject object = complete;
        object.insert(key, value);
        EXPECT_FALSE(ClConfigDataArray().read(object, 1, context)) << qPrintable(key);
    }
}
