/* The whole signal domain: the core and one header a subsystem. */
#ifndef TARNS_H
#define TARNS_H

#include "tarncore.h"
#include "tarns/arithmetic.h"
#include "tarns/convert.h"
#include "tarns/cplx.h"
#include "tarns/data.h"
#include "tarns/divide.h"
#include "tarns/exponential.h"
#include "tarns/fft.h"
#include "tarns/fftfixed.h"
#include "tarns/fir.h"
#include "tarns/firdesign.h"
#include "tarns/firstate.h"
#include "tarns/generators.h"
#include "tarns/goertzel.h"
#include "tarns/logic.h"
#include "tarns/magnitude.h"
#include "tarns/memory.h"
#include "tarns/multiply.h"
#include "tarns/norms.h"
#include "tarns/polar.h"
#include "tarns/roots.h"
#include "tarns/sampling.h"
#include "tarns/sort.h"
#include "tarns/spectrum.h"
#include "tarns/statistics.h"
#include "tarns/subtract.h"
#include "tarns/threshold.h"
#include "tarns/windows.h"

#endif
