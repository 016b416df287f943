// Sweeps: a function called at every length, offset and place that matters, with hard values, and compared with a
// model.
//
//     sweepElementwise<Tarn16s, Tarn16s, Tarn16s>(tarnsAdd_16s, [](int a, int b) { return saturated<Tarn16s>(a + b);
//     }); for (int s : scaleFactors(-16, 16))
//         sweepInPlace<Tarn16s, Tarn16s>(
//             [&](const Tarn16s* src, Tarn16s* srcDst, int len) { return tarnsAdd_16s_ISfs(src, srcDst, len, s); },
//             [&](Tarn16s src, Tarn16s dst) { return scaled<Tarn16s>(src + dst, s); }, {.depth = Depth::quick});
//     sweepElementwise<Tarn32f, Tarn32f>(tarnsFlip_32f, [](std::span<const Tarn32f> src) {
//         return std::vector<Tarn32f>(src.rbegin(), src.rend()); });             // a model of whole arrays
//     sweepReduction<Tarn32s, Tarn16s>(call, [](std::span<const Tarn16s> src) { ... return sum; });
//
// Types stand destination first. A model gets one element of each source, or a std::span of each, and returns the
// element, a vector of any length, or an Outcome of either when the status depends on the data. Every run checks the
// status, the bits, that nothing was written beside the destination and no source changed, and that the floating-point
// control state survived; arrays touch unmapped pages in turn, so that a read past an end is a fault. A sweep of full
// depth makes some 20000 calls within 50 ms; use it once for each kernel and Depth::quick for its further parameters.
// A function with two destinations is swept once for each, the other one being an array in the call.
#pragma once

#include "support/columns.h"
#include "support/function_ref.h"
#include "support/sweep_engine.h"

#include <algorithm>
#include <initializer_list>
#include <span>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

