// The table that describe.py made of the headers, and the formulas in it.
#include "fuzz/described.h"

#include <tarns.h>

#include <algorithm>
#include <cctype>
#include <sstream>
#include <stdexcept>

namespace tarn::test::fuzz {
namespace {

struct Line {
    const char* name;
    std::vector<int> statuses;
    const char* sizes;
};

const std::vector<Line>& lines()
{
#define UNBRACED(...) __VA_ARGS__
#define DESCRIBED(name, statuses, sizes) {name, UNBRACED statuses, sizes},
    static const std::vector<Line> all = {
#include "described.inc"
    };
#undef DESCRIBED
#undef UNBRACED
    return all;
}

/// Sums of products of numbers, names, brackets and max(a,b).
class Formula {
public:
    Formula(const std::string& formula, const Variables& known) : text(formula), variables(known) {}

    std::int64_t value()
    {
        const std::int64_t result = sum();
        if (at != text.size())
            fail();
        return result;
    }

private:
    [[noreturn]] void fail() const { throw std::runtime_error("the formula \"" + text + "\" has no value"); }
    bool take(char c)
    {
        if (at == text.size() || text[at] != c)
            return false;
        ++at;
        return true;
    }
    std::int64_t sum()
    {
        std::int64_t result = product();
        for (;;) {
            if (take('+'))
                result += product();
            else if (take('-'))
                result -= product();
            else
                return result;
        }
    }
    std::int64_t product()
    {
        std::int64_t result = factor();
        for (;;) {
            if (take('*')) {
                if (__builtin_mul_overflow(result, factor(), &result))
                    fail();
            } else if (take('/')) {
                result = result / divisor();
            } else if (take('%')) {
                result = result % divisor();
            } else {
                return result;
            }
        }
    }
    std::int64_t divisor()
    {
        const std::int64_t result = factor();
        return result == 0 ? 1 : result; // a count that the call refuses anyway
    }
    std::int64_t factor()
    {
        if (take('(')) {
            const std::int64_t result = sum();
            if (!take(')'))
                fail();
            return result;
        }
        std::string word;
        while (at < text.size() && std::isalnum(static_cast<unsigned char>(text[at])) != 0)
            word += text[at++];
        if (word == "max" && take('(')) {
            const std::int64_t first = sum();
            const std::int64_t second = take(',') ? sum() : first;
            if (!take(')'))
                fail();
            return std::max(first, second);
        }
        if (!word.empty() && std::isdigit(static_cast<unsigned char>(word[0])) != 0)
            return std::stoll(word);
        const auto found = variables.find(word);
        if (found == variables.end())
            fail();
        return found->second;
    }

    const std::string& text;
    const Variables& variables;
    std::size_t at = 0;
};

Described described(const Line& line)
{
    Described result;
    result.function = digest::findFrontEnd(line.name);
    result.statuses = line.statuses;
    std::istringstream sizes(line.sizes);
    for (const digest::Argument& argument : result.function->arguments) {
        std::string size;
        if (argument.depth > 0) {
            std::getline(sizes, size, ';');
            size.erase(0, size.find('=') + 1);
        }
        const bool nullable = !size.empty() && size.back() == '?';
        if (nullable)
            size.pop_back();
        result.sizes.push_back(size);
        result.nullable.push_back(nullable);
    }
    return result;
}

} // namespace

std::int64_t evaluate(const std::string& formula, const Variables& variables)
{
    return Formula(formula, variables).value();
}

bool Described::documents(int status) const
{
    return std::find(statuses.begin(), statuses.end(), status) != statuses.end();
}

const std::vector<Described>& describedFunctions()
{
    static const auto all = [] {
        std::vector<Described> result;
        for (const Line& line : lines())
            result.push_back(described(line));
        return result;
    }();
    return all;
}

const Described* findDescribed(const std::string& name)
{
    const auto& all = describedFunctions();
    const auto found = std::find_if(all.begin(), all.end(), [&](const Described& one) { return one.name() == name; });
    return found == all.end() ? nullptr : &*found;
}

} // namespace tarn::test::fuzz
