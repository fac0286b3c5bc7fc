#include "fetch.h"

#include <QCoreApplication>

#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <utility>

namespace tarvo {
namespace {

std::optional<std::chrono::milliseconds> parseTimeout(const char* text) {
    int milliseconds = 0;
    const char* const end = text + std::strlen(text);
    const auto [stop, error] = std::from_chars(text, end, milliseconds);
    if (error != std::errc() || stop != end || milliseconds <= 0) return std::nullopt;
    return std::chrono::milliseconds(milliseconds);
}

bool print(const std::string& reply) {
    return std::fwrite(reply.data(), 1, reply.size(), stdout) == reply.size() && std::fflush(stdout) == 0;
}

} // namespace

int fetchToStandardOutput(int argumentCount, char** arguments, desktop::HTTPSOptions options) {
    const auto timeout = argumentCount == 3 ? parseTimeout(arguments[2]) : std::nullopt;
    if (!timeout) {
        std::fputs("usage: tarvo-fetch HTTPS-ADDRESS MILLISECONDS\n", stderr);
        return EXIT_FAILURE;
    }
    QCoreApplication application(argumentCount, arguments);
    desktop::QtHTTPSClient client(std::move(options));
    client.fetch(arguments[1], *timeout, [](const std::optional<std::string>& reply) {
        QCoreApplication::exit(reply && print(*reply) ? EXIT_SUCCESS : EXIT_FAILURE);
    });
    return QCoreApplication::exec();
}

} // namespace tarvo
