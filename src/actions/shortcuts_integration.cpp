#include "actions/shortcuts_integration.h"

#include "platform/utf8.h"

#include <condition_variable>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>

namespace tarvo {
namespace {

/// What the running thread leaves behind for whoever still waits.
struct ResultBox {
    std::mutex mutex;
    std::condition_variable signalled;
    std::optional<AutomationOutcome> outcome;
};

constexpr LKey shortcutTimeout{
    .cs =
        "Zkratka neodpověděla včas — možná čeká na potvrzení oprávnění, které appka nemůže zobrazit. Zkus ji "
        "nejdřív ručně spustit přímo v appce Zkratky.",
    .en =
        "The shortcut didn't respond in time — it may be waiting on a permission prompt the app can't show. "
        "Try running it manually in the Shortcuts app first."};
constexpr LKey automationTimeout{
    .cs = "Automatizace neskončila včas. Běží dál; zkus ji nejdřív ručně spustit v terminálu.",
    .en = "The automation didn't finish in time. It keeps running; try running it manually in a terminal "
          "first."};
constexpr LKey shortcutError{.cs = "Zkratka skončila s chybou.",
                             .en = "The shortcut finished with an error."};
constexpr LKey automationError{.cs = "Automatizace skončila s chybou.",
                               .en = "The automation finished with an error."};

} // namespace

std::vector<std::string> parseShortcutNames(std::string_view text) {
    std::vector<std::string> names;
    if (!isUTF8(text)) return names;
    while (!text.empty()) {
        const auto end = text.find('\n');
        const auto piece = text.substr(0, end);
        if (!piece.empty()) names.emplace_back(piece);
        if (end == std::string_view::npos) break;
        text.remove_prefix(end + 1);
    }
    return names;
}

ShortcutsIntegration::ShortcutsIntegration(std::shared_ptr<Automations> automations)
    : automations_(std::move(automations)) {}

std::vector<std::string> ShortcutsIntegration::listShortcuts() const {
    return automations_->list();
}

std::optional<AutomationFailure> ShortcutsIntegration::attempt(const std::string& name,
                                                               std::chrono::duration<double> timeout) const {
    const bool isMac = automations_->family() == SystemFamily::macOS;
    const auto box = std::make_shared<ResultBox>();
    const auto work = [box, automations = automations_, name] {
        auto outcome = automations->run(name);
        const std::lock_guard lock(box->mutex);
        box->outcome = std::move(outcome);
        box->signalled.notify_one();
    };
    try {
        std::thread(work).detach();
    } catch (const std::system_error&) { // no more threads: nothing was run
        return AutomationFailure{std::nullopt, isMac ? shortcutError : automationError};
    }

    std::unique_lock lock(box->mutex);
    if (!box->signalled.wait_for(lock, timeout, [&] { return box->outcome.has_value(); })) {
        return AutomationFailure{std::nullopt, isMac ? shortcutTimeout : automationTimeout};
    }
    if (box->outcome->succeeded) return std::nullopt;
    return AutomationFailure{box->outcome->message, isMac ? shortcutError : automationError};
}

std::optional<std::string> ShortcutsIntegration::run(const std::string& name,
                                                     std::chrono::duration<double> timeout,
                                                     AppLanguage language) const {
    const auto failure = attempt(name, timeout);
    return failure ? std::optional(failure->text(language)) : std::nullopt;
}

std::string AutomationFailure::text(AppLanguage language) const {
    if (ownWords) return language == AppLanguage::cs ? ownWords->cs : ownWords->en;
    return std::string(language == AppLanguage::cs ? otherwise.cs : otherwise.en);
}

} // namespace tarvo
