#pragma once

#include <config/Configuration.h>

#include <QByteArray>
#include <QList>
#include <QString>
#include <QtGlobal>

#include <cstddef>
#include <cstdint>

/// \file Fuzz.h
/// What the targets share. A target is one function that is given any bytes and ends the program where a promise is
/// broken: under libFuzzer, which makes up the bytes, or in a test, which replays those that are kept.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace fuzz {

/// Ends the program, with the promise \p broken in words, unless it \p holds.
inline void require(bool holds, const char* broken)
{
    if (!holds) {
        qFatal("broken: %s", broken);
    }
}

inline QByteArray bytes(const std::uint8_t* data, std::size_t size)
{
    return {reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)};
}

/// The process's catalogue, which documents name.
const uiconfig::Catalogue& catalogue();

/// Reads the file \p path as the application loads it, into \p configuration, up to what it refuses, which \p refusals
/// tell. What is said of a file that does not load; empty if it does.
QString load(const QString& path, uiconfig::Configuration& configuration, uiconfig::Refusals& refusals);

/// The path of a file that holds \p content, until the next call.
QString fileWith(const QByteArray& content);

/// Choices that the bytes of an input make, one byte each; the first of all once they are used up.
class Choices
{
public:
    Choices(const std::uint8_t* data, std::size_t size)
        : m_next(data)
        , m_end(data + size)
    {
    }

    bool isUsedUp() const { return m_next == m_end; }

    /// From 0. REQUIRES: \p limit is from 1 to 256.
    int below(qsizetype limit) { return isUsedUp() ? 0 : static_cast<int>(*m_next++ % limit); }
    bool oneIn(int chances) { return below(chances) == 0; }

    template <typename Value>
    const Value& of(const QList<Value>& values)
    {
        return values.at(below(values.size()));
    }

private:
    const std::uint8_t* m_next;
    const std::uint8_t* m_end;
};

} // namespace fuzz
