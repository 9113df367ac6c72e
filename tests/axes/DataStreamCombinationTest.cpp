#include <axes/DataStreamCombination.h>

#include <support/Archive.h>
#include <support/Json.h>
#include <support/QtPrinters.h>
#include <support/VirtualSlot.h>

#include <gtest/gtest.h>

#include <type_traits>

using namespace Qt::StringLiterals;

namespace {

using Getter = const QString& (DataStreamCombination::*)() const;

static_assert(std::is_same_v<decltype(&DataStreamCombination::getXName), Getter>);
static_assert(std::is_same_v<decltype(&DataStreamCombination::getXCategory), Getter>);
static_assert(std::is_same_v<decltype(&DataStreamCombination::getYName), Getter>);
static_assert(std::is_same_v<decltype(&DataStreamCombination::getYCategory), Getter>);
static_assert(
    std::is_same_v<decltype(&DataStreamCombination::toString), const QString (DataStreamCombination::*)() const>);
static_assert(std::has_virtual_destructor_v<DataStreamCombination>);

const DataStreamCombination Sample(u"cx"_s, u"nx"_s, u"cy"_s, u"ny"_s);

QStringList texts(const DataStreamCombination& combination)
{
    return {combination.getXCategory(), combination.getXName(), combination.getYCategory(), combination.getYName()};
}

QJsonObject sampleObject()
{
    return jsonObject(R"({
        "streamIdentifier_XCategory": "cx",
        "streamIdentifier_XName": "nx",
        "streamIdentifier_YCategory": "cy",
        "streamIdentifier_YName": "ny"
    })");
}

} // namespace

TEST(DataStreamCombination, DefaultConstructedHasFourEmptyTexts)
{
    EXPECT_EQ(texts(DataStreamCombination()), QStringList({u""_s, u""_s, u""_s, u""_s}));
}

TEST(DataStreamCombination, ConstructorTakesTheCategoryOfEachAxisBeforeItsName)
{
    EXPECT_EQ(Sample.getXCategory(), u"cx"_s);
    EXPECT_EQ(Sample.getXName(), u"nx"_s);
    EXPECT_EQ(Sample.getYCategory(), u"cy"_s);
    EXPECT_EQ(Sample.getYName(), u"ny"_s);
}

TEST(DataStreamCombination, SettersReplaceOneTextEach)
{
    DataStreamCombination combination(Sample);
    combination.setXName(u"1"_s);
    EXPECT_EQ(texts(combination), QStringList({u"cx"_s, u"1"_s, u"cy"_s, u"ny"_s}));
    combination.setXCategory(u"2"_s);
    EXPECT_EQ(texts(combination), QStringList({u"2"_s, u"1"_s, u"cy"_s, u"ny"_s}));
    combination.setYName(u"3"_s);
    EXPECT_EQ(texts(combination), QStringList({u"2"_s, u"1"_s, u"cy"_s, u"3"_s}));
    combination.setYCategory(u"4"_s);
    EXPECT_EQ(texts(combination), QStringList({u"2"_s, u"1"_s, u"4"_s, u"3"_s}));
}

TEST(DataStreamCombination, CopiesAreIndependent)
{
    DataStreamCombination original(Sample);
    const DataStreamCombination constructed(original);
    DataStreamCombination assigned;
    assigned = original;
    original = DataStreamCombination();
    EXPECT_EQ(texts(constructed), texts(Sample));
    EXPECT_EQ(texts(assigned), texts(Sample));
    EXPECT_EQ(texts(original), texts(DataStreamCombination()));
}

TEST(DataStreamCombination, KeyJoinsCategoryAndNameOfXThenOfYByBlanks)
{
    EXPECT_EQ(Sample.toString(), u"cx nx cy ny"_s);
}

TEST(DataStreamCombination, KeyOfEmptyTextsIsThreeBlanks)
{
    EXPECT_EQ(DataStreamCombination().toString(), u"   "_s);
    EXPECT_EQ(DataStreamCombination(u""_s, u"nx"_s, u""_s, u""_s).toString(), u" nx  "_s);
}

TEST(DataStreamCombination, KeyQuotesTrimsAndEscapesNothing)
{
    EXPECT_EQ(DataStreamCombination(u" a "_s, u"\"b\""_s, u"%1"_s, u"d\t"_s).toString(), u" a  \"b\" %1 d\t"_s);
}

// Known and relied upon: the manager takes these two for duplicates.
TEST(DataStreamCombination, KeyIsTheSameForAnotherSplitOfTheSameWords)
{
    const DataStreamCombination longName(u"Cell"_s, u"Step Time"_s, u"cy"_s, u"ny"_s);
    const DataStreamCombination longCategory(u"Cell Step"_s, u"Time"_s, u"cy"_s, u"ny"_s);
    EXPECT_EQ(longName.toString(), u"Cell Step Time cy ny"_s);
    EXPECT_EQ(longCategory.toString(), longName.toString());
}

TEST(DataStreamCombination, WritesFourStringsAndNothingElse)
{
    EXPECT_EQ(written(Sample), sampleObject());
    EXPECT_EQ(written(DataStreamCombination()), jsonObject(R"({
        "streamIdentifier_XCategory": "",
        "streamIdentifier_XName": "",
        "streamIdentifier_YCategory": "",
        "streamIdentifier_YName": ""
    })"));
}

TEST(DataStreamCombination, WriteOverwritesItsKeysAndLeavesOthersInPlace)
{
    QJsonObject expected = sampleObject();
    expected.insert(u"other"_s, 1);
    EXPECT_EQ(written(Sample, jsonObject(R"({"other": 1, "streamIdentifier_XName": [1, 2]})")), expected);
}

TEST(DataStreamCombination, ReadReplacesAllFourTextsWhateverTheVersion)
{
    for (const int version : {-1, 0, 29, 1000}) {
        DataStreamCombination combination(u"1"_s, u"2"_s, u"3"_s, u"4"_s);
        EXPECT_TRUE(readInto(combination, sampleObject(), version));
        EXPECT_EQ(texts(combination), texts(Sample));
    }
}

TEST(DataStreamCombination, ReadOfAnEmptyObjectGivesEmptyTextsAndSucceeds)
{
    DataStreamCombination combination(Sample);
    EXPECT_TRUE(readInto(combination, {}));
    EXPECT_EQ(texts(combination), texts(DataStreamCombination()));
}

TEST(DataStreamCombination, ReadTakesAValueThatIsNotAStringAsEmpty)
{
    for (const QString& key : sampleObject().keys()) {
        for (const QJsonValue& value : valuesOfOtherTypes(QJsonValue::String)) {
            QJsonObject object = sampleObject();
            object.insert(key, value);
            DataStreamCombination combination(Sample);
            EXPECT_TRUE(readInto(combination, object));
            object.insert(key, QString());
            EXPECT_EQ(written(combination), object);
        }
    }
}

#if HAVE_VIRTUAL_SLOTS
TEST(DataStreamCombination, VirtualOperationsAreDestructorReadWrite)
{
    EXPECT_EQ(virtualSlot(&DataStreamCombination::read), 2U);
    EXPECT_EQ(virtualSlot(&DataStreamCombination::write), 3U);
    EXPECT_EQ(virtualSlots<DataStreamCombination>(), 4U);
}
#endif
