#include "windows/picture_window.h"

#include <string>

#include "platform/failure.h"
#include "platform/services.h"
#include "platform/window_table.h"

PictureWindow frmPicture;

namespace {
// A screen may have another shape than a picture: what is left of it takes the colour of the picture's edge.
constexpr Style kAroundFavorite{.back = kBlack};
constexpr Style kAroundBeach{.back = Colour{246, 236, 217}, .visible = false};
constexpr Style kAroundCoffee{.back = Colour{58, 42, 34}, .visible = false};
constexpr int kWidth = 15360;
constexpr int kHeight = 11520;
}  // namespace

PictureWindow::PictureWindow() : Window("frmPicture", "Marlbrook 2.5", kWidth, kHeight) {
    key_preview = true;
    covers_screen = true;
    Lay({
        {imgFavorite, "imgFavorite", nullptr, {0, 0, kWidth, kHeight}, "", kAroundFavorite, "My favorite"},
        {imgBeach, "imgBeach", nullptr, {0, 0, kWidth, kHeight}, "", kAroundBeach, "A beach"},
        {imgCoffee, "imgCoffee", nullptr, {0, 0, kWidth, kHeight}, "", kAroundCoffee, "A cup of coffee"},
    });
    imgBeach.image = "beach";
    imgCoffee.image = "coffee";
    KeepDesign();
}

// ---- The pictures ----

void LoadFavoritePicture() {
    std::string bytes = services.files->ReadAll(ProgramFile("References/My_favorite.jpg"));
    if (!services.host->CanShow(bytes)) throw Failure(kFileError);
    frmPicture.imgFavorite.SetImageBytes(std::move(bytes));
}

void CoverScreen() {
    const Box screen = services.host->ScreenSize();
    frmPicture.SetPlace(0, 0);
    frmPicture.SetSize(screen.width, screen.height);
    for (PictureBox* picture : frmPicture.pictures) {
        picture->SetPlace(0, 0);
        picture->SetWidth(screen.width);
        picture->SetHeight(screen.height);
    }
}

void ShowRestPicture(PictureBox& picture) {
    for (PictureBox* other : frmPicture.pictures) other->SetVisible(other == &picture);
    frmPicture.SetPlace(0, 0);
    frmPicture.Show();
}
