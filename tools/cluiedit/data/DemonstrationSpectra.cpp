#include "DemonstrationArrays.h"

#include <algorithm>
#include <cmath>
#include <complex>
#include <iterator>
#include <numbers>

using namespace Qt::StringLiterals;

namespace cluiedit {

namespace {

using Cell = DemonstrationCellData;
using Complex = std::complex<double>;

constexpr double Degrees = 180 / std::numbers::pi;
constexpr double PerMille = 1000; // Ah in mAh

/// A curve of charge over voltage, at voltages of equal distance.
struct ChargeCurve
{
    std::vector<double> voltages; ///< V, the middles of the intervals
    std::vector<double> nets; ///< Ah that flowed in since the start of the test, there
    std::vector<double> slopes; ///< Ah/V
};

constexpr double IntervalWidth = 0.01; // V

/// REQUIRES: the voltage rises, or falls, with every record of \p step.
ChargeCurve chargeCurve(const DemonstrationRows& rows, const CyclingStep& step)
{
    ChargeCurve curve;
    const double direction = step.type == StepType::Charge ? 1 : -1;
    const auto voltageOf = [&](std::size_t record) { return direction * rows.voltage[record]; }; // rises
    const auto netOf = [&](std::size_t record) { return rows.chargeIn[record] - rows.chargeOut[record]; };
    std::size_t i = step.begin;
    const auto netAt = [&](double voltage) {
        while (i + 2 < step.end && voltageOf(i + 1) < voltage) {
            ++i;
        }
        return std::lerp(netOf(i), netOf(i + 1), (voltage - voltageOf(i)) / (voltageOf(i + 1) - voltageOf(i)));
    };
    const double begin = std::ceil(voltageOf(step.begin) / IntervalWidth) * IntervalWidth;
    double before = netAt(begin);
    for (int n = 1; begin + n * IntervalWidth <= voltageOf(step.end - 1) + 1e-9; ++n) {
        const double after = netAt(begin + n * IntervalWidth);
        curve.voltages.push_back(direction * (begin + (n - 0.5) * IntervalWidth));
        curve.nets.push_back((before + after) / 2);
        curve.slopes.push_back(direction * (after - before) / IntervalWidth);
        before = after;
    }
    return curve;
}

/// The mean of each value and its two neighbours on either side, as far as there are any.
std::vector<double> smooth(const std::vector<double>& values)
{
    std::vector<double> smoothed;
    for (std::size_t i = 0; i < values.size(); ++i) {
        const std::size_t begin = i > 2 ? i - 2 : 0;
        const std::size_t end = std::min(i + 3, values.size());
        double sum = 0;
        for (std::size_t k = begin; k < end; ++k) {
            sum += values[k];
        }
        smoothed.push_back(sum / static_cast<double>(end - begin));
    }
    return smoothed;
}

} // namespace

void addImpedanceArrays(const DemonstrationRows& rows, const uiconfig::Catalogue& catalogue, Measurement& measurement)
{
    constexpr int PerDecade = 8;
    constexpr int HighestDecade = 5; // 100 kHz
    constexpr int LowestDecade = -2; // 10 mHz
    const CellModel& cell = rows.test.records.back().cell;
    std::vector<double> frequencies;
    std::vector<Complex> impedances;
    std::vector<double> times; // at the end of each frequency, which takes three periods and a second
    double time = rows.time.back();
    for (int n = 0; n <= (HighestDecade - LowestDecade) * PerDecade; ++n) {
        frequencies.push_back(std::pow(10.0, HighestDecade - static_cast<double>(n) / PerDecade));
        impedances.push_back(cell.impedance(frequencies.back()));
        time += 1 + 3 / frequencies.back();
        times.push_back(time);
    }
    const auto admittance = [&](std::size_t i) { return 1.0 / impedances[i]; };
    const auto capacitance = [&](std::size_t i) {
        return 1.0 / (Complex(0, 2 * std::numbers::pi * frequencies[i]) * impedances[i]);
    };

    ArrayWriter to(measurement, catalogue, u"Impedance"_s, frequencies.size());
    to.fill(u"Frequency / Hz"_s, frequencies);
    to.fill(u"Real Impedance / ohm"_s, [&](std::size_t i) { return impedances[i].real(); });
    to.fill(u"Imaginary Impedance / ohm"_s, [&](std::size_t i) { return impedances[i].imag(); });
    to.fill(u"Negative Imaginary Impedance / ohm"_s, [&](std::size_t i) { return -impedances[i].imag(); });
    to.fill(u"Absolute Impedance / ohm"_s, [&](std::size_t i) { return std::abs(impedances[i]); });
    to.fill(u"Phase / deg"_s, [&](std::size_t i) { return Degrees * std::arg(impedances[i]); });
    to.fill(u"Negative Phase / deg"_s, [&](std::size_t i) { return -Degrees * std::arg(impedances[i]); });
    to.fill(u"Real Areal Impedance / ohm cm2"_s,
            [&](std::size_t i) { return impedances[i].real() * Cell::ElectrodeArea; });
    to.fill(u"Negative Imaginary Areal Impedance / ohm cm2"_s,
            [&](std::size_t i) { return -impedances[i].imag() * Cell::ElectrodeArea; });
    to.fill(u"Real Admittance / S"_s, [&](std::size_t i) { return admittance(i).real(); });
    to.fill(u"Imaginary Admittance / S"_s, [&](std::size_t i) { return admittance(i).imag(); });
    to.fill(u"Absolute Admittance / S"_s, [&](std::size_t i) { return std::abs(admittance(i)); });
    to.fill(u"Real Capacitance / F"_s, [&](std::size_t i) { return capacitance(i).real(); });
    to.fill(u"Negative Imaginary Capacitance / F"_s, [&](std::size_t i) { return -capacitance(i).imag(); });
    to.fill(u"Series Inductance / H"_s,
            [&](std::size_t i) { return impedances[i].imag() / (2 * std::numbers::pi * frequencies[i]); });
    // Charge transfer is what is not linear: the distortion grows with its share, up to some per cent.
    to.fill(u"Total Harmonic Distortion / %"_s, [&](std::size_t i) {
        return 0.2
            + 2 * std::abs(1 - cell.seriesResistance() / std::max(cell.seriesResistance(), impedances[i].real()));
    });
    to.fill(u"Voltage / V"_s, [&](std::size_t) { return cell.openCircuitVoltage(); });
    to.fill(u"Current / A"_s, [](std::size_t) { return 0; });
    to.fill(u"Test Time / s"_s, times);
    to.fill(u"Cycle Count / 1"_s, [&](std::size_t) { return rows.test.steps.back().cycle; });
    to.fill(u"Step Count / 1"_s, [&](std::size_t) { return rows.test.steps.size(); });
    to.fill(u"State of Charge / %"_s, [&](std::size_t) { return rows.stateOfCharge.back(); });
    to.fill(u"Surface Temperature / degC"_s, [&](std::size_t) { return cell.temperature(); });
}

void addDifferentialArrays(const DemonstrationRows& rows, const uiconfig::Catalogue& catalogue,
                           Measurement& measurement)
{
    const std::vector<CyclingStep>& steps = rows.test.steps;
    const int last = steps.back().cycle;
    std::vector<double> voltages;
    std::vector<double> nets; // since the start of the test
    std::vector<double> chargesIn; // since the start of the step
    std::vector<double> chargesOut;
    std::vector<double> slopes;
    std::vector<double> smoothedSlopes;
    std::vector<double> smoothedInverses;
    std::vector<double> cycles;
    std::vector<double> stepNumbers;
    for (std::size_t n = 0; n < steps.size(); ++n) {
        const CyclingStep& step = steps[n];
        const bool isWanted = step.cycle == 1 || step.cycle == (last + 1) / 2 || step.cycle == last;
        if (!isWanted || step.mode != ControlMode::Current) {
            continue;
        }
        const ChargeCurve curve = chargeCurve(rows, step);
        const double netBefore = step.begin == 0 ? 0 : rows.chargeIn[step.begin - 1] - rows.chargeOut[step.begin - 1];
        std::vector<double> inverses;
        for (std::size_t i = 0; i < curve.voltages.size(); ++i) {
            voltages.push_back(curve.voltages[i]);
            nets.push_back(curve.nets[i]);
            chargesIn.push_back(std::max(curve.nets[i] - netBefore, 0.0));
            chargesOut.push_back(std::max(netBefore - curve.nets[i], 0.0));
            slopes.push_back(curve.slopes[i]);
            inverses.push_back(1 / curve.slopes[i]);
            cycles.push_back(step.cycle);
            stepNumbers.push_back(static_cast<double>(n + 1));
        }
        std::ranges::copy(smooth(curve.slopes), std::back_inserter(smoothedSlopes));
        std::ranges::copy(smooth(inverses), std::back_inserter(smoothedInverses));
    }

    ArrayWriter to(measurement, catalogue, u"dQ/dU"_s, voltages.size());
    to.fill(u"Voltage / V"_s, voltages);
    to.fill(u"dQ/dU / Ah/V"_s, slopes);
    to.fill(u"Smoothed dQ/dU / Ah/V"_s, smoothedSlopes);
    to.fill(u"Specific dQ/dU / mAh/g/V"_s, [&](std::size_t i) { return PerMille * slopes[i] / Cell::ActiveMass; });
    to.fill(u"dU/dQ / V/Ah"_s, [&](std::size_t i) { return 1 / slopes[i]; });
    to.fill(u"Smoothed dU/dQ / V/Ah"_s, smoothedInverses);
    to.fill(u"Net Capacity / Ah"_s, nets);
    to.fill(u"Charging Capacity / Ah"_s, chargesIn);
    to.fill(u"Discharging Capacity / Ah"_s, chargesOut);
    to.fill(u"State of Charge / %"_s, [&](std::size_t i) { return 100 * nets[i] / Cell::NominalCapacity; });
    to.fill(u"Cycle Count / 1"_s, cycles);
    to.fill(u"Step Count / 1"_s, stepNumbers);
}

} // namespace cluiedit
