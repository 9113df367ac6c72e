#pragma once

#include <QtGlobal>

/// \file Units.h
/// The numbers behind units: which physical quantities there are, which unit types, and how a compound unit joins them.
/// Archives and other programs store the numeric values, so a value never changes its meaning. Names and symbols for
/// people, and the conversions, belong to Converter; docs/units.md lists them all.

namespace cl::datastorage {

/// A physical quantity. 1 to 21 have unit types of their own; from 30 on the units are compound.
enum class PhysicalParameter : qint32 {
    None = 0, ///< no physical quantity: counters, identifiers, texts; also the answer to an unknown name

    Current = 1,
    Voltage = 2,
    Charge = 3,
    Time = 4,
    Energy = 5,
    Power = 6,
    Resistance = 7, ///< also the modulus and the parts of an impedance
    Conductance = 8,
    Capacitance = 9,
    Inductance = 10,
    Frequency = 11,
    Angle = 12,
    Temperature = 13,
    Mass = 14,
    Length = 15,
    Area = 16,
    Volume = 17,
    Pressure = 18,
    Ratio = 19,
    AmountOfSubstance = 20,
    Force = 21,

    CurrentDensity = 30, ///< current per electrode area
    SpecificCurrent = 31, ///< current per mass of active material
    SpecificCharge = 32,
    ArealCharge = 33,
    VolumetricCharge = 34,
    SpecificEnergy = 35,
    ArealEnergy = 36,
    VolumetricEnergy = 37,
    SpecificPower = 38,
    ArealPower = 39,
    VolumetricPower = 40,
    VoltageRate = 41, ///< scan rate of a potential sweep
    CurrentRate = 42,
    TemperatureRate = 43,
    Rate = 44, ///< share of the nominal capacity per time
    DifferentialCapacity = 45, ///< dQ/dU
    SpecificDifferentialCapacity = 46, ///< dQ/dU per mass of active material
    DifferentialVoltage = 47, ///< dU/dQ
    ArealResistance = 48, ///< resistance times electrode area
    Resistivity = 49,
    Conductivity = 50,
    SpecificCapacitance = 51,
    ArealCapacitance = 52,
    MassLoading = 53, ///< mass of active material per electrode area
    MassDensity = 54,
    TemperatureCoefficient = 55, ///< of a potential
    Viscosity = 56,
    Concentration = 57,
    DiffusionCoefficient = 58,
    SpecificChargeRate = 59, ///< loss of specific charge per time, by ageing or self-discharge
    SpecificEnergyRate = 60,
    SpecificDifferentialCapacityRate = 61,
    SpecificHeat = 62,
};

/// How a component of a compound unit joins what stands before it. Operators apply from left to right: mWh/g/h is
/// (mWh/g)/h.
enum class UsualUnitOperator : qint32 {
    None = 0, ///< there is no further component; also the answer to an unknown name
    Multiply = 1,
    Divide = 2,
};

/// One unit, of which compound units are made. A family of units of one quantity fills ten values (the first nine);
/// 200 to 1039 are free.
enum class UsualUnitType : qint32 {
    None = 0, ///< no unit

    // Current, 1 to 9
    Kiloampere = 1,
    Ampere = 2,
    Milliampere = 3,
    Microampere = 4,
    Nanoampere = 5,
    Picoampere = 6,
    Femtoampere = 7,
    Attoampere = 8,
    Megaampere = 9,

    // Charge, 10 to 19
    AmpereHour = 10,
    MilliampereHour = 11,
    MicroampereHour = 12,
    Coulomb = 13,
    Millicoulomb = 14,
    Microcoulomb = 15,
    KiloampereHour = 16,
    NanoampereHour = 17,
    Kilocoulomb = 18,
    Nanocoulomb = 19,

    // Time, 20 to 29
    Second = 20,
    Millisecond = 21,
    Minute = 22,
    Hour = 23,
    Day = 24,
    Microsecond = 25,
    Nanosecond = 26,
    Picosecond = 27,
    Week = 28,
    Year = 29,

    // Amount of substance, 30 to 39
    Mole = 30,
    Millimole = 31,
    Micromole = 32,
    Nanomole = 33,
    Picomole = 34,
    Femtomole = 35,
    Attomole = 36,
    Kilomole = 37,
    Megamole = 38,
    PoundMole = 39,

    // Frequency, 40 to 49
    Hertz = 40,
    Kilohertz = 41,
    Millihertz = 42,
    Megahertz = 43,
    Microhertz = 44,
    Gigahertz = 45,
    Nanohertz = 46,
    Terahertz = 47,
    RevolutionPerMinute = 48,
    RevolutionPerHour = 49,

    // Angle, 50 to 59
    Degree = 50,
    Radian = 51,
    Milliradian = 52,
    Microradian = 53,
    Nanoradian = 54,
    ArcMinute = 55,
    ArcSecond = 56,
    MilliarcSecond = 57,
    Gradian = 58,
    Turn = 59,

