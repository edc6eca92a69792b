#include <filesystem>

#include "platform/failure.h"
#include "platform/user.h"
#include "unit/sheet_test.h"
#include "windows/information_windows.h"
#include "windows/key_windows.h"
#include "windows/main_window.h"
#include "windows/picture_window.h"
#include "windows/subtotal_window.h"

namespace {
constexpr const char* kFavorite = "/program/References/My_favorite.jpg";

class AccessoriesTest : public SheetTest {};

TEST_F(AccessoriesTest, APictureCoversTheScreenAloneUntilItIsClicked) {
    Begin("10");
    const Box screen = services_.host.ScreenSize();
    for (MenuItem* item : {&frmMain.mnuCoffee, &frmMain.mnuBeach, &frmMain.mnuFavorite}) {
        ClickControl(*item);
        EXPECT_EQ(ActiveWindow(), &frmPicture);
        EXPECT_EQ(frmPicture.Width(), screen.width);
        EXPECT_EQ(frmPicture.Height(), screen.height);
        PictureBox* seen = nullptr;
        for (PictureBox* picture : frmPicture.pictures) {
            EXPECT_EQ(picture->Width(), screen.width);
            EXPECT_EQ(picture->Height(), screen.height);
            if (!picture->Visible()) continue;
            EXPECT_EQ(seen, nullptr) << "one at a time";
            seen = picture;
        }
        ASSERT_NE(seen, nullptr);
        ClickControl(*seen);
        EXPECT_EQ(ActiveWindow(), &frmMain);
        EXPECT_TRUE(frmMain.Enabled());
    }
}

TEST_F(AccessoriesTest, AClickOnThePictureHidesItsWindowAndKeepsItLoaded) {
    Begin("10");
    ClickControl(frmMain.mnuBeach);
    ClickControl(frmPicture.imgBeach);
    EXPECT_FALSE(frmPicture.Visible());
    EXPECT_TRUE(frmPicture.IsLoaded());
}

TEST_F(AccessoriesTest, TheFavoriteIsAnyPictureByItsFirstBytes) {
    const struct {
        std::string bytes;
        bool good;
    } cases[] = {{"\xFF\xD8\xFF\xE0 JFIF", true},
                 {"\x89PNG\r\n", true},
                 {"GIF89a", true},
                 {"BM6", true},
                 {"", false},
                 {"\xFF\xD8", false},
                 {"text", false}};
    for (const auto& test : cases) {
        files_.bytes[kFavorite] = test.bytes;
        if (test.good) {
            LoadFavoritePicture();
            EXPECT_EQ(frmPicture.imgFavorite.ImageBytes(), test.bytes);
        } else {
            EXPECT_THROW(LoadFavoritePicture(), Failure) << test.bytes;
        }
    }
}

TEST_F(AccessoriesTest, TheFavoriteStaysWhenItsWindowHasBeenUnloaded) {
    Begin("10");
    const std::string picture = frmPicture.imgFavorite.ImageBytes();
    EXPECT_EQ(picture, files_.bytes[kFavorite]);
    ClickControl(frmMain.mnuFavorite);
    CloseWindow(frmPicture);
    frmPicture.Unload();
    EXPECT_EQ(frmPicture.imgFavorite.ImageBytes(), picture);
}

TEST_F(AccessoriesTest, ABrokenFavoriteIsNotOffered) {
    files_.bytes[kFavorite] = "no picture";
    Start();
    EXPECT_FALSE(frmMain.mnuFavorite.Enabled());
    EXPECT_TRUE(frmMain.mnuBeach.Enabled());
    EXPECT_EQ(MessageCount(), 0u);
}

TEST_F(AccessoriesTest, AnotherFavoriteIsTakenUpWithTheNextSheet) {
    Begin("10");
    KeyNumber(1);
    files_.bytes[kFavorite] = "GIF89a another";
    AnswerNext(Answer::Yes);
    ClickControl(frmMain.mnuNew);
    EXPECT_EQ(frmPicture.imgFavorite.ImageBytes(), "GIF89a another");
}

TEST_F(AccessoriesTest, TheAboutBoxesHoldTheMainWindow) {
    Begin("10");
    const struct {
        MenuItem* item;
        Window* window;
        Button* ok;
    } boxes[] = {{&frmMain.mnuAboutMB1, &frmAboutMB1, &frmAboutMB1.Command1}, {&frmMain.mnuAboutDX1, &frmAboutDX1, &frmAboutDX1.Command1}};
    for (const auto& box : boxes) {
        ClickControl(*box.item);
        EXPECT_FALSE(frmMain.Enabled());
        CloseWindow(*box.window);
        EXPECT_EQ(ActiveWindow(), &frmMain);
        ClickControl(*box.item);
        ClickControl(*box.ok);
        EXPECT_FALSE(box.window->IsLoaded());
        EXPECT_TRUE(frmMain.Enabled());
    }
}

TEST_F(AccessoriesTest, TheAboutBoxIsInThreeColours) {
    EXPECT_EQ(frmAboutMB1.Label1.Caption(), "Marlbrook 2.7");
    EXPECT_EQ(frmAboutMB1.Label1.ForeColor(), (Colour{0, 0, 128}));
    EXPECT_EQ(frmAboutMB1.Label2.ForeColor(), (Colour{150, 0, 0}));
    for (const Label& credit : frmAboutMB1.Label3) EXPECT_EQ(credit.ForeColor(), (Colour{0, 100, 0}));
}

TEST_F(AccessoriesTest, TheAboutBoxTellsWhereTheProgramKeepsItsThings) {
    Begin("10");
    ClickControl(frmMain.mnuAboutMB1);
    EXPECT_EQ(frmAboutMB1.Text1.Text(), std::filesystem::path("/program").make_preferred().string());
    EXPECT_FALSE(frmAboutMB1.Text1.Enabled());
}

TEST_F(AccessoriesTest, ADialogThatIsClosedByItsFrameGivesTheMainWindowBack) {
    Begin("10");
    const struct {
        MenuItem* item;
        Window* dialog;
    } dialogs[] = {{&frmMain.mnuKeyCodeReader, &frmKeyCode},
                   {&frmMain.mnuSubtotal, &frmSubtotal},
                   {&frmMain.mnuInitial, &frmInitial},
                   {&frmMain.mnuAboutMB1, &frmAboutMB1},
                   {&frmMain.mnuAboutDX1, &frmAboutDX1}};
    for (const auto& each : dialogs) {
        ClickControl(*each.item);
        EXPECT_EQ(ActiveWindow(), each.dialog);
        EXPECT_FALSE(frmMain.Enabled()) << each.dialog->name;
        CloseWindow(*each.dialog);
        EXPECT_FALSE(each.dialog->Visible());
        EXPECT_TRUE(frmMain.Enabled()) << each.dialog->name;
        EXPECT_EQ(ActiveWindow(), &frmMain) << each.dialog->name;
    }
}
}  // namespace
