#include "composition/machine.h"
#include "composition/user.h"
#include "core/settings.h"
#include "core/stats_model.h"
#include "interval_preferences.h"
#include "line_output.h"
#include "line_writer.h"
#include "localization/localization_manager.h"
#include "options.h"
#include "platform/build_options.h"
#include "platform/posix/poll_dispatcher.h"
#include "platform/posix/system_clock.h"
#include "status_run.h"
#include "tracking_dispatcher.h"

#include <fmt/format.h>

#include <fcntl.h>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace tarvo::status {
namespace {

enum ExitStatus { success = 0, outputFailed = 1, badArguments = 2 };

int fail(ExitStatus status, std::string_view message) {
    LineOutput(STDERR_FILENO).write(fmt::format("tarvo-status: {}\n", message));
    return status;
}

int write(std::string_view text) {
    const auto result = LineOutput(STDOUT_FILENO).write(text);
    return result == LineOutput::Result::failed ? fail(outputFailed, "cannot write to standard output")
                                                : success;
}

/// Prints each snapshot, and stops the loop when the lines no longer arrive.
class Printer {
public:
    Printer(LineWriter writer, const std::optional<LocalizationManager>& localization, PollDispatcher& loop)
        : writer_(std::move(writer)), localization_(localization), loop_(loop) {}

    void print(const StatsSnapshot& snapshot) {
        const auto result =
            LineOutput(STDOUT_FILENO).write(writer_.write(snapshot, localization_->language()));
        if (result == LineOutput::Result::written) return;
        if (result == LineOutput::Result::failed)
            status_ = fail(outputFailed, "cannot write to standard output");
        loop_.stop();
    }
    int status() const { return status_; }

private:
    LineWriter writer_;
    const std::optional<LocalizationManager>& localization_;
    PollDispatcher& loop_;
    int status_ = success;
};

// There is nothing to save and nothing that waits, so the end needs no turn of the loop.
void endNow(int) {
    ::_exit(success);
}

void handleSignals() {
    struct sigaction ending {};
    ending.sa_handler = endNow;
    ::sigaction(SIGTERM, &ending, nullptr);
    ::sigaction(SIGINT, &ending, nullptr);
    struct sigaction ignoring {};
    ignoring.sa_handler = SIG_IGN;
    ::sigaction(SIGPIPE, &ignoring, nullptr);
}

bool isFolder(const std::string& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

int run(const Options& options) {
    SystemClock clock;
    PollDispatcher loop(clock);
    TrackingDispatcher dispatcher(loop);
    const User user = openUser(clock);
    IntervalPreferences preferences(*user.preferences);
    Settings settings(preferences);
    std::optional<LocalizationManager> localization;
    const auto chooseLanguage = [&] { localization.emplace(preferences, user.languageCode()); };
    chooseLanguage();
    // Without the details nobody asks for a sensor, and so none is looked for.
    Machine machine({.root = options.root, .readsSensors = options.detail}, clock, dispatcher);
    const auto model = StatsModel::make(settings, clock, dispatcher, machine.readers(), nullptr);

    Printer printer(LineWriter(options.format, settings), localization, loop);
    StatusRun run(options, *model, settings, preferences, clock, dispatcher,
                  {.print = [&](const StatsSnapshot& snapshot) { printer.print(snapshot); },
                   .end = [&] { loop.stop(); },
                   .refreshPreferences =
                       [&] {
                           if (user.reloadPreferences()) chooseLanguage();
                       }});
    loop.watchHangUp(STDOUT_FILENO, [&] { loop.stop(); });
    run.start();
    loop.run();
    // A reading may hang for good; what it uses must then stay.
    if (!loop.finish(std::chrono::seconds(1))) ::_exit(printer.status());
    return printer.status();
}

int perform(const Options& options) {
    if (!options.root.empty() && !readsRecordedMachines()) {
        return fail(badArguments, "--root: recorded machines can be read on Linux only");
    }
    if (!options.root.empty() && !isFolder(options.root)) {
        return fail(badArguments, fmt::format("--root: there is no folder '{}'", options.root));
    }
    return run(options);
}
int perform(const ShowHelp&) {
    return write(helpText());
}
int perform(const ShowVersion&) {
    return write(fmt::format("tarvo-status {}\n", build_options::version));
}
int perform(const UsageError& error) {
    return fail(badArguments, fmt::format("{}; see tarvo-status --help", error.message));
}

} // namespace
} // namespace tarvo::status

int main(int argc, char** argv) {
    using namespace tarvo::status;
    // A file that is opened later must not take the place of a closed standard output.
    if (::fcntl(STDOUT_FILENO, F_GETFD) < 0) return fail(outputFailed, "standard output is closed");
    handleSignals();
    const std::vector<std::string_view> arguments(argv + 1, argv + argc);
    return std::visit([](const auto& request) { return perform(request); }, parseArguments(arguments));
}
