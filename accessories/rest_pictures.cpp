#include "accessories/rest_pictures.h"

#include <string>

#include "platform/failure.h"
#include "platform/services.h"
#include "windows/picture_window.h"

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
