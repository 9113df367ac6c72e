#include <config/ProcessTask.h>
#include <config/Singleton.h>

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <latch>
#include <stdexcept>
#include <thread>
#include <type_traits>
#include <vector>

using namespace Qt::StringLiterals;
using lumo::tools::Singleton;

namespace {

/// A class whose construction takes until the test lets it end.
class Slow : public Singleton<Slow>
{
public:
    explicit Slow(token /*token*/)
    {
        ++constructions;
        begun.count_down();
        mayEnd.wait();
        isConstructed = true;
    }

    static inline std::atomic<int> constructions = 0;
    static inline std::latch begun{1};
    static inline std::latch mayEnd{1};

    std::atomic<bool> isConstructed = false;
};

class Reluctant : public Singleton<Reluctant>
{
public:
    explicit Reluctant(token /*token*/)
    {
        if (++attempts < 3) {
            throw std::runtime_error("not yet");
        }
    }
    ~Reluctant() { ++destructions; }

    static inline int attempts = 0;
    static inline int destructions = 0;
};

class LastWords : public Singleton<LastWords>
{
public:
    explicit LastWords(token /*token*/) { printLine(u"constructed"_s); }
    ~LastWords() { printLine(u"destroyed"_s); }
};

const ProcessTask UseLastWords("use-last-words", [] {
    Singleton<LastWords>::instance();
    Singleton<LastWords>::instance();
    printLine(u"used"_s);
});

template <typename T>
concept MadeFromBraces = requires
{
    T({});
};

static_assert(!std::is_default_constructible_v<Slow::token>);
static_assert(!std::is_aggregate_v<Slow::token>);
static_assert(!MadeFromBraces<Slow>);
static_assert(!std::is_default_constructible_v<Slow>);
static_assert(std::is_constructible_v<Slow, Slow::token>, "only the token is missing");
static_assert(!std::is_constructible_v<Slow, Reluctant::token>);
static_assert(!std::is_default_constructible_v<Singleton<Slow>>, "a base only");
static_assert(std::is_same_v<decltype(&Slow::instance), Slow& (*)()>);

} // namespace

TEST(Singleton, ThreadsThatComeDuringConstructionWaitForTheOneObject)
{
    constexpr int Threads = 8;
    std::atomic<int> calls = 0;
    std::atomic<int> returns = 0;
    std::vector<Slow*> objects(Threads);
    std::vector<std::thread> threads;
    threads.reserve(objects.size());
    for (Slow*& object : objects) {
        threads.emplace_back([&] {
            ++calls;
            Slow& slow = Singleton<Slow>::instance();
            EXPECT_TRUE(slow.isConstructed);
            object = &slow;
            ++returns;
        });
    }
    Slow::begun.wait();
    while (calls < Threads) {
        std::this_thread::yield();
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(50)); // time for a thread that would not wait to return
    EXPECT_EQ(returns, 0);

    Slow::mayEnd.count_down();
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(returns, Threads);
    EXPECT_EQ(Slow::constructions, 1);
    EXPECT_EQ(objects, std::vector<Slow*>(Threads, &Singleton<Slow>::instance()));
}

TEST(Singleton, ConstructorThatThrowsIsTriedAgainByTheNextCall)
{
    EXPECT_THROW(Singleton<Reluctant>::instance(), std::runtime_error);
    EXPECT_THROW(Singleton<Reluctant>::instance(), std::runtime_error);
    EXPECT_EQ(Reluctant::destructions, 0);

    const Reluctant* object = &Singleton<Reluctant>::instance();
    EXPECT_EQ(Reluctant::attempts, 3);
    EXPECT_EQ(&Singleton<Reluctant>::instance(), object);
    EXPECT_EQ(Reluctant::attempts, 3);
}

TEST(Singleton, ObjectIsDestroyedOnceAtProcessExit)
{
    EXPECT_EQ(UseLastWords.run().lines, QStringList({u"constructed"_s, u"used"_s, u"destroyed"_s}));
}
