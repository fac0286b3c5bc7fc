#pragma once

#include "platform/popover.h"

#include <memory>
#include <vector>

namespace tarvo {

/// A popover's content that can be told apart.
struct NumberedContent : PopoverContent {
    explicit NumberedContent(int value) : number(value) {}
    int number;
};

/// A popover without a screen.
class RecordingPopover : public Popover {
public:
    RecordingPopover(const PopoverOptions& given, std::function<void()> didClose)
        : options(given), didClose_(std::move(didClose)) {}

    void setContent(std::unique_ptr<PopoverContent> value) override { content_ = std::move(value); }
    bool hasContent() const override { return content_ != nullptr; }
    void show(StatusButton& button) override {
        anchor = &button;
        shown_ = true;
        ++shows;
    }
    void makeKey() override { isKey = true; }
    void close() override {
        if (!shown_) return;
        shown_ = false;
        isKey = false;
        didClose_();
    }
    bool isShown() const override { return shown_; }

    /// The number of the content, 0 without content.
    int contentNumber() const { return content_ ? static_cast<NumberedContent&>(*content_).number : 0; }

    PopoverOptions options;
    StatusButton* anchor = nullptr;
    bool isKey = false;
    int shows = 0;

private:
    std::function<void()> didClose_;
    std::unique_ptr<PopoverContent> content_;
    bool shown_ = false;
};

/// Makes popovers and remembers them.
struct RecordingPopovers {
    PopoverFactory factory() {
        return [this](const PopoverOptions& options, std::function<void()> didClose) {
            auto popover = std::make_unique<RecordingPopover>(options, std::move(didClose));
            made.push_back(popover.get());
            return popover;
        };
    }
    std::vector<RecordingPopover*> made;
};

} // namespace tarvo
