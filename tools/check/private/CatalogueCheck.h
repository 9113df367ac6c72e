#pragma once

#include "Document.h"
#include "Findings.h"

#include <QLatin1StringView>
#include <QString>

/// \file CatalogueCheck.h
/// What can be wrong with a catalogue of data arrays beyond its structure.

namespace cluiconfig::check {

/// The member of a catalogue that makes it one.
inline constexpr QLatin1StringView CategoriesKey("Categories");

/// The JSON pointer to what the reader of the catalogue \p file refuses, of which its \p sentence tells.
QString placeOfRefusal(const QString& sentence, const QString& file);

/// Adds what is wrong with the categories of the catalogue \p root and their arrays. What has the wrong type or is
/// missing is passed over: the structure tells of it.
void checkCategories(const Value& root, Findings& findings);

} // namespace cluiconfig::check
