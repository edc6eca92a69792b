#include "taxa/quotation_guard.h"

#include <string>
#include <utility>

#include "platform/number.h"
#include "platform/services.h"
#include "platform/text.h"
#include "session/state/sheet_state.h"

namespace {
constexpr std::int16_t kNoKey = 9999;

// The keys that give the mark on some keyboard, and the one character that each of them may type. The test is by the key and not by
// the character: it refuses every other symbol of these keys as well (docs/quirks.md).
struct GuardedKey {
    std::int16_t code;
    const char* allowed;
    const char* title;
};
constexpr GuardedKey kGuardedKeys[] = {
    {51, "3", "Are you an AZERTY keyboard user?"},
    {50, "2", "Caution!"},
    {222, "'", "Caution!"},
};

void CutBeforeCaret(TextBox& box) {
    const std::string text = box.Text();
    const auto caret = static_cast<std::size_t>(box.SelStart());
    const std::string kept = Left(text, caret - 1) + Mid(text, caret + 1, Length(text));
    box.SetText(kept);
    box.SetSelStart(static_cast<int>(caret) - 1);
}
}  // namespace

void EnterGuardedBox() {
    LastEditKey = kNoKey;
    EditKeyAwaitsText = false;
}

void NoteEditKey(int code) {
    LastEditKey = ToInt16(code);
    EditKeyAwaitsText = true;
}

void ForgetEditKey() {
    EditKeyAwaitsText = false;
}

bool IsTyped(const TextBox& box) {
    return std::exchange(EditKeyAwaitsText, false) && box.SelStart() >= 1;
}

void RefuseQuotationMark(TextBox& box) {
    if (!IsTyped(box)) return;
    const std::string typed = Mid(box.Text(), static_cast<std::size_t>(box.SelStart()), 1);
    for (const GuardedKey& key : kGuardedKeys) {
        if (LastEditKey != key.code || typed == key.allowed) continue;
        services.sounds->Beep();
        services.messages->Show(
            {key.title, "Using double quotation mark causes fatal error. Please choose another symbol.", Icon::Exclamation, Buttons::Ok});
        CutBeforeCaret(box);
        return;
    }
}
