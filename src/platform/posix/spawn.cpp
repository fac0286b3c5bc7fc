#include "platform/posix/spawn.h"

#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <unistd.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

extern char** environ;

namespace tarvo {
namespace {

/// What the child's standard descriptors are.
class FileActions {
public:
    FileActions() { posix_spawn_file_actions_init(&actions_); }
    ~FileActions() { posix_spawn_file_actions_destroy(&actions_); }
    FileActions(const FileActions&) = delete;
    FileActions& operator=(const FileActions&) = delete;

    bool use(const FileDescriptor& descriptor, int as) {
        return posix_spawn_file_actions_adddup2(&actions_, descriptor.get(), as) == 0;
    }
    bool useNothing(int as, int mode) {
        return posix_spawn_file_actions_addopen(&actions_, as, "/dev/null", mode, 0) == 0;
    }
    bool changeFolder(const std::string& folder) {
        return posix_spawn_file_actions_addchdir_np(&actions_, folder.c_str()) == 0;
    }
    const posix_spawn_file_actions_t* get() const { return &actions_; }

private:
    posix_spawn_file_actions_t actions_;
};

class Attributes {
public:
    Attributes() {
        posix_spawnattr_init(&attributes_);
        sigset_t signals;
        sigemptyset(&signals);
        posix_spawnattr_setsigmask(&attributes_, &signals);
        sigfillset(&signals);
        sigdelset(&signals, SIGKILL); // these two are never caught: not every system takes them here
        sigdelset(&signals, SIGSTOP);
        posix_spawnattr_setsigdefault(&attributes_, &signals);
        posix_spawnattr_setpgroup(&attributes_, 0);
        posix_spawnattr_setflags(&attributes_, static_cast<short>(flags));
    }
    ~Attributes() { posix_spawnattr_destroy(&attributes_); }
    Attributes(const Attributes&) = delete;
    Attributes& operator=(const Attributes&) = delete;

    const posix_spawnattr_t* get() const { return &attributes_; }

private:
#if defined(POSIX_SPAWN_CLOEXEC_DEFAULT)
    // Where a pipe cannot be made closed on exec in one step, another child could inherit it and keep it
    // open.
    static constexpr int closesOthers = POSIX_SPAWN_CLOEXEC_DEFAULT;
#else
    static constexpr int closesOthers = 0;
#endif
    static constexpr int flags =
        POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETPGROUP | closesOthers;

    posix_spawnattr_t attributes_;
};

/// "NAME=value" for each variable of this process that is not replaced, then the additions.
std::vector<std::string> environmentWith(const std::vector<std::pair<std::string, std::string>>& additions) {
    const auto replaced = [&](std::string_view entry) {
        const auto name = entry.substr(0, entry.find('='));
        for (const auto& addition : additions) {
            if (addition.first == name) return true;
        }
        return false;
    };
    std::vector<std::string> entries;
    for (char** entry = environ; entry && *entry; ++entry) {
        if (!replaced(*entry)) entries.emplace_back(*entry);
    }
    for (const auto& [name, value] : additions)
        entries.push_back(name + '=' + value);
    return entries;
}

/// The form that exec takes: pointers into the texts, then null.
std::vector<char*> pointersTo(std::vector<std::string>& texts) {
    std::vector<char*> pointers;
    for (auto& text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

/// Starts the tool with what was prepared for its standard descriptors.
std::optional<pid_t> start(const ChildProcessRequest& request, FileActions& actions) {
    if (!request.executable.starts_with('/')) return std::nullopt;
    if (!request.workingFolder.empty() && !actions.changeFolder(request.workingFolder)) return std::nullopt;
    std::vector<std::string> arguments{request.executable};
    arguments.insert(arguments.end(), request.arguments.begin(), request.arguments.end());
    auto environment = environmentWith(request.environment);
    const Attributes attributes;
    pid_t pid = 0;
    const int failure = ::posix_spawn(&pid, request.executable.c_str(), actions.get(), attributes.get(),
                                      pointersTo(arguments).data(), pointersTo(environment).data());
    return failure == 0 ? std::optional(pid) : std::nullopt;
}

} // namespace

std::optional<SpawnedChild> spawn(const ChildProcessRequest& request) {
    auto output = makePipe();
    auto error = request.keepErrorTail ? makePipe() : std::nullopt;
    if (!output || (request.keepErrorTail && !error)) return std::nullopt;

    FileActions actions;
    const bool prepared =
        actions.useNothing(STDIN_FILENO, O_RDONLY) && actions.use(output->writeEnd, STDOUT_FILENO) &&
        (error ? actions.use(error->writeEnd, STDERR_FILENO) : actions.useNothing(STDERR_FILENO, O_WRONLY));
    const auto pid = prepared ? start(request, actions) : std::nullopt;
    if (!pid) return std::nullopt;
    return SpawnedChild{*pid, std::move(output->readEnd),
                        error ? std::move(error->readEnd) : FileDescriptor()};
}

std::optional<pid_t> spawnLasting(const ChildProcessRequest& request, const FileDescriptor& error) {
    FileActions actions;
    const bool prepared = actions.useNothing(STDIN_FILENO, O_RDONLY) &&
                          actions.useNothing(STDOUT_FILENO, O_WRONLY) && actions.use(error, STDERR_FILENO);
    return prepared ? start(request, actions) : std::nullopt;
}

} // namespace tarvo
