// One number over what a fixed list of calls to every function answers, the same for every compiler, ABI, vector width
// and number of threads.
//     digest                   prints it
//     digest --each [PART]     prints it for each function, or for those whose name contains PART
//     digest --compare FILE    names the functions whose number is not the file's
//     digest --record FILE     writes the file
#include "interface/digest/calls.h"
#include "interface/digest/values.h"

#include <cstdint>
#include <cstdio>
#include <fstream>
#include <map>
#include <sstream>
#include <string>

using namespace tarn::test::digest;

namespace {

std::string hexadecimal(std::uint64_t value)
{
    char text[17];
    std::snprintf(text, sizeof text, "%016llx", static_cast<unsigned long long>(value));
    return text;
}

struct Run {
    std::map<std::string, std::string> digests;
    int faults = 0;

    explicit Run(const std::string& part)
    {
        for (const FrontEnd& function : frontEnds()) {
            if (function.name.find(part) == std::string::npos)
                continue;
            const Summary summary = callOften(function);
            digests[function.name] = hexadecimal(summary.hash);
            if (!summary.fault.empty()) {
                std::printf("%s: %s\n", function.name.c_str(), summary.fault.c_str());
                ++faults;
            }
        }
    }

    std::string total() const
    {
        Hash hash;
        for (const auto& [name, digest] : digests)
            hash.add(name + digest);
        return hexadecimal(hash.get());
    }
};

int compare(const std::map<std::string, std::string>& digests, const char* path)
{
    std::ifstream file(path);
    std::map<std::string, std::string> expected;
    for (std::string line, name, digest; std::getline(file, line);)
        if (std::istringstream(line) >> name >> digest)
            expected[name] = digest;
    int different = 0;
    for (const auto& [name, digest] : digests) {
        const auto found = expected.find(name);
        if (found != expected.end() && found->second == digest)
            continue;
        ++different;
        if (found == expected.end())
            std::printf("%s is not in %s: see whether all builds agree on it, then --record\n", name.c_str(), path);
        else
            std::printf("%s gives %s instead of %s\n", name.c_str(), digest.c_str(), found->second.c_str());
    }
    for (const auto& [name, digest] : expected)
        if (digests.find(name) == digests.end()) {
            ++different;
            std::printf("%s is in %s and in no header\n", name.c_str(), path);
        }
    return different;
}

} // namespace

int main(int argc, char** argv)
{
    const std::string mode = argc > 1 ? argv[1] : "";
    const bool withFile = (mode == "--compare" || mode == "--record") && argc == 3;
    if (!withFile && !(mode == "--each" && argc <= 3) && argc != 1) {
        std::fprintf(stderr, "usage: %s [--each [PART] | --compare FILE | --record FILE]\n", argv[0]);
        return 2;
    }
    const Run run(mode == "--each" && argc == 3 ? argv[2] : "");
    int faults = run.faults;
    if (mode == "--each")
        for (const auto& [name, digest] : run.digests)
            std::printf("%s %s\n", name.c_str(), digest.c_str());
    if (mode == "--compare")
        faults += compare(run.digests, argv[2]);
    if (mode == "--record") {
        std::ofstream file(argv[2]);
        for (const auto& [name, digest] : run.digests)
            file << name << ' ' << digest << '\n';
    }
    std::printf("%s\n", run.total().c_str());
    return faults == 0 ? 0 : 1;
}
