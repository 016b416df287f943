// What the convolution with a chirp does to its data before, between and behind the power-of-two transforms.
#pragma once

#include "levels/transforms/psdft_spec.h"

namespace tarn::dft {

// The chirp c[k] = exp(-i pi k^2 / N) of N points, and the product with it of data of every kind. The data may be
// at any address; `y` is work memory apart from it.
template <typename T>
struct Chirp {
    using C = PairOf<T>;
    const C* factors;
    int N;

    // y = x c, of complex elements, of real and imaginary parts, of reals.
    void enter(const C* x, C* y) const;
    void enterParts(const T* re, const T* im, C* y) const;
    void enterReal(const T* x, C* y) const;
    // Of the conjugates of a spectrum of which one half is given, in Perm order; N is odd.
    void enterPerm(const T* perm, C* y) const;

    // The same on the way out. `forward` or not, x is not y, and there are as many results as there were points. A real
    // signal is the real part of the product, a real signal's spectrum the half that Perm order holds, N being odd.
    void leave(const C* y, C* x, bool forward) const;
    void leaveParts(const C* y, T* re, T* im, bool forward) const;
    void leaveReal(const C* y, T* x) const;
    void leavePerm(const C* y, T* perm) const;
};

// Fills a chirp from the 2 N roots of one.
template <typename T>
void fillChirp(PairOf<T>* chirp, int N, const PairOf<T>* roots);

extern template struct Chirp<Tarn32f>;
extern template struct Chirp<Tarn64f>;
extern template void fillChirp<Tarn32f>(Tarn32fc*, int, const Tarn32fc*);
extern template void fillChirp<Tarn64f>(Tarn64fc*, int, const Tarn64fc*);

} // namespace tarn::dft
