#pragma once

#include "Document.h"

#include <base/Refusals.h>

#include <QString>

#include <map>
#include <memory>
#include <unordered_map>

namespace cluiconfig::check {

/// What the readers of the application refuse, by its place in the document.
///
/// Their JSON pointers are followed once. Afterwards none is made or compared, since a key in it may be of any length.
class RefusedPlaces
{
public:
    /// The first refusal at a place.
    struct Refused
    {
        qsizetype index = 0; ///< among all refusals
        bool isExplained = false;
    };

    RefusedPlaces(const uiconfig::Refusals& refusals, const Value& root);
    RefusedPlaces(const RefusedPlaces&) = delete;
    RefusedPlaces& operator=(const RefusedPlaces&) = delete;

    bool isEmpty() const { return m_all.empty(); }

    /// By JSON pointer.
    const std::map<QString, Refused>& all() const { return m_all; }

    /// What is refused at \p value itself, or at a member \p key that \p object lacks; null if nothing is.
    Refused* at(const Value& value) const;
    Refused* at(const Value& object, const QString& key) const;

    /// Calls \p visit with everything that is refused at \p value and within it.
    template <typename Visit>
    void forEachWithin(const Value& value, Visit visit) const
    {
        if (const Place* place = placeOf(value)) {
            forEachWithin(*place, visit);
        }
    }

private:
    /// A place at or within which something is refused.
    struct Place
    {
        Refused* refused = nullptr;
        std::map<QString, std::unique_ptr<Place>> within{}; // by the next step
    };

    template <typename Visit>
    static void forEachWithin(const Place& place, Visit& visit)
    {
        if (place.refused != nullptr) {
            visit(*place.refused);
        }
        for (const auto& [step, next] : place.within) {
            forEachWithin(*next, visit);
        }
    }

    Place& placeAt(QStringView pointer);
    void find(const Value& value, const Place& place);
    const Place* placeOf(const Value& value) const;

    std::map<QString, Refused> m_all;
    Place m_root;
    std::unordered_map<qsizetype, const Place*> m_byOffset; // of the values that stand there
};

} // namespace cluiconfig::check
