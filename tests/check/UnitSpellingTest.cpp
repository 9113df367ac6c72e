#include <check/UnitSpelling.h>
#include <datastorage/Converter.h>
#include <support/QtPrinters.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <utility>

using namespace Qt::StringLiterals;
using cl::datastorage::Converter;
using cl::datastorage::PhysicalParameter;
using cl::datastorage::UsualUnit;
using cluiconfig::check::meantUnits;
using cluiconfig::check::measuredBy;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::ResultOf;
using testing::UnorderedElementsAre;

TEST(UnitSpelling, OfEveryUnitIsRecognizedInLettersThatStandForItsSigns)
{
    const QList<std::pair<QString, QString>> habits = {
        {u"µ"_s, u"u"_s},      {u"µ"_s, u"μ"_s},       {u"Ω"_s, u"ohm"_s}, {u"Ω"_s, u"Ohm"_s}, {u"Ω"_s, u"\u2126"_s},
        {u"°"_s, u"deg"_s},    {u"°"_s, u"º"_s},       {u"²"_s, u"2"_s},   {u"³"_s, u"^3"_s},  {u"·"_s, u"*"_s},
        {u"·"_s, u"\u22c5"_s}, {u"°C"_s, u"\u2103"_s}, {u"/"_s, u" / "_s},
    };
    int misspelt = 0;
    const QStringList names = Converter::getPhysicalParameterNames();
    for (const QString& name : names) {
        const PhysicalParameter parameter = Converter::getPhysicalParameterFromString(name);
        const QList<UsualUnit> units = Converter::getAvailableUnits(parameter);
        for (const UsualUnit& unit : units) {
            const QString symbol = Converter::toString(unit);
            EXPECT_EQ(measuredBy(symbol), parameter);
            for (const auto& [sign, letters] : habits) {
                const QString wrong = QString(symbol).replace(sign, letters);
                if (wrong != symbol) {
                    EXPECT_THAT(meantUnits(wrong, parameter), ElementsAre(symbol)) << wrong.toStdString();
                    ++misspelt;
                }
            }
            EXPECT_THAT(meantUnits(symbol, parameter), ElementsAre(symbol));
            const QString capitals = QString(symbol).replace(u"µ"_s, u"u"_s).toUpper();
            const QStringList meant = meantUnits(capitals, parameter);
            EXPECT_THAT(meant, Not(IsEmpty())) << capitals.toStdString();
            EXPECT_THAT(meant, Each(ResultOf(measuredBy, parameter))) << capitals.toStdString();
        }
    }
    EXPECT_GT(misspelt, 200);
}

TEST(UnitSpelling, OfTwoCasesTheOneCountsThatMeasuresTheQuantity)
{
    EXPECT_THAT(meantUnits(u"S"_s, PhysicalParameter::Time), ElementsAre(u"s"_s));
    EXPECT_THAT(meantUnits(u"S"_s, PhysicalParameter::None), ElementsAre(u"S"_s));
    EXPECT_THAT(meantUnits(u"pa"_s, PhysicalParameter::Pressure), ElementsAre(u"Pa"_s));
    EXPECT_THAT(meantUnits(u"mhz"_s, PhysicalParameter::Frequency), UnorderedElementsAre(u"mHz"_s, u"MHz"_s));
}

TEST(UnitSpelling, OfWhatIsNoUnitIsNothing)
{
    for (const QString& text : {u""_s, u" "_s, u"furlong"_s, u"V/"_s, u"/V"_s, u"V//s"_s, u"a/b"_s, u"s/s/s/s/s"_s,
                                QString(1'000'000, u'V'), u"\u0000"_s}) {
        EXPECT_THAT(meantUnits(text, PhysicalParameter::Voltage), IsEmpty()) << text.left(20).toStdString();
        EXPECT_EQ(measuredBy(text), PhysicalParameter::None);
    }
}
