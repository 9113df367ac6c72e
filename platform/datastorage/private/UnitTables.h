#pragma once

#include <datastorage/Units.h>
#include <datastorage/UsualUnit.h>

#include <array>
#include <string_view>

/// \file UnitTables.h
/// The one place where quantities, operators, unit types and the offered compound units are listed, for Converter
/// alone. The same tables stand in docs/units.md for people; a test compares the two.

namespace cl::datastorage::tables {

struct Quantity
{
    PhysicalParameter parameter;
    std::u16string_view name; ///< what documents write
};

struct Operator
{
    UsualUnitOperator op;
    std::u16string_view name; ///< what documents write
    std::u16string_view sign; ///< what stands in a unit's symbol
};

/// A value x of the unit is x * factor + zero in the SI unit of the quantity.
struct UnitType
{
    UsualUnitType type;
    std::u16string_view symbol;
    PhysicalParameter parameter;
    double factor;
    double zero = 0;
};

struct CompoundUnit
{
    PhysicalParameter parameter = PhysicalParameter::None;
    UsualUnit unit;
};

constexpr std::array<Quantity, 55> Quantities = {{
    {PhysicalParameter::None, u"None"},
    {PhysicalParameter::Current, u"Current"},
    {PhysicalParameter::Voltage, u"Voltage"},
    {PhysicalParameter::Charge, u"Charge"},
    {PhysicalParameter::Time, u"Time"},
    {PhysicalParameter::Energy, u"Energy"},
    {PhysicalParameter::Power, u"Power"},
    {PhysicalParameter::Resistance, u"Resistance"},
    {PhysicalParameter::Conductance, u"Conductance"},
    {PhysicalParameter::Capacitance, u"Capacitance"},
    {PhysicalParameter::Inductance, u"Inductance"},
    {PhysicalParameter::Frequency, u"Frequency"},
    {PhysicalParameter::Angle, u"Angle"},
    {PhysicalParameter::Temperature, u"Temperature"},
    {PhysicalParameter::Mass, u"Mass"},
    {PhysicalParameter::Length, u"Length"},
    {PhysicalParameter::Area, u"Area"},
    {PhysicalParameter::Volume, u"Volume"},
    {PhysicalParameter::Pressure, u"Pressure"},
    {PhysicalParameter::Ratio, u"Ratio"},
    {PhysicalParameter::AmountOfSubstance, u"Amount of substance"},
    {PhysicalParameter::Force, u"Force"},
    {PhysicalParameter::CurrentDensity, u"Current density"},
    {PhysicalParameter::SpecificCurrent, u"Specific current"},
    {PhysicalParameter::SpecificCharge, u"Specific charge"},
    {PhysicalParameter::ArealCharge, u"Areal charge"},
    {PhysicalParameter::VolumetricCharge, u"Volumetric charge"},
    {PhysicalParameter::SpecificEnergy, u"Specific energy"},
    {PhysicalParameter::ArealEnergy, u"Areal energy"},
    {PhysicalParameter::VolumetricEnergy, u"Volumetric energy"},
    {PhysicalParameter::SpecificPower, u"Specific power"},
    {PhysicalParameter::ArealPower, u"Areal power"},
    {PhysicalParameter::VolumetricPower, u"Volumetric power"},
    {PhysicalParameter::VoltageRate, u"Voltage rate"},
    {PhysicalParameter::CurrentRate, u"Current rate"},
    {PhysicalParameter::TemperatureRate, u"Temperature rate"},
    {PhysicalParameter::Rate, u"Rate"},
    {PhysicalParameter::DifferentialCapacity, u"Differential capacity"},
    {PhysicalParameter::SpecificDifferentialCapacity, u"Specific differential capacity"},
    {PhysicalParameter::DifferentialVoltage, u"Differential voltage"},
    {PhysicalParameter::ArealResistance, u"Areal resistance"},
    {PhysicalParameter::Resistivity, u"Resistivity"},
    {PhysicalParameter::Conductivity, u"Conductivity"},
    {PhysicalParameter::SpecificCapacitance, u"Specific capacitance"},
    {PhysicalParameter::ArealCapacitance, u"Areal capacitance"},
    {PhysicalParameter::MassLoading, u"Mass loading"},
    {PhysicalParameter::MassDensity, u"Mass density"},
    {PhysicalParameter::TemperatureCoefficient, u"Temperature coefficient"},
    {PhysicalParameter::Viscosity, u"Viscosity"},
    {PhysicalParameter::Concentration, u"Concentration"},
    {PhysicalParameter::DiffusionCoefficient, u"Diffusion coefficient"},
    {PhysicalParameter::SpecificChargeRate, u"Specific charge rate"},
    {PhysicalParameter::SpecificEnergyRate, u"Specific energy rate"},
    {PhysicalParameter::SpecificDifferentialCapacityRate, u"Specific differential capacity rate"},
    {PhysicalParameter::SpecificHeat, u"Specific heat"},
}};

constexpr std::array<Operator, 3> Operators = {{
    {UsualUnitOperator::None, u"None", u""},
    {UsualUnitOperator::Multiply, u"Multiply", u"·"},
    {UsualUnitOperator::Divide, u"Divide", u"/"},
}};

constexpr double Degree = 3.14159265358979323846 / 180;
constexpr double PoundForce = 4.4482216152605;

// In the order of the types, which have no holes from 1 to 199 and from 1040 to 1049.
constexpr std::array<UnitType, 209> UnitTypes = {{
    {UsualUnitType::Kiloampere, u"kA", PhysicalParameter::Current, 1e3},
    {UsualUnitType::Ampere, u"A", PhysicalParameter::Current, 1},
    {UsualUnitType::Milliampere, u"mA", PhysicalParameter::Current, 1e-3},
    {UsualUnitType::Microampere, u"µA", PhysicalParameter::Current, 1e-6},
    {UsualUnitType::Nanoampere, u"nA", PhysicalParameter::Current, 1e-9},
    {UsualUnitType::Picoampere, u"pA", PhysicalParameter::Current, 1e-12},
    {UsualUnitType::Femtoampere, u"fA", PhysicalParameter::Current, 1e-15},
    {UsualUnitType::Attoampere, u"aA", PhysicalParameter::Current, 1e-18},
    {UsualUnitType::Megaampere, u"MA", PhysicalParameter::Current, 1e6},

    {UsualUnitType::AmpereHour, u"Ah", PhysicalParameter::Charge, 3600},
    {UsualUnitType::MilliampereHour, u"mAh", PhysicalParameter::Charge, 3.6},
    {UsualUnitType::MicroampereHour, u"µAh", PhysicalParameter::Charge, 3.6e-3},
    {UsualUnitType::Coulomb, u"C", PhysicalParameter::Charge, 1},
    {UsualUnitType::Millicoulomb, u"mC", PhysicalParameter::Charge, 1e-3},
    {UsualUnitType::Microcoulomb, u"µC", PhysicalParameter::Charge, 1e-6},
    {UsualUnitType::KiloampereHour, u"kAh", PhysicalParameter::Charge, 3.6e6},
    {UsualUnitType::NanoampereHour, u"nAh", PhysicalParameter::Charge, 3.6e-6},
    {UsualUnitType::Kilocoulomb, u"kC", PhysicalParameter::Charge, 1e3},
    {UsualUnitType::Nanocoulomb, u"nC", PhysicalParameter::Charge, 1e-9},

    {UsualUnitType::Second, u"s", PhysicalParameter::Time, 1},
    {UsualUnitType::Millisecond, u"ms", PhysicalParameter::Time, 1e-3},
    {UsualUnitType::Minute, u"min", PhysicalParameter::Time, 60},
    {UsualUnitType::Hour, u"h", PhysicalParameter::Time, 3600},
    {UsualUnitType::Day, u"d", PhysicalParameter::Time, 86400},
    {UsualUnitType::Microsecond, u"µs", PhysicalParameter::Time, 1e-6},
    {UsualUnitType::Nanosecond, u"ns", PhysicalParameter::Time, 1e-9},
    {UsualUnitType::Picosecond, u"ps", PhysicalParameter::Time, 1e-12},
    {UsualUnitType::Week, u"wk", PhysicalParameter::Time, 604800},
    {UsualUnitType::Year, u"a", PhysicalParameter::Time, 31557600},

    {UsualUnitType::Mole, u"mol", PhysicalParameter::AmountOfSubstance, 1},
    {UsualUnitType::Millimole, u"mmol", PhysicalParameter::AmountOfSubstance, 1e-3},
    {UsualUnitType::Micromole, u"µmol", PhysicalParameter::AmountOfSubstance, 1e-6},
    {UsualUnitType::Nanomole, u"nmol", PhysicalParameter::AmountOfSubstance, 1e-9},
    {UsualUnitType::Picomole, u"pmol", PhysicalParameter::AmountOfSubstance, 1e-12},
    {UsualUnitType::Femtomole, u"fmol", PhysicalParameter::AmountOfSubstance, 1e-15},
    {UsualUnitType::Attomole, u"amol", PhysicalParameter::AmountOfSubstance, 1e-18},
    {UsualUnitType::Kilomole, u"kmol", PhysicalParameter::AmountOfSubstance, 1e3},
    {UsualUnitType::Megamole, u"Mmol", PhysicalParameter::AmountOfSubstance, 1e6},
    {UsualUnitType::PoundMole, u"lbmol", PhysicalParameter::AmountOfSubstance, 453.59237},

    {UsualUnitType::Hertz, u"Hz", PhysicalParameter::Frequency, 1},
    {UsualUnitType::Kilohertz, u"kHz", PhysicalParameter::Frequency, 1e3},
    {UsualUnitType::Millihertz, u"mHz", PhysicalParameter::Frequency, 1e-3},
    {UsualUnitType::Megahertz, u"MHz", PhysicalParameter::Frequency, 1e6},
    {UsualUnitType::Microhertz, u"µHz", PhysicalParameter::Frequency, 1e-6},
    {UsualUnitType::Gigahertz, u"GHz", PhysicalParameter::Frequency, 1e9},
    {UsualUnitType::Nanohertz, u"nHz", PhysicalParameter::Frequency, 1e-9},
    {UsualUnitType::Terahertz, u"THz", PhysicalParameter::Frequency, 1e12},
    {UsualUnitType::RevolutionPerMinute, u"rpm", PhysicalParameter::Frequency, 1.0 / 60},
    {UsualUnitType::RevolutionPerHour, u"rph", PhysicalParameter::Frequency, 1.0 / 3600},

    {UsualUnitType::Degree, u"°", PhysicalParameter::Angle, Degree},
    {UsualUnitType::Radian, u"rad", PhysicalParameter::Angle, 1},
    {UsualUnitType::Milliradian, u"mrad", PhysicalParameter::Angle, 1e-3},
    {UsualUnitType::Microradian, u"µrad", PhysicalParameter::Angle, 1e-6},
    {UsualUnitType::Nanoradian, u"nrad", PhysicalParameter::Angle, 1e-9},
    {UsualUnitType::ArcMinute, u"′", PhysicalParameter::Angle, Degree / 60},
    {UsualUnitType::ArcSecond, u"″", PhysicalParameter::Angle, Degree / 3600},
    {UsualUnitType::MilliarcSecond, u"mas", PhysicalParameter::Angle, Degree / 3.6e6},
    {UsualUnitType::Gradian, u"gon", PhysicalParameter::Angle, Degree * 0.9},
    {UsualUnitType::Turn, u"tr", PhysicalParameter::Angle, Degree * 360},

    {UsualUnitType::Volt, u"V", PhysicalParameter::Voltage, 1},
    {UsualUnitType::Millivolt, u"mV", PhysicalParameter::Voltage, 1e-3},
    {UsualUnitType::Microvolt, u"µV", PhysicalParameter::Voltage, 1e-6},
    {UsualUnitType::Kilovolt, u"kV", PhysicalParameter::Voltage, 1e3},
    {UsualUnitType::Nanovolt, u"nV", PhysicalParameter::Voltage, 1e-9},
    {UsualUnitType::Megavolt, u"MV", PhysicalParameter::Voltage, 1e6},
    {UsualUnitType::Picovolt, u"pV", PhysicalParameter::Voltage, 1e-12},
    {UsualUnitType::Gigavolt, u"GV", PhysicalParameter::Voltage, 1e9},
    {UsualUnitType::Femtovolt, u"fV", PhysicalParameter::Voltage, 1e-15},
    {UsualUnitType::Statvolt, u"statV", PhysicalParameter::Voltage, 299.792458},

    {UsualUnitType::DegreeCelsius, u"°C", PhysicalParameter::Temperature, 1, 273.15},
    {UsualUnitType::Kelvin, u"K", PhysicalParameter::Temperature, 1},
    {UsualUnitType::DegreeFahrenheit, u"°F", PhysicalParameter::Temperature, 1 / 1.8, 459.67 / 1.8},
    {UsualUnitType::DegreeRankine, u"°R", PhysicalParameter::Temperature, 1 / 1.8},
    {UsualUnitType::Millikelvin, u"mK", PhysicalParameter::Temperature, 1e-3},
    {UsualUnitType::Microkelvin, u"µK", PhysicalParameter::Temperature, 1e-6},
    {UsualUnitType::DegreeReaumur, u"°Ré", PhysicalParameter::Temperature, 1.25, 273.15},
    {UsualUnitType::DegreeDelisle, u"°De", PhysicalParameter::Temperature, -2.0 / 3, 373.15},
    {UsualUnitType::DegreeNewton, u"°N", PhysicalParameter::Temperature, 100.0 / 33, 273.15},
    {UsualUnitType::Kilokelvin, u"kK", PhysicalParameter::Temperature, 1e3},

    {UsualUnitType::Watt, u"W", PhysicalParameter::Power, 1},
    {UsualUnitType::Megawatt, u"MW", PhysicalParameter::Power, 1e6},
    {UsualUnitType::Milliwatt, u"mW", PhysicalParameter::Power, 1e-3},
    {UsualUnitType::Kilowatt, u"kW", PhysicalParameter::Power, 1e3},
    {UsualUnitType::Microwatt, u"µW", PhysicalParameter::Power, 1e-6},
    {UsualUnitType::Nanowatt, u"nW", PhysicalParameter::Power, 1e-9},
    {UsualUnitType::Gigawatt, u"GW", PhysicalParameter::Power, 1e9},
    {UsualUnitType::Terawatt, u"TW", PhysicalParameter::Power, 1e12},
    {UsualUnitType::Picowatt, u"pW", PhysicalParameter::Power, 1e-12},
    {UsualUnitType::MetricHorsepower, u"PS", PhysicalParameter::Power, 735.49875},

    {UsualUnitType::Percent, u"%", PhysicalParameter::Ratio, 1e-2},
    {UsualUnitType::Unity, u"1", PhysicalParameter::Ratio, 1},
    {UsualUnitType::Permille, u"‰", PhysicalParameter::Ratio, 1e-3},
    {UsualUnitType::Permyriad, u"‱", PhysicalParameter::Ratio, 1e-4},
    {UsualUnitType::PartPerMillion, u"ppm", PhysicalParameter::Ratio, 1e-6},
    {UsualUnitType::PartPerBillion, u"ppb", PhysicalParameter::Ratio, 1e-9},
    {UsualUnitType::PartPerTrillion, u"ppt", PhysicalParameter::Ratio, 1e-12},
    {UsualUnitType::WeightPercent, u"wt%", PhysicalParameter::Ratio, 1e-2},
    {UsualUnitType::AtomicPercent, u"at%", PhysicalParameter::Ratio, 1e-2},
    {UsualUnitType::VolumePercent, u"vol%", PhysicalParameter::Ratio, 1e-2},

    {UsualUnitType::WattHour, u"Wh", PhysicalParameter::Energy, 3600},
    {UsualUnitType::MilliwattHour, u"mWh", PhysicalParameter::Energy, 3.6},
    {UsualUnitType::KilowattHour, u"kWh", PhysicalParameter::Energy, 3.6e6},
    {UsualUnitType::Joule, u"J", PhysicalParameter::Energy, 1},
    {UsualUnitType::MicrowattHour, u"µWh", PhysicalParameter::Energy, 3.6e-3},
    {UsualUnitType::MegawattHour, u"MWh", PhysicalParameter::Energy, 3.6e9},
    {UsualUnitType::Kilojoule, u"kJ", PhysicalParameter::Energy, 1e3},
    {UsualUnitType::Millijoule, u"mJ", PhysicalParameter::Energy, 1e-3},
    {UsualUnitType::Megajoule, u"MJ", PhysicalParameter::Energy, 1e6},
    {UsualUnitType::Electronvolt, u"eV", PhysicalParameter::Energy, 1.602176634e-19},

    {UsualUnitType::Megaohm, u"MΩ", PhysicalParameter::Resistance, 1e6},
    {UsualUnitType::Ohm, u"Ω", PhysicalParameter::Resistance, 1},
    {UsualUnitType::Milliohm, u"mΩ", PhysicalParameter::Resistance, 1e-3},
    {UsualUnitType::Microohm, u"µΩ", PhysicalParameter::Resistance, 1e-6},
    {UsualUnitType::Kiloohm, u"kΩ", PhysicalParameter::Resistance, 1e3},
    {UsualUnitType::Gigaohm, u"GΩ", PhysicalParameter::Resistance, 1e9},
    {UsualUnitType::Nanoohm, u"nΩ", PhysicalParameter::Resistance, 1e-9},
    {UsualUnitType::Teraohm, u"TΩ", PhysicalParameter::Resistance, 1e12},
    {UsualUnitType::Picoohm, u"pΩ", PhysicalParameter::Resistance, 1e-12},
    {UsualUnitType::Petaohm, u"PΩ", PhysicalParameter::Resistance, 1e15},

    {UsualUnitType::Newton, u"N", PhysicalParameter::Force, 1},
    {UsualUnitType::Kilonewton, u"kN", PhysicalParameter::Force, 1e3},
    {UsualUnitType::Millinewton, u"mN", PhysicalParameter::Force, 1e-3},
    {UsualUnitType::Micronewton, u"µN", PhysicalParameter::Force, 1e-6},
    {UsualUnitType::Nanonewton, u"nN", PhysicalParameter::Force, 1e-9},
    {UsualUnitType::Meganewton, u"MN", PhysicalParameter::Force, 1e6},
    {UsualUnitType::KilogramForce, u"kgf", PhysicalParameter::Force, 9.80665},
    {UsualUnitType::GramForce, u"gf", PhysicalParameter::Force, 9.80665e-3},
    {UsualUnitType::PoundForce, u"lbf", PhysicalParameter::Force, PoundForce},
    {UsualUnitType::Dyne, u"dyn", PhysicalParameter::Force, 1e-5},

    {UsualUnitType::Gram, u"g", PhysicalParameter::Mass, 1e-3},
    {UsualUnitType::Milligram, u"mg", PhysicalParameter::Mass, 1e-6},
    {UsualUnitType::Kilogram, u"kg", PhysicalParameter::Mass, 1},
    {UsualUnitType::Tonne, u"t", PhysicalParameter::Mass, 1e3},
    {UsualUnitType::Nanogram, u"ng", PhysicalParameter::Mass, 1e-12},
    {UsualUnitType::Microgram, u"µg", PhysicalParameter::Mass, 1e-9},
    {UsualUnitType::Picogram, u"pg", PhysicalParameter::Mass, 1e-15},
    {UsualUnitType::Pound, u"lb", PhysicalParameter::Mass, 0.45359237},
    {UsualUnitType::Ounce, u"oz", PhysicalParameter::Mass, 0.028349523125},
    {UsualUnitType::Dalton, u"Da", PhysicalParameter::Mass, 1.66053906660e-27},

    {UsualUnitType::Pascal, u"Pa", PhysicalParameter::Pressure, 1},
    {UsualUnitType::Hectopascal, u"hPa", PhysicalParameter::Pressure, 1e2},
    {UsualUnitType::Kilopascal, u"kPa", PhysicalParameter::Pressure, 1e3},
    {UsualUnitType::Megapascal, u"MPa", PhysicalParameter::Pressure, 1e6},
    {UsualUnitType::Bar, u"bar", PhysicalParameter::Pressure, 1e5},
    {UsualUnitType::Millibar, u"mbar", PhysicalParameter::Pressure, 1e2},
    {UsualUnitType::PoundPerSquareInch, u"psi", PhysicalParameter::Pressure, PoundForce / 6.4516e-4},
    {UsualUnitType::Atmosphere, u"atm", PhysicalParameter::Pressure, 101325},
    {UsualUnitType::Torr, u"Torr", PhysicalParameter::Pressure, 101325.0 / 760},
    {UsualUnitType::Gigapascal, u"GPa", PhysicalParameter::Pressure, 1e9},

    {UsualUnitType::Litre, u"L", PhysicalParameter::Volume, 1e-3},
    {UsualUnitType::CubicCentimetre, u"cm³", PhysicalParameter::Volume, 1e-6},
    {UsualUnitType::Millilitre, u"mL", PhysicalParameter::Volume, 1e-6},
    {UsualUnitType::Microlitre, u"µL", PhysicalParameter::Volume, 1e-9},
    {UsualUnitType::CubicMetre, u"m³", PhysicalParameter::Volume, 1},
    {UsualUnitType::CubicMillimetre, u"mm³", PhysicalParameter::Volume, 1e-9},
    {UsualUnitType::CubicDecimetre, u"dm³", PhysicalParameter::Volume, 1e-3},
    {UsualUnitType::CubicMicrometre, u"µm³", PhysicalParameter::Volume, 1e-18},
    {UsualUnitType::Nanolitre, u"nL", PhysicalParameter::Volume, 1e-12},
    {UsualUnitType::CubicInch, u"in³", PhysicalParameter::Volume, 1.6387064e-5},

    {UsualUnitType::Farad, u"F", PhysicalParameter::Capacitance, 1},
    {UsualUnitType::Microfarad, u"µF", PhysicalParameter::Capacitance, 1e-6},
    {UsualUnitType::Millifarad, u"mF", PhysicalParameter::Capacitance, 1e-3},
    {UsualUnitType::Nanofarad, u"nF", PhysicalParameter::Capacitance, 1e-9},
    {UsualUnitType::Picofarad, u"pF", PhysicalParameter::Capacitance, 1e-12},
    {UsualUnitType::Femtofarad, u"fF", PhysicalParameter::Capacitance, 1e-15},
    {UsualUnitType::Attofarad, u"aF", PhysicalParameter::Capacitance, 1e-18},
    {UsualUnitType::Kilofarad, u"kF", PhysicalParameter::Capacitance, 1e3},
    {UsualUnitType::Megafarad, u"MF", PhysicalParameter::Capacitance, 1e6},
    {UsualUnitType::Abfarad, u"abF", PhysicalParameter::Capacitance, 1e9},

    {UsualUnitType::Henry, u"H", PhysicalParameter::Inductance, 1},
    {UsualUnitType::Millihenry, u"mH", PhysicalParameter::Inductance, 1e-3},
    {UsualUnitType::Microhenry, u"µH", PhysicalParameter::Inductance, 1e-6},
    {UsualUnitType::Nanohenry, u"nH", PhysicalParameter::Inductance, 1e-9},
    {UsualUnitType::Picohenry, u"pH", PhysicalParameter::Inductance, 1e-12},
    {UsualUnitType::Femtohenry, u"fH", PhysicalParameter::Inductance, 1e-15},
    {UsualUnitType::Attohenry, u"aH", PhysicalParameter::Inductance, 1e-18},
    {UsualUnitType::Kilohenry, u"kH", PhysicalParameter::Inductance, 1e3},
    {UsualUnitType::Megahenry, u"MH", PhysicalParameter::Inductance, 1e6},
    {UsualUnitType::Abhenry, u"abH", PhysicalParameter::Inductance, 1e-9},

    {UsualUnitType::Siemens, u"S", PhysicalParameter::Conductance, 1},
    {UsualUnitType::Millisiemens, u"mS", PhysicalParameter::Conductance, 1e-3},
    {UsualUnitType::Microsiemens, u"µS", PhysicalParameter::Conductance, 1e-6},
    {UsualUnitType::Nanosiemens, u"nS", PhysicalParameter::Conductance, 1e-9},
    {UsualUnitType::Picosiemens, u"pS", PhysicalParameter::Conductance, 1e-12},
    {UsualUnitType::Femtosiemens, u"fS", PhysicalParameter::Conductance, 1e-15},
    {UsualUnitType::Attosiemens, u"aS", PhysicalParameter::Conductance, 1e-18},
    {UsualUnitType::Kilosiemens, u"kS", PhysicalParameter::Conductance, 1e3},
    {UsualUnitType::Megasiemens, u"MS", PhysicalParameter::Conductance, 1e6},
    {UsualUnitType::Absiemens, u"abS", PhysicalParameter::Conductance, 1e9},

    {UsualUnitType::Centimetre, u"cm", PhysicalParameter::Length, 1e-2},
    {UsualUnitType::Metre, u"m", PhysicalParameter::Length, 1},
    {UsualUnitType::Millimetre, u"mm", PhysicalParameter::Length, 1e-3},
    {UsualUnitType::Micrometre, u"µm", PhysicalParameter::Length, 1e-6},
    {UsualUnitType::Nanometre, u"nm", PhysicalParameter::Length, 1e-9},
    {UsualUnitType::Angstrom, u"Å", PhysicalParameter::Length, 1e-10},
    {UsualUnitType::Picometre, u"pm", PhysicalParameter::Length, 1e-12},
    {UsualUnitType::Decimetre, u"dm", PhysicalParameter::Length, 1e-1},
    {UsualUnitType::Kilometre, u"km", PhysicalParameter::Length, 1e3},
    {UsualUnitType::Inch, u"in", PhysicalParameter::Length, 2.54e-2},

    {UsualUnitType::SquareNanometre, u"nm²", PhysicalParameter::Area, 1e-18},
    {UsualUnitType::SquareMicrometre, u"µm²", PhysicalParameter::Area, 1e-12},
    {UsualUnitType::SquareDecimetre, u"dm²", PhysicalParameter::Area, 1e-2},
    {UsualUnitType::SquareCentimetre, u"cm²", PhysicalParameter::Area, 1e-4},
    {UsualUnitType::SquareMillimetre, u"mm²", PhysicalParameter::Area, 1e-6},
    {UsualUnitType::SquareMetre, u"m²", PhysicalParameter::Area, 1},
    {UsualUnitType::SquareInch, u"in²", PhysicalParameter::Area, 6.4516e-4},
    {UsualUnitType::SquareFoot, u"ft²", PhysicalParameter::Area, 0.09290304},
    {UsualUnitType::Hectare, u"ha", PhysicalParameter::Area, 1e4},
    {UsualUnitType::SquareKilometre, u"km²", PhysicalParameter::Area, 1e6},
}};

constexpr UsualUnitOperator Times = UsualUnitOperator::Multiply;
constexpr UsualUnitOperator By = UsualUnitOperator::Divide;

// In the order of the quantities, the most usual unit of each first.
constexpr std::array<CompoundUnit, 144> CompoundUnits = {{
    {PhysicalParameter::CurrentDensity, {UsualUnitType::Milliampere, By, UsualUnitType::SquareCentimetre}},
    {PhysicalParameter::CurrentDensity, {UsualUnitType::Ampere, By, UsualUnitType::SquareCentimetre}},
    {PhysicalParameter::CurrentDensity, {UsualUnitType::Microampere, By, UsualUnitType::SquareCentimetre}},
    {PhysicalParameter::CurrentDensity, {UsualUnitType::Ampere, By, UsualUnitType::SquareMetre}},
    {PhysicalParameter::CurrentDensity, {UsualUnitType::Milliampere, By, UsualUnitType::SquareMillimetre}},
    {PhysicalParameter::CurrentDensity, {UsualUnitType::Ampere, By, UsualUnitType::SquareDecimetre}},

    {PhysicalParameter::SpecificCurrent, {UsualUnitType::Milliampere, By, UsualUnitType::Gram}},
    {PhysicalParameter::SpecificCurrent, {UsualUnitType::Ampere, By, UsualUnitType::Gram}},
    {PhysicalParameter::SpecificCurrent, {UsualUnitType::Ampere, By, UsualUnitType::Kilogram}},
    {PhysicalParameter::SpecificCurrent, {UsualUnitType::Microampere, By, UsualUnitType::Milligram}},

    {PhysicalParameter::SpecificCharge, {UsualUnitType::MilliampereHour, By, UsualUnitType::Gram}},
    {PhysicalParameter::SpecificCharge, {UsualUnitType::AmpereHour, By, UsualUnitType::Kilogram}},
    {PhysicalParameter::SpecificCharge, {UsualUnitType::AmpereHour, By, UsualUnitType::Gram}},
    {PhysicalParameter::SpecificCharge, {UsualUnitType::MicroampereHour, By, UsualUnitType::Milligram}},
    {PhysicalParameter::SpecificCharge, {UsualUnitType::Coulomb, By, UsualUnitType::Gram}},
    {PhysicalParameter::SpecificCharge, {UsualUnitType::Kilocoulomb, By, UsualUnitType::Kilogram}},

    {PhysicalParameter::ArealCharge, {UsualUnitType::MilliampereHour, By, UsualUnitType::SquareCentimetre}},
    {PhysicalParameter::ArealCharge, {UsualUnitType::AmpereHour, By, UsualUnitType::SquareMetre}},
    {PhysicalParameter::ArealCharge, {UsualUnitType::MicroampereHour, By, UsualUnitType::SquareCentimetre}},
    {PhysicalParameter::ArealCharge, {UsualUnitType::Coulomb, By, UsualUnitType::SquareCentimetre}},
    {PhysicalParameter::ArealCharge, {UsualUnitType::Coulomb, By, UsualUnitType::SquareMetre}},

    {PhysicalParameter::VolumetricCharge, {UsualUnitType::MilliampereHour, By, UsualUnitType::CubicCentimetre}},
    {PhysicalParameter::VolumetricCharge, {UsualUnitType::AmpereHour, By, UsualUnitType::Litre}},
    {PhysicalParameter::VolumetricCharge, {UsualUnitType::AmpereHour, By, UsualUnitType::CubicCentimetre}},
    {PhysicalParameter::VolumetricCharge, {UsualUnitType::Coulomb, By, UsualUnitType::CubicCentimetre}},
    {PhysicalParameter::VolumetricCharge, {UsualUnitType::MilliampereHour, By, UsualUnitType::Millilitre}},

    {PhysicalParameter::SpecificEnergy, {UsualUnitType::WattHour, By, UsualUnitType::Kilogram}},
    {PhysicalParameter::SpecificEnergy, {UsualUnitType::MilliwattHour, By, UsualUnitType::Gram}},
    {PhysicalParameter::SpecificEnergy, {UsualUnitType::KilowattHour, By, UsualUnitType::Kilogram}},
    {PhysicalParameter::SpecificEnergy, {UsualUnitType::Joule, By, UsualUnitType::Gram}},
    {PhysicalParameter::SpecificEnergy, {UsualUnitType::Kilojoule, By, UsualUnitType::Kilogram}},

    {PhysicalParameter::ArealEnergy, {UsualUnitType::MilliwattHour, By, UsualUnitType::SquareCentimetre}},
    {PhysicalParameter::ArealEnergy, {UsualUnitType::WattHour, By, UsualUnitType::SquareMetre}},
    {PhysicalParameter::ArealEnergy, {UsualUnitType::Joule, By, UsualUnitType::SquareCentimetre}},

    {PhysicalParameter::VolumetricEnergy, {UsualUnitType::WattHour, By, UsualUnitType::Litre}},
    {PhysicalParameter::VolumetricEnergy, {UsualUnitType::MilliwattHour, By, UsualUnitType::CubicCentimetre}},
    {PhysicalParameter::VolumetricEnergy, {UsualUnitType::KilowattHour, By, UsualUnitType::Litre}},
    {PhysicalParameter::VolumetricEnergy, {UsualUnitType::Joule, By, UsualUnitType::CubicCentimetre}},
    {PhysicalParameter::VolumetricEnergy, {UsualUnitType::KilowattHour, By, UsualUnitType::CubicMetre}},

    {PhysicalParameter::SpecificPower, {UsualUnitType::Watt, By, UsualUnitType::Kilogram}},
    {PhysicalParameter::SpecificPower, {UsualUnitType::Watt, By, UsualUnitType::Gram}},
    {PhysicalParameter::SpecificPower, {UsualUnitType::Milliwatt, By, UsualUnitType::Gram}},
    {PhysicalParameter::SpecificPower, {UsualUnitType::Kilowatt, By, UsualUnitType::Kilogram}},

    {PhysicalParameter::ArealPower, {UsualUnitType::Milliwatt, By, UsualUnitType::SquareCentimetre}},
    {PhysicalParameter::ArealPower, {UsualUnitType::Watt, By, UsualUnitType::SquareMetre}},
    {PhysicalParameter::ArealPower, {UsualUnitType::Watt, By, UsualUnitType::SquareCentimetre}},

    {PhysicalParameter::VolumetricPower, {UsualUnitType::Watt, By, UsualUnitType::Litre}},
    {PhysicalParameter::VolumetricPower, {UsualUnitType::Milliwatt, By, UsualUnitType::CubicCentimetre}},
    {PhysicalParameter::VolumetricPower, {UsualUnitType::Kilowatt, By, UsualUnitType::Litre}},
    {PhysicalParameter::VolumetricPower, {UsualUnitType::Watt, By, UsualUnitType::CubicCentimetre}},

    {PhysicalParameter::VoltageRate, {UsualUnitType::Volt, By, UsualUnitType::Second}},
    {PhysicalParameter::VoltageRate, {UsualUnitType::Millivolt, By, UsualUnitType::Second}},
    {PhysicalParameter::VoltageRate, {UsualUnitType::Volt, By, UsualUnitType::Hour}},
    {PhysicalParameter::VoltageRate, {UsualUnitType::Millivolt, By, UsualUnitType::Hour}},
    {PhysicalParameter::VoltageRate, {UsualUnitType::Microvolt, By, UsualUnitType::Second}},
    {PhysicalParameter::VoltageRate, {UsualUnitType::Millivolt, By, UsualUnitType::Minute}},
    {PhysicalParameter::VoltageRate, {UsualUnitType::Volt, By, UsualUnitType::Millisecond}},

    {PhysicalParameter::CurrentRate, {UsualUnitType::Ampere, By, UsualUnitType::Second}},
    {PhysicalParameter::CurrentRate, {UsualUnitType::Milliampere, By, UsualUnitType::Second}},
    {PhysicalParameter::CurrentRate, {UsualUnitType::Milliampere, By, UsualUnitType::Hour}},
    {PhysicalParameter::CurrentRate, {UsualUnitType::Ampere, By, UsualUnitType::Millisecond}},

    {PhysicalParameter::TemperatureRate, {UsualUnitType::DegreeCelsius, By, UsualUnitType::Second}},
    {PhysicalParameter::TemperatureRate, {UsualUnitType::DegreeCelsius, By, UsualUnitType::Hour}},
    {PhysicalParameter::TemperatureRate, {UsualUnitType::Kelvin, By, UsualUnitType::Second}},
    {PhysicalParameter::TemperatureRate, {UsualUnitType::Kelvin, By, UsualUnitType::Hour}},
    {PhysicalParameter::TemperatureRate, {UsualUnitType::DegreeCelsius, By, UsualUnitType::Minute}},
    {PhysicalParameter::TemperatureRate, {UsualUnitType::Kelvin, By, UsualUnitType::Minute}},

    {PhysicalParameter::Rate, {UsualUnitType::Percent, By, UsualUnitType::Hour}},
    {PhysicalParameter::Rate, {UsualUnitType::Percent, By, UsualUnitType::Second}},
    {PhysicalParameter::Rate, {UsualUnitType::Unity, By, UsualUnitType::Hour}},
    {PhysicalParameter::Rate, {UsualUnitType::Unity, By, UsualUnitType::Second}},

    {PhysicalParameter::DifferentialCapacity, {UsualUnitType::AmpereHour, By, UsualUnitType::Volt}},
    {PhysicalParameter::DifferentialCapacity, {UsualUnitType::MilliampereHour, By, UsualUnitType::Volt}},
    {PhysicalParameter::DifferentialCapacity, {UsualUnitType::MilliampereHour, By, UsualUnitType::Millivolt}},
    {PhysicalParameter::DifferentialCapacity, {UsualUnitType::MicroampereHour, By, UsualUnitType::Millivolt}},
    {PhysicalParameter::DifferentialCapacity, {UsualUnitType::Coulomb, By, UsualUnitType::Volt}},

    {PhysicalParameter::SpecificDifferentialCapacity,
     {UsualUnitType::MilliampereHour, By, UsualUnitType::Gram, By, UsualUnitType::Volt}},
    {PhysicalParameter::SpecificDifferentialCapacity,
     {UsualUnitType::AmpereHour, By, UsualUnitType::Kilogram, By, UsualUnitType::Volt}},
    {PhysicalParameter::SpecificDifferentialCapacity,
     {UsualUnitType::MilliampereHour, By, UsualUnitType::Gram, By, UsualUnitType::Millivolt}},
    {PhysicalParameter::SpecificDifferentialCapacity,
     {UsualUnitType::Coulomb, By, UsualUnitType::Gram, By, UsualUnitType::Volt}},

    {PhysicalParameter::DifferentialVoltage, {UsualUnitType::Volt, By, UsualUnitType::AmpereHour}},
    {PhysicalParameter::DifferentialVoltage, {UsualUnitType::Volt, By, UsualUnitType::MilliampereHour}},
    {PhysicalParameter::DifferentialVoltage, {UsualUnitType::Millivolt, By, UsualUnitType::MilliampereHour}},
    {PhysicalParameter::DifferentialVoltage, {UsualUnitType::Millivolt, By, UsualUnitType::MicroampereHour}},
    {PhysicalParameter::DifferentialVoltage, {UsualUnitType::Volt, By, UsualUnitType::Coulomb}},

    {PhysicalParameter::ArealResistance, {UsualUnitType::Ohm, Times, UsualUnitType::SquareCentimetre}},
    {PhysicalParameter::ArealResistance, {UsualUnitType::Milliohm, Times, UsualUnitType::SquareCentimetre}},
    {PhysicalParameter::ArealResistance, {UsualUnitType::Kiloohm, Times, UsualUnitType::SquareCentimetre}},
    {PhysicalParameter::ArealResistance, {UsualUnitType::Ohm, Times, UsualUnitType::SquareMetre}},

    {PhysicalParameter::Resistivity, {UsualUnitType::Ohm, Times, UsualUnitType::Centimetre}},
    {PhysicalParameter::Resistivity, {UsualUnitType::Milliohm, Times, UsualUnitType::Centimetre}},
    {PhysicalParameter::Resistivity, {UsualUnitType::Ohm, Times, UsualUnitType::Metre}},
    {PhysicalParameter::Resistivity, {UsualUnitType::Microohm, Times, UsualUnitType::Centimetre}},

    {PhysicalParameter::Conductivity, {UsualUnitType::Siemens, By, UsualUnitType::Centimetre}},
    {PhysicalParameter::Conductivity, {UsualUnitType::Siemens, By, UsualUnitType::Metre}},
    {PhysicalParameter::Conductivity, {UsualUnitType::Millisiemens, By, UsualUnitType::Centimetre}},
    {PhysicalParameter::Conductivity, {UsualUnitType::Microsiemens, By, UsualUnitType::Centimetre}},

    {PhysicalParameter::SpecificCapacitance, {UsualUnitType::Farad, By, UsualUnitType::Gram}},
    {PhysicalParameter::SpecificCapacitance, {UsualUnitType::Farad, By, UsualUnitType::Kilogram}},
    {PhysicalParameter::SpecificCapacitance, {UsualUnitType::Millifarad, By, UsualUnitType::Gram}},
    {PhysicalParameter::SpecificCapacitance, {UsualUnitType::Microfarad, By, UsualUnitType::Milligram}},
    {PhysicalParameter::SpecificCapacitance,
     {UsualUnitType::Ampere, Times, UsualUnitType::Second, By, UsualUnitType::Volt, By, UsualUnitType::Gram}},

    {PhysicalParameter::ArealCapacitance, {UsualUnitType::Farad, By, UsualUnitType::SquareCentimetre}},
    {PhysicalParameter::ArealCapacitance, {UsualUnitType::Microfarad, By, UsualUnitType::SquareCentimetre}},
    {PhysicalParameter::ArealCapacitance, {UsualUnitType::Millifarad, By, UsualUnitType::SquareCentimetre}},
    {PhysicalParameter::ArealCapacitance, {UsualUnitType::Farad, By, UsualUnitType::SquareMetre}},

    {PhysicalParameter::MassLoading, {UsualUnitType::Milligram, By, UsualUnitType::SquareCentimetre}},
    {PhysicalParameter::MassLoading, {UsualUnitType::Gram, By, UsualUnitType::SquareMetre}},
    {PhysicalParameter::MassLoading, {UsualUnitType::Gram, By, UsualUnitType::SquareCentimetre}},
    {PhysicalParameter::MassLoading, {UsualUnitType::Microgram, By, UsualUnitType::SquareCentimetre}},

    {PhysicalParameter::MassDensity, {UsualUnitType::Gram, By, UsualUnitType::CubicCentimetre}},
    {PhysicalParameter::MassDensity, {UsualUnitType::Kilogram, By, UsualUnitType::Litre}},
    {PhysicalParameter::MassDensity, {UsualUnitType::Kilogram, By, UsualUnitType::CubicMetre}},
    {PhysicalParameter::MassDensity, {UsualUnitType::Gram, By, UsualUnitType::Millilitre}},

    {PhysicalParameter::TemperatureCoefficient, {UsualUnitType::Millivolt, By, UsualUnitType::Kelvin}},
    {PhysicalParameter::TemperatureCoefficient, {UsualUnitType::Volt, By, UsualUnitType::Kelvin}},
    {PhysicalParameter::TemperatureCoefficient, {UsualUnitType::Microvolt, By, UsualUnitType::Kelvin}},
    {PhysicalParameter::TemperatureCoefficient, {UsualUnitType::Millivolt, By, UsualUnitType::DegreeCelsius}},

    {PhysicalParameter::Viscosity, {UsualUnitType::Pascal, Times, UsualUnitType::Second}},
    {PhysicalParameter::Viscosity, {UsualUnitType::Kilopascal, Times, UsualUnitType::Second}},
    {PhysicalParameter::Viscosity, {UsualUnitType::Hectopascal, Times, UsualUnitType::Second}},
    {PhysicalParameter::Viscosity, {UsualUnitType::Pascal, Times, UsualUnitType::Minute}},

    {PhysicalParameter::Concentration, {UsualUnitType::Mole, By, UsualUnitType::Litre}},
    {PhysicalParameter::Concentration, {UsualUnitType::Millimole, By, UsualUnitType::Litre}},
    {PhysicalParameter::Concentration, {UsualUnitType::Mole, By, UsualUnitType::CubicMetre}},
    {PhysicalParameter::Concentration, {UsualUnitType::Micromole, By, UsualUnitType::Litre}},

    {PhysicalParameter::DiffusionCoefficient, {UsualUnitType::SquareCentimetre, By, UsualUnitType::Second}},
    {PhysicalParameter::DiffusionCoefficient, {UsualUnitType::SquareMetre, By, UsualUnitType::Second}},
    {PhysicalParameter::DiffusionCoefficient, {UsualUnitType::SquareCentimetre, By, UsualUnitType::Hour}},
    {PhysicalParameter::DiffusionCoefficient, {UsualUnitType::SquareMillimetre, By, UsualUnitType::Second}},

    {PhysicalParameter::SpecificChargeRate,
     {UsualUnitType::MilliampereHour, By, UsualUnitType::Gram, By, UsualUnitType::Hour}},
    {PhysicalParameter::SpecificChargeRate,
     {UsualUnitType::AmpereHour, By, UsualUnitType::Kilogram, By, UsualUnitType::Hour}},
    {PhysicalParameter::SpecificChargeRate,
     {UsualUnitType::MilliampereHour, By, UsualUnitType::Gram, By, UsualUnitType::Second}},
    {PhysicalParameter::SpecificChargeRate,
     {UsualUnitType::MilliampereHour, By, UsualUnitType::Gram, By, UsualUnitType::Day}},

    {PhysicalParameter::SpecificEnergyRate,
     {UsualUnitType::MilliwattHour, By, UsualUnitType::Gram, By, UsualUnitType::Hour}},
    {PhysicalParameter::SpecificEnergyRate,
     {UsualUnitType::WattHour, By, UsualUnitType::Kilogram, By, UsualUnitType::Hour}},
    {PhysicalParameter::SpecificEnergyRate,
     {UsualUnitType::WattHour, By, UsualUnitType::Kilogram, By, UsualUnitType::Second}},
    {PhysicalParameter::SpecificEnergyRate,
     {UsualUnitType::WattHour, By, UsualUnitType::Kilogram, By, UsualUnitType::Day}},

    {PhysicalParameter::SpecificDifferentialCapacityRate,
     {UsualUnitType::MilliampereHour, By, UsualUnitType::Gram, By, UsualUnitType::Volt, By, UsualUnitType::Hour}},
    {PhysicalParameter::SpecificDifferentialCapacityRate,
     {UsualUnitType::MilliampereHour, By, UsualUnitType::Gram, By, UsualUnitType::Volt, By, UsualUnitType::Second}},
    {PhysicalParameter::SpecificDifferentialCapacityRate,
     {UsualUnitType::MilliampereHour, By, UsualUnitType::Gram, By, UsualUnitType::Volt, By, UsualUnitType::Day}},

    {PhysicalParameter::SpecificHeat, {UsualUnitType::Joule, By, UsualUnitType::Gram, By, UsualUnitType::Kelvin}},
    {PhysicalParameter::SpecificHeat, {UsualUnitType::Joule, By, UsualUnitType::Kilogram, By, UsualUnitType::Kelvin}},
    {PhysicalParameter::SpecificHeat,
     {UsualUnitType::Kilojoule, By, UsualUnitType::Kilogram, By, UsualUnitType::Kelvin}},
}};

} // namespace cl::datastorage::tables
