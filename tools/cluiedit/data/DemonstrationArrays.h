#pragma once

#include <cluiedit/data/CyclingTest.h>
#include <cluiedit/data/Measurement.h>
#include <config/Configuration.h>

#include <batterydata/ClConfigDataArrayManager.h>

#include <QString>

#include <cstddef>
#include <utility>
#include <vector>

/// \file DemonstrationArrays.h
/// What becomes of a test of the demonstration cell: the arrays of each category of the catalogue.

namespace cluiedit {

/// Adds arrays of one category to a measurement, those that the catalogue has.
class ArrayWriter
{
public:
    /// \param size how many values each array gets
    ArrayWriter(Measurement& to, const uiconfig::Catalogue& catalogue, QString category, std::size_t size)
        : m_to(to)
        , m_catalogue(catalogue)
        , m_category(std::move(category))
        , m_size(size)
    {
    }

    /// Adds the array \p name, whose i-th value is \p value (i).
    template <typename Value>
    void fill(const QString& name, Value value)
    {
        if (m_catalogue.getConfigDataArray(name, m_category) == nullptr) {
            return;
        }
        std::vector<double> values(m_size);
        for (std::size_t i = 0; i < m_size; ++i) {
            values[i] = static_cast<double>(value(i));
        }
        m_to.add({name, m_category}, std::move(values));
    }

    void fill(const QString& name, const std::vector<double>& values)
    {
        fill(name, [&](std::size_t i) { return values[i]; });
    }

private:
    Measurement& m_to;
    const uiconfig::Catalogue& m_catalogue;
    QString m_category;
    std::size_t m_size;
};

/// A test with a value a record of what several categories need. Charges in Ah and energies in Wh count from the start
/// of the test: trapezoids between the records.
struct DemonstrationRows
{
    explicit DemonstrationRows(const CyclingTest& theTest);

    std::size_t size() const { return time.size(); }

    const CyclingTest& test;
    std::vector<double> time; ///< s
    std::vector<double> voltage; ///< V
    std::vector<double> current; ///< A
    std::vector<double> power; ///< W
    std::vector<double> temperature; ///< °C, of the surface
    std::vector<double> chargeIn;
    std::vector<double> chargeOut;
    std::vector<double> energyIn;
    std::vector<double> energyOut;
    std::vector<double> stateOfCharge; ///< %, of the nominal capacity
};

/// Midnight of 1 January 2024 UTC in s since 1970, when the test starts.
constexpr double StartOfTest = 1704067200;
/// The frequency in Hz of the array "AC Internal Resistance": testers of cells use it.
constexpr double ResistanceFrequency = 1000;

/// A range of records, or of others that stand beside each other.
struct Range
{
    std::size_t begin = 0;
    std::size_t end = 0;
};

/// How much \p counter, which counts from the start of the test, has grown in \p range.
double growth(const std::vector<double>& counter, Range range);
/// The mean of \p values, weighted with time: trapezoids between the records of \p range.
double timeMean(const DemonstrationRows& rows, const std::vector<double>& values, Range range);
/// d\p y / d\p x at \p i from its neighbours in \p range; NaN where x moves less than \p least.
double slope(const std::vector<double>& y, const std::vector<double>& x, std::size_t i, Range range, double least);

void addRowArrays(const DemonstrationRows& rows, const uiconfig::Catalogue& catalogue, Measurement& to);
void addStepArrays(const DemonstrationRows& rows, const uiconfig::Catalogue& catalogue, Measurement& to);
/// Those of the cycles, and of the loops.
void addCycleArrays(const DemonstrationRows& rows, const uiconfig::Catalogue& catalogue, Measurement& to);
/// The spectrum of the cell at the end of the test.
void addImpedanceArrays(const DemonstrationRows& rows, const uiconfig::Catalogue& catalogue, Measurement& to);
/// The differential capacity of three cycles, the first, one in the middle and the last: up with the voltage and down
/// again.
void addDifferentialArrays(const DemonstrationRows& rows, const uiconfig::Catalogue& catalogue, Measurement& to);
/// Discharges of a new cell at constant powers.
void addRagoneArrays(const uiconfig::Catalogue& catalogue, Measurement& to);

} // namespace cluiedit
