#include "platform/qt/qt_files.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QEvent>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <system_error>

#include "platform/failure.h"
#include "platform/qt/look.h"

#ifdef Q_OS_WIN
#include <io.h>
#include <windows.h>
#else
#include <fcntl.h>
#include <unistd.h>
#endif

namespace {
bool FlushToDisk(const QFile& file) {
#ifdef Q_OS_WIN
    return _commit(file.handle()) == 0;
#else
    return fsync(file.handle()) == 0;
#endif
}

// A file that its folder shows. Windows takes `CON.csv` for a device in any folder, and `a:b.csv` for a hidden part of the file `a`.
bool IsNameOfFile([[maybe_unused]] const QString& path) {
#ifdef Q_OS_WIN
    const std::wstring name = QDir::toNativeSeparators(path).toStdWString();
    std::wstring taken_for(GetFullPathNameW(name.c_str(), 0, nullptr, nullptr), L' ');
    GetFullPathNameW(name.c_str(), static_cast<DWORD>(taken_for.size()), taken_for.data(), nullptr);
    return !taken_for.starts_with(LR"(\\.\)") && !QFileInfo(path).fileName().contains(u':');
#else
    return true;
#endif
}

std::filesystem::path SystemFile(const std::string& path) {
    return QFileInfo(SystemPath(path)).filesystemFilePath();
}

// A new name is on the disk when its folder is.
void FlushFolderOf([[maybe_unused]] const std::filesystem::path& file) {
#ifndef Q_OS_WIN
    const int folder = open(file.parent_path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0) return;
    fsync(folder);
    close(folder);
#endif
}

class QtOutputFile : public OutputFile {
public:
    explicit QtOutputFile(const QString& path) : file_(path) {
        const bool is_new = !file_.exists();
        if (!IsNameOfFile(path) || !file_.open(QIODevice::ReadWrite | QIODevice::Unbuffered)) throw Failure(kFileError);
        if (is_new) FlushFolderOf(QFileInfo(file_).filesystemFilePath());
    }

    void Replace(std::string_view bytes) override {
        const std::size_t taken = file_.resize(0) && file_.seek(0) ? Write(bytes) : 0;
        const bool is_whole = taken == bytes.size() && FlushToDisk(file_);
        file_.close();
        if (!is_whole) throw WriteFailure(taken);
    }

private:
    // How many of the bytes the disk took.
    std::size_t Write(std::string_view bytes) {
        std::size_t taken = 0;
        while (taken < bytes.size()) {
            const qint64 written = file_.write(bytes.data() + taken, static_cast<qint64>(bytes.size() - taken));
            if (written <= 0) break;
            taken += static_cast<std::size_t>(written);
        }
        return taken;
    }

    QFile file_;
};
}  // namespace

QString SystemPath(const std::string& path) {
    return QDir::fromNativeSeparators(ToQt(path));  // elsewhere than on Windows a `\` is a character like any other
}

std::string ProgramPath(const QString& path) {
    return FromQt(QDir::toNativeSeparators(path));
}

