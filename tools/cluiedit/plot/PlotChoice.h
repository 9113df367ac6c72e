#pragma once

#include "PlotAxes.h"

#include <axes/ConfigRepresentation.h>
#include <cluiedit/reading/Snapshot.h>

#include <QString>

#include <optional>

namespace cluiedit {

/// What somebody wants to see, by name, so that it outlasts documents that do not have it; before anybody has chosen,
/// the document's default.
class PlotChoice
{
public:
    /// Stays that representation when its axes change.
    void choose(const ConfigRepresentation& representation);
    void choose(const AxisNames& names);

    /// Brings the choice up to date with a document.
    void follow(const Snapshot& snapshot);

    const AxisNames& names() const { return m_names; }
    /// The number of the representation that has these axes; nothing for an own choice.
    std::optional<qsizetype> representationIn(const Snapshot& snapshot) const;

private:
    void take(const ConfigRepresentation& representation);

    std::optional<QString> m_representation;
    AxisNames m_names;
    bool m_isChosen = false; // by somebody
};

/// \p names without the Y axes that the document does not pair with the X axis; at least one where it pairs any.
AxisNames pairedWithX(AxisNames names, const AxesCombinationManager& axes);

} // namespace cluiedit
