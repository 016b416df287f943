// Kernels of the triangle generators. A period of 2 pi begins at the upper peak, falls for pi + asym and rises for
// pi - asym.
#pragma once

#include "frame/kernels.h"

namespace tarn {

struct Triangle {
    double magn;
    double freq;
    double asym;
    double phase;
};

// Samples from the wrapped phase; the imaginary part is the same wave a quarter of a period later in its own measure.
template <typename T>
void triangleDirect(T* dst, int len, Triangle triangle);

// A value that walks up and down and is mirrored where it passes a peak. Only its type keeps it between calls.
struct TriangleWalker {
    double step; // the one in use
    double up;
    double down;
    double factorBelow; // mirrored value = factor value + offset, below the lower peak and above the upper one
    double offsetBelow;
    double factorAbove;
    double offsetAbove;
    double periodFalling; // what the straight line gains or loses in a whole period
    double periodRising;
    double value;
};
struct WalkingTriangle {
    TriangleWalker walker;
    int rising;
};

WalkingTriangle startTriangle(Triangle triangle);

// Writes samples and gives the walker as they leave it.
WalkingTriangle triangleQ15(Tarn16s* dst, int len, double magn, WalkingTriangle state);

} // namespace tarn
