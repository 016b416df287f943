// Puts a function of the library and its peers side by side: one line of a table for each case.
//
//     const Comparison add = compare<Tarn32f, Tarn32f, Tarn32f>(      // destination, sources
//         "add_32f", tarnsAdd_32f, peer("loop", addLoop_32f));
//     const Comparison addSfs = compare<Tarn16s, Tarn16s, Tarn16s>(
//         "add_16s_1Sfs", [](auto... args) { return tarnsAdd_16s_Sfs(args..., 1); }, peer("loop", addLoop_16s_1Sfs));
//     const Comparison copy = compare<Tarn8u, Tarn8u>(
//         "copy_8u", tarnsCopy_8u, peer("memcpy", [](const Tarn8u* src, Tarn8u* dst, int n) { memcpy(dst, src, n); }));
//     const Comparison inPlace = compareInPlace<Tarn32f, Tarn32f>("add_32f_I", tarnsAdd_32f_I, peer("loop", ...));
//     const Comparison sum = compareReduction<Tarn32f, Tarn32f>("sum_32f", ..., peer("loop", ...));
//     const Comparison few = compare<Tarn32f, Tarn32f>(sizes(1000, 4096), "exp_32f", ...);
//
// Each becomes the benchmarks `<case>/<n>/ours` and `<case>/<n>/<peer>`, n being the element count. Ours and the peers
// run on the same buffers, so that neither is luckier with addresses.
#pragma once

#include "support/buffers.h"

#include <benchmark/benchmark.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

