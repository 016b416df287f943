// A call from its preparation to the freeing of what it made, and what it has to keep.
#include "fuzz/call.h"

#include "support/fpstate.h"
#include "support/memory_watch.h"

#include <tarns.h>

#include <algorithm>
#include <cstdio>
#include <cstring>

namespace tarn::test::fuzz {
namespace {

// No block that a call asks for may have more bytes.
constexpr std::size_t largestBlock = std::size_t{1} << 25;

bool has(const std::string& name, const char* part) { return name.find(part) != std::string::npos; }

} // namespace

Call::Call(const Described& called, Random& generator, Manner callManner)
    : described(called), random(generator), manner(callManner), slots(called.function->arguments.size()),
      nulls(slots.size())
{
}

Call::~Call() { finish(); }

std::string Call::finish()
{
    std::string fault;
    for (std::optional<Object>* one : {&used, &object})
        if (*one) {
            const std::string message = freeObject(**one);
            if (fault.empty())
                fault = message;
        }
    return fault;
}

Object Call::takeMade()
{
    Object taken = std::move(*object);
    object.reset();
    return taken;
}

std::string Call::run(int allowed)
{
    const bool turned = manner == Manner::hostile && random.below(8) == 0;
    const RoundingModeScope rounding(turned ? allRoundingModes[random.below(allRoundingModes.size())]
                                            : RoundingMode::nearest);
    const FpState state = FpState::current();
    digest::Slot result;
    int outstanding = 0;
    {
        MemoryWatch watch(allowed, largestBlock);
        described.function->call(described.function->function, slots.data(), result);
        outstanding = watch.outstanding();
        allocated = watch.allocated();
    }
    const std::string changes = state.changesSince();
    answer = described.statuses.empty() ? 0 : result.as<int>();
    if (!changes.empty())
        return "left another floating-point state: " + changes;
    return faultAfter(outstanding);
}

std::string Call::faultAfter(int outstanding)
{
    if (!described.statuses.empty() && !described.documents(answer))
        return "answered " + std::to_string(answer) + ", which its comment does not list";
    if (sureRefusal && answer >= 0)
        return "answered " + std::to_string(answer) + " where an error is documented";
    const std::string written = damage();
    if (!written.empty())
        return written;
    int expected = 0; // of blocks that stay
    if (used && answer >= 0 && has(described.name(), "Free")) {
        expected = -used->blocks;
        used->address = nullptr;
    }
    const std::string misplaced = placeFault(outstanding);
    if (!misplaced.empty())
        return misplaced;
    if (object && object->allocated)
        expected = object->blocks;
    if (canRefuseMemory && outstanding != expected)
        return "left " + std::to_string(outstanding - expected) + " blocks of memory too many";
    return {};
}

std::string Call::damage() const
{
    for (const Array& array : arrays) {
        const std::string& name = argument(array.argument).name;
        const std::string zone = array.memory->redZoneDamage();
        if (!zone.empty()) {
            array.memory->repairRedZones();
            return "wrote beside " + name + ": " + zone;
        }
        const bool mayChange = !array.isConst && (answer >= 0 || mayChangeOnError(array));
        if (!mayChange && std::memcmp(array.memory->bytes(), array.before.data(), array.before.size()) != 0)
            return array.isConst ? "changed " + name : "answered " + std::to_string(answer) + " and changed " + name;
    }
    if (foreign && !foreign->redZoneDamage().empty()) {
        foreign->repairRedZones();
        return "wrote beside a foreign object";
    }
    return {};
}

/// What comments allow.
bool Call::mayChangeOnError(const Array& array) const
{
    const std::string& name = argument(array.argument).name;
    if (name == "pBuffer")
        return true;
    if (has(described.name(), "IIROne_BiQuadDirect") && answer == tarnStsScaleRangeErr)
        return name == "pDlyLine";
    if (has(described.name(), "CartToPolar")) // magnitudes, then phases, whatever became of the others
        return true;
    // Zeros and quotients come before and after what memory is needed for.
    for (const char* part : {"FilterMedian", "CrossCorr", "AutoCorr_NormB"})
        if (has(described.name(), part) && answer == tarnStsNoMemErr)
            return name == "pDst";
    return false;
}

std::string Call::placeFault(int outstanding)
{
    const bool makes = has(described.name(), "Init");
    if (makes && !hasPlace && answer >= 0) // in memory that becomes the object
        for (Array& array : arrays)
            if (becomesObject(described, array.argument)) {
                object.emplace();
                object->type = argument(array.argument).type;
                object->address = array.memory->bytes();
            }
    if (hasPlace && answer >= 0 && (place == nullptr || place == untouchedPlace()))
        return "answered " + std::to_string(answer) + " and left no address";
    const bool stored = hasPlace && place != nullptr && place != untouchedPlace();
    // Recursive filters keep a state that waits for other taps, and that of a Hilbert transform what it has so far.
    const bool keeps = answer == tarnStsDivByZeroErr || has(described.name(), "Hilbert");
    if (stored && answer < 0 && !keeps)
        return "answered " + std::to_string(answer) + " and left an address";
    if (stored && makes) {
        object.emplace();
        object->type = argument(0).type;
        object->address = place;
        object->allocated = has(described.name(), "InitAlloc");
        object->blocks = outstanding;
        for (const Array& array : arrays)
            if (!object->allocated && argument(array.argument).name == "pBuffer" &&
                (place < array.memory->bytes() || place >= array.memory->bytes() + array.memory->byteSize()))
                return "left an address outside of pBuffer";
    }
    if (object) {
        object->properties = propertiesOf(described, variables);
        object->maker = text();
        if (answer >= 0 && !object->allocated)
            for (Array& array : arrays)
                object->memory.push_back(std::move(array.memory));
        if (!object->memory.empty())
            arrays.clear();
    }
    return {};
}

std::string Call::text() const
{
    std::string all = described.name() + "(";
    for (std::size_t i = 0; i < slots.size(); ++i) {
        all += (i == 0 ? "" : ", ") + argument(i).name + " = ";
        if (argument(i).depth == 0) {
            char number[64];
            const std::string& type = argument(i).type;
            if (type == "Tarn32f")
                std::snprintf(number, sizeof number, "%a", static_cast<double>(slots[i].as<float>()));
            else if (type == "Tarn64f")
                std::snprintf(number, sizeof number, "%a", slots[i].as<double>());
            else if (type == "int" || type == "TarnHintAlgorithm" || type == "Tarn32s")
                std::snprintf(number, sizeof number, "%d", slots[i].as<int>());
            else
                std::snprintf(number, sizeof number, "bits %#llx",
                              static_cast<unsigned long long>(slots[i].as<std::uint64_t>()));
            all += number;
        } else if (slots[i].as<void*>() == nullptr) {
            all += "null";
        } else if (slots[i].as<void*>() == unreadableBytes()) {
            all += "an unmapped page";
        } else if (isObject(argument(i)) && used) {
            all += std::string(foreignChosen ? "another kind, " : "") + "made by " + used->maker;
        } else if (foreign && isObject(argument(i))) {
            all += "bytes that are no object";
        } else {
            const auto found =
                std::find_if(arrays.begin(), arrays.end(), [&](const Array& array) { return array.argument == i; });
            if (found != arrays.end() && found->memory)
                all += "[" + std::to_string(found->count) + " that " + toString(found->memory->placement()) + "]";
            else
                all += "an address";
        }
    }
    return all + ")";
}

} // namespace tarn::test::fuzz
