#include "platform/qt/qt_files.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QEvent>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <array>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <optional>
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

// A new name is on the disk when its folder is. Windows has no call for that: there the name goes with the file.
void FlushFolderOf([[maybe_unused]] const QString& file) {
#ifndef Q_OS_WIN
    const int folder = open(QFile::encodeName(QFileInfo(file).path()).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
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
        if (is_new) FlushFolderOf(path);
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
bool WriteAndFlush(const QString& path, const std::string& bytes) {
    QFile file(path);
    const auto size = static_cast<qint64>(bytes.size());
    return file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered) && file.write(bytes.data(), size) == size &&
           FlushToDisk(file);
}

#ifdef Q_OS_WIN
// The form that Windows' own calls take however long it is.
std::wstring SystemName(const QString& path) {
    const QString name = QDir::toNativeSeparators(QDir::cleanPath(QFileInfo(path).absoluteFilePath()));
    const bool is_on_network = name.startsWith(R"(\\)");
    return (is_on_network ? R"(\\?\UNC\)" + name.mid(2) : R"(\\?\)" + name).toStdWString();
}

std::error_code Rename(const QString& from, const QString& to, DWORD how) {
    const bool is_done = MoveFileExW(SystemName(from).c_str(), SystemName(to).c_str(), how | MOVEFILE_WRITE_THROUGH) != 0;
    return is_done ? std::error_code() : std::error_code(static_cast<int>(GetLastError()), std::system_category());
}

std::error_code RenameOver(const QString& from, const QString& to) {
    return Rename(from, to, MOVEFILE_REPLACE_EXISTING);
}
#else
std::filesystem::path SystemName(const QString& path) {
    return QFileInfo(path).filesystemFilePath();
}

std::error_code RenameOver(const QString& from, const QString& to) {
    std::error_code error;
    std::filesystem::rename(SystemName(from), SystemName(to), error);
    return error;
}
#endif

// Where the file system cannot rename to a free name alone: an empty file takes the name, and at once the new one is renamed over it.
[[maybe_unused]] std::error_code RenameOverEmpty(const QString& from, const QString& to) {
    QFile empty(to);
    if (!empty.open(QIODevice::WriteOnly | QIODevice::NewOnly)) return std::make_error_code(std::errc::file_exists);
    empty.close();
    const std::error_code error = RenameOver(from, to);
    if (error) empty.remove();
    return error;
}

// std::errc::file_exists if the name is taken.
std::error_code RenameToFree(const QString& from, const QString& to) {
#if defined(Q_OS_WIN)
    return Rename(from, to, 0);
#elif defined(RENAME_NOREPLACE)
    const std::filesystem::path old_name = SystemName(from), new_name = SystemName(to);
    if (renameat2(AT_FDCWD, old_name.c_str(), AT_FDCWD, new_name.c_str(), RENAME_NOREPLACE) == 0) return {};
    if (errno == EINVAL || errno == ENOSYS) return RenameOverEmpty(from, to);
    return {errno, std::generic_category()};
#else
    return RenameOverEmpty(from, to);
#endif
}

std::error_code TakeName(const QString& from, OwnName& name) {
    std::error_code error;
    for (const std::string& path : name.paths) {
        error = RenameToFree(from, SystemPath(path));
        if (error == std::errc::file_exists) continue;
        if (!error) name.path = path;
        break;
    }
    return error;
}

// Somebody may have tidied it away. False: it is there, or cannot be made.
bool MakeFolderOf(const QString& path) {
    return QDir().mkdir(QFileInfo(path).path());
}

// Its old content stays under the name until the new one is on the disk.
bool WriteWhole(OwnName& name, const std::string& bytes) {
    const QString beside = SystemPath(name.paths.front() + ".new");
    std::error_code error;
    if (!WriteAndFlush(beside, bytes) && !(MakeFolderOf(beside) && WriteAndFlush(beside, bytes)))
        error = std::make_error_code(std::errc::io_error);
    else if (name.path.empty())
        error = TakeName(beside, name);
    else
        error = RenameOver(beside, SystemPath(name.path));
    if (error) QFile::remove(beside);
    FlushFolderOf(beside);
    return !error;
}

#ifdef Q_OS_WIN
// A file by its disk and its number there; nothing if it is not there. The library's own comparison takes no name in SystemName's form.
std::optional<std::array<DWORD, 3>> IdentityOf(const QString& path) {
    constexpr DWORD kAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const HANDLE file = CreateFileW(SystemName(path).c_str(), 0, kAll, nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (file == INVALID_HANDLE_VALUE) return std::nullopt;
    BY_HANDLE_FILE_INFORMATION about;
    const bool is_known = GetFileInformationByHandle(file, &about) != 0;
    CloseHandle(file);
    if (!is_known) return std::nullopt;
    return std::array{about.dwVolumeSerialNumber, about.nFileIndexHigh, about.nFileIndexLow};
}

bool AreOneFile(const QString& path, const QString& other) {
    const auto identity = IdentityOf(path);
    return identity && identity == IdentityOf(other);
}
#else
bool AreOneFile(const QString& path, const QString& other) {
    std::error_code ignored;
    return std::filesystem::equivalent(SystemName(path), SystemName(other), ignored);
}
#endif
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
    return AreOneFile(SystemPath(path), SystemPath(other));
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
