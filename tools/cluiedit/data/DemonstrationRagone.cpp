#include "DemonstrationArrays.h"

#include <array>

using namespace Qt::StringLiterals;

namespace cluiedit {

namespace {

using Cell = DemonstrationCellData;

constexpr double SecondsPerHour = 3600;
constexpr double PerMille = 1000; // W in mW, Wh in mWh
constexpr double Room = 25; // °C

/// A discharge at constant power from full to empty, and the charge before it.
struct PowerDischarge
{
    double power = 0; ///< W
    double time = 0; ///< s
    double charge = 0; ///< Ah
    double energy = 0; ///< Wh
    double energyBefore = 0; ///< Wh that was put in
};

/// Charges a new cell as the test of the cycles does, at first; the energy that it takes goes to \p energy.
CellModel fullCell(double& energy)
{
    const CyclingTest test = runCyclingTest(1);
    const DemonstrationRows rows(test);
    std::size_t end = 0; // behind the charging and the rest that follows
    for (const CyclingStep& step : test.steps) {
        if (step.type == StepType::Discharge) {
            break;
        }
        end = step.end;
    }
    energy = rows.energyIn[end - 1];
    return test.records[end - 1].cell;
}

/// In a bath, which takes away the heat of high powers.
PowerDischarge discharge(CellModel cell, double power)
{
    PowerDischarge result;
    result.power = power;
    const double interval = SecondsPerHour * 9 / power / 500; // some five hundred for the energy of the cell, 9 Wh
    cell.temper(Room);
    cell.switchTo(-power / cell.voltage());
    double voltage = cell.voltage();
    while (voltage > Cell::MinimumVoltage) {
        const double current = -power / voltage;
        const double charge = -(cell.current() + current) / 2 * interval / SecondsPerHour;
        cell.advance(interval, current, Room);
        cell.temper(Room);
        const double share =
            cell.voltage() < Cell::MinimumVoltage ? (voltage - Cell::MinimumVoltage) / (voltage - cell.voltage()) : 1;
        result.charge += share * charge;
        result.time += share * interval;
        voltage = cell.voltage();
    }
    result.energy = power * result.time / SecondsPerHour;
    return result;
}

} // namespace

void addRagoneArrays(const uiconfig::Catalogue& catalogue, Measurement& measurement)
{
    constexpr std::array Powers{0.9, 1.8, 3.6, 9.0, 18.0, 27.0, 36.0, 45.0, 60.0, 75.0}; // W, from C/10 to 8 C
    double energyBefore = 0;
    const CellModel full = fullCell(energyBefore);
    std::vector<PowerDischarge> all;
    for (const double power : Powers) {
        all.push_back(discharge(full, power));
        all.back().energyBefore = energyBefore;
    }

    ArrayWriter to(measurement, catalogue, u"Ragone"_s, all.size());
    to.fill(u"Power / W"_s, [&](std::size_t i) { return all[i].power; });
    to.fill(u"Discharging Energy / Wh"_s, [&](std::size_t i) { return all[i].energy; });
    to.fill(u"Discharging Capacity / Ah"_s, [&](std::size_t i) { return all[i].charge; });
    to.fill(u"Discharging Time / s"_s, [&](std::size_t i) { return all[i].time; });
    to.fill(u"Specific Power / W/kg"_s, [&](std::size_t i) { return all[i].power / Cell::CellMass; });
    to.fill(u"Specific Energy / Wh/kg"_s, [&](std::size_t i) { return all[i].energy / Cell::CellMass; });
    to.fill(u"Volumetric Power / W/L"_s, [&](std::size_t i) { return all[i].power / Cell::CellVolume; });
    to.fill(u"Volumetric Energy / Wh/L"_s, [&](std::size_t i) { return all[i].energy / Cell::CellVolume; });
    to.fill(u"Areal Power / mW/cm2"_s, [&](std::size_t i) { return PerMille * all[i].power / Cell::ElectrodeArea; });
    to.fill(u"Areal Energy / mWh/cm2"_s, [&](std::size_t i) { return PerMille * all[i].energy / Cell::ElectrodeArea; });
    // The current that flows out counts as positive, so that rates have a place on a logarithmic axis.
    to.fill(u"C-Rate / 1/h"_s,
            [&](std::size_t i) { return all[i].charge / (all[i].time / SecondsPerHour) / Cell::NominalCapacity; });
    to.fill(u"Mean Discharging Voltage / V"_s, [&](std::size_t i) { return all[i].energy / all[i].charge; });
    to.fill(u"Capacity Retention / %"_s, [&](std::size_t i) { return 100 * all[i].charge / all.front().charge; });
    to.fill(u"Energy Efficiency / %"_s, [&](std::size_t i) { return 100 * all[i].energy / all[i].energyBefore; });
    to.fill(u"Cycle Count / 1"_s, [](std::size_t i) { return i + 1; });
}

} // namespace cluiedit
