#include <cluiedit/data/CellModel.h>
#include <cluiedit/data/DemonstrationCell.h>

#include <base/Singleton.h>
#include <batterydata/ClConfigDataArrayManager.h>
#include <batterydata/RawDataCollection.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <numeric>

using namespace Qt::StringLiterals;
using Cell = cluiedit::DemonstrationCellData;

namespace cluiedit {

namespace {

const uiconfig::Catalogue& catalogue()
{
    return lumo::tools::Singleton<cl::batterydata::RawDataCollection>::instance().getDataConfiguration();
}

using Values = std::vector<double>;

class DemonstrationCellTest : public testing::Test
{
protected:
    const Values& get(const QString& category, const QString& name) const
    {
        const Values* found = whole.values({name, category});
        EXPECT_NE(found, nullptr) << name.toStdString();
        static const Values none;
        return found == nullptr ? none : *found;
    }
    const Values& row(const QString& name) const { return get(u"Potentiostat"_s, name); }
    const Values& step(const QString& name) const { return get(u"Step"_s, name); }
    const Values& cycle(const QString& name) const { return get(u"Cycle"_s, name); }

    static void expectNear(double is, double shall, const std::string& what)
    {
        ASSERT_NEAR(is, shall, 1e-9 * std::max(1.0, std::abs(shall))) << what;
    }

    /// Compares \p name with what \p value computes of each index.
    void expectEach(const QString& category, const QString& name, const std::function<double(std::size_t)>& value) const
    {
        const Values& values = get(category, name);
        ASSERT_FALSE(values.empty());
        for (std::size_t i = 0; i < values.size(); ++i) {
            expectNear(values[i], value(i), name.toStdString() + " at " + std::to_string(i));
        }
    }

    /// The first row and the one behind the last of each step or cycle.
    std::vector<std::pair<std::size_t, std::size_t>> groups(const QString& counter) const
    {
        const Values& numbers = row(counter);
        std::vector<std::pair<std::size_t, std::size_t>> all;
        for (std::size_t i = 0; i < numbers.size(); ++i) {
            if (i == 0 || numbers[i] != numbers[i - 1]) {
                all.emplace_back(i, i);
            }
            all.back().second = i + 1;
        }
        return all;
    }

    double mean(const Values& values, std::pair<std::size_t, std::size_t> group) const
    {
        const Values& time = row(u"Test Time / s"_s);
        double sum = 0;
        for (std::size_t i = group.first + 1; i < group.second; ++i) {
            sum += (values[i] + values[i - 1]) * (time[i] - time[i - 1]) / 2;
        }
        return sum / (time[group.second - 1] - time[group.first]);
    }

