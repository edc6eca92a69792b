#include "windows/subtotal_window.h"

#include "windows/pad_places.h"

SubtotalWindow frmSubtotal;

namespace {
constexpr int kWidth = 12280;
constexpr int kFrameTop = 660;
constexpr int kFramePitch = 1930;
constexpr int kFrameHeight = 1830;
constexpr int kCommandTop = kFrameTop + 3 * kFramePitch + 40;
constexpr int kBoxWidth = 1280;
constexpr int kBlockGap = 100;
constexpr int kBoxHeight = 285;
constexpr int kRowTops[5] = {260, 560, 900, 1200, 1500};
constexpr const char* kBanks[3] = {"Neutral", "Shift 1 or 2", "Shift 1 and 2"};

Box CheckPlace(int place) {
    const PadCell cell = CellOfPlace(place);
    return {160 + cell.column * kBoxWidth + cell.column / 3 * kBlockGap, kRowTops[cell.row], kBoxWidth - 20, kBoxHeight};
}
}  // namespace

SubtotalWindow::SubtotalWindow() : Window("frmSubtotal", "Subtotal setting", kWidth, kCommandTop + 560) {
    PlaceNames();
    PlaceBanks();
    PlaceCommands();
    FirstFocus(Command1);
    confirm = &Command1;
    dismiss = &Command3;
    KeepDesign();
}

void SubtotalWindow::PlaceNames() {
    for (int subtotal = 1; subtotal <= kSubtotals; ++subtotal) {
        const std::string caption = "Subtotal-" + std::to_string(subtotal);
        const int left = 280 + 4400 * (subtotal - 1);
        Add(Option1[subtotal], "Option1", subtotal, nullptr, {left, 170, 1300, 320});
        Option1[subtotal].SetCaption(caption);
        Add(Text1[subtotal], "Text1", subtotal, nullptr, {left + 1340, 170, 2400, 330});
        Text1[subtotal].accessible_name = "Name";
        Text1[subtotal].named_by = &Option1[subtotal];
    }
    Option1[1].SetValue(true);
}

void SubtotalWindow::PlaceBanks() {
    for (int bank = 0; bank < 3; ++bank) {
        Add(Frame1[bank], "Frame1", bank, nullptr, {120, kFrameTop + kFramePitch * bank, kWidth - 240, kFrameHeight});
        Frame1[bank].SetCaption(kBanks[bank]);
    }
    for (int slot = 1; slot <= kSlots; ++slot) {
        Frame& frame = Frame1[(slot - 1) / kKeys];
        const Box place = CheckPlace((slot - 1) % kKeys + 1);
        Add(Check1[slot], "Check1", slot, &frame, place);
        Check1[slot].SetFontSize(8);
        Check1[slot].accessible_name = "Taxon";
        Add(Command4[slot], "Command4", slot, &frame, place);
        Command4[slot].SetCaption("xxx");
        Command4[slot].SetVisible(false);
    }
}

void SubtotalWindow::PlaceCommands() {
    const auto put = [this](Button& button, const char* button_name, int array_index, const char* caption, int left) {
        Add(button, button_name, array_index, nullptr, {left, kCommandTop, 1280, 400});
        button.SetCaption(caption);
    };
    put(Command2[0], "Command2", 0, "Clear", 120);
    put(Command2[1], "Command2", 1, "Select all", 1500);
    put(Command1, "Command1", -1, "OK", kWidth - 2780);
    put(Command3, "Command3", -1, "Cancel", kWidth - 1400);
}
