#include "AxesPlaces.h"

#include <base/DocumentKeys.h>
#include <base/JsonPointer.h>

#include <QJsonArray>

#include <algorithm>

namespace keys = uiconfig::keys;

namespace cluiedit {

AxesPlaces::AxesPlaces(const QJsonObject& root)
{
    const QJsonArray entries = root.value(keys::AxesCombinations).toArray();
    for (const auto& entry : entries) {
        QString error;
        m_axes.readAxesCombination(entry.toObject(), error);
        m_ends.push_back(m_axes.getAxesCombinations().size());
    }
}

QString AxesPlaces::placeOf(const QString& x, const QString& y) const
{
    const auto& pairs = m_axes.getAxesCombinations();
    const auto found = std::ranges::find_if(pairs, [&](const AxesCombination& pair) {
        return pair.isValid() && pair.getConfigX().getName() == x && pair.getConfigY().getName() == y;
    });
    if (found == pairs.end()) {
        return jsonPointer(keys::AxesCombinations);
    }
    const auto entry = std::ranges::upper_bound(m_ends, qsizetype(found - pairs.begin()));
    return jsonPointer(keys::AxesCombinations, qsizetype(entry - m_ends.begin()));
}

} // namespace cluiedit
