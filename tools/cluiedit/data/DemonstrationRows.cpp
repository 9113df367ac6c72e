#include "DemonstrationArrays.h"

#include <batterydata/ClConfigDataArray.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <complex>
#include <functional>
#include <limits>
#include <numbers>

using namespace Qt::StringLiterals;

namespace cluiedit {

namespace {

using Cell = DemonstrationCellData;

constexpr double SecondsPerHour = 3600;
constexpr double PerMille = 1000; // A in mA, Ah in mAh, Wh in mWh
constexpr double LeadResistance = 0.002; // Ω, between the terminals and the auxiliary input

/// With every record the tester measures the impedance at one frequency, and goes through 10 kHz to 10 mHz, four of
/// them a decade, beginning anew with each step.
constexpr std::size_t SweepLength = 25;

std::array<double, SweepLength> sweepFrequencies()
{
    std::array<double, SweepLength> frequencies{};
    for (std::size_t i = 0; i < SweepLength; ++i) {
        frequencies.at(i) = std::pow(10.0, 4 - static_cast<double>(i) / 4);
    }
    return frequencies;
}

/// The records that belong together with each record: the same step, cycle or loop.
class Groups
{
public:
    /// A group for each run of steps with the same \p key.
    template <typename Key>
    Groups(const CyclingTest& test, Key key)
        : m_ranges(test.records.size())
    {
        for (auto step = test.steps.begin(); step != test.steps.end();) {
            const auto next = std::find_if(
                step, test.steps.end(), [&](const auto& s) { return std::invoke(key, s) != std::invoke(key, *step); });
            const Range range{step->begin, std::prev(next)->end};
            std::fill(m_ranges.begin() + static_cast<std::ptrdiff_t>(range.begin),
                      m_ranges.begin() + static_cast<std::ptrdiff_t>(range.end), range);
            step = next;
        }
    }

