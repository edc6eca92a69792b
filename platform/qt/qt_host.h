// What the program is run by: its folder, which it has for itself alone, and its end.
#pragma once
#include <QLockFile>
#include <string>

#include "platform/services.h"

class QtHost : public ProgramHost {
public:
    QtHost();
    bool HasEnded() const { return has_ended_; }
    bool HasFolderAlone(MessageBoxes& messages);  // false: another process works on it; the user has been told

    std::string Folder() override { return folder_; }
    Box ScreenSize() override;
    bool CanShow(const std::string& picture) override;
    void End() override;
    void Fail(const char* word) override;

private:
    bool has_ended_ = false;
    std::string folder_;
    QLockFile lock_;
};
