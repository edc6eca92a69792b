#include "platform/qt/qt_host.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMetaObject>
#include <QSaveFile>
#include <QScreen>
#include <QStandardPaths>
#include <QSysInfo>
#include <QTemporaryFile>
#include <QUrl>

#include "platform/qt/look.h"
#include "platform/qt/qt_files.h"

namespace {
// A message of the host itself: no procedure of the program asks for it.
void Show(MessageBoxes& messages, const std::string& text) {
    messages.Show({"Marlbrook", text, Icon::Exclamation, Buttons::Ok});
}
}  // namespace

QtHost::QtHost(const QString& folder) : folder_(FromQt(folder)), lock_(folder + "/.marlbrook.lock") {
    lock_.setStaleLockTime(0);  // held as long as its process lives
}

// The computer that holds a lock, unless it is this one: nobody here can know whether the program still runs there.
QString QtHost::OtherHolder() const {
    qint64 process = 0;
    QString computer, program;
    lock_.getLockInfo(&process, &computer, &program);
    return computer == QSysInfo::machineHostName() ? QString() : computer;
}

// A folder that takes no lock is used all the same.
bool QtHost::HasFolderAlone(MessageBoxes& messages) {
    if (lock_.tryLock(0) || lock_.error() != QLockFile::LockFailedError) return true;
    std::string text = "Marlbrook is running already";
    if (const QString other = OtherHolder(); !other.isEmpty())
        text += " on the computer " + FromQt(other) + ", or was cut off there. If it does not run there, delete the file .marlbrook.lock";
    Show(messages, text + ". Two at a time would write the same settings and back-ups in\n" + folder_);
    return false;
}

Box QtHost::ScreenSize() {
    const QSize pixels = QGuiApplication::primaryScreen()->size();
    return {0, 0, pixels.width() * kTwipsPerPixel, pixels.height() * kTwipsPerPixel};
}

bool QtHost::CanShow(const std::string& picture) {
    return IsPicture(picture);
}

namespace {
// Its first page, as it is installed, in a folder of its own, and in the folder of the build; empty: nowhere.
QString ManualPage() {
    const QString program = QCoreApplication::applicationDirPath();
    for (const char* folder : {"/../share/doc/marlbrook/manual", "/manual", "/../docs/manual"})
        if (QString page = QDir::cleanPath(program + folder + "/index.html"); QFileInfo(page).isFile()) return page;
    return {};
}
}  // namespace

bool QtHost::HasManual() {
    return !ManualPage().isEmpty();
}

void QtHost::ShowManual() {
    QDesktopServices::openUrl(QUrl::fromLocalFile(ManualPage()));
}

void QtHost::End() {
    has_ended_ = true;
    QMetaObject::invokeMethod(
        qApp, [] { QCoreApplication::exit(0); }, Qt::QueuedConnection);
}

void QtHost::Fail(const char* word) {
    has_failed_ = true;
    before_failing_();
    has_ended_ = true;  // from here on nothing is written
    Show(*services.messages, word);
    End();
}

namespace {
#if defined(Q_OS_WIN) || defined(Q_OS_MACOS)
constexpr auto kName = "Marlbrook";
#else
constexpr auto kName = "marlbrook";
#endif

bool HoldsReferences(const QString& folder) {
    return QFileInfo(folder + "/References").isDir();
}

// By making a file: permissions tell less, to root and behind access lists.
bool CanBeWritten(const QString& folder) {
    QTemporaryFile file(folder + "/.marlbrook-XXXXXX");
    return file.open();
}

// The tree as it is installed: on Linux, on Windows, in a macOS bundle.
QString InstalledTree() {
    const QString program = QCoreApplication::applicationDirPath();
    for (const QString& folder : {program + "/../share/marlbrook", program, program + "/../Resources"})
        if (HoldsReferences(folder)) return folder;
    return {};
}

// Under its own name only when it is whole, which QFile::copy does not promise on every system: what a full disk or a power cut left
// half-written would be taken for the user's own.
void CopyWhole(const QString& file, const QString& copy) {
    QFile from(file);
    QSaveFile to(copy);
    if (!from.open(QIODevice::ReadOnly) || !to.open(QIODevice::WriteOnly)) return;
    if (to.write(from.readAll()) == from.size() && to.flush()) to.commit();  // which would keep what its own flush cut short
}
}  // namespace

QString FindProgramFolder() {
    QString program = QCoreApplication::applicationDirPath();
    if (HoldsReferences(program) && CanBeWritten(program)) return program;
    QString own = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + "/" + kName;
    QDir().mkpath(own);
    if (const QString tree = InstalledTree(); !tree.isEmpty()) LayDownMissing(tree, own);
    return own;
}

void LayDownMissing(const QString& from, const QString& to) {
    QDirIterator entries(from, QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot | QDir::Hidden, QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QString entry = entries.next();
        const QString copy = to + "/" + QDir(from).relativeFilePath(entry);
        if (entries.fileInfo().isDir())
            QDir().mkpath(copy);
        else if (!QFileInfo::exists(copy) && QDir().mkpath(QFileInfo(copy).path()))
            CopyWhole(entry, copy);
    }
}
