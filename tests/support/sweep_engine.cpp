// The runs of a sweep: lengths, places, windows of values, and the checks after every call.
#include "support/sweep_engine.h"

#include "support/fpstate.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <optional>

#include <signal.h>

namespace tarn::test::detail {
namespace {

constexpr int maxColumns = 6;
constexpr int failuresBeforeGivingUp = 3;
constexpr unsigned offsets = 16;

struct Places {
    Placement destination;
    Placement sources[maxColumns];
};

struct Run {
    const Job* job;
    int len;
    std::size_t first;
    Places places;
};

std::string describe(const Run& run)
{
    std::string text =
        run.job->what + ", len " + std::to_string(run.len) + ", destination " + toString(run.places.destination);
    for (std::size_t k = 0; k < run.job->columns.size(); ++k) {
        text += ", source " + std::to_string(k) + " ";
        text += static_cast<int>(k) == run.job->aliased ? "is the destination" : toString(run.places.sources[k]);
    }
    return text;
}

// A fault in a call ends the process, so the handler tells which run it was. One run at a time has a note.
const Run* currentRun = nullptr;
const GuardedBytes* currentArrays[maxColumns + 1];
struct sigaction previousAction;

void tellFault(int, siginfo_t* info, void*)
{
    if (currentRun != nullptr) {
        std::fprintf(stderr, "\nFault in a sweep: %s\n", describe(*currentRun).c_str());
        for (const GuardedBytes* array : currentArrays) {
            if (array == nullptr)
                continue;
            const auto distance = reinterpret_cast<std::intptr_t>(info->si_addr) -
                                  reinterpret_cast<std::intptr_t>(array->bytes() + array->byteSize());
            const auto size = static_cast<std::intptr_t>(array->byteSize());
            if (distance >= 0 && distance < 4096)
                std::fprintf(stderr, "  byte %ld past the end of an array of %ld bytes\n", static_cast<long>(distance),
                             static_cast<long>(size));
            else if (distance < -size && distance >= -size - 4096)
                std::fprintf(stderr, "  byte %ld before an array of %ld bytes\n", static_cast<long>(-size - distance),
                             static_cast<long>(size));
        }
        currentRun = nullptr;
    }
    // Returning runs the instruction again, now with the handler that was there before.
    sigaction(SIGSEGV, &previousAction, nullptr);
}

void installFaultHandler()
{
    static const bool installed = [] {
        struct sigaction action = {};
        action.sa_sigaction = tellFault;
        action.sa_flags = SA_SIGINFO | SA_NODEFER;
        sigemptyset(&action.sa_mask);
        sigaction(SIGSEGV, &action, &previousAction);
        return true;
    }();
    static_cast<void>(installed);
}

class Sweep {
public:
    explicit Sweep(const Job& sweepJob) : job(sweepJob) {}

    bool gaveUp() const { return failures >= failuresBeforeGivingUp; }

    void at(int len, const Places& places)
    {
        if (gaveUp() || len > job.plan.longest)
            return;
        const auto slack = static_cast<std::size_t>(job.plan.longest - len) + 1;
        step = job.plan.windowsByLength ? static_cast<std::size_t>(len) * 37 : step * 5 + 7;
        Run run{&job, len, step % slack, places};
        perform(run);
    }

private:
    void fail(const Run& run, const std::string& what)
    {
        ++failures;
        ADD_FAILURE() << describe(run) << ": " << what
                      << (gaveUp() ? "\n(giving up this sweep after this failure)" : "");
    }

    const unsigned char* window(std::size_t column, std::size_t first) const
    {
        return job.columns[column].bytes + first * job.columns[column].elementSize;
    }

    void perform(const Run& run)
    {
        const auto len = static_cast<std::size_t>(run.len);
        const Expectation expected = job.expect(run.first, run.len);
        const std::size_t destinationBytes = expected.len * job.destination.size;
        GuardedBytes destination(destinationBytes, run.places.destination);
        std::optional<GuardedBytes> sources[maxColumns];
        const void* pointers[maxColumns] = {};
        currentArrays[0] = &destination;
        for (std::size_t k = 0; k < job.columns.size(); ++k) {
            const std::size_t bytes = len * job.columns[k].elementSize;
            unsigned char* place = destination.bytes();
            if (static_cast<int>(k) != job.aliased) {
                sources[k].emplace(bytes, run.places.sources[k]);
                place = sources[k]->bytes();
                currentArrays[k + 1] = &*sources[k];
            }
            std::memcpy(place, window(k, run.first), bytes);
            pointers[k] = place;
        }
        if (job.aliased < 0)
            destination.fillPattern();

        const FpState state = FpState::current();
        currentRun = &run;
        const int status = job.call(pointers, destination.bytes(), run.len);
        currentRun = nullptr;
        for (auto& array : currentArrays)
            array = nullptr;

        if (!(FpState::current() == state))
            fail(run, state.changesSince());
        if (status != expected.status)
            fail(run, "expected status " + std::to_string(expected.status) + ", got " + std::to_string(status));
        const auto result = job.destination.match(expected.values, destination.bytes(), expected.len, job.match, {});
        if (!result)
            fail(run, result.message());
        reportZones(run, destination, "destination");
        for (std::size_t k = 0; k < job.columns.size(); ++k) {
            if (!sources[k])
                continue;
            reportZones(run, *sources[k], "source " + std::to_string(k));
            if (std::memcmp(sources[k]->bytes(), window(k, run.first), len * job.columns[k].elementSize) != 0)
                fail(run, "source " + std::to_string(k) + " was changed");
        }
    }

