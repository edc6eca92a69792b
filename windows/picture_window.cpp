#include "windows/picture_window.h"

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
