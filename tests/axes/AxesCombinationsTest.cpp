#include <axes/AxesCombinationManager.h>

#include <axes/AxesCombinations.h>
#include <axes/Records.h>
#include <base/Singleton.h>
#include <batterydata/RawDataCollection.h>
#include <support/DocumentMutator.h>
#include <support/Json.h>
#include <support/QtPrinters.h>
#include <support/TestCatalogue.h>

#include <QJsonDocument>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QString Untouched = u"untouched"_s;

class AxesCombinationReader : public testing::Test
{
protected:
    bool readEntry(const QJsonObject& entry) { return manager.readAxesCombination(entry, error); }
    bool readSection(const QJsonObject& root) { return manager.readAxesCombinations(root, error); }
    QStringList list() const { return described(manager.getAxesCombinations()); }

    TestCatalogue catalogue{
        {u"Time"_s, u"Step"_s},    {u"Voltage"_s, u"Cycle"_s}, {u"Time"_s, u"Cycle"_s},
        {u"Voltage"_s, u"Step"_s}, {u"Time"_s, u"Loop"_s},     {u"Charge"_s, u"Cycle"_s},
    };
    AxesCombinationManager manager;
    QString error = Untouched;
};

/// An entry that yields "Time (Step) / Voltage (Step)", to be spoilt by the tests.
QJsonObject goodEntry()
{
    return jsonObject(R"({
        "X": [{"Name": "Time", "Category": "Step"}], "Y1/Y2": [{"Name": "Voltage", "Category": "Step"}],
        "DEFAULT_SCALE_X": "LINEAR", "DEFAULT_SCALE_Y": "LOGARITHMIC", "ORTHONORMAL_AXIS": "TRUE"
    })");
}

const QString GoodRecord = u"Time (Step) / Voltage (Step), linear / logarithmic, orthonormal"_s;

QJsonObject goodEntryWith(const QString& key, const QJsonValue& value)
{
    QJsonObject entry = goodEntry();
    entry.insert(key, value);
    return entry;
}

QJsonObject section(const QJsonValue& entries)
{
    return {{u"Axes combinations"_s, entries}};
}

} // namespace

TEST_F(AxesCombinationReader, EntryOfTwoFullReferencesYieldsOneRecord)
{
    EXPECT_TRUE(readEntry(goodEntry()));
    EXPECT_EQ(list(), QStringList({GoodRecord}));
    EXPECT_EQ(error, Untouched);
    EXPECT_EQ(manager.getXAxesNames(), QStringList({u"Time"_s}));
}

