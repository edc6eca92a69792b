// frmPicture: one of three pictures over the whole screen, for a rest from counting. Each stays until it is clicked.
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

// Reads References/My_favorite.jpg, which the user may replace by any picture. Raises "File error" if it is not there or is no picture;
// the last one then stays.
void LoadFavoritePicture();

void CoverScreen();                         // frmPicture loads
void ShowRestPicture(PictureBox& picture);  // of frmPicture: it alone
