// The list that front_ends.py made of the headers, and a reader of the declarations in it.
#include "interface/digest/front_end.h"

#include <tarns.h>

#include <algorithm>
#include <cctype>
#include <string_view>

namespace tarn::test::digest {
namespace {

struct Listed {
    const char* name;
    const char* declaration;
    AnyFunction function;
    Call call;
};

template <class R, class... A>
Listed listed(const char* name, const char* declaration, R (*function)(A...))
{
    return {name, declaration, reinterpret_cast<AnyFunction>(function), Thunk<R, A...>::call};
}

/// "const Tarn16s* pSrc", "unsigned int value", "const Tarn32f* const pTaps[]".
Argument argument(std::string_view text)
{
    Argument result;
    std::vector<std::string> words;
    std::string word;
    for (const char c : text) {
        if (std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_') {
            word += c;
            continue;
        }
        if (!word.empty())
            words.push_back(word);
        word.clear();
        if (c == '*' || c == '[')
            ++result.depth;
    }
    if (!word.empty() && (word.find_first_not_of("0123456789") != std::string::npos))
        words.push_back(word);
    result.isConst = words.front() == "const";
    std::erase(words, "const");
    result.name = words.back();
    words.pop_back();
    for (const std::string& part : words)
        result.type += (result.type.empty() ? "" : " ") + part;
    return result;
}

std::vector<Argument> argumentsOf(std::string_view declaration)
{
    const std::size_t open = declaration.find('(');
    std::string_view list = declaration.substr(open + 1, declaration.rfind(')') - open - 1);
    std::vector<Argument> arguments;
    if (list == "void")
        return arguments;
    while (!list.empty()) {
        const std::size_t comma = std::min(list.find(','), list.size());
        arguments.push_back(argument(list.substr(0, comma)));
        list.remove_prefix(std::min(comma + 1, list.size()));
    }
    return arguments;
}

} // namespace

const std::vector<FrontEnd>& frontEnds()
{
    static const auto all = [] {
#define FRONT_END(name, declaration) listed(#name, declaration, name),
        const Listed list[] = {
#include "front_ends.inc"
        };
#undef FRONT_END
        std::vector<FrontEnd> result;
        for (const Listed& one : list)
            result.push_back({one.name, argumentsOf(one.declaration), one.function, one.call});
        return result;
    }();
    return all;
}

const FrontEnd* findFrontEnd(const std::string& name)
{
    const auto& all = frontEnds();
    const auto found = std::find_if(all.begin(), all.end(), [&](const FrontEnd& one) { return one.name == name; });
    return found == all.end() ? nullptr : &*found;
}

} // namespace tarn::test::digest
