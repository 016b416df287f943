// Helpers of a call. The library's own are hidden, so that the test has a crew of its own.
#include "frame/crew.cpp"
#include "support/processes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <thread>
#include <vector>

namespace tarn::test {
namespace {

constexpr int mostWorkers = 4;

struct Count {
    std::vector<int> runs;
    std::vector<std::atomic<int>> ofWorker = std::vector<std::atomic<int>>(mostWorkers);
    std::atomic<bool> isStrange{false};

    // One call whose pieces take `spins` rounds of nothing.
    Count(int pieces, int workers, int spins) : runs(static_cast<std::size_t>(pieces))
    {
        crew::share(pieces, workers, [&](int piece, int worker) {
            if (piece < 0 || piece >= pieces || worker < 0 || worker >= workers || (piece == 0 && worker != 0)) {
                isStrange = true;
                return;
            }
            ++runs[static_cast<std::size_t>(piece)];
            ++ofWorker[static_cast<std::size_t>(worker)];
            for (int i = 0; i < spins; ++i)
                asm volatile("");
        });
    }
    bool eachOnce() const
    {
        return !isStrange && std::all_of(runs.begin(), runs.end(), [](int n) { return n == 1; });
    }
};

TEST(CrewTest, RunsEveryPieceOnce)
{
    for (const int workers : {1, 2, 3, mostWorkers})
        for (const int pieces : {1, 2, 3, 5, 64, 1000})
            for (const int spins : {0, 1000})
                EXPECT_TRUE(Count(pieces, workers, spins).eachOnce()) << pieces << " pieces, " << workers << " workers";
}

TEST(CrewTest, HelpsWhoeverComesFirst)
{
    std::atomic<int> wrong{0};
    std::vector<std::thread> callers;
    for (int i = 0; i < 4; ++i) {
        callers.emplace_back([&] {
            for (int k = 0; k < 50; ++k)
                wrong += Count(20, 3, 200).eachOnce() ? 0 : 1;
        });
    }
    for (auto& caller : callers)
        caller.join();
    EXPECT_EQ(0, wrong);
}

// Within a piece there is nobody else to help.
TEST(CrewTest, RunsWhatAPieceShares)
{
    std::atomic<int> wrong{0};
    crew::share(8, 2, [&](int, int) { wrong += Count(8, 2, 10).eachOnce() ? 0 : 1; });
    EXPECT_EQ(0, wrong);
}

TEST(CrewTest, HasHelpersThatWork)
{
    // A machine may keep a helper waiting through a call, but not through a minute of them.
    int helped = 0;
    for (int i = 0; i < 10'000 && helped == 0; ++i)
        helped = Count(100, 2, 10'000).ofWorker[1];
    EXPECT_LT(0, helped);
}

TEST(CrewTest, LeavesAForkedChildAlone)
{
    EXPECT_TRUE(Count(100, 3, 1000).eachOnce());
    EXPECT_EQ(0, statusOfChild([] {
                  const Count count(100, 3, 1000);
                  return !count.eachOnce() + 2 * (count.ofWorker[0] != 100) + 4 * (threadsOfProcess() != 1);
              }));
    EXPECT_TRUE(Count(100, 3, 1000).eachOnce());
}

// A child that ends as programs do, handlers and destructors included.
TEST(CrewTest, LetsAForkedChildEnd)
{
    EXPECT_TRUE(Count(100, 3, 1000).eachOnce());
    EXPECT_EQ(0, statusOfChild([] {
                  crew::endCrew();
                  return 0;
              }));
}

} // namespace
} // namespace tarn::test
