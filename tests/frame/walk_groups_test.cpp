// Walks by position give every element the formula of its place, whatever the addresses and lengths.
#include "frame/walk_groups.h"
#include "frame/walk_singly.h"

#include "support/sweep.h"

namespace tarn::test {
namespace {

struct PlusOne {
    template <typename X>
    X operator()(X x) const
    {
        return add(x, splat<X>(1));
    }
};

struct PlusTwo {
    template <typename X>
    X operator()(X x) const
    {
        return add(x, splat<X>(2));
    }
};

template <typename T>
T plus(T x, int n)
{
    return static_cast<T>(x + static_cast<T>(n));
}

// Whole groups from the start of the array, or from `head` on.
template <int group, typename T>
std::vector<T> groupsFrom(std::size_t head, std::span<const T> src)
{
    std::vector<T> result;
    const std::size_t behind = head + (src.size() - head) / group * group;
    for (std::size_t i = 0; i < src.size(); ++i)
        result.push_back(plus(src[i], i >= head && i < behind ? 1 : 2));
    return result;
}

template <int group, typename T>
void sweepGroups()
{
    const auto call = [](const T* src, T* dst, int len) {
        walkGroups<group>(dst, len, 0, PlusOne{}, PlusTwo{}, src);
        return tarnStsNoErr;
    };
    const auto model = [](std::span<const T> src) { return groupsFrom<group>(0, src); };
    sweepElementwise<T, T>(call, model);
    sweepAliased<T>(call, model, {.depth = Depth::quick});
}

TEST(WalkGroups, FromTheStart)
{
    sweepGroups<16, Tarn8u>();
    sweepGroups<32, Tarn8u>();
    sweepGroups<8, Tarn16u>();
    sweepGroups<4, Tarn32u>();
    sweepGroups<8, Tarn32u>();
    sweepGroups<16, Tarn32f>();
    sweepGroups<2, Tarn64f>();
    sweepGroups<4, Tarn64f>();
}

// Sources and destination of different widths, and more than one source.
TEST(WalkGroups, MixedWidths)
{
    sweepElementwise<Tarn32s, Tarn16s, Tarn16s>(
        [](const Tarn16s* a, const Tarn16s* b, Tarn32s* dst, int len) {
            walkGroups<8>(
                dst, len, 0, [](auto x, auto y) { return add(widen(x), widen(y)); },
                [](Tarn16s x, Tarn16s y) { return x - y; }, a, b);
            return tarnStsNoErr;
        },
        [](std::span<const Tarn16s> a, std::span<const Tarn16s> b) {
            std::vector<Tarn32s> result;
            for (std::size_t i = 0; i < a.size(); ++i)
                result.push_back(i < a.size() / 8 * 8 ? a[i] + b[i] : a[i] - b[i]);
            return result;
        });
}

// At every address, also those at which no element lies on a boundary, and with arrays that end before it.
template <typename T, int boundary>
void expectGroupsFromBoundary()
{
    constexpr int group = 16 / sizeof(T);
    for (unsigned offset = 0; offset < 64; ++offset) {
        const unsigned gap = (boundary - offset % boundary) % boundary;
        for (std::size_t len = 1; len <= 70; ++len) {
            const GuardedArray<T> src(len, Placement::offset(offset * 7 % 64));
            GuardedArray<T> dst(len, Placement::offset(offset));
            const auto n = static_cast<Index>(len);
            walkGroups<group>(dst.data(), n, headOfGroups<boundary>(dst.data(), n), PlusOne{}, PlusTwo{},
                              static_cast<const T*>(src.data()));
            const std::size_t head = gap % sizeof(T) == 0 ? std::min(len, gap / sizeof(T)) : 0;
            const std::vector<T> values = src.copy();
            ASSERT_EQ((groupsFrom<group, T>(head, values)), dst.copy()) << "offset " << offset << ", len " << len;
        }
    }
}

TEST(WalkGroups, FromABoundaryOfTheDestination)
{
    expectGroupsFromBoundary<Tarn8u, groupBoundary>();
    expectGroupsFromBoundary<Tarn16u, groupBoundary>();
    expectGroupsFromBoundary<Tarn32u, groupBoundary>();
    expectGroupsFromBoundary<Tarn16u, 32>();
}

// One element of a group decides the formula of all of them.
struct UnlessAnyIsZero {
    template <int N>
    Pack<Tarn32s, N> operator()(Pack<Tarn32s, N> x, Pack<Tarn32s, N> y) const
    {
        return anyOf(equal(y, splat<Pack<Tarn32s, N>>(0))) ? eachElement(sub, x, y) : add(x, y);
    }
};

TEST(WalkGroups, AGroupThatIsTakenElementByElement)
{
    auto columns = makeColumns<Tarn32s, Tarn32s>(Values::random);
    for (std::size_t i = 0; i < std::get<1>(columns).size(); ++i) {
        std::get<0>(columns)[i] >>= 2;
        std::get<1>(columns)[i] = i % 13 == 0 ? 0 : std::get<1>(columns)[i] >> 2 | 1;
    }
    sweepElementwise<Tarn32s, Tarn32s, Tarn32s>(
        [](const Tarn32s* a, const Tarn32s* b, Tarn32s* dst, int len) {
            walkGroups<8>(dst, len, 0, UnlessAnyIsZero{}, bitXor, a, b);
            return tarnStsNoErr;
        },
        [](std::span<const Tarn32s> a, std::span<const Tarn32s> b) {
            std::vector<Tarn32s> result;
            const std::size_t behind = a.size() / 8 * 8;
            for (std::size_t i = 0; i < a.size(); ++i) {
                const auto group = b.subspan(i / 8 * 8, i < behind ? 8 : 0);
                const bool single = std::find(group.begin(), group.end(), 0) != group.end();
                result.push_back(i >= behind ? a[i] ^ b[i] : single ? a[i] - b[i] : a[i] + b[i]);
            }
            return result;
        },
        {}, columns);
}

} // namespace
} // namespace tarn::test
