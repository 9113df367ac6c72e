#include <datastorage/Converter.h>

#include <QSet>

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <thread>
#include <vector>

using cl::datastorage::Converter;
using cl::datastorage::PhysicalParameter;
using cl::datastorage::UsualUnit;
using cl::datastorage::UsualUnitOperator;
using cl::datastorage::UsualUnitType;

namespace {

constexpr UsualUnitOperator None = UsualUnitOperator::None;
constexpr UsualUnitOperator Times = UsualUnitOperator::Multiply;
constexpr UsualUnitOperator By = UsualUnitOperator::Divide;

constexpr std::array<int, 60> ShownTypes = {
    2,   3,   4,   5,   10,  11,  12,  13,  14,  15,  20,  21,  22,  23,  24,  40,  41,  42,   50,   60,
    61,  62,  64,  70,  71,  72,  80,  82,  83,  90,  100, 101, 102, 103, 111, 112, 113, 114,  130,  131,
    132, 135, 140, 141, 142, 143, 144, 145, 146, 147, 150, 151, 160, 161, 170, 180, 190, 1043, 1044, 1045};

UsualUnit unit(const QString& symbol)
{
    return Converter::getUnitFromString(symbol).value();
}

} // namespace

TEST(UsualUnit, HasNoComponentByDefault)
{
    constexpr UsualUnit Unit;
    EXPECT_EQ(Unit.getUnit1(), UsualUnitType::None);
    EXPECT_FALSE(Unit.hasUnit2());
    EXPECT_FALSE(Unit.hasUnit3());
    EXPECT_FALSE(Unit.hasUnit4());
    EXPECT_EQ(Unit.getOperator(), None);
    EXPECT_EQ(Unit.getOperator2(), None);
    EXPECT_EQ(Unit.getOperator3(), None);
    EXPECT_EQ(Unit, UsualUnit(UsualUnitType::None));
}

TEST(UsualUnit, KeepsFourComponentsAndThreeOperatorsInOrder)
{
    constexpr UsualUnit Unit(UsualUnitType::Ampere, Times, UsualUnitType::Second, By, UsualUnitType::Volt, Times,
                             UsualUnitType::Gram);
    EXPECT_EQ(Unit.getUnit1(), UsualUnitType::Ampere);
    EXPECT_EQ(Unit.getUnit2(), UsualUnitType::Second);
    EXPECT_EQ(Unit.getUnit3(), UsualUnitType::Volt);
    EXPECT_EQ(Unit.getUnit4(), UsualUnitType::Gram);
    EXPECT_EQ(Unit.getOperator(), Times);
    EXPECT_EQ(Unit.getOperator2(), By);
    EXPECT_EQ(Unit.getOperator3(), Times);
    EXPECT_TRUE(Unit.hasUnit2());
    EXPECT_TRUE(Unit.hasUnit3());
    EXPECT_TRUE(Unit.hasUnit4());
}

TEST(UsualUnit, BuiltFromOneTypeAndNothingElseEqualsTheUnitOfThatType)
{
    const UsualUnit built(UsualUnitType::Volt, None, UsualUnitType::None, None, UsualUnitType::None, None,
                          UsualUnitType::None);
    EXPECT_EQ(built, UsualUnit(UsualUnitType::Volt));
}

TEST(UsualUnit, DiffersWhenAnyPartDiffers)
{
    const UsualUnit unit(UsualUnitType::Volt, By, UsualUnitType::Second, By, UsualUnitType::Gram, By,
                         UsualUnitType::Metre);
    const auto changed = [](UsualUnitType a, UsualUnitOperator x, UsualUnitType b, UsualUnitOperator y, UsualUnitType c,
                            UsualUnitOperator z, UsualUnitType d) { return UsualUnit(a, x, b, y, c, z, d); };
    const UsualUnitType volt = UsualUnitType::Volt;
    const UsualUnitType second = UsualUnitType::Second;
    const UsualUnitType gram = UsualUnitType::Gram;
    const UsualUnitType metre = UsualUnitType::Metre;
    EXPECT_EQ(unit, changed(volt, By, second, By, gram, By, metre));
    EXPECT_NE(unit, changed(gram, By, second, By, gram, By, metre));
    EXPECT_NE(unit, changed(volt, Times, second, By, gram, By, metre));
    EXPECT_NE(unit, changed(volt, By, volt, By, gram, By, metre));
    EXPECT_NE(unit, changed(volt, By, second, Times, gram, By, metre));
    EXPECT_NE(unit, changed(volt, By, second, By, volt, By, metre));
    EXPECT_NE(unit, changed(volt, By, second, By, gram, Times, metre));
    EXPECT_NE(unit, changed(volt, By, second, By, gram, By, UsualUnitType::None));
}

