#include <axes/AxesCombinationManager.h>

#include <axes/Records.h>
#include <support/Json.h>
#include <support/QtPrinters.h>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int AnyVersion = 29;

QJsonObject written(const AxesCombinationManager& manager, QJsonObject object = {})
{
    cl::archive::ArchiveContext context;
    EXPECT_TRUE(manager.write(object, AnyVersion, context));
    return object;
}

void readInto(AxesCombinationManager& manager, const QJsonObject& object)
{
    cl::archive::ArchiveContext context;
    EXPECT_TRUE(manager.read(object, AnyVersion, context));
}

} // namespace

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
    readInto(manager, written(sampleManager()));
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
    cl::archive::ArchiveContext context;
    for (const int version : {-1, 0, 29, 1000}) {
        QJsonObject object;
        EXPECT_TRUE(sampleManager().write(object, version, context));
        EXPECT_EQ(object, written(sampleManager()));
        AxesCombinationManager manager;
        EXPECT_TRUE(manager.read(object, version, context));
        EXPECT_EQ(manager.getAxesCombinations(), sampleManager().getAxesCombinations());
    }
}

TEST(AxesCombinationArchive, ReadWithoutAListEmptiesTheManager)
{
    for (const QJsonValue& value : valuesOfOtherTypes(QJsonValue::Array)) {
        QJsonObject object;
        object.insert(u"axesCombinations"_s, value);
        AxesCombinationManager manager = sampleManager();
        readInto(manager, object);
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
        readInto(manager, {{u"axesCombinations"_s, QJsonArray{good, good, bad, good}}});
        EXPECT_EQ(described(manager.getAxesCombinations()),
                  QStringList(2, u"Time (Step) / Voltage (Step), linear / linear"_s));
    }
}
