#include "windows/key_code_window.h"

#include "windows/pad_places.h"

KeyCodeWindow frmKeyCode;

namespace {
constexpr int kWidth = 8160;
constexpr int kMapWidth = 5855;
constexpr int kMapHeight = 2880;
constexpr int kBoxHeight = 285;

// The map for the right hand. The one for the left hand, with Save and Undo on the other side, is its mirror image in the same frame.
constexpr int kLefts[9] = {734, 1272, 1810, 2430, 2968, 3506, 4126, 4664, 5202};
constexpr int kTops[5] = {340, 725, 1200, 1585, 1970};
constexpr int kKeyWidth = 520;
constexpr Box kFunctionalBoxes[] = {
    {670, 2445, 1180, kBoxHeight},   // 46 Shift-1
    {1910, 2445, 1180, kBoxHeight},  // 47 Shift-2
    {3150, 2445, 1180, kBoxHeight},  // 48 Shift-1 again
    {180, 725, 440, kBoxHeight},     // 49 Undo
    {180, 340, 440, kBoxHeight},     // 50 Save
};
constexpr const char* kFunctionalNames[] = {"Shift-1", "Shift-2", "Shift-1", "Undo", "Save"};

constexpr int kFunctionalTop = 3680;
constexpr int kFunctionalHeight = 2180;
constexpr int kBoxLeft = 4560;  // of Text4, in its frame
constexpr const char* kFunctionalWords[kFunctionalKeys] = {
    "\"Shift-1\" key  (ex. [;], [Up], etc.]): ",
    "\"Shift-2\" key  (ex. [p], [Down], etc.): ",
    "\"Undo\" key  (ex. [BkSp], [Delete], etc.): ",
    "\"Save\" key  (ex. [=], [Return], etc.): ",
};
constexpr const char* kSpokenNames[kFunctionalKeys + 1] = {"Shift-1 key", "Shift-2 key", "Undo key", "Save key", "F1 key"};

constexpr int kSideLeft = 6355;
constexpr int kSideWidth = 1685;
constexpr int kBottomTop = 5960;

Box MapBox(int row) {
    if (row == 0) return {};
    if (row > kKeys) return kFunctionalBoxes[row - kKeys - 1];
    const PadCell cell = CellOfPlace(row);
    return {kLefts[cell.column], kTops[cell.row], kKeyWidth, kBoxHeight};
}
}  // namespace

KeyCodeWindow::KeyCodeWindow() : Window("frmKeyCode", "Key settings", kWidth, 6500) {
    PlaceMaps();
    PlaceChoices();
    PlaceFunctionalKeys();
    Add(Command4, "Command4", -1, nullptr, {6020, kBottomTop, 960, 400});
    Command4.SetCaption("OK");
    Add(Command1, "Command1", -1, nullptr, {7080, kBottomTop, 960, 400});
    Command1.SetCaption("Cancel");
    FirstFocus(Command4);
    confirm = &Command4;
    dismiss = &Command1;
    KeepDesign();
}

void KeyCodeWindow::PlaceMaps() {
    Add(SSTab1, "SSTab1", -1, nullptr, {120, 120, kMapWidth + 240, kMapHeight + 540});
    SSTab1.SetTabCaptions({"Key definition", "Key code", "Key number"});
    SSTab1.accessible_name = "Maps of the keys";
    PlaceMap(Frame1, "Frame1", 0, "Key definition map");
    PlaceMap(Frame2, "Frame2", 1, "Key code map (automatically linked to the definition map)");
    PlaceMap(Frame3, "Frame3", 2, "Ergodex key number map");
    for (int row = 0; row <= kMapRows; ++row) {
        const bool functional = row > kKeys;
        const std::string key = functional ? kFunctionalNames[row - kKeys - 1] : std::to_string(row);
        const std::string spoken = row == kSecondShift1 ? key + " again" : key;
        PlaceMapBox(Text1[row], "Text1", row, Frame1, "Definition of key " + spoken);
        PlaceMapBox(Text2[row], "Text2", row, Frame2, "Code of key " + spoken);
        PlaceMapBox(Text3[row], "Text3", row, Frame3, functional ? "Number of key " + spoken : "Number of the key at place " + spoken);
        if (functional) Text1[row].SetText(key);
        Text1[row].SetEnabled(!functional);
        Text2[row].SetEnabled(false);
        Text3[row].SetEnabled(!functional);
        Text1[row].takes_keys = true;
        Text1[row].tab_stop = false;  // Tab would not lead out again
    }
}

