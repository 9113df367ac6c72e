#include "DemonstrationArrays.h"

#include <algorithm>
#include <functional>

using namespace Qt::StringLiterals;

namespace cluiedit {

namespace {

using Cell = DemonstrationCellData;

constexpr double PerMille = 1000; // A in mA, Ah in mAh

/// Arrays with a value a step.
class StepWriter
{
public:
    StepWriter(const DemonstrationRows& rows, const uiconfig::Catalogue& catalogue, Measurement& measurement)
        : m_rows(rows)
        , m_to(measurement, catalogue, u"Step"_s, rows.test.steps.size())
    {
    }

    /// \p value takes the step.
    template <typename Value>
    void perStep(const QString& name, Value value)
    {
        m_to.fill(name, [&](std::size_t i) { return std::invoke(value, m_rows.test.steps[i]); });
    }

    /// \p value takes the records of the step.
    template <typename Value>
    void perRange(const QString& name, Value value)
    {
        m_to.fill(name, [&](std::size_t i) {
            return value(Range{m_rows.test.steps[i].begin, m_rows.test.steps[i].end});
        });
    }

    void first(const QString& name, const std::vector<double>& values)
    {
        perRange(name, [&](Range range) { return values[range.begin]; });
    }
    void last(const QString& name, const std::vector<double>& values)
    {
        perRange(name, [&](Range range) { return values[range.end - 1]; });
    }
    void mean(const QString& name, const std::vector<double>& values, double scale = 1)
    {
        perRange(name, [&](Range range) { return scale * timeMean(m_rows, values, range); });
    }
    void minimum(const QString& name, const std::vector<double>& values)
    {
        perRange(name, [&](Range range) {
            return *std::min_element(values.begin() + static_cast<std::ptrdiff_t>(range.begin),
                                     values.begin() + static_cast<std::ptrdiff_t>(range.end));
        });
    }
    void maximum(const QString& name, const std::vector<double>& values)
    {
        perRange(name, [&](Range range) {
            return *std::max_element(values.begin() + static_cast<std::ptrdiff_t>(range.begin),
                                     values.begin() + static_cast<std::ptrdiff_t>(range.end));
        });
    }

private:
    const DemonstrationRows& m_rows;
    ArrayWriter m_to;
};

void addCounters(const DemonstrationRows& rows, StepWriter& to)
{
    const auto during = [](const std::vector<double>& counter, double scale = 1) {
        return [&counter, scale](Range range) { return scale * growth(counter, range); };
    };
    const auto combined = [](const std::vector<double>& in, const std::vector<double>& out, double sign) {
        return [&in, &out, sign](Range range) { return growth(in, range) + sign * growth(out, range); };
    };
    to.perRange(u"Step Charging Capacity / Ah"_s, during(rows.chargeIn));
    to.perRange(u"Step Discharging Capacity / Ah"_s, during(rows.chargeOut));
    to.perRange(u"Step Net Capacity / Ah"_s, combined(rows.chargeIn, rows.chargeOut, -1));
    to.perRange(u"Step Cumulative Capacity / Ah"_s, combined(rows.chargeIn, rows.chargeOut, 1));
    to.perRange(u"Step Charging Energy / Wh"_s, during(rows.energyIn));
    to.perRange(u"Step Discharging Energy / Wh"_s, during(rows.energyOut));
    to.perRange(u"Step Net Energy / Wh"_s, combined(rows.energyIn, rows.energyOut, -1));
    to.perRange(u"Step Cumulative Energy / Wh"_s, combined(rows.energyIn, rows.energyOut, 1));
    to.perRange(u"Specific Charging Capacity / mAh/g"_s, during(rows.chargeIn, PerMille / Cell::ActiveMass));
    to.perRange(u"Specific Discharging Capacity / mAh/g"_s, during(rows.chargeOut, PerMille / Cell::ActiveMass));
}

} // namespace

void addStepArrays(const DemonstrationRows& rows, const uiconfig::Catalogue& catalogue, Measurement& measurement)
{
    StepWriter to(rows, catalogue, measurement);
    const CyclingStep* firstStep = rows.test.steps.data();
    to.perStep(u"Step Count / 1"_s, [&](const CyclingStep& step) { return &step - firstStep + 1; });
    to.perStep(u"Step ID"_s, &CyclingStep::scheduleStep);
    to.perStep(u"Step Type"_s, &CyclingStep::type);
    to.perStep(u"Cycle Count / 1"_s, &CyclingStep::cycle);
    to.perStep(u"Loop Count / 1"_s, &CyclingStep::loop);
    to.last(u"Test Time / s"_s, rows.time);
    to.perStep(u"Step Time / s"_s, [&](const CyclingStep& step) { return rows.time[step.end - 1] - step.startTime; });
    to.perStep(u"Unix Time / s"_s, [&](const CyclingStep& step) { return StartOfTest + rows.time[step.end - 1]; });
    to.perStep(u"DC Internal Resistance / ohm"_s, &CyclingStep::pulseResistance);
    to.perStep(u"Internal Resistance / ohm"_s, &CyclingStep::pulseResistance);

    to.first(u"Start Voltage / V"_s, rows.voltage);
    to.last(u"End Voltage / V"_s, rows.voltage);
    to.mean(u"Mean Voltage / V"_s, rows.voltage);
    to.minimum(u"Minimum Voltage / V"_s, rows.voltage);
    to.maximum(u"Maximum Voltage / V"_s, rows.voltage);
    to.first(u"Start Current / A"_s, rows.current);
    to.last(u"End Current / A"_s, rows.current);
    to.mean(u"Mean Current / A"_s, rows.current);
    to.minimum(u"Minimum Current / A"_s, rows.current);
    to.maximum(u"Maximum Current / A"_s, rows.current);
    to.mean(u"Mean Power / W"_s, rows.power);
    to.mean(u"C-Rate / 1/h"_s, rows.current, 1 / Cell::NominalCapacity);
    to.mean(u"Current Density / mA/cm2"_s, rows.current, PerMille / Cell::ElectrodeArea);
    to.mean(u"Mean Temperature / degC"_s, rows.temperature);
    to.maximum(u"Maximum Temperature / degC"_s, rows.temperature);
    to.last(u"State of Charge / %"_s, rows.stateOfCharge);
    addCounters(rows, to);
}

} // namespace cluiedit
