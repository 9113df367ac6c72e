#pragma once

#include <complex>

namespace cluiedit {

/// The cell of the demonstration data: a small pouch cell with a layered oxide (NMC) against graphite. The numbers are
/// chosen so that mass, volume and areas fit together; 2.8 V to 4.2 V is the usual window of this chemistry.
struct DemonstrationCellData
{
    static constexpr double NominalCapacity = 2.5; ///< Ah
    static constexpr double ActiveMass = 15.6; ///< g of positive active material, 160 mAh/g
    static constexpr double ElectrodeArea = 860; ///< cm², about 2.9 mAh/cm²
    static constexpr double CellMass = 0.050; ///< kg, so that about 180 Wh/kg result
    static constexpr double CellVolume = 0.021; ///< l: 6 cm × 7 cm × 0.5 cm
    static constexpr double FaceArea = 42e-4; ///< m², the face on which the fixture presses: 6 cm × 7 cm
    static constexpr double MinimumVoltage = 2.8; ///< V
    static constexpr double MaximumVoltage = 4.2; ///< V
};

/// An equivalent circuit: a source of the open-circuit voltage, a series resistance, one resistor with a capacitor for
/// the charge transfer and one for the diffusion, and a heat capacity that loses heat to the surroundings. It ages: a
/// share of the charging current is lost to a side reaction, and with it capacity; resistances rise with the loss.
///
/// Currents are positive while charging.
class CellModel
{
public:
    /// Empty, at rest, at the temperature of the surroundings.
    explicit CellModel(double ambient);

    /// Lets \p seconds pass, during which the current changes linearly to \p current in A; \p ambient is the
    /// temperature of the surroundings in °C.
    void advance(double seconds, double current, double ambient);
    /// The current that brings the voltage to \p voltage after \p seconds; see advance().
    double currentForVoltage(double voltage, double seconds, double ambient) const;
    /// Has the current jump to \p current.
    void switchTo(double current) { m_current = current; }
    /// Brings the cell to \p temperature in °C, as a bath does.
    void temper(double temperature);

    double current() const { return m_current; } ///< A
    double voltage() const; ///< V
    double temperature() const { return m_temperature; } ///< °C, of the surface and everything below
    double openCircuitVoltage() const; ///< V, at the present temperature
    double negativePotential() const; ///< V, of the graphite against lithium
    double stateOfCharge() const { return m_charge / m_capacity; } ///< 0 to 1 of what is left of the capacity
    double capacity() const { return m_capacity; } ///< Ah between 0 and 1
    double seriesResistance() const; ///< Ω
    /// In Ω at \p frequency in Hz, with the inductance of the leads.
    std::complex<double> impedance(double frequency) const;

private:
    /// How far voltages and temperature keep their distance from where they settle.
    struct Decays
    {
        double seconds = 0; ///< after this time, and so on
        double chargeTransfer = 1;
        double diffusion = 1;
        double heat = 1;
    };

    double chargeTransferResistance() const;
    double diffusionResistance() const;
    void updateResistances();
    void updateDecays(double seconds);

    double m_charge = 0; // Ah that can be taken out
    double m_capacity = 0; // Ah
    double m_current = 0;
    double m_chargeTransferVoltage = 0;
    double m_diffusionVoltage = 0;
    double m_temperature = 0;
    double m_resistanceFactor = 1; // for temperature and age
    double m_chargedThroughput = 0; // Ah
    Decays m_decays; // of the last time that passed: most times are the same
};

} // namespace cluiedit
