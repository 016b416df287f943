// Calls every function of the public headers with hostile arguments and reports what must not be: see
// docs/reliability.md.
//     fuzz_calls_test [--seed S] [--calls N] [--seconds T] [--only PART] [--call I]
// One seed gives one list of calls: call I of a function is the same whatever else is run.
#include "fuzz/call.h"
#include "interface/digest/special_calls.h"
#include "support/memory_watch.h"

#include <tarns.h>

#include <chrono>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <stdexcept>

#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace tarn::test;
using namespace tarn::test::fuzz;

namespace {

struct Options {
    std::uint64_t seed = 1;
    int calls = 20;
    int seconds = 0; ///< 0: one round
    std::string only;
    int call = -1; ///< one alone, and shown
};

/// What the process that calls tells the one that waits for it, by memory that they share.
struct Progress {
    int function;
    int call;
    int fault; ///< which allocation is refused, -1 for none
    std::uint64_t seed;
    long made, refused, withoutMemory, skipped;
    int findings;
    bool done;
};

Progress* progress;
constexpr unsigned longestFunction = 120; // seconds
constexpr int findingsShown = 3;          // of a function

std::uint64_t seedOf(std::uint64_t seed, const std::string& name, int call)
{
    digest::Hash hash;
    hash.add(seed);
    hash.add(name);
    hash.add(static_cast<std::uint64_t>(call));
    return hash.get();
}

void report(const Described& one, const Options& options, const std::string& fault, const std::string& text)
{
    std::string refused;
    if (progress->fault >= 0)
        refused = " without memory after " + std::to_string(progress->fault) + " blocks";
    std::printf("%s %s%s\n    in %s\n    repeat: fuzz_calls_test --seed %llu --only %s --call %d\n", one.name().c_str(),
                fault.c_str(), refused.c_str(), text.c_str(), static_cast<unsigned long long>(options.seed),
                one.name().c_str(), progress->call);
    std::fflush(stdout);
    ++progress->findings;
}

/// A call that its number alone determines; null if no arguments came up that memory has room for.
struct Trial {
    Random random;
    Call call;
    bool prepared;

