#include "platform/qt/qt_keyboard.h"

#if defined(Q_OS_WIN)
#include <QString>
#define NOMINMAX
#include <windows.h>
#elif defined(MARLBROOK_XKB)
#include <sys/mman.h>
#include <unistd.h>
#include <wayland-client.h>
#include <xkbcommon/xkbcommon-x11.h>

#include <QGuiApplication>
#include <cstring>

#include "platform/qt/look.h"
#include "platform/qt/virtual_key.h"
#include "platform/qt/window_system.h"
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

namespace {
struct Accent {
    xkb_keysym_t dead;
    char32_t spacing;
};
constexpr Accent kAccents[] = {{0xfe50, '`'},   {0xfe51, 0xb4},  {0xfe52, '^'},  {0xfe53, '~'},  {0xfe54, 0xaf},
                               {0xfe55, 0x2d8}, {0xfe56, 0x2d9}, {0xfe57, 0xa8}, {0xfe58, 0xb0}, {0xfe59, 0x2dd},
                               {0xfe5a, 0x2c7}, {0xfe5b, 0xb8},  {0xfe5c, 0x2db}};

char32_t CharacterOf(xkb_keysym_t symbol) {
    for (const Accent& accent : kAccents)
        if (accent.dead == symbol) return accent.spacing;
    return xkb_keysym_to_utf32(symbol);
}

bool CanBeSeen(char32_t character) {
    return character > ' ' && character != 0x7f;
}

XkbPointer<xkb_context> MakeContext() {
    return XkbPointer<xkb_context>(xkb_context_new(XKB_CONTEXT_NO_FLAGS));
}

Keymap KeymapOfX11(xcb_connection_t* connection) {
    const auto context = MakeContext();
    const int keyboard = xkb_x11_get_core_keyboard_device_id(connection);
    if (!context || keyboard < 0) return {};
    Keymap keymap;
    keymap.keys.reset(xkb_x11_keymap_new_from_device(context.get(), connection, keyboard, XKB_KEYMAP_COMPILE_NO_FLAGS));
    if (!keymap.keys) return {};
    const XkbPointer<xkb_state> state(xkb_x11_state_new_from_device(keymap.keys.get(), connection, keyboard));
    if (state) keymap.layout = xkb_state_serialize_layout(state.get(), XKB_STATE_LAYOUT_EFFECTIVE);
    return keymap;
}

// A compositor sends its keymap to whoever asks for the keyboard, so a connection of a moment will do; the toolkit does not give its own.
struct WaylandKeyboard {
    wl_seat* seat = nullptr;
    wl_keyboard* keyboard = nullptr;
    std::string keymap;  // as text; empty: none was sent
};

void ReadKeymap(void* data, wl_keyboard*, std::uint32_t format, std::int32_t file, std::uint32_t size) {
    void* const bytes = mmap(nullptr, size, PROT_READ, MAP_PRIVATE, file, 0);
    if (bytes != MAP_FAILED && format == WL_KEYBOARD_KEYMAP_FORMAT_XKB_V1)
        static_cast<WaylandKeyboard*>(data)->keymap = static_cast<char*>(bytes);
    if (bytes != MAP_FAILED) munmap(bytes, size);
    close(file);
}

constexpr wl_keyboard_listener kKeyboardListener = {
    ReadKeymap,
    [](void*, wl_keyboard*, std::uint32_t, wl_surface*, wl_array*) {},
    [](void*, wl_keyboard*, std::uint32_t, wl_surface*) {},
    [](void*, wl_keyboard*, std::uint32_t, std::uint32_t, std::uint32_t, std::uint32_t) {},
    [](void*, wl_keyboard*, std::uint32_t, std::uint32_t, std::uint32_t, std::uint32_t, std::uint32_t) {},
    [](void*, wl_keyboard*, std::int32_t, std::int32_t) {},
};

void FindKeyboard(void* data, wl_seat* seat, std::uint32_t capabilities) {
    auto& wanted = *static_cast<WaylandKeyboard*>(data);
    if (!(capabilities & WL_SEAT_CAPABILITY_KEYBOARD) || wanted.keyboard) return;
    wanted.keyboard = wl_seat_get_keyboard(seat);
    wl_keyboard_add_listener(wanted.keyboard, &kKeyboardListener, data);
}

constexpr wl_seat_listener kSeatListener = {FindKeyboard, [](void*, wl_seat*, const char*) {}};

void FindSeat(void* data, wl_registry* registry, std::uint32_t name, const char* interface, std::uint32_t) {
    auto& wanted = *static_cast<WaylandKeyboard*>(data);
    if (wanted.seat || std::strcmp(interface, wl_seat_interface.name) != 0) return;
    wanted.seat = static_cast<wl_seat*>(wl_registry_bind(registry, name, &wl_seat_interface, 1));
    wl_seat_add_listener(wanted.seat, &kSeatListener, data);
}

constexpr wl_registry_listener kRegistryListener = {FindSeat, [](void*, wl_registry*, std::uint32_t) {}};

std::string KeymapTextOfWayland() {
    wl_display* const display = wl_display_connect(nullptr);
    if (!display) return "";
    WaylandKeyboard wanted;
    wl_registry* const registry = wl_display_get_registry(display);
    wl_registry_add_listener(registry, &kRegistryListener, &wanted);
    for (int answer = 0; answer < 3; ++answer) wl_display_roundtrip(display);  // the seat, its keyboard, the keymap
    if (wanted.keyboard) wl_keyboard_destroy(wanted.keyboard);
    if (wanted.seat) wl_seat_destroy(wanted.seat);
    wl_registry_destroy(registry);
    wl_display_disconnect(display);
    return wanted.keymap;
}

Keymap KeymapOfWayland() {
    const std::string text = KeymapTextOfWayland();
    const auto context = MakeContext();
    if (!context || text.empty()) return {};
    Keymap keymap;
    keymap.keys.reset(xkb_keymap_new_from_string(context.get(), text.c_str(), XKB_KEYMAP_FORMAT_TEXT_V1, XKB_KEYMAP_COMPILE_NO_FLAGS));
    if (keymap.keys && xkb_keymap_num_layouts(keymap.keys.get()) > 1) return {};  // only the window in front hears which is in use
    return keymap;
}
}  // namespace

