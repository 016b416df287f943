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
#include "support/sweep_engine.h"

#include <algorithm>
#include <initializer_list>
#include <memory>
#include <span>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

namespace tarn::test {

enum class Depth {
    full, ///< every length to 70 at every byte offset of the destination times every one of the sources
    quick ///< every length to 70, few offsets each, all offsets in turn: some 350 calls
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

/// Expected results of every element, found once; a run takes its window.
template <class Dst, class Model, class... Src>
void expectElements(Job& job, Model& model, const Columns<Src...>& columns, std::size_t len, int status)
{
    auto expected = std::make_shared<std::vector<Dst>>(len);
    // Stays empty where the model gives no status.
    auto statuses = std::make_shared<std::vector<int>>();
    for (std::size_t i = 0; i < len; ++i) {
        auto result = std::apply([&](const auto&... values) { return model(values[i]...); }, columns);
        (*expected)[i] = static_cast<Dst>(valueOf(result));
        if constexpr (IsOutcome<decltype(result)>::value)
            statuses->push_back(result.status);
    }
    job.expect = [expected, statuses, status](std::size_t first, int windowLen) {
        Expectation expectation{expected->data() + first, static_cast<std::size_t>(windowLen), status};
        if (!statuses->empty()) {
            const auto begin = statuses->begin() + static_cast<std::ptrdiff_t>(first);
            const auto end = begin + windowLen;
            const auto found = std::find_if(begin, end, [](int s) { return s != 0; });
            expectation.status = found == end ? 0 : *found;
        }
        return expectation;
    };
}

/// Expected results of a window as a whole, found again only when the window changes.
template <class Dst, class Model, class... Src>
void expectWindows(Job& job, Model& model, const Columns<Src...>& columns, int status)
{
    struct Cache {
        std::size_t first = 0;
        int len = -1;
        std::vector<Dst> values;
        int status = 0;
    };
    job.expect = [cache = std::make_shared<Cache>(), &model, &columns, status](std::size_t first, int len) {
        if (cache->len != len || cache->first != first) {
            const auto count = static_cast<std::size_t>(len);
            auto result = [&] {
                if constexpr (sizeof...(Src) == 0)
                    return model(len);
                else
                    return std::apply(
                        [&](const std::vector<Src>&... values) {
                            return model(std::span<const Src>(values).subspan(first, count)...);
                        },
                        columns);
            }();
            cache->first = first;
            cache->len = len;
            cache->status = statusOf(result, status);
            auto value = valueOf(std::move(result));
            if constexpr (requires { value.size(); })
                cache->values.assign(value.begin(), value.end());
            else
                cache->values.assign(1, static_cast<Dst>(value));
        }
        return Expectation{cache->values.data(), cache->values.size(), cache->status};
    };
}

/// Everything of a job but the call.
template <class Dst, class Model, class... Src>
Job makeJob(Model& model, const Columns<Src...>& columns, const SweepOptions& options)
{
    constexpr bool byElement = elementModel<Model, Src...>;
    std::size_t longest = shortestColumn(options);
    if constexpr (sizeof...(Src) > 0)
        longest = std::get<0>(columns).size();
    Job job;
    job.what = options.name.empty() ? "sweep" : options.name;
    job.plan = makePlan(options, longest, !byElement);
    job.match = options.match;
    job.destination = elementOps<Dst>();
    job.columns = describeColumns(columns);
    if constexpr (byElement)
        expectElements<Dst>(job, model, columns, longest, options.status);
    else
        expectWindows<Dst>(job, model, columns, options.status);
    return job;
}

template <class... Src>
void completeColumns(Columns<Src...>& columns, const SweepOptions& options)
{
    if constexpr (sizeof...(Src) > 0) {
        if (std::get<0>(columns).empty())
            columns = makeColumns<Src...>(options.values, shortestColumn(options));
    }
}

} // namespace detail

/// Sweeps `call(const Src*..., Dst* dst, int len) -> TarnStatus` against `model`. Without sources (`<Dst>` alone) the
/// model gets nothing, or the length if it returns the whole array.
template <class Dst, class... Src, class Call, class Model>
void sweepElementwise(Call&& call, Model&& model, const SweepOptions& options = {}, Columns<Src...> columns = {})
{
    detail::completeColumns(columns, options);
    detail::Job job = detail::makeJob<Dst>(model, columns, options);
    job.call = [&call](const void* const* sources, void* destination, int len) {
        return [&]<std::size_t... K>(std::index_sequence<K...>)
        {
            static_cast<void>(sources);
            return static_cast<int>(call(static_cast<const Src*>(sources[K])..., static_cast<Dst*>(destination), len));
        }
        (std::index_sequence_for<Src...>{});
    };
    detail::run(job);
    if (!options.aliased || !detail::elementModel<Model, Src...>)
        return;
    job.plan.full = false;
    constexpr bool sameType[] = {std::is_same_v<Src, Dst>..., false};
    for (std::size_t k = 0; k < sizeof...(Src); ++k) {
        job.aliased = static_cast<int>(k);
        if (sameType[k])
            detail::run(job);
    }
}

/// Sweeps `call(const Src*..., T* srcDst, int len) -> TarnStatus` against `model(Src..., T) -> T`: the last argument is
/// the element of the array in place.
template <class T, class... Src, class Call, class Model>
void sweepInPlace(Call&& call, Model&& model, const SweepOptions& options = {}, Columns<Src..., T> columns = {})
{
    detail::completeColumns(columns, options);
    detail::Job job = detail::makeJob<T>(model, columns, options);
    job.aliased = sizeof...(Src);
    job.call = [&call](const void* const* sources, void* destination, int len) {
        return [&]<std::size_t... K>(std::index_sequence<K...>)
        {
            static_cast<void>(sources);
            return static_cast<int>(call(static_cast<const Src*>(sources[K])..., static_cast<T*>(destination), len));
        }
        (std::index_sequence_for<Src...>{});
    };
    detail::run(job);
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
    detail::completeColumns(columns, options);
    detail::Job job = detail::makeJob<Result>(model, columns, options);
    job.call = [&call](const void* const* sources, void* destination, int len) {
        return [&]<std::size_t... K>(std::index_sequence<K...>)
        {
            return static_cast<int>(
                call(static_cast<const Src*>(sources[K])..., len, static_cast<Result*>(destination)));
        }
        (std::index_sequence_for<Src...>{});
    };
    detail::run(job);
}

} // namespace tarn::test