std::string QtFiles::ReadHead(const std::string& path, std::size_t most) {
    const QFileInfo info(SystemPath(path));
    QFile file(info.filePath());
    if (!IsNameOfFile(info.filePath()) || !info.isFile() || !file.open(QIODevice::ReadOnly)) throw Failure(kFileError);
    const QByteArray bytes = file.read(static_cast<qint64>(most));
    if (file.error() != QFileDevice::NoError) throw Failure(kFileError);
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

std::unique_ptr<OutputFile> QtFiles::OpenForWriting(const std::string& path) {
    return std::make_unique<QtOutputFile>(SystemPath(path));
}

// ---- Files of the program itself ----

namespace {
bool WriteAndFlush(const std::filesystem::path& path, const std::string& bytes) {
    QFile file(path);
    const auto size = static_cast<qint64>(bytes.size());
    return file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered) && file.write(bytes.data(), size) == size &&
           FlushToDisk(file);
}

// Where the file system cannot rename to a free name alone: an empty file takes the name, and at once the new one is renamed over it.
[[maybe_unused]] std::error_code RenameOverEmpty(const std::filesystem::path& from, const std::filesystem::path& to) {
    QFile empty(to);
    if (!empty.open(QIODevice::WriteOnly | QIODevice::NewOnly)) return std::make_error_code(std::errc::file_exists);
    empty.close();
    std::error_code error;
    std::filesystem::rename(from, to, error);
    if (error) empty.remove();
    return error;
}

// std::errc::file_exists if the name is taken.
std::error_code RenameToFree(const std::filesystem::path& from, const std::filesystem::path& to) {
#if defined(Q_OS_WIN)
    const bool is_done = _wrename(from.c_str(), to.c_str()) == 0;
#elif defined(RENAME_NOREPLACE)
    const bool is_done = renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0;
    if (!is_done && (errno == EINVAL || errno == ENOSYS)) return RenameOverEmpty(from, to);
#else
    return RenameOverEmpty(from, to);
#endif
    return is_done ? std::error_code() : std::error_code(errno, std::generic_category());
}

std::error_code TakeName(const std::filesystem::path& from, OwnName& name) {
    std::error_code error;
    for (const std::string& path : name.paths) {
        error = RenameToFree(from, SystemFile(path));
        if (error == std::errc::file_exists) continue;
        if (!error) name.path = path;
        break;
    }
    return error;
}

// Somebody may have tidied it away. False: it is there, or cannot be made.
bool MakeFolderOf(const std::filesystem::path& path) {
    std::error_code error;
    return std::filesystem::create_directory(path.parent_path(), error);
}

// Its old content stays under the name until the new one is on the disk.
bool WriteWhole(OwnName& name, const std::string& bytes) {
    const std::filesystem::path beside = SystemFile(name.paths.front() + ".new");
    std::error_code error;
    if (!WriteAndFlush(beside, bytes) && !(MakeFolderOf(beside) && WriteAndFlush(beside, bytes)))
        error = std::make_error_code(std::errc::io_error);
    else if (name.path.empty())
        error = TakeName(beside, name);
    else
        std::filesystem::rename(beside, SystemFile(name.path), error);
    if (error) QFile(beside).remove();
    FlushFolderOf(beside);
    return !error;
}
}  // namespace

QtWholeFiles::QtWholeFiles() : worker_([this] { Work(); }) {}

QtWholeFiles::~QtWholeFiles() {
    Finish();
    {
        const std::lock_guard lock(mutex_);
        ends_ = true;
    }
    changed_.notify_all();
    worker_.join();
}

// On a disk that is slow the newest content is all that counts.
void QtWholeFiles::Write(std::shared_ptr<OwnName> name, const std::string& bytes, std::function<void(bool)> done) {
    const auto write = [this, name, bytes, done = std::move(done)] {
        TellLater([done, is_done = WriteWhole(*name, bytes)] { done(is_done); });
    };
    const std::lock_guard lock(mutex_);
    if (jobs_.size() > 1 && jobs_.back().writes == name) jobs_.pop_back();
    jobs_.push_back({name, write});
    changed_.notify_all();
}

void QtWholeFiles::Remove(const std::string& path) {
    const std::lock_guard lock(mutex_);
    jobs_.push_back({nullptr, [path] { QFile::remove(SystemPath(path)); }});
    changed_.notify_all();
}

void QtWholeFiles::Finish() {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [this] { return jobs_.empty(); });
}

bool QtWholeFiles::AreSame(const std::string& path, const std::string& other) {
    std::error_code ignored;
    return std::filesystem::equivalent(SystemFile(path), SystemFile(other), ignored);
}

// All that goes from thread to thread goes by the one lock, the event too: the toolkit's own locks the thread sanitizer does not see.
void QtWholeFiles::TellLater(std::function<void()> procedure) {
    const std::lock_guard lock(mutex_);
    told_.push_back(std::move(procedure));
    QCoreApplication::postEvent(this, new QEvent(QEvent::User));
}

void QtWholeFiles::customEvent(QEvent*) {
    std::deque<std::function<void()>> told;
    {
        const std::lock_guard lock(mutex_);
        told.swap(told_);
    }
    for (const auto& procedure : told) procedure();
}

void QtWholeFiles::Work() {
    std::unique_lock lock(mutex_);
    while (true) {
        changed_.wait(lock, [this] { return ends_ || !jobs_.empty(); });
        if (jobs_.empty()) return;
        const std::function<void()>& procedure = jobs_.front().procedure;  // it stays where it is: no one else takes from the front
        lock.unlock();
        procedure();
        lock.lock();
        jobs_.pop_front();
        changed_.notify_all();
    }
}

// ---- Pictures ----

namespace {
QByteArray View(const std::string& bytes) {
    return QByteArray::fromRawData(bytes.data(), static_cast<int>(bytes.size()));
}
}  // namespace

bool IsPicture(const std::string& bytes) {
    QByteArray view = View(bytes);
    QBuffer buffer(&view);
    return QImageReader(&buffer).size().isValid();
}

QImage ReadPicture(const std::string& bytes) {
    return QImage::fromData(View(bytes));
}
