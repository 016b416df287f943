// Walks that report tell of every element once met, and of no other.
#include "frame/report.h"

#include "frame/walk_groups.h"
#include "frame/walk_singly.h"
#include "support/sweep.h"

namespace tarn::test {
namespace {

// Negates, and notes what is 7.
template <typename Report>
struct NegatedWithNote {
    template <typename X>
    X operator()(Report& report, X x) const
    {
        const auto found = equal(x, splat<X>(7));
        if constexpr (std::is_same_v<Report, Met>)
            report.note(found);
        else
            report = report || anyOf(found);
        return sub(splat<X>(0), x);
    }
};

template <typename T, typename Report, typename Walk>
void expectNotes(Walk walkIt)
{
    for (int len = 1; len <= 150; ++len) {
        for (int place = -1; place < len; place += place < 0 || len <= 70 ? 1 : 5) {
            std::vector<T> src(static_cast<std::size_t>(len), T{3});
            if (place >= 0)
                src[static_cast<std::size_t>(place)] = T{7};
            std::vector<T> dst(src.size());
            EXPECT_EQ(place >= 0, walkIt(dst.data(), len, static_cast<const T*>(src.data())))
                << "len " << len << ", place " << place;
            for (int i = 0; i < len; ++i)
                ASSERT_EQ(static_cast<T>(i == place ? -7 : -3), dst[static_cast<std::size_t>(i)])
                    << "len " << len << ", place " << i;
        }
    }
}

template <typename T, typename Report>
void expectNotesOfWalk()
{
    expectNotes<T, Report>([](T* dst, Index len, const T* src) {
        Report report{};
        walk(dst, len, reportingTo(report, NegatedWithNote<Report>{}), src);
        if constexpr (std::is_same_v<Report, Met>)
            return report.any();
        else
            return report;
    });
}

TEST(Report, AnElementAtEveryPlace)
{
    expectNotesOfWalk<Tarn8u, Met>();
    expectNotesOfWalk<Tarn16s, Met>();
    expectNotesOfWalk<Tarn32f, Met>();
    expectNotesOfWalk<Tarn64f, Met>();
    expectNotesOfWalk<Tarn16s, bool>();
    expectNotesOfWalk<Tarn32f, bool>();
}

TEST(Report, FromGroupsAndFromWhatIsLeft)
{
    expectNotes<Tarn32f, Met>([](Tarn32f* dst, Index len, const Tarn32f* src) {
        Met met;
        const auto operation = reportingTo(met, NegatedWithNote<Met>{});
        walkGroups<8>(dst, len, len > 5 ? 3 : 0, operation, operation, src);
        return met.any();
    });
}

struct FirstNegative {
    Tarn32s operator()(Tarn32s& first, Tarn32s x) const
    {
        if (first == 0 && x < 0)
            first = x;
        return x;
    }
    template <int N>
    Pack<Tarn32s, N> operator()(Tarn32s& first, Pack<Tarn32s, N> x) const
    {
        return eachElement([&](Tarn32s element) { return (*this)(first, element); }, x);
    }
};

// Groups are visited in order, so that a report can keep the first of several.
TEST(Report, TheFirstOfSeveral)
{
    for (int len = 1; len <= 70; ++len) {
        for (int from = 0; from < len; ++from) {
            std::vector<Tarn32s> values(static_cast<std::size_t>(len), 1);
            for (int i = from; i < len; i += 3)
                values[static_cast<std::size_t>(i)] = -1 - i;
            Tarn32s first = 0;
            const auto operation = reportingTo(first, FirstNegative{});
            walkGroups<4>(values.data(), len, len % 3, operation, operation,
                          static_cast<const Tarn32s*>(values.data()));
            EXPECT_EQ(-1 - from, first) << "len " << len;
        }
    }
}

// The results and the status of a whole sweep: odd addresses, both ends, in place.
TEST(Report, AtEveryAddress)
{
    auto columns = makeColumns<Tarn16s>(Values::random);
    for (std::size_t i = 0; i < std::get<0>(columns).size(); ++i)
        std::get<0>(columns)[i] = static_cast<Tarn16s>(i % 101 == 0 ? 7 : i % 1009 + 8);
    sweepElementwise<Tarn16s, Tarn16s>(
        [](const Tarn16s* src, Tarn16s* dst, int len) {
            Met met;
            walk(dst, len, reportingTo(met, NegatedWithNote<Met>{}), src);
            return met.any() ? tarnStsDivByZero : tarnStsNoErr;
        },
        [](Tarn16s x) {
            return Outcome<Tarn16s>{static_cast<Tarn16s>(-x), x == 7 ? tarnStsDivByZero : tarnStsNoErr};
        },
        {}, columns);
}

} // namespace
} // namespace tarn::test
