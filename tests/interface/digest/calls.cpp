// A call: numbers first, because they tell how long the arrays are, then objects, then arrays. An object is made by the
// function whose first argument has one star more, and what happened to it is seen by calling what works with it.
#include "interface/digest/calls.h"

#include "interface/digest/rules.h"
#include "interface/digest/special_calls.h"
#include "interface/digest/values.h"

#include <algorithm>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <stdexcept>

namespace tarn::test::digest {
namespace {

constexpr int callsOfEach = 96;

/// Every short length, some that are beyond all unrolled blocks, and at last those that threads share.
int lengthOf(int call, Random& random)
{
    constexpr int longOnes[] = {1700, 2500, 4100, 9000, 17000, 40000};
    constexpr int firstLong = callsOfEach - static_cast<int>(std::size(longOnes));
    if (call < 64)
        return call + 1;
    return call < firstLong ? 65 + static_cast<int>(random.below(600)) : longOnes[call - firstLong];
}

bool has(const std::string& name, const char* part) { return name.find(part) != std::string::npos; }

bool makes(const FrontEnd& function, const Argument& argument)
{
    return argument.depth == 2 || (has(function.name, "Init") && !argument.isConst);
}

bool isObject(const Argument& argument)
{
    return argument.depth > 0 && !elementOf(argument.type) && has(argument.type, "Tarns");
}

// Two functions answer with an error whatever they did.
bool refusesItsOwn(const std::string& name)
{
    return name == "tarnsIIRSetTaps32s_16s" || name == "tarnsIIRSetTaps32sc_16sc";
}

struct Object {
    std::string type;
    void* address = nullptr;
    std::size_t count = 0;    ///< elements of the arrays that belong to it: its taps, its block
    std::size_t manifold = 1; ///< elements of each iteration
    bool allocated = false;
};

/// Memory of one argument at an offset that the element does not ask for.
class Area {
public:
    Area(std::size_t bytes, std::size_t offset) : memory(new std::byte[bytes + 2 * boundary])
    {
        const auto address = reinterpret_cast<std::uintptr_t>(memory.get());
        start = memory.get() + (boundary - address % boundary) % boundary + offset % boundary;
    }
    std::byte* get() const { return start; }

private:
    static constexpr std::size_t boundary = 64;
    std::unique_ptr<std::byte[]> memory;
    std::byte* start;
};

struct Array {
    Area area;
    Element element;
    std::size_t count;
};

class Calling {
public:
    /// `existing` is an object to use instead of a new one.
    Calling(const FrontEnd& calledFunction, int callNumber, Random& generator, const Object* existing = nullptr)
        : function(calledFunction), call(callNumber), random(generator), given(existing)
    {
    }
    ~Calling();
    Calling(const Calling&) = delete;
    Calling& operator=(const Calling&) = delete;

    /// Adds status and outputs.
    void run(Hash& hash);
    /// Adds what the objects do that were made or changed.
    void probe(Hash& hash);

    int status = 0;
    bool changed = false;
    std::optional<Object> made;

private:
    void number(const Argument& argument, Slot& slot);
    void object(const Argument& argument, Slot& slot);
    void pointer(const Argument& argument, Slot& slot);
    Array& array(Element element, std::size_t elements, std::vector<Array>& list);
    void channels(const Argument& argument, Slot& slot);
    std::uint64_t outputsBefore() const;
    void probeOne(const Object& touched, Hash& hash);
    [[noreturn]] void refuse(const Argument& argument) const
    {
        throw std::runtime_error("no rule for the argument " + argument.type +
                                 std::string(std::size_t(argument.depth), '*') + " " + argument.name);
    }

