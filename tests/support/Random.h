#pragma once

#include <QList>

#include <cstddef>
#include <random>

/// Random choices that are the same on every machine: the standard library's distributions are not.
class Random
{
public:
    explicit Random(unsigned seed)
        : m_engine(seed)
    {
    }

    /// From 0, each number as likely as the others.
    int below(qsizetype limit) { return static_cast<int>(m_engine() % static_cast<std::size_t>(limit)); }
    bool oneIn(int chances) { return below(chances) == 0; }

    template <typename Value>
    const Value& of(const QList<Value>& values)
    {
        return values.at(below(values.size()));
    }

private:
    std::mt19937 m_engine;
};
