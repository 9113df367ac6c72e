#pragma once

#include "Table.h"

#include <QList>
#include <QString>

#include <qcustomplot.h>

namespace uiconfig {
struct Configuration;
}

namespace cluiconfig {

/// "linear" or "logarithmic".
QString scaleText(QCPAxis::ScaleType scale);

/// What \p configuration gives the application, a table a section (two where a section holds two lists), in the order
/// of the document's sections. Those of an empty configuration have no rows. Where \p headings are given, only theirs
/// are made.
QList<Table> documentTables(const uiconfig::Configuration& configuration, const QStringList& headings = {});

/// Whether the tables of \p headings ask for the axes combinations, of which a few lines can give millions.
bool needAxesCombinations(const QStringList& headings);

} // namespace cluiconfig
