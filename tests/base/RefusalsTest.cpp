#include <base/JsonPointer.h>
#include <base/Refusals.h>
#include <base/Section.h>
#include <support/QtPrinters.h>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using uiconfig::Refusals;
using uiconfig::Section;

namespace {

constexpr Section Required{"Colors"_L1, Section::Type::Object, "Missing colors configuration node"_L1};
constexpr Section Optional{"Filters"_L1, Section::Type::Array, {}};

/// Whether the value of \p section was read from \p root, and whether the reading goes on.
struct Outcome
{
    bool isRead = false;
    bool goesOn = false;
};

Outcome read(const Section& section, const QJsonObject& root, Refusals& refusals)
{
    Outcome outcome;
    outcome.goesOn = readSection(section, root, refusals, [&](const QJsonValue& /*value*/) {
        outcome.isRead = true;
        return true;
    });
    return outcome;
}

} // namespace

TEST(JsonPointers, EscapeWhatWouldBeAStep)
{
    EXPECT_EQ(jsonPointer(), QString());
    EXPECT_EQ(jsonPointer("Axes combinations"_L1, qsizetype{12}, u"Y1/Y2~"_s), u"/Axes combinations/12/Y1~1Y2~0"_s);
    EXPECT_EQ(jsonPointer(QString()), u"/"_s);
}

TEST(RefusalsTest, KeepTheirOrderAndReportTheFirst)
{
    Refusals refusals(Refusals::AtFirst::GoOn);
    QString error = u"untouched"_s;
    EXPECT_TRUE(refusals.isEmpty());
    EXPECT_TRUE(refusals.isEmpty(error));
    EXPECT_EQ(error, u"untouched"_s);

    EXPECT_TRUE(refusals.goOnAfter(u"first"_s, u"/a"_s));
    EXPECT_TRUE(refusals.goOnAfter(u"second"_s, u"/b"_s));
    EXPECT_FALSE(refusals.isEmpty(error));
    EXPECT_EQ(error, u"first"_s);
    ASSERT_EQ(refusals.all().size(), 2);
    EXPECT_EQ(refusals.all().at(1).place, u"/b"_s);
}

TEST(RefusalsTest, StopTheReaderWhoLoads)
{
    Refusals refusals(Refusals::AtFirst::Stop);
    EXPECT_FALSE(refusals.goOnAfter(u"first"_s, u"/a"_s));
}

TEST(SectionTest, OfTheRightTypeIsRead)
{
    Refusals refusals(Refusals::AtFirst::Stop);
    EXPECT_TRUE(read(Required, {{u"Colors"_s, QJsonObject()}}, refusals).isRead);
    EXPECT_TRUE(refusals.isEmpty());
}

TEST(SectionTest, RequiredAndMissingIsRefusedAtItsPlace)
{
    for (const QJsonObject& root : {QJsonObject(), QJsonObject{{u"Colors"_s, QJsonArray()}}}) {
        Refusals refusals(Refusals::AtFirst::Stop);
        const Outcome outcome = read(Required, root, refusals);
        EXPECT_FALSE(outcome.isRead);
        EXPECT_FALSE(outcome.goesOn);
        ASSERT_EQ(refusals.all().size(), 1);
        EXPECT_EQ(refusals.all().constFirst().sentence, u"Missing colors configuration node"_s);
        EXPECT_EQ(refusals.all().constFirst().place, u"/Colors"_s);
    }
}

TEST(SectionTest, OptionalAndMissingIsPassedOver)
{
    Refusals refusals(Refusals::AtFirst::Stop);
    const Outcome outcome = read(Optional, {{u"Filters"_s, QJsonObject()}}, refusals);
    EXPECT_FALSE(outcome.isRead);
    EXPECT_TRUE(outcome.goesOn);
    EXPECT_TRUE(refusals.isEmpty());
}
