#include "platform/qt/qt_keyboard.h"

#if defined(Q_OS_WIN)
#include <QString>
#define NOMINMAX
#include <windows.h>
#elif defined(MARLBROOK_XKB)
#include "platform/qt/keymap.h"
#endif

#if defined(Q_OS_WIN)

// A dead key has its accent, with the upper bit set.
std::map<int, std::string> QtKeyboard::Characters() {
    std::map<int, std::string> characters;
    for (UINT code = 1; code < 256; ++code) {
        const UINT typed = MapVirtualKeyW(code, MAPVK_VK_TO_CHAR) & 0xffff;
        if (typed > ' ') characters[static_cast<int>(code)] = QString(QChar(typed)).toLower().toStdString();
    }
    return characters;
}

#elif defined(MARLBROOK_XKB)

std::map<int, std::string> QtKeyboard::Characters() {
    return CharactersOf(KeymapInUse());
}

#else

std::map<int, std::string> QtKeyboard::Characters() {
    return {};
}

#endif
