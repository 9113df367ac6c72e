#include "CellModel.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

namespace cluiedit {

namespace {

constexpr double InitialCapacity = 2.51; // Ah; between the limits a little less can be used, about the nominal capacity
constexpr double Kelvin = 273.15;
constexpr double ReferenceTemperature = 25; // °C, at which the resistances are meant
constexpr double SecondsPerHour = 3600;

// Some tens of milliohms in all are usual for cells of a few Ah. Charge transfer takes some ten milliseconds, diffusion
// minutes.
constexpr double SeriesResistance = 0.016; // Ω
constexpr double ChargeTransferResistance = 0.010; // Ω
constexpr double DiffusionResistance = 0.012; // Ω
constexpr double ChargeTransferTime = 0.04; // s
constexpr double DiffusionTime = 140; // s
constexpr double LeadInductance = 15e-9; // H, so that the spectrum crosses the axis at a few kHz

// Resistances follow Arrhenius' law; the activation energy is chosen so that they double over some 17 K.
constexpr double ActivationTemperature = 3500; // K, activation energy over gas constant

// Lithium-ion cells have a specific heat near 1 J/(g K); the heat transfer is chosen so that the cell follows its
// surroundings in eight minutes.
constexpr double HeatCapacity = 50; // J/K
constexpr double HeatTransfer = 0.1; // W/K
// The open-circuit voltage changes by some tenth of a millivolt per kelvin.
constexpr double EntropyCoefficient = -1e-4; // V/K

// The side reaction slows down as its product covers the graphite. Chosen so that a hundred cycles cost about a tenth
// of the capacity and half as much again of the resistance.
constexpr double LastingSideReaction = 6e-4; // share of the charging current
constexpr double EarlySideReaction = 3e-3; // what comes on top at first …
constexpr double EarlyThroughput = 30; // … and fades over this charge, in Ah
constexpr double ResistancePerLoss = 5; // relative rise of the resistances per relative loss of capacity

double smoothStep(double x)
{
    return 0.5 * (1 + std::tanh(x));
}

/// Graphite against lithium over the state of charge: the plateaus near 0.085 V and 0.12 V, the slope near 0.2 V and
/// the steep end are those that every textbook shows.
double graphite(double charge)
{
    return 0.085 + 0.035 * smoothStep((0.52 - charge) / 0.035) + 0.075 * smoothStep((0.20 - charge) / 0.06)
        + 0.55 * std::exp(-charge / 0.025);
}

/// A layered oxide against lithium over the state of charge of the cell: a slope without plateaus, chosen so that the
/// full cell has 4.2 V.
double layeredOxide(double charge)
{
    return 3.53 + 0.46 * charge + 0.27 * charge * charge + 0.025 * smoothStep((charge - 0.72) / 0.05);
}

/// A function of the state of charge, tabulated.
class ChargeTable
{
public:
    template <typename Function>
    explicit ChargeTable(Function function)
    {
        m_values.reserve(Intervals + 1);
        for (int i = 0; i <= Intervals; ++i) {
            m_values.push_back(function(Begin + i * Width));
        }
    }

