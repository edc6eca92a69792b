#include "events/join.h"

#include "taxa/quotation_guard.h"

void JoinGuardedKeys(TextBox& box) {
    box.KeyDown.Calls(NoteEditKey);
    box.KeyUp.Calls([](int) { ForgetEditKey(); });
}
