// Sine and cosine of several arguments, each by the precise functions.
#include "frame/precise.h"
#include "frame/trigonometry.h"

#include <algorithm>

using namespace tarn;

void zplsSin4(const Tarn32f* x, Tarn32f* y)
{
    std::transform(x, x + 4, y, [](Tarn32f a) { return static_cast<Tarn32f>(preciseSine(a)); });
}
void zplsCos4(const Tarn32f* x, Tarn32f* y)
{
    std::transform(x, x + 4, y, [](Tarn32f a) { return static_cast<Tarn32f>(preciseCosine(a)); });
}
void zpldSin2(const Tarn64f* x, Tarn64f* y) { std::transform(x, x + 2, y, preciseSine); }
void zpldCos2(const Tarn64f* x, Tarn64f* y) { std::transform(x, x + 2, y, preciseCosine); }
