#include "taxa/dialogs.h"

#include "platform/control.h"
#include "platform/text.h"
#include "platform/user.h"
#include "unit/sheet_test.h"
#include "windows/main_window.h"
#include "windows/name_windows.h"
#include "windows/next_window.h"

namespace {
class ParamNamesTest : public SheetTest {
protected:
    void Rename(int p, const std::string& name) {
        RenameParamOfSheet(p);
        frmParaName.Text1.SetText(name);
        AcceptParamName();
    }
};

TEST_F(ParamNamesTest, ANameIsKeptAsTypedAndShownWithOneColonMore) {
    const struct {
        const char* typed;
        const char* shown;
        const char* offered;
    } cases[] = {{"Depth", "Depth:", "Depth"}, {"", ":", ""}, {"Depth:", "Depth::", "Depth:"}, {"a:b", "a:b:", "a:b"}};
    Begin("10");
    for (const auto& test : cases) {
        Rename(3, test.typed);
        EXPECT_EQ(ParamHeader[3][kParamName], test.typed);
        EXPECT_EQ(frmMain.Label10[3].Caption(), test.shown);
        RenameParamOfSheet(3);
        EXPECT_EQ(frmParaName.Label2.Caption(), test.offered);
        EXPECT_EQ(frmParaName.Text1.Text(), test.offered);
        CancelParamName();
    }
}

TEST_F(ParamNamesTest, TheOldNameIsTypedOver) {
    Begin("10");
    RenameParamOfSheet(1);
    InsertText(frmParaName.Text1, "Tablets");
    EXPECT_EQ(frmParaName.Text1.Text(), "Tablets");
}

TEST_F(ParamNamesTest, EachFieldHasItsOwnName) {
    Begin("10");
    for (int p = 1; p <= kParams; ++p) Rename(p, "name " + std::to_string(p));
    for (int p = 1; p <= kParams; ++p) {
        EXPECT_EQ(ParamHeader[p][kParamName], "name " + std::to_string(p));
        EXPECT_EQ(frmMain.Label10[p].Caption(), "name " + std::to_string(p) + ":");
    }
}

TEST_F(ParamNamesTest, BothWindowsWaitWhileTheNextSampleAsks) {
    Start();
    ClickControl(frmNext.Command4);
    ClickControl(frmNext.Command5[4]);
    EXPECT_EQ(ActiveWindow(), &frmParaName);
    EXPECT_FALSE(frmNext.Enabled());
    EXPECT_FALSE(frmMain.Enabled());
    EXPECT_FALSE(CanReach(frmNext.Command1));
    ClickControl(frmParaName.Command1);
    EXPECT_EQ(ActiveWindow(), &frmNext);
    EXPECT_TRUE(frmNext.Enabled());
    EXPECT_FALSE(frmMain.Enabled());
    EXPECT_EQ(frmNext.Label3[4].Caption(), "Additional info-4") << "without its colon from now on";
    EXPECT_EQ(frmMain.Label10[4].Caption(), "Additional info-4:");
}

TEST_F(ParamNamesTest, TheNewNameIsInHandAtEveryOpening) {
    Begin("10");
    ClickControl(frmMain.Command3[0]);
    for (int time = 0; time < 2; ++time) {
        ClickControl(frmMain.Command7[1]);
        EXPECT_EQ(frmParaName.Focus(), &frmParaName.Text1);
        ClickControl(frmParaName.Command2);
        EXPECT_FALSE(frmParaName.Visible());
        EXPECT_TRUE(frmMain.Enabled());
    }
}

TEST_F(ParamNamesTest, AfterTheNextSampleTheMainWindowIsTheOneThatAsks) {
    Start();
    ClickControl(frmNext.Command4);
    ClickControl(frmNext.Command5[1]);
    ClickControl(frmParaName.Command2);
    ClickControl(frmNext.Text1);
    InsertText(frmNext.Text1, "10");
    ClickControl(frmNext.Command1);
    Rename(1, "Depth");
    EXPECT_EQ(frmMain.Label10[1].Caption(), "Depth:");
    EXPECT_FALSE(frmNext.IsLoaded());
    EXPECT_EQ(ActiveWindow(), &frmMain);
}

TEST_F(ParamNamesTest, AFieldTellsItsNameWhileItsLabelIsHidden) {
    Begin("10");
    EXPECT_EQ(frmMain.Text5[6].ToolTip(), "Additional info-6");
    ClickControl(frmMain.Command3[0]);
    Rename(2, "Tablets");
    ClickControl(frmMain.Command3[1]);
    ASSERT_FALSE(frmMain.Label10[2].Visible());
    EXPECT_EQ(frmMain.Text5[2].ToolTip(), "Tablets");
    AnswerNext(Answer::Yes);
    ClickControl(frmMain.mnuNew);
    EXPECT_EQ(frmMain.Text5[2].ToolTip(), WithoutTrailingColon(frmMain.Label10[2].Caption()));
}

TEST_F(ParamNamesTest, AFieldRenamedToNothingIsCalledAsItIsSaved) {
    Begin("10");
    ClickControl(frmMain.Command3[0]);
    Rename(3, "Tablets");
    Rename(3, "");
    EXPECT_EQ(frmMain.Text5[3].ToolTip(), "Additional info-3");
    EXPECT_EQ(SpokenName(frmMain.Text5[3]), "Additional info-3");
    EXPECT_EQ(SpokenName(frmMain.Command7[3]), "Rename: Additional info-3");
}
}  // namespace
