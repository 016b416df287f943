// The scale rule's five steps on exact results, for elements and packs, against wide integers.
#include "frame/scale_exact.h"

#include "frame/simd_mul.h"
#include "model/scale.h"
#include "support/words.h"

namespace tarn::test {
namespace {

using model::scaled;

// Products of bytes fill 17 bits once they are rounded, so this is the case that has no room at all.
struct ByteProduct {
    template <class X>
    auto operator()(X a, X b) const
    {
        return FullWidth{mulWidened(a, b)};
    }
};

struct WideProduct {
    template <class X, class Y>
    auto operator()(X a, Y b) const
    {
        return FullWidth{mulWidened(a, b)};
    }
};

struct Sum33 {
    template <class X>
    auto operator()(X a, X b) const
    {
        return exactSum(a, b);
    }
};

// The case of a scale factor as an operation of elements or packs.
template <class Cases, class X, class Y>
auto atScale(int s, X a, Y b)
{
    if (s == 0)
        return typename Cases::Plain{}(a, b);
    if (s == 1)
        return typename Cases::One{}(a, b);
    if (s > 1)
        return typename Cases::Pos{{s}}(a, b);
    return typename Cases::Neg{{-s}}(a, b);
}

template <class D, class A, class B, class Cases, class Exact>
void expectRule(int down, int up, Exact exact)
{
    for (int s = -up; s <= down; ++s) {
        SCOPED_TRACE(s);
        expectAgreement<A, B>([s](auto a, auto b) { return atScale<Cases>(s, a, b); });
        const auto columns = makeColumns<A, B>();
        for (std::size_t i = 0; i < std::get<0>(columns).size(); ++i) {
            const A a = std::get<0>(columns)[i];
            const B b = std::get<1>(columns)[i];
            ASSERT_EQ(scaled<D>(exact(a, b), s), atScale<Cases>(s, a, b)) << toText(a) << ' ' << toText(b);
        }
    }
    expectAgreement<A, B>(typename Cases::Sign{});
    const auto columns = makeColumns<A, B>();
    for (std::size_t i = 0; i < std::get<0>(columns).size(); ++i) {
        const A a = std::get<0>(columns)[i];
        const B b = std::get<1>(columns)[i];
        ASSERT_EQ(scaled<D>(exact(a, b), -up - 1), typename Cases::Sign{}(a, b)) << toText(a) << ' ' << toText(b);
    }
}

TEST(ScaleExact, ProductsOfBytes)
{
    expectRule<Tarn8u, Tarn8u, Tarn8u, ExactCases<Tarn8u, ByteProduct>>(16, 7,
                                                                        [](Tarn64s a, Tarn64s b) { return a * b; });
}

TEST(ScaleExact, ProductsThatFill32Bits)
{
    expectRule<Tarn16s, Tarn16u, Tarn16s, ExactCases<Tarn16s, WideProduct>>(31, 15,
                                                                            [](Tarn64s a, Tarn64s b) { return a * b; });
}

TEST(ScaleExact, ProductsOf64Bits)
{
    expectRule<Tarn32s, Tarn32s, Tarn32s, ExactCases<Tarn32s, WideProduct>>(62, 31,
                                                                            [](Tarn64s a, Tarn64s b) { return a * b; });
}

TEST(ScaleExact, SumsOf33Bits)
{
    expectRule<Tarn32s, Tarn32s, Tarn32s, ExactCases<Tarn32s, Sum33>>(32, 30,
                                                                      [](Tarn64s a, Tarn64s b) { return a + b; });
}

} // namespace
} // namespace tarn::test
