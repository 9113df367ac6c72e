#include <config/UIFilteredUnits.h>

#include <datastorage/Converter.h>

#include <gtest/gtest.h>

#include <set>
#include <thread>
#include <vector>

using cl::datastorage::Converter;
using cl::datastorage::PhysicalParameter;
using cl::datastorage::UsualUnit;
using cl::datastorage::UsualUnitOperator;
using cl::datastorage::UsualUnitType;

namespace cl::datastorage {

void PrintTo(const UsualUnit& unit, std::ostream* out)
{
    *out << Converter::toString(unit).toStdString();
}

} // namespace cl::datastorage

namespace {

/// The 60 unit types that the user interface shows, by their numbers.
const std::set<int> Allowed{2,   3,   4,   5,   10,  11,  12,  13,  14,  15,  20,  21,  22,   23,   24,
                            40,  41,  42,  50,  60,  61,  62,  64,  70,  71,  72,  80,  82,   83,   90,
                            100, 101, 102, 103, 111, 112, 113, 114, 130, 131, 132, 135, 140,  141,  142,
                            143, 144, 145, 146, 147, 150, 151, 160, 161, 170, 180, 190, 1043, 1044, 1045};

bool isInSet(UsualUnitType type)
{
    return Allowed.contains(static_cast<int>(type));
}

/// The filter as a procedure written out step by step, to compare the library's with.
QList<UsualUnit> filteredStepByStep(const PhysicalParameter& parameter)
{
    constexpr PhysicalParameter Time{4};
    constexpr UsualUnitType Second{20};
    constexpr UsualUnitType Hour{23};

    QList<UsualUnit> result;
    for (const UsualUnit& unit : Converter::getAvailableUnits(parameter)) {
        UsualUnit slot1(UsualUnitType{0});
        UsualUnit slot2(UsualUnitType{0});
        UsualUnit slot3(UsualUnitType{0});
        UsualUnit slot4(UsualUnitType{0});
        UsualUnitOperator operator1{0};
        UsualUnitOperator operator2{0};
        UsualUnitOperator operator3{0};

        if (!isInSet(unit.getUnit1())) {
            continue;
        }
        slot1 = UsualUnit(unit.getUnit1());
        if (unit.hasUnit2()) {
            const UsualUnitType type = unit.getUnit2();
            if (Converter::getPhysicalParameterFromUnits(UsualUnit(type)) != Time) {
                if (isInSet(type)) {
                    slot2 = UsualUnit(type);
                }
            } else if (type == Second || type == Hour) {
                slot2 = UsualUnit(type);
            }
            operator1 = unit.getOperator();
            if (unit.hasUnit3()) {
                const UsualUnitType third = unit.getUnit3();
                if (Converter::getPhysicalParameterFromUnits(UsualUnit(third)) != Time) {
                    if (isInSet(third)) {
                        slot3 = UsualUnit(third);
                    }
                } else if (third == Second || third == Hour) {
                    slot3 = UsualUnit(third);
                }
                operator2 = unit.getOperator2();
                if (unit.hasUnit4()) {
                    const UsualUnitType fourth = unit.getUnit4();
                    if (Converter::getPhysicalParameterFromUnits(UsualUnit(fourth)) != Time) {
                        if (isInSet(fourth)) {
                            slot4 = UsualUnit(fourth);
                        }
                    } else if (fourth == Second || fourth == Hour) {
                        slot3 = UsualUnit(fourth); // the third slot, not the fourth
                    }
                    operator3 = unit.getOperator3();
                }
            }
        }
        const UsualUnit candidate(slot1.getUnit1(), operator1, slot2.getUnit1(), operator2, slot3.getUnit1(), operator3,
                                  slot4.getUnit1());
        if (candidate == unit) {
            result.append(candidate);
        }
    }
    return result;
}

QList<UsualUnit> filtered(PhysicalParameter parameter)
{
    return UIFilteredUnits::getFilteredUnits(parameter);
}

constexpr auto By = UsualUnitOperator::Divide;
constexpr auto Times = UsualUnitOperator::Multiply;

/// Whether the unit is offered by the converter, and whether it passes the filter.
bool isOffered(PhysicalParameter parameter, const UsualUnit& unit)
{
    return Converter::getAvailableUnits(parameter).contains(unit);
}
bool isKept(PhysicalParameter parameter, const UsualUnit& unit)
{
    return filtered(parameter).contains(unit);
}

} // namespace

TEST(FilteredUnits, EveryQuantityIsFilteredAsTheProcedureSays)
{
    const qsizetype quantities = Converter::getPhysicalParameterNames().size();
    qsizetype withUnits = 0;
    for (int value = -1; value <= 200; ++value) {
        const PhysicalParameter parameter{value};
        EXPECT_EQ(filtered(parameter), filteredStepByStep(parameter)) << value;
        withUnits += Converter::getAvailableUnits(parameter).isEmpty() ? 0 : 1;
    }
    EXPECT_EQ(withUnits, quantities - 1) << "every quantity but the first, which is none, has units";
}

