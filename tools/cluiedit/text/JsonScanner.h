#pragma once

#include "JsonPlace.h"

#include <QByteArrayView>

namespace cluiedit {

/// Takes a JSON text apart that may be broken: gives brackets, commas and colons as they are, and strings and words as
/// tokens.
class JsonScanner
{
public:
    explicit JsonScanner(QByteArrayView text);

    /// Goes to the next piece; false at the end of the text.
    bool next();

    /// One of {}[],: for these, and 0 for a token.
    char sign() const { return m_sign; }
    /// Where the piece stands.
    const JsonToken& token() const { return m_token; }
    /// Whether the next piece is a colon.
    bool isBeforeColon() const;

private:
    qsizetype skipBlanks(qsizetype from) const;
    void readString();

    QByteArrayView m_text;
    qsizetype m_at = 0;
    char m_sign = 0;
    JsonToken m_token;
};

} // namespace cluiedit