    Measurement whole = demonstrationCell(catalogue());
};

TEST_F(DemonstrationCellTest, EveryArrayOfTheCatalogueIsThereAndFinite)
{
    const QStringList slopes{u"dQ/dU / Ah/V"_s, u"dU/dQ / V/Ah"_s, u"Specific dQ/dU / mAh/g/V"_s};
    QHash<QString, std::size_t> sizes;
    for (const auto* array : catalogue().getAll()) {
        const Values& values = get(array->getCategory(), array->getName());
        ASSERT_FALSE(values.empty());
        std::size_t& size = sizes[array->getCategory()];
        EXPECT_TRUE(size == 0 || size == values.size()) << array->getName().toStdString();
        size = values.size();
        const auto finite = std::ranges::count_if(values, [](double value) { return std::isfinite(value); });
        if (array->getCategory() == u"Potentiostat" && slopes.contains(array->getName())) {
            EXPECT_GT(finite, std::ssize(values) / 2) << array->getName().toStdString();
        } else {
            EXPECT_EQ(finite, std::ssize(values)) << array->getName().toStdString();
        }
    }
    EXPECT_GE(sizes[u"Potentiostat"_s], 20000);
    EXPECT_LE(sizes[u"Potentiostat"_s], 60000);
    EXPECT_EQ(sizes[u"Cycle"_s], 100);
}

TEST_F(DemonstrationCellTest, ACatalogueWithoutAnArrayDoesNotGetIt)
{
    cl::batterydata::ClConfigDataArrayManager small;
    for (const auto* array : catalogue().getAll()) {
        if (array->getName().startsWith("Voltage"_L1)) {
            small.append(std::make_unique<cl::batterydata::ClConfigDataArray>(*array));
        }
    }
    const Measurement cell = demonstrationCell(small);
    EXPECT_EQ(*cell.values({u"Voltage / V"_s, u"Potentiostat"_s}), row(u"Voltage / V"_s));
    EXPECT_EQ(cell.values({u"Current / A"_s, u"Potentiostat"_s}), nullptr);
    EXPECT_EQ(cell.values({u"Mean Voltage / V"_s, u"Step"_s}), nullptr);
}

TEST_F(DemonstrationCellTest, ItIsTheSameEveryTime)
{
    const Measurement again = demonstrationCell(catalogue());
    for (const auto* array : catalogue().getAll()) {
        const Values& one = get(array->getCategory(), array->getName());
        const Values& other = *again.values({array->getName(), array->getCategory()});
        EXPECT_TRUE(std::ranges::equal(one, other,
                                       [](double a, double b) { return a == b || (std::isnan(a) && std::isnan(b)); }));
    }
}

TEST_F(DemonstrationCellTest, VoltageStaysInItsWindowAndTimeGoesOn)
{
    for (const double voltage : row(u"Voltage / V"_s)) {
        ASSERT_GE(voltage, Cell::MinimumVoltage - 1e-6);
        ASSERT_LE(voltage, Cell::MaximumVoltage + 1e-6);
    }
    EXPECT_TRUE(std::ranges::is_sorted(row(u"Test Time / s"_s), std::ranges::less_equal()));
    for (const double temperature : row(u"Surface Temperature / degC"_s)) {
        ASSERT_GT(temperature, 24);
        ASSERT_LT(temperature, 35);
    }
}

TEST_F(DemonstrationCellTest, CountersIntegrateCurrentAndPower)
{
    const Values& time = row(u"Test Time / s"_s);
    const Values& current = row(u"Current / A"_s);
    const Values& voltage = row(u"Voltage / V"_s);
    const Values& net = row(u"Net Capacity / Ah"_s);
    const Values& netEnergy = row(u"Net Energy / Wh"_s);
    const Values& total = row(u"Cumulative Capacity / Ah"_s);
    const Values& totalEnergy = row(u"Cumulative Energy / Wh"_s);
    double charge = 0;
    double energy = 0;
    for (std::size_t i = 1; i < time.size(); ++i) {
        const double hours = (time[i] - time[i - 1]) / 3600;
        charge += (current[i] + current[i - 1]) / 2 * hours;
        energy += (current[i] * voltage[i] + current[i - 1] * voltage[i - 1]) / 2 * hours;
        // The jump of the current between two steps lies somewhere in a tenth of a second.
        ASSERT_NEAR(net[i], charge, 1e-4 + 1e-5 * total[i]) << i;
        ASSERT_NEAR(netEnergy[i], energy, 5e-4 + 1e-5 * totalEnergy[i]) << i;
    }
    expectEach(u"Potentiostat"_s, u"Power / W"_s, [&](std::size_t i) { return voltage[i] * current[i]; });
    expectEach(u"Potentiostat"_s, u"State of Charge / %"_s,
               [&](std::size_t i) { return 100 * net[i] / Cell::NominalCapacity; });
    EXPECT_TRUE(std::ranges::is_sorted(total));
    EXPECT_TRUE(std::ranges::is_sorted(totalEnergy));
}

TEST_F(DemonstrationCellTest, CountersStartAgainWhereTheirNamesSaySo)
{
    const Values& net = row(u"Net Capacity / Ah"_s);
    const Values& netEnergy = row(u"Net Energy / Wh"_s);
    for (const QString& prefix : {u"Step"_s, u"Cycle"_s}) {
        const Values& inStep = row(prefix + u" Net Capacity / Ah"_s);
        const Values& energyInStep = row(prefix + u" Net Energy / Wh"_s);
        const Values& in = row(prefix + u" Charging Capacity / Ah"_s);
        const Values& out = row(prefix + u" Discharging Capacity / Ah"_s);
        for (const auto& [begin, end] : groups(prefix + u" Count / 1"_s)) {
            const double before = begin == 0 ? 0 : net[begin - 1];
            const double energyBefore = begin == 0 ? 0 : netEnergy[begin - 1];
            for (std::size_t i = begin; i < end; ++i) {
                expectNear(inStep[i], net[i] - before, "charge");
                expectNear(inStep[i], in[i] - out[i], "difference");
                expectNear(energyInStep[i], netEnergy[i] - energyBefore, "energy");
            }
        }
    }
    const Values& stepTime = row(u"Step Time / s"_s);
    const Values& stepRecord = row(u"Step Record Index / 1"_s);
    for (const auto& [begin, end] : groups(u"Step Count / 1"_s)) {
        EXPECT_LT(stepTime[begin], 1);
        EXPECT_EQ(stepRecord[begin], 1);
        EXPECT_EQ(stepRecord[end - 1], static_cast<double>(end - begin));
    }
}

TEST_F(DemonstrationCellTest, StepsFollowFromTheirRows)
{
    const auto steps = groups(u"Step Count / 1"_s);
    ASSERT_EQ(steps.size(), step(u"Step Count / 1"_s).size());
    const QList<std::pair<QString, QString>> quantities{{u"Voltage / V"_s, u"Voltage / V"_s},
                                                        {u"Current / A"_s, u"Current / A"_s}};
    for (const auto& [name, suffix] : quantities) {
        const Values& values = row(name);
        const auto begin = [&](std::size_t i) { return values.begin() + static_cast<std::ptrdiff_t>(steps[i].first); };
        const auto end = [&](std::size_t i) { return values.begin() + static_cast<std::ptrdiff_t>(steps[i].second); };
        expectEach(u"Step"_s, u"Start "_s + suffix, [&](std::size_t i) { return *begin(i); });
        expectEach(u"Step"_s, u"End "_s + suffix, [&](std::size_t i) { return *std::prev(end(i)); });
        expectEach(u"Step"_s, u"Minimum "_s + suffix,
                   [&](std::size_t i) { return *std::min_element(begin(i), end(i)); });
        expectEach(u"Step"_s, u"Maximum "_s + suffix,
                   [&](std::size_t i) { return *std::max_element(begin(i), end(i)); });
        expectEach(u"Step"_s, u"Mean "_s + suffix, [&](std::size_t i) { return mean(values, steps[i]); });
    }
    expectEach(u"Step"_s, u"Mean Power / W"_s, [&](std::size_t i) { return mean(row(u"Power / W"_s), steps[i]); });
    expectEach(u"Step"_s, u"Mean Temperature / degC"_s,
               [&](std::size_t i) { return mean(row(u"Surface Temperature / degC"_s), steps[i]); });
    for (const QString& name :
         {u"Test Time / s"_s, u"Step Time / s"_s, u"Unix Time / s"_s, u"Step Net Capacity / Ah"_s,
          u"Step Charging Energy / Wh"_s, u"Step Cumulative Capacity / Ah"_s, u"State of Charge / %"_s, u"Step Type"_s,
          u"Cycle Count / 1"_s, u"DC Internal Resistance / ohm"_s}) {
        expectEach(u"Step"_s, name, [&](std::size_t i) { return row(name)[steps[i].second - 1]; });
    }
}

TEST_F(DemonstrationCellTest, TheResistanceIsThatOfTheJumpsOfTheCurrent)
{
    const Values& voltage = row(u"Voltage / V"_s);
    const Values& current = row(u"Current / A"_s);
    int jumps = 0;
    const auto steps = groups(u"Step Count / 1"_s);
    for (std::size_t i = 1; i < steps.size(); ++i) {
        const std::size_t first = steps[i].first;
        const double jump = current[first] - current[first - 1];
        if (std::abs(jump) > 0.1) {
            ++jumps;
            expectNear(step(u"DC Internal Resistance / ohm"_s)[i], (voltage[first] - voltage[first - 1]) / jump,
                       "jump");
        }
    }
    EXPECT_EQ(jumps, 399); // each step but those that hold the voltage, and the first
}

TEST_F(DemonstrationCellTest, CyclesFollowFromTheirRowsAndSteps)
{
    const auto cycles = groups(u"Cycle Count / 1"_s);
    const auto last = [&](const QString& name) {
        return [&, name](std::size_t i) { return row(name)[cycles[i].second - 1]; };
    };
    for (const QString& name : {u"Test Time / s"_s, u"Cycle Charging Capacity / Ah"_s, u"Cycle Net Energy / Wh"_s,
                                u"Cycle Discharging Energy / Wh"_s, u"Cumulative Energy / Wh"_s, u"Loop Count / 1"_s}) {
        expectEach(u"Cycle"_s, name, last(name));
    }
    const Values& in = cycle(u"Cycle Charging Capacity / Ah"_s);
    const Values& out = cycle(u"Cycle Discharging Capacity / Ah"_s);
    const Values& energyIn = cycle(u"Cycle Charging Energy / Wh"_s);
    const Values& energyOut = cycle(u"Cycle Discharging Energy / Wh"_s);
    const Values& time = row(u"Test Time / s"_s);
    expectEach(u"Cycle"_s, u"Cycle Time / s"_s,
               [&](std::size_t i) { return time[cycles[i].second - 1] - time[cycles[i].first]; });
    expectEach(u"Cycle"_s, u"Coulombic Efficiency / %"_s, [&](std::size_t i) { return 100 * out[i] / in[i]; });
    expectEach(u"Cycle"_s, u"Energy Efficiency / %"_s, [&](std::size_t i) { return 100 * energyOut[i] / energyIn[i]; });
    expectEach(u"Cycle"_s, u"Voltage Efficiency / %"_s,
               [&](std::size_t i) { return 100 * energyOut[i] / out[i] / (energyIn[i] / in[i]); });
    expectEach(u"Cycle"_s, u"Capacity Retention / %"_s, [&](std::size_t i) { return 100 * out[i] / out[0]; });
    expectEach(u"Cycle"_s, u"State of Health / %"_s, [&](std::size_t i) { return 100 * out[i] / 2.5; });
    expectEach(u"Cycle"_s, u"Mean Temperature / degC"_s,
               [&](std::size_t i) { return mean(row(u"Surface Temperature / degC"_s), cycles[i]); });
    expectEach(u"Cycle"_s, u"Areal Resistance / ohm cm2"_s,
               [&](std::size_t i) { return cycle(u"DC Internal Resistance / ohm"_s)[i] * Cell::ElectrodeArea; });

    const Values& types = step(u"Step Type"_s);
    for (const auto& [name, type] : {std::pair{u"Charging Time / s"_s, 1.0}, {u"Discharging Time / s"_s, 2.0}}) {
        Values sums(cycles.size());
        for (std::size_t i = 0; i < types.size(); ++i) {
            if (types[i] == type) {
                sums.at(static_cast<std::size_t>(step(u"Cycle Count / 1"_s)[i]) - 1) += step(u"Step Time / s"_s)[i];
            }
        }
        expectEach(u"Cycle"_s, name, [&sums](std::size_t i) { return sums[i]; });
    }
}

TEST_F(DemonstrationCellTest, LoopsAddUpTheirCycles)
{
    const Values& loopOfCycle = cycle(u"Loop Count / 1"_s);
    const Values& out = cycle(u"Cycle Discharging Capacity / Ah"_s);
    expectEach(u"Loop"_s, u"Loop Discharging Capacity / Ah"_s, [&](std::size_t i) {
        double sum = 0;
        for (std::size_t k = 0; k < out.size(); ++k) {
            sum += loopOfCycle[k] == static_cast<double>(i + 1) ? out[k] : 0;
        }
        return sum;
    });
}

TEST_F(DemonstrationCellTest, TheCellAges)
{
    const Values& retention = cycle(u"Capacity Retention / %"_s);
    for (std::size_t i = 1; i < retention.size(); ++i) { // a warmer day gives a little more
        ASSERT_LT(retention[i], retention[i - 1] + 0.05) << i;
    }
    EXPECT_TRUE(std::ranges::is_sorted(get(u"Loop"_s, u"Capacity Retention / %"_s), std::ranges::greater_equal()));
    EXPECT_LT(retention.back(), 95);
    EXPECT_GT(retention.back(), 80);
    const Values& resistance = cycle(u"DC Internal Resistance / ohm"_s);
    EXPECT_GT(resistance.back(), 1.2 * resistance.front());
    for (const double efficiency : cycle(u"Coulombic Efficiency / %"_s)) {
        ASSERT_GT(efficiency, 98);
        ASSERT_LT(efficiency, 100);
    }
}

TEST_F(DemonstrationCellTest, ImpedancesAgreeWithEachOther)
{
    for (const QString& category : {u"Potentiostat"_s, u"Impedance"_s}) {
        const Values& re = get(category, u"Real Impedance / ohm"_s);
        const Values& im = get(category, u"Imaginary Impedance / ohm"_s);
        expectEach(category, u"Absolute Impedance / ohm"_s, [&](std::size_t i) { return std::hypot(re[i], im[i]); });
        expectEach(category, u"Phase / deg"_s,
                   [&](std::size_t i) { return std::atan2(im[i], re[i]) * 180 / std::acos(-1.0); });
        EXPECT_GT(*std::ranges::min_element(re), 0);
    }
    expectEach(u"Impedance"_s, u"Real Admittance / S"_s, [&](std::size_t i) {
        const double re = get(u"Impedance"_s, u"Real Impedance / ohm"_s)[i];
        return re / std::pow(get(u"Impedance"_s, u"Absolute Impedance / ohm"_s)[i], 2);
    });
}

TEST_F(DemonstrationCellTest, MorePowerGivesLessEnergy)
{
    EXPECT_TRUE(std::ranges::is_sorted(get(u"Ragone"_s, u"Power / W"_s), std::ranges::less_equal()));
    EXPECT_TRUE(std::ranges::is_sorted(get(u"Ragone"_s, u"Specific Energy / Wh/kg"_s), std::ranges::greater()));
    expectEach(u"Ragone"_s, u"Discharging Energy / Wh"_s, [&](std::size_t i) {
        return get(u"Ragone"_s, u"Power / W"_s)[i] * get(u"Ragone"_s, u"Discharging Time / s"_s)[i] / 3600;
    });
}

} // namespace

} // namespace cluiedit
