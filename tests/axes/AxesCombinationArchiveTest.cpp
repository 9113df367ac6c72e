#include <axes/AxesCombinationManager.h>

#include <axes/Records.h>
#include <support/Archive.h>
#include <support/Json.h>
#include <support/QtPrinters.h>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(AxesCombinationArchive, WritesTheIdentitiesOfEveryRecordInOrder)
{
    const AxesCombinationManager manager = managerOf({
        record({u"Time"_s, u"a"_s}, {u"Voltage"_s, u"b"_s}, QCPAxis::stLogarithmic, QCPAxis::stLogarithmic, true),
        AxesCombination(),
    });
    EXPECT_EQ(written(manager), jsonObject(R"({"axesCombinations": [
        {
            "axesCombinationFirst": {"name": "Time", "category": "a"},
            "axesCombinationSecond": {"name": "Voltage", "category": "b"}
        },
        {
            "axesCombinationFirst": {"name": "", "category": ""},
            "axesCombinationSecond": {"name": "", "category": ""}
        }
    ]})"));
    EXPECT_EQ(written(AxesCombinationManager()), jsonObject(R"({"axesCombinations": []})"));
    EXPECT_EQ(written(AxesCombinationManager(), jsonObject(R"({"axesCombinations": 1, "other": 2})")),
              jsonObject(R"({"axesCombinations": [], "other": 2})"));
}

TEST(AxesCombinationArchive, WriteThenReadKeepsIdentitiesAndOrderButNoScales)
{
    AxesCombinationManager manager = managerOf({record({u"gone"_s, u"c"_s}, {u"y"_s, u"c"_s})});
    EXPECT_TRUE(readInto(manager, written(sampleManager())));
    EXPECT_EQ(described(manager.getAxesCombinations()),
              QStringList({
                  u"Time (Step) / Nothing (), linear / linear"_s,
                  u"Time (Step) / Voltage (Step), linear / linear"_s,
                  u"Time (Cycle) / Voltage (Cycle), linear / linear"_s,
                  u"Charge (Cycle) / Time (Cycle), linear / linear"_s,
                  u"Time (Cycle) / Charge (Cycle), linear / linear"_s,
              }));
    EXPECT_EQ(manager.getXAxesNames(), QStringList({u"Time"_s, u"Charge"_s}));
    EXPECT_FALSE(manager.getAxesCombination(u"gone"_s, u"y"_s).isValid());
}

TEST(AxesCombinationArchive, ReadAndWriteDoNotDependOnTheVersion)
{
    const QJsonObject object = written(sampleManager());
    for (const int version : {-1, 0, 29, 1000}) {
        EXPECT_EQ(written(sampleManager(), {}, version), object);
        AxesCombinationManager manager;
        EXPECT_TRUE(readInto(manager, object, version));
        EXPECT_EQ(manager.getAxesCombinations(), sampleManager().getAxesCombinations());
    }
}

TEST(AxesCombinationArchive, ReadWithoutAListEmptiesTheManager)
{
    for (const QJsonValue& value : valuesOfOtherTypes(QJsonValue::Array)) {
        QJsonObject object;
        object.insert(u"axesCombinations"_s, value);
        AxesCombinationManager manager = sampleManager();
        EXPECT_TRUE(readInto(manager, object));
        EXPECT_TRUE(manager.getAxesCombinations().isEmpty());
        EXPECT_TRUE(manager.getXAxesNames().isEmpty());
    }
}

TEST(AxesCombinationArchive, ReadStopsAtTheFirstRecordThatFails)
{
    const QJsonObject good = written(sampleManager()).value(u"axesCombinations"_s).toArray().at(1).toObject();
    const QJsonObject halfGood{{u"axesCombinationFirst"_s, good.value(u"axesCombinationFirst"_s)}};
    for (const QJsonValue& bad : {QJsonValue(halfGood), QJsonValue(QJsonObject()), QJsonValue(3), QJsonValue()}) {
        AxesCombinationManager manager = sampleManager();
        EXPECT_TRUE(readInto(manager, {{u"axesCombinations"_s, QJsonArray{good, good, bad, good}}}));
        EXPECT_EQ(described(manager.getAxesCombinations()),
                  QStringList(2, u"Time (Step) / Voltage (Step), linear / linear"_s));
    }
}