TEST(FilteredUnits, SingleUnitIsKeptExactlyWhenItsTypeIsOneOfSixty)
{
    ASSERT_EQ(Allowed.size(), 60U);
    std::size_t kept = 0;
    for (int value = 0; value <= 1100; ++value) {
        const UsualUnit unit(UsualUnitType{value});
        const PhysicalParameter parameter = Converter::getPhysicalParameterFromUnits(unit);
        EXPECT_EQ(isKept(parameter, unit), Allowed.contains(value)) << value;
        kept += isKept(parameter, unit) ? 1 : 0;
    }
    EXPECT_EQ(kept, 60U) << "the converter offers every allowed type";
}

TEST(FilteredUnits, GapsAreDropped)
{
    for (const int value : {1, 63, 81, 110, 133, 134, 1042}) {
        const UsualUnit unit(UsualUnitType{value});
        const PhysicalParameter parameter = Converter::getPhysicalParameterFromUnits(unit);
        EXPECT_TRUE(isOffered(parameter, unit)) << value;
        EXPECT_FALSE(isKept(parameter, unit)) << value;
    }
}

TEST(FilteredUnits, TimeAfterTheFirstComponentIsTheSecondOrTheHour)
{
    using enum UsualUnitType;
    const auto rate = PhysicalParameter::VoltageRate;
    EXPECT_TRUE(isKept(rate, {Volt, By, Second}));
    EXPECT_TRUE(isKept(rate, {Volt, By, Hour}));
    for (const UsualUnit& unit : {UsualUnit{Volt, By, Millisecond}, UsualUnit{Millivolt, By, Minute}}) {
        EXPECT_TRUE(isOffered(rate, unit));
        EXPECT_FALSE(isKept(rate, unit)) << "although types 21 and 22 are allowed alone";
    }
    EXPECT_TRUE(isKept(PhysicalParameter::Time, UsualUnit(Millisecond)));
    EXPECT_TRUE(isKept(PhysicalParameter::Time, UsualUnit(Day)));
}

TEST(FilteredUnits, EveryComponentMustBeAllowed)
{
    using enum UsualUnitType;
    EXPECT_TRUE(isKept(PhysicalParameter::SpecificCharge, {MilliampereHour, By, Gram}));
    EXPECT_TRUE(isOffered(PhysicalParameter::SpecificCharge, {Kilocoulomb, By, Kilogram}));
    EXPECT_FALSE(isKept(PhysicalParameter::SpecificCharge, {Kilocoulomb, By, Kilogram})) << "the first is not";
    EXPECT_TRUE(isKept(PhysicalParameter::Resistivity, {Ohm, Times, Centimetre}));
    EXPECT_TRUE(isOffered(PhysicalParameter::Resistivity, {Ohm, Times, Metre}));
    EXPECT_FALSE(isKept(PhysicalParameter::Resistivity, {Ohm, Times, Metre})) << "the second is not";
}

TEST(FilteredUnits, ThirdComponentThatIsATimeIsTheSecondOrTheHour)
{
    using enum UsualUnitType;
    const auto rate = PhysicalParameter::SpecificEnergyRate;
    EXPECT_TRUE(isKept(rate, {MilliwattHour, By, Gram, By, Hour}));
    EXPECT_TRUE(isKept(rate, {WattHour, By, Kilogram, By, Second}));
    EXPECT_TRUE(isOffered(rate, {WattHour, By, Kilogram, By, Day}));
    EXPECT_FALSE(isKept(rate, {WattHour, By, Kilogram, By, Day}));
}

TEST(FilteredUnits, FourthComponentThatIsATimeDropsTheUnit)
{
    using enum UsualUnitType;
    const auto rate = PhysicalParameter::SpecificDifferentialCapacityRate;
    for (const UsualUnitType time : {Hour, Second, Day}) {
        EXPECT_TRUE(isOffered(rate, {MilliampereHour, By, Gram, By, Volt, By, time}));
        EXPECT_FALSE(isKept(rate, {MilliampereHour, By, Gram, By, Volt, By, time}));
    }
    EXPECT_TRUE(isKept(PhysicalParameter::SpecificDifferentialCapacity, {MilliampereHour, By, Gram, By, Volt}))
        << "the first three components are no obstacle";
}

TEST(FilteredUnits, FourthComponentThatIsNoTimeIsKept)
{
    using enum UsualUnitType;
    EXPECT_TRUE(isKept(PhysicalParameter::SpecificCapacitance, {Ampere, Times, Second, By, Volt, By, Gram}));
}

TEST(FilteredUnits, UnknownQuantityHasNoUnits)
{
    EXPECT_TRUE(filtered(PhysicalParameter::None).isEmpty());
    EXPECT_TRUE(filtered(PhysicalParameter{-1}).isEmpty());
    EXPECT_TRUE(filtered(PhysicalParameter{2'000'000'000}).isEmpty());
}

TEST(FilteredUnits, AnyThreadMayAsk)
{
    std::vector<QList<UsualUnit>> results(8);
    std::vector<std::thread> threads;
    threads.reserve(results.size());
    for (QList<UsualUnit>& result : results) {
        threads.emplace_back([&result] { result = filtered(PhysicalParameter::SpecificCharge); });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    for (const QList<UsualUnit>& result : results) {
        EXPECT_EQ(result, filteredStepByStep(PhysicalParameter::SpecificCharge));
    }
}