Keymap KeymapInUse() {
    if (const auto* const x11 = X11()) return KeymapOfX11(x11->connection());
    if (OnWayland()) return KeymapOfWayland();
    return {};
}

std::map<int, std::string> CharactersOf(const Keymap& keymap) {
    std::map<int, std::string> characters;
    if (!keymap.keys) return characters;
    for (xkb_keycode_t key = xkb_keymap_min_keycode(keymap.keys.get()); key <= xkb_keymap_max_keycode(keymap.keys.get()); ++key) {
        const xkb_keysym_t* symbols = nullptr;
        const xkb_layout_index_t layouts = xkb_keymap_num_layouts_for_key(keymap.keys.get(), key);
        if (layouts == 0) continue;
        if (xkb_keymap_key_get_syms_by_level(keymap.keys.get(), key, keymap.layout % layouts, 0, &symbols) != 1) continue;
        const char32_t character = CharacterOf(*symbols);
        const auto code = VirtualKey(QKeyEvent(QEvent::KeyPress, 0, Qt::NoModifier, key, *symbols, 0));
        if (code && CanBeSeen(character)) characters.emplace(*code, FromQt(QString::fromUcs4(&character, 1)));
    }
    return characters;
}

std::map<int, std::string> QtKeyboard::Characters() {
    return CharactersOf(KeymapInUse());
}

#else

std::map<int, std::string> QtKeyboard::Characters() {
    return {};
}

#endif
