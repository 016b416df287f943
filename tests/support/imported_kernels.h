// Declares kernels as a test sees them, which calls them from outside of the library: include this before the headers
// that declare them. Within the library their visibility binds calls to its own definitions.
#pragma once

#include "frame/kernels.h"

#undef TARN_KERNEL
#define TARN_KERNEL extern "C" TARN_API
