#include "support/transform_runs.h"

#include "support/compare.h"
#include "support/fpstate.h"
#include "support/guarded.h"
#include "support/hard_values.h"

#include <gtest/gtest.h>

#include <thread>

namespace tarn::test {

template <class T>
std::vector<T> signal(std::size_t count, unsigned seed)
{
    return randomValues<T>(count, seed, Values::unit);
}

template <class T>
Arrays<T> inputFor(const TransformCase<T>& transform, int order)
{
    Arrays<T> src;
    for (int i = 0; i < transform.arrays; ++i)
        src.push_back(
            signal<T>(transform.srcReals(order), 17u * static_cast<unsigned>(order) + static_cast<unsigned>(i)));
    return src;
}

template <class T>
Arrays<T> run(const TransformCase<T>& transform, const Arrays<T>& src, const TransformSpec& spec, int order)
{
    Arrays<T> dst(static_cast<std::size_t>(transform.arrays), std::vector<T>(transform.dstReals(order)));
    const T* from[2] = {};
    T* to[2] = {};
    for (std::size_t i = 0; i < dst.size(); ++i) {
        from[i] = src[i].data();
        to[i] = dst[i].data();
    }
    EXPECT_EQ(tarnStsNoErr, transform.run(from, to, spec.get(), nullptr)) << transform.name;
    return dst;
}

template <class T>
long double relativeError(const Arrays<long double>& expected, const Arrays<T>& actual, long double scale)
{
    long double difference = 0;
    long double total = 0;
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(expected[i].size(), actual[i].size());
        for (std::size_t j = 0; j < expected[i].size(); ++j) {
            const long double e = scale * expected[i][j];
            difference += (actual[i][j] - e) * (actual[i][j] - e);
            total += e * e;
        }
    }
    return std::sqrt(difference / total);
}

template <class T>
Arrays<T> runAt(const TransformCase<T>& transform, const Arrays<T>& src, const TransformSpec& spec, int order,
                const Places& places)
{
    std::vector<std::unique_ptr<GuardedArray<T>>> from;
    std::vector<std::unique_ptr<GuardedArray<T>>> to;
    const T* sources[2] = {};
    T* destinations[2] = {};
    const std::size_t dstReals = transform.dstReals(order);
    for (std::size_t i = 0; i < src.size(); ++i) {
        const std::size_t reals = places.inPlace ? std::max(dstReals, src[i].size()) : dstReals;
        to.push_back(std::make_unique<GuardedArray<T>>(reals, Placement::offset(places.dst)));
        destinations[i] = to.back()->data();
        if (places.inPlace) {
            to.back()->assign(src[i]);
            sources[i] = destinations[i];
        } else {
            from.push_back(std::make_unique<GuardedArray<T>>(src[i], Placement::offset(places.src)));
            sources[i] = from.back()->data();
        }
    }
    using Buffer = Places::Buffer;
    const std::size_t bytes = spec.bufSize();
    GuardedArray<Tarn8u> work(bytes, places.buffer == Buffer::exact ? Placement::atEnd()
                                     : places.buffer == Buffer::odd ? Placement::offset(13)
                                                                    : Placement::offset(0));
    Tarn8u* const buffer = places.buffer == Buffer::null ? nullptr : work.data();
    const FpState before = FpState::current();
    EXPECT_EQ(tarnStsNoErr, transform.run(sources, destinations, spec.get(), buffer));
    EXPECT_EQ("", before.changesSince());
    for (std::size_t i = 0; i < from.size(); ++i)
        EXPECT_TRUE(arraysMatch<T>(src[i], *from[i], {.nan = NanRule::sameBits})) << "the source has changed";
    Arrays<T> dst;
    for (const auto& array : to) {
        dst.push_back(array->copy());
        dst.back().resize(dstReals);
    }
    return dst;
}

template <class T>
void expectPartsInPlace(const TransformCase<T>& transform, const TransformSpec& spec, int order)
{
    const auto src = inputFor(transform, order);
    const auto expected = run(transform, src, spec, order);
    for (std::size_t inPlace : {std::size_t{0}, std::size_t{1}}) {
        Arrays<T> from = src;
        std::vector<T> other(src[0].size());
        const T* sources[] = {from[0].data(), from[1].data()};
        T* destinations[] = {other.data(), other.data()};
        destinations[inPlace] = from[inPlace].data();
        ASSERT_EQ(tarnStsNoErr, transform.run(sources, destinations, spec.get(), nullptr));
        EXPECT_EQ(expected[inPlace], from[inPlace]) << transform.name << " of " << order;
        EXPECT_EQ(expected[1 - inPlace], other) << transform.name << " of " << order;
        EXPECT_EQ(src[1 - inPlace], from[1 - inPlace]) << "the source has changed";
    }
}

template <class T>
void expectThreadsAgree(const TransformCase<T>& transform, const TransformSpec& spec, int order)
{
    const auto src = inputFor(transform, order);
    const auto expected = run(transform, src, spec, order);
    std::vector<Arrays<T>> results(4);
    std::vector<std::thread> threads;
    for (std::size_t i = 0; i < results.size(); ++i)
        threads.emplace_back([&, i] {
            for (int round = 0; round < 3; ++round)
                results[i] = runAt(transform, src, spec, order,
                                   {0, 0, false, i % 2 == 0 ? Places::Buffer::null : Places::Buffer::odd});
        });
    for (std::thread& thread : threads)
        thread.join();
    for (const auto& result : results)
        EXPECT_EQ(expected, result) << transform.name << " of " << order;
}

template std::vector<Tarn32f> signal<Tarn32f>(std::size_t, unsigned);
template Arrays<Tarn32f> inputFor(const TransformCase<Tarn32f>&, int);
template Arrays<Tarn32f> run(const TransformCase<Tarn32f>&, const Arrays<Tarn32f>&, const TransformSpec&, int);
template long double relativeError(const Arrays<long double>&, const Arrays<Tarn32f>&, long double);
template Arrays<Tarn32f> runAt(const TransformCase<Tarn32f>&, const Arrays<Tarn32f>&, const TransformSpec&, int,
                               const Places&);
template void expectPartsInPlace(const TransformCase<Tarn32f>&, const TransformSpec&, int);
template void expectThreadsAgree(const TransformCase<Tarn32f>&, const TransformSpec&, int);
template std::vector<Tarn64f> signal<Tarn64f>(std::size_t, unsigned);
template Arrays<Tarn64f> inputFor(const TransformCase<Tarn64f>&, int);
template Arrays<Tarn64f> run(const TransformCase<Tarn64f>&, const Arrays<Tarn64f>&, const TransformSpec&, int);
template long double relativeError(const Arrays<long double>&, const Arrays<Tarn64f>&, long double);
template Arrays<Tarn64f> runAt(const TransformCase<Tarn64f>&, const Arrays<Tarn64f>&, const TransformSpec&, int,
                               const Places&);
template void expectPartsInPlace(const TransformCase<Tarn64f>&, const TransformSpec&, int);
template void expectThreadsAgree(const TransformCase<Tarn64f>&, const TransformSpec&, int);

} // namespace tarn::test
