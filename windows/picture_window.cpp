#include "windows/picture_window.h"

PictureWindow frmPicture;

namespace {
// A screen may have another shape than a picture: what is left of it takes the colour of the picture's edge.
constexpr Colour kAroundBeach{246, 236, 217};
constexpr Colour kAroundCoffee{58, 42, 34};
constexpr int kWidth = 15360;
constexpr int kHeight = 11520;
}  // namespace

PictureWindow::PictureWindow() : Window("frmPicture", "Marlbrook 2.5", kWidth, kHeight) {
    key_preview = true;
    covers_screen = true;
    Add(imgFavorite, "imgFavorite", -1, nullptr, {0, 0, kWidth, kHeight});
    imgFavorite.SetBackColor(kBlack);
    imgFavorite.accessible_name = "My favorite";
    Add(imgBeach, "imgBeach", -1, nullptr, {0, 0, kWidth, kHeight});
    imgBeach.SetBackColor(kAroundBeach);
    imgBeach.image = "beach";
    imgBeach.accessible_name = "A beach";
    Add(imgCoffee, "imgCoffee", -1, nullptr, {0, 0, kWidth, kHeight});
    imgCoffee.SetBackColor(kAroundCoffee);
    imgCoffee.image = "coffee";
    imgCoffee.accessible_name = "A cup of coffee";
    for (PictureBox* picture : pictures) picture->SetVisible(picture == &imgFavorite);
    KeepDesign();
}
