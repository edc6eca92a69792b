#include "accessories/rest_pictures.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <string_view>

#include "platform/failure.h"
#include "platform/services.h"
#include "windows/picture_window.h"

namespace {
// JPEG, PNG, GIF, BMP: what is in the file counts, not how it is called.
constexpr std::string_view kBeginnings[] = {"\xFF\xD8\xFF", "\x89PNG", "GIF8", "BM"};

bool IsPicture(std::string_view bytes) {
    return std::any_of(std::begin(kBeginnings), std::end(kBeginnings),
                       [bytes](std::string_view start) { return bytes.starts_with(start); });
}
}  // namespace

void LoadFavoritePicture() {
    std::string bytes = services.files->ReadAll(ProgramFile("References/My_favorite.jpg"));
    if (!IsPicture(bytes)) throw Failure(kFileError);
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
