// The keyboard's layout, asked of the system each time: a user may change it while the program runs.
#pragma once
#include "platform/services.h"

#ifdef MARLBROOK_XKB
#include <xkbcommon/xkbcommon.h>

#include <memory>
#endif

class QtKeyboard : public Keyboard {
public:
    // Nothing on macOS, nor under Wayland where there are several layouts: which one is in use is told to the window in front alone.
    std::map<int, std::string> Characters() override;
};

#ifdef MARLBROOK_XKB
// ---- The keymap of an X or Wayland display: which character each key types ----

struct XkbDeleter {
    void operator()(xkb_context* context) const { xkb_context_unref(context); }
    void operator()(xkb_keymap* keymap) const { xkb_keymap_unref(keymap); }
    void operator()(xkb_state* state) const { xkb_state_unref(state); }
};
template <class Object>
using XkbPointer = std::unique_ptr<Object, XkbDeleter>;

struct Keymap {
    XkbPointer<xkb_keymap> keys;  // nullptr: not known
    xkb_layout_index_t layout = 0;
};

Keymap KeymapInUse();                                           // by the display that the program runs on
std::map<int, std::string> CharactersOf(const Keymap& keymap);  // without Shift, by virtual-key numbers; a dead key's is its accent
#endif
