#include "platform/qt/qt_host.h"

#include <QGuiApplication>
#include <QMetaObject>
#include <QScreen>

#include "platform/qt/look.h"
#include "platform/qt/picture_file.h"
#include "platform/qt/program_folder.h"

namespace {
// What is no part of the program's own talk.
void Show(MessageBoxes& messages, const std::string& text) {
    messages.Show({"Marlbrook", text, Icon::Exclamation, Buttons::Ok});
}
}  // namespace

QtHost::QtHost() : folder_(FromQt(FindProgramFolder())), lock_(ToQt(folder_) + "/.marlbrook.lock") {
    lock_.setStaleLockTime(0);  // held as long as its process lives
}

// A folder that takes no lock is used all the same.
bool QtHost::HasFolderAlone(MessageBoxes& messages) {
    if (lock_.tryLock(0) || lock_.error() != QLockFile::LockFailedError) return true;
    Show(messages, "Marlbrook is running already. Two at a time would write the same settings and back-ups in\n" + folder_);
    return false;
}

Box QtHost::ScreenSize() {
    const QSize pixels = QGuiApplication::primaryScreen()->size();
    return {0, 0, pixels.width() * kTwipsPerPixel, pixels.height() * kTwipsPerPixel};
}

bool QtHost::CanShow(const std::string& picture) {
    return IsPicture(picture);
}

void QtHost::End() {
    has_ended_ = true;
    QMetaObject::invokeMethod(
        qApp, [] { QCoreApplication::exit(0); }, Qt::QueuedConnection);
}

void QtHost::Fail(const char* word) {
    has_ended_ = true;  // from here on nothing is written
    Show(*services.messages, word);
    End();
}
