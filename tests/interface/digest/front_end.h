// Every function of the public headers as data: its name, what its arguments are called and typed, and a way to call it
// with values that were chosen at run time.
#pragma once

#include <array>
#include <cstddef>
#include <cstring>
#include <string>
#include <utility>
#include <vector>

namespace tarn::test::digest {

/// One argument or result of any type.
class Slot {
public:
    template <class T>
    T as() const
    {
        static_assert(sizeof(T) <= sizeof bytes);
        T value;
        std::memcpy(&value, bytes.data(), sizeof value);
        return value;
    }

    template <class T>
    void put(const T& value)
    {
        static_assert(sizeof(T) <= sizeof bytes);
        std::memcpy(bytes.data(), &value, sizeof value);
    }

    std::byte* data() { return bytes.data(); }

private:
    alignas(16) std::array<std::byte, 16> bytes{};
};

struct Argument {
    std::string type; ///< without const and stars: "Tarn16s", "int", "TarnsFIRState_32f"
    int depth = 0;    ///< number of stars
    bool isConst = false;
    std::string name;
};

using AnyFunction = void (*)();
using Call = void (*)(AnyFunction, const Slot*, Slot& result);

struct FrontEnd {
    std::string name;
    std::vector<Argument> arguments;
    AnyFunction function = nullptr;
    Call call = nullptr;

    Slot operator()(const std::vector<Slot>& values) const
    {
        Slot result;
        call(function, values.data(), result);
        return result;
    }
};

/// One for each type of function, not for each function: there are far fewer of them.
template <class R, class... A>
struct Thunk {
    static void call(AnyFunction function, const Slot* slots, Slot& result)
    {
        unpack(reinterpret_cast<R (*)(A...)>(function), slots, result, std::index_sequence_for<A...>());
    }

private:
    template <std::size_t... I>
    static void unpack(R (*function)(A...), [[maybe_unused]] const Slot* slots, [[maybe_unused]] Slot& result,
                       std::index_sequence<I...>)
    {
        if constexpr (std::is_void_v<R>)
            function(slots[I].template as<A>()...);
        else
            result.put(function(slots[I].template as<A>()...));
    }
};

/// All of them, in the order of the headers.
const std::vector<FrontEnd>& frontEnds();

/// Null if there is none of that name.
const FrontEnd* findFrontEnd(const std::string& name);

} // namespace tarn::test::digest
