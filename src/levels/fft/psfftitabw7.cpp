// The tables of the transforms in fixed point.
#include "levels/fft/psffti.h"

#include "levels/fft/psfft_tables.h"

using namespace tarn;
using tarn::fft::Circle;
using tarn::fft::fixedOne;

namespace {

// Stores the words of the rotation by the conjugate of (c, s).
void putRotation(Tarn16s* to, int c, int s)
{
    to[0] = to[3] = static_cast<Tarn16s>(c);
    to[1] = static_cast<Tarn16s>(s);
    to[2] = static_cast<Tarn16s>(-s);
}

} // namespace

Tarn16s* tarns_createTabTwdBase_16s(int order) { return fft::baseTable<Tarn16s>(order).release(); }

Tarn16s* tarns_createTabTwd_R4_16s(int order, const Tarn16s* base, int baseOrder)
{
    const int size = 1 << order;
    Owned<Tarn16s[]> table = allocate<Tarn16s>(4LL * size);
    if (!table) {
        return nullptr;
    }
    if (baseOrder < 2) {
        // Half turns: the base has no entry but that of the angle of 0.
        for (int k = 0; k < size; ++k) {
            putRotation(table.get() + 4 * k, k == 0 ? fixedOne : -fixedOne, 0);
        }
        return table.release();
    }
    const Circle<Tarn16s> circle(base, baseOrder, order);
    for (int k = 0; k < size; ++k) {
        const Complex<Tarn16s> w = circle.factor(k);
        putRotation(table.get() + 4 * k, w.re, -w.im);
    }
    return table.release();
}

Tarn16s* tarn::fft::createRealTable_16s(int order, const Tarn16s* base)
{
    const int quarter = (1 << order) / 4;
    Owned<Tarn16s[]> table = allocate<Tarn16s>(8LL * std::max(quarter, 1));
    if (!table) {
        return nullptr;
    }
    std::fill_n(table.get(), 8, Tarn16s{0});
    for (int k = 1; k <= quarter; ++k) {
        const int c = base[quarter - k];
        const int s = base[k];
        Tarn16s* words = table.get() + 8 * (k - 1);
        putRotation(words, fixedOne - s, c);
        putRotation(words + 4, -s, -c);
    }
    return table.release();
}
