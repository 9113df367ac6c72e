#include "DemonstrationArrays.h"

#include <algorithm>
#include <complex>
#include <functional>
#include <span>

using namespace Qt::StringLiterals;

namespace cluiedit {

namespace {

using Cell = DemonstrationCellData;

constexpr double SecondsPerHour = 3600;
constexpr double PerMille = 1000; // V in mV, Ah in mAh, Wh in mWh

/// A cycle, or a pass through the loop: what its steps amount to.
struct Pass
{
    int cycle = 0; ///< the last
    int loop = 0;
    Range range; ///< its records
    double duration = 0; ///< s, from the first to the last record
    double end = 0; ///< s since the start of the test
    double chargingTime = 0; ///< s
    double dischargingTime = 0; ///< s
    double chargeIn = 0; ///< Ah
    double chargeOut = 0; ///< Ah
    double energyIn = 0; ///< Wh
    double energyOut = 0; ///< Wh
    double cumulativeCharge = 0; ///< Ah, since the start of the test, and so is the energy
    double cumulativeEnergy = 0; ///< Wh
    double endOfChargeVoltage = 0; ///< V
    double endOfDischargeVoltage = 0; ///< V
    double dischargingCurrent = 0; ///< A, the mean, positive
    double pulseResistance = 0; ///< Ω, of its first jump of the current
    double alternatingResistance = 0; ///< Ω, at its end
    double meanTemperature = 0; ///< °C
    double maximumTemperature = 0; ///< °C
    double entropyCoefficient = 0; ///< V/K

    double meanChargingVoltage() const { return energyIn / chargeIn; }
    double meanDischargingVoltage() const { return energyOut / chargeOut; }
    double equivalentFullCycles() const { return cumulativeCharge / (2 * Cell::NominalCapacity); }
};

/// The slope of the straight line that fits the voltage over the temperature best in the second half of a rest, when
/// the voltage has relaxed and follows the temperature alone.
double entropyCoefficient(const DemonstrationRows& rows, const CyclingStep& rest)
{
    const double half = (rest.startTime + rows.time[rest.end - 1]) / 2;
    double count = 0;
    double meanVoltage = 0;
    double meanTemperature = 0;
    double products = 0;
    double squares = 0;
    for (std::size_t i = rest.begin; i < rest.end; ++i) {
        if (rows.time[i] >= half) { // one more point for the means, and for the sums about them
            ++count;
            const double temperature = rows.temperature[i] - meanTemperature;
            meanTemperature += temperature / count;
            meanVoltage += (rows.voltage[i] - meanVoltage) / count;
            products += temperature * (rows.voltage[i] - meanVoltage);
            squares += temperature * (rows.temperature[i] - meanTemperature);
        }
    }
    return squares > 0 ? products / squares : 0;
}

/// REQUIRES: \p steps are not empty.
Pass summary(const DemonstrationRows& rows, std::span<const CyclingStep> steps)
{
    Pass pass;
    pass.cycle = steps.back().cycle;
    pass.loop = steps.back().loop;
    pass.range = {steps.front().begin, steps.back().end};
    const std::size_t last = pass.range.end - 1;
    pass.end = rows.time[last];
    pass.duration = pass.end - rows.time[pass.range.begin];
    pass.chargeIn = growth(rows.chargeIn, pass.range);
    pass.chargeOut = growth(rows.chargeOut, pass.range);
    pass.energyIn = growth(rows.energyIn, pass.range);
    pass.energyOut = growth(rows.energyOut, pass.range);
    pass.cumulativeCharge = rows.chargeIn[last] + rows.chargeOut[last];
    pass.cumulativeEnergy = rows.energyIn[last] + rows.energyOut[last];
    pass.pulseResistance = steps.front().pulseResistance;
    pass.alternatingResistance = std::abs(rows.test.records[last].cell.impedance(ResistanceFrequency));
    pass.meanTemperature = timeMean(rows, rows.temperature, pass.range);
    pass.maximumTemperature =
        *std::max_element(rows.temperature.begin() + static_cast<std::ptrdiff_t>(pass.range.begin),
                          rows.temperature.begin() + static_cast<std::ptrdiff_t>(pass.range.end));
    for (const CyclingStep& step : steps) {
        const double time = rows.time[step.end - 1] - step.startTime;
        if (step.type == StepType::Charge) {
            pass.chargingTime += time;
            pass.endOfChargeVoltage = rows.voltage[step.end - 1];
        } else if (step.type == StepType::Discharge) {
            pass.dischargingTime += time;
            pass.endOfDischargeVoltage = rows.voltage[step.end - 1];
            pass.dischargingCurrent = -timeMean(rows, rows.current, {step.begin, step.end});
        } else {
            pass.entropyCoefficient = entropyCoefficient(rows, step);
        }
    }
    return pass;
}

/// A pass for each run of steps with the same \p key.
template <typename Key>
std::vector<Pass> passes(const DemonstrationRows& rows, Key key)
{
    std::vector<Pass> all;
    const std::vector<CyclingStep>& steps = rows.test.steps;
    for (auto step = steps.begin(); step != steps.end();) {
        const auto next = std::find_if(step, steps.end(),
                                       [&](const auto& s) { return std::invoke(key, s) != std::invoke(key, *step); });
        all.push_back(summary(rows, {step, next}));
        step = next;
    }
    return all;
}

/// Arrays with a value a pass.
class PassWriter
{
public:
    PassWriter(const std::vector<Pass>& passes, ArrayWriter to)
        : m_passes(passes)
        , m_to(std::move(to))
    {
    }

