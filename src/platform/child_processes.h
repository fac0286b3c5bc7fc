#pragma once

#include <chrono>
#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace tarvo {

/// A tool to run: no shell is involved, and nothing is looked up in PATH.
struct ChildProcessRequest {
    std::string executable; ///< absolute path
    std::vector<std::string> arguments{};
    /// Added to the environment of this process, in place of variables of the same name.
    std::vector<std::pair<std::string, std::string>> environment{};
    std::string workingFolder{};                          ///< absolute path; empty: that of this process
    std::optional<std::chrono::milliseconds> timeLimit{}; ///< absent: as long as it takes
    bool keepErrorTail = false;                           ///< else standard error is thrown away
    /// For what may start programs that stay: its standard output is thrown away, the end of its standard
    /// error is kept, only its own exit is awaited, and at the time limit it is left running.
    bool mayGoOn = false;
};

struct ChildProcessResult {
    std::string output{};            ///< standard output; what comes after the first 16 MiB is left out
    std::string errorTail{};         ///< the last 4 KiB of standard error
    std::optional<int> exitStatus{}; ///< absent when a signal or the time limit ended it
    bool exceededTimeLimit = false;  ///< it was ended, with what it had started; the output is incomplete
};

/// Runs tools and waits for them. Callable from any thread but meant for background ones.
class ChildProcesses {
public:
    static constexpr std::size_t maximumOutput = 16 << 20;
    static constexpr std::size_t errorTailLength = 4096;

    virtual ~ChildProcesses() = default;
    /// Reads standard output to its end, then awaits the exit. Standard input is empty. Absent when the tool
    /// could not be started.
    virtual std::optional<ChildProcessResult> run(const ChildProcessRequest& request) = 0;

    /// What the executable writes to its standard output; nothing else of it matters.
    std::optional<std::string> output(const std::string& executable,
                                      const std::vector<std::string>& arguments) {
        auto result = run({.executable = executable, .arguments = arguments});
        return result ? std::optional(std::move(result->output)) : std::nullopt;
    }
};

} // namespace tarvo
