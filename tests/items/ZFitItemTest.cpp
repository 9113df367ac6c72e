#include <items/ZFitItem.h>

#include <support/Archive.h>
#include <support/Json.h>
#include <support/QtPrinters.h>

#include <gtest/gtest.h>

#include <QStringList>

#include <thread>
#include <type_traits>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

static_assert(std::is_same_v<decltype(&ZFitItem::getEquivalentCircuit), const QString& (ZFitItem::*)() const>);
static_assert(std::is_same_v<decltype(&ZFitItem::getViscosity), const QString& (ZFitItem::*)()>);
static_assert(std::is_same_v<decltype(&ZFitItem::getRotationRate), const QString& (ZFitItem::*)()>);
static_assert(!std::is_invocable_v<decltype(&ZFitItem::getViscosity), const ZFitItem&>);
static_assert(!std::is_invocable_v<decltype(&ZFitItem::getRotationRate), const ZFitItem&>);
static_assert(std::is_same_v<decltype(&ZFitItem::getElements), QList<QString> (ZFitItem::*)() const>);

ZFitItem withCircuit(const QString& circuit)
{
    ZFitItem item;
    item.setEquivalentCircuit(circuit);
    return item;
}

QStringList elements(const QString& circuit)
{
    return withCircuit(circuit).getElements();
}

QString circuitRead(const QString& archived)
{
    ZFitItem item;
    EXPECT_TRUE(readInto(item, {{u"equivalentCircuit"_s, archived}}));
    return item.getEquivalentCircuit();
}

} // namespace

TEST(ZFitItem, DefaultConstructedIsEmpty)
{
    ZFitItem item;
    EXPECT_EQ(item.getEquivalentCircuit(), QString());
    EXPECT_EQ(item.getViscosity(), QString());
    EXPECT_EQ(item.getRotationRate(), QString());
    EXPECT_TRUE(item.getElements().isEmpty());
}

TEST(ZFitItem, SettersTakeTextsAsTheyAre)
{
    ZFitItem item;
    item.setEquivalentCircuit(u"Ra+"_s);
    item.setViscosity(u"0,89 cP"_s);
    item.setRotationRate(u"fast"_s);
    EXPECT_EQ(item.getEquivalentCircuit(), u"Ra+"_s);
    EXPECT_EQ(item.getViscosity(), u"0,89 cP"_s);
    EXPECT_EQ(item.getRotationRate(), u"fast"_s);
}

TEST(ZFitItem, ReadsItsArchiveKeys)
{
    ZFitItem item;
    EXPECT_TRUE(
        readInto(item, jsonObject(R"({"equivalentCircuit": "R1", "viscosity": "a", "rotationRate": "alpha"})")));
    EXPECT_EQ(item.getEquivalentCircuit(), u"R1"_s);
    EXPECT_EQ(item.getViscosity(), u"a"_s);
    EXPECT_EQ(item.getRotationRate(), u"alpha"_s);
}

TEST(ZFitItem, ReadTurnsEveryLowerCaseLatinAOfTheCircuitIntoAlpha)
{
    EXPECT_EQ(circuitRead(u"Ra+Qa/A"_s), u"R\u03B1+Q\u03B1/A"_s);
    EXPECT_EQ(circuitRead(u"aaa"_s), u"\u03B1\u03B1\u03B1"_s);
    EXPECT_EQ(circuitRead(u"R\u03B1+\u00E4+\u0430"_s), u"R\u03B1+\u00E4+\u0430"_s);
}

TEST(ZFitItem, WriteTurnsNothingBack)
{
    const QJsonObject object = written(withCircuit(u"Ra+Q\u03B1"_s));
    EXPECT_EQ(object.value(u"equivalentCircuit"_s), QJsonValue(u"Ra+Q\u03B1"_s));
    ZFitItem item;
    EXPECT_TRUE(readInto(item, object));
    EXPECT_EQ(item.getEquivalentCircuit(), u"R\u03B1+Q\u03B1"_s);
    EXPECT_EQ(written(item).value(u"equivalentCircuit"_s), QJsonValue(u"R\u03B1+Q\u03B1"_s));
}

TEST(ZFitItem, ElementsAreThePartsBetweenOperatorsAndParentheses)
{
    EXPECT_EQ(elements(u"R1+(R2/C2)"_s), QStringList({u"R1"_s, u"R2"_s, u"C2"_s}));
    EXPECT_EQ(elements(u"R1"_s), QStringList({u"R1"_s}));
    EXPECT_EQ(elements(u"R1+R1"_s), QStringList({u"R1"_s, u"R1"_s}));
    EXPECT_EQ(elements(u"R1-R2*C\\3"_s), QStringList({u"R1-R2*C\\3"_s}));
    EXPECT_EQ(elements(u"R\u03B1/Q\u03B1"_s), QStringList({u"R\u03B1"_s, u"Q\u03B1"_s}));
}

TEST(ZFitItem, EmptyPartsAreNoElements)
{
    EXPECT_EQ(elements(u""_s), QStringList());
    EXPECT_EQ(elements(u"+/()"_s), QStringList());
    EXPECT_EQ(elements(u"((R1))++//C1)"_s), QStringList({u"R1"_s, u"C1"_s}));
}

TEST(ZFitItem, BlanksAroundElementsStay)
{
    EXPECT_EQ(elements(u"R1 + C1"_s), QStringList({u"R1 "_s, u" C1"_s}));
    EXPECT_EQ(elements(u" + "_s), QStringList({u" "_s, u" "_s}));
}

TEST(ZFitItem, ManyThreadsMayAskForElements)
{
    const ZFitItem item = withCircuit(u"R1+(R2/C2)"_s);
    std::vector<QStringList> answers(4);
    std::vector<std::thread> threads;
    threads.reserve(answers.size());
    for (QStringList& answer : answers) {
        threads.emplace_back([&item, &answer] { answer = item.getElements(); });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    for (const QStringList& answer : answers) {
        EXPECT_EQ(answer, QStringList({u"R1"_s, u"R2"_s, u"C2"_s}));
    }
}
