// Message boxes over the active window.
#pragma once
#include "platform/services.h"

class Renderer;

class QtMessageBoxes : public MessageBoxes {
public:
    explicit QtMessageBoxes(Renderer& renderer) : renderer_(renderer) {}
    Answer Show(const Message& message) override;

private:
    Renderer& renderer_;
};
