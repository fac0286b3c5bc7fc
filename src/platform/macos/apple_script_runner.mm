#include "platform/macos/apple_script_runner.h"

#include "platform/macos/foundation_text.h"

namespace tarvo::macos_platform {
namespace {

std::optional<std::string> messageOf(NSDictionary<NSString*, id>* error) {
    id const message = error[NSAppleScriptErrorMessage];
    return [message isKindOfClass:[NSString class]] ? utf8Text(message) : std::nullopt;
}

} // namespace

ScriptOutcome AppleScriptRunner::run(const std::string& source) {
    @autoreleasepool {
        ScriptOutcome outcome;
        NSAppleScript* const script = [[NSAppleScript alloc] initWithSource:systemText(source)];
        outcome.compiled = script != nil;
        NSDictionary<NSString*, id>* error = nil;
        [script executeAndReturnError:&error];
        outcome.failed = error != nil;
        outcome.message = messageOf(error);
        outcome.errorDescription = utf8Text(error.description).value_or(std::string());
        return outcome;
    }
}

} // namespace tarvo::macos_platform