    // Voltage, 60 to 69
    Volt = 60,
    Millivolt = 61,
    Microvolt = 62,
    Kilovolt = 63,
    Nanovolt = 64,
    Megavolt = 65,
    Picovolt = 66,
    Gigavolt = 67,
    Femtovolt = 68,
    Statvolt = 69,

    // Temperature, 70 to 79
    DegreeCelsius = 70,
    Kelvin = 71,
    DegreeFahrenheit = 72,
    DegreeRankine = 73,
    Millikelvin = 74,
    Microkelvin = 75,
    DegreeReaumur = 76,
    DegreeDelisle = 77,
    DegreeNewton = 78,
    Kilokelvin = 79,

    // Power, 80 to 89
    Watt = 80,
    Megawatt = 81,
    Milliwatt = 82,
    Kilowatt = 83,
    Microwatt = 84,
    Nanowatt = 85,
    Gigawatt = 86,
    Terawatt = 87,
    Picowatt = 88,
    MetricHorsepower = 89,

    // Ratio, 90 to 99
    Percent = 90,
    Unity = 91,
    Permille = 92,
    Permyriad = 93,
    PartPerMillion = 94,
    PartPerBillion = 95,
    PartPerTrillion = 96,
    WeightPercent = 97,
    AtomicPercent = 98,
    VolumePercent = 99,

    // Energy, 100 to 109
    WattHour = 100,
    MilliwattHour = 101,
    KilowattHour = 102,
    Joule = 103,
    MicrowattHour = 104,
    MegawattHour = 105,
    Kilojoule = 106,
    Millijoule = 107,
    Megajoule = 108,
    Electronvolt = 109,

    // Resistance, 110 to 119
    Megaohm = 110,
    Ohm = 111,
    Milliohm = 112,
    Microohm = 113,
    Kiloohm = 114,
    Gigaohm = 115,
    Nanoohm = 116,
    Teraohm = 117,
    Picoohm = 118,
    Petaohm = 119,

    // Force, 120 to 129
    Newton = 120,
    Kilonewton = 121,
    Millinewton = 122,
    Micronewton = 123,
    Nanonewton = 124,
    Meganewton = 125,
    KilogramForce = 126,
    GramForce = 127,
    PoundForce = 128,
    Dyne = 129,

    // Mass, 130 to 139
    Gram = 130,
    Milligram = 131,
    Kilogram = 132,
    Tonne = 133,
    Nanogram = 134,
    Microgram = 135,
    Picogram = 136,
    Pound = 137,
    Ounce = 138,
    Dalton = 139,

    // Pressure, 140 to 149
    Pascal = 140,
    Hectopascal = 141,
    Kilopascal = 142,
    Megapascal = 143,
    Bar = 144,
    Millibar = 145,
    PoundPerSquareInch = 146,
    Atmosphere = 147,
    Torr = 148,
    Gigapascal = 149,

    // Volume, 150 to 159
    Litre = 150,
    CubicCentimetre = 151,
    Millilitre = 152,
    Microlitre = 153,
    CubicMetre = 154,
    CubicMillimetre = 155,
    CubicDecimetre = 156,
    CubicMicrometre = 157,
    Nanolitre = 158,
    CubicInch = 159,

    // Capacitance, 160 to 169
    Farad = 160,
    Microfarad = 161,
    Millifarad = 162,
    Nanofarad = 163,
    Picofarad = 164,
    Femtofarad = 165,
    Attofarad = 166,
    Kilofarad = 167,
    Megafarad = 168,
    Abfarad = 169,

    // Inductance, 170 to 179
    Henry = 170,
    Millihenry = 171,
    Microhenry = 172,
    Nanohenry = 173,
    Picohenry = 174,
    Femtohenry = 175,
    Attohenry = 176,
    Kilohenry = 177,
    Megahenry = 178,
    Abhenry = 179,

    // Conductance, 180 to 189
    Siemens = 180,
    Millisiemens = 181,
    Microsiemens = 182,
    Nanosiemens = 183,
    Picosiemens = 184,
    Femtosiemens = 185,
    Attosiemens = 186,
    Kilosiemens = 187,
    Megasiemens = 188,
    Absiemens = 189,

    // Length, 190 to 199
    Centimetre = 190,
    Metre = 191,
    Millimetre = 192,
    Micrometre = 193,
    Nanometre = 194,
    Angstrom = 195,
    Picometre = 196,
    Decimetre = 197,
    Kilometre = 198,
    Inch = 199,

    // Area, 1040 to 1049
    SquareNanometre = 1040,
    SquareMicrometre = 1041,
    SquareDecimetre = 1042,
    SquareCentimetre = 1043,
    SquareMillimetre = 1044,
    SquareMetre = 1045,
    SquareInch = 1046,
    SquareFoot = 1047,
    Hectare = 1048,
    SquareKilometre = 1049,
};

} // namespace cl::datastorage
