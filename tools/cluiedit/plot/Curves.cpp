#include "Curves.h"

#include <QCoreApplication>

#include <algorithm>
#include <optional>

namespace cluiedit {

namespace {

/// A pair of arrays of which a measurement has both.
struct Pair
{
    AxesCombination axes;
    Values x;
    Values y;
};

std::optional<Pair> pairOf(const AxesCombinationManager& axes, const std::shared_ptr<const Measurement>& measurement,
                           const QString& x, const QString& y)
{
    const auto combinations = axes.getAxesCombinations(x);
    for (const AxesCombination& each : combinations) {
        if (each.getConfigY().getName() != y) {
            continue;
        }
        const auto* xs = measurement->values(each.getConfigX());
        const auto* ys = measurement->values(each.getConfigY());
        if (xs != nullptr && ys != nullptr) {
            return Pair{each, Values(measurement, xs), Values(measurement, ys)};
        }
    }
    return std::nullopt;
}

/// What \p measurement lacks, which has no pair.
QString lack(const AxesCombinationManager& axes, const Measurement& measurement, const QString& x, const QString& y)
{
    const auto combinations = axes.getAxesCombinations(x);
    QStringList lacking;
    for (const QString& name : {x, y}) {
        const bool hasIt = std::any_of(combinations.cbegin(), combinations.cend(), [&](const auto& each) {
            return each.getConfigY().getName() == y
                && measurement.values(name == y ? each.getConfigY() : each.getConfigX()) != nullptr;
        });
        if (!hasIt) {
            lacking.append(name);
        }
    }
    if (lacking.isEmpty()) {
        return QCoreApplication::translate("cluiedit::Curves", "%1 has no %2 of the same category as %3")
            .arg(measurement.name(), y, x);
    }
    if (lacking.size() == 1) {
        return QCoreApplication::translate("cluiedit::Curves", "%1 has no %2")
            .arg(measurement.name(), lacking.constFirst());
    }
    return QCoreApplication::translate("cluiedit::Curves", "%1 has no %2 and no %3").arg(measurement.name(), x, y);
}

} // namespace

AxesCombination pairFor(const AxesCombinationManager& axes, const Measurements& measurements, const QString& x,
                        const QString& y)
{
    if (y.isEmpty()) {
        return {};
    }
    for (const auto& measurement : measurements) {
        if (const auto pair = pairOf(axes, measurement, x, y)) {
            return pair->axes;
        }
    }
    return axes.getAxesCombination(x, y);
}

Curves curvesOf(const AxesCombinationManager& axes, const Measurements& measurements, const AxisNames& names,
                const PerAxis<cl::datastorage::UsualUnit>& units)
{
    Curves result;
    const QString& nameOfX = names.at(PlotAxis::X);
    for (const auto& measurement : measurements) {
        for (const PlotAxis axis : YAxes) {
            const QString& nameOfY = names.at(axis);
            if (nameOfX.isEmpty() || nameOfY.isEmpty()) {
                continue;
            }
            const auto pair = pairOf(axes, measurement, nameOfX, nameOfY);
            if (!pair) {
                result.missing.append(lack(axes, *measurement, nameOfX, nameOfY));
                continue;
            }
            const auto x = quantityOf(pair->axes.getConfigX());
            const auto y = quantityOf(pair->axes.getConfigY());
            if (!x || !y) {
                continue; // the catalogue has changed since the document was read
            }
            const auto scaleX = unitScale(x->unit, units.at(PlotAxis::X));
            const auto scaleY = unitScale(y->unit, units.at(axis));
            if (!scaleX || !scaleY) {
                result.missing.append(
                    QCoreApplication::translate("cluiedit::Curves", "%1 has %2 in a unit that does not fit the axis")
                        .arg(measurement->name(), (scaleX ? *y : *x).array.getName()));
                continue;
            }
            result.curves.push_back({measurement->name(), axis, *x, *y, *scaleX, *scaleY, pair->x, pair->y});
        }
    }
    result.missing.removeDuplicates();
    return result;
}

} // namespace cluiedit
