#include "processes/process_list.h"

#include "processes/command_name.h"
#include "processes/ps_text.h"

#include <string>
#include <utility>

namespace tarvo {

namespace {

/// Only a path is cut at its slashes: a bare name, such as a kernel thread's "kworker/0:1", may hold one.
std::string nameOf(std::string&& command) {
    if (!command.starts_with('/')) return std::move(command);
    return std::string(lastPathComponent(command));
}

} // namespace

std::vector<ProcInfo> topProcesses(ChildProcesses& children, ProcessSort sortedBy, std::int64_t limit) {
    const auto order = sortedBy == ProcessSort::cpu ? "-r" : "-m";
    // The tool writes its numbers as the locale has it, with a decimal comma if need be.
    const auto result = children.run({.executable = "/bin/ps",
                                      .arguments = {"-A", "-o", "pid=,pcpu=,pmem=,comm=", order},
                                      .environment = {{"LC_ALL", ""}, {"LC_NUMERIC", "C"}}});
    return parseProcessStatusText(result ? result->output : "", limit);
}

std::vector<ProcInfo> topProcesses(ProcessTable& table, ProcessSort sortedBy, std::int64_t limit) {
    const auto order = sortedBy == ProcessSort::cpu ? ProcessOrder::cpu : ProcessOrder::memory;
    std::vector<ProcInfo> processes;
    for (auto& row : table.rows(order, limit)) {
        processes.push_back({row.pid, nameOf(std::move(row.command)), row.cpu, row.memPercent});
        if (static_cast<std::int64_t>(processes.size()) >= limit) break;
    }
    return processes;
}

} // namespace tarvo