TEST(Converter, TimeIsParameterFourWithSecondTwentyAndHourTwentyThree)
{
    EXPECT_EQ(static_cast<int>(PhysicalParameter::Time), 4);
    EXPECT_EQ(static_cast<int>(UsualUnitType::Second), 20);
    EXPECT_EQ(static_cast<int>(UsualUnitType::Hour), 23);
    for (int type = 20; type <= 24; ++type) {
        const UsualUnit unit{static_cast<UsualUnitType>(type)};
        EXPECT_EQ(Converter::getPhysicalParameterFromUnits(unit), PhysicalParameter::Time) << type;
    }
}

TEST(Converter, EveryTypeThatChoosersShowHasASymbolAndAQuantity)
{
    for (const int type : ShownTypes) {
        EXPECT_FALSE(Converter::toString(static_cast<UsualUnitType>(type)).isEmpty()) << type;
        EXPECT_NE(Converter::getPhysicalParameterFromUnits(UsualUnit(static_cast<UsualUnitType>(type))),
                  PhysicalParameter::None)
            << type;
    }
}

TEST(Converter, TypesHaveNoHolesUpTo199AndFrom1040To1049)
{
    for (int type = -5; type < 2000; ++type) {
        const bool isUnit = (type >= 1 && type <= 199) || (type >= 1040 && type <= 1049);
        EXPECT_EQ(!Converter::toString(static_cast<UsualUnitType>(type)).isEmpty(), isUnit) << type;
    }
    EXPECT_EQ(Converter::toString(static_cast<UsualUnitType>(std::numeric_limits<qint32>::max())), QString());
    EXPECT_EQ(Converter::toString(static_cast<UsualUnitType>(std::numeric_limits<qint32>::min())), QString());
}

TEST(Converter, SymbolsAreUniqueAndHoldNoOperator)
{
    QSet<QString> symbols;
    for (int type = 1; type < 1050; ++type) {
        const QString symbol = Converter::toString(static_cast<UsualUnitType>(type));
        if (symbol.isEmpty()) {
            continue;
        }
        EXPECT_FALSE(symbols.contains(symbol)) << qPrintable(symbol);
        EXPECT_FALSE(symbol.contains(u'/') || symbol.contains(u'·')) << qPrintable(symbol);
        symbols.insert(symbol);
    }
    EXPECT_EQ(symbols.size(), 209);
}

TEST(Converter, NamesOfQuantitiesAreUniqueAndLeadBackToThem)
{
    const QList<QString> names = Converter::getPhysicalParameterNames();
    EXPECT_EQ(names.first(), u"None"_qs);
    EXPECT_EQ(QSet<QString>(names.begin(), names.end()).size(), names.size());
    for (const QString& name : names) {
        EXPECT_EQ(Converter::toString(Converter::getPhysicalParameterFromString(name)), name);
    }
    EXPECT_EQ(Converter::getPhysicalParameterFromString(u"Specific charge"_qs), PhysicalParameter::SpecificCharge);
}

TEST(Converter, NamesOfOperatorsLeadBackToThem)
{
    EXPECT_EQ(Converter::getOperatorNames(), (QList<QString>{u"None"_qs, u"Multiply"_qs, u"Divide"_qs}));
    EXPECT_EQ(Converter::getOperatorFromString(u"Multiply"_qs), Times);
    EXPECT_EQ(Converter::getOperatorFromString(u"Divide"_qs), By);
    EXPECT_EQ(Converter::toString(Times), u"Multiply"_qs);
    EXPECT_EQ(Converter::toString(By), u"Divide"_qs);
}