    void reportZones(const Run& run, GuardedBytes& array, const std::string& name)
    {
        const std::string damage = array.redZoneDamage();
        if (damage.empty())
            return;
        fail(run, name + ": " + damage);
        array.repairRedZones();
    }

    const Job& job;
    int failures = 0;
    std::size_t step = 11;
};

// Sources at offsets that differ from each other and, over a sweep, take every combination with the first.
Places atOffsets(unsigned destination, unsigned source)
{
    Places places{};
    places.destination = Placement::offset(destination % offsets);
    for (unsigned k = 0; k < maxColumns; ++k)
        places.sources[k] = Placement::offset((source * (2 * k + 1) + 5 * k * (1 + destination / 4)) % offsets);
    return places;
}

Places everywhere(Placement destination, Placement source)
{
    Places places{};
    places.destination = destination;
    for (Placement& place : places.sources)
        place = source;
    return places;
}

void atGuards(Sweep& sweep, int len)
{
    sweep.at(len, everywhere(Placement::atEnd(), Placement::atEnd()));
    sweep.at(len, everywhere(Placement::atStart(), Placement::atStart()));
}

void atFewPlaces(Sweep& sweep, int len, unsigned elementSize)
{
    sweep.at(len, atOffsets(0, 0));
    sweep.at(len, atOffsets(elementSize, 0));
    sweep.at(len, atOffsets(0, elementSize));
    sweep.at(len, atOffsets(7, 3));
    atGuards(sweep, len);
}

} // namespace

void run(const Job& job)
{
    installFaultHandler();
    if (job.columns.size() > maxColumns) {
        ADD_FAILURE() << job.what << ": more sources than a sweep can hold";
        return;
    }
    Sweep sweep(job);
    const auto elementSize = static_cast<unsigned>(job.destination.size);
    const bool hasSources = job.columns.size() > (job.aliased < 0 ? 0U : 1U);
    constexpr int shortest = 70;
    // One more after 16 sweeps, so that a function which is every other one, or every eighth, gets all of them too.
    const unsigned round = job.plan.turn / offsets;
    const unsigned turn = job.plan.turn + round;

    if (job.plan.valuesOnly) {
        sweep.at(job.plan.longest, atOffsets(round * elementSize, turn));
        return;
    }
    for (int len = 1; len <= shortest && !sweep.gaveUp(); ++len) {
        atGuards(sweep, len);
        if (job.plan.full) {
            sweep.at(len, everywhere(Placement::atEnd(1), Placement::atEnd()));
            sweep.at(len, everywhere(Placement::atEnd(), Placement::atStart(1)));
            sweep.at(len, everywhere(Placement::atStart(), Placement::atEnd()));
            for (unsigned d = 0; d < offsets; ++d)
                for (unsigned s = 0; s < (hasSources ? offsets : 1U); ++s)
                    sweep.at(len, atOffsets(d, s));
        } else {
            const auto at = static_cast<unsigned>(len);
            sweep.at(len, atOffsets(0, at + turn));
            sweep.at(len, atOffsets((at + round) * elementSize, at / offsets + turn));
            sweep.at(len, atOffsets((at | 1) + 2 * round, turn));
        }
    }
    for (int len : job.plan.lengths) {
        if (len > shortest)
            atFewPlaces(sweep, len, elementSize);
    }
    // Every value of the columns at least once in a body and, shifted, in other lanes of it.
    sweep.at(job.plan.longest, atOffsets(0, 0));
    if (job.plan.full) {
        sweep.at(job.plan.longest, atOffsets(elementSize, 0));
        sweep.at(job.plan.longest - 1, atOffsets(1, 3));
    }
}

} // namespace tarn::test::detail
