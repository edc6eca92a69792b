#pragma once
#include "platform/services.h"

class Renderer;

class QtClipboard : public Clipboard {
public:
    explicit QtClipboard(Renderer& renderer) : renderer_(renderer) {}
    void PutImage(const PictureBox& picture) override;

private:
    Renderer& renderer_;
};

// A popup opens under the mouse when the event that asks for it is over.
class QtPopups : public Popups {
public:
    explicit QtPopups(Renderer& renderer) : renderer_(renderer) {}
    void Open(MenuItem& menu) override;

private:
    Renderer& renderer_;
};
