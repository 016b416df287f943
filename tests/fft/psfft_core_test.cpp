// The kernels of the power-of-two transforms called as they are: cores, working arrangement, recombination, columns.
#include "levels/fft/psfft.h"
#include "model/fft.h"
#include "support/compare.h"
#include "support/guarded.h"
#include "tarns/memory.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>
#include <random>

namespace tarn::test {
namespace {

// The kernels of a precision under one name.
template <class T>
struct Kernel;
#define TARN_TEST_KERNELS(T)                                                                                       \
    template <>                                                                                                    \
    struct Kernel<Tarn##T> {                                                                                       \
        using Pair = Tarn##T##c;                                                                                   \
        static constexpr auto base = tarns_createTabTwdBase_##T;                                                   \
        static constexpr auto stages = tarns_createTabTwd_L1_##T;                                                  \
        static constexpr auto realRec = tarns_createTabTwdRealRec_##T;                                             \
        static constexpr auto ccsRec = tarns_createTabTwdCcsRec_##T;                                               \
        static constexpr auto recombineReal = tarns_cRealRecombine_##T;                                            \
        static constexpr auto recombineCcs = tarns_cCcsRecombine_##T;                                              \
        static constexpr auto scale = tarns_rbMpy1_##T;                                                            \
        static constexpr auto merge = tarns_cFftBlkMergeMpy_##T##c;                                                \
        static constexpr auto split = tarns_cFftBlkSplit_##T##c;                                                   \
        static constexpr auto mergeParts = tarns_crFftBlkMergeMpy_##T;                                             \
        static constexpr auto splitParts = tarns_crFftBlkSplit_##T;                                                \
        static auto reading(bool fwd) { return fwd ? tarns_cRadix4FwdNorm_##T##c : tarns_cRadix4InvNorm_##T##c; }  \
        static auto inPlace(bool fwd) { return fwd ? tarns_cRadix4Fwd_##T##c : tarns_cRadix4Inv_##T##c; }          \
        static auto readingParts(bool fwd) { return fwd ? tarns_crRadix4FwdNorm_##T : tarns_crRadix4InvNorm_##T; } \
        static auto inPlaceParts(bool fwd) { return fwd ? tarns_crRadix4Fwd_##T : tarns_crRadix4Inv_##T; }         \
    };
TARN_TEST_KERNELS(32f)
TARN_TEST_KERNELS(64f)

struct FreeBlock {
    void operator()(void* block) const { tarnsFree(block); }
};
template <class T>
using Table = std::unique_ptr<T[], FreeBlock>;

template <class T>
std::vector<T> noise(std::size_t count, unsigned seed)
{
    std::mt19937 random(seed);
    std::uniform_real_distribution<double> uniform(-1, 1);
    std::vector<T> values(count);
    for (T& value : values)
        value = static_cast<T>(uniform(random));
    return values;
}

template <class T>
struct Tables {
    explicit Tables(int order)
        : base(Kernel<T>::base(order)), stages(Kernel<T>::stages(order, base.get(), order)),
          reading(tarns_createTabBitRevNorm(order))
    {
    }
    Table<T> base;
    Table<T> stages;
    Table<Tarn32s> reading;
};

std::size_t reversed(std::size_t i, int bits)
{
    std::size_t result = 0;
    for (int bit = 0; bit < bits; ++bit)
        result |= (i >> bit & 1) << (bits - 1 - bit);
    return result;
}

template <class T>
class FftCore : public ::testing::Test {
};
using Precisions = ::testing::Types<Tarn32f, Tarn64f>;
TYPED_TEST_SUITE(FftCore, Precisions);

TYPED_TEST(FftCore, AllCoresDoTheSameArithmetic)
{
    using T = TypeParam;
    using K = Kernel<T>;
    using Pair = typename K::Pair;
    constexpr std::size_t group = 16 / sizeof(T);
    const int last = sizeof(T) == 4 ? 16 : 14;
    for (int order = 3; order <= last; ++order)
        for (bool forward : {true, false}) {
            const int N = 1 << order;
            const auto size = static_cast<std::size_t>(N);
            const Tables<T> tables(order);
            const std::vector<T> src = noise<T>(2 * size, 3);
            GuardedArray<T> work(2 * size);

            // Natural order through the table, to an aligned destination that needs no work area: against the model.
            GuardedArray<T> expected(2 * size);
            K::reading(forward)(reinterpret_cast<const Pair*>(src.data()), reinterpret_cast<Pair*>(expected.data()), N,
                                tables.stages.get(), tables.reading.get(), nullptr);
            std::vector<model::Bin> bins(size);
            for (std::size_t i = 0; i < size; ++i)
                bins[i] = {src[2 * i], src[2 * i + 1]};
            bins = model::transform(bins, forward ? -1 : 1);
            const double tolerance = 4 * std::numeric_limits<T>::epsilon() * std::sqrt(N) * order;
            for (std::size_t i = 0; i < size; ++i) {
                ASSERT_NEAR(static_cast<double>(bins[i].re), static_cast<double>(expected.get(2 * i)), tolerance);
                ASSERT_NEAR(static_cast<double>(bins[i].im), static_cast<double>(expected.get(2 * i + 1)), tolerance);
            }

            // From reversed order in place, aligned and not, back to pairs or left in the working arrangement.
            std::vector<T> reversedPairs(2 * size);
            std::vector<T> arranged(2 * size);
            for (std::size_t i = 0; i < size; ++i)
                for (std::size_t part = 0; part < 2; ++part) {
                    reversedPairs[2 * reversed(i, order) + part] = src[2 * i + part];
                    arranged[2 * group * (i / group) + i % group + part * group] = expected.get(2 * i + part);
                }
            for (unsigned offset : {0u, 4u, 7u})
                for (int interleave : {1, 0, 2}) {
                    GuardedArray<T> data(reversedPairs, Placement::offset(offset));
                    K::inPlace(forward)(reinterpret_cast<Pair*>(data.data()), N, tables.stages.get(),
                                        offset == 0 ? nullptr : work.data(), interleave);
                    const T* wanted = interleave == 1 ? expected.data() : arranged.data();
                    ASSERT_TRUE(arraysMatch<T>(wanted, data.bytes(), 2 * size))
                        << "order " << order << " interleave " << interleave << " offset " << offset;
                }

            // Parts, from natural order and from reversed order.
            std::vector<T> re(size), im(size), wantedRe(size), wantedIm(size), revRe(size), revIm(size);
            for (std::size_t i = 0; i < size; ++i) {
                re[i] = src[2 * i];
                im[i] = src[2 * i + 1];
                wantedRe[i] = expected.get(2 * i);
                wantedIm[i] = expected.get(2 * i + 1);
                revRe[i] = reversedPairs[2 * i];
                revIm[i] = reversedPairs[2 * i + 1];
            }
            GuardedArray<T> dstRe(size, Placement::offset(4));
            GuardedArray<T> dstIm(size, Placement::offset(16));
            K::readingParts(forward)(re.data(), im.data(), dstRe.data(), dstIm.data(), N, tables.stages.get(),
                                     tables.reading.get(), work.data());
            EXPECT_TRUE(arraysMatch(wantedRe, dstRe)) << "order " << order;
            EXPECT_TRUE(arraysMatch(wantedIm, dstIm)) << "order " << order;
            GuardedArray<T> ownRe(revRe, Placement::offset(1));
            GuardedArray<T> ownIm(revIm, Placement::offset(0));
            K::inPlaceParts(forward)(ownRe.data(), ownIm.data(), N, tables.stages.get(), work.data());
            EXPECT_TRUE(arraysMatch(wantedRe, ownRe)) << "order " << order;
            EXPECT_TRUE(arraysMatch(wantedIm, ownIm)) << "order " << order;
        }
}

TYPED_TEST(FftCore, ScalesAnyStretchInPlace)
{
    using T = TypeParam;
    for (std::size_t len = 1; len <= 70; ++len)
        for (unsigned offset = 0; offset < 16; ++offset) {
            const std::vector<T> values = noise<T>(len, 9);
            std::vector<T> expected = values;
            for (T& value : expected)
                value *= T(0.3);
            GuardedArray<T> data(values, Placement::offset(offset));
            Kernel<T>::scale(T(0.3), data.data(), static_cast<int>(len));
            ASSERT_TRUE(arraysMatch(expected, data)) << "length " << len << " offset " << offset;
        }
}

// Slots k and M - k, in the words of the definition.
template <class T>
void recombineReal(std::vector<T>& x, std::size_t M, const T* base)
{
    const std::size_t quarter = M / 2;
    x[M + 1] = -x[M + 1];
    for (std::size_t k = 1; k < M / 2; ++k) {
        const T A = T(0.5) * base[quarter - k];
        const T B = T(-0.5) * base[k] + T(0.5);
        const T r1 = x[2 * k], i1 = x[2 * k + 1], r2 = x[2 * (M - k)], i2 = x[2 * (M - k) + 1];
        const T a = r1 - r2, b = i1 + i2;
        const T Q = A * b + B * a, P = B * b - A * a;
        x[2 * k] = r2 + Q;
        x[2 * k + 1] = P - i2;
        x[2 * (M - k)] = r1 - Q;
        x[2 * (M - k) + 1] = P - i1;
    }
}
template <class T>
void recombineCcs(std::vector<T>& x, std::size_t M, const T* base)
{
    const std::size_t quarter = M / 2;
    x[M] = 2 * x[M];
    x[M + 1] = -2 * x[M + 1];
    for (std::size_t k = 1; k < M / 2; ++k) {
        const T A = base[quarter - k], B = -base[k];
        const T r1 = x[2 * k], i1 = x[2 * k + 1], r2 = x[2 * (M - k)], i2 = x[2 * (M - k) + 1];
        const T a = r1 - r2, c = r1 + r2, b = i1 + i2, e = i1 - i2;
        const T Q = B * a - A * b, P = B * b + A * a;
        x[2 * k] = c + Q;
        x[2 * k + 1] = e + P;
        x[2 * (M - k)] = c - Q;
        x[2 * (M - k) + 1] = P - e;
    }
}

TYPED_TEST(FftCore, RecombinationFollowsItsFormula)
{
    using T = TypeParam;
    using K = Kernel<T>;
    for (int order = 4; order <= 11; ++order)
        for (unsigned offset : {0u, 4u, 8u, 5u}) {
            const std::size_t M = (std::size_t{1} << order) / 2;
            const Table<T> base(K::base(order));
            const Table<T> realTable(K::realRec(order, base.get()));
            const Table<T> ccsTable(K::ccsRec(order, base.get()));
            const std::vector<T> src = noise<T>(2 * M, 21);
            const int slots = static_cast<int>(M);

            auto expected = src;
            recombineReal(expected, M, base.get());
            GuardedArray<T> data(src, Placement::offset(offset));
            K::recombineReal(data.data(), slots, 1, realTable.get());
            EXPECT_TRUE(arraysMatch(expected, data)) << "order " << order;

            expected = src;
            recombineCcs(expected, M, base.get());
            GuardedArray<T> own(src, Placement::offset(offset));
            K::recombineCcs(own.data(), own.data(), slots, -1, ccsTable.get());
            EXPECT_TRUE(arraysMatch(expected, own)) << "order " << order;
            // From array to array slot 0 of the destination is the caller's.
            GuardedArray<T> from(src, Placement::offset(offset));
            GuardedArray<T> to(2 * M, Placement::offset(3));
            to.set(0, expected[0]);
            to.set(1, expected[1]);
            K::recombineCcs(from.data(), to.data(), slots, -1, ccsTable.get());
            EXPECT_TRUE(arraysMatch(expected, to)) << "order " << order;
            EXPECT_TRUE(arraysMatch(src, from)) << "the source has changed";
        }
}

TYPED_TEST(FftCore, RecombinationOfOneAndTwoSlots)
{
    using T = TypeParam;
    using K = Kernel<T>;
    GuardedArray<T> one(std::vector<T>{5, 6}, Placement::offset(0));
    K::recombineReal(one.data(), 1, 1, nullptr);
    K::recombineCcs(one.data(), one.data(), 1, -1, nullptr);
    EXPECT_TRUE(arraysMatch(std::vector<T>{5, 6}, one));
    GuardedArray<T> two(std::vector<T>{5, 6, 7, 8}, Placement::offset(0));
    K::recombineReal(two.data(), 2, 1, nullptr);
    EXPECT_TRUE(arraysMatch(std::vector<T>{5, 6, 7, -8}, two));
    K::recombineCcs(two.data(), two.data(), 2, -1, nullptr);
    EXPECT_TRUE(arraysMatch(std::vector<T>{5, 6, 14, 16}, two));
}

TYPED_TEST(FftCore, ColumnsAreMergedMultipliedAndSplit)
{
    using T = TypeParam;
    using K = Kernel<T>;
    using Pair = typename K::Pair;
    constexpr std::size_t group = 16 / sizeof(T);
    constexpr std::size_t columns = 4;
    // Where a part of a column stands among the eight reals of a row.
    const auto arranged = [](std::size_t column, std::size_t part) {
        return column / group * 2 * group + column % group + part * group;
    };
    for (std::size_t R : {std::size_t{8}, std::size_t{16}, std::size_t{64}})
        for (std::size_t C : {std::size_t{4}, std::size_t{12}})
            for (unsigned offset : {0u, 4u, 9u}) {
                const std::vector<T> grid = noise<T>(2 * columns * R, 4);
                const std::vector<T> rows = noise<T>(2 * C * R, 5);
                for (int forward : {1, 0}) {
                    std::vector<T> expected(2 * columns * R);
                    std::vector<T> re(C * R), im(C * R);
                    for (std::size_t r = 0; r < R; ++r)
                        for (std::size_t c = 0; c < columns; ++c) {
                            const T xr = rows[2 * C * r + arranged(c, 0)], xi = rows[2 * C * r + arranged(c, 1)];
                            const T wr = grid[8 * r + arranged(c, 0)], wi = grid[8 * r + arranged(c, 1)];
                            re[C * r + c] = xr;
                            im[C * r + c] = xi;
                            T* value = &expected[2 * (R * c + r)];
                            value[0] = forward != 0 ? xr * wr - xi * wi : xr * wr + xi * wi;
                            value[1] = forward != 0 ? xr * wi + xi * wr : xi * wr - xr * wi;
                        }
                    GuardedArray<T> data(rows, Placement::offset(offset));
                    GuardedArray<T> work(expected.size());
                    GuardedArray<T> factors(grid, Placement::offset(0));
                    K::merge(reinterpret_cast<const Pair*>(data.data()), reinterpret_cast<Pair*>(work.data()),
                             factors.data(), forward, static_cast<int>(C), static_cast<int>(R));
                    EXPECT_TRUE(arraysMatch(expected, work)) << "R " << R << " C " << C;
                    GuardedArray<T> dataRe(re, Placement::offset(offset));
                    GuardedArray<T> dataIm(im, Placement::offset(0));
                    GuardedArray<T> ofParts(expected.size());
                    K::mergeParts(dataRe.data(), dataIm.data(), reinterpret_cast<Pair*>(ofParts.data()), factors.data(),
                                  forward, static_cast<int>(C), static_cast<int>(R));
                    EXPECT_TRUE(arraysMatch(expected, ofParts)) << "R " << R << " C " << C;
                }

                // Four areas in the working arrangement, back to rows.
                const std::vector<T> areas = noise<T>(2 * columns * R, 6);
                std::vector<T> pairs = rows, working = rows, re(C * R), im(C * R);
                for (std::size_t r = 0; r < R; ++r)
                    for (std::size_t c = 0; c < columns; ++c)
                        for (std::size_t part = 0; part < 2; ++part) {
                            const T value = areas[2 * R * c + arranged(r, part)];
                            pairs[2 * C * r + 2 * c + part] = value;
                            working[2 * C * r + arranged(c, part)] = value;
                            (part == 0 ? re : im)[C * r + c] = value;
                        }
                for (int interleave : {1, 0}) {
                    GuardedArray<T> data(rows, Placement::offset(offset));
                    GuardedArray<T> work(areas, Placement::offset(0));
                    K::split(reinterpret_cast<Pair*>(data.data()), reinterpret_cast<const Pair*>(work.data()),
                             static_cast<int>(C), static_cast<int>(R), interleave);
                    EXPECT_TRUE(arraysMatch(interleave == 1 ? pairs : working, data)) << "R " << R << " C " << C;
                }
                GuardedArray<T> dataRe(std::vector<T>(C * R), Placement::offset(offset));
                GuardedArray<T> dataIm(std::vector<T>(C * R), Placement::offset(1));
                GuardedArray<T> work(areas, Placement::offset(0));
                K::splitParts(dataRe.data(), dataIm.data(), reinterpret_cast<const Pair*>(work.data()),
                              static_cast<int>(C), static_cast<int>(R));
                EXPECT_TRUE(arraysMatch(re, dataRe));
                EXPECT_TRUE(arraysMatch(im, dataIm));
            }
}

} // namespace
} // namespace tarn::test
