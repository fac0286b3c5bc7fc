#include "platform/posix/https_helper_client.h"

#include <utility>

namespace tarvo {
namespace {

std::optional<std::string> replyOf(std::optional<ChildProcessResult> result) {
    const bool succeeded = result && !result->exceededTimeLimit && result->exitStatus == 0;
    if (!succeeded || result->output.size() > HTTPSHelperClient::maxReplySize) return std::nullopt;
    return std::move(result->output);
}

} // namespace

HTTPSHelperClient::HTTPSHelperClient(ChildProcesses& processes, Dispatcher& dispatcher, std::string helper)
    : processes_(processes), dispatcher_(dispatcher), helper_(std::move(helper)) {}

void HTTPSHelperClient::fetch(const std::string& address, std::chrono::milliseconds timeout,
                              Completion completion) {
    ChildProcessRequest request{
        .executable = helper_, .arguments = {address, std::to_string(timeout.count())}, .timeLimit = timeout};
    dispatcher_.global(QualityOfService::utility, [&processes = processes_, request = std::move(request),
                                                   completion = std::move(completion)] {
        completion(request.executable.empty() ? std::nullopt : replyOf(processes.run(request)));
    });
}

} // namespace tarvo