TEST(Converter, UnknownNamesAndNumbersGiveNone)
{
    EXPECT_EQ(Converter::getPhysicalParameterFromString(u"voltage"_qs), PhysicalParameter::None);
    EXPECT_EQ(Converter::getPhysicalParameterFromString(u"Voltage "_qs), PhysicalParameter::None);
    EXPECT_EQ(Converter::getPhysicalParameterFromString(QString()), PhysicalParameter::None);
    EXPECT_EQ(Converter::getOperatorFromString(u"divide"_qs), None);
    EXPECT_EQ(Converter::getOperatorFromString(QString()), None);
    EXPECT_EQ(Converter::toString(static_cast<PhysicalParameter>(25)), QString());
    EXPECT_EQ(Converter::toString(static_cast<UsualUnitOperator>(3)), QString());
    EXPECT_EQ(Converter::toString(UsualUnitType::None), QString());
    EXPECT_TRUE(Converter::getAvailableUnits(PhysicalParameter::None).isEmpty());
    EXPECT_TRUE(Converter::getAvailableUnits(static_cast<PhysicalParameter>(25)).isEmpty());
}

TEST(Converter, OffersUnitsOfOneToFourComponents)
{
    EXPECT_EQ(Converter::getAvailableUnits(PhysicalParameter::Voltage).value(1), UsualUnit(UsualUnitType::Millivolt));
    const QList<std::pair<PhysicalParameter, QString>> expected = {
        {PhysicalParameter::SpecificCharge, u"mAh/g"_qs},
        {PhysicalParameter::ArealResistance, u"Ω·cm²"_qs},
        {PhysicalParameter::VoltageRate, u"V/s"_qs},
        {PhysicalParameter::CurrentDensity, u"mA/cm²"_qs},
        {PhysicalParameter::SpecificEnergyRate, u"mWh/g/h"_qs},
        {PhysicalParameter::SpecificCapacitance, u"A·s/V/g"_qs},
        {PhysicalParameter::SpecificDifferentialCapacityRate, u"mAh/g/V/h"_qs},
    };
    for (const auto& [parameter, symbol] : expected) {
        EXPECT_TRUE(Converter::getAvailableUnits(parameter).contains(unit(symbol))) << qPrintable(symbol);
    }
}

TEST(Converter, EveryOfferedUnitMeasuresItsQuantityAndHasASymbolThatLeadsBackToIt)
{
    QSet<QString> symbols;
    int count = 0;
    for (const QString& name : Converter::getPhysicalParameterNames()) {
        const PhysicalParameter parameter = Converter::getPhysicalParameterFromString(name);
        const QList<UsualUnit> units = Converter::getAvailableUnits(parameter);
        EXPECT_EQ(units.isEmpty(), parameter == PhysicalParameter::None) << qPrintable(name);
        for (const UsualUnit& unit : units) {
            const QString symbol = Converter::toString(unit);
            EXPECT_EQ(Converter::getPhysicalParameterFromUnits(unit), parameter) << qPrintable(symbol);
            EXPECT_EQ(Converter::getUnitFromString(symbol), unit) << qPrintable(symbol);
            symbols.insert(symbol);
            ++count;
        }
    }
    EXPECT_EQ(symbols.size(), count) << "no unit is offered twice";
}

TEST(Converter, AUnitThatIsNotOfferedMeasuresWhatUnitsOfItsFormDo)
{
    EXPECT_FALSE(Converter::getAvailableUnits(PhysicalParameter::SpecificCharge).contains(unit(u"µAh/kg"_qs)));
    EXPECT_EQ(Converter::getPhysicalParameterFromUnits(unit(u"µAh/kg"_qs)), PhysicalParameter::SpecificCharge);
    EXPECT_EQ(Converter::getPhysicalParameterFromUnits(unit(u"µAh·kg"_qs)), PhysicalParameter::None);
    EXPECT_EQ(Converter::getPhysicalParameterFromUnits(unit(u"V/V/V/V"_qs)), PhysicalParameter::None);
    EXPECT_EQ(Converter::getPhysicalParameterFromUnits(UsualUnit()), PhysicalParameter::None);
    EXPECT_EQ(Converter::getPhysicalParameterFromUnits(UsualUnit(static_cast<UsualUnitType>(500))),
              PhysicalParameter::None);
}

TEST(Converter, WritesComponentsWithTheirOperators)
{
    EXPECT_EQ(Converter::toString(UsualUnit()), QString());
    EXPECT_EQ(Converter::toString(UsualUnit(UsualUnitType::Volt)), u"V"_qs);
    EXPECT_EQ(Converter::toString(UsualUnit(UsualUnitType::Ohm, Times, UsualUnitType::SquareCentimetre)), u"Ω·cm²"_qs);
    EXPECT_EQ(
        Converter::toString(UsualUnit(UsualUnitType::MilliwattHour, By, UsualUnitType::Gram, By, UsualUnitType::Hour)),
        u"mWh/g/h"_qs);
}

