#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// \file TableText.h
/// Rows of cells as text for other programs.

namespace cluiedit {

/// A line a row, with tabs between the cells. Tabs and line breaks in a cell become blanks.
QString asTsv(const QList<QStringList>& rows);

/// As RFC 4180 has it: lines that end with CR and LF, commas between the cells, quotes where a cell needs them.
QString asCsv(const QList<QStringList>& rows);

} // namespace cluiedit
