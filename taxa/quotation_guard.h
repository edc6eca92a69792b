// A quoted cell of a file cannot hold a double quotation mark, so a key that could have typed one is refused in every box whose text
// is stored.
#pragma once
#include "platform/controls.h"

void EnterGuardedBox();                  // the box gets the focus
void NoteEditKey(int code);              // a key goes down in it
void ForgetEditKey();                    // and up: what comes later was not typed with it
bool IsTyped(const TextBox& box);        // its text has changed, by the key in LastEditKey and not by the program; asked once a change
void RefuseQuotationMark(TextBox& box);  // its text has changed: beep, message, and the character before the caret is cut out
