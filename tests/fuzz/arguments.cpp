// How the arguments of a call are chosen.
#include "fuzz/call.h"

#include "interface/digest/rules.h"

#include <tarns.h>

#include <algorithm>
#include <climits>
#include <cstring>
#include <stdexcept>

namespace tarn::test::fuzz {
namespace {

// No array has more bytes.
constexpr std::int64_t largestArray = std::int64_t{1} << 21;
// Products of samples, taps and rates.
constexpr double longestWork = 4e6;

bool has(const std::string& name, const char* part) { return name.find(part) != std::string::npos; }

bool isOneOf(const std::string& name, std::initializer_list<const char*> names)
{
    return std::find(names.begin(), names.end(), name) != names.end();
}

/// The arrays that no check looks into, so that a call which is refused has no reason to read or write them. One
/// function is two in one, and the second may be the one that refuses.
bool isData(const std::string& name, const std::string& size)
{
    return (has(size, "len") || has(size, "Len") || has(size, "numIters")) && !has(name, "CartToPolar");
}

bool isNullRefused(const Described& described, std::size_t i)
{
    return described.function->arguments[i].depth > 0 && !described.nullable[i] &&
           described.documents(tarnStsNullPtrErr);
}

/// Only these direct filters look at the index that they are given.
bool checksIndex(const std::string& name)
{
    return has(name, "FIRLMS") || has(name, "FIR_Direct_16s") || has(name, "FIROne_Direct_16s");
}

int lengthFor(Random& random)
{
    switch (random.below(40)) {
    case 0:
        return 600 + static_cast<int>(random.below(5000));
    case 1:
    case 2:
    case 3:
    case 4:
        return 65 + static_cast<int>(random.below(600));
    default:
        return 1 + static_cast<int>(random.below(random.below(3) == 0 ? 8 : 64));
    }
}

} // namespace

void Call::chooseFaults()
{
    const bool some = manner == Manner::hostile && random.below(2) == 0;
    const std::size_t every = 1 + random.below(slots.size() + 1); // one null pointer on the average, or several
    for (std::size_t i = 0; i < slots.size(); ++i) {
        if (described.nullable[i])
            nulls[i] = random.below(4) == 0;
        else
            nulls[i] = some && isNullRefused(described, i) && random.below(every) == 0;
        sureRefusal = sureRefusal || (nulls[i] && !described.nullable[i]);
    }
    // Two functions convert taps, as many as the state tells, before they look at its kind.
    const bool looks = described.documents(tarnStsContextMatchErr) && !has(described.name(), "IIRSetTaps32s");
    foreignChosen = manner == Manner::hostile && looks && random.below(8) == 0;
    constexpr Values kinds[] = {Values::mixed, Values::random, Values::unit, Values::hard};
    kind = kinds[random.below(manner == Manner::tame ? 3 : 4)];
}

int Call::integer(const std::string& name)
{
    if (name == "numStates") { // anything else asks for tables of other shapes
        constexpr int trellises[] = {16, 32, 64};
        return trellises[random.below(3)];
    }
    if (name == "offset")
        return static_cast<int>(random.below(100));
    if (manner == Manner::hostile && random.below(5) == 0) {
        constexpr int extremes[] = {0,       -1,    INT_MIN,    INT_MIN + 1,   INT_MAX,   INT_MAX - 1, 1,
                                    2,       3,     1 << 30,    -(1 << 30),    1 << 16,   -2,          1 << 28,
                                    1 << 29, 46341, 0x55555556, (1 << 29) + 1, 0x2AAAAAAB};
        return extremes[random.below(std::size(extremes))];
    }
    if (digest::isLength(name))
        return lengthFor(random);
    if (const std::vector<int>* list = digest::integersFor(name))
        return (*list)[random.below(list->size())];
    return randomValue<int>(random, kind);
}

void Call::number(std::size_t i)
{
    const digest::Argument& number = argument(i);
    if (number.type == "int" || number.type == "TarnHintAlgorithm") {
        const int value = integer(number.name);
        slots[i].put(value);
        variables[number.name] = value;
        return;
    }
    const std::optional<digest::Element> element = digest::elementOf(number.type);
    if (!element)
        throw std::runtime_error("no rule for the number " + number.type + " " + number.name);
    const auto* interval = digest::intervalFor(number.name);
    if (interval != nullptr && (manner == Manner::tame || random.below(4) != 0))
        digest::putBetween(slots[i].data(), *element, interval->first, interval->second, random);
    else
        digest::fill(slots[i].data(), *element, 1, random, kind);
}

void Call::objectArgument(std::size_t i)
{
    if (nulls[i])
        return;
    if (!foreignChosen) {
        // Random generators do not know whose memory they lie in.
        const bool frees = has(described.name(), "Rand") && has(described.name(), "Free");
        used = makeObject(argument(i).type, random, frees);
        variables.insert(used->properties.begin(), used->properties.end());
        slots[i].put(used->address);
        return;
    }
    sureRefusal = true;
    // Properties of any object, so that arrays have sizes.
    for (const char* name : {"N", "taps", "delay", "up", "down", "delayLow", "delayHigh"})
        variables[name] = 1 + static_cast<int>(random.below(20));
    if (random.below(2) == 0) {
        constexpr const char* others[] = {"TarnsFFTSpec_C_32fc", "TarnsIIRState_64f", "TarnsRandUniformState_8u",
                                          "TarnsWTFwdState_32f"};
        const char* other = others[random.below(std::size(others))];
        if (argument(i).type.compare(0, 8, other, 8) != 0) {
            used = makeObject(other, random);
            slots[i].put(used->address);
            return;
        }
    }
    foreign = std::make_unique<GuardedBytes>(256, Placement::atEnd());
    std::memset(foreign->bytes(), 0, 256);
    if (random.below(2) == 0)
        digest::fill(reinterpret_cast<std::byte*>(foreign->bytes()), {digest::Real::u8, 1}, 256, random,
                     Values::random);
    slots[i].put(static_cast<void*>(foreign->bytes()));
}

/// Mostly where the page behind the array is unmapped. Single numbers are aligned as their type asks for.
Placement Call::placement(std::size_t count)
{
    const bool any = count > 1;
    switch (random.below(8)) {
    case 4:
        return Placement::atEnd(any ? static_cast<unsigned>(random.below(16)) : 16);
    case 5:
        return Placement::atStart();
    case 6:
        return Placement::atStart(any ? static_cast<unsigned>(random.below(64)) : 16);
    case 7:
        return Placement::offset(any ? static_cast<unsigned>(random.below(64)) : 0);
    default:
        return Placement::atEnd();
    }
}

void Call::fillArray(const digest::Argument& argument, Array& array)
{
    auto* const memory = reinterpret_cast<std::byte*>(array.memory->bytes());
    const digest::Element element = array.element;
    const auto between = [&](double low, double high) {
        for (std::size_t i = 0; i < array.count; ++i)
            digest::putBetween(memory + i * element.size(), element, low, high, random);
    };
    const auto variable = [&](const char* name) {
        return variables.contains(name) ? std::max<double>(static_cast<double>(variables[name]), 1) : 1.0;
    };
    const bool wild = manner == Manner::hostile && random.below(4) == 0;
    digest::fill(memory, element, array.count, random, kind);
    if (argument.name == "pTable")
        digest::sortAscending(memory, element, array.count);
    else if (argument.name == "pPhase" && element.real == digest::Real::s32 && !wild)
        between(0, variable("factor"));
    else if (argument.name == "pDlyLineIndex" && !(wild && checksIndex(described.name())))
        between(0, variable("tapsLen"));
    else if (argument.name == "pNextState")
        between(0, variable("numStates"));
    else if (const auto* interval = digest::intervalFor(argument.name); interval != nullptr && !wild)
        between(interval->first, interval->second);
    if (argument.name == "pPhase" && element.real == digest::Real::s32) {
        int phase = 0;
        std::memcpy(&phase, memory, sizeof phase);
        variables["phase"] = std::max(phase, 0);
    }
}

bool Call::array(std::size_t i, digest::Element element, std::int64_t count)
{
    const bool data = isData(described.name(), described.sizes[i]);
    const auto size = static_cast<std::int64_t>(element.size());
    if (count > largestArray / size || (sureRefusal && data && random.below(4) == 0)) {
        if (!sureRefusal || !data)
            return false;
        slots[i].put(unreadableBytes());
        return true;
    }
    // A count that is refused says nothing about the array.
    const std::int64_t some = count >= 1 || !countRefused() ? std::max<std::int64_t>(count, 0) : 3;
    Array made{i, element, static_cast<std::size_t>(some), nullptr, {}, argument(i).isConst};
    made.memory = std::make_unique<GuardedBytes>(made.count * element.size(), placement(made.count));
    fillArray(argument(i), made);
    made.before.assign(made.memory->bytes(), made.memory->bytes() + made.memory->byteSize());
    slots[i].put(static_cast<void*>(made.memory->bytes()));
    arrays.push_back(std::move(made));
    return true;
}

bool Call::channels(std::size_t i, digest::Element element)
{
    const std::int64_t number = std::clamp<std::int64_t>(variables["nChannels"], 1, 100);
    if (variables["nChannels"] > number)
        return false;
    for (std::int64_t channel = 0; channel < number; ++channel) {
        if (!array(i, element, evaluate(described.sizes[i], variables)))
            return false;
        channelStarts.push_back(slots[i].as<const void*>());
    }
    if (manner == Manner::hostile && random.below(8) == 0) {
        channelStarts[random.below(channelStarts.size())] = nullptr;
        sureRefusal = true;
    }
    slots[i].put(static_cast<const void*>(channelStarts.data()));
    return true;
}

bool Call::pointer(std::size_t i)
{
    const digest::Argument& pointer = argument(i);
    if (nulls[i])
        return true;
    if (isPlaceOfObject(pointer) || (pointer.depth == 2 && !pointer.isConst)) {
        hasPlace = true;
        place = untouchedPlace();
        slots[i].put(static_cast<void*>(&place));
        return true;
    }
    const std::string& size = described.sizes[i];
    if (size.empty())
        throw std::runtime_error("the comment on " + pointer.name +
                                 " tells no number of elements that describe.py reads");
    if (size == "bytes") { // of a work buffer, or of memory for an object
        const bool isWork = !has(described.name(), "Init");
        if (isWork && (!used || foreignChosen))
            return array(i, {digest::Real::u8, 1}, 16);
        const std::int64_t bytes = bytesAskedFor(described, isWork ? &*used : nullptr, variables);
        if (bytes < 0 && !sureRefusal && !countRefused())
            return array(i, {digest::Real::u8, 1}, 16); // so many parameters have no size
        return array(i, {digest::Real::u8, 1}, std::max<std::int64_t>(bytes, 0));
    }
    const std::optional<digest::Element> element = digest::elementOf(pointer.type == "void" ? "Tarn8u" : pointer.type);
    if (!element)
        throw std::runtime_error("no rule for the pointer " + pointer.type + "* " + pointer.name);
    if (pointer.depth == 2)
        return channels(i, *element);
    return array(i, *element, evaluate(size, variables));
}

/// True if a length or a factor is wrong by itself.
bool Call::countRefused() const
{
    for (const auto& [name, value] : variables) {
        const bool isSize = isOneOf(name, {"len", "srcLen", "dstLen", "src1Len", "src2Len", "numIters", "nChannels",
                                           "chanLen", "tblLen", "lenLow", "lenHigh", "maskSize", "length"});
        if (value < 1 &&
            ((isSize && described.documents(tarnStsSizeErr)) ||
             (name == "tapsLen" && (described.documents(tarnStsFIRLenErr) || described.documents(tarnStsSizeErr))) ||
             (isOneOf(name, {"upFactor", "downFactor"}) && described.documents(tarnStsFIRMRFactorErr)) ||
             (name == "factor" && described.documents(tarnStsSampleFactorErr)) ||
             (name == "numBq" && described.documents(tarnStsIIROrderErr))))
            return true;
        if (value < 0 && name == "order" &&
            (described.documents(tarnStsIIROrderErr) || described.documents(tarnStsFftOrderErr)))
            return true;
    }
    return false;
}

/// About how much there is to compute.
double Call::work() const
{
    double product = 1;
    for (const auto& [name, value] : variables)
        if (isOneOf(name, {"len", "numIters", "tapsLen", "upFactor", "downFactor", "taps", "up", "down", "maskSize"}))
            product *= static_cast<double>(std::max<std::int64_t>(value, 1));
    return product;
}

bool Call::prepare()
{
    chooseFaults();
    const auto each = [&](auto belongs, auto choose) {
        bool all = sureRefusal || work() <= longestWork;
        for (std::size_t i = 0; i < slots.size() && all; ++i)
            if (belongs(i))
                all = choose(i);
        return all;
    };
    const auto isGivenObject = [&](std::size_t i) { return isObject(argument(i)) && !becomesObject(described, i); };
    const auto isPhase = [&](std::size_t i) { return argument(i).name == "pPhase"; };
    for (std::size_t i = 0; i < slots.size(); ++i)
        if (argument(i).depth == 0)
            number(i);
        else if (isGivenObject(i))
            objectArgument(i);
    sureRefusal = sureRefusal || countRefused();
    variables.try_emplace("phase", 0);
    for (const char* name : {"N", "taps", "delay", "up", "down", "delayLow", "delayHigh"}) // of a null object
        variables.try_emplace(name, 1);
    return each(isPhase, [&](std::size_t i) { return pointer(i); }) &&
           each([&](std::size_t i) { return argument(i).depth > 0 && !isGivenObject(i) && !isPhase(i); },
                [&](std::size_t i) { return pointer(i); });
}

} // namespace tarn::test::fuzz
