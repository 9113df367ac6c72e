#pragma once

#include <QList>

#include <random>

/// Random choices that are the same on every machine: the standard library's distributions are not.
class Random
{
public:
    explicit Random(unsigned seed)
        : m_engine(seed)
    {
    }

    int below(int limit) { return static_cast<int>(m_engine() % static_cast<unsigned>(limit)); }
    bool oneIn(int chances) { return below(chances) == 0; }

    template <typename Value>
    const Value& of(const QList<Value>& values)
    {
        return values.at(below(static_cast<int>(values.size())));
    }

private:
    std::mt19937 m_engine;
};
