#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QtGlobal>

#include <cstddef>
#include <deque>

class QIODevice;

namespace cluiconfig {

/// A JSON text and the one way to lay it out: four blanks a level, up to 116 columns, a line feed at the end.
///
/// - A list of plain values (texts, numbers, true, false, null) stands on one line where it fits, else a line each.
/// - An object in a list, of plain values and lists of plain values, fills lines: as many members on each as fit, the
///   further lines set in by two. Where a member does not fit on a line, all of them have a line each.
/// - Every other object has a line for each member, every other list a line for each element.
///
/// Only the blanks between the values change. Order, repeated keys, the digits of numbers and the spelling of texts,
/// escapes included, stay as they are. A byte-order mark goes.
class JsonLayout
{
public:
    /// Takes \p text apart; true on success. Numbers of any size and lone surrogates as escapes, which are JSON, are
    /// taken as they stand. What is not JSON in UTF-8, or nested more than 1024 deep, which the
    /// application refuses too, gives false with line, column and reason in \p error.
    bool read(const QByteArray& text, QString& error);

    /// Writes the text in its layout; false when \p device does not take it, which knows the reason.
    ///
    /// REQUIRES: read() has succeeded; \p device is open.
    bool write(QIODevice& device) const;

private:
    class Tokens;
    class Writer;

    /// The start of an object or a list, its end, a key, or a plain value: where it stands in the text.
    struct Token
    {
        quint32 begin;
        quint32 size;
    };

    QByteArrayView text(std::size_t token) const;
    char kind(std::size_t token) const { return m_text.at(m_tokens[token].begin); }
    bool isEnd(std::size_t token) const { return kind(token) == '}' || kind(token) == ']'; }

    QByteArray m_text;
    std::deque<Token> m_tokens; // grows without copying: a document of 50 MB can have 25 million
};

} // namespace cluiconfig
