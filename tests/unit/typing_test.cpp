// Whatever is typed into the boxes of the windows: each keeps a valid value, and what stands on the screen is what a saved and reopened
// sheet holds.
#include <random>

#include "drive/names.h"
#include "keys/settings/key_settings.h"
#include "platform/text.h"
#include "platform/user.h"
#include "unit/sheet_test.h"
#include "windows/key_windows.h"
#include "windows/main_window.h"
#include "windows/name_windows.h"
#include "windows/next_window.h"
#include "windows/subtotal_window.h"

namespace {
constexpr const char* kSheet = "/sheets/typed.csv";
constexpr const char* kTemplate = "/sheets/empty.csv";

// A name with a colon at its end keeps it on the screen alone, so the names of parameters go without.
constexpr const char* kWithoutColon = "abcXYZ 0123456789'\"@#,.;-+=()/\\!?&%_";
constexpr const char* kEveryKey = "abcXYZ 0123456789'\"@#,.;-+=()/\\!?&%_:";
constexpr const char* kWithoutMark = "abcXYZ 0123456789',.;-+=()/\\!?&%_:";  // for the boxes that have no guard
constexpr const char* kCountKeys = "0123456789-.,x '\"@#";                   // not the save key: a sample over 32767 cannot be saved

// All that a file keeps of a sheet.
Texts SheetContents() {
    Texts all = {SheetHeader[kHeaderSubtotal1].Text(), SheetHeader[kHeaderSubtotal2].Text()};
    for (int sample = 1; sample <= SampleCount; ++sample) {
        all.push_back(SampleTable[kSampleName][sample].Text());
        all.push_back(SampleNotes[sample]);
        for (int p = 1; p <= kParams; ++p) all.push_back(ParamValues[p][sample].Text());
        for (int slot = 1; slot <= kSlots; ++slot) all.push_back(std::to_string(Counts[slot][sample]));
    }
    for (int slot = 1; slot <= kSlots; ++slot)
        for (int field = kTaxonKey; field <= kTaxonName; ++field) all.push_back(TaxonTable[slot][field].Text());
    for (int p = 1; p <= kParams; ++p) all.push_back(frmMain.Label10[p].Caption());
    return all;
}

Texts KeyContents() {
    Texts all;
    for (const auto& row : KeySettings)
        for (const auto& cell : row) all.push_back(cell.Text());
    return all;
}

class TypingTest : public SheetTest, public testing::WithParamInterface<unsigned> {
protected:
    TypingTest() : random_(GetParam()) { Begin("10"); }

    int UpTo(int last) { return std::uniform_int_distribution(0, last)(random_); }
    int Slot() { return 1 + UpTo(kSlots - 1); }
    int Param() { return 1 + UpTo(kParams - 1); }

    // What a key does in the box with the focus stands between its press and its release.
    template <class Edit>
    void Press(int code, Edit edit) {
        PressKey(code);
        if (Control* const box = ActiveWindow()->Focus(); box && CanReach(*box)) edit(*box);
        ReleaseKey(code);
    }
    void Type(char character) {
        Press(*drive::KeyThatTypes(character), [character](Control& box) { InsertText(box, std::string(1, character)); });
    }
    void TypeAnyOf(const std::string& characters) {
        switch (UpTo(11)) {
            case 0:
                return Press(8, DeleteBackward);
            case 1:
                return Press(46, DeleteForward);
            default:
                return Type(characters[static_cast<std::size_t>(UpTo(static_cast<int>(characters.size()) - 1))]);
        }
    }
    void TypeInto(Control& box, const std::string& characters) {
        ClickControl(box);
        for (int keys = UpTo(12); keys > 0; --keys) TypeAnyOf(characters);
    }

    void TypeCount(TextBox& cell) {
        TypeInto(cell, kCountKeys);
        ClickControl(cell);
        cell.Select(0, static_cast<int>(Length(cell.Text())));
        InsertText(cell, std::to_string(UpTo(100) - 10));  // small enough for the sum of all to be saved
    }

    void TypeInTheMainWindow() {
        const int slot = Slot();
        PressTab(frmMain.SSTab1, (slot - 1) / kKeys);
        TypeInto(frmMain.Text1[slot], kEveryKey);
        TypeCount(frmMain.Text2[slot]);
        TypeInto(frmMain.Text4, kEveryKey);
        TypeInto(frmMain.Text5[Param()], kEveryKey);
    }

    void TypeInDialogs() {
        ClickControl(frmMain.mnuSubtotal);
        for (const int subtotal : {1, 2}) TypeInto(frmSubtotal.Text1[subtotal], kEveryKey);
        ClickControl(frmSubtotal.Command1);
        ClickControl(frmMain.Command7[Param()]);
        TypeInto(frmParaName.Text1, kWithoutColon);
        Type('x');  // an empty name is an empty cell
        ClickControl(frmParaName.Command1);
    }