void KeyCodeWindow::PlaceMap(Frame& frame, const char* frame_name, int page, const char* caption) {
    Add(frame, frame_name, -1, &SSTab1, {120, 420, kMapWidth, kMapHeight});
    frame.SetCaption(caption);
    frame.page = page;
}

void KeyCodeWindow::PlaceMapBox(TextBox& box, const char* box_name, int row, Frame& frame, const std::string& spoken_name) {
    Add(box, box_name, row, &frame, MapBox(row));
    box.SetVisible(row != 0);
    box.SetFontSize(8);
    box.centred = true;
    box.accessible_name = spoken_name;
}

void KeyCodeWindow::PlaceFunctionalKeys() {
    Add(Frame4, "Frame4", -1, nullptr, {120, kFunctionalTop, kWidth - 240, kFunctionalHeight});
    Frame4.SetCaption("Functional keys");
    Add(Label5, "Label5", -1, &Frame4, {240, 260, 6200, 280});
    Label5.SetCaption("Place cursor in the text box and press a key of your choice: ");
    for (int key = 0; key < kFunctionalKeys; ++key) {
        const int top = 620 + 380 * key;
        Add(Label6[key], "Label6", key, &Frame4, {240, top + 10, 4240, 280});
        Label6[key].SetCaption(kFunctionalWords[key]);
        Add(Text4[key], "Text4", key, &Frame4, {kBoxLeft, top, 1060, 300});
    }
    Add(Command3, "Command3", -1, &Frame4, {kSideLeft - 120, 620, 1445, 400});
    Command3.SetCaption("Notice");
    Add(Label7, "Label7", -1, nullptr, {360, kBottomTop + 60, 4240, 280});
    Label7.SetCaption("Place the cursor in the box and press [F1] key: ");
    Add(Text4[kF1Box], "Text4", kF1Box, nullptr, {120 + kBoxLeft, kBottomTop + 50, 1060, 300});
    for (int key = 0; key <= kF1Box; ++key) {
        Text4[key].centred = true;
        Text4[key].accessible_name = kSpokenNames[key];
        Text4[key].takes_keys = true;
        Text4[key].tab_stop = false;
    }
}

void KeyCodeWindow::PlaceChoices() {
    Add(Option1[1], "Option1", 1, nullptr, {kSideLeft, 540, kSideWidth, 300});
    Option1[1].SetCaption("Right handed");
    Option1[1].SetValue(true);
    Add(Option1[0], "Option1", 0, nullptr, {kSideLeft, 880, kSideWidth, 300});
    Option1[0].SetCaption("Left handed");
    const auto put_line = [this](Label& words, const char* words_name, const char* caption, Label& value, const char* value_name, int top) {
        Add(words, words_name, -1, nullptr, {kSideLeft, top, 1100, 280});
        words.SetCaption(caption);
        Add(value, value_name, -1, nullptr, {kSideLeft + 1120, top, kSideWidth - 1120, 280});
    };
    put_line(Label1, "Label1", "Key code: ", Label2, "Label2", 1400);
    put_line(Label3, "Label3", "Ascii code: ", Label4, "Label4", 1720);
    Label4.accessible_name = "Ascii code of the last character";
    Add(Command2, "Command2", -1, nullptr, {kSideLeft, 2240, kSideWidth, 400});
    Command2.SetCaption("All clear");
    Add(Command5, "Command5", -1, nullptr, {kSideLeft, 2740, kSideWidth, 400});
    Command5.SetCaption("Default");
    Command5.SetVisible(false);
    Add(ProgressBar1, "ProgressBar1", -1, nullptr, {kSideLeft, 3280, kSideWidth, 220});
    ProgressBar1.SetVisible(false);
    ProgressBar1.accessible_name = "Saving";
}

void KeyCodeWindow::ForgetMembers() {
    OldDefinition.clear();
    OldCode.clear();
    OldFunctional.clear();
    Characters.clear();
}
