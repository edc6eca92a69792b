#include "events/join.h"

#include <string>

#include "files/open_sheet.h"
#include "taxa/quotation_guard.h"

void JoinGuardedKeys(TextBox& box) {
    box.KeyDown.Calls(NoteEditKey);
    box.KeyUp.Calls([](int) { ForgetEditKey(); });
}

void JoinDrop(Window& window, const Button& open) {
    window.FileDropped.Calls([&open](const std::string& path) {
        if (open.IsUsable()) OpenSheetFile(path);
    });
}
