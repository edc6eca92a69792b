// What the program is run by: its folder, which it has for itself alone, and its end.
#pragma once
#include <QLockFile>
#include <QString>
#include <functional>
#include <string>

#include "platform/services.h"

class QtHost : public ProgramHost {
public:
    explicit QtHost(const QString& folder);  // where the program keeps its own files, as FindProgramFolder tells
    bool HasEnded() const { return has_ended_; }
    bool HasFailed() const { return has_failed_; }
    void BeforeItFails(std::function<void()> procedure) { before_failing_ = std::move(procedure); }
    bool HasFolderAlone(MessageBoxes& messages);  // false: another process works on it; the user has been told

    std::string Folder() override { return folder_; }
    Box ScreenSize() override;
    bool CanShow(const std::string& picture) override;
    bool HasManual() override;
    void ShowManual() override;
    void End() override;
    void Fail(const char* word) override;

private:
    std::function<void()> before_failing_ = [] {};
    bool has_ended_ = false;
    bool has_failed_ = false;
    std::string folder_;
    QString OtherHolder() const;

    QLockFile lock_;
};

// Where the program keeps its own files.
//
// It is the folder of the running program if that holds References and can be written. Otherwise (a system-wide installation) it is one
// of the user's own, marlbrook below $XDG_DATA_HOME or what the system has in its place. What it lacks of the installed tree is laid
// down at each start, for the first one may have met a full disk.

QString FindProgramFolder();  // without a separator at its end

// Copies the files and folders below `from` that are not below `to`: what is there is never written over. A file appears there whole or
// not at all; one that cannot be copied is left out.
void LayDownMissing(const QString& from, const QString& to);
