#include "accessories/rest_pictures.h"
#include "events/join.h"
#include "session/focus.h"
#include "windows/about_windows.h"
#include "windows/note_window.h"
#include "windows/picture_window.h"

namespace {
constexpr int kEscape = 27;
}

void JoinAccessoryEvents() {
    frmAboutMB1.FrameClosed.Calls([] { CloseDialog(frmAboutMB1); });
    frmAboutMB1.OkButton.Click.Calls([] { CloseDialog(frmAboutMB1); });
    frmAboutDX1.FrameClosed.Calls([] { CloseDialog(frmAboutDX1); });
    frmAboutDX1.OkButton.Click.Calls([] { CloseDialog(frmAboutDX1); });
    frmNote.OkButton.Click.Calls([] { frmNote.Unload(); });
    frmPicture.Loaded.Calls(CoverScreen);
    frmPicture.FrameClosed.Calls([] { frmPicture.Hide(); });
    frmPicture.KeyDown.Calls([](int code) {
        if (code == kEscape) frmPicture.Hide();
    });
    for (PictureBox* picture : frmPicture.pictures) picture->Click.Calls([] { frmPicture.Hide(); });
}
