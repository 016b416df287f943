#include "fuzz/objects.h"

#include "fuzz/call.h"
#include "support/memory_watch.h"

#include <algorithm>
#include <stdexcept>

namespace tarn::test::fuzz {
namespace {

bool has(const std::string& name, const char* part) { return name.find(part) != std::string::npos; }

/// The functions that have to do with objects of one type. Found once: there are many functions to ask.
struct Kin {
    std::vector<const Described*> making;
    const Described* freeing = nullptr;
    const Described* sizing = nullptr; ///< of its work buffer
};

const Kin& kinOf(const std::string& type)
{
    static const auto known = [] {
        std::map<std::string, Kin> kins;
        for (const Described& one : describedFunctions()) {
            const auto& arguments = one.function->arguments;
            for (std::size_t i = 0; i < arguments.size(); ++i) {
                if (isPlaceOfObject(arguments[i]) || becomesObject(one, i))
                    kins[arguments[i].type].making.push_back(&one);
                else if (isObject(arguments[i]) && arguments.size() == 1 && has(one.name(), "Free"))
                    kins[arguments[i].type].freeing = &one;
                else if (isObject(arguments[i]) && has(one.name(), "GetBufSize"))
                    kins[arguments[i].type].sizing = &one;
            }
        }
        return kins;
    }();
    const auto found = known.find(type);
    if (found == known.end() || found->second.making.empty())
        throw std::runtime_error("nothing makes an object of type " + type);
    return found->second;
}

std::int64_t valueOr(const Variables& numbers, const char* name, std::int64_t otherwise)
{
    const auto found = numbers.find(name);
    return found == numbers.end() ? otherwise : found->second;
}

/// Calls a function that answers through its last argument.
std::int64_t asked(const Described& described, std::vector<digest::Slot> slots)
{
    int size = -1;
    slots.back().put(&size);
    const int status = (*described.function)(slots).as<int>();
    return status < 0 ? -1 : size;
}

} // namespace

bool isObject(const digest::Argument& argument)
{
    return argument.depth == 1 && argument.type.starts_with("Tarns") &&
           (has(argument.type, "State") || has(argument.type, "Spec"));
}

bool isPlaceOfObject(const digest::Argument& argument)
{
    return argument.depth == 2 && argument.type.starts_with("Tarns");
}

bool becomesObject(const Described& described, std::size_t argument)
{
    return isObject(described.function->arguments[argument]) && described.sizes[argument] == "bytes";
}

Variables propertiesOf(const Described& maker, const Variables& numbers)
{
    Variables properties;
    const auto number = [&](const char* name, std::int64_t otherwise) { return valueOr(numbers, name, otherwise); };
    const std::string& name = maker.name();
    if (has(name, "FFT"))
        properties["N"] = std::int64_t{1} << std::clamp<std::int64_t>(number("order", 0), 0, 40);
    else if (numbers.contains("length"))
        properties["N"] = numbers.at("length");
    if (has(name, "IIR")) {
        const bool biquads = numbers.contains("numBq");
        properties["taps"] = biquads ? 6 * numbers.at("numBq") : 2 * number("order", 0) + 2;
        properties["delay"] = biquads ? 2 * numbers.at("numBq") : number("order", 0);
    } else if (has(name, "FIRLMS")) {
        properties["taps"] = number("tapsLen", 0);
        properties["delay"] = number("updateDly", 0) + number("tapsLen", 0) * number("tapStep", 1);
    } else if (has(name, "FIR")) {
        const std::int64_t up = number("upFactor", 1);
        properties["taps"] = number("tapsLen", 0);
        properties["up"] = up;
        properties["down"] = number("downFactor", 1);
        properties["delay"] = (number("tapsLen", 0) + up - 1) / std::max<std::int64_t>(up, 1);
    }
    // A bank that goes forward keeps samples of the full rate, the other one those of a channel.
    const auto delay = [&](const char* taps, const char* offset) {
        const std::int64_t len = number(taps, 0);
        const std::int64_t offs = number(offset, 0);
        if (has(name, "WTFwd"))
            return std::max<std::int64_t>(len + offs - 1, 0);
        return offs < 0 ? len / 2 : (offs + len - 1) / 2;
    };
    if (has(name, "WT")) {
        properties["delayLow"] = delay("lenLow", "offsLow");
        properties["delayHigh"] = delay("lenHigh", "offsHigh");
    }
    return properties;
}

Object makeObject(const std::string& type, Random& random, bool onlyAllocated)
{
    const Kin& kin = kinOf(type);
    for (int attempt = 0; attempt < 60; ++attempt) {
        const Described& maker = *kin.making[random.below(kin.making.size())];
        Call making(maker, random, Call::Manner::tame);
        if ((onlyAllocated && !has(maker.name(), "InitAlloc")) || !making.prepare())
            continue;
        const std::string fault = making.run();
        if (!fault.empty())
            throw std::runtime_error(fault + " in " + making.text());
        if (making.made())
            return making.takeMade();
    }
    throw std::runtime_error("no arguments were found that make an object of type " + type);
}

std::string freeObject(Object& object)
{
    const Described* const freeing = kinOf(object.type).freeing;
    if (object.address == nullptr || !object.allocated || freeing == nullptr)
        return {};
    std::vector<digest::Slot> slots(1);
    slots[0].put(object.address);
    object.address = nullptr;
    MemoryWatch watch;
    const int status = (*freeing->function)(slots).as<int>();
    if (status != 0)
        return freeing->name() + " answers " + std::to_string(status) + " for an object made by " + object.maker;
    if (canRefuseMemory && watch.outstanding() != -object.blocks)
        return freeing->name() + " frees " + std::to_string(-watch.outstanding()) + " of the " +
               std::to_string(object.blocks) + " blocks of " + object.maker;
    return {};
}

std::int64_t bytesAskedFor(const Described& described, const Object* object, const Variables& numbers)
{
    if (object != nullptr) { // a call that works
        const Described* const sizing = kinOf(object->type).sizing;
        if (sizing == nullptr)
            throw std::runtime_error("nothing tells the size of a buffer for " + object->type);
        std::vector<digest::Slot> slots(2);
        slots[0].put(object->address);
        return asked(*sizing, slots);
    }
    const Described* sizing = nullptr;
    for (const char* verb : {"GetStateSize", "GetSize"}) {
        std::string name = described.name();
        name.replace(name.find("Init"), 4, verb);
        if (sizing == nullptr)
            sizing = findDescribed(name);
    }
    if (sizing == nullptr)
        throw std::runtime_error("nothing tells the size of what " + described.name() + " builds");
    std::vector<digest::Slot> slots;
    for (const digest::Argument& argument : sizing->function->arguments)
        slots.emplace_back().put(static_cast<int>(valueOr(numbers, argument.name.c_str(), 0)));
    return asked(*sizing, slots);
}

} // namespace tarn::test::fuzz
