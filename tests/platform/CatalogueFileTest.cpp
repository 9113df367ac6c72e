#include <batterydata/ClConfigDataArrayManager.h>
#include <datastorage/Converter.h>
#include <support/DocumentFile.h>
#include <support/QtPrinters.h>

#include <gtest/gtest.h>

#include <memory>

using cl::batterydata::ClConfigDataArray;
using cl::batterydata::ClConfigDataArrayManager;
using cl::batterydata::ExportCategory;
using cl::datastorage::Converter;
using cl::datastorage::DataConfigType;
using cl::datastorage::DataType;
using cl::datastorage::PhysicalParameter;

namespace {

QByteArray document(const QByteArray& arrays)
{
    return R"({"Version": 1, "Categories": [{"Name": "Cycle", "Arrays": [)" + arrays + "]}]}";
}

// Reads a catalogue that must be refused, and checks that the one before it is still there.
QString errorOf(const QByteArray& content)
{
    const DocumentFile file(content);
    ClConfigDataArrayManager catalogue;
    const ClConfigDataArray* kept = catalogue.append(std::make_unique<ClConfigDataArray>());
    QString error;
    EXPECT_FALSE(catalogue.readCatalogue(file.path(), error)) << content.constData();
    EXPECT_EQ(catalogue.getAll().size(), 1);
    EXPECT_EQ(catalogue.getConfigDataArray(QString(), QString()), kept);
    return error.replace(file.path(), u"PATH"_qs);
}

} // namespace

TEST(CatalogueFile, GivesArraysWithAllTheirProperties)
{
    const DocumentFile file(document(R"({"Name": "Specific Charge", "Parameter": "Specific charge", "Unit": "mAh/g",
        "Type": "Float", "Export": "On demand", "Required": true, "Machine name": "specific_charge",
        "Description": "Charge per mass", "Formula": "Charge / mass"})"));
    ClConfigDataArrayManager catalogue;
    catalogue.append(std::make_unique<ClConfigDataArray>());
    QString error = u"untouched"_qs;
    ASSERT_TRUE(catalogue.readCatalogue(file.path(), error)) << qPrintable(error);
    EXPECT_EQ(error, u"untouched"_qs);
    ASSERT_EQ(catalogue.getAll().size(), 1);
    const ClConfigDataArray& array = *catalogue.getAll().first();
    EXPECT_EQ(array.getName(), u"Specific Charge"_qs);
    EXPECT_EQ(array.getCategory(), u"Cycle"_qs);
    EXPECT_EQ(array.getPhysicalParameter(), PhysicalParameter::SpecificCharge);
    EXPECT_EQ(Converter::toString(array.getUsualUnit()), u"mAh/g"_qs);
    EXPECT_EQ(array.getDataType(), DataType::Float);
    EXPECT_EQ(array.getExportCategory(), ExportCategory::OnDemand);
    EXPECT_TRUE(array.isRequired());
    EXPECT_EQ(array.getMachineName(), u"specific_charge"_qs);
    EXPECT_EQ(array.getDescription(), u"Charge per mass"_qs);
    EXPECT_EQ(array.getFormula(), u"Charge / mass"_qs);
    EXPECT_EQ(array.getDataConfigType(), DataConfigType::Computed);
}

TEST(CatalogueFile, ANameIsEnoughForAnArray)
{
    const DocumentFile file(document(R"({"Name": "Count"})"));
    ClConfigDataArrayManager catalogue;
    QString error;
    ASSERT_TRUE(catalogue.readCatalogue(file.path(), error)) << qPrintable(error);
    const ClConfigDataArray& array = *catalogue.getAll().value(0);
    EXPECT_EQ(array.getPhysicalParameter(), PhysicalParameter::None);
    EXPECT_EQ(Converter::toString(array.getUsualUnit()), QString());
    EXPECT_EQ(array.getDataType(), DataType::Double);
    EXPECT_EQ(array.getExportCategory(), ExportCategory::Standard);
    EXPECT_FALSE(array.isRequired());
    EXPECT_EQ(array.getDataConfigType(), DataConfigType::Measured);
}

TEST(CatalogueFile, OfARepeatedNameTheFirstCounts)
{
    const DocumentFile file(document(R"({"Name": "Count", "Description": "first"}, {"Name": "Count"})"));
    ClConfigDataArrayManager catalogue;
    QString error;
    ASSERT_TRUE(catalogue.readCatalogue(file.path(), error)) << qPrintable(error);
    ASSERT_EQ(catalogue.getAll().size(), 1);
    EXPECT_EQ(catalogue.getAll().first()->getDescription(), u"first"_qs);
}

