#include "PlotChoice.h"

#include <algorithm>

namespace cluiedit {

using enum PlotAxis;

void PlotChoice::choose(const ConfigRepresentation& representation)
{
    take(representation);
    m_isChosen = true;
}

void PlotChoice::choose(const AxisNames& names)
{
    m_representation.reset();
    m_names = names;
    m_isChosen = true;
}

void PlotChoice::take(const ConfigRepresentation& representation)
{
    m_representation = representation.name();
    m_names = {representation.x(), representation.y1(), representation.y2()};
}

void PlotChoice::follow(const Snapshot& snapshot)
{
    const auto& representations = snapshot.configuration().representations;
    const auto takeFirst = [&](const auto& isMeant) {
        const auto found = std::find_if(representations.cbegin(), representations.cend(), isMeant);
        if (found == representations.cend()) {
            return false;
        }
        take(*found);
        return true;
    };
    if (m_isChosen) {
        if (m_representation) {
            takeFirst([&](const ConfigRepresentation& each) { return each.name() == *m_representation; });
        }
        return;
    }
    if (takeFirst([](const ConfigRepresentation& each) { return each.isDefault(); })
        || takeFirst([&](const ConfigRepresentation& each) { return snapshot.axes().isRepresentationValid(&each); })) {
        return;
    }
    m_representation.reset();
    const QString x = snapshot.axes().getXAxesNames().value(0);
    m_names = {x, snapshot.axes().getYAxesNames(x).value(0), QString()};
}

std::optional<qsizetype> PlotChoice::representationIn(const Snapshot& snapshot) const
{
    const auto& representations = snapshot.configuration().representations;
    const auto found = std::find_if(representations.cbegin(), representations.cend(), [&](const auto& each) {
        return m_names == AxisNames{each.x(), each.y1(), each.y2()}
        && (!m_representation || each.name() == *m_representation);
    });
    return found == representations.cend() ? std::nullopt : std::optional(found - representations.cbegin());
}

AxisNames pairedWithX(AxisNames names, const AxesCombinationManager& axes)
{
    const QStringList ys = axes.getYAxesNames(names.at(X));
    for (const PlotAxis y : YAxes) {
        if (!ys.contains(names.at(y))) {
            names.at(y).clear();
        }
    }
    if (names.at(Y1).isEmpty() && names.at(Y2).isEmpty()) {
        names.at(Y1) = ys.value(0);
    }
    return names;
}

} // namespace cluiedit