    double at(double charge) const
    {
        const double place = std::clamp((charge - Begin) / Width, 0.0, Intervals - 1e-6);
        const auto i = static_cast<std::size_t>(place);
        return std::lerp(m_values[i], m_values[i + 1], place - static_cast<double>(i));
    }

private:
    static constexpr int Intervals = 4400;
    static constexpr double Begin = -0.05; // a little beyond empty and full, for the search of a current
    static constexpr double Width = 1.1 / Intervals;
    std::vector<double> m_values;
};

const ChargeTable& graphiteTable()
{
    static const ChargeTable table(graphite);
    return table;
}

const ChargeTable& cellTable()
{
    static const ChargeTable table([](double charge) { return layeredOxide(charge) - graphite(charge); });
    return table;
}

/// The voltage of a resistor and a capacitor side by side after \p seconds, with a constant current.
double relaxed(double voltage, double resistance, double current, double decay)
{
    return voltage * decay + resistance * current * (1 - decay);
}

} // namespace

CellModel::CellModel(double ambient)
    : m_capacity(InitialCapacity)
    , m_temperature(ambient)
{
    updateResistances();
}

void CellModel::updateResistances()
{
    const double loss = 1 - m_capacity / InitialCapacity;
    m_resistanceFactor = (1 + ResistancePerLoss * loss)
        * std::exp(ActivationTemperature * (1 / (m_temperature + Kelvin) - 1 / (ReferenceTemperature + Kelvin)));
}

void CellModel::updateDecays(double seconds)
{
    if (seconds != m_decays.seconds) {
        m_decays = {seconds, std::exp(-std::min(seconds / ChargeTransferTime, 100.0)),
                    std::exp(-seconds / DiffusionTime), std::exp(-seconds * HeatTransfer / HeatCapacity)};
    }
}

void CellModel::temper(double temperature)
{
    m_temperature = temperature;
    updateResistances();
}

void CellModel::advance(double seconds, double current, double ambient)
{
    const double mean = (m_current + current) / 2;
    const double heat = mean * (voltage() - openCircuitVoltage())
        + mean * (m_temperature + Kelvin) * EntropyCoefficient; // of resistances, and reversible

    const double charge = mean * seconds / SecondsPerHour;
    double lost = 0;
    if (charge > 0) {
        lost = charge * (LastingSideReaction + EarlySideReaction * std::exp(-m_chargedThroughput / EarlyThroughput));
        m_chargedThroughput += charge;
    }
    m_charge += charge - lost;
    m_capacity -= lost;

    updateDecays(seconds);
    m_chargeTransferVoltage =
        relaxed(m_chargeTransferVoltage, chargeTransferResistance(), mean, m_decays.chargeTransfer);
    m_diffusionVoltage = relaxed(m_diffusionVoltage, diffusionResistance(), mean, m_decays.diffusion);
    const double settled = ambient + heat / HeatTransfer;
    m_temperature = settled + (m_temperature - settled) * m_decays.heat;
    m_current = current;
    updateResistances();
}

double CellModel::currentForVoltage(double voltage, double seconds, double ambient) const
{
    const auto voltageAfter = [&](double current) {
        CellModel after = *this;
        after.advance(seconds, current, ambient);
        return after.voltage();
    };
    // The secant method: the voltage is nearly linear in the current.
    double before = m_current;
    double errorBefore = voltageAfter(before) - voltage;
    double current = before * 0.97;
    for (int i = 0; i < 6; ++i) {
        const double error = voltageAfter(current) - voltage;
        if (std::abs(error) < 1e-9 || error == errorBefore) {
            break;
        }
        const double next = current - error * (current - before) / (error - errorBefore);
        before = current;
        errorBefore = error;
        current = next;
    }
    return current;
}

double CellModel::voltage() const
{
    return openCircuitVoltage() + m_current * seriesResistance() + m_chargeTransferVoltage + m_diffusionVoltage;
}

double CellModel::openCircuitVoltage() const
{
    return cellTable().at(stateOfCharge()) + EntropyCoefficient * (m_temperature - ReferenceTemperature);
}

double CellModel::negativePotential() const
{
    constexpr double ShareOfOverpotential = 0.4; // the rest is the positive electrode's
    return graphiteTable().at(stateOfCharge()) - ShareOfOverpotential * (voltage() - openCircuitVoltage());
}

double CellModel::seriesResistance() const
{
    return SeriesResistance * m_resistanceFactor;
}

double CellModel::chargeTransferResistance() const
{
    return ChargeTransferResistance * m_resistanceFactor;
}

double CellModel::diffusionResistance() const
{
    return DiffusionResistance * m_resistanceFactor;
}

std::complex<double> CellModel::impedance(double frequency) const
{
    const std::complex<double> angular(0, 2 * std::numbers::pi * frequency);
    return seriesResistance() + angular * LeadInductance
        + chargeTransferResistance() / (1.0 + angular * ChargeTransferTime)
        + diffusionResistance() / (1.0 + angular * DiffusionTime);
}

} // namespace cluiedit
