#pragma once

#include <QList>
#include <QString>

#include <algorithm>

/// \file TitleLookup.h
/// Looking items up by their titles.

/// A copy of the first item whose getTitle() is exactly \p title, a default-constructed item when there is none.
template <typename Item>
Item firstWithTitle(const QList<Item>& items, const QString& title)
{
    const auto found =
        std::find_if(items.cbegin(), items.cend(), [&title](const Item& item) { return item.getTitle() == title; });
    return found == items.cend() ? Item() : *found;
}