namespace tarn::bench {

using Sizes = std::vector<int>;

template <class... N>
Sizes sizes(N... n)
{
    return {static_cast<int>(n)...};
}

/// A handful of vectors, the first-level cache, the second, and far beyond the last.
inline const Sizes defaultSizes = {64, 1024, 16384, 4 << 20};

template <class Call>
struct Peer {
    std::string name;
    Call call;
};
template <class Call>
Peer<std::decay_t<Call>> peer(std::string name, Call&& call)
{
    return {std::move(name), std::forward<Call>(call)};
}

/// What a registration gives back, to be the initialiser of a constant at namespace scope.
struct Comparison {};

namespace detail {

template <class Call>
void invoke(Call& call)
{
    if constexpr (std::is_void_v<decltype(call())>) {
        call();
    } else {
        auto result = call();
        benchmark::DoNotOptimize(result);
    }
}

/// Puts the wide registers (the upper parts of the vector ones) back into their initial state. Once a peer has used
/// them, instructions that write 128 bits keep the rest and so have to wait for it: whoever is measured next would take
/// up to twice as long. After 512-bit code, `vzeroupper` alone does not end that.
void forgetWideRegisters();

/// `prepare(n)` makes the buffers outside the timed loop and gives the call on them.
template <class Prepare>
void registerOne(const std::string& name, const Sizes& lengths, const std::string& contestant, const Prepare& prepare,
                 std::size_t bytesPerElement, bool byWallClock = false)
{
    for (int n : lengths) {
        const std::string full = name + "/" + std::to_string(n) + "/" + contestant;
        auto* const registered =
            benchmark::RegisterBenchmark(full.c_str(), [prepare, n, bytesPerElement](benchmark::State& state) {
                auto call = prepare(n);
                // The first run faults pages in and fills the caches.
                invoke(call);
                forgetWideRegisters();
                for (auto iteration : state) {
                    static_cast<void>(iteration);
                    invoke(call);
                    benchmark::ClobberMemory();
                }
                state.SetItemsProcessed(state.iterations() * n);
                if (bytesPerElement != 0)
                    state.SetBytesProcessed(state.iterations() * n * static_cast<std::int64_t>(bytesPerElement));
            });
        if (byWallClock)
            registered->UseRealTime();
    }
}

template <class... Src>
std::tuple<const Src*...> sources(int n, Fill fill)
{
    return [&]<unsigned... Slot>(std::integer_sequence<unsigned, Slot...>)
    {
        return std::tuple<const Src*...>{filledBuffer<Src>(Slot + 1, n, fill)...};
    }
    (std::make_integer_sequence<unsigned, sizeof...(Src)>{});
}

template <class Dst, class... Src, class Call>
void registerOutOfPlace(const std::string& name, const Sizes& lengths, const std::string& contestant, Call call)
{
    auto prepare = [call](int n) {
        Dst* dst = filledBuffer<Dst>(0, n, Fill::signal);
        return [call, dst, n, src = sources<Src...>(n, Fill::signal)] {
            return std::apply([&](auto... pointers) { return call(pointers..., dst, n); }, src);
        };
    };
    registerOne(name, lengths, contestant, prepare, (sizeof(Dst) + ... + sizeof(Src)));
}

template <class T, class... Src, class Call>
void registerInPlace(const std::string& name, const Sizes& lengths, const std::string& contestant, Call call)
{
    auto prepare = [call](int n) {
        T* srcDst = filledBuffer<T>(0, n, Fill::signal);
        return [call, srcDst, n, src = sources<Src...>(n, Fill::ones)] {
            return std::apply([&](auto... pointers) { return call(pointers..., srcDst, n); }, src);
        };
    };
    registerOne(name, lengths, contestant, prepare, ((2 * sizeof(T)) + ... + sizeof(Src)));
}

template <class Result, class... Src, class Call>
void registerReduction(const std::string& name, const Sizes& lengths, const std::string& contestant, Call call)
{
    auto prepare = [call](int n) {
        Result* result = filledBuffer<Result>(0, 1, Fill::signal);
        return [call, result, n, src = sources<Src...>(n, Fill::signal)] {
            return std::apply([&](auto... pointers) { return call(pointers..., n, result); }, src);
        };
    };
    registerOne(name, lengths, contestant, prepare, (std::size_t{0} + ... + sizeof(Src)));
}

} // namespace detail

/// `call(const Src*..., Dst* dst, int n)` for ours and the peers.
///@{
template <class Dst, class... Src, class Ours, class... Peers>
Comparison compare(const Sizes& lengths, const std::string& name, Ours ours, const Peer<Peers>&... peers)
{
    detail::registerOutOfPlace<Dst, Src...>(name, lengths, "ours", ours);
    (detail::registerOutOfPlace<Dst, Src...>(name, lengths, peers.name, peers.call), ...);
    return {};
}
template <class Dst, class... Src, class Ours, class... Peers>
Comparison compare(const std::string& name, Ours ours, const Peer<Peers>&... peers)
{
    return compare<Dst, Src...>(defaultSizes, name, ours, peers...);
}
///@}

/// `call(const Src*..., T* srcDst, int n)`. The sources are plus and minus one, so that sums and products neither run
/// into denormals nor overflow however often they are repeated.
///@{
template <class T, class... Src, class Ours, class... Peers>
Comparison compareInPlace(const Sizes& lengths, const std::string& name, Ours ours, const Peer<Peers>&... peers)
{
    detail::registerInPlace<T, Src...>(name, lengths, "ours", ours);
    (detail::registerInPlace<T, Src...>(name, lengths, peers.name, peers.call), ...);
    return {};
}
template <class T, class... Src, class Ours, class... Peers>
Comparison compareInPlace(const std::string& name, Ours ours, const Peer<Peers>&... peers)
{
    return compareInPlace<T, Src...>(defaultSizes, name, ours, peers...);
}
///@}

/// `call(const Src*..., int n, Result* result)`.
///@{
template <class Result, class... Src, class Ours, class... Peers>
Comparison compareReduction(const Sizes& lengths, const std::string& name, Ours ours, const Peer<Peers>&... peers)
{
    detail::registerReduction<Result, Src...>(name, lengths, "ours", ours);
    (detail::registerReduction<Result, Src...>(name, lengths, peers.name, peers.call), ...);
    return {};
}
template <class Result, class... Src, class Ours, class... Peers>
Comparison compareReduction(const std::string& name, Ours ours, const Peer<Peers>&... peers)
{
    return compareReduction<Result, Src...>(defaultSizes, name, ours, peers...);
}
///@}

/// Anything else: `prepare(n)` makes what a call needs, outside the timed loop, and gives a callable that is timed. The
/// peers are made by peer("name", prepare) alike.
template <class Ours, class... Peers>
Comparison comparePrepared(const Sizes& lengths, const std::string& name, Ours prepareOurs, const Peer<Peers>&... peers)
{
    detail::registerOne(name, lengths, "ours", prepareOurs, 0);
    (detail::registerOne(name, lengths, peers.name, peers.call, 0), ...);
    return {};
}

/// The same for calls that are shared out to threads, of which the processor's clock sees only the caller's.
template <class Ours, class... Peers>
Comparison compareThreads(const Sizes& lengths, const std::string& name, Ours prepareOurs, const Peer<Peers>&... peers)
{
    detail::registerOne(name, lengths, "ours", prepareOurs, 0, true);
    (detail::registerOne(name, lengths, peers.name, peers.call, 0, true), ...);
    return {};
}

} // namespace tarn::bench
