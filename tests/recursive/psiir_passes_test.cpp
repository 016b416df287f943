// The passes that blocks are made of: those of samples of another type against those of the type that is computed in,
// and cascades, whose sections go side by side, against sections that go one after the other.
#include "levels/recursive/psiir.h"
#include "support/fpstate.h"
#include "support/iir_stream.h"

namespace tarn::test {
namespace {

// The kernels of a tail, and those of its table's type.
template <class T, class S>
struct Passes {
    using Element = T;
    using Sample = S;
    void (*x)(const S*, T*, int, const T*, int);
    void (*y)(const T*, T*, S*, int, const T*, int, int);
    void (*two)(const S*, T*, S*, IirFields<T>*, int, int);
    void (*plainX)(const T*, T*, int, const T*, int);
    void (*plainY)(const T*, T*, int, const T*, int);
    void (*plainTwo)(const T*, T*, IirFields<T>*, int);
};

template <class S, class T>
std::vector<S> asSamples(const T* values, std::size_t n, int scaleFactor)
{
    const auto part = [=](auto value) {
        using P = IirPart<S>;
        if constexpr (std::is_floating_point_v<P>)
            return static_cast<P>(value);
        else
            return static_cast<P>(
                std::clamp<double>(std::nearbyint(std::ldexp(static_cast<double>(value), -scaleFactor)),
                                   std::numeric_limits<P>::lowest(), std::numeric_limits<P>::max()));
    };
    std::vector<S> samples;
    for (std::size_t i = 0; i < n; ++i) {
        if constexpr (ComplexElement<S>)
            samples.push_back({part(values[i].re), part(values[i].im)});
        else
            samples.push_back(part(values[i]));
    }
    return samples;
}

template <class T, class S>
std::vector<T> asElements(const std::vector<S>& samples)
{
    return asTaps<T>(toNumbers(samples), 1);
}

template <class F, class K>
void expectPasses(const K& kernels, int order, int count, int scaleFactor)
{
    using T = typename K::Element;
    using S = typename K::Sample;
    const auto n = static_cast<std::size_t>(count);
    const auto history = static_cast<std::size_t>(order);
    const IirOwner<F> state(IirForm::order,
                            asTaps<typename F::Given>(randomIirTaps(true, order, ComplexElement<S>, 3)));

    const auto signal = randomValues<S>(n + history, 4, Values::unit);
    const GuardedArray<S> in(std::span<const S>(signal), Placement::atEnd());
    GuardedArray<T> values(n, Placement::atEnd());
    kernels.x(in.data(), values.data(), count, state->pTapsX, order);
    std::vector<T> expected(n);
    kernels.plainX(asElements<T>(signal).data(), expected.data(), count, state->pTapsX, order);
    EXPECT_TRUE(arraysMatch(expected, values)) << order << ", " << count;

    const auto before = randomValues<T>(history, 5, Values::unit);
    GuardedArray<T> kept(n + history, Placement::atEnd());
    std::vector<T> plain(n + history);
    for (std::size_t i = 0; i < history; ++i)
        kept.set(i, plain[i] = before[i]);
    GuardedArray<S> out(n, Placement::atEnd());
    kernels.y(values.data(), kept.data() + order, out.data(), count, state->pTapsY, order, scaleFactor);
    kernels.plainY(values.data(), plain.data() + order, count, state->pTapsY, order);
    EXPECT_TRUE(arraysMatch(plain, kept)) << order << ", " << count;
    EXPECT_TRUE(arraysMatch(asSamples<S>(plain.data() + order, n, scaleFactor), out)) << order << ", " << count;
}

template <class F, class K>
void expectFirstTwo(const K& kernels)
{
    using T = typename K::Element;
    using S = typename K::Sample;
    const auto line = randomValues<T>(4, 6, Values::unit);
    const IirOwner<F> state(IirForm::biquads, asTaps<typename F::Given>(randomIirTaps(false, 2, ComplexElement<S>, 3)),
                            line.data());
    const auto signal = randomValues<S>(2, 4, Values::unit);
    for (int section : {0, 1}) {
        T kept[2], plain[2];
        GuardedArray<S> out(2, Placement::atEnd());
        kernels.two(signal.data(), kept, out.data(), state.get(), section, 1);
        kernels.plainTwo(asElements<T>(signal).data(), plain, state.get(), section);
        EXPECT_TRUE(arraysMatch<T>(plain, kept, 2));
        EXPECT_TRUE(arraysMatch(asSamples<S>(plain, 2, F::scaled ? 1 : 0), out));
    }
}

template <class F, class K>
void expectAllPasses(const K& kernels)
{
    const int scale = F::scaled ? 1 : 0;
    for (int order : {1, 2, 3, 4, 5, 9})
        for (int count : {1, 3, 4, 7, 8, 22, 37})
            expectPasses<F>(kernels, order, count, scale);
    expectPasses<F>(kernels, 40, 984, scale); // a whole chunk, and more than one window
    expectFirstTwo<F>(kernels);
}

#define TARN_IIR_PASSES_OF(TAIL, OWN, T, S)                                                                         \
    Passes<T, S>                                                                                                    \
    {                                                                                                               \
        ownsIIRxAR##TAIL, ownsIIRyAR##TAIL, ownsIIRBQTwo##TAIL, ownsIIRxAR##OWN, ownsIIRyAR##OWN, ownsIIRBQTwo##OWN \
    }

TEST(IirPassesTest, ConvertSamples)
{
    expectAllPasses<IirTail32f_16s>(TARN_IIR_PASSES_OF(32f_16s, _32f, Tarn32f, Tarn16s));
    expectAllPasses<IirTail32fc_16sc>(TARN_IIR_PASSES_OF(32fc_16sc, _32fc, Tarn32fc, Tarn16sc));
    expectAllPasses<IirTail64f_32f>(TARN_IIR_PASSES_OF(64f_32f, _64f, Tarn64f, Tarn32f));
    expectAllPasses<IirTail64fc_32fc>(TARN_IIR_PASSES_OF(64fc_32fc, _64fc, Tarn64fc, Tarn32fc));
    expectAllPasses<IirTail64f_32s>(TARN_IIR_PASSES_OF(64f_32s, _64f, Tarn64f, Tarn32s));
    expectAllPasses<IirTail64fc_32sc>(TARN_IIR_PASSES_OF(64fc_32sc, _64fc, Tarn64fc, Tarn32sc));
    expectAllPasses<IirTail64f_16s>(TARN_IIR_PASSES_OF(64f_16s, _64f, Tarn64f, Tarn16s));
    expectAllPasses<IirTail64fc_16sc>(TARN_IIR_PASSES_OF(64fc_16sc, _64fc, Tarn64fc, Tarn16sc));
}

// A section has passes of its own, which do what those of order two do.
template <class F, class T, class S>
void expectSectionPasses(void (*xBq)(const S*, T*, int, const T*), void (*yBq)(const T*, T*, S*, int, const T*, int),
                         void (*x)(const S*, T*, int, const T*, int),
                         void (*y)(const T*, T*, S*, int, const T*, int, int))
{
    const IirOwner<F> state(IirForm::biquads, asTaps<T>(randomIirTaps(false, 1, false, 3)));
    for (int n : {1, 6, 29}) {
        const auto count = static_cast<std::size_t>(n);
        const auto signal = randomValues<S>(count + 2, 4, Values::unit);
        std::vector<T> values(count), expected(count);
        xBq(signal.data(), values.data(), n, state->pTapsX);
        x(signal.data(), expected.data(), n, state->pTapsX, 2);
        EXPECT_TRUE(arraysMatch<T>(expected.data(), values.data(), count));
        std::vector<T> kept(count + 2, 1), keptByOrder(count + 2, 1);
        std::vector<S> out(count), outByOrder(count);
        const int scale = F::scaled ? 1 : 0;
        yBq(values.data(), kept.data() + 2, out.data(), n, state->pTapsY, scale);
        y(values.data(), keptByOrder.data() + 2, outByOrder.data(), n, state->pTapsY, 2, scale);
        EXPECT_TRUE(arraysMatch<T>(keptByOrder.data(), kept.data(), count + 2));
        EXPECT_TRUE(arraysMatch<S>(outByOrder.data(), out.data(), count));
    }
}

TEST(IirPassesTest, SectionsHavePassesOfTheirOwn)
{
    expectSectionPasses<IirTail32f_16s>(ownsIIRxBQ_32f_16s, ownsIIRyBQ_32f_16s, ownsIIRxAR32f_16s, ownsIIRyAR32f_16s);
    expectSectionPasses<IirTail64f_32f>(ownsIIRxBQ64f_32f, ownsIIRyBQ64f_32f, ownsIIRxAR64f_32f, ownsIIRyAR64f_32f);
    expectSectionPasses<IirTail64f_32s>(ownsIIRxBQ64f_32s, ownsIIRyBQ64f_32s, ownsIIRxAR64f_32s, ownsIIRyAR64f_32s);
    expectSectionPasses<IirTail64f_16s>(ownsIIRxBQ64f_16s, ownsIIRyBQ64f_16s, ownsIIRxAR64f_16s, ownsIIRyAR64f_16s);
}

// What the two outputs before and the next three inputs weigh in the next four outputs, each rounded once.
template <class F>
void expectSectionTables()
{
    using T = typename F::Element;
    using iir::Wide;
    constexpr int sections = 12, rows = 5, columns = 4;
    const IirOwner<F> state(IirForm::biquads, asTaps<T>(randomIirTaps(false, sections, false, 11)));
    for (int s = 0; s < sections; ++s) {
        const T* const taps = state->pTaps + 5 * s;
        for (int row = 0; row < rows; ++row) {
            Wide last = row == 0, secondLast = row == 1;
            for (int column = 0; column < columns; ++column) {
                const Wide input = column == row - 2;
                const Wide y = input - Wide{taps[3]} * last - Wide{taps[4]} * secondLast;
                secondLast = std::exchange(last, y);
                const Wide ulp = y == 0 ? 0 : std::ldexp(Wide{std::numeric_limits<T>::epsilon()}, std::ilogb(y));
                const Wide weight = state->pTapsY[rows * columns * s + columns * row + column];
                EXPECT_LE(static_cast<double>(std::abs(weight - y)), static_cast<double>(0.51L * ulp))
                    << "section " << s << ", row " << row << ", column " << column;
            }
        }
    }
}

TEST(IirPassesTest, TablesOfSectionsAreRoundedOnce)
{
    expectSectionTables<IirTail32f>();
    expectSectionTables<IirTail64f>();
}

// -- Sections side by side --------------------------------------------------------------------------------------------

// A cascade gives what its sections give one after the other, to the bit, delay lines included; in place, too.
template <class F>
void expectSideBySide()
{
    using T = typename F::Element;
    for (int sections = 2; sections <= 9; ++sections) {
        const auto count = static_cast<std::size_t>(sections);
        const auto given = asTaps<T>(randomIirTaps(false, sections, ComplexElement<T>, 7));
        const auto line = randomValues<T>(2 * count, 8, Values::unit);
        for (int len :
             {4 * sections + 1, 4 * sections + 2, 4 * sections + 3, 4 * sections + 4, 4 * sections + 9, 1024}) {
            const auto signal = randomValues<T>(static_cast<std::size_t>(len), 9, Values::unit);
            auto expected = signal;
            std::vector<T> lines(2 * count);
            for (std::size_t s = 0; s < count; ++s) {
                const std::vector<T> one(given.begin() + static_cast<std::ptrdiff_t>(6 * s),
                                         given.begin() + static_cast<std::ptrdiff_t>(6 * s + 6));
                const IirOwner<F> state(IirForm::biquads, one, &line[2 * s]);
                F::inPlace(expected.data(), len, state.get());
                F::getDlyLine(state.get(), &lines[2 * s]);
            }
            const IirOwner<F> cascade(IirForm::biquads, given, line.data());
            const GuardedArray<T> in(std::span<const T>(signal), Placement::atEnd());
            GuardedArray<T> out(signal.size(), Placement::atEnd());
            ASSERT_EQ(tarnStsNoErr, F::filter(in.data(), out.data(), len, cascade.get()));
            EXPECT_TRUE(arraysMatch(expected, out)) << sections << " sections, " << len;
            std::vector<T> left(2 * count);
            F::getDlyLine(cascade.get(), left.data());
            EXPECT_TRUE(arraysMatch<T>(lines.data(), left.data(), left.size())) << sections << " sections, " << len;
            F::setDlyLine(cascade.get(), line.data());
            auto inPlace = signal;
            F::inPlace(inPlace.data(), len, cascade.get());
            EXPECT_TRUE(arraysMatch<T>(expected.data(), inPlace.data(), inPlace.size())) << sections << ", in place";
        }
    }
}

TEST(IirSectionsTest, SideBySideAreThoseOneAfterTheOther)
{
    expectSideBySide<IirTail32f>();
    expectSideBySide<IirTail64f>();
    expectSideBySide<IirTail32fc>();
}

} // namespace
} // namespace tarn::test
