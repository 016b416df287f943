// The part of the sweeps that does not depend on element types: which lengths and places are tried, how the arrays are
// laid out, and how a failure is told. sweep.h is what tests use.
#pragma once

#include "support/compare.h"
#include "support/function_ref.h"
#include "support/guarded.h"

#include <cstddef>
#include <string>
#include <vector>

namespace tarn::test::detail {

/// What the engine needs of an element type.
struct ElementOps {
    std::size_t size;
    ::testing::AssertionResult (*match)(const void* expected, const void* actual, std::size_t len, const Match& match,
                                        const std::string& context);
};

template <class T>
const ElementOps& elementOps()
{
    static const ElementOps ops = {
        sizeof(T), [](const void* expected, const void* actual, std::size_t len, const Match& match,
                      const std::string& context) { return arraysMatch<T>(expected, actual, len, match, context); }};
    return ops;
}

/// The values of one operand; every run takes a window of them.
struct Column {
    const unsigned char* bytes;
    std::size_t elementSize;
};

/// What a run has to leave in the destination.
struct Expectation {
    const void* values = nullptr;
    std::size_t len = 0;
    int status = 0;
};

struct Plan {
    bool full = true;
    bool valuesOnly = false;
    unsigned turn = 0;            ///< counts sweeps: those that are not full try other offsets each time
    std::vector<int> lengths;     ///< tried at a few places each
    int longest = 0;              ///< windows are this long at most: the length of the columns
    bool windowsByLength = false; ///< one window for each length, where a result costs a model run over the window
};

struct Job {
    std::string what;
    Plan plan;
    std::vector<Column> columns;
    ElementOps destination{};
    /// The column whose array is the destination as well, or -1.
    int aliased = -1;
    Match match;
    FunctionRef<int(const void* const* sources, void* destination, int len)> call;
    FunctionRef<Expectation(std::size_t first, int len)> expect;
};

/// Runs the job. At the first few failures it stops; a fault inside a call tells the run before the process dies.
void run(const Job& job);

} // namespace tarn::test::detail
