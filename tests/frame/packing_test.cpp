// The packings of real spectra, of even and odd sizes, against lists of what stands where.
#include "frame/packing.h"
#include "support/compare.h"

#include <gtest/gtest.h>

#include <vector>

namespace tarn::test {
namespace {

// R[k] is 10 k + 1, I[k] is 10 k + 2; what a packing does not write is -1.
Tarn64f re(int k) { return 10 * k + 1; }
Tarn64f im(int k) { return 10 * k + 2; }

void addPairs(std::vector<Tarn64f>& to, int size)
{
    for (int k = 1; 2 * k < size; ++k) {
        to.push_back(re(k));
        to.push_back(im(k));
    }
}

std::vector<Tarn64f> perm(int size)
{
    std::vector<Tarn64f> all = {re(0)};
    if (size % 2 == 0)
        all.push_back(re(size / 2));
    addPairs(all, size);
    return all;
}
std::vector<Tarn64f> pack(int size)
{
    std::vector<Tarn64f> all = {re(0)};
    addPairs(all, size);
    if (size % 2 == 0)
        all.push_back(re(size / 2));
    return all;
}
std::vector<Tarn64f> ccs(int size)
{
    std::vector<Tarn64f> all = {re(0), 0};
    addPairs(all, size);
    if (size % 2 == 0) {
        all.push_back(re(size / 2));
        all.push_back(0);
    }
    return all;
}

template <class Packing>
void expectPacking(std::vector<Tarn64f> (*packed)(int))
{
    for (int size = 1; size <= 17; ++size) {
        const auto expected = packed(size);
        const auto inPerm = perm(size);
        auto finished = inPerm;
        finished.resize(expected.size() + 1, -1);
        Packing::finish(finished.data(), size);
        EXPECT_EQ(-1, finished.back()) << size;
        finished.pop_back();
        EXPECT_EQ(expected, finished) << size;

        std::vector<Tarn64f> copied(inPerm.size() + 1, -1);
        copyToPerm<Packing>(expected.data(), copied.data(), size);
        EXPECT_EQ(-1, copied.back()) << size;
        copied.pop_back();
        EXPECT_EQ(inPerm, copied) << size;

        if (size % 2 == 0) {
            EXPECT_EQ(re(size / 2), expected[static_cast<std::size_t>(Packing::positionOfLast(size))]) << size;
        }
        if (size > 2) {
            EXPECT_EQ(re(1), expected[static_cast<std::size_t>(Packing::firstPair(size))]) << size;
        }
        // Into another array, and within the one.
        std::vector<Tarn64f> other(inPerm.size(), -1);
        auto own = expected;
        for (const Tarn64f* to :
             {Packing::toPerm(expected.data(), other.data(), size), Packing::toPerm(own.data(), own.data(), size)})
            for (std::size_t i = size % 2 == 0 ? 2 : 0; i < inPerm.size(); ++i)
                EXPECT_EQ(inPerm[i], to[i]) << size << ", " << i;
    }
}

TEST(PackingTest, PutsEachValueInItsPlace)
{
    expectPacking<PermPacking>(perm);
    expectPacking<PackPacking>(pack);
    expectPacking<CcsPacking>(ccs);
}

} // namespace
} // namespace tarn::test
