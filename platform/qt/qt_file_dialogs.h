// The dialogs that ask for a file to open or to save. They begin in the folder of the last use.
#pragma once
#include <QString>

#include "platform/services.h"

class QtFileDialogs : public FileDialogs {
public:
    std::optional<std::string> Ask(const FileQuestion& question) override;

private:
    QString folder_;  // empty: the first use
};
