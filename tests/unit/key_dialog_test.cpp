#include "keys/key_dialog.h"

#include "keys/key_dialog_ok.h"
#include "platform/user.h"
#include "session/leaving.h"
#include "unit/sheet_test.h"
#include "windows/key_windows.h"
#include "windows/main_window.h"

namespace {
constexpr const char* kFile = "/program/References/KeySetting.csv";

class KeyDialogTest : public SheetTest {
protected:
    void Open() {
        Begin("10");
        ClickControl(frmMain.mnuKeyCodeReader);
        Played();
    }
    void Press(int code, const std::string& character) {
        PressKey(code);
        if (!character.empty()) InsertText(*frmKeyCode.Focus(), character);
        ReleaseKey(code);
    }
    void SetNumber(int place, const std::string& number) {
        ClickControl(frmKeyCode.Text3[place]);
        InsertText(frmKeyCode.Text3[place], number);
        frmKeyCode.Command4.SetFocus();
    }
    void ShowTab(int tab) { PressTab(frmKeyCode.SSTab1, tab); }
};

bool Overlap(const Control& one, const Control& other) {
    return one.Left() < other.Left() + other.Width() && other.Left() < one.Left() + one.Width() &&
           one.Top() < other.Top() + other.Height() && other.Top() < one.Top() + one.Height();
}

void ExpectBoxesApart() {
    for (int row = 1; row <= kMapRows; ++row) {
        const TextBox& box = frmKeyCode.Text1[row];
        EXPECT_TRUE(box.Left() >= 0 && box.Left() + box.Width() <= frmKeyCode.Frame1.Width()) << row;
        for (int other = 1; other < row; ++other) EXPECT_FALSE(Overlap(box, frmKeyCode.Text1[other])) << row << " and " << other;
    }
}

TEST_F(KeyDialogTest, AKeyWithANameShowsItInBrackets) {
    Open();
    const struct {
        int code;
        const char* name;
    } keys[] = {{16, "[Shift]"}, {17, "[Ctrl]"}, {46, "[Delete]"}, {8, "[BkSp]"},   {27, "[Esc]"},  {13, "[Enter]"},
                {32, "[Space]"}, {37, "[Left]"}, {38, "[Up]"},     {39, "[Right]"}, {40, "[Down]"}, {111, ""},
                {112, "[F1]"},   {117, "[F6]"},  {123, "[F12]"},   {124, ""}};
    for (const auto& key : keys) {
        ClickControl(frmKeyCode.Text1[1]);
        Press(key.code, "");
        EXPECT_EQ(frmKeyCode.Text1[1].Text(), key.name) << key.code;
        EXPECT_EQ(frmKeyCode.Text2[1].Text(), std::to_string(key.code));
        ClickControl(frmKeyCode.Text1[2]);
    }
}

TEST_F(KeyDialogTest, TheFunctionalKeysShowTheirDefinitions) {
    Open();
    const char* definitions[] = {";", "p", "[BkSp]", "="};
    for (int box = 0; box < kFunctionalKeys; ++box) EXPECT_EQ(frmKeyCode.Text4[box].Text(), definitions[box]) << box;
}

TEST_F(KeyDialogTest, TheKeyF1GivesNineKeysTheirCodes) {
    Open();
    ShowTab(1);
    ClickControl(frmKeyCode.Text4[4]);
    Press(200, "");
    int code = 200;
    for (const int key : {28, 29, 30, 34, 35, 36, 40, 41, 42}) EXPECT_EQ(frmKeyCode.Text2[key].Text(), std::to_string(code++)) << key;
}

TEST_F(KeyDialogTest, ABoxThatGetsTheFocusForgetsTheLastKey) {
    Open();
    ClickControl(frmKeyCode.Text1[1]);
    Press(51, "3");
    EXPECT_EQ(LastEditKey, 51);
    ClickControl(frmKeyCode.Text1[2]);
    EXPECT_EQ(LastEditKey, 9999);
}

TEST_F(KeyDialogTest, TheThreeMapsHaveBoxesOfOneSize) {
    Open();
    for (const bool left_handed : {false, true}) {
        ClickControl(frmKeyCode.Option1[left_handed ? 0 : 1]);
        for (int row = 1; row <= kMapRows; ++row)
            for (const TextBox* box : {&frmKeyCode.Text2[row], &frmKeyCode.Text3[row]}) {
                EXPECT_EQ(box->Width(), frmKeyCode.Text1[row].Width()) << box->name << " " << row;
                EXPECT_EQ(box->Height(), frmKeyCode.Text1[row].Height()) << box->name << " " << row;
            }
    }
}

TEST_F(KeyDialogTest, TheMapsAreLaidOutByTheKeyNumbersRounded) {
    Open();
    ShowTab(2);
    const int left_of_4 = frmKeyCode.Text3[4].Left(), top_of_4 = frmKeyCode.Text3[4].Top();
    SetNumber(4, "1.5");  // half to even: key 2
    EXPECT_EQ(MessageCount(), 0u);
    EXPECT_EQ(frmKeyCode.Text1[2].Left(), left_of_4);
    EXPECT_EQ(frmKeyCode.Text2[2].Top(), top_of_4);
    EXPECT_EQ(frmKeyCode.Text3[4].Left(), left_of_4) << "the places themselves stay";
}

TEST_F(KeyDialogTest, AKeyNumberLiesBetween1And45) {
    const struct {
        const char* number;
        bool good;
    } cases[] = {{"0", false},  {"0.99", false}, {"1", true},  {"45", true},  {"45.01", false},
                 {"46", false}, {"-3", false},   {"x", false}, {"7 b", true}, {"1e1", true}};
    Open();
    ShowTab(2);
    for (const auto& test : cases) {
        frmKeyCode.Text3[5].SetText("5");
        services_.messages.shown.clear();
        SetNumber(5, test.number);
        EXPECT_EQ(MessageCount(), test.good ? 0u : 1u) << test.number;
        EXPECT_EQ(frmKeyCode.Text3[5].Text(), test.good ? test.number : "5");
    }
}

TEST_F(KeyDialogTest, CancelJudgesANumberInHandAndTheFrameDoesNot) {
    Begin("10");
    for (const bool by_frame : {false, true}) {
        ClickControl(frmMain.mnuKeyCodeReader);
        ShowTab(2);
        ClickControl(frmKeyCode.Text3[5]);
        InsertText(frmKeyCode.Text3[5], "99");
        services_.messages.shown.clear();
        if (by_frame)
            CloseWindow(frmKeyCode);
        else
            ClickControl(frmKeyCode.Command1);
        EXPECT_EQ(MessageCount(), by_frame ? 0u : 1u);
        EXPECT_FALSE(frmKeyCode.IsLoaded());
        EXPECT_EQ(KeySettings[5][kKeyNumber].Number(), 5);
    }
}

TEST_F(KeyDialogTest, ANumberFromADamagedFileMovesNothingAndIsKept) {
    Open();
    const int left = frmMain.Text1[45].Left();
    frmKeyCode.Text3[45].SetText("200");
    LayOutMaps();
    AcceptKeySettings();
    EXPECT_EQ(MessageCount(), 0u);
    EXPECT_FALSE(frmKeyCode.IsLoaded());
    EXPECT_EQ(FileLine(kFile, 46), "\"9\",\"57\",\"200\"");
    EXPECT_EQ(frmMain.Text1[45].Left(), left);
}

TEST_F(KeyDialogTest, ASingleNumberLeftEmptyIsNoDoubleAndStopsNothing) {
    Open();
    frmKeyCode.Text3[7].SetText("");
    RunEvent(AcceptKeySettings);
    EXPECT_FALSE(services_.host.ended);
    EXPECT_EQ(ActiveWindow(), &frmMain);
    EXPECT_EQ(FileLine(kFile, 8), "\"z\",\"90\",\"\"");
}

TEST_F(KeyDialogTest, WithoutReadableSettingsItOpensAndCancels) {
    files_.bytes.erase(kFile);
    Start();
    CloseWindow(frmInitial);
    ClickControl(frmMain.mnuKeyCodeReader);
    EXPECT_EQ(frmKeyCode.Text1[1].Text(), "");
    ClickControl(frmKeyCode.Command1);
    EXPECT_FALSE(services_.host.ended);
    EXPECT_EQ(ActiveWindow(), &frmMain);
}

TEST_F(KeyDialogTest, TheHandednessMirrorsTheMapAndComesBack) {
    Open();
    ExpectBoxesApart();
    const int key = frmKeyCode.Text1[1].Left(), shift = frmKeyCode.Text2[47].Left(), save = frmKeyCode.Text3[50].Left();
    ClickControl(frmKeyCode.Option1[0]);
    ExpectBoxesApart();
    EXPECT_EQ(frmKeyCode.Text1[1].Left(), key - 600);
    EXPECT_EQ(frmKeyCode.Text2[47].Left(), shift + 855);
    EXPECT_EQ(frmKeyCode.Text3[50].Left(), save + 5055);
    for (int row = 1; row <= kMapRows; ++row) EXPECT_EQ(frmKeyCode.Text2[row].Height(), 285) << row;
    ClickControl(frmKeyCode.Option1[0]);
    EXPECT_EQ(frmKeyCode.Text1[1].Left(), key - 600) << "it is chosen already";
    ClickControl(frmKeyCode.Option1[1]);
    EXPECT_EQ(frmKeyCode.Text1[1].Left(), key);
    EXPECT_EQ(frmKeyCode.Text2[47].Left(), shift);
    EXPECT_EQ(frmKeyCode.Text3[50].Left(), save);
}

TEST_F(KeyDialogTest, TheHandednessIsForgottenWithTheWindow) {
    Open();
    const int key = frmKeyCode.Text1[1].Left();
    ClickControl(frmKeyCode.Option1[0]);
    ClickControl(frmKeyCode.Command4);
    EXPECT_EQ(FileLine(kFile, 2), "\"q\",\"81\",\"1\"");
    ClickControl(frmMain.mnuKeyCodeReader);
    EXPECT_TRUE(frmKeyCode.Option1[1].Value());
    EXPECT_EQ(frmKeyCode.Text1[1].Left(), key);
}

TEST_F(KeyDialogTest, APressBesideTheBoxesLeavesThemOnTheNumbersAlone) {
    Open();
    const struct {
        int tab;
        TextBox* box;
        Frame* ground;
        bool leaves;
    } cases[] = {{0, &frmKeyCode.Text1[1], &frmKeyCode.Frame1, false}, {0, &frmKeyCode.Text1[1], &frmKeyCode.Frame4, false},
                 {1, &frmKeyCode.Text4[0], &frmKeyCode.Frame2, false}, {1, &frmKeyCode.Text4[0], &frmKeyCode.Frame4, false},
                 {2, &frmKeyCode.Text3[1], &frmKeyCode.Frame4, false}, {2, &frmKeyCode.Text3[1], &frmKeyCode.Frame3, true}};
    for (const auto& each : cases) {
        ShowTab(each.tab);
        ClickControl(*each.box);
        ClickControl(*each.ground);
        EXPECT_EQ(frmKeyCode.Focus() == each.box, !each.leaves) << each.ground->name << " on tab " << each.tab;
    }
    EXPECT_EQ(frmKeyCode.Focus(), &frmKeyCode.Command4);
}

TEST_F(KeyDialogTest, OnlyATypedTextIsJudgedForTheKeyOf3) {
    Open();
    ClickControl(frmKeyCode.Text1[1]);
    Press(51, "3");
    InsertText(frmKeyCode.Text1[1], "#");  // pasted: no key comes with it
    EXPECT_EQ(MessageCount(), 0u);
    EXPECT_EQ(frmKeyCode.Text1[1].Text(), "3#");
    ClickControl(frmKeyCode.Text1[2]);
    Press(51, "");
    ClickControl(frmKeyCode.Text1[3]);  // the program puts "w" back
    EXPECT_EQ(MessageCount(), 0u);
    EXPECT_EQ(frmKeyCode.Text1[2].Text(), "w");
}

TEST_F(KeyDialogTest, ASecondCharacterMakesA3RefusedToo) {
    Open();
    ClickControl(frmKeyCode.Text1[1]);
    Press(65, "a");
    Press(51, "3");
    EXPECT_EQ(LastMessage().title, "Are you an AZERTY keyboard user?");
    EXPECT_EQ(frmKeyCode.Text1[1].Text(), "q") << "what the box held when it got the focus";
    EXPECT_EQ(frmKeyCode.Text2[1].Text(), "65") << "the code before the last key";
}

TEST_F(KeyDialogTest, ACharacterIsToldByItsNumberInTheFiles) {
    Open();
    const struct {
        const char* character;
        const char* code;
    } cases[] = {{"a", "97"}, {" ", "32"}, {"\xC3\xA9", "233"}, {"\xE2\x82\xAC", "128"}, {"\xD0\xB6", ""}};
    for (const auto& test : cases) {
        ClickControl(frmKeyCode.Text1[1]);
        Press(65, test.character);
        EXPECT_EQ(frmKeyCode.Label4.Caption(), test.code) << test.character;
        ClickControl(frmKeyCode.Text1[2]);
    }
}

TEST_F(KeyDialogTest, TheFirstPairThatAgreesIsReported) {
    Open();
    frmKeyCode.Text1[7].SetText("q");
    frmKeyCode.Text3[3].SetText("2");  // of places 3 and 2: found earlier
    AcceptKeySettings();
    EXPECT_EQ(LastMessage().text, "Same Ergodex key is being used for more than one place.");
    EXPECT_EQ(frmKeyCode.SSTab1.Tab(), 2);
    EXPECT_TRUE(frmKeyCode.Command5.Visible()) << "it belongs to that tab";
    EXPECT_EQ(frmKeyCode.Text1[7].ForeColor(), kBlack);
    EXPECT_EQ(MessageCount(), 1u);
}

TEST_F(KeyDialogTest, BothBoxesOfAPairThatAgreesAreRed) {
    Open();
    frmKeyCode.Text1[7].SetText("q");
    AcceptKeySettings();
    constexpr Colour kRed{255, 0, 0};
    EXPECT_EQ(frmKeyCode.Text1[1].ForeColor(), kRed);
    EXPECT_EQ(frmKeyCode.Text1[7].ForeColor(), kRed);
    EXPECT_EQ(frmKeyCode.Text1[2].ForeColor(), kBlack);
}

TEST_F(KeyDialogTest, WithoutSoundARefusalAndAGoodOkAreSilent) {
    Open();
    SoundOn = false;
    frmKeyCode.Text1[7].SetText("q");
    ClickControl(frmKeyCode.Command4);
    EXPECT_EQ(MessageCount(), 1u);
    frmKeyCode.Text1[7].SetText("z");
    ClickControl(frmKeyCode.Command4);
    EXPECT_FALSE(frmKeyCode.IsLoaded());
    EXPECT_EQ(Played(), Texts{});
}

TEST_F(KeyDialogTest, TheBarIsSeenFrom1To62OutOf62WhileTheRowsAreStored) {
    Open();
    struct : ControlView {
        Texts seen;
        void Changed(Property) override {
            const ProgressBar& bar = frmKeyCode.ProgressBar1;
            if (bar.Visible() && bar.Value() > 0)
                seen.push_back(std::to_string(bar.Min()) + " " + std::to_string(bar.Value()) + " " + std::to_string(bar.Max()));
        }
    } view;
    frmKeyCode.ProgressBar1.BindView(&view);
    ClickControl(frmKeyCode.Command4);
    frmKeyCode.ProgressBar1.BindView(nullptr);
    ASSERT_EQ(view.seen.size(), 62u);
    EXPECT_EQ(view.seen.front(), "0 1 62");
    EXPECT_EQ(view.seen.back(), "0 62 62");
}

TEST_F(KeyDialogTest, AFullDiskEndsTheProgram) {
    Open();
    files_.room[kFile] = 100;
    RunEvent(AcceptKeySettings);
    EXPECT_EQ(services_.host.failure, "File error");
}

TEST_F(KeyDialogTest, CheckDoubleHasNoEffect) {
    Open();
    frmKeyCode.Text1[7].SetText("q");
    CheckDouble();
    EXPECT_EQ(MessageCount(), 0u);
    EXPECT_EQ(frmKeyCode.Text1[7].ForeColor(), kBlack);
    EXPECT_EQ(frmKeyCode.SSTab1.Tab(), 0);
}

TEST_F(KeyDialogTest, LeavingTheProgramDoesNotBringTheMainWindowBack) {
    Open();
    UnloadAll();
    EXPECT_FALSE(frmKeyCode.IsLoaded());
    EXPECT_FALSE(frmMain.Enabled());
}

TEST_F(KeyDialogTest, ABoxTellsWhatItsKeyTypesOnThisKeyboard) {
    services_.keyboard.characters = {{186, "ö"}, {187, "´"}, {81, "q"}};
    Open();
    EXPECT_EQ(frmKeyCode.Text1[1].ToolTip(), "on this keyboard: q");
    EXPECT_EQ(frmKeyCode.Text2[1].ToolTip(), "on this keyboard: q");
    EXPECT_EQ(frmKeyCode.Text1[2].ToolTip(), "");
    for (const int row : {46, 48}) EXPECT_EQ(frmKeyCode.Text1[row].ToolTip(), "on this keyboard: ö") << row;
    EXPECT_EQ(frmKeyCode.Text4[0].ToolTip(), "on this keyboard: ö");
    EXPECT_EQ(frmKeyCode.Text4[3].ToolTip(), "on this keyboard: ´");
    EXPECT_EQ(frmKeyCode.Text4[2].ToolTip(), "") << "BkSp types nothing";
    ClickControl(frmKeyCode.Text4[2]);
    Press(187, "´");
    EXPECT_EQ(frmKeyCode.Text4[2].ToolTip(), "on this keyboard: ´") << "as soon as another key is pressed in it";
    ClickControl(frmKeyCode.Command1);
    services_.keyboard.characters = {};
    ClickControl(frmMain.mnuKeyCodeReader);
    EXPECT_EQ(frmKeyCode.Text1[1].ToolTip(), "") << "the keyboard is asked each time";
}
}  // namespace
