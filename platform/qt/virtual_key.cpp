#include "platform/qt/virtual_key.h"

#include "platform/qt/key_tables.h"

namespace {
constexpr quint32 kMade = 0x4d420000;  // in the native number of a made event; no system gives such a one
constexpr quint32 kMadeMask = 0xffff0000;

[[maybe_unused]] bool IsAsciiLetter(quint32 character) {
    return (character >= 'A' && character <= 'Z') || (character >= 'a' && character <= 'z');
}

// The letter A..Z that the key types; 0: none. Under X11 and Wayland the native number is the character itself, as the layout has it,
// where key() falls back on another layout while Ctrl is down.
int TypedLetter(const QKeyEvent& event) {
#ifdef Q_OS_MACOS
    const quint32 native = 0;
#else
    const quint32 native = event.nativeVirtualKey();
#endif
    if (IsAsciiLetter(native)) return static_cast<int>(native & ~0x20u);
    if (native == 0 && event.key() >= Qt::Key_A && event.key() <= Qt::Key_Z) return event.key();
    return 0;
}

bool IsForeignLetter(uint character) {
    return QChar::isLetter(character) && QChar::script(character) != QChar::Script_Latin;
}

bool TypesForeignLetter(const QKeyEvent& event) {
#ifndef Q_OS_MACOS
    const quint32 symbol = event.nativeVirtualKey();
    if (symbol >= 0x01000100 && symbol <= 0x0110ffff) return IsForeignLetter(symbol - 0x01000000);
    if (symbol >= 0x100 && symbol < 0xfe00) return IsForeignSymbol(symbol);
    if (symbol != 0) return false;
#endif
    return event.key() > 0 && event.key() < 0x01000000 && IsForeignLetter(static_cast<uint>(event.key()));
}

int CodeOfPlace(const QKeyEvent& event) {
#ifdef Q_OS_MACOS
    return CodeOfMacPlace(event.nativeVirtualKey());
#else
    return CodeOfXkbPlace(event.nativeScanCode());
#endif
}

int ByPlace(const QKeyEvent& event) {
    const int code = CodeOfPlace(event);
    const bool is_letter_place = code >= 'A' && code <= 'Z';
    return is_letter_place && !TypesForeignLetter(event) ? kFirstSilentLetter + code - 'A' : code;
}

bool HasPlace(const QKeyEvent& event) {
#ifdef Q_OS_MACOS
    return event.nativeScanCode() != 0;
#else
    return event.nativeScanCode() > 8;
#endif
}
}  // namespace

std::optional<int> VirtualKey(const QKeyEvent& event) {
    const quint32 native = event.nativeVirtualKey();
    if ((native & kMadeMask) == kMade) return static_cast<int>(native & 0xff);
#ifdef Q_OS_WIN
    if (native != 0) return static_cast<int>(native & 0xff);
#endif
    if (const int keypad = CodeOfKeypad(event.key(), event.modifiers()); keypad != 0) return keypad;
    if (const int named = CodeOfNamedKey(event.key(), event.nativeScanCode()); named != 0) return named;
    if (const int letter = TypedLetter(event); letter != 0) return letter;
    const int other = HasPlace(event) ? ByPlace(event) : CodeOfUsCharacter(event.key());
    return other != 0 ? std::optional(other) : std::nullopt;
}

QKeyEvent MadeKeyEvent(QEvent::Type type, int code, const QString& text, KeyActs acts) {
    const int key = acts == KeyActs::Yes ? KeyOfCode(code) : Qt::Key_unknown;
    return {type, key, Qt::NoModifier, 0, kMade | static_cast<quint32>(code), 0, text};
}
