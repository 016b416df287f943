// The headers against the symbol table of the shared object, both ways: all that is declared with C linkage is
// exported, and all that is exported is declared.
#include "support/declarations.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include <sys/wait.h>
#include <unistd.h>

namespace tarn::test {
namespace {

namespace fs = std::filesystem;

/// The output of a command. A command that cannot be run or fails is a failure of the test.
std::string outputOf(const std::string& command)
{
    std::FILE* pipe = popen(command.c_str(), "r");
    if (pipe == nullptr) {
        ADD_FAILURE() << "cannot run: " << command;
        return {};
    }
    std::string output;
    char chunk[65536];
    for (std::size_t got = 0; (got = std::fread(chunk, 1, sizeof chunk, pipe)) > 0;)
        output.append(chunk, got);
    const int result = pclose(pipe);
    EXPECT_TRUE(WIFEXITED(result) && WEXITSTATUS(result) == 0) << "failed: " << command;
    return output;
}

void addHeaders(const fs::path& directory, std::vector<fs::path>& headers)
{
    for (const auto& entry : fs::recursive_directory_iterator(directory))
        if (entry.path().extension() == ".h")
            headers.push_back(entry.path());
}

const std::map<std::string, Declared>& declarations()
{
    static const auto names = [] {
        const fs::path root = TARNS_SOURCE_DIR;
        std::vector<fs::path> headers;
        for (const char* directory : {"include", "src/levels"})
            addHeaders(root / directory, headers);
        EXPECT_GT(headers.size(), 3U);

        std::string pattern = ::testing::TempDir() + "tarns_exports_XXXXXX";
        const int file = mkstemp(pattern.data());
        EXPECT_GE(file, 0) << pattern;
        if (file >= 0)
            close(file);
        std::ofstream source(pattern);
        for (const fs::path& header : headers)
            source << "#include \"" << header.string() << "\"\n";
        source.close();
        const std::string preprocessed = outputOf(std::string("'") + TARNS_CXX_COMPILER + "' " + TARNS_CXX_FLAGS +
                                                  " -msse3 -std=c++20 -E -x c++ -I'" + (root / "include").string() +
                                                  "' -I'" + (root / "src").string() + "' '" + pattern + "'");
        fs::remove(pattern);
        return cLinkageDeclarations(preprocessed, root.string());
    }();
    return names;
}

/// Name to nm's letter of every symbol that the shared object exports.
const std::map<std::string, char>& exports()
{
    static const auto symbols = [] {
        std::map<std::string, char> all;
        std::istringstream lines(
            outputOf(std::string("nm -D --defined-only --extern-only --format=posix '") + TARNS_LIBRARY_PATH + "'"));
        std::string name;
        char type = 0;
        for (std::string line; std::getline(lines, line);) {
            std::istringstream fields(line);
            if (fields >> name >> type)
                all.emplace(name, type);
        }
        return all;
    }();
    return symbols;
}

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool instrumented = true;
#else
constexpr bool instrumented = false;
#endif

/// What an instrumented library exports beside its interface: the sanitizer's own names, and objects of the standard
/// library's headers, of vague linkage, which the optimiser removes elsewhere.
bool isInstrumentation(const std::string& name, char type)
{
    if (!instrumented)
        return false;
    for (const char* prefix : {"__asan", "__odr_asan", "__ubsan", "__tsan", "__sanitizer", "__lsan", "__interceptor"})
        if (name.starts_with(prefix))
            return true;
    const bool vague = type == 'V' || type == 'W' || type == 'u';
    return vague && (name.starts_with("_ZNSt") || name.starts_with("_ZSt") || name.starts_with("_ZNKSt"));
}

TEST(Exports, HoldWhatTheHeadersDeclare)
{
    const auto& names = declarations();
    for (const char* name : {"tarnsGetLibVersion", "tarnGetStatusString", "tarnsAdd_16s_Sfs", "ownsAdd_16s_NegSfs"})
        EXPECT_EQ(1U, names.count(name)) << name << " was not found in the headers";
    EXPECT_EQ(1U, names.count("tarnConstantOfNAN_32f"));
    for (const auto& [name, kind] : names) {
        const auto symbol = exports().find(name);
        if (symbol == exports().end()) {
            ADD_FAILURE() << name << " is declared and not exported";
            continue;
        }
        const bool function = symbol->second == 'T';
        EXPECT_EQ(kind == Declared::function, function) << name << " is of type " << symbol->second;
    }
}

TEST(Exports, AreAllDeclared)
{
    EXPECT_FALSE(exports().empty());
    for (const auto& [name, type] : exports()) {
        if (isInstrumentation(name, type))
            continue;
        EXPECT_EQ(1U, declarations().count(name)) << name << " (" << type << ") is exported and not declared";
    }
}

/// A symbol of protected visibility cannot be taken the address of by every program: see TARN_KERNEL.
TEST(Exports, HaveDefaultVisibility)
{
    std::istringstream lines(outputOf(std::string("readelf --dyn-syms --wide '") + TARNS_LIBRARY_PATH + "'"));
    int kernels = 0;
    for (std::string line; std::getline(lines, line);) {
        kernels += line.find(" owns") != std::string::npos ? 1 : 0;
        EXPECT_EQ(std::string::npos, line.find("PROTECTED")) << line;
    }
    EXPECT_GT(kernels, 100);
}

TEST(Declarations, AreFoundInEveryForm)
{
    const char* source = R"(
# 1 "/elsewhere/system.h" 1 3
extern "C" { int notOurs(int); }
# 1 "/root/a.h" 1
typedef int TarnStatus;
template <class T> requires requires { T{}; } void tarnsTemplate(T) { notThis(); }
extern "C" {
typedef struct { int re; int im; } Pair;
enum { tarnOne = 1, tarnTwo };
struct Opaque;
__attribute__((visibility("default"))) extern const float tarnData;
extern const char* const tarnNames[3];
__attribute__((visibility("default"))) TarnStatus tarnsFirst(const short* a, int (*callback)(int), int len);
struct Opaque* tarnsMake(void);
static inline int tarnsHidden(int a) { return tarnsFirst(0, 0, a); }
inline int tarnsInline(int a);
int tarnsDefined(int a) { return a; }
}
extern "C" __attribute__((visibility("default"))) void ownsStamped(int len); extern "C" void ownsStamped_I(int len);
namespace tarn {
void notC(int);
inline constexpr int lanes = [] { return 4; }();
struct Functor { auto operator()(auto a) const { return a; } };
extern "C" void ownsNested(unsigned char x = '"', int y = (3));
}
extern "C" unsigned long long tarnLast(void);
)";
    const std::map<std::string, Declared> expected = {
        {"tarnData", Declared::data},       {"tarnNames", Declared::data},       {"tarnsFirst", Declared::function},
        {"tarnsMake", Declared::function},  {"ownsStamped", Declared::function}, {"ownsStamped_I", Declared::function},
        {"ownsNested", Declared::function}, {"tarnLast", Declared::function},
    };
    EXPECT_EQ(expected, cLinkageDeclarations(source, "/root/"));
}

} // namespace
} // namespace tarn::test