TEST_F(AxesCombinationReader, ReferencesWithoutCategoryYieldOneRecordForEverySharedCategory)
{
    EXPECT_TRUE(readEntry(jsonObject(R"({
        "X": [{"Name": "Time"}], "Y1/Y2": [{"Name": "Voltage", "Category": ""}],
        "DEFAULT_SCALE_X": "LINEAR", "DEFAULT_SCALE_Y": "LINEAR", "ORTHONORMAL_AXIS": "FALSE"
    })")));
    EXPECT_EQ(list(),
              QStringList({
                  u"Time (Step) / Voltage (Step), linear / linear"_s,
                  u"Time (Cycle) / Voltage (Cycle), linear / linear"_s,
              }));
}

TEST_F(AxesCombinationReader, RecordsComeByXReferenceThenYReferenceThenXArrayThenYArray)
{
    EXPECT_TRUE(readEntry(jsonObject(R"({
        "X": [{"Name": "Voltage"}, {"Name": "Time"}],
        "Y1/Y2": [{"Name": "Time"}, {"Name": "Charge"}, {"Name": "Voltage", "Category": "Cycle"}],
        "DEFAULT_SCALE_X": "LINEAR", "DEFAULT_SCALE_Y": "LINEAR", "ORTHONORMAL_AXIS": "FALSE"
    })")));
    EXPECT_EQ(list(),
              QStringList({
                  u"Voltage (Cycle) / Time (Cycle), linear / linear"_s,
                  u"Voltage (Step) / Time (Step), linear / linear"_s,
                  u"Voltage (Cycle) / Charge (Cycle), linear / linear"_s,
                  u"Voltage (Cycle) / Voltage (Cycle), linear / linear"_s,
                  u"Time (Step) / Time (Step), linear / linear"_s,
                  u"Time (Cycle) / Time (Cycle), linear / linear"_s,
                  u"Time (Loop) / Time (Loop), linear / linear"_s,
                  u"Time (Cycle) / Charge (Cycle), linear / linear"_s,
                  u"Time (Cycle) / Voltage (Cycle), linear / linear"_s,
              }));
}

TEST_F(AxesCombinationReader, CategoriesPairExactly)
{
    TestCatalogue::add({u"Power"_s, u"step"_s});
    TestCatalogue::add({u"Power"_s, u"Step "_s});
    EXPECT_TRUE(readEntry(goodEntryWith(u"Y1/Y2"_s, QJsonArray{jsonObject(R"({"Name": "Power"})")})));
    EXPECT_EQ(list(), QStringList());
}

TEST_F(AxesCombinationReader, ArraysOfTheSameEmptyCategoryPairAndAreInvalid)
{
    TestCatalogue::add({u"Power"_s, u""_s});
    EXPECT_TRUE(readEntry(jsonObject(R"({
        "X": [{"Name": "Power"}], "Y1/Y2": [{"Name": "Power", "Category": ""}],
        "DEFAULT_SCALE_X": "LINEAR", "DEFAULT_SCALE_Y": "LINEAR", "ORTHONORMAL_AXIS": "FALSE"
    })")));
    EXPECT_EQ(list(), QStringList({u"Power () / Power (), linear / linear"_s}));
    EXPECT_TRUE(manager.getXAxesNames().isEmpty());
}

TEST_F(AxesCombinationReader, OnlyTheExactWordLinearGivesALinearScale)
{
    for (const auto& word : {u"LOGARITHMIC"_s, u"linear"_s, u"Linear"_s, u" LINEAR"_s, u"LINEAR "_s, u" "_s, u"0"_s}) {
        manager.deleteAll();
        EXPECT_TRUE(readEntry(goodEntryWith(u"DEFAULT_SCALE_X"_s, word)));
        EXPECT_EQ(list(), QStringList({u"Time (Step) / Voltage (Step), logarithmic / logarithmic, orthonormal"_s}));
    }
    manager.deleteAll();
    EXPECT_TRUE(readEntry(goodEntryWith(u"DEFAULT_SCALE_Y"_s, u"LINEAR"_s)));
    EXPECT_TRUE(readEntry(goodEntryWith(u"DEFAULT_SCALE_Y"_s, u"linear"_s)));
    EXPECT_EQ(list(), QStringList({u"Time (Step) / Voltage (Step), linear / linear, orthonormal"_s, GoodRecord}));
}

TEST_F(AxesCombinationReader, OnlyTheExactWordTrueGivesAnOrthonormalPlot)
{
    for (const auto& word : {u"FALSE"_s, u"true"_s, u"True"_s, u"TRUE "_s, u" "_s, u"1"_s}) {
        manager.deleteAll();
        EXPECT_TRUE(readEntry(goodEntryWith(u"ORTHONORMAL_AXIS"_s, word)));
        EXPECT_EQ(list(), QStringList({u"Time (Step) / Voltage (Step), linear / logarithmic"_s}));
    }
}

TEST_F(AxesCombinationReader, SectionThatIsNoArrayFails)
{
    for (const QJsonValue& value : valuesOfOtherTypes(QJsonValue::Array)) {
        QJsonObject root;
        root.insert(u"Axes combinations"_s, value);
        error = Untouched;
        EXPECT_FALSE(readSection(root));
        EXPECT_EQ(error, u"Axes combinations array missing"_s);
    }
}

TEST_F(AxesCombinationReader, EntryThatIsNoObjectFails)
{
    for (const QJsonValue& value : valuesOfOtherTypes(QJsonValue::Object)) {
        if (!value.isUndefined()) {
            error = Untouched;
            EXPECT_FALSE(readSection(section(QJsonArray{value, goodEntry()})));
            EXPECT_EQ(error, u"Axes combination is not Json object"_s);
            EXPECT_EQ(list(), QStringList());
        }
    }
}

TEST_F(AxesCombinationReader, XThatIsNoArrayFails)
{
    for (const QJsonValue& value : valuesOfOtherTypes(QJsonValue::Array)) {
        error = Untouched;
        EXPECT_FALSE(readEntry(goodEntryWith(u"X"_s, value)));
        EXPECT_EQ(error, u"Unexpected axes combination X"_s);
    }
}

TEST_F(AxesCombinationReader, YThatIsNoArrayIsAnEmptyList)
{
    for (const QJsonValue& value : valuesOfOtherTypes(QJsonValue::Array)) {
        EXPECT_TRUE(readEntry(goodEntryWith(u"Y1/Y2"_s, value)));
        EXPECT_EQ(list(), QStringList());
        EXPECT_EQ(error, Untouched);
    }
}

TEST_F(AxesCombinationReader, UnknownArrayOfACategoryFailsWithItsNameAndCategory)
{
    EXPECT_FALSE(readEntry(goodEntryWith(u"X"_s, QJsonArray{jsonObject(R"({"Name": "Charge", "Category": "Step"})")})));
    EXPECT_EQ(error, u"Unexpected axes combination X: Charge (Step)"_s);
    EXPECT_FALSE(readEntry(goodEntryWith(u"X"_s, QJsonArray{jsonObject(R"({"Category": "Step"})")})));
    EXPECT_EQ(error, u"Unexpected axes combination X:  (Step)"_s);
    EXPECT_FALSE(
        readEntry(goodEntryWith(u"Y1/Y2"_s, QJsonArray{jsonObject(R"({"Name": "voltage", "Category": "Step"})")})));
    EXPECT_EQ(error, u"Unexpected axes combination Y1/Y2: voltage (Step)"_s);
    EXPECT_FALSE(
        readEntry(goodEntryWith(u"Y1/Y2"_s, QJsonArray{jsonObject(R"({"Name": "Voltage", "Category": " "})")})));
    EXPECT_EQ(error, u"Unexpected axes combination Y1/Y2: Voltage ( )"_s);
    EXPECT_EQ(list(), QStringList());
}

// The message is filled in two steps, so a marker inside the name is taken for the place of the category.
TEST_F(AxesCombinationReader, PlaceMarkersInsideANameAreFilledByTheCategory)
{
    const auto messageFor = [this](const QString& key, const QString& name, const QString& category) {
        const QJsonObject reference{{u"Name"_s, name}, {u"Category"_s, category}};
        EXPECT_FALSE(readEntry(goodEntryWith(key, QJsonArray{reference})));
        return error;
    };
    EXPECT_EQ(messageFor(u"X"_s, u"%1"_s, u"C"_s), u"Unexpected axes combination X: C (%2)"_s);
    EXPECT_EQ(messageFor(u"X"_s, u"%2"_s, u"C"_s), u"Unexpected axes combination X: C (C)"_s);
    EXPECT_EQ(messageFor(u"X"_s, u"N"_s, u"%1"_s), u"Unexpected axes combination X: N (%1)"_s);
    EXPECT_EQ(messageFor(u"X"_s, u"%0"_s, u"C"_s), u"Unexpected axes combination X: C (%2)"_s);
    EXPECT_EQ(messageFor(u"X"_s, u"%L1"_s, u"C"_s), u"Unexpected axes combination X: C (%2)"_s);
    EXPECT_EQ(messageFor(u"X"_s, u"%99"_s, u"C"_s), u"Unexpected axes combination X: %99 (C)"_s);
    EXPECT_EQ(messageFor(u"X"_s, u"%3"_s, u"%2"_s), u"Unexpected axes combination X: %3 (%2)"_s);
    EXPECT_EQ(messageFor(u"Y1/Y2"_s, u"%1"_s, u"%2"_s), u"Unexpected axes combination Y1/Y2: %2 (%2)"_s);
}

TEST_F(AxesCombinationReader, UnknownNameWithoutCategoryContributesNothing)
{
    EXPECT_TRUE(readEntry(goodEntryWith(u"X"_s, QJsonArray{jsonObject(R"({"Name": "Unknown"})")})));
    EXPECT_TRUE(readEntry(goodEntryWith(u"Y1/Y2"_s, QJsonArray{jsonObject(R"({"Name": "Unknown"})")})));
    EXPECT_TRUE(readEntry(goodEntryWith(u"X"_s, QJsonArray{jsonObject("{}")})));
    EXPECT_EQ(list(), QStringList());
    EXPECT_EQ(error, Untouched);
}

TEST_F(AxesCombinationReader, ReferenceThatIsNoObjectContributesNothing)
{
    const QJsonArray references{1, true, u"Time"_s, QJsonValue::Null, QJsonArray{u"Time"_s}};
    EXPECT_TRUE(readEntry(goodEntryWith(u"X"_s, references)));
    EXPECT_TRUE(readEntry(goodEntryWith(u"Y1/Y2"_s, references)));
    EXPECT_EQ(list(), QStringList());
}

TEST_F(AxesCombinationReader, NameAndCategoryThatAreNoTextsReadAsEmpty)
{
    for (const QJsonValue& value : valuesOfOtherTypes(QJsonValue::String)) {
        QJsonObject anyCategory = jsonObject(R"({"Name": "Time"})");
        anyCategory.insert(u"Category"_s, value);
        manager.deleteAll();
        EXPECT_TRUE(readEntry(goodEntryWith(u"X"_s, QJsonArray{anyCategory})));
        EXPECT_EQ(list(), QStringList({GoodRecord}));

        QJsonObject noName;
        noName.insert(u"Name"_s, value);
        manager.deleteAll();
        EXPECT_TRUE(readEntry(goodEntryWith(u"X"_s, QJsonArray{noName})));
        EXPECT_EQ(list(), QStringList());
    }
}

TEST_F(AxesCombinationReader, PairNeedsBothScales)
{
    QList<QJsonValue> values = valuesOfOtherTypes(QJsonValue::String);
    values.append(u""_s);
    for (const QJsonValue& value : values) {
        for (const QString& key : {u"DEFAULT_SCALE_X"_s, u"DEFAULT_SCALE_Y"_s}) {
            QJsonObject entry = goodEntryWith(key, value);
            entry.remove(u"ORTHONORMAL_AXIS"_s); // looked at later
            error = Untouched;
            EXPECT_FALSE(readEntry(entry));
            EXPECT_EQ(error, u"Unexpected axes combination default scale"_s);
            EXPECT_EQ(list(), QStringList());
        }
    }
}

TEST_F(AxesCombinationReader, PairNeedsTheOrthonormalWord)
{
    QList<QJsonValue> values = valuesOfOtherTypes(QJsonValue::String);
    values.append(u""_s);
    for (const QJsonValue& value : values) {
        error = Untouched;
        EXPECT_FALSE(readEntry(goodEntryWith(u"ORTHONORMAL_AXIS"_s, value)));
        EXPECT_EQ(error, u"Unexpected axes combination orthonormal parameter"_s);
        EXPECT_EQ(list(), QStringList());
    }
}

TEST_F(AxesCombinationReader, WithoutAPairNeitherScalesNorOrthonormalWordAreNeeded)
{
    EXPECT_TRUE(readEntry(jsonObject(R"({"X": [{"Name": "Time", "Category": "Step"}],
                                         "Y1/Y2": [{"Name": "Charge", "Category": "Cycle"}]})")));
    EXPECT_TRUE(readEntry(jsonObject(R"({"X": [{"Name": "Time"}], "Y1/Y2": []})")));
    EXPECT_TRUE(readEntry(jsonObject(R"({"X": [{"Name": "Time"}]})")));
    EXPECT_TRUE(readEntry(jsonObject(R"({"X": []})")));
    EXPECT_EQ(list(), QStringList());
    EXPECT_EQ(error, Untouched);
}

TEST_F(AxesCombinationReader, WithoutAnXReferenceNoYReferenceIsLookedUp)
{
    const QJsonArray unknown{jsonObject(R"({"Name": "Unknown", "Category": "Step"})")};
    QJsonObject entry = goodEntryWith(u"Y1/Y2"_s, unknown);
    entry.insert(u"X"_s, QJsonArray());
    EXPECT_TRUE(readEntry(entry));

    entry.insert(u"X"_s, QJsonArray{jsonObject(R"({"Name": "matches nothing"})")});
    EXPECT_FALSE(readEntry(entry));
    EXPECT_EQ(error, u"Unexpected axes combination Y1/Y2: Unknown (Step)"_s);

    entry.insert(u"X"_s, unknown);
    EXPECT_FALSE(readEntry(entry));
    EXPECT_EQ(error, u"Unexpected axes combination X: Unknown (Step)"_s);
}

TEST_F(AxesCombinationReader, WhatTheFirstXReferenceYieldedStaysWhenTheSecondFails)
{
    EXPECT_FALSE(readEntry(goodEntryWith(u"X"_s, jsonValue(R"([
        {"Name": "Time", "Category": "Step"}, {"Name": "Unknown", "Category": "Step"}
    ])"))));
    EXPECT_EQ(error, u"Unexpected axes combination X: Unknown (Step)"_s);
    EXPECT_EQ(list(), QStringList({GoodRecord}));
    EXPECT_EQ(manager.getYAxesNames(u"Time"_s), QStringList({u"Voltage"_s}));
}

TEST_F(AxesCombinationReader, WhatTheFirstYReferenceYieldedStaysWhenTheSecondFails)
{
    EXPECT_FALSE(readEntry(goodEntryWith(u"Y1/Y2"_s, jsonValue(R"([
        {"Name": "Voltage"}, {"Name": "Unknown", "Category": "Step"}
    ])"))));
    EXPECT_EQ(error, u"Unexpected axes combination Y1/Y2: Unknown (Step)"_s);
    EXPECT_EQ(list(), QStringList({GoodRecord}));
}

TEST_F(AxesCombinationReader, FailureInTheThirdEntryKeepsWhatWasReadBefore)
{
    const QJsonObject third = goodEntryWith(u"Y1/Y2"_s, jsonValue(R"([
        {"Name": "Time", "Category": "Step"}, {"Name": "Voltage", "Category": "Loop"}
    ])"));
    EXPECT_FALSE(readSection(section(QJsonArray{goodEntry(), goodEntry(), third, goodEntry()})));
    EXPECT_EQ(error, u"Unexpected axes combination Y1/Y2: Voltage (Loop)"_s);
    EXPECT_EQ(list(),
              QStringList({GoodRecord, GoodRecord, u"Time (Step) / Time (Step), linear / logarithmic, orthonormal"_s}));
}

TEST_F(AxesCombinationReader, EntryThatIsNoObjectStopsTheSection)
{
    EXPECT_FALSE(readSection(section(QJsonArray{goodEntry(), 1, goodEntry()})));
    EXPECT_EQ(error, u"Axes combination is not Json object"_s);
    EXPECT_EQ(list(), QStringList({GoodRecord}));
}

TEST_F(AxesCombinationReader, SectionIsAppendedWithoutClearingOrRemovingDuplicates)
{
    manager.append(AxesCombination());
    EXPECT_TRUE(readSection(section(QJsonArray{goodEntry(), goodEntry()})));
    EXPECT_TRUE(readSection(section(QJsonArray())));
    EXPECT_TRUE(readSection(section(QJsonArray{goodEntry()})));
    EXPECT_EQ(list(), QStringList({described(AxesCombination()), GoodRecord, GoodRecord, GoodRecord}));
    EXPECT_EQ(error, Untouched);
}

TEST_F(AxesCombinationReader, KeysAreCaseSensitive)
{
    EXPECT_FALSE(readSection(jsonObject(R"({"Axes Combinations": []})")));
    EXPECT_EQ(error, u"Axes combinations array missing"_s);
    EXPECT_FALSE(readEntry(jsonObject(R"({"x": []})")));
    EXPECT_EQ(error, u"Unexpected axes combination X"_s);
    EXPECT_TRUE(readEntry(goodEntryWith(u"X"_s, QJsonArray{jsonObject(R"({"name": "Time", "category": "Step"})")})));
    EXPECT_EQ(list(), QStringList());
}

TEST_F(AxesCombinationReader, RecordsKeepTheirIdentitiesWhenTheCatalogueChanges)
{
    EXPECT_TRUE(readEntry(goodEntry()));
    {
        const TestCatalogue emptied;
        EXPECT_FALSE(readEntry(goodEntry()));
        EXPECT_EQ(error, u"Unexpected axes combination X: Time (Step)"_s);
    }
    EXPECT_TRUE(readEntry(goodEntry()));
    EXPECT_EQ(list(), QStringList({GoodRecord, GoodRecord}));
}

// Who asks for the refusals alone gets the same ones, in the same order.
TEST_F(AxesCombinationReader, RefusalsAreTheSameWithoutTheRecords)
{
    const auto& arrays = lumo::tools::Singleton<cl::batterydata::RawDataCollection>::instance().getDataConfiguration();
    const QJsonObject both = jsonObject(R"({
        "X": [{"Name": "Time"}, {"Name": "Time", "Category": "Step"}, {"Name": "Charge", "Category": "Cycle"}],
        "Y1/Y2": [{"Name": "Voltage"}, {"Name": "Charge", "Category": "Cycle"}, {"Name": "Time", "Category": "Loop"}],
        "DEFAULT_SCALE_X": "LINEAR", "DEFAULT_SCALE_Y": "LINEAR", "ORTHONORMAL_AXIS": "FALSE"
    })");
    DocumentMutator mutator(5, {u"Time"_s, u"Cycle"_s, u"Step"_s});
    int refused = 0;
    for (int i = 0; i < 3000; ++i) {
        const QJsonArray entries = mutator.mutated(QJsonArray{both, goodEntry()}).toArray();
        for (const auto atFirst : {uiconfig::Refusals::AtFirst::Stop, uiconfig::Refusals::AtFirst::GoOn}) {
            QList<AxesCombination> records;
            uiconfig::Refusals expected(atFirst);
            const bool goesOn = uiconfig::readAxesCombinations(entries, arrays, records, expected);
            uiconfig::Refusals refusals(atFirst);
            EXPECT_EQ(uiconfig::lookThroughAxesCombinations(entries, arrays, refusals), goesOn);
            ASSERT_EQ(refusals.all().size(), expected.all().size()) << QJsonDocument(entries).toJson().constData();
            for (qsizetype each = 0; each < expected.all().size(); ++each) {
                EXPECT_EQ(refusals.all().at(each).sentence, expected.all().at(each).sentence);
                EXPECT_EQ(refusals.all().at(each).place, expected.all().at(each).place);
            }
            refused += expected.isEmpty() ? 0 : 1;
        }
    }
    EXPECT_GT(refused, 1000);
    EXPECT_LT(refused, 5000);
}
