#include "linux/hot_key_text.h"

namespace tarvo {

LKey hotKeyText(desktop::HotKeyState state) {
    switch (state) {
    case desktop::HotKeyState::active:
        return {.cs = "Super+Shift+M otevře a zavře panel.",
                .en = "Super+Shift+M opens and closes the panel."};
    case desktop::HotKeyState::taken:
        return {.cs = "Klávesy Super+Shift+M používá jiný program.",
                .en = "Super+Shift+M is used by another program."};
    case desktop::HotKeyState::pending:
    case desktop::HotKeyState::unavailable:
        break;
    }
    return {.cs = "Zkratka Super+Shift+M není v tomto prostředí dostupná.",
            .en = "The shortcut Super+Shift+M is not available on this desktop."};
}

} // namespace tarvo
