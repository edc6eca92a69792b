#include "platform/qt/virtual_key.h"

#include <string_view>

namespace {
constexpr int kFirstSilentLetter = 193;  // the code of the letter place A when it types no letter

struct Named {
    int key;
    int code;
};
constexpr Named kNamed[] = {
    {Qt::Key_Backspace, 8}, {Qt::Key_Tab, 9},        {Qt::Key_Backtab, 9},   {Qt::Key_Clear, 12},        {Qt::Key_Return, 13},
    {Qt::Key_Enter, 13},    {Qt::Key_Shift, 16},     {Qt::Key_Alt, 18},      {Qt::Key_AltGr, 18},        {Qt::Key_Pause, 19},
    {Qt::Key_CapsLock, 20}, {Qt::Key_Kana_Lock, 21}, {Qt::Key_Hangul, 21},   {Qt::Key_Hangul_Hanja, 25}, {Qt::Key_Zenkaku_Hankaku, 25},
    {Qt::Key_Escape, 27},   {Qt::Key_Henkan, 28},    {Qt::Key_Muhenkan, 29}, {Qt::Key_Mode_switch, 31},  {Qt::Key_Space, 32},
    {Qt::Key_PageUp, 33},   {Qt::Key_PageDown, 34},  {Qt::Key_End, 35},      {Qt::Key_Home, 36},         {Qt::Key_Left, 37},
    {Qt::Key_Up, 38},       {Qt::Key_Right, 39},     {Qt::Key_Down, 40},     {Qt::Key_Select, 41},       {Qt::Key_Execute, 43},
    {Qt::Key_Print, 44},    {Qt::Key_SysReq, 44},    {Qt::Key_Insert, 45},   {Qt::Key_Delete, 46},       {Qt::Key_Help, 47},
    {Qt::Key_Super_L, 91},  {Qt::Key_Super_R, 92},   {Qt::Key_Menu, 93},     {Qt::Key_NumLock, 144},     {Qt::Key_ScrollLock, 145},
#ifdef Q_OS_MACOS
    {Qt::Key_Meta, 17},     {Qt::Key_Control, 91},  // the key with "control" on it is Meta to Qt
#else
    {Qt::Key_Control, 17},  {Qt::Key_Meta, 91},
#endif
};
// Keys that other modifiers turn into something else: with Shift held, Alt is Meta to X.
struct Modifier {
    quint32 xkb;
    int code;
};
constexpr Modifier kModifiers[] = {{64, 18}, {108, 18}, {133, 91}, {134, 92}};

struct Place {
    quint32 xkb;
    quint32 mac;
    int code;
};
constexpr Place kPlaces[] = {
    {10, 0x12, '1'},  {11, 0x13, '2'}, {12, 0x14, '3'}, {13, 0x15, '4'}, {14, 0x17, '5'}, {15, 0x16, '6'}, {16, 0x1a, '7'}, {17, 0x1c, '8'},
    {18, 0x19, '9'},  {19, 0x1d, '0'}, {24, 0x0c, 'Q'}, {25, 0x0d, 'W'}, {26, 0x0e, 'E'}, {27, 0x0f, 'R'}, {28, 0x11, 'T'}, {29, 0x10, 'Y'},
    {30, 0x20, 'U'},  {31, 0x22, 'I'}, {32, 0x1f, 'O'}, {33, 0x23, 'P'}, {38, 0x00, 'A'}, {39, 0x01, 'S'}, {40, 0x02, 'D'}, {41, 0x03, 'F'},
    {42, 0x05, 'G'},  {43, 0x04, 'H'}, {44, 0x26, 'J'}, {45, 0x28, 'K'}, {46, 0x25, 'L'}, {52, 0x06, 'Z'}, {53, 0x07, 'X'}, {54, 0x08, 'C'},
    {55, 0x09, 'V'},  {56, 0x0b, 'B'}, {57, 0x2d, 'N'}, {58, 0x2e, 'M'}, {47, 0x29, 186},  // ;
    {21, 0x18, 187},                                                                       // =
    {59, 0x2b, 188},                                                                       // ,
    {20, 0x1b, 189},                                                                       // -
    {60, 0x2f, 190},                                                                       // .
    {61, 0x2c, 191},                                                                       // /
    {49, 0x32, 192},                                                                       // `
    {34, 0x21, 219},                                                                       // [
    {51, 0x2a, 220},   // backslash; also the key beside Enter where it is tall
    {35, 0x1e, 221},   // ]
    {48, 0x27, 222},   // '
    {94, 0x0a, 226},   // < > beside the left Shift
    {97, 0x5e, 225},   // the extra key in the lower row of Japanese and Brazilian boards
    {132, 0x5d, 227},  // yen
};

struct UsKey {
    int code;
    std::string_view characters;  // without and with Shift
};
constexpr UsKey kUsKeys[] = {
    {'0', "0)"}, {'1', "1!"}, {'2', "2@"}, {'3', "3#"}, {'4', "4$"},  {'5', "5%"}, {'6', "6^"},
    {'7', "7&"}, {'8', "8*"}, {'9', "9("}, {186, ";:"}, {187, "=+"},  {188, ",<"}, {189, "-_"},
    {190, ".>"}, {191, "/?"}, {192, "`~"}, {219, "[{"}, {220, "\\|"}, {221, "]}"}, {222, "'\""},
};

constexpr UsKey kKeypad[] = {{106, "*"}, {107, "+"}, {109, "-"}, {110, ".,"}, {111, "/"}, {146, "="}};
constexpr int kKeypadZero = 96;
constexpr int kF1 = 112;
constexpr int kLastF = 24;

constexpr bool IsLetter(int code) {
    return code >= 'A' && code <= 'Z';
}
constexpr bool IsDigit(int code) {
    return code >= '0' && code <= '9';
}

// Of function, editing and modifier keys; 0: none of them.
int CodeOfNamedKey(int key, quint32 scan_code) {
    if (key >= Qt::Key_F1 && key < Qt::Key_F1 + kLastF) return kF1 + key - Qt::Key_F1;
    if (key == Qt::Key_Meta || key == Qt::Key_Super_L || key == Qt::Key_Super_R)
        for (const Modifier& modifier : kModifiers)
            if (modifier.xkb == scan_code) return modifier.code;
    for (const Named& named : kNamed)
        if (named.key == key) return named.code;
    return 0;
}

// 0: not on the keypad, or a named key (without NumLock).
int CodeOfKeypad(int key, Qt::KeyboardModifiers modifiers) {
    if (!(modifiers & Qt::KeypadModifier)) return 0;
    if (IsDigit(key)) return kKeypadZero + key - '0';
    for (const UsKey& sign : kKeypad)
        if (key > 0 && key < 0x80 && sign.characters.find(static_cast<char>(key)) != std::string_view::npos) return sign.code;
    return 0;
}

// The code of the US key there; 0: unknown.
[[maybe_unused]] int CodeOfXkbPlace(quint32 keycode) {
    for (const Place& place : kPlaces)
        if (place.xkb == keycode) return place.code;
    return 0;
}

[[maybe_unused]] int CodeOfMacPlace(quint32 kvk) {
    for (const Place& place : kPlaces)
        if (place.mac == kvk) return place.code;
    return 0;
}

// Of the key that types it on a US board; 0: none.
int CodeOfUsCharacter(int key) {
    for (const UsKey& us : kUsKeys)
        if (key > 0 && key < 0x80 && us.characters.find(static_cast<char>(key)) != std::string_view::npos) return us.code;
    return 0;
}

// Whether an X keysym is another script's letter. Katakana, Arabic, Cyrillic, Greek, Hebrew, Thai and Korean stand in blocks of 256; the
// other blocks are Latin, signs and keys.
[[maybe_unused]] bool IsForeignSymbol(quint32 symbol) {
    switch (symbol >> 8) {
        case 0x4:
        case 0x5:
        case 0x6:
        case 0x7:
        case 0xc:
        case 0xd:
        case 0xe:
            return true;
        default:
            return false;
    }
}

// The Qt key that the code stands for; Key_unknown: none.
int KeyOfCode(int code) {
    if (IsLetter(code) || IsDigit(code)) return code;
    if (code >= kKeypadZero && code < kKeypadZero + 10) return '0' + code - kKeypadZero;
    if (code >= kF1 && code < kF1 + kLastF) return Qt::Key_F1 + code - kF1;
    for (const Named& named : kNamed)
        if (named.code == code) return named.key;
    for (const UsKey& sign : kKeypad)
        if (sign.code == code) return sign.characters.front();
    for (const UsKey& us : kUsKeys)
        if (us.code == code) return us.characters.front();
    return Qt::Key_unknown;
}

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
