#include "actions/shortcuts_integration.h"

#include "platform/utf8.h"

#include <condition_variable>
#include <mutex>
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

std::string pick(const LKey& key, AppLanguage language) {
    return std::string(language == AppLanguage::cs ? key.cs : key.en);
}

std::string timeoutText(SystemFamily family, AppLanguage language) {
    if (family == SystemFamily::macOS) {
        return pick({"Zkratka neodpověděla včas — možná čeká na potvrzení oprávnění, které appka nemůže "
                     "zobrazit. Zkus ji "
                     "nejdřív ručně spustit přímo v appce Zkratky.",
                     "The shortcut didn't respond in time — it may be waiting on a permission prompt the app "
                     "can't show. "
                     "Try running it manually in the Shortcuts app first."},
                    language);
    }
    return pick({"Automatizace neskončila včas. Běží dál; zkus ji nejdřív ručně spustit v terminálu.",
                 "The automation didn't finish in time. It keeps running; try running it manually in a "
                 "terminal first."},
                language);
}

std::string genericText(SystemFamily family, AppLanguage language) {
    if (family == SystemFamily::macOS) {
        return pick({"Zkratka skončila s chybou.", "The shortcut finished with an error."}, language);
    }
    return pick({"Automatizace skončila s chybou.", "The automation finished with an error."}, language);
}

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

std::optional<std::string> ShortcutsIntegration::run(const std::string& name,
                                                     std::chrono::duration<double> timeout,
                                                     AppLanguage language) const {
    const auto box = std::make_shared<ResultBox>();
    std::thread([box, automations = automations_, name] {
        auto outcome = automations->run(name);
        const std::lock_guard lock(box->mutex);
        box->outcome = std::move(outcome);
        box->signalled.notify_one();
    }).detach();

    std::unique_lock lock(box->mutex);
    if (!box->signalled.wait_for(lock, timeout, [&] { return box->outcome.has_value(); })) {
        return timeoutText(automations_->family(), language);
    }
    if (box->outcome->succeeded) return std::nullopt;
    return box->outcome->message ? *box->outcome->message : genericText(automations_->family(), language);
}

} // namespace tarvo
