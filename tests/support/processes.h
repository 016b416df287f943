// Processes of a test: forked children, and the threads that a process has.
#pragma once

#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <iterator>

namespace tarn::test {

/// Threads of this process.
inline int threadsOfProcess()
{
    using Entries = std::filesystem::directory_iterator;
    return static_cast<int>(std::distance(Entries("/proc/self/task"), Entries()));
}

/// What `run` answers with in a forked child, from 0 to 100. A child that does not end in a minute is killed and gives
/// -1, as does one that ends by itself in any other way.
template <class Run>
int statusOfChild(Run run)
{
    const pid_t child = fork();
    if (child == 0) {
        alarm(60);
        std::_Exit(run());
    }
    int status = 0;
    return child > 0 && waitpid(child, &status, 0) == child && WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

} // namespace tarn::test
