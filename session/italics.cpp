#include "session/italics.h"

#include <algorithm>
#include <array>

#include "platform/text.h"
#include "session/state/sheet_state.h"
#include "windows/main_window.h"

namespace {
bool IsGenus(const std::string& name) {
    const std::string ending = Right(name, 2);
    return name != kEmpty && ending != "ae" && ending != "AE";
}
}  // namespace

void ApplyItalics() {
    std::array<bool, kSlots + 1> italic{};
    for (int slot = 1; slot <= kSlots; ++slot) italic[slot] = frmMain.mnuItalic.Checked() && IsGenus(frmMain.TaxonNames[slot].Text());
    if (std::count(italic.begin(), italic.end(), true) == kSlots) italic.fill(false);
    for (int slot = 1; slot <= kSlots; ++slot) frmMain.TaxonNames[slot].SetItalic(italic[slot]);
}

void ToggleItalics() {
    frmMain.mnuItalic.SetChecked(!frmMain.mnuItalic.Checked());
    ApplyItalics();
}