    /// \p value takes the pass.
    template <typename Value>
    void fill(const QString& name, Value value, double scale = 1)
    {
        m_to.fill(name, [&](std::size_t i) { return scale * std::invoke(value, m_passes[i]); });
    }

    /// How much less \p value is per hour than before, from the passes beside it.
    void fillLossRate(const QString& name, double Pass::*value, double scale)
    {
        m_to.fill(name, [&](std::size_t i) {
            const Pass& before = m_passes[i > 0 ? i - 1 : i];
            const Pass& after = m_passes[std::min(i + 1, m_passes.size() - 1)];
            const double hours = (after.end - before.end) / SecondsPerHour;
            return hours > 0 ? -scale * (after.*value - before.*value) / hours : 0;
        });
    }

private:
    const std::vector<Pass>& m_passes;
    ArrayWriter m_to;
};

/// What cycles and loops have in common; capacities and energies have names of their own there.
void addCommon(const std::vector<Pass>& passes, const QString& prefix, PassWriter& to)
{
    const double reference = passes.front().chargeOut;
    to.fill(u"Cycle Count / 1"_s, &Pass::cycle);
    to.fill(u"Loop Count / 1"_s, &Pass::loop);
    to.fill(u"Test Time / s"_s, &Pass::end);
    to.fill(prefix + u"Time / s"_s, &Pass::duration);
    to.fill(prefix + u"Charging Capacity / Ah"_s, &Pass::chargeIn);
    to.fill(prefix + u"Discharging Capacity / Ah"_s, &Pass::chargeOut);
    to.fill(prefix + u"Charging Energy / Wh"_s, &Pass::energyIn);
    to.fill(prefix + u"Discharging Energy / Wh"_s, &Pass::energyOut);
    to.fill(u"Coulombic Efficiency / %"_s, [](const Pass& pass) { return 100 * pass.chargeOut / pass.chargeIn; });
    to.fill(u"Energy Efficiency / %"_s, [](const Pass& pass) { return 100 * pass.energyOut / pass.energyIn; });
    to.fill(u"Capacity Retention / %"_s, &Pass::chargeOut, 100 / reference);
    to.fill(u"Equivalent Full Cycles / 1"_s, &Pass::equivalentFullCycles);
    to.fill(u"Cumulative Capacity / Ah"_s, &Pass::cumulativeCharge);
    to.fill(u"DC Internal Resistance / ohm"_s, &Pass::pulseResistance);
    to.fill(u"Mean Temperature / degC"_s, &Pass::meanTemperature);
    to.fill(u"Maximum Temperature / degC"_s, &Pass::maximumTemperature);
}

void addCycles(const std::vector<Pass>& cycles, PassWriter& to)
{
    const double perMass = PerMille / Cell::ActiveMass;
    addCommon(cycles, u"Cycle "_s, to);
    to.fill(u"Unix Time / s"_s, [](const Pass& cycle) { return StartOfTest + cycle.end; });
    to.fill(u"Charging Time / s"_s, &Pass::chargingTime);
    to.fill(u"Discharging Time / s"_s, &Pass::dischargingTime);
    to.fill(u"Cycle Net Capacity / Ah"_s, [](const Pass& cycle) { return cycle.chargeIn - cycle.chargeOut; });
    to.fill(u"Cycle Cumulative Capacity / Ah"_s, [](const Pass& cycle) { return cycle.chargeIn + cycle.chargeOut; });
    to.fill(u"Cycle Net Energy / Wh"_s, [](const Pass& cycle) { return cycle.energyIn - cycle.energyOut; });
    to.fill(u"Cycle Cumulative Energy / Wh"_s, [](const Pass& cycle) { return cycle.energyIn + cycle.energyOut; });
    to.fill(u"Cumulative Energy / Wh"_s, &Pass::cumulativeEnergy);
    to.fill(u"Specific Charging Capacity / mAh/g"_s, &Pass::chargeIn, perMass);
    to.fill(u"Specific Discharging Capacity / mAh/g"_s, &Pass::chargeOut, perMass);
    to.fill(u"Specific Charging Energy / mWh/g"_s, &Pass::energyIn, perMass);
    to.fill(u"Specific Discharging Energy / mWh/g"_s, &Pass::energyOut, perMass);
    to.fill(u"Areal Discharging Capacity / mAh/cm2"_s, &Pass::chargeOut, PerMille / Cell::ElectrodeArea);
    to.fill(u"Voltage Efficiency / %"_s,
            [](const Pass& cycle) { return 100 * cycle.meanDischargingVoltage() / cycle.meanChargingVoltage(); });
    to.fill(u"Energy Retention / %"_s, &Pass::energyOut, 100 / cycles.front().energyOut);
    to.fill(u"State of Health / %"_s, &Pass::chargeOut, 100 / Cell::NominalCapacity);
    to.fill(u"Irreversible Capacity / Ah"_s, [](const Pass& cycle) { return cycle.chargeIn - cycle.chargeOut; });
    to.fillLossRate(u"Capacity Loss Rate / mAh/g/h"_s, &Pass::chargeOut, perMass);
    to.fillLossRate(u"Energy Loss Rate / mWh/g/h"_s, &Pass::energyOut, perMass);
    to.fill(u"Mean Charging Voltage / V"_s, &Pass::meanChargingVoltage);
    to.fill(u"Mean Discharging Voltage / V"_s, &Pass::meanDischargingVoltage);
    to.fill(u"Voltage Hysteresis / V"_s,
            [](const Pass& cycle) { return cycle.meanChargingVoltage() - cycle.meanDischargingVoltage(); });
    to.fill(u"End of Charge Voltage / V"_s, &Pass::endOfChargeVoltage);
    to.fill(u"End of Discharge Voltage / V"_s, &Pass::endOfDischargeVoltage);
    // The current that flows out counts as positive here, so that rates can be compared, also on a logarithmic axis.
    to.fill(u"C-Rate / 1/h"_s, &Pass::dischargingCurrent, 1 / Cell::NominalCapacity);
    to.fill(u"AC Internal Resistance / ohm"_s, &Pass::alternatingResistance);
    to.fill(u"Areal Resistance / ohm cm2"_s, &Pass::pulseResistance, Cell::ElectrodeArea);
    to.fill(u"Entropy Coefficient / mV/K"_s, &Pass::entropyCoefficient, PerMille);
}

void addLoops(const std::vector<Pass>& loops, const std::vector<Pass>& cycles, PassWriter& to)
{
    addCommon(loops, u"Loop "_s, to);
    to.fill(u"State of Health / %"_s, [&](const Pass& loop) {
        const Pass& last = cycles[static_cast<std::size_t>(loop.cycle - cycles.front().cycle)];
        return 100 * last.chargeOut / Cell::NominalCapacity;
    });
}

} // namespace

void addCycleArrays(const DemonstrationRows& rows, const uiconfig::Catalogue& catalogue, Measurement& measurement)
{
    const std::vector<Pass> cycles = passes(rows, &CyclingStep::cycle);
    const std::vector<Pass> loops = passes(rows, &CyclingStep::loop);
    PassWriter toCycles(cycles, ArrayWriter(measurement, catalogue, u"Cycle"_s, cycles.size()));
    PassWriter toLoops(loops, ArrayWriter(measurement, catalogue, u"Loop"_s, loops.size()));
    addCycles(cycles, toCycles);
    addLoops(loops, cycles, toLoops);
}

} // namespace cluiedit