TEST(CatalogueFile, MayBeEmpty)
{
    const DocumentFile file(R"({"Version": 1, "Categories": []})");
    ClConfigDataArrayManager catalogue;
    catalogue.append(std::make_unique<ClConfigDataArray>());
    QString error;
    EXPECT_TRUE(catalogue.readCatalogue(file.path(), error));
    EXPECT_TRUE(catalogue.getAll().isEmpty());
}

TEST(CatalogueFile, RefusesWhatIsNoJsonWithItsPlace)
{
    EXPECT_EQ(errorOf("{\n  x"), u"\"PATH\" is not valid JSON: line 2, column 3: unterminated object"_qs);
    EXPECT_EQ(errorOf(""), u"\"PATH\" is empty"_qs);
}

TEST(CatalogueFile, RefusesAMissingFile)
{
    ClConfigDataArrayManager catalogue;
    QString error;
    EXPECT_FALSE(catalogue.readCatalogue(u"no such file"_qs, error));
    EXPECT_TRUE(error.startsWith(u"Cannot open \"no such file\": "_qs)) << qPrintable(error);
}

TEST(CatalogueFile, RefusesAnotherVersion)
{
    EXPECT_EQ(errorOf(R"({"Version": 2, "Categories": []})"), u"\"PATH\": The format version is 2: expected 1"_qs);
    EXPECT_EQ(errorOf(R"({"Categories": []})"), u"\"PATH\": The format version is missing: expected \"Version\": 1"_qs);
}

TEST(CatalogueFile, RefusesMissingCategories)
{
    const QString expected = u"\"PATH\": \"Categories\" is missing or not an array (at /Categories)"_qs;
    EXPECT_EQ(errorOf(R"({"Version": 1})"), expected);
    EXPECT_EQ(errorOf(R"({"Version": 1, "Categories": {}})"), expected);
}

TEST(CatalogueFile, RefusesABadCategoryWithItsPointer)
{
    const auto errorOfCategory = [](const QByteArray& category) {
        return errorOf(R"({"Version": 1, "Categories": [{"Name": "Cycle", "Arrays": []}, )" + category + "]}");
    };
    EXPECT_EQ(errorOfCategory("3"), u"\"PATH\": not an object (at /Categories/1)"_qs);
    EXPECT_EQ(errorOfCategory(R"({"Arrays": []})"), u"\"PATH\": \"Name\" is missing or empty (at /Categories/1)"_qs);
    EXPECT_EQ(errorOfCategory(R"({"Name": 3, "Arrays": []})"),
              u"\"PATH\": \"Name\" is not a string (at /Categories/1)"_qs);
    EXPECT_EQ(errorOfCategory(R"({"Name": "Step"})"),
              u"\"PATH\": \"Arrays\" is missing or not an array (at /Categories/1)"_qs);
}

TEST(CatalogueFile, RefusesABadArrayWithItsPointer)
{
    const QList<std::pair<QByteArray, QString>> cases = {
        {R"(null)", u"not an object"_qs},
        {R"({})", u"\"Name\" is missing or empty"_qs},
        {R"({"Name": ""})", u"\"Name\" is missing or empty"_qs},
        {R"({"Name": ["a"]})", u"\"Name\" is not a string"_qs},
        {R"({"Name": "a", "Parameter": "voltage"})", u"\"voltage\" is not known for \"Parameter\""_qs},
        {R"({"Name": "a", "Parameter": 2})", u"\"Parameter\" is not a string"_qs},
        {R"({"Name": "a", "Parameter": "Voltage", "Unit": "v"})", u"\"v\" is not known for \"Unit\""_qs},
        {R"({"Name": "a", "Parameter": "Voltage", "Unit": "A"})", u"the unit \"A\" does not measure \"Voltage\""_qs},
        {R"({"Name": "a", "Parameter": "Voltage"})", u"the unit \"\" does not measure \"Voltage\""_qs},
        {R"({"Name": "a", "Unit": "A"})", u"the unit \"A\" does not measure \"None\""_qs},
        {R"({"Name": "a", "Type": "double"})", u"\"double\" is not known for \"Type\""_qs},
        {R"({"Name": "a", "Export": "Always"})", u"\"Always\" is not known for \"Export\""_qs},
        {R"({"Name": "a", "Required": "yes"})", u"\"Required\" is neither true nor false"_qs},
        {R"({"Name": "a", "Machine name": 1})", u"\"Machine name\" is not a string"_qs},
        {R"({"Name": "a", "Description": {}})", u"\"Description\" is not a string"_qs},
        {R"({"Name": "a", "Formula": false})", u"\"Formula\" is not a string"_qs},
    };
    for (const auto& [array, problem] : cases) {
        EXPECT_EQ(errorOf(document(R"({"Name": "good"}, )" + array)),
                  u"\"PATH\": "_qs + problem + u" (at /Categories/0/Arrays/1)"_qs);
    }
}