    void TypeInModifyMode() {
        ClickControl(frmMain.Command3[0]);
        ASSERT_TRUE(AmendMode);
        for (int i = 0; i < 30; ++i) TypeInTheMainWindow();
        TypeInto(frmMain.Text1[0], kEveryKey);
        Type(static_cast<char>('a' + SampleCount));  // no name twice
        TypeInDialogs();
        ClickControl(frmMain.Command3[1]);
        ASSERT_FALSE(AmendMode);
    }

    void TypeNextSample() {
        if (!frmMain.Command5[1].Enabled()) KeyNumber(2, 20);
        ASSERT_TRUE(frmMain.Command5[1].Enabled());
        ClickControl(frmMain.Command5[1]);
        TypeInto(frmNext.Text1, kWithoutMark);
        Type(static_cast<char>('a' + SampleCount + 1));
        TypeInto(frmNext.Text2, kEveryKey);
        TypeInto(frmNext.Text3[Param()], kEveryKey);
        ClickControl(frmNext.Command1);
        ASSERT_TRUE(frmMain.Enabled());
    }

    void ExpectCellsAreCounts() {
        for (int slot = 1; slot <= kSlots; ++slot)
            ASSERT_EQ(frmMain.Text2[slot].Text(), std::to_string(Counts[slot][CurrentSample])) << slot;
    }
    void ExpectSameAfterSavingAndOpening() {
        KeyNumber(3);
        ClickControl(frmMain.mnuSave);
        ASSERT_EQ(SaveOutcome, 0);
        ExpectCellsAreCounts();
        const Texts saved = SheetContents();
        OpenWithButton(kSheet);
        ASSERT_EQ(SheetContents(), saved);
        ExpectCellsAreCounts();
    }
    void OpenWithButton(const char* path) {
        AnswerNext(Answer::Yes);
        AnswerDialog(path);
        ClickControl(frmMain.mnuOpen);
    }

    // The three maps and the functional keys; what is refused at OK is cancelled.
    void TypeInKeySettings() {
        ClickControl(frmMain.mnuKeyCodeReader);
        for (int i = 0; i < 10; ++i) {
            PressTab(frmKeyCode.SSTab1, 0);
            TypeInto(frmKeyCode.Text1[1 + UpTo(kKeys - 1)], kWithoutMark);
            PressTab(frmKeyCode.SSTab1, 2);
            TypeInto(frmKeyCode.Text3[1 + UpTo(kKeys - 1)], kCountKeys);
            TypeInto(frmKeyCode.Text4[UpTo(kFunctionalKeys - 1)], kWithoutMark);
        }
        if (UpTo(1) == 0) {
            PressTab(frmKeyCode.SSTab1, 2);
            ClickControl(frmKeyCode.Command5);
        }
        ClickControl(frmKeyCode.Command4);
        ClickControl(frmKeyCode.Command1);
        ASSERT_TRUE(frmMain.Enabled());
    }
    void TypeInInitialize() {
        ClickControl(frmMain.mnuInitial);
        for (int i = 0; i < 5; ++i) TypeInto(frmInitial.Text1[UpTo(kNamedKeys - 1)], kWithoutMark);
        ClickControl(frmInitial.Command1);
        CloseWindow(frmInitial);  // a box that was entered and left is empty, and refused
        ASSERT_TRUE(frmMain.Enabled());
    }

private:
    std::mt19937 random_;
};

TEST_P(TypingTest, ASheetIsTheSameAfterSavingAndOpening) {
    KeyNumber(1, 3);
    SaveAs(kSheet);
    for (int round = 0; round < 10; ++round) {
        ASSERT_NO_FATAL_FAILURE(TypeInModifyMode());
        ASSERT_NO_FATAL_FAILURE(TypeNextSample());
        ASSERT_NO_FATAL_FAILURE(ExpectSameAfterSavingAndOpening());
    }
}

TEST_P(TypingTest, ASheetFromATemplateIsTheSameAfterSavingAndOpening) {
    AnswerDialog(kTemplate);
    ClickControl(frmMain.mnuTemplate);
    OpenWithButton(kTemplate);
    ASSERT_TRUE(frmSiteName.Visible());
    TypeInto(frmSiteName.Text1, kWithoutMark);
    TypeInto(frmSiteName.Text2, kWithoutMark);
    for (int p = 1; p <= kParams; ++p) TypeInto(frmSiteName.Text3[p], kWithoutMark);
    ClickControl(frmSiteName.Command1);
    KeyNumber(4, 2);
    SaveAs(kSheet);
    ExpectSameAfterSavingAndOpening();
}

TEST_P(TypingTest, TheKeySettingsAreTheSameAfterSavingAndReading) {
    for (int round = 0; round < 5; ++round) {
        ASSERT_NO_FATAL_FAILURE(TypeInKeySettings());
        ASSERT_NO_FATAL_FAILURE(TypeInInitialize());
        const Texts kept = KeyContents();
        ReadKeySettings();
        ASSERT_EQ(KeyContents(), kept);
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, TypingTest, testing::Range(1u, 16u));
}  // namespace
