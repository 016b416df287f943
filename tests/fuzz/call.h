// One call of one function: arguments chosen by a generator, tame or hostile, every array beside an unmapped page; then
// what the call did is compared with what every call has to keep.
#pragma once

#include "fuzz/described.h"
#include "fuzz/objects.h"
#include "interface/digest/values.h"
#include "support/guarded.h"
#include "support/hard_values.h"

#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tarn::test::fuzz {

class Call {
public:
    enum class Manner {
        tame,   ///< what documentation asks for
        hostile ///< anything that the function has to answer with a status, and any values
    };

    Call(const Described& called, Random& generator, Manner callManner);
    ~Call();
    Call(const Call&) = delete;
    Call& operator=(const Call&) = delete;

    /// False if arguments came up that no array in memory can match: choose again.
    bool prepare();
    /// What is wrong with the call; empty if nothing. `allowed` blocks of memory may be allocated.
    std::string run(int allowed = std::numeric_limits<int>::max());
    /// The call as one writes it, with sizes and places of arrays.
    std::string text() const;

    /// Frees what the call has made or worked with, and tells what is wrong with that.
    std::string finish();

    int status() const { return answer; }
    /// Blocks that the call has allocated.
    int blocks() const { return allocated; }
    bool made() const { return answer >= 0 && object && object->address != nullptr; }
    Object takeMade();

private:
    /// What stands where a function is to leave an address.
    static void* untouchedPlace() { return reinterpret_cast<void*>(std::uintptr_t{0x5A5A5A50}); }

    struct Array {
        std::size_t argument;
        digest::Element element;
        std::size_t count;
        std::unique_ptr<GuardedBytes> memory;
        std::vector<unsigned char> before;
        bool isConst;
    };

    const digest::Argument& argument(std::size_t i) const { return described.function->arguments[i]; }
    void chooseFaults();
    void number(std::size_t i);
    int integer(const std::string& name);
    void objectArgument(std::size_t i);
    bool pointer(std::size_t i);
    bool array(std::size_t i, digest::Element element, std::int64_t count);
    void fillArray(const digest::Argument& argument, Array& array);
    bool channels(std::size_t i, digest::Element element);
    bool countRefused() const;
    double work() const;
    std::string faultAfter(int outstanding);
    std::string damage() const;
    std::string placeFault(int outstanding);
    bool mayChangeOnError(const Array& array) const;
    Placement placement(std::size_t count);

    const Described& described;
    Random& random;
    const Manner manner;
    Values kind = Values::mixed;
    std::vector<digest::Slot> slots;
    std::vector<bool> nulls;
    Variables variables;
    std::vector<Array> arrays;
    std::vector<const void*> channelStarts;
    std::optional<Object> used;   ///< what the call works with
    std::optional<Object> object; ///< what it makes
    std::unique_ptr<GuardedBytes> foreign;
    void* place = nullptr;
    bool hasPlace = false;
    bool foreignChosen = false;
    bool sureRefusal = false;
    int answer = 0;
    int allocated = 0;
};

} // namespace tarn::test::fuzz
