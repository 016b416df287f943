// Drives the targets by random bytes, where there is no libFuzzer:
//     fuzz_states_test [--seed S] [--runs N] [--seconds T] [--target NAME]
// One seed gives one list of strings. Where a run ends the program, its string is known by its number.
#include "fuzz/states/targets.h"

#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include <unistd.h>

using namespace tarn::test;
using namespace tarn::test::fuzz;

namespace {

constexpr unsigned longestRun = 60; // seconds
char current[200];

void endedBySignal(int)
{
    if (write(STDERR_FILENO, current, std::strlen(current)) < 0)
        std::_Exit(2);
    std::_Exit(1);
}

void runOne(const Target& target, std::uint64_t seed, const char* program)
{
    Random random(seed);
    std::vector<std::uint8_t> data(4 + random.below(random.below(4) == 0 ? 400 : 60));
    for (std::uint8_t& byte : data)
        byte = static_cast<std::uint8_t>(random.next() >> 20);
    std::snprintf(current, sizeof current, "%s failed\n    repeat: %s --target %s --runs 1 --seed %llu\n", target.name,
                  program, target.name, static_cast<unsigned long long>(seed));
    Bytes bytes(data.data(), data.size());
    target.run(bytes);
}

} // namespace

int main(int argc, char** argv)
{
    std::uint64_t seed = 1;
    int runs = 400;
    int seconds = 0;
    std::string only;
    for (int i = 1; i + 1 < argc; i += 2) {
        const std::string name = argv[i];
        if (name == "--seed")
            seed = std::strtoull(argv[i + 1], nullptr, 10);
        else if (name == "--runs")
            runs = std::atoi(argv[i + 1]);
        else if (name == "--seconds")
            seconds = std::atoi(argv[i + 1]);
        else if (name == "--target")
            only = argv[i + 1];
    }
    for (const int number : {SIGABRT, SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGALRM})
        std::signal(number, endedBySignal);
    const auto start = std::chrono::steady_clock::now();
    long done = 0;
    do {
        for (const Target& target : targets()) {
            if (!only.empty() && only != target.name)
                continue;
            for (int i = 0; i < runs; ++i, ++done) {
                alarm(longestRun);
                runOne(target, seed + static_cast<std::uint64_t>(i), argv[0]);
            }
        }
        seed += static_cast<std::uint64_t>(runs);
    } while (std::chrono::steady_clock::now() - start < std::chrono::seconds(seconds));
    std::printf("%ld runs\n", done);
    return done > 0 ? 0 : 2;
}
