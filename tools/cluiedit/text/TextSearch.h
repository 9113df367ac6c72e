#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

namespace cluiedit {

/// What is searched for, and how.
struct SearchTerms
{
    QString text;
    bool isCaseSensitive = false;
    bool isWholeWord = false;
    bool isExpression = false; ///< a regular expression, as Qt knows them

    bool operator==(const SearchTerms&) const = default;
};

/// A place where it was found, in bytes, and what to put there instead.
struct Match
{
    qsizetype begin = 0;
    qsizetype end = 0;
    QByteArray replacement{};
};

/// What is wrong with \p terms; empty when nothing is.
QString errorIn(const SearchTerms& terms);

/// All places in \p text where \p terms are found, from the first to the last, no two of them overlapping. What is
/// empty is never found. Each has \p replacement, in which \1 to \9 stand for the groups of a regular expression, and
/// \0 for all of it.
QList<Match> findAll(const QByteArray& text, const SearchTerms& terms, const QString& replacement = {});

} // namespace cluiedit
