#pragma once

#include "Rules.h"

#include <QString>

namespace cluiconfig::check {

/// Something that the check found in a document.
struct Finding
{
    Rule rule = Rule::Refused;
    Severity severity = Severity::Error;
    qsizetype offset = 0; ///< of the place, in bytes; where the text is not UTF-8 but UTF-16, in its form in UTF-8
    QString pointer;
    QString message; ///< what happens, and what to write instead
    QString instead{}; ///< The text to put in place of the JSON string or key at the offset; empty if none is known.
    qsizetype line = 1;
    qsizetype column = 1; ///< in characters
    QString
        before{}; ///< What stands on the line before the place, and from it on; the ends of a long line are cut off.
    QString after{};

    /// Whether both say the same of the same place, whatever stands around it.
    bool saysTheSameAs(const Finding& other) const
    {
        return offset == other.offset && line == other.line && severity == other.severity && rule == other.rule
            && message == other.message && instead == other.instead;
    }
};

} // namespace cluiconfig::check
