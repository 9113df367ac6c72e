#pragma once

#include <QString>
#include <QStringList>

/// \file Texts.h
/// What the tabs have in common when they look for texts and show them.

namespace cluiedit {

/// The words of a filter line: what stands between blanks.
QStringList filterWords(const QString& line);

/// Whether each of \p words occurs in \p text, in any case and any order. True without words.
bool containsAll(const QString& text, const QStringList& words);

/// \p text as a tool tip that shows it as it is, also where it looks like markup.
QString toolTipText(const QString& text);

} // namespace cluiedit
