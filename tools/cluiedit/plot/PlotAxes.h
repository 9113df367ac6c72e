#pragma once

#include <QString>

#include <array>
#include <cstddef>
#include <utility>

namespace cluiedit {

/// An axis of the plot.
enum class PlotAxis { X, Y1, Y2 };
inline constexpr std::array PlotAxes{PlotAxis::X, PlotAxis::Y1, PlotAxis::Y2};
inline constexpr std::array YAxes{PlotAxis::Y1, PlotAxis::Y2};

/// Something for each axis of the plot.
template <typename T>
class PerAxis
{
public:
    PerAxis() = default;
    PerAxis(T x, T y1, T y2)
        : m_values{std::move(x), std::move(y1), std::move(y2)}
    {
    }

    T& at(PlotAxis axis) { return m_values.at(static_cast<std::size_t>(axis)); }
    const T& at(PlotAxis axis) const { return m_values.at(static_cast<std::size_t>(axis)); }

    bool operator==(const PerAxis& other) const = default;

private:
    std::array<T, PlotAxes.size()> m_values{};
};

/// Names of data arrays, empty for none.
using AxisNames = PerAxis<QString>;

} // namespace cluiedit
