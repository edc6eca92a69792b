#include "platform/qt/dead_keys.h"

#ifdef _WIN32
#include <windows.h>

#include <utility>

namespace {
bool IsPress(UINT message) {
    return message == WM_KEYDOWN || message == WM_SYSKEYDOWN;
}

// What the layout keeps for the next key goes into a blank that is given to nobody.
void ForgetAccent() {
    BYTE keys[256] = {};
    wchar_t made[8];
    ToUnicode(VK_SPACE, MapVirtualKeyW(VK_SPACE, MAPVK_VK_TO_VSC), keys, made, 8, 0);
}

// The accent lies in the queue behind its key.
void TakeAccentOut(HWND window) {
    MSG accent;
    const bool is_dead = PeekMessageW(&accent, window, WM_DEADCHAR, WM_DEADCHAR, PM_REMOVE) ||
                         PeekMessageW(&accent, window, WM_SYSDEADCHAR, WM_SYSDEADCHAR, PM_REMOVE);
    if (is_dead) ForgetAccent();
}
}  // namespace

bool DeadKeys::IsStrayCharacter(const tagMSG& message) {
    if (message.message == WM_CHAR) return !std::exchange(expects_character_, false);
    expects_character_ = IsPress(message.message);
    if (expects_character_) TakeAccentOut(message.hwnd);
    return false;
}
#endif
