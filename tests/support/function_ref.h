// A reference to something that can be called, without its type: what takes one is compiled once for a signature.
//
//     void repeat(FunctionRef<int(int)> step);
//     auto step = [&](int i) { ... };     // has to outlive the reference
//     repeat(step);
#pragma once

#include <memory>
#include <type_traits>

namespace tarn::test {

template <class Signature>
class FunctionRef;

template <class R, class... A>
class FunctionRef<R(A...)> {
public:
    FunctionRef() = default;

    template <class F>
        requires(!std::is_same_v<std::remove_cv_t<F>, FunctionRef>)
    FunctionRef(F& called)
        : object(const_cast<void*>(static_cast<const void*>(std::addressof(called)))),
          thunk([](void* f, A... arguments) -> R { return (*static_cast<F*>(f))(static_cast<A>(arguments)...); })
    {
    }

    R operator()(A... arguments) const { return thunk(object, static_cast<A>(arguments)...); }

private:
    void* object = nullptr;
    R (*thunk)(void*, A...) = nullptr;
};

} // namespace tarn::test
