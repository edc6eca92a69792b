// The dialogs that ask for a file to open or to save. They begin in the folder of the last use.
#pragma once
#include <QString>

#include "platform/services.h"

class Renderer;

class QtFileDialogs : public FileDialogs {
public:
    explicit QtFileDialogs(Renderer& renderer) : renderer_(renderer) {}
    std::optional<std::string> Ask(const FileQuestion& question) override;

private:
    Renderer& renderer_;
    QString folder_;  // empty: the first use
};
