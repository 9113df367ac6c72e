#pragma once

#include <config/Configuration.h>

#include <QByteArray>
#include <QList>
#include <QString>

namespace cluiedit {

/// Something that may stand at a place.
struct Candidate
{
    QString text; ///< as it is put in: JSON, with quotes and escapes
    QString label; ///< as people read it
    QString note; ///< more about it; may be empty
};

/// What may stand at a place, and what of the text it takes the place of.
struct Candidates
{
    QList<Candidate> list; ///< the best first
    qsizetype begin = 0; ///< in bytes
    qsizetype end = 0;
    QString typed; ///< what stands between the begin, without its quote, and the place
    bool isOpen = false; ///< The place is within a string, not behind it.
};

/// What may stand at the byte \p offset of \p text, which may be no JSON because somebody is typing there: of what
/// documents allow, the keys that their object lacks, the words, the names of the process's catalogue that fit what
/// stands beside, and the names that \p lastGood gives. What is typed up to the place narrows and ranks it.
Candidates candidates(const QByteArray& text, qsizetype offset, const uiconfig::Configuration& lastGood);

} // namespace cluiedit
