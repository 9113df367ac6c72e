#include "private/RefusedPlaces.h"

#include <base/JsonPointer.h>

namespace cluiconfig::check {

RefusedPlaces::RefusedPlaces(const uiconfig::Refusals& refusals, const Value& root)
{
    qsizetype index = 0;
    for (const uiconfig::Refusal& refusal : refusals.all()) {
        const auto [refused, isFirst] = m_all.insert({refusal.place, {index++}});
        if (isFirst) {
            placeAt(refusal.place).refused = &refused->second;
        }
    }
    find(root, m_root);
}

RefusedPlaces::Refused* RefusedPlaces::at(const Value& value) const
{
    const Place* place = placeOf(value);
    return place == nullptr ? nullptr : place->refused;
}

RefusedPlaces::Refused* RefusedPlaces::at(const Value& object, const QString& key) const
{
    if (const Place* place = placeOf(object)) {
        const auto member = place->within.find(jsonPointer(key));
        return member == place->within.end() ? nullptr : member->second->refused;
    }
    return nullptr;
}

RefusedPlaces::Place& RefusedPlaces::placeAt(QStringView pointer)
{
    Place* place = &m_root;
    while (!pointer.isEmpty()) {
        const QStringView step = firstStep(pointer);
        std::unique_ptr<Place>& child = place->within[step.toString()];
        if (!child) {
            child = std::make_unique<Place>();
        }
        place = child.get();
        pointer = pointer.sliced(step.size());
    }
    return *place;
}

/// Notes which values stand at \p place, as \p value does, and within it.
void RefusedPlaces::find(const Value& value, const Place& place)
{
    m_byOffset.insert({value.offset(), &place});
    if (!place.within.empty()) {
        value.forEach([&](const Value& child) {
            if (const auto next = place.within.find(child.step()); next != place.within.end()) {
                find(child, *next->second);
            }
        });
    }
}

const RefusedPlaces::Place* RefusedPlaces::placeOf(const Value& value) const
{
    const auto found = m_byOffset.find(value.offset());
    return found == m_byOffset.end() ? nullptr : found->second;
}

} // namespace cluiconfig::check
