// Sine and cosine of several arguments, each by the precise functions.
#include "frame/precise.h"
#include "frame/trigonometry.h"

#include <algorithm>

using namespace tarn;

namespace {

// Angles that are a rest already, and not so small as to be their own sine: those that the tables of transforms are
// made of. Their values come from under one guard, and with the bits that the precise functions have.
bool isRest(Tarn64f x) { return x >= 0x1p-32 && x < 0.785; }

template <typename OfRest, typename OfAny>
void takeAll(const Tarn64f* x, Tarn64f* y, int count, OfRest ofRest, OfAny ofAny)
{
    {
        const StandardArithmetic guard;
        for (int i = 0; i < count; ++i) {
            if (isRest(x[i])) {
                y[i] = ofRest({x[i], 0});
            }
        }
    }
    for (int i = 0; i < count; ++i) {
        if (!isRest(x[i])) {
            y[i] = ofAny(x[i]);
        }
    }
}

} // namespace

namespace tarn {

void sinesOf(const Tarn64f* x, Tarn64f* y, int count) { takeAll(x, y, count, precise::sineOfRest, preciseSine); }
void cosinesOf(const Tarn64f* x, Tarn64f* y, int count) { takeAll(x, y, count, precise::cosineOfRest, preciseCosine); }

} // namespace tarn

void zplsSin4(const Tarn32f* x, Tarn32f* y)
{
    std::transform(x, x + 4, y, [](Tarn32f a) { return static_cast<Tarn32f>(preciseSine(a)); });
}
void zplsCos4(const Tarn32f* x, Tarn32f* y)
{
    std::transform(x, x + 4, y, [](Tarn32f a) { return static_cast<Tarn32f>(preciseCosine(a)); });
}
void zpldSin2(const Tarn64f* x, Tarn64f* y)
{
    const Tarn64f arguments[] = {x[0], x[1]}; // results may replace them
    sinesOf(arguments, y, 2);
}
void zpldCos2(const Tarn64f* x, Tarn64f* y)
{
    const Tarn64f arguments[] = {x[0], x[1]};
    cosinesOf(arguments, y, 2);
}
