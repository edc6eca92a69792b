#include "keys/first_run.h"

#include "platform/user.h"
#include "unit/sheet_test.h"
#include "windows/key_windows.h"
#include "windows/main_window.h"
#include "windows/next_window.h"

namespace {
constexpr const char* kFile = "/program/References/KeySetting.csv";
constexpr int kCodes[kNamedKeys] = {16, 17, 46, 8, 27, 13, 32, 112, 37, 38, 39, 40};

class FirstRunTest : public SheetTest {
protected:
    void StartUnknown(const char* code) {
        std::string& text = files_.bytes[kFile];
        text.replace(text.find("\"F1\",112") + 5, 3, code);
        Start();
        Played();
    }
    void PressNamedKeys(int from = 0) {
        for (int key = from; key < kNamedKeys; ++key) Key(kCodes[key]);
    }
    Texts Boxes() const {
        Texts texts;
        for (const TextBox& box : frmInitial.Text1) texts.push_back(box.Text());
        return texts;
    }
};

TEST_F(FirstRunTest, TwelvePressesRunDownTheBoxesToOk) {
    StartUnknown("999");
    EXPECT_EQ(frmInitial.AllKnown, 0);
    EXPECT_FALSE(frmInitial.Command1.Enabled());
    for (int key = 0; key < kNamedKeys; ++key) {
        EXPECT_EQ(frmInitial.Focus(), &frmInitial.Text1[key]);
        EXPECT_TRUE(frmInitial.Text1[key].Enabled() && frmInitial.Label4[key].Enabled()) << key;
        PressKey(kCodes[key]);
        EXPECT_EQ(frmInitial.Text1[key].Text(), std::to_string(kCodes[key])) << "without waiting for the release";
        ReleaseKey(kCodes[key]);
    }
    EXPECT_TRUE(frmInitial.Command1.Enabled());
    EXPECT_EQ(frmInitial.Focus(), &frmInitial.Command1);
}

TEST_F(FirstRunTest, ABoxWaitsForTheOneBeforeIt) {
    StartUnknown("0");
    for (int key = 1; key < kNamedKeys; ++key) EXPECT_FALSE(CanReach(frmInitial.Text1[key])) << key;
    Key(16);
    EXPECT_TRUE(CanReach(frmInitial.Text1[1]));
    EXPECT_FALSE(CanReach(frmInitial.Text1[2]));
}

TEST_F(FirstRunTest, OkStoresTheCodesAsNumbersAndGoesOnToTheFirstSample) {
    StartUnknown("999");
    PressNamedKeys();
    ClickControl(frmInitial.Command1);
    EXPECT_EQ(files_.bytes[kFile], KnownKeySettings());
    EXPECT_TRUE(KeySettings[58][kKeyCode].IsNumber());
    EXPECT_EQ(Played(), Texts{"WaveSave"});
    EXPECT_FALSE(frmInitial.IsLoaded());
    EXPECT_TRUE(frmMain.Visible());
    EXPECT_EQ(ActiveWindow(), &frmNext);
    EXPECT_FALSE(frmMain.Enabled());
}

TEST_F(FirstRunTest, TabAndArrowsAreInputLikeAnyOtherKey) {
    StartUnknown("999");
    for (const int code : {9, 37, 38, 40}) Key(code);
    EXPECT_EQ(frmInitial.Text1[0].Text(), "9");
    EXPECT_EQ(frmInitial.Text1[3].Text(), "40");
    EXPECT_EQ(frmInitial.Focus(), &frmInitial.Text1[4]);
}

TEST_F(FirstRunTest, ARerunShowsTheStoredCodesAndOkRewritesThem) {
    Begin("10");
    Played();
    frmInitial.Show();
    EXPECT_EQ(frmInitial.AllKnown, 1);
    EXPECT_EQ(Boxes(), (Texts{"16", "17", "46", "8", "27", "13", "32", "112", "37", "38", "39", "40"}));
    for (int key = 0; key < kNamedKeys; ++key) EXPECT_TRUE(CanReach(frmInitial.Text1[key])) << key;
    ClickControl(frmInitial.Command1);
    EXPECT_EQ(MessageCount(), 0u);
    EXPECT_EQ(files_.bytes[kFile], KnownKeySettings());
    EXPECT_EQ(Played(), Texts{"WaveSave"});
    EXPECT_FALSE(frmInitial.IsLoaded());
    EXPECT_FALSE(frmNext.Visible());
    EXPECT_EQ(ActiveWindow(), &frmMain);
}

TEST_F(FirstRunTest, ARerunCanCorrectOneBoxAndGoStraightToOk) {
    Begin("10");
    frmInitial.Show();
    ClickControl(frmInitial.Text1[0]);
    Key(16);
    ClickControl(frmInitial.Text1[5]);
    EXPECT_EQ(frmInitial.Text1[5].Text(), "");
    Key(108);
    EXPECT_EQ(frmInitial.Text1[5].Text(), "108");
    EXPECT_EQ(frmInitial.Focus(), &frmInitial.Command1);
    ClickControl(frmInitial.Command1);
    EXPECT_EQ(FileLine(kFile, 57), "\"Enter\",108,\"-\"");
    EXPECT_EQ(KeySettings[56][kKeyCode].Number(), 108);
}

TEST_F(FirstRunTest, OkWantsTwelveNumbersOtherThan0) {
    Begin("10");
    const std::string before = files_.bytes[kFile];
    frmInitial.Show();
    for (const char* bad : {"", "0", "x7", "007", "7 ", "-", "1e2"}) {
        PressNamedKeys();
        for (int key = 0; key < kNamedKeys; ++key) frmInitial.Text1[key].SetText(std::to_string(kCodes[key]));
        frmInitial.Text1[11].SetText(bad);
        services_.messages.shown.clear();
        AcceptNamedKeys();
        ASSERT_EQ(MessageCount(), 1u) << bad;
        EXPECT_EQ(LastMessage().title, "Error");
        EXPECT_EQ(LastMessage().text, "Please fill all boxes.");
        EXPECT_EQ(LastMessage().icon, Icon::None);
        EXPECT_EQ(files_.bytes[kFile], before) << bad;
        EXPECT_EQ(KeySettings[62][kKeyCode].Number(), 40) << bad;
        EXPECT_TRUE(frmInitial.Visible());
    }
}

TEST_F(FirstRunTest, ALeadingBlankIsForgiven) {
    Begin("10");
    frmInitial.Show();
    for (int key = 0; key < kNamedKeys; ++key) frmInitial.Text1[key].SetText(" " + std::to_string(kCodes[key]));
    AcceptNamedKeys();
    EXPECT_EQ(MessageCount(), 0u);
    EXPECT_EQ(files_.bytes[kFile], KnownKeySettings());
    frmInitial.Show();
    for (int key = 0; key < kNamedKeys; ++key) frmInitial.Text1[key].SetText("  " + std::to_string(kCodes[key]));
    AcceptNamedKeys();
    EXPECT_EQ(MessageCount(), 1u) << "one blank, not two";
}

TEST_F(FirstRunTest, AnyNumberOtherThan0IsTakenForACode) {
    Begin("10");
    for (const auto& [text, code] : {std::pair{"-5", -5.0}, {"1.5", 1.5}, {"999", 999.0}}) {
        frmInitial.Show();
        for (int key = 0; key < kNamedKeys; ++key) frmInitial.Text1[key].SetText(std::to_string(kCodes[key]));
        frmInitial.Text1[0].SetText(text);
        AcceptNamedKeys();
        EXPECT_EQ(MessageCount(), 0u) << text;
        EXPECT_FALSE(frmInitial.IsLoaded()) << text;
        EXPECT_TRUE(KeySettings[51][kKeyCode].IsNumber()) << text;
        EXPECT_EQ(KeySettings[51][kKeyCode].Number(), code);
        EXPECT_EQ(FileLine(kFile, 52), "\"Shift\"," + std::string(text) + ",\"-\"");
    }
}

TEST_F(FirstRunTest, The999ThatOkTookAsksAgainAtTheNextStart) {
    Begin("10");
    frmInitial.Show();
    for (int key = 0; key < kNamedKeys; ++key) frmInitial.Text1[key].SetText(key == 11 ? "999" : std::to_string(kCodes[key]));
    ClickControl(frmInitial.Command1);
    EXPECT_EQ(ActiveWindow(), &frmMain);
    for (Window* window : AllWindows()) window->Unload();
    Start();
    EXPECT_EQ(ActiveWindow(), &frmInitial);
    EXPECT_EQ(Boxes(), Texts(kNamedKeys));
}

TEST_F(FirstRunTest, WithoutSettingsOkWritesAFileOfEmptyRowsButForTheTwelve) {
    files_.bytes.erase(kFile);
    Start();
    PressNamedKeys();
    ClickControl(frmInitial.Command1);
    EXPECT_EQ(FileLine(kFile, 1), "\"\",\"\",\"\"");
    EXPECT_EQ(FileLine(kFile, 51), "\"\",\"\",\"\"");
    EXPECT_EQ(FileLine(kFile, 52), "\"\",16,\"\"");
    EXPECT_EQ(FileLine(kFile, 63), "\"\",40,\"\"");
    EXPECT_EQ(FileLine(kFile, 64), "");
}

TEST_F(FirstRunTest, AFileThatCannotBeWrittenEndsTheProgram) {
    Begin("10");
    frmInitial.Show();
    for (int key = 0; key < kNamedKeys; ++key) frmInitial.Text1[key].SetText(std::to_string(kCodes[key]));
    files_.locked.insert(kFile);
    RunEvent(AcceptNamedKeys);
    EXPECT_EQ(services_.host.failure, "File error");
}

TEST_F(FirstRunTest, ClosingByTheFrameGivesTheMainWindowBack) {
    StartUnknown("999");
    CloseWindow(frmInitial);
    EXPECT_FALSE(frmInitial.IsLoaded());
    EXPECT_TRUE(frmMain.Visible() && frmMain.Enabled());
}

TEST_F(FirstRunTest, TheFormNamesItsTwelveKeys) {
    const Texts names = {"[Shift]:", "[Ctrl]:", "[Delete]:", "[BkSp]:", "[Esc]:",   "[Enter]:",
                         "[Space]:", "[F1]:",   "[Left]:",   "[Up]:",   "[Right]:", "[Down]:"};
    for (int key = 0; key < kNamedKeys; ++key) EXPECT_EQ(frmInitial.Label4[key].Caption(), names[key]);
    EXPECT_EQ(frmInitial.Title(), "Initialize");
    EXPECT_EQ(frmInitial.Command1.Caption(), "OK");
}
}  // namespace
