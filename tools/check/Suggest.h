#pragma once

#include <QString>
#include <QStringList>

#include <utility>

namespace cluiconfig::check {

/// What to tell people about a text, and the text that they meant where one is known.
struct Advice
{
    // A sentence is advice, too.
    Advice(QString sentence = {}, QString meant = {}) // NOLINT(google-explicit-constructor)
        : text(std::move(sentence))
        , instead(std::move(meant))
    {
    }

    QString text;
    QString instead; ///< empty when nothing is known to be better
};

/// The one of \p known that somebody who wrote \p text most likely meant; empty when none is near. Near are a few
/// slips of the hand, another case, letters that look alike, and a beginning ("Voltage" of "Voltage / V").
QString suggestion(const QString& text, const QStringList& known);

/// ` Did you mean "…"?` with that suggestion, to follow a sentence; empty when there is none. Where the two differ in a
/// letter that people can hardly see, such as a no-break space or a Cyrillic о, one more sentence names it.
Advice didYouMean(const QString& text, const QStringList& known);
/// The same where it is known what is meant.
Advice didYouMean(const QString& text, const QString& meant);

/// `"A", "B" or "C"`, and `"A", "B", "C"`. REQUIRES: there is a name.
QString alternatives(const QStringList& names);
QString listed(const QStringList& names);

/// \p text in quotes for a message: one line, shortened when it is long.
QString quoted(const QString& text);

} // namespace cluiconfig::check
