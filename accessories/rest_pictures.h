// The pictures for a rest. Each fills the screen until it is clicked.
#pragma once
#include "platform/picture_box.h"

// Reads References/My_favorite.jpg, which the user may replace by any picture. Raises "File error" if it is not there or is no picture;
// the last one then stays.
void LoadFavoritePicture();

void CoverScreen();                         // frmPicture loads
void ShowRestPicture(PictureBox& picture);  // of frmPicture: it alone