namespace tarn::test {

enum class Depth {
    full,  ///< every length to 70 at every byte offset of the destination times every one of the sources; quick if the
           ///< environment has TARNS_TEST_DEPTH=quick
    quick, ///< every length to 70, few offsets each, other ones in each sweep, so that a score of sweeps takes every
           ///< one of the destination with every one of a source: some 350 calls
    values ///< all values of the columns in one call, at offsets that change
};

struct SweepOptions {
    std::string name = {};            ///< told in failures; gtest's SCOPED_TRACE does as well
    std::vector<int> thresholds = {}; ///< lengths at which a road changes: tried at -1, 0, +1 and +17
    Depth depth = Depth::full;
    Match match = {};              ///< exact bits unless told otherwise
    Values values = Values::mixed; ///< what the columns are made of, unless columns are given
    int status = 0;                ///< expected of every call, unless the model returns an Outcome
    bool aliased = true; ///< also with the destination being exactly a source of its type (element models only)
};

/// A model's result where the status depends on the data. Of the elements of a run the first status other than 0
/// counts.
template <class T>
struct Outcome {
    T value;
    int status = 0;
};

/// 1 to 70, some longer ones, and around each threshold: -1, 0, +1 and +17.
std::vector<int> lengths(std::initializer_list<int> thresholds = {});
std::vector<int> lengths(const std::vector<int>& thresholds);

/// Every scale factor from lo - 3 to hi + 3, and those at which a shift count goes wrong.
std::vector<int> scaleFactors(int lo, int hi);

/// Whether the environment has TARNS_TEST_DEPTH=quick, where every call is slow.
bool sweepsAreQuick();

namespace detail {

template <class T>
struct IsOutcome : std::false_type {
};
template <class T>
struct IsOutcome<Outcome<T>> : std::true_type {
};

template <class R>
int statusOf(const R& result, int otherwise)
{
    if constexpr (IsOutcome<R>::value)
        return result.status;
    else
        return otherwise;
}

template <class R>
auto valueOf(R result)
{
    if constexpr (IsOutcome<R>::value)
        return result.value;
    else
        return result;
}

/// The columns have to hold the longest run.
std::size_t shortestColumn(const SweepOptions& options);

/// Counts the sweeps of a test.
std::size_t nextTurn();

Plan makePlan(const SweepOptions& options, std::size_t longest, bool windowsByLength);

template <class... Src>
std::vector<Column> describeColumns(const Columns<Src...>& columns)
{
    return std::apply(
        [](const auto&... values) {
            return std::vector<Column>{Column{
                static_cast<const unsigned char*>(static_cast<const void*>(values.data())), sizeof(values[0])}...};
        },
        columns);
}

template <class Model, class... Src>
constexpr bool elementModel = std::is_invocable_v<Model&, Src...>;

// What tests hand in is taken for a reference to a function, so that everything behind it is compiled once for the
// types of a sweep, not once for each call and model.
using AnyCall = FunctionRef<int(const void* const* sources, void* destination, int len)>;
template <class Dst, class... Src>
using ElementModel = FunctionRef<int(Dst& result, const Src&... values)>;
template <class Dst, class... Src>
using ArrayModel = FunctionRef<int(std::vector<Dst>& results, std::size_t len, const Src*... values)>;

/// Where the destination is a source as well.
struct Aliasing {
    int column = -1;   ///< in every run
    bool more = false; ///< after it, in a quick sweep, each source of the destination's type in turn
};

/// Everything of a job but the expectation.
template <class Dst, class... Src>
Job makeJob(AnyCall call, const Columns<Src...>& columns, const SweepOptions& options, bool windowsByLength,
            int aliased)
{
    std::size_t longest = shortestColumn(options);
    if constexpr (sizeof...(Src) > 0)
        longest = std::get<0>(columns).size();
    Job job;
    job.what = options.name.empty() ? "sweep" : options.name;
    job.plan = makePlan(options, longest, windowsByLength);
    job.match = options.match;
    job.destination = elementOps<Dst>();
    job.columns = describeColumns(columns);
    job.aliased = aliased;
    job.call = call;
    return job;
}

/// Expected results of every element, found once; a run takes its window.
template <class Dst, class... Src>
void sweepElements(AnyCall call, ElementModel<Dst, Src...> model, const Columns<Src...>& columns,
                   const SweepOptions& options, Aliasing aliasing)
{
    Job job = makeJob<Dst>(call, columns, options, false, aliasing.column);
    const auto len = static_cast<std::size_t>(job.plan.longest);
    std::vector<Dst> expected(len);
    std::vector<int> statuses(len);
    for (std::size_t i = 0; i < len; ++i)
        statuses[i] = std::apply([&](const auto&... values) { return model(expected[i], values[i]...); }, columns);
    const auto expect = [&](std::size_t first, int windowLen) {
        const auto begin = statuses.begin() + static_cast<std::ptrdiff_t>(first);
        const auto found = std::find_if(begin, begin + windowLen, [](int s) { return s != 0; });
        return Expectation{expected.data() + first, static_cast<std::size_t>(windowLen),
                           found == begin + windowLen ? 0 : *found};
    };
    job.expect = expect;
    run(job);
    if (!aliasing.more)
        return;
    job.plan.full = false;
    constexpr bool sameType[] = {std::is_same_v<Src, Dst>..., false};
    for (std::size_t k = 0; k < sizeof...(Src); ++k) {
        job.aliased = static_cast<int>(k);
        if (sameType[k])
            run(job);
    }
}

/// Expected results of a window as a whole, found again only when the window changes.
template <class Dst, class... Src>
void sweepWindows(AnyCall call, ArrayModel<Dst, Src...> model, const Columns<Src...>& columns,
                  const SweepOptions& options, Aliasing aliasing)
{
    Job job = makeJob<Dst>(call, columns, options, true, aliasing.column);
    std::size_t lastFirst = 0;
    int lastLen = -1;
    std::vector<Dst> expected;
    int status = 0;
    const auto expect = [&](std::size_t first, int len) {
        if (lastLen != len || lastFirst != first) {
            status = std::apply(
                [&](const auto&... values) {
                    return model(expected, static_cast<std::size_t>(len), values.data() + first...);
                },
                columns);
            lastFirst = first;
            lastLen = len;
        }
        return Expectation{expected.data(), expected.size(), status};
    };
    job.expect = expect;
    run(job);
}

/// The columns of a test, or those of its types where it has none. Where calls are slow, of every value there is a
/// part, another one each time.
template <class... Src>
const Columns<Src...>& completeColumns(Columns<Src...>& columns, const SweepOptions& options)
{
    if constexpr (sizeof...(Src) > 0) {
        if (!std::get<0>(columns).empty())
            return columns;
        const std::size_t shortest = shortestColumn(options);
        if (options.values != Values::mixed || shortest > shortestColumn({})) {
            columns = makeColumns<Src...>(options.values, shortest);
            return columns;
        }
        static const Columns<Src...> usual = makeColumns<Src...>(Values::mixed, shortest);
        if (std::get<0>(usual).size() < everyValue || !sweepsAreQuick())
            return usual;
        columns = thinnedColumns(usual, nextTurn());
    }
    return columns;
}

template <class Dst, class... Src, class Model>
void sweep(AnyCall call, Model& model, Columns<Src...>& given, const SweepOptions& options, Aliasing aliasing)
{
    const Columns<Src...>& columns = completeColumns(given, options);
    if constexpr (elementModel<Model, Src...>) {
        const auto element = [&](Dst& value, const Src&... values) {
            auto result = model(values...);
            value = static_cast<Dst>(valueOf(result));
            return statusOf(result, options.status);
        };
        sweepElements(call, ElementModel<Dst, Src...>(element), columns, options, aliasing);
    } else {
        const auto whole = [&](std::vector<Dst>& values, [[maybe_unused]] std::size_t len, const Src*... sources) {
            auto result = [&] {
                if constexpr (sizeof...(Src) == 0)
                    return model(static_cast<int>(len));
                else
                    return model(std::span<const Src>(sources, len)...);
            }();
            const int status = statusOf(result, options.status);
            auto value = valueOf(std::move(result));
            if constexpr (requires { value.size(); })
                values.assign(value.begin(), value.end());
            else
                values.assign(1, static_cast<Dst>(value));
            return status;
        };
        sweepWindows(call, ArrayModel<Dst, Src...>(whole), columns, options, aliasing);
    }
}

} // namespace detail

/// Sweeps `call(const Src*..., Dst* dst, int len) -> TarnStatus` against `model`. Without sources (`<Dst>` alone) the
/// model gets nothing, or the length if it returns the whole array.
template <class Dst, class... Src, class Call, class Model>
void sweepElementwise(Call&& call, Model&& model, const SweepOptions& options = {}, Columns<Src...> columns = {})
{
    const auto erased = [&call](const void* const* sources, void* destination, int len) {
        return [&]<std::size_t... K>(std::index_sequence<K...>)
        {
            static_cast<void>(sources);
            return static_cast<int>(call(static_cast<const Src*>(sources[K])..., static_cast<Dst*>(destination), len));
        }
        (std::index_sequence_for<Src...>{});
    };
    detail::sweep<Dst, Src...>(erased, model, columns, options, {-1, options.aliased});
}

/// Sweeps `call(const Src*..., T* srcDst, int len) -> TarnStatus` against `model(Src..., T) -> T`: the last argument is
/// the element of the array in place.
template <class T, class... Src, class Call, class Model>
void sweepInPlace(Call&& call, Model&& model, const SweepOptions& options = {}, Columns<Src..., T> columns = {})
{
    const auto erased = [&call](const void* const* sources, void* destination, int len) {
        return [&]<std::size_t... K>(std::index_sequence<K...>)
        {
            static_cast<void>(sources);
            return static_cast<int>(call(static_cast<const Src*>(sources[K])..., static_cast<T*>(destination), len));
        }
        (std::index_sequence_for<Src...>{});
    };
    detail::sweep<T, Src..., T>(erased, model, columns, options, {sizeof...(Src), false});
}

/// Sweeps `call(const Src* src, T* dst, int len)` of equal types with dst == src, against a model of elements or of the
/// whole array. sweepElementwise does so by itself for models of elements.
template <class T, class Call, class Model>
void sweepAliased(Call&& call, Model&& model, const SweepOptions& options = {}, Columns<T> columns = {})
{
    sweepInPlace<T>([&call](T* srcDst, int len) { return call(static_cast<const T*>(srcDst), srcDst, len); }, model,
                    options, std::move(columns));
}

/// Sweeps `call(const Src*..., int len, Result* result) -> TarnStatus` against `model(std::span<const Src>...)`. The
/// result lies at odd addresses and between guards too.
template <class Result, class... Src, class Call, class Model>
void sweepReduction(Call&& call, Model&& model, const SweepOptions& options = {}, Columns<Src...> columns = {})
{
    const auto erased = [&call](const void* const* sources, void* destination, int len) {
        return [&]<std::size_t... K>(std::index_sequence<K...>)
        {
            return static_cast<int>(
                call(static_cast<const Src*>(sources[K])..., len, static_cast<Result*>(destination)));
        }
        (std::index_sequence_for<Src...>{});
    };
    detail::sweep<Result, Src...>(erased, model, columns, options, {});
}

} // namespace tarn::test
