// Threads that help a call with its work. They are made when they are first of use and sleep between calls.
//
// A call waits for nobody who has not begun: whoever is free takes the next piece, and where a helper gets no processor
// the caller does all pieces. Threads that have to meet at a barrier, as those of a parallel region do, cost a call as
// much as the time slices of every other program that runs then: forty times its own work on a busy machine.
#pragma once

#include <type_traits>

namespace tarn::crew {

// Runs piece `piece` of a work as worker `worker`.
using Run = void (*)(void* work, int piece, int worker);

// Runs every piece from 0 to pieces - 1 once and returns when all are done. The caller is worker 0 and begins with
// piece 0; its helpers are workers 1 to at most workers - 1. The caller is alone while another call has the helpers,
// where no thread can be made, and in a process that was forked from one with helpers: those are not in the copy.
void share(int pieces, int workers, Run run, void* work);

// The same for anything that can be called with a piece and a worker.
template <typename Work>
inline void share(int pieces, int workers, const Work& work)
{
    // The callee hands the address back, no more.
    share(
        pieces, workers,
        [](void* callable, int piece, int worker) { (*static_cast<const Work*>(callable))(piece, worker); },
        const_cast<std::remove_const_t<Work>*>(&work));
}

} // namespace tarn::crew
