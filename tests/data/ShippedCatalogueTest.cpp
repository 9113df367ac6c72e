#include <batterydata/RawDataCollection.h>
#include <data/ShippedFile.h>
#include <datastorage/Converter.h>
#include <support/QtPrinters.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonObject>
#include <QStringList>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using cl::batterydata::ClConfigDataArray;
using cl::batterydata::ClConfigDataArrayManager;
using cl::batterydata::ExportCategory;
using cl::batterydata::RawDataCollection;
using cl::datastorage::ConfigDataArray;
using cl::datastorage::Converter;
using cl::datastorage::PhysicalParameter;

namespace {

const ClConfigDataArrayManager& catalogue()
{
    return RawDataCollection::instance().getDataConfiguration();
}

QList<QJsonValue> elementsOf(const QJsonValue& value)
{
    const QJsonArray array = value.toArray();
    return {array.begin(), array.end()};
}

} // namespace

TEST(ShippedCatalogue, HoldsEveryQuantityOfTheBatteryDataFormatUnderItsNames)
{
    QFile file(QStringLiteral(TEST_DATA_DIRECTORY "/bdf-quantities.csv"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    ASSERT_EQ(file.readLine().trimmed(), "preferred_label,machine_name");
    int count = 0;
    while (!file.atEnd()) {
        const QStringList cells = QString::fromUtf8(file.readLine()).trimmed().split(u',');
        ASSERT_EQ(cells.size(), 2);
        const QString name = QString(cells.at(0)).remove(u'"');
        const auto* array = dynamic_cast<ClConfigDataArray*>(
            catalogue().getConfigDataArray(name, ClConfigDataArray::PotentiostatMeasure()));
        ASSERT_NE(array, nullptr) << qPrintable(name);
        EXPECT_EQ(array->getMachineName(), cells.at(1));
        ++count;
    }
    EXPECT_EQ(count, 58);
}

TEST(ShippedCatalogue, HasSevenCategoriesOfWhichThePotentiostatMeasuresAreTheFirst)
{
    EXPECT_EQ(catalogue().getCategories(),
              (QStringList{ClConfigDataArray::PotentiostatMeasure(), u"Step"_s, u"Cycle"_s, u"Loop"_s, u"Impedance"_s,
                           u"dQ/dU"_s, u"Ragone"_s}));
}

TEST(ShippedCatalogue, IsReadWholeFromItsFile)
{
    const QJsonObject root = shippedObject(u"DataArrays.json"_s);
    qsizetype index = 0;
    for (const QJsonValue& category : elementsOf(root[u"Categories"])) {
        for (const QJsonValue& array : elementsOf(category[u"Arrays"])) {
            ASSERT_LT(index, catalogue().getAll().size()) << "an array repeats a name in its category";
            EXPECT_EQ(catalogue().getAll().at(index)->getName(), array[u"Name"].toString());
            EXPECT_EQ(catalogue().getAll().at(index)->getCategory(), category[u"Name"].toString());
            ++index;
        }
    }
    EXPECT_EQ(catalogue().getAll().size(), index);
    EXPECT_EQ(index, 232);
}

TEST(ShippedCatalogue, EveryArrayIsDescribedAndItsUnitMeasuresItsQuantity)
{
    for (const ClConfigDataArray* array : catalogue().getAll()) {
        const std::string name = array->getName().toStdString() + " in " + array->getCategory().toStdString();
        EXPECT_EQ(Converter::getPhysicalParameterFromUnits(array->getUsualUnit()), array->getPhysicalParameter())
            << name;
        EXPECT_EQ(Converter::getAvailableUnits(array->getPhysicalParameter()).contains(array->getUsualUnit()),
                  array->getPhysicalParameter() != PhysicalParameter::None)
            << name;
        EXPECT_FALSE(array->getMachineName().isEmpty()) << name;
        EXPECT_FALSE(array->getDescription().isEmpty()) << name;
        EXPECT_GE(array->getExportCategory(), ExportCategory::Never) << name;
        EXPECT_LE(array->getExportCategory(), ExportCategory::Complete) << name;
    }
}

TEST(ShippedCatalogue, TheSameNameMeansTheSameInEveryCategory)
{
    bool hasSharedName = false;
    for (const ClConfigDataArray* array : catalogue().getAll()) {
        const QList<ConfigDataArray*> sameName = catalogue().getConfigDataArrays(array->getName());
        hasSharedName = hasSharedName || sameName.size() >= 6;
        for (const ConfigDataArray* other : sameName) {
            const auto* same = dynamic_cast<const ClConfigDataArray*>(other);
            ASSERT_NE(same, nullptr);
            EXPECT_EQ(same->getMachineName(), array->getMachineName());
            EXPECT_EQ(same->getUsualUnit(), array->getUsualUnit());
            EXPECT_EQ(same->getDataType(), array->getDataType());
        }
    }
    EXPECT_TRUE(hasSharedName);
    for (const ClConfigDataArray* array : catalogue().getAll()) {
        for (const ClConfigDataArray* other : catalogue().getAll()) {
            EXPECT_EQ(array->getMachineName() == other->getMachineName(), array->getName() == other->getName())
                << qPrintable(array->getName()) << ", " << qPrintable(other->getName());
        }
    }
}
