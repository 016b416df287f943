// States and specifications for the calls that work with them, made by the library's own functions, and what their
// parameters say about the arrays that belong to them.
#pragma once

#include "fuzz/described.h"
#include "support/guarded.h"
#include "support/hard_values.h"

#include <memory>
#include <string>
#include <vector>

namespace tarn::test::fuzz {

struct Object {
    std::string type;
    void* address = nullptr;
    Variables properties;
    bool allocated = false;                            ///< by the library
    int blocks = 0;                                    ///< how many pieces it was given for that
    std::string maker;                                 ///< the call that made it, with its arguments
    std::vector<std::unique_ptr<GuardedBytes>> memory; ///< what it lies in if it is in ours
};

/// True of a pointer to something that only the library knows.
bool isObject(const digest::Argument& argument);
/// True of the argument where a function leaves the object that it makes.
bool isPlaceOfObject(const digest::Argument& argument);
/// True of the memory that becomes an object.
bool becomesObject(const Described& described, std::size_t argument);

/// What the parameters of the function that makes an object tell about it: N, taps, delay, up, down and the like.
Variables propertiesOf(const Described& maker, const Variables& numbers);

/// One that a random function of those that make the type was given sensible arguments for: an allocated one, or one in
/// memory of ours.
Object makeObject(const std::string& type, Random& random, bool onlyAllocated = false);
/// What is wrong with the way it went; empty if nothing.
std::string freeObject(Object& object);

/// Bytes that the work buffer of a call has, or the memory of an object to be built: the library is asked.
std::int64_t bytesAskedFor(const Described& described, const Object* object, const Variables& numbers);

} // namespace tarn::test::fuzz