TEST(Converter, ReadsNoUnitFromATextThatIsNone)
{
    EXPECT_EQ(Converter::getUnitFromString(QString()), UsualUnit());
    for (const QString& text : {u"x"_qs, u"v"_qs, u"V/"_qs, u"/V"_qs, u"V//s"_qs, u"V / s"_qs, u"V*s"_qs,
                                u"V/s/s/s/s"_qs, u"V/s/s/s/"_qs, u" "_qs}) {
        EXPECT_EQ(Converter::getUnitFromString(text), std::nullopt) << qPrintable(text);
    }
}

TEST(Converter, ConvertsWithinAQuantity)
{
    const auto convert = [](double value, const QString& from, const QString& to) {
        return Converter::convert(value, unit(from), unit(to)).value();
    };
    EXPECT_DOUBLE_EQ(convert(1500, u"mV"_qs, u"V"_qs), 1.5);
    EXPECT_DOUBLE_EQ(convert(2, u"Ah"_qs, u"C"_qs), 7200);
    EXPECT_DOUBLE_EQ(convert(1, u"mAh/g"_qs, u"Ah/kg"_qs), 1);
    EXPECT_DOUBLE_EQ(convert(1, u"mWh/g/h"_qs, u"Wh/kg/d"_qs), 24);
    EXPECT_DOUBLE_EQ(convert(1, u"Ω·cm²"_qs, u"Ω·m²"_qs), 1e-4);
    EXPECT_DOUBLE_EQ(convert(3, u"A·s/V/g"_qs, u"F/g"_qs), 3);
    EXPECT_DOUBLE_EQ(convert(90, u"°"_qs, u"tr"_qs), 0.25);
    EXPECT_NEAR(convert(1, u"atm"_qs, u"psi"_qs), 14.6959488, 1e-7);
}

TEST(Converter, TemperaturesHaveAZeroPointOnlyByThemselves)
{
    const auto convert = [](double value, const QString& from, const QString& to) {
        return Converter::convert(value, unit(from), unit(to)).value();
    };
    EXPECT_DOUBLE_EQ(convert(25, u"°C"_qs, u"K"_qs), 298.15);
    EXPECT_NEAR(convert(212, u"°F"_qs, u"°C"_qs), 100, 1e-9);
    EXPECT_NEAR(convert(100, u"°C"_qs, u"°Ré"_qs), 80, 1e-9);
    EXPECT_NEAR(convert(100, u"°C"_qs, u"°De"_qs), 0, 1e-9);
    EXPECT_NEAR(convert(100, u"°C"_qs, u"°N"_qs), 33, 1e-9);
    EXPECT_NEAR(convert(0, u"°C"_qs, u"°R"_qs), 491.67, 1e-9);
    EXPECT_DOUBLE_EQ(convert(3, u"°C/s"_qs, u"K/s"_qs), 3);
}

TEST(Converter, DoesNotConvertBetweenQuantities)
{
    EXPECT_EQ(Converter::convert(1, unit(u"V"_qs), unit(u"A"_qs)), std::nullopt);
    EXPECT_EQ(Converter::convert(1, unit(u"mAh/g"_qs), unit(u"mAh"_qs)), std::nullopt);
    EXPECT_EQ(Converter::convert(1, UsualUnit(), UsualUnit()), std::nullopt);
}

TEST(Converter, HandsOutTheSameListToEveryCall)
{
    EXPECT_EQ(Converter::getAvailableUnits(PhysicalParameter::Charge).constData(),
              Converter::getAvailableUnits(PhysicalParameter::Charge).constData());
}

TEST(Converter, MayBeCalledFromSeveralThreads)
{
    constexpr int ThreadCount = 4;
    std::vector<qsizetype> counts(ThreadCount);
    std::vector<std::thread> threads;
    threads.reserve(ThreadCount);
    for (qsizetype& count : counts) {
        threads.emplace_back([&count] {
            for (const QString& name : Converter::getPhysicalParameterNames()) {
                for (const UsualUnit& unit :
                     Converter::getAvailableUnits(Converter::getPhysicalParameterFromString(name))) {
                    count += Converter::getUnitFromString(Converter::toString(unit)) == unit ? 1 : 0;
                }
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(counts, std::vector<qsizetype>(ThreadCount, 353));
}
