#pragma once

#include "Table.h"

#include <QJsonObject>
#include <QList>
#include <QString>

#include <qcustomplot.h>

class UIConfig;

namespace cluiconfig {

/// "linear" or "logarithmic".
QString scaleText(QCPAxis::ScaleType scale);

/// What the getters of \p config answer, a table a section (two where a section holds two lists), in the order of the
/// document's sections.
///
/// \p root is the document that \p config was loaded from. The configuration does not tell the keys of its default
/// colours, nor how many parameters a recipe entry has; they are asked for as the document lists them.
///
/// REQUIRES: \p config was loaded from that document and from nothing else.
QList<Table> documentTables(UIConfig& config, const QJsonObject& root);

} // namespace cluiconfig