    Range at(std::size_t record) const { return m_ranges[record]; }
    /// How much \p counter has grown since the start of the group.
    double since(const std::vector<double>& counter, std::size_t record) const
    {
        return growth(counter, {m_ranges[record].begin, record + 1});
    }

private:
    std::vector<Range> m_ranges;
};

/// The step of each record.
std::vector<const CyclingStep*> stepsOf(const CyclingTest& test)
{
    std::vector<const CyclingStep*> steps(test.records.size());
    for (const CyclingStep& step : test.steps) {
        std::fill(steps.begin() + static_cast<std::ptrdiff_t>(step.begin),
                  steps.begin() + static_cast<std::ptrdiff_t>(step.end), &step);
    }
    return steps;
}

/// What counts from the start of a group of records, or of the test.
struct CounterNames
{
    QString prefix; ///< of the arrays' names
    bool hasTotals = false; ///< also in either direction, and the difference
};

void addCounters(const DemonstrationRows& rows, const Groups& groups, const CounterNames& names, ArrayWriter& to)
{
    const auto since = [&](const std::vector<double>& counter) {
        return [&](std::size_t i) { return groups.since(counter, i); };
    };
    const auto combined = [&](const std::vector<double>& in, const std::vector<double>& out, double sign) {
        return [&, sign](std::size_t i) { return groups.since(in, i) + sign * groups.since(out, i); };
    };
    to.fill(names.prefix + u"Charging Capacity / Ah"_s, since(rows.chargeIn));
    to.fill(names.prefix + u"Discharging Capacity / Ah"_s, since(rows.chargeOut));
    to.fill(names.prefix + u"Charging Energy / Wh"_s, since(rows.energyIn));
    to.fill(names.prefix + u"Discharging Energy / Wh"_s, since(rows.energyOut));
    if (names.hasTotals) {
        to.fill(names.prefix + u"Net Capacity / Ah"_s, combined(rows.chargeIn, rows.chargeOut, -1));
        to.fill(names.prefix + u"Net Energy / Wh"_s, combined(rows.energyIn, rows.energyOut, -1));
        to.fill(names.prefix + u"Cumulative Capacity / Ah"_s, combined(rows.chargeIn, rows.chargeOut, 1));
        to.fill(names.prefix + u"Cumulative Energy / Wh"_s, combined(rows.energyIn, rows.energyOut, 1));
    }
}

void addSurroundings(const DemonstrationRows& rows, ArrayWriter& to)
{
    const std::vector<Record>& records = rows.test.records;
    // The air pressure changes over some days; the cell presses against its fixture as it swells with its charge.
    std::vector<double> airPressure(rows.size());
    std::ranges::transform(rows.time, airPressure.begin(),
                           [](double time) { return 101325 + 600 * std::sin(time / 4e5); });
    const auto appliedPressure = [&](std::size_t i) { return 100e3 + 25e3 * records[i].cell.stateOfCharge(); };
    to.fill(u"Ambient Temperature / degC"_s, [&](std::size_t i) { return records[i].ambient; });
    to.fill(u"Ambient Pressure / Pa"_s, airPressure);
    to.fill(u"Applied Pressure / Pa"_s, appliedPressure);
    to.fill(u"Applied Force / N"_s, [&](std::size_t i) { return appliedPressure(i) * Cell::FaceArea; });
    to.fill(u"Surface Pressure / Pa"_s, [&](std::size_t i) { return airPressure[i] + appliedPressure(i); });
    to.fill(u"Relative Humidity / %"_s, [&](std::size_t i) { return 45 - 4 * (records[i].ambient - 25); });
    to.fill(u"Surface Temperature / degC"_s, rows.temperature);
    // Five sensors, from beside the tabs, where it is warmest, to the edge.
    constexpr std::array ShareOfHeating{1.12, 1.06, 1.0, 0.94, 0.85};
    for (std::size_t sensor = 0; sensor < ShareOfHeating.size(); ++sensor) {
        to.fill(u"Temperature T%1 / degC"_s.arg(sensor + 1), [&](std::size_t i) {
            return std::lerp(records[i].ambient, rows.temperature[i], ShareOfHeating.at(sensor));
        });
    }
}

void addImpedances(const DemonstrationRows& rows, const Groups& steps, ArrayWriter& to)
{
    const std::vector<Record>& records = rows.test.records;
    const auto sweep = sweepFrequencies();
    const auto frequency = [&](std::size_t i) { return sweep.at((i - steps.at(i).begin) % SweepLength); };
    std::vector<std::complex<double>> impedances(rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        impedances[i] = records[i].cell.impedance(frequency(i));
    }
    to.fill(u"Frequency / Hz"_s, frequency);
    to.fill(u"Real Impedance / ohm"_s, [&](std::size_t i) { return impedances[i].real(); });
    to.fill(u"Imaginary Impedance / ohm"_s, [&](std::size_t i) { return impedances[i].imag(); });
    to.fill(u"Absolute Impedance / ohm"_s, [&](std::size_t i) { return std::abs(impedances[i]); });
    to.fill(u"Phase / deg"_s, [&](std::size_t i) { return std::arg(impedances[i]) * 180 / std::numbers::pi; });
    to.fill(u"AC Internal Resistance / ohm"_s,
            [&](std::size_t i) { return std::abs(records[i].cell.impedance(ResistanceFrequency)); });
}

void addSchedule(const DemonstrationRows& rows, const Groups& steps, ArrayWriter& to)
{
    const std::vector<const CyclingStep*> stepOf = stepsOf(rows.test);
    const CyclingStep* first = rows.test.steps.data();
    to.fill(u"Record Index / 1"_s, [](std::size_t i) { return i + 1; });
    to.fill(u"Step Record Index / 1"_s, [&](std::size_t i) { return i - steps.at(i).begin + 1; });
    to.fill(u"Step Count / 1"_s, [&](std::size_t i) { return stepOf[i] - first + 1; });
    to.fill(u"Cycle Count / 1"_s, [&](std::size_t i) { return stepOf[i]->cycle; });
    to.fill(u"Loop Count / 1"_s, [&](std::size_t i) { return stepOf[i]->loop; });
    to.fill(u"Step ID"_s, [&](std::size_t i) { return stepOf[i]->scheduleStep; });
    to.fill(u"Step Type"_s, [&](std::size_t i) { return stepOf[i]->type; });
    to.fill(u"Control Mode"_s, [&](std::size_t i) { return stepOf[i]->mode; });
    to.fill(u"Control Voltage / V"_s, [&](std::size_t i) { return stepOf[i]->controlVoltage; });
    to.fill(u"Control Current / A"_s, [&](std::size_t i) { return stepOf[i]->controlCurrent; });
    to.fill(u"Step Time / s"_s, [&](std::size_t i) { return rows.time[i] - stepOf[i]->startTime; });
    for (const QString& name : {u"DC Internal Resistance / ohm"_s, u"Internal Resistance / ohm"_s}) {
        to.fill(name, [&](std::size_t i) { return stepOf[i]->pulseResistance; });
    }
    for (const QString& name : {u"Current Overload"_s, u"Voltage Overload"_s}) {
        to.fill(name, [](std::size_t) { return 0; });
    }
}

void addShares(const DemonstrationRows& rows, const Groups& cycles, ArrayWriter& to)
{
    const auto since = [&](const std::vector<double>& counter, double scale) {
        return [&, scale](std::size_t i) { return cycles.since(counter, i) * scale; };
    };
    to.fill(u"Current Density / mA/cm2"_s,
            [&](std::size_t i) { return PerMille * rows.current[i] / Cell::ElectrodeArea; });
    to.fill(u"Specific Current / mA/g"_s, [&](std::size_t i) { return PerMille * rows.current[i] / Cell::ActiveMass; });
    to.fill(u"C-Rate / 1/h"_s, [&](std::size_t i) { return rows.current[i] / Cell::NominalCapacity; });
    to.fill(u"State of Charge / %"_s, rows.stateOfCharge);
    to.fill(u"Depth of Discharge / %"_s, [&](std::size_t i) { return 100 - rows.stateOfCharge[i]; });
    to.fill(u"Specific Charging Capacity / mAh/g"_s, since(rows.chargeIn, PerMille / Cell::ActiveMass));
    to.fill(u"Specific Discharging Capacity / mAh/g"_s, since(rows.chargeOut, PerMille / Cell::ActiveMass));
    to.fill(u"Specific Charging Energy / mWh/g"_s, since(rows.energyIn, PerMille / Cell::ActiveMass));
    to.fill(u"Specific Discharging Energy / mWh/g"_s, since(rows.energyOut, PerMille / Cell::ActiveMass));
    const auto net = [&](std::size_t i) { return rows.chargeIn[i] - rows.chargeOut[i]; };
    to.fill(u"Specific Net Capacity / mAh/g"_s, [&](std::size_t i) { return PerMille * net(i) / Cell::ActiveMass; });
    to.fill(u"Areal Net Capacity / mAh/cm2"_s, [&](std::size_t i) { return PerMille * net(i) / Cell::ElectrodeArea; });
}

void addSlopes(const DemonstrationRows& rows, const Groups& steps, ArrayWriter& to)
{
    constexpr double LeastVoltage = 1e-4; // V: less than testers resolve
    constexpr double LeastCharge = 1e-6; // Ah
    std::vector<double> net(rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        net[i] = rows.chargeIn[i] - rows.chargeOut[i];
    }
    const auto differentialCapacity = [&](std::size_t i) {
        return slope(net, rows.voltage, i, steps.at(i), LeastVoltage);
    };
    to.fill(u"Scan Rate / V/s"_s, [&](std::size_t i) { return slope(rows.voltage, rows.time, i, steps.at(i), 0); });
    to.fill(u"Heating Rate / degC/min"_s,
            [&](std::size_t i) { return 60 * slope(rows.temperature, rows.time, i, steps.at(i), 0); });
    to.fill(u"dQ/dU / Ah/V"_s, differentialCapacity);
    to.fill(u"Specific dQ/dU / mAh/g/V"_s,
            [&](std::size_t i) { return PerMille * differentialCapacity(i) / Cell::ActiveMass; });
    to.fill(u"dU/dQ / V/Ah"_s, [&](std::size_t i) { return slope(rows.voltage, net, i, steps.at(i), LeastCharge); });
}

} // namespace

DemonstrationRows::DemonstrationRows(const CyclingTest& theTest)
    : test(theTest)
{
    const std::size_t size = test.records.size();
    for (auto* values : {&time, &voltage, &current, &power, &temperature, &chargeIn, &chargeOut, &energyIn, &energyOut,
                         &stateOfCharge}) {
        values->resize(size);
    }
    double in = 0;
    double out = 0;
    double energyGiven = 0;
    double energyTaken = 0;
    for (const CyclingStep& step : test.steps) {
        double timeBefore = step.startTime;
        for (std::size_t i = step.begin; i < step.end; ++i) {
            const Record& record = test.records[i];
            time[i] = record.time;
            voltage[i] = record.cell.voltage();
            current[i] = record.cell.current();
            power[i] = voltage[i] * current[i];
            temperature[i] = record.cell.temperature();

            // What flows before the first record of a step flows as it does then.
            const std::size_t before = i == step.begin ? i : i - 1;
            const double hours = (record.time - timeBefore) / SecondsPerHour;
            const double charge = (current[before] + current[i]) / 2 * hours;
            const double energy = (power[before] + power[i]) / 2 * hours;
            in += std::max(charge, 0.0);
            out -= std::min(charge, 0.0);
            energyGiven += std::max(energy, 0.0);
            energyTaken -= std::min(energy, 0.0);
            chargeIn[i] = in;
            chargeOut[i] = out;
            energyIn[i] = energyGiven;
            energyOut[i] = energyTaken;
            stateOfCharge[i] = 100 * (in - out) / Cell::NominalCapacity;
            timeBefore = record.time;
        }
    }
}

double growth(const std::vector<double>& counter, Range range)
{
    return counter[range.end - 1] - (range.begin == 0 ? 0 : counter[range.begin - 1]);
}

double timeMean(const DemonstrationRows& rows, const std::vector<double>& values, Range range)
{
    double sum = 0;
    for (std::size_t i = range.begin + 1; i < range.end; ++i) {
        sum += (values[i - 1] + values[i]) / 2 * (rows.time[i] - rows.time[i - 1]);
    }
    const double duration = rows.time[range.end - 1] - rows.time[range.begin];
    return duration > 0 ? sum / duration : values[range.begin];
}

double slope(const std::vector<double>& y, const std::vector<double>& x, std::size_t i, Range range, double least)
{
    const std::size_t before = i > range.begin ? i - 1 : i;
    const std::size_t after = i + 1 < range.end ? i + 1 : i;
    const double run = x[after] - x[before];
    return std::abs(run) > least ? (y[after] - y[before]) / run : std::numeric_limits<double>::quiet_NaN();
}

void addRowArrays(const DemonstrationRows& rows, const uiconfig::Catalogue& catalogue, Measurement& measurement)
{
    const std::vector<Record>& records = rows.test.records;
    const Groups all(rows.test, [](const CyclingStep&) { return 0; });
    const Groups loops(rows.test, &CyclingStep::loop);
    const Groups cycles(rows.test, &CyclingStep::cycle);
    const Groups steps(rows.test, &CyclingStep::begin);
    ArrayWriter to(measurement, catalogue, cl::batterydata::ClConfigDataArray::PotentiostatMeasure(), rows.size());

    to.fill(u"Test Time / s"_s, rows.time);
    to.fill(u"Unix Time / s"_s, [&](std::size_t i) { return StartOfTest + rows.time[i]; });
    to.fill(u"Voltage / V"_s, rows.voltage);
    to.fill(u"Current / A"_s, rows.current);
    to.fill(u"Power / W"_s, rows.power);
    to.fill(u"Working Electrode Potential / V"_s,
            [&](std::size_t i) { return rows.voltage[i] + records[i].cell.negativePotential(); });
    to.fill(u"Counter Electrode Potential / V"_s, [&](std::size_t i) { return records[i].cell.negativePotential(); });
    to.fill(u"Auxiliary Voltage / V"_s,
            [&](std::size_t i) { return rows.voltage[i] + LeadResistance * rows.current[i]; });
    // The counters of the whole test; the tester resets the first two of each kind with every cycle, and the schedule
    // its own with every loop.
    addCounters(rows, all, {{}, true}, to);
    addCounters(rows, cycles, {{}, false}, to);
    addCounters(rows, loops, {u"Schedule "_s, false}, to);
    addCounters(rows, cycles, {u"Cycle "_s, true}, to);
    addCounters(rows, steps, {u"Step "_s, true}, to);
    addSchedule(rows, steps, to);
    addSurroundings(rows, to);
    addImpedances(rows, steps, to);
    addShares(rows, cycles, to);
    addSlopes(rows, steps, to);
}

} // namespace cluiedit
