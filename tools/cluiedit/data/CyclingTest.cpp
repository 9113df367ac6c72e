#include "CyclingTest.h"

#include <array>
#include <cmath>
#include <numbers>

namespace cluiedit {

namespace {

using Cell = DemonstrationCellData;

constexpr double ChargingCurrent = Cell::NominalCapacity / 2;
constexpr double DischargingCurrent = -Cell::NominalCapacity;
constexpr double EndOfChargeCurrent = Cell::NominalCapacity / 20;
constexpr double RestTime = 3600; // s, in which the cell comes to rest and to the temperature of the room

// When records are taken in a step, in s: densely after a jump of the current, then regularly.
constexpr std::array FirstRecords{0.1, 1.0, 3.0, 10.0, 30.0};
constexpr double RestInterval = 120;
constexpr double ChargingInterval = 60;
constexpr double HoldingInterval = 60;
constexpr double DischargingInterval = 30;

/// Temperature around the cell at \p time: a room that is a little warmer at one time of the day.
double ambientTemperature(double time)
{
    constexpr double SecondsPerDay = 86400;
    return 25 + 0.4 * std::sin(2 * std::numbers::pi * time / SecondsPerDay);
}

/// Runs steps of a schedule one after the other.
class Tester
{
public:
    void cycle(int number)
    {
        m_cycle = number;
        m_scheduleStep = 0;
        constantCurrent(StepType::Charge, ChargingCurrent, Cell::MaximumVoltage, ChargingInterval);
        holdVoltage();
        rest();
        constantCurrent(StepType::Discharge, DischargingCurrent, Cell::MinimumVoltage, DischargingInterval);
        rest();
    }

    CyclingTest take() { return std::move(m_test); }

private:
    void rest()
    {
        beginStep(StepType::Rest, ControlMode::OpenCircuit, 0, Cell::MaximumVoltage);
        m_cell.switchTo(0);
        double t = 0;
        while (t < RestTime) {
            const double interval = nextInterval(t, RestInterval);
            advance(interval, 0);
            t += interval;
        }
        endStep();
    }

    /// Until the voltage reaches \p limit: the last record has it exactly.
    void constantCurrent(StepType type, double current, double limit, double interval)
    {
        beginStep(type, ControlMode::Current, current, limit);
        m_cell.switchTo(current);
        const auto isBeyond = [&](const CellModel& cell) { return (cell.voltage() - limit) * current >= 0; };
        for (double t = 0;; t += nextInterval(t, interval)) {
            const double next = nextInterval(t, interval);
            CellModel after = m_cell;
            after.advance(next, current, m_ambient);
            if (isBeyond(after)) {
                advance(timeUntil(isBeyond, next, current), current);
                break;
            }
            record(next, after);
        }
        endStep();
    }

    /// The time within \p seconds at which \p isBeyond begins to hold.
    template <typename Condition>
    double timeUntil(Condition isBeyond, double seconds, double current) const
    {
        double notYet = 0;
        double beyond = seconds;
        for (int i = 0; i < 40; ++i) {
            const double middle = (notYet + beyond) / 2;
            CellModel after = m_cell;
            after.advance(middle, current, m_ambient);
            (isBeyond(after) ? beyond : notYet) = middle;
        }
        return beyond;
    }

    /// Holds the voltage of a full cell until the current is small.
    void holdVoltage()
    {
        beginStep(StepType::Charge, ControlMode::Voltage, EndOfChargeCurrent, Cell::MaximumVoltage);
        for (double t = 0; m_cell.current() > EndOfChargeCurrent; t += nextInterval(t, HoldingInterval)) {
            const double interval = nextInterval(t, HoldingInterval);
            advance(interval, m_cell.currentForVoltage(Cell::MaximumVoltage, interval, m_ambient));
        }
        endStep();
    }

    static double nextInterval(double sinceStart, double regular)
    {
        for (const double first : FirstRecords) {
            if (sinceStart < first - 1e-6) {
                return first - sinceStart;
            }
        }
        return regular;
    }

    void beginStep(StepType type, ControlMode mode, double current, double voltage)
    {
        const double resistance = m_test.steps.empty() ? 0 : m_test.steps.back().pulseResistance;
        const int loop = (m_cycle - 1) / CyclesPerLoop + 1;
        const std::size_t begin = m_test.records.size();
        m_test.steps.push_back(
            {type, mode, ++m_scheduleStep, m_cycle, loop, voltage, current, m_time, resistance, begin, begin});
        m_voltageBefore = m_cell.voltage();
        m_currentBefore = m_cell.current();
    }

    void endStep()
    {
        CyclingStep& step = m_test.steps.back();
        step.end = m_test.records.size();
        const CellModel& first = m_test.records[step.begin].cell;
        const double jump = first.current() - m_currentBefore;
        if (std::abs(jump) > EndOfChargeCurrent / 2) {
            step.pulseResistance = (first.voltage() - m_voltageBefore) / jump;
        }
    }

    void advance(double seconds, double current)
    {
        CellModel after = m_cell;
        after.advance(seconds, current, m_ambient);
        record(seconds, after);
    }

    /// Records \p after, what the cell is like when \p seconds have passed.
    void record(double seconds, const CellModel& after)
    {
        m_cell = after;
        m_time += seconds;
        m_ambient = ambientTemperature(m_time);
        m_test.records.push_back({m_time, m_ambient, m_cell});
    }

    CyclingTest m_test;
    double m_time = 0;
    double m_ambient = ambientTemperature(0);
    CellModel m_cell{m_ambient};
    int m_cycle = 0;
    int m_scheduleStep = 0;
    double m_voltageBefore = 0; // the step at hand
    double m_currentBefore = 0;
};

} // namespace

CyclingTest runCyclingTest(int cycles)
{
    Tester tester;
    for (int cycle = 1; cycle <= cycles; ++cycle) {
        tester.cycle(cycle);
    }
    return tester.take();
}

} // namespace cluiedit
