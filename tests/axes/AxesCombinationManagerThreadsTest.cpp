#include <axes/AxesCombinationManager.h>

#include <axes/Records.h>
#include <config/ConfigRepresentation.h>
#include <support/QtPrinters.h>

#include <gtest/gtest.h>

#include <atomic>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr int Names = 8;

QString name(int number)
{
    return u"array "_s + QString::number(number);
}

/// Pairs every array with every other one of the same parity, twice; the second one of a pair is orthonormal.
AxesCombinationManager pairedByParity()
{
    AxesCombinationManager manager;
    for (const bool orthonormal : {false, true}) {
        for (int x = 0; x < Names; ++x) {
            for (int y = x % 2; y < Names; y += 2) {
                manager.append(
                    record({name(x), u"c"_s}, {name(y), u"c"_s}, QCPAxis::stLinear, QCPAxis::stLinear, orthonormal));
            }
        }
    }
    return manager;
}

/// How many answers of \p manager are wrong.
int wrongAnswers(const AxesCombinationManager& manager)
{
    int wrong = manager.getXAxesNames().size() == Names ? 0 : 1;
    for (int x = 0; x < Names; ++x) {
        QStringList yNames;
        for (int y = x % 2; y < Names; y += 2) {
            yNames.append(name(y));
        }
        wrong += manager.getYAxesNames(name(x)) == yNames ? 0 : 1;
        wrong += manager.getAxesCombinations(name(x)).size() == Names ? 0 : 1;
        for (int y = 0; y < Names; ++y) {
            const bool paired = x % 2 == y % 2;
            const AxesCombination combination = manager.getAxesCombination(name(x), name(y));
            wrong += combination.isValid() == paired && !combination.isOrthonormal() ? 0 : 1;
            const ConfigRepresentation representation(u"r"_s, name(x), name(y), u"unknown"_s, u"c"_s, false);
            wrong += manager.isRepresentationValid(&representation) == paired ? 0 : 1;
        }
    }
    return wrong;
}

} // namespace

TEST(AxesCombinationManagerThreads, ManyThreadsMayQueryOneManager)
{
    const AxesCombinationManager manager = pairedByParity();
    std::atomic<int> wrong = 0;
    std::vector<std::thread> threads;
    threads.reserve(4);
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&manager, &wrong] {
            for (int round = 0; round < 500; ++round) {
                wrong += wrongAnswers(manager);
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(wrong, 0);
}

TEST(AxesCombinationManagerThreads, EveryThreadMayChangeItsOwnCopy)
{
    const AxesCombinationManager manager = pairedByParity();
    std::atomic<int> wrong = 0;
    std::vector<std::thread> threads;
    threads.reserve(4);
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&manager, &wrong] {
            for (int round = 0; round < 100; ++round) {
                AxesCombinationManager copy(manager);
                copy.removeDuplicates();
                wrong += copy.getAxesCombinations().size() == Names * Names / 2 ? 0 : 1;
                copy.deleteAll();
                wrong += copy.getXAxesNames().isEmpty() ? 0 : 1;
                wrong += wrongAnswers(manager);
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(wrong, 0);
}
