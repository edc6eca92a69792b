#include "keys/key_dialog_capture.h"

#include <string>

#include "keys/key_dialog.h"
#include "platform/control.h"
#include "platform/encoding.h"
#include "platform/text.h"
#include "session/state/sheet_state.h"
#include "taxa/quotation_guard.h"
#include "windows/key_windows.h"

namespace {
constexpr int kFirstNamedRow = 51;
constexpr int kLastNamedRow = 62;
constexpr int kF1Row = 58;
constexpr int kTopRow[] = {28, 29, 30, 34, 35, 36, 40, 41, 42};  // the keys that F1..F9 count on by default
constexpr int kKeyOfThree = 51;

// "[Esc]", "[F5]"; empty for a key without a name. Only F1 is known by itself: the other function keys follow it.
std::string BracketedName(int code) {
    std::string name;
    for (int row = kFirstNamedRow; row <= kLastNamedRow; ++row)
        if (KeySettings[row][kKeyCode] == code) name = "[" + KeySettings[row][kKeyDefinition].Text() + "]";
    for (int n = 1; n <= 12; ++n)
        if (KeySettings[kF1Row][kKeyCode] == code - n + 1) name = "[F" + std::to_string(n) + "]";
    return name;
}

void ShowName(TextBox& box, int code) {
    if (const std::string name = BracketedName(code); !name.empty()) box.SetText(name);
}

template <std::size_t kSize>
void Blacken(TextBox (&boxes)[kSize]) {
    for (TextBox& box : boxes) box.SetForeColor(kBlack);
}

// By its number in the encoding of the files; a character outside it has none.
void ShowCharacterCode(const std::string& character) {
    const std::string bytes = EncodeFile(character);
    frmKeyCode.CharacterCode.SetCaption(bytes.size() == 1 ? std::to_string(static_cast<unsigned char>(bytes[0])) : "");
}

// Keys that type a character which no box takes, under its own number: BkSp, Tab, Enter, Esc.
bool TypesControlCharacter(int code) {
    return code == kBackspaceKey || code == kTabKey || code == kEnterKey || code == kEscapeKey;
}

void RestoreDefinition(int key) {
    frmKeyCode.Definitions[key].SetText(frmKeyCode.OldDefinition);
    frmKeyCode.Codes[key].SetText(frmKeyCode.OldCode);
}

void GiveCode(int row, int code) {
    frmKeyCode.Codes[row].SetText(std::to_string(code));
}

void GiveTopRow(int code) {
    for (const int key : kTopRow) GiveCode(key, code++);
}
}  // namespace

void EnterDefinition(int key) {
    EnterGuardedBox();
    frmKeyCode.OldDefinition = frmKeyCode.Definitions[key].Text();
    frmKeyCode.OldCode = frmKeyCode.Codes[key].Text();
    frmKeyCode.Definitions[key].SetText("");
    Blacken(frmKeyCode.Definitions);
}

void CaptureDefinitionKey(int key, int code) {
    frmKeyCode.OldCode = frmKeyCode.Codes[key].Text();
    GiveCode(key, code);
    NoteEditKey(code);
    if (TypesControlCharacter(code)) frmKeyCode.CharacterCode.SetCaption(std::to_string(code));
}

void CheckDefinition(int key) {
    const TextBox& box = frmKeyCode.Definitions[key];
    if (!IsTyped(box) || LastEditKey == kBackspaceKey || LastEditKey == kDeleteKey) return;
    ShowCharacterCode(Mid(box.Text(), static_cast<std::size_t>(box.SelStart()), 1));
    if (LastEditKey != kKeyOfThree || box.Text() == "3") return;
    services.messages->Show({"Are you an AZERTY keyboard user?",
                             "Using double quotation mark causes fatal error. Please choose another key.", Icon::None, Buttons::Ok});
    RestoreDefinition(key);
}

void NameDefinition(int key, int code) {
    ForgetEditKey();
    ShowName(frmKeyCode.Definitions[key], code);
}

void LeaveDefinition(int key) {
    if (frmKeyCode.Definitions[key].Text().empty()) RestoreDefinition(key);
}

void EnterFunctional(int box) {
    frmKeyCode.OldFunctional = frmKeyCode.FunctionalBoxes[box].Text();
    frmKeyCode.FunctionalBoxes[box].SetText("");
    Blacken(frmKeyCode.FunctionalBoxes);
}

void CaptureFunctionalKey(int box, int code) {
    if (box == kF1Box)
        GiveTopRow(code);
    else
        GiveCode(kFunctionalRows[box], code);
    if (box == 0) GiveCode(kSecondShift1, code);
    frmKeyCode.FunctionalBoxes[box].SetText("");
}

void NameFunctional(int box, int code) {
    ShowName(frmKeyCode.FunctionalBoxes[box], code);
}

void LeaveFunctional(int box) {
    if (frmKeyCode.FunctionalBoxes[box].Text().empty()) frmKeyCode.FunctionalBoxes[box].SetText(frmKeyCode.OldFunctional);
}

void EnterKeyNumber(int place) {
    frmKeyCode.OldDefinition = frmKeyCode.KeyNumbers[place].Text();
    frmKeyCode.KeyNumbers[place].SetText("");
    Blacken(frmKeyCode.KeyNumbers);
}

void LeaveKeyNumber(int place) {
    TextBox& box = frmKeyCode.KeyNumbers[place];
    if (box.Text().empty()) box.SetText(frmKeyCode.OldDefinition);
    if (const double number = box.Number(); number < 1 || number > kKeys) {
        services.messages->Show({"Error", "Counte key index must be between 1 and 45.", Icon::Exclamation, Buttons::Ok});
        box.SetText(frmKeyCode.OldDefinition);
    }
    LayOutMaps();
}