    const FrontEnd& function;
    const int call;
    Random& random;
    const Object* given;
    std::vector<Object> used;
    std::size_t count = 4;
    std::size_t manifold = 1;
    int factor = 1;
    int taps = 1;
    Values kind = Values::mixed;
    std::vector<Array> inputs;
    std::vector<Array> outputs;
    std::vector<Area> work;
    std::vector<const std::byte*> channelStarts;
    std::unique_ptr<int> size;
    std::unique_ptr<void*> place;
};

/// The functions that have to do with objects of one type. Found once: there are many functions to ask.
struct Kin {
    const FrontEnd* freeing = nullptr;
    std::vector<const FrontEnd*> making;
    const FrontEnd* working = nullptr; ///< the first that gives results
};

const Kin& kinOf(const std::string& type)
{
    static std::map<std::string, Kin> known;
    const auto [place, isNew] = known.try_emplace(type);
    Kin& kin = place->second;
    if (!isNew)
        return kin;
    for (const FrontEnd& one : frontEnds()) {
        const auto& arguments = one.arguments;
        const auto any = [&](auto is) { return std::any_of(arguments.begin(), arguments.end(), is); };
        if (kin.freeing == nullptr && has(one.name, "Free") && arguments.size() == 1 && arguments[0].type == type)
            kin.freeing = &one;
        // Change of rate is only for functions whose own it is.
        if (has(one.name, "InitAlloc") && !has(one.name, "FIRMR") && arguments[0].type == type)
            kin.making.push_back(&one);
        if (kin.working == nullptr && !has(one.name, "Init") &&
            any([](const Argument& a) { return a.name == "pDst" || a.name == "pDstLow"; }) &&
            any([&](const Argument& a) { return a.type == type && a.depth == 1; }))
            kin.working = &one;
    }
    return kin;
}

void release(const Object& object)
{
    const FrontEnd* freeing = object.allocated ? kinOf(object.type).freeing : nullptr;
    if (freeing == nullptr)
        return;
    std::vector<Slot> values(1);
    values[0].put(object.address);
    (*freeing)(values);
}

Object makeObject(const std::string& type, int call, Random& random)
{
    for (const FrontEnd* one : kinOf(type).making) {
        for (int attempt = 0; attempt < 20; ++attempt) {
            Calling making(*one, call, random);
            Hash unused;
            making.run(unused);
            if (making.made) {
                const Object object = *making.made;
                making.made.reset(); // it is ours now
                return object;
            }
        }
    }
    throw std::runtime_error("nothing makes an object of type " + type);
}

Calling::~Calling()
{
    for (const Object& object : used)
        release(object);
    if (made)
        release(*made);
}

void Calling::number(const Argument& argument, Slot& slot)
{
    if (argument.type == "int" || argument.type == "TarnHintAlgorithm") {
        int value = 0;
        if (isLength(argument.name)) {
            value = lengthOf(call, random);
        } else if (const std::vector<int>* list = integersFor(argument.name)) {
            value = (*list)[random.below(list->size())];
        } else {
            refuse(argument);
        }
        slot.put(value);
        if (argument.name == "src2Len") // results may be as long as both vectors
            count += static_cast<std::size_t>(value);
        else if (argument.name == "order" && has(function.name, "FFT"))
            count = std::max(count, (std::size_t{1} << value) + 2);
        else if (argument.name == "order") // of a filter: taps on either side
            count = std::max(count, 2 * static_cast<std::size_t>(value) + 2);
        else if (argument.name == "length") // of a transform, whose spectrum may have two reals more
            count = std::max(count, static_cast<std::size_t>(value) + 2);
        else if (argument.name == "numBq") // with six taps each
            count = std::max(count, static_cast<std::size_t>(6 * std::max(value, 1)));
        else if (isLength(argument.name) || has(argument.name, "Len"))
            count = std::max(count, static_cast<std::size_t>(value));
        else if (has(argument.name, "lenLow") || has(argument.name, "lenHigh")) // with the delays that follow them
            count = std::max(count, static_cast<std::size_t>(value) + 40);
        else if (argument.name == "factor" || argument.name == "nChannels")
            manifold = static_cast<std::size_t>(factor = std::max(value, 1));
        if (argument.name == "dstLen" && has(function.name, "WTFwd")) // two samples for one of each channel
            count = std::max(count, 2 * static_cast<std::size_t>(value));
        if (argument.name == "srcLen" && has(function.name, "WTInv"))
            count = std::max(count, 2 * static_cast<std::size_t>(value));
        if (argument.name == "tapStep") // between the samples that taps meet, and then some more in the delay line
            count *= static_cast<std::size_t>(std::max(value, 1));
        else if (argument.name == "updateDly")
            count += static_cast<std::size_t>(value);
        if (argument.name == "upFactor" || argument.name == "downFactor")
            manifold = std::max(manifold, static_cast<std::size_t>(std::max(value, 1)));
        if (argument.name == "tapsLen" && has(function.name, "Direct")) // for doubled delay lines
            count = std::max(count, 2 * static_cast<std::size_t>(taps = value));
        return;
    }
    const std::optional<Element> element = elementOf(argument.type);
    if (!element)
        refuse(argument);
    if (const auto* interval = intervalFor(argument.name))
        putBetween(slot.data(), *element, interval->first, interval->second, random);
    else if (isDataNumber(argument.name))
        fill(slot.data(), *element, 1, random, kind);
    else
        refuse(argument);
}

void Calling::object(const Argument& argument, Slot& slot)
{
    if (argument.depth == 2) {
        place = std::make_unique<void*>(nullptr);
        slot.put(place.get());
        return;
    }
    if (makes(function, argument)) { // in memory of the caller
        work.emplace_back(std::size_t{1} << 16, 16 * random.below(4));
        used.push_back({argument.type, work.back().get(), count, manifold, false});
    } else {
        used.push_back(given != nullptr ? Object{given->type, given->address, given->count, given->manifold, false}
                                        : makeObject(argument.type, call, random));
    }
    count = std::max(count, used.back().count);
    manifold = std::max(manifold, used.back().manifold);
    slot.put(used.back().address);
}

Array& Calling::array(Element element, std::size_t elements, std::vector<Array>& list)
{
    // Bytes may stand for wider elements, which have no type of their own.
    const std::size_t all = (elements * manifold + 3) * (element.real == Real::u8 ? 4 : 1);
    const std::size_t places = random.below(4);
    const std::size_t offset = places == 0 ? 0 : random.below(64) * (places == 1 ? 1 : element.size());
    list.push_back({Area(all * element.size(), offset), element, all});
    fill(list.back().area.get(), element, all, random, kind);
    return list.back();
}

void Calling::channels(const Argument& argument, Slot& slot)
{
    for (std::size_t i = 0; i < manifold; ++i)
        channelStarts.push_back(array(*elementOf(argument.type), count, inputs).area.get());
    slot.put(channelStarts.data());
}

void Calling::pointer(const Argument& argument, Slot& slot)
{
    const std::optional<Element> element = elementOf(argument.type);
    if (!element || argument.depth > (argument.isConst ? 2 : 1))
        refuse(argument);
    if (argument.depth == 2) {
        channels(argument, slot);
        return;
    }
    if (isSizeInBytes(argument.name)) {
        size = std::make_unique<int>(-1);
        slot.put(size.get());
        return;
    }
    if (isWorkMemory(argument.name)) {
        if (!has(function.name, "Init") && random.below(3) == 0) {
            slot.put(static_cast<void*>(nullptr)); // which the call is to allocate
            return;
        }
        work.emplace_back((std::size_t{1} << 20) + 64 * count, random.below(64));
        slot.put(work.back().get());
        return;
    }
    if (argument.name == "pDlyLine" && argument.isConst && random.below(4) == 0) {
        slot.put(static_cast<void*>(nullptr)); // silence
        return;
    }
    Array& values = array(*element, count, argument.isConst ? inputs : outputs);
    if (argument.name == "pTable")
        sortAscending(values.area.get(), *element, values.count);
    else if (argument.name == "pPhase" && element->real == Real::s32)
        putBetween(values.area.get(), *element, 0, factor, random);
    else if (argument.name == "pDlyLineIndex")
        putBetween(values.area.get(), *element, 0, taps, random);
    else if (const auto* interval = intervalFor(argument.name))
        putBetween(values.area.get(), *element, interval->first, interval->second, random);
    else if (!isDataArray(argument.name))
        refuse(argument);
    slot.put(values.area.get());
}

std::uint64_t Calling::outputsBefore() const
{
    Hash hash;
    for (const Array& output : outputs)
        hash.add(output.area.get(), output.element, output.count);
    return hash.get();
}

void Calling::probeOne(const Object& touched, Hash& hash)
{
    const FrontEnd* const working = kinOf(touched.type).working;
    if (working == nullptr)
        return;
    for (int length : {5, 70}) {
        Calling probing(*working, length, random, &touched);
        probing.run(hash);
    }
}

void Calling::run(Hash& hash)
{
    constexpr Values kinds[] = {Values::mixed, Values::random, Values::unit, Values::unit};
    kind = kinds[random.below(std::size(kinds))];
    if (has(function.name, "8x8")) // which are told no length
        count = 8;
    std::vector<Slot> slots(function.arguments.size());
    const auto each = [&](bool (*belongs)(const Argument&), void (Calling::*choose)(const Argument&, Slot&)) {
        for (std::size_t i = 0; i < slots.size(); ++i)
            if (belongs(function.arguments[i]))
                (this->*choose)(function.arguments[i], slots[i]);
    };
    each([](const Argument& a) { return a.depth == 0; }, &Calling::number);
    each([](const Argument& a) { return isObject(a); }, &Calling::object);
    each([](const Argument& a) { return a.depth > 0 && !isObject(a); }, &Calling::pointer);

    const std::uint64_t before = outputsBefore();
    status = function(slots).as<int>();
    const std::uint64_t after = outputsBefore();
    changed = after != before || (outputs.empty() && status >= 0);
    hash.add(static_cast<std::uint64_t>(status));
    hash.add(after);
    if (size)
        hash.add(*size > 0);

    if (has(function.name, "Free"))
        used.clear();
    if (place && status >= 0 && *place != nullptr)
        made = Object{function.arguments[0].type, *place, count, manifold, has(function.name, "InitAlloc")};
}

void Calling::probe(Hash& hash)
{
    if (made)
        probeOne(*made, hash);
    if (status < 0 && !refusesItsOwn(function.name))
        return;
    for (const Object& touched : used)
        probeOne(touched, hash);
}

} // namespace

Summary callOften(const FrontEnd& function)
{
    Summary summary;
    Hash hash;
    hash.add(function.name);
    if (callSpecially(function.name, hash)) {
        summary.hash = hash.get();
        return summary;
    }
    Random random(hash.get());
    int done = 0;
    try {
        for (int call = 0; call < callsOfEach; ++call) {
            Calling calling(function, call, random);
            calling.run(hash);
            calling.probe(hash);
            done += calling.status >= 0 && calling.changed ? 1 : 0;
        }
    } catch (const std::runtime_error& error) {
        summary.fault = error.what();
    }
    if (summary.fault.empty() && done < callsOfEach / 10 && !refusesItsOwn(function.name))
        summary.fault = "only " + std::to_string(done) + " of " + std::to_string(callsOfEach) + " calls did anything";
    summary.hash = hash.get();
    return summary;
}

} // namespace tarn::test::digest
