#include "events/join.h"
#include "keys/first_run.h"
#include "windows/initial_window.h"

void JoinInitialEvents() {
    frmInitial.Loaded.Calls(LoadInitialWindow);
    frmInitial.FrameClosed.Calls(CloseInitialByFrame);
    frmInitial.Command1.Click.Calls(AcceptNamedKeys);
    for (int key = 0; key < kNamedKeys; ++key) {
        frmInitial.Text1[key].GotFocus.Calls([key] { EmptyNamedKey(key); });
        frmInitial.Text1[key].KeyDown.Calls([key](int code) { TakeNamedKey(key, code); });
    }
}
