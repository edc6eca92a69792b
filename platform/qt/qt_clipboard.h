#pragma once
#include "platform/services.h"

class QtClipboard : public Clipboard {
public:
    void PutImage(const PictureBox& picture) override;
};

// A popup opens under the mouse when the event that asks for it is over.
class QtPopups : public Popups {
public:
    void Open(MenuItem& menu) override;
};
