// The same targets under libFuzzer: fuzz_states --target=NAME [options of libFuzzer] [CORPUS]
#include "fuzz/states/targets.h"

#include <cstdio>
#include <cstring>

namespace {
const tarn::test::fuzz::Target* chosen = nullptr;
} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    constexpr char option[] = "--target=";
    for (int i = 1; i < *argc; ++i)
        for (const auto& target : tarn::test::fuzz::targets())
            if (std::strncmp((*argv)[i], option, sizeof option - 1) == 0 &&
                std::strcmp((*argv)[i] + sizeof option - 1, target.name) == 0)
                chosen = &target;
    if (chosen == nullptr) {
        std::fprintf(stderr, "usage: %s --target=NAME, one of:", (*argv)[0]);
        for (const auto& target : tarn::test::fuzz::targets())
            std::fprintf(stderr, " %s", target.name);
        std::fprintf(stderr, "\n");
        std::exit(2);
    }
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    tarn::test::fuzz::Bytes bytes(data, size);
    chosen->run(bytes);
    return 0;
}