    Trial(const Described& one, std::uint64_t seed, Call::Manner manner)
        : random(seed), call(one, random, manner), prepared(call.prepare())
    {
    }
};

Call::Manner mannerOf(int call) { return call % 4 == 0 ? Call::Manner::tame : Call::Manner::hostile; }

/// The same call again and again, with one more allocation refused each time, the first one at first.
std::string refuseMemory(const Described& one, std::uint64_t seed, Call::Manner manner, int blocks, std::string& text)
{
    std::string fault;
    for (int allowed = 0; allowed < blocks && allowed < 64 && fault.empty(); ++allowed) {
        progress->fault = allowed;
        Trial again(one, seed, manner);
        fault = again.call.run(allowed);
        text = again.call.text();
        ++progress->withoutMemory;
        const std::string freed = again.call.finish();
        if (fault.empty())
            fault = freed;
    }
    return fault;
}

void callOnce(const Described& one, const Options& options, int& findings)
{
    const std::uint64_t seed = seedOf(options.seed, one.name(), progress->call);
    const Call::Manner manner = mannerOf(progress->call);
    Trial trial(one, seed, manner);
    if (!trial.prepared) {
        ++progress->skipped;
        return;
    }
    if (options.call >= 0)
        std::printf("%s\n", trial.call.text().c_str());
    std::string fault = trial.call.run();
    ++progress->made;
    progress->refused += trial.call.status() < 0 ? 1 : 0;
    std::string text = fault.empty() ? "what it made or worked with" : trial.call.text();
    const std::string freed = trial.call.finish();
    if (fault.empty())
        fault = freed;
    if (fault.empty() && canRefuseMemory && trial.call.blocks() > 0)
        fault = refuseMemory(one, seed, manner, trial.call.blocks(), text);
    if (!fault.empty() && findings++ < findingsShown)
        report(one, options, fault, text);
    progress->fault = -1;
}

template <class T>
std::string mallocFault(T* (*allocate)(int))
{
    for (const int len : {0, -1, INT_MIN, INT_MIN + 1, 1, 2, 7, 100}) { // what is too long wraps around
        MemoryWatch watch;
        T* const block = allocate(len);
        if ((block == nullptr) != (len < 1))
            return std::string(len < 1 ? "gives memory for " : "gives no memory for ") + std::to_string(len);
        if (block != nullptr)
            std::memset(static_cast<void*>(block), 1, sizeof(T) * static_cast<std::size_t>(len));
        tarnsFree(block);
        if (watch.outstanding() != 0)
            return "is not freed by tarnsFree";
    }
    return {};
}

/// The functions that do not answer with a status: those of the core, and those that give memory.
void callWithoutStatus(const Described& one, const Options& options)
{
    digest::Hash unused;
    if (!digest::callSpecially(one.name(), unused))
        report(one, options, "answers without a status, and has no rule", "");
    std::string fault;
#define MALLOC(suffix)                        \
    if (one.name() == "tarnsMalloc_" #suffix) \
        fault = mallocFault(tarnsMalloc_##suffix);
    MALLOC(8u)
    MALLOC(8s)
    MALLOC(16u)
    MALLOC(16s)
    MALLOC(32u)
    MALLOC(32s)
    MALLOC(64s)
    MALLOC(32f)
    MALLOC(64f)
    MALLOC(8sc)
    MALLOC(16sc)
    MALLOC(32sc)
    MALLOC(64sc)
    MALLOC(32fc)
    MALLOC(64fc)
#undef MALLOC
    ++progress->made;
    if (!fault.empty())
        report(one, options, fault, one.name());
}

/// From where `progress` stands, to the end.
void callAll(const Options& options)
{
    const auto& all = describedFunctions();
    for (; progress->function < static_cast<int>(all.size()); ++progress->function) {
        const Described& one = all[static_cast<std::size_t>(progress->function)];
        int findings = 0;
        if (!options.only.empty() && one.name().find(options.only) == std::string::npos)
            continue;
        alarm(longestFunction);
        progress->call = 0;
        progress->fault = -1;
        try {
            if (one.statuses.empty()) {
                callWithoutStatus(one, options);
                continue;
            }
            for (; progress->call < options.calls || progress->call == options.call; ++progress->call)
                if (options.call < 0 || options.call == progress->call)
                    callOnce(one, options, findings);
        } catch (const std::runtime_error& error) {
            report(one, options, std::string(": ") + error.what(), "");
        }
    }
    alarm(0);
    progress->done = true;
}

/// Shows the call that ended a process, in another one: its arguments are chosen and not used.
void describe(const Options& options)
{
    if (fork() != 0) {
        wait(nullptr);
        return;
    }
    alarm(longestFunction);
    const Described& one = describedFunctions()[static_cast<std::size_t>(progress->function)];
    std::printf("    in %s\n", one.statuses.empty() ? "a list of calls"
                                                    : Trial(one, seedOf(options.seed, one.name(), progress->call),
                                                            mannerOf(progress->call))
                                                          .call.text()
                                                          .c_str());
    std::printf("    repeat: fuzz_calls_test --seed %llu --only %s --call %d\n",
                static_cast<unsigned long long>(options.seed), one.name().c_str(), progress->call);
    std::fflush(stdout);
    std::_Exit(0);
}

/// One round. A call that ends its process costs no other function its calls.
void callAllWatched(const Options& options)
{
    progress->function = 0;
    progress->done = false;
    while (!progress->done) {
        std::fflush(stdout);
        const pid_t child = fork();
        if (child == 0) {
            callAll(options);
            std::fflush(stdout);
            std::_Exit(0);
        }
        int status = 0;
        waitpid(child, &status, 0);
        if (progress->done)
            break;
        const std::string& name = describedFunctions()[static_cast<std::size_t>(progress->function)].name();
        if (WIFSIGNALED(status))
            std::printf("%s ended by signal %d (%s)", name.c_str(), WTERMSIG(status), strsignal(WTERMSIG(status)));
        else
            std::printf("%s ended the process with %d", name.c_str(), WEXITSTATUS(status));
        std::printf(progress->fault >= 0 ? " without memory after %d blocks\n" : "\n", progress->fault);
        ++progress->findings;
        describe(options);
        ++progress->function;
    }
}

bool parse(int argc, char** argv, Options& options)
{
    for (int i = 1; i + 1 < argc; i += 2) {
        const std::string name = argv[i];
        const char* const value = argv[i + 1];
        if (name == "--seed")
            options.seed = std::strtoull(value, nullptr, 10);
        else if (name == "--calls")
            options.calls = std::atoi(value);
        else if (name == "--seconds")
            options.seconds = std::atoi(value);
        else if (name == "--only")
            options.only = value;
        else if (name == "--call")
            options.call = std::atoi(value);
        else
            return false;
    }
    options.calls = std::max(options.calls, options.call + 1);
    return argc % 2 == 1;
}

} // namespace

int main(int argc, char** argv)
{
    Options options;
    if (!parse(argc, argv, options)) {
        std::fprintf(stderr, "usage: %s [--seed S] [--calls N] [--seconds T] [--only PART] [--call I]\n", argv[0]);
        return 2;
    }
    void* const shared = mmap(nullptr, sizeof(Progress), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    if (shared == MAP_FAILED)
        return 2;
    progress = new (shared) Progress{};
    const auto start = std::chrono::steady_clock::now();
    do {
        callAllWatched(options);
        ++options.seed;
    } while (std::chrono::steady_clock::now() - start < std::chrono::seconds(options.seconds));
    std::printf("%ld calls, %ld of them refused, %ld without memory, %ld not made for want of room; %d findings\n",
                progress->made, progress->refused, progress->withoutMemory, progress->skipped, progress->findings);
    return progress->findings == 0 && progress->made > 0 ? 0 : 1;
}
