// How many threads a call's work is worth, and the work of a call shared out to them.
#pragma once

#include "frame/crew.h"
#include "frame/simd_control.h"

#include <omp.h>

#include <algorithm>

namespace tarn {

// Less work than this, in nanoseconds on one thread, is done sooner than another thread has woken up and the caches
// have been shared out.
inline constexpr double worthSharing = 250e3;

// What is taken at once: short enough that threads end together, and that one which loses its processor has little
// that others wait for.
inline constexpr double worthTaking = 25e3;

// How many threads the settings of the OpenMP runtime give a call; one within a parallel region of the caller's.
inline int threadsOfCall()
{
    if (omp_get_active_level() >= omp_get_max_active_levels()) {
        return 1;
    }
    return std::max(1, std::min(omp_get_max_threads(), omp_get_thread_limit()));
}

// How many of at most `most` threads are worth their waking for work that takes one thread so many nanoseconds.
inline int threadsWorth(double nanoseconds, int most)
{
    if (nanoseconds < worthSharing || most <= 1) {
        return 1;
    }
    const double worth = std::min<double>(most, nanoseconds / (worthSharing / 2));
    return std::min(threadsOfCall(), static_cast<int>(worth));
}

// Lends a thread the control words of the one that made the call: rounding mode and treatment of denormals are the
// caller's, whichever thread computes an output.
struct ControlWords {
    unsigned mxcsr = readMxcsr();
    unsigned short x87 = readX87Control();
};
class CallersControl {
public:
    explicit CallersControl(const ControlWords& callers)
        : isMxcsrLent(own.mxcsr != callers.mxcsr), isX87Lent(own.x87 != callers.x87)
    {
        if (isMxcsrLent) {
            writeMxcsr(callers.mxcsr);
        }
        if (isX87Lent) {
            writeX87Control(callers.x87);
        }
    }
    ~CallersControl()
    {
        if (isMxcsrLent) {
            writeMxcsr(own.mxcsr);
        }
        if (isX87Lent) {
            writeX87Control(own.x87);
        }
    }
    CallersControl(const CallersControl&) = delete;
    CallersControl& operator=(const CallersControl&) = delete;

private:
    const ControlWords own;
    const bool isMxcsrLent;
    const bool isX87Lent;
};

// Where share `index` of `shares` equal ones of `count` begins, and where the one before it ends.
constexpr int shareBegin(int count, int index, int shares)
{
    return static_cast<int>(static_cast<long long>(count) * index / shares);
}

// Calls work(begin, end, thread) for stretches that make up 0 to count - 1, all under the caller's control words. The
// stretches are whole multiples of `grain`; their number depends on the nanoseconds that they take together, and
// `thread` is below `threads`. The first stretch is the calling thread's, which is thread 0.
template <typename Work>
inline void shareOut(int count, int grain, double nanoseconds, int threads, const Work& work)
{
    if (threads <= 1) {
        work(0, count, 0);
        return;
    }
    const int grains = (count - 1) / grain + 1;
    const int stretches = static_cast<int>(std::clamp(nanoseconds / worthTaking, 1.0, static_cast<double>(grains)));
    const ControlWords callers;
    crew::share(stretches, threads, [&](int stretch, int thread) {
        const CallersControl lent(callers);
        const int begin = grain * shareBegin(grains, stretch, stretches);
        const int end = stretch + 1 == stretches ? count : grain * shareBegin(grains, stretch + 1, stretches);
        work(begin, end, thread);
    });
}

} // namespace tarn
