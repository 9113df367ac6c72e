#pragma once

#include <document/Table.h>

#include <QJsonObject>
#include <QString>

/// \file RowPlaces.h
/// Where in a document the rows of its tables come from.

namespace cluiedit {

/// The JSON pointer to the value of the document \p root that gives the row number \p row of \p table, one of its
/// documentTables(). Where no single value gives it, the pointer to the section.
///
/// REQUIRES: the application loads the document, so that no entry of it was left out.
QString placeOfRow(const cluiconfig::Table& table, qsizetype row, const QJsonObject& root);

/// The JSON pointer to the first entry of "MSVUnits" about \p parameter, or to the section where there is none.
QString placeOfParameter(const QString& parameter, const QJsonObject& root);

} // namespace cluiedit
