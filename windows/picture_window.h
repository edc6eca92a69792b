// frmPicture: one of three pictures over the whole screen, for a rest from counting.
#pragma once
#include "platform/picture_box.h"
#include "platform/window.h"

constexpr int kRestPictures = 3;

struct PictureWindow : Window {
    PictureWindow();

    PictureBox imgFavorite;  // the user's own
    PictureBox imgBeach;
    PictureBox imgCoffee;
    PictureBox* const pictures[kRestPictures] = {&imgFavorite, &imgBeach, &imgCoffee};
};

extern PictureWindow frmPicture;
