#pragma once

#include <cluiedit/data/CellModel.h>

#include <cstddef>
#include <vector>

namespace cluiedit {

/// What a step of the schedule does; the numbers are the values of the array "Step Type".
enum class StepType { Rest = 0, Charge = 1, Discharge = 2 };

/// What the potentiostat controls; the numbers are the values of the array "Control Mode".
enum class ControlMode { OpenCircuit = 0, Current = 1, Voltage = 2 };

/// What is recorded at one time.
struct Record
{
    double time = 0; ///< s since the start of the test
    double ambient = 0; ///< °C
    CellModel cell; ///< as it was then
};

/// A step: its records stand beside each other.
struct CyclingStep
{
    StepType type = StepType::Rest;
    ControlMode mode = ControlMode::OpenCircuit;
    int scheduleStep = 0; ///< 1 for the first step of a cycle
    int cycle = 0; ///< from 1
    int loop = 0; ///< from 1
    double controlVoltage = 0; ///< V: set point, or limit
    double controlCurrent = 0; ///< A: set point, or limit
    double startTime = 0; ///< s; the first record comes a little later
    double pulseResistance = 0; ///< Ω, from the last jump of the current, a tenth of a second after it
    std::size_t begin = 0; ///< its first record
    std::size_t end = 0; ///< behind its last
};

/// A test of many cycles. Each charges with half the nominal capacity per hour to the upper limit, holds that voltage,
/// rests, discharges with the nominal capacity per hour to the lower limit, and rests.
struct CyclingTest
{
    std::vector<Record> records;
    std::vector<CyclingStep> steps;
};

constexpr int CyclesPerLoop = 10;

/// REQUIRES: \p cycles is positive.
CyclingTest runCyclingTest(int cycles);

} // namespace cluiedit
