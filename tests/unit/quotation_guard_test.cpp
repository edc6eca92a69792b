#include "taxa/quotation_guard.h"

#include "platform/user.h"
#include "unit/sheet_test.h"
#include "windows/main_window.h"
#include "windows/next_window.h"

namespace {
constexpr const char* kText = "Using double quotation mark causes fatal error. Please choose another symbol.";

// A box of its own, guarded as the boxes of the windows are.
class QuotationGuardTest : public SheetTest {
protected:
    QuotationGuardTest() {
        box_.Change.Calls([this] { RefuseQuotationMark(box_); });
        EnterGuardedBox();
    }
    void Type(int code, const std::string& character) {
        NoteEditKey(code);
        Paste(character);
    }
    void Paste(const std::string& text) {
        const int caret = box_.SelStart();
        std::string whole = box_.Text();
        whole.insert(static_cast<std::size_t>(caret), text);
        box_.Enter(whole, caret + static_cast<int>(text.size()));
    }
    TextBox box_;
};

TEST_F(QuotationGuardTest, TheThreeKeysThatGiveTheMarkMayTypeOneCharacterEach) {
    const struct {
        int code;
        const char* own;
        const char* title;
    } keys[] = {{51, "3", "Are you an AZERTY keyboard user?"}, {50, "2", "Caution!"}, {222, "'", "Caution!"}};
    for (const auto& key : keys) {
        services_.messages.shown.clear();
        box_.Enter("", 0);
        Type(key.code, key.own);
        EXPECT_EQ(box_.Text(), key.own);
        EXPECT_EQ(MessageCount(), 0u) << key.code;
        for (const char* other : {"\"", "@", "#", "a"}) {
            services_.messages.shown.clear();
            Played();
            Type(key.code, other);
            EXPECT_EQ(box_.Text(), key.own) << other;
            EXPECT_EQ(box_.SelStart(), 1) << other;
            ASSERT_EQ(MessageCount(), 1u) << other;
            EXPECT_EQ(LastMessage().title, key.title);
            EXPECT_EQ(LastMessage().text, kText);
            EXPECT_EQ(LastMessage().icon, Icon::Exclamation);
            EXPECT_EQ(LastMessage().buttons, Buttons::Ok);
            EXPECT_EQ(Played(), Texts{"Beep"});
        }
    }
}

TEST_F(QuotationGuardTest, OtherKeysTypeWhatTheyLike) {
    for (const int code : {49, 52, 99, 98, 221, 223, 9999}) Type(code, "\"");
    EXPECT_EQ(box_.Text(), "\"\"\"\"\"\"\"");
    EXPECT_EQ(MessageCount(), 0u);
}

TEST_F(QuotationGuardTest, InTheMiddleOfATextTheCaretStaysWhereItWas) {
    box_.Enter("Pinus nigra", 5);
    Type(50, "\"");
    EXPECT_EQ(box_.Text(), "Pinus nigra");
    EXPECT_EQ(box_.SelStart(), 5);
    Type(65, "x");
    EXPECT_EQ(box_.Text(), "Pinusx nigra");
}

TEST_F(QuotationGuardTest, AtTheHeadOfATextItIsCutOutToo) {
    box_.Enter("Pinus", 0);
    Type(222, "\"");
    EXPECT_EQ(box_.Text(), "Pinus");
    EXPECT_EQ(box_.SelStart(), 0);
}

TEST_F(QuotationGuardTest, PlacesAreCountedInCharacters) {
    box_.Enter("\u00e9\u00e9", 2);
    NoteEditKey(51);
    box_.Enter("\u00e9\u00e9\"", 3);
    EXPECT_EQ(box_.Text(), "\u00e9\u00e9");
    EXPECT_EQ(box_.SelStart(), 2);
}

TEST_F(QuotationGuardTest, AMarkThatIsPastedPasses) {
    Type(51, "3");
    Paste("\"");
    EXPECT_EQ(box_.Text(), "3\"");
    EXPECT_EQ(MessageCount(), 0u);
}

TEST_F(QuotationGuardTest, ATextThatTheProgramPutsInPasses) {
    NoteEditKey(51);
    box_.SetText("a \"quoted\" word");
    EXPECT_EQ(box_.Text(), "a \"quoted\" word");
    EXPECT_EQ(MessageCount(), 0u);
}

TEST_F(QuotationGuardTest, ADeletionAfterOneOfTheKeysIsNotItsDoing) {
    Type(50, "2");
    box_.Enter("", 0);
    EXPECT_EQ(MessageCount(), 0u);
}

TEST_F(QuotationGuardTest, EnteringABoxForgetsTheLastKey) {
    NoteEditKey(50);
    EXPECT_EQ(LastEditKey, 50);
    EnterGuardedBox();
    EXPECT_EQ(LastEditKey, 9999);
    Paste("\"");
    EXPECT_EQ(MessageCount(), 0u);
}

class GuardedBoxesTest : public SheetTest {
protected:
    // Types into the box, and tells whether what the key gave was refused.
    bool Refuses(TextBox& box, int code, const char* character) {
        services_.messages.shown.clear();
        ClickControl(box);
        const std::string before = box.Text();
        PressKey(code);
        InsertText(box, character);
        ReleaseKey(code);
        return MessageCount() == 1 && box.Text() == before;
    }
};

TEST_F(GuardedBoxesTest, NoteAndValuesOfANewSampleAreGuardedAndItsNameIsNot) {
    Start();
    ClickControl(frmNext.Command4);
    EXPECT_TRUE(Refuses(frmNext.Text2, 50, "\""));
    for (int p = 1; p <= kParams; ++p) {
        EXPECT_TRUE(Refuses(frmNext.Text3[p], 222, "\"")) << p;
        EXPECT_FALSE(Refuses(frmNext.Text3[p], 51, "3")) << p;
    }
    EXPECT_FALSE(Refuses(frmNext.Text1, 50, "\""));
    EXPECT_EQ(frmNext.Text1.Text(), "\"");
}

TEST_F(GuardedBoxesTest, InModifyModeNamesNoteAndAdditionalInfoAreGuarded) {
    Begin("10");
    ClickControl(frmMain.Command3[0]);
    EXPECT_TRUE(Refuses(frmMain.Text1[0], 50, "\"")) << "the name of the sample";
    EXPECT_EQ(SampleTable[kSampleName][1].Text(), "10");
    EXPECT_TRUE(Refuses(frmMain.Text1[1], 50, "\""));
    EXPECT_EQ(TaxonTable[1][kTaxonName].Text(), "---");
    EXPECT_TRUE(Refuses(frmMain.Text1[45], 51, "\""));
    EXPECT_TRUE(Refuses(frmMain.Text4, 222, "\""));
    for (int p = 1; p <= kParams; ++p) EXPECT_TRUE(Refuses(frmMain.Text5[p], 50, "@")) << p;
    EXPECT_FALSE(Refuses(frmMain.Text5[1], 50, "2"));
    EXPECT_EQ(ParamValues[1][1].Text(), "2");
}
}  // namespace
