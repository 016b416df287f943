// One element at a time: walks for what is defined in precisions that no vector has and for loops that stand beside the
// vector ones, and packs of which every element is looked at by itself.
#pragma once

#include "frame/reduce.h"

#include <array>
#include <cstddef>

namespace tarn {

template <typename D, typename Operation, typename... S>
TARN_INLINE void walkSingly(D* dst, Index len, Operation operation, S... src)
{
    for (Index i = 0; i < len; ++i) {
        store(dst + i, operation(loadElement(src + i)...));
    }
}

// What an operation on elements answers for each element of packs, one after the other: for the group in which one
// element asks for the other formula.
template <typename Operation, typename P, typename... More>
TARN_INLINE auto eachElement(Operation operation, P x, More... more)
{
    constexpr int count = P::size;
    using D = decltype(operation(Element<P>{}, Element<More>{}...));
    const auto spread = [](auto pack) {
        std::array<Element<decltype(pack)>, static_cast<std::size_t>(count)> elements;
        store(elements.data(), pack);
        return elements;
    };
    const auto answers = [operation](auto... elements) {
        std::array<D, static_cast<std::size_t>(count)> results;
        for (std::size_t k = 0; k < static_cast<std::size_t>(count); ++k) {
            results[k] = operation(elements[k]...);
        }
        return results;
    }(spread(x), spread(more)...);
    return loadPack<count>(answers.data());
}

} // namespace tarn
