#include "windows/subtotal_window.h"

#include <algorithm>
#include <iterator>

#include "platform/window_table.h"
#include "windows/pad_places.h"

SubtotalWindow frmSubtotal;

namespace {
constexpr int kWidth = 12280;
constexpr int kHeight = 7050;
constexpr int kFrameWidth = kWidth - 240;
constexpr int kFrameHeight = 1830;
constexpr int kCommandTop = 6490;
constexpr int kBoxWidth = 1280;
constexpr int kBlockGap = 100;
constexpr int kRowTops[5] = {260, 560, 900, 1200, 1500};

Box CheckPlace(int place) {
    const PadCell cell = CellOfPlace(place);
    return {160 + cell.column * kBoxWidth + cell.column / 3 * kBlockGap, kRowTops[cell.row], kBoxWidth - 20, 285};
}
}  // namespace

SubtotalWindow::SubtotalWindow() : Window("frmSubtotal", "Subtotal setting", kWidth, kHeight) {
    Lay({
        {Option1[1], {"Option1", 1}, nullptr, {280, 170, 1300, 320}, "Subtotal-1"},
        {Text1[1], {"Text1", 1}, nullptr, {1620, 170, 2400, 330}, "", kPlain, "Name", &Option1[1]},
        {Option1[2], {"Option1", 2}, nullptr, {4680, 170, 1300, 320}, "Subtotal-2"},
        {Text1[2], {"Text1", 2}, nullptr, {6020, 170, 2400, 330}, "", kPlain, "Name", &Option1[2]},
        {Frame1[0], {"Frame1", 0}, nullptr, {120, 660, kFrameWidth, kFrameHeight}, "Neutral"},
        {Frame1[1], {"Frame1", 1}, nullptr, {120, 2590, kFrameWidth, kFrameHeight}, "Shift 1 or 2"},
        {Frame1[2], {"Frame1", 2}, nullptr, {120, 4520, kFrameWidth, kFrameHeight}, "Shift 1 and 2"},
    });
    Option1[1].SetValue(true);
    for (TextBox& name : Text1) name.marks_all = true;
    for (int slot = 1; slot <= kSlots; ++slot) LaySlot(slot);
    Lay({
        {Command2[0], {"Command2", 0}, nullptr, {120, kCommandTop, 1280, 400}, "Clear"},
        {Command2[1], {"Command2", 1}, nullptr, {1500, kCommandTop, 1280, 400}, "Select all"},
        {Command1, "Command1", nullptr, {9500, kCommandTop, 1280, 400}, "OK"},
        {Command3, "Command3", nullptr, {10880, kCommandTop, 1280, 400}, "Cancel"},
    });
    FirstFocus(Command1);
    confirm = &Command1;
    dismiss = &Command3;
    KeepDesign();
}

void SubtotalWindow::LaySlot(int slot) {
    constexpr int kNames = 1;
    Frame& bank = Frame1[(slot - 1) / kKeys];
    const Box place = CheckPlace((slot - 1) % kKeys + 1);
    Lay({
        {Check1[slot], {"Check1", slot}, &bank, place, "", {.points = 8}, "Taxon"},
        {Command4[slot], {"Command4", slot}, &bank, place, "xxx", kHidden},
    });
    Check1[slot].size_group = kNames;
}

void SubtotalWindow::ForgetMembers() {
    Filling = false;
    for (auto& flags : FlagsAtOpening) std::fill(std::begin(flags), std::end(flags), Any());
}
