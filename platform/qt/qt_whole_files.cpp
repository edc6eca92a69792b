#include "platform/qt/qt_whole_files.h"

#include <QFile>
#include <QFileInfo>
#include <QMetaObject>
#include <cstdio>
#include <filesystem>

#include "platform/qt/look.h"
#include "platform/qt/qt_files.h"

#ifndef Q_OS_WIN
#include <fcntl.h>
#include <unistd.h>
#endif

namespace {
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

bool WriteAndFlush(const QString& path, const std::string& bytes) {
    QFile file(path);
    const auto size = static_cast<qint64>(bytes.size());
    return file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered) && file.write(bytes.data(), size) == size &&
           FlushToDisk(file);
}

// Its old content stays under the name until the new one is on the disk.
bool WriteWhole(const std::string& path, const std::string& bytes) {
    const std::string beside = path + ".new";
    if (!WriteAndFlush(SystemPath(beside), bytes)) {
        QFile::remove(SystemPath(beside));
        return false;
    }
    std::error_code error;
    std::filesystem::rename(SystemFile(beside), SystemFile(path), error);
    FlushFolderOf(SystemFile(path));
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

void QtWholeFiles::Write(const std::string& path, const std::string& bytes, std::function<void(bool)> done) {
    Add([this, path, bytes, done = std::move(done)] {
        const bool is_done = WriteWhole(path, bytes);
        QMetaObject::invokeMethod(
            this, [done, is_done] { done(is_done); }, Qt::QueuedConnection);
    });
}

void QtWholeFiles::Remove(const std::string& path) {
    Add([path] { QFile::remove(SystemPath(path)); });
}

void QtWholeFiles::Finish() {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [this] { return jobs_.empty(); });
}

bool QtWholeFiles::IsThere(const std::string& path) {
    return QFileInfo::exists(SystemPath(path));
}

bool QtWholeFiles::AreSame(const std::string& path, const std::string& other) {
    std::error_code ignored;
    return std::filesystem::equivalent(SystemFile(path), SystemFile(other), ignored);
}

void QtWholeFiles::Add(std::function<void()> job) {
    {
        const std::lock_guard lock(mutex_);
        jobs_.push_back(std::move(job));
    }
    changed_.notify_all();
}

void QtWholeFiles::Work() {
    std::unique_lock lock(mutex_);
    while (true) {
        changed_.wait(lock, [this] { return ends_ || !jobs_.empty(); });
        if (jobs_.empty()) return;
        lock.unlock();
        jobs_.front()();  // no one else takes from the front
        lock.lock();
        jobs_.pop_front();
        changed_.notify_all();
    }
}
