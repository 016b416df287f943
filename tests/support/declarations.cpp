// A tokenizer and a reader of declarations at namespace scope; bodies and initialisers are skipped by their brackets.
#include "support/declarations.h"

#include <algorithm>
#include <cctype>
#include <utility>
#include <vector>

namespace tarn::test {
namespace {

struct Token {
    std::string text;
    bool ours;
};

bool isWord(char c) { return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_'; }

bool isIdentifier(const std::string& text)
{
    return isWord(text[0]) && std::isdigit(static_cast<unsigned char>(text[0])) == 0;
}

/// The file of a line marker `# 12 "file" ...`, as written.
std::string_view markedFile(std::string_view line)
{
    const auto open = line.find('"');
    const auto close = line.find('"', open + 1);
    return open == line.npos || close == line.npos ? std::string_view{} : line.substr(open + 1, close - open - 1);
}

std::vector<Token> tokenize(std::string_view text, std::string_view directory)
{
    std::vector<Token> tokens;
    bool ours = false;
    bool lineStart = true;
    for (std::size_t i = 0; i < text.size();) {
        const char c = text[i];
        std::size_t end = i + 1;
        if (c == '\n' || std::isspace(static_cast<unsigned char>(c)) != 0) {
            lineStart = lineStart || c == '\n';
            i = end;
            continue;
        }
        if (c == '#' && lineStart) {
            end = std::min(text.find('\n', i), text.size());
            const std::string_view line = text.substr(i, end - i);
            if (line.size() > 2 && std::isdigit(static_cast<unsigned char>(line[2])) != 0)
                ours = markedFile(line).starts_with(directory);
            i = end;
            continue;
        }
        lineStart = false;
        if (isWord(c)) {
            while (end < text.size() && isWord(text[end]))
                ++end;
        } else if (c == '"' || c == '\'') {
            while (end < text.size() && text[end] != c)
                end += text[end] == '\\' ? 2 : 1;
            ++end;
        }
        tokens.push_back({std::string(text.substr(i, end - i)), ours});
        i = end;
    }
    return tokens;
}

class Reader {
public:
    explicit Reader(std::vector<Token> readTokens) : tokens(std::move(readTokens)) {}

    std::map<std::string, Declared> read()
    {
        while (!atEnd()) {
            scope(false);
            ++at; // a closing brace without an opening one
        }
        return std::move(found);
    }

private:
    bool atEnd() const { return at >= tokens.size(); }
    bool is(std::string_view text, std::size_t ahead = 0) const
    {
        return at + ahead < tokens.size() && tokens[at + ahead].text == text;
    }

    /// From an opening bracket to behind the closing one.
    void skipBrackets()
    {
        int depth = 0;
        do {
            const std::string& text = tokens[at].text;
            if (text == "(" || text == "{" || text == "[")
                ++depth;
            else if (text == ")" || text == "}" || text == "]")
                --depth;
            ++at;
        } while (!atEnd() && depth > 0);
    }

    void scope(bool cLinkage)
    {
        while (!atEnd() && !is("}")) {
            if (is("extern") && is("\"C\"", 1)) {
                at += 2;
                if (is("{"))
                    block(true);
                else
                    declaration(true);
            } else if (is("namespace") || (is("inline") && is("namespace", 1))) {
                while (!atEnd() && !is("{") && !is(";"))
                    ++at;
                if (is("{"))
                    block(cLinkage);
            } else if (is(";")) {
                ++at;
            } else if (is("{")) {
                skipBrackets();
            } else {
                declaration(cLinkage);
            }
        }
    }

    void block(bool cLinkage)
    {
        ++at;
        scope(cLinkage);
        ++at;
    }

    void declaration(bool cLinkage)
    {
        const Token& first = tokens[at];
        const bool toSemicolon = first.text == "typedef" || first.text == "using";
        bool hidden = toSemicolon || first.text == "template" || first.text == "static_assert";
        bool initialiser = false;
        std::string lastName;
        std::string function;
        while (!atEnd() && !is(";")) {
            const std::string& text = tokens[at].text;
            if (text == "__attribute__" || text == "alignas" || text == "__asm__") {
                ++at;
                skipBrackets();
                continue;
            }
            if (text == "}")
                return;
            if (text == "{") {
                skipBrackets();
                if (toSemicolon || initialiser)
                    continue;
                return; // a definition: its name is not merely declared
            }
            if (text == "=")
                initialiser = true;
            hidden = hidden || text == "static" || text == "inline";
            if (text == "(") {
                if (function.empty() && !initialiser)
                    function = lastName;
                skipBrackets();
                continue;
            }
            if (text == "[") {
                skipBrackets();
                continue;
            }
            if (isIdentifier(text) && !initialiser)
                lastName = text;
            ++at;
        }
        ++at;
        if (!cLinkage || hidden || !first.ours)
            return;
        if (!function.empty())
            found.emplace(function, Declared::function);
        else if (!lastName.empty() && first.text != "struct" && first.text != "union" && first.text != "enum")
            found.emplace(lastName, Declared::data);
    }

    std::vector<Token> tokens;
    std::size_t at = 0;
    std::map<std::string, Declared> found;
};

} // namespace

std::map<std::string, Declared> cLinkageDeclarations(std::string_view preprocessed, std::string_view directory)
{
    return Reader(tokenize(preprocessed, directory)).read();
}

} // namespace tarn::test
