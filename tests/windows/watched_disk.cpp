// A library that is loaded before all others into the program under test (LD_PRELOAD). It writes down what the program does to the files
// in its HOME, so that a test can tell what a disk would hold had the power gone at any moment, and it makes such calls wait or fail.
//
// WATCHED_DISK names a folder outside HOME with two files:
//     journal    written here, a note after each call: "NANOSECONDS KIND INODE NUMBER LENGTH PATH\n", then LENGTH bytes.
//                new: a file that was not there; write: the bytes at the offset NUMBER; resize: to NUMBER bytes; flush: of a file or a
//                folder; rename: the bytes are the new path, taken or free; remove; waits, fails: a call that trouble has met, by its name
//                in the bytes. The time is of the monotonic clock, the path that by which the file was opened.
//     trouble    written by the test: "CALL ERROR". CALL is open, write, resize, flush, rename, rename-to-free, remove, look, or any for
//     all
//                of them. ERROR is the errno with which they fail, or 0: they wait as long as this stands there.
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <thread>

// The calls that are watched, under names of their own: headers declare the true ones in other ways for each level of optimization.
extern "C" {
int WatchedOpen(const char* path, int flags, mode_t mode) __asm__("open");
int WatchedOpen64(const char* path, int flags, mode_t mode) __asm__("open64");
int WatchedClose(int file) __asm__("close");
ssize_t WatchedWrite(int file, const void* bytes, std::size_t size) __asm__("write");
int WatchedResize(int file, off_t size) __asm__("ftruncate");
int WatchedResize64(int file, off_t size) __asm__("ftruncate64");
int WatchedFlush(int file) __asm__("fsync");
int WatchedRename(const char* from, const char* to) __asm__("rename");
int WatchedRenameToFree(int folder, const char* from, int to_folder, const char* to, unsigned flags) __asm__("renameat2");
int WatchedRemove(const char* path) __asm__("unlink");
int WatchedAccess(const char* path, int mode) __asm__("access");
int WatchedStat(const char* path, void* found) __asm__("stat");
int WatchedStat64(const char* path, void* found) __asm__("stat64");
int WatchedStatx(int folder, const char* path, int flags, unsigned mask, void* found) __asm__("statx");
}

namespace {
constexpr auto kLookAgain = std::chrono::milliseconds(5);

// The system's own call behind the watched one.
template <auto watched>
auto Next(const char* name) {
    static const auto next = reinterpret_cast<decltype(watched)>(dlsym(RTLD_NEXT, name));
    return next;
}

class Disk {
public:
    Disk() : journal_(notes_.empty() ? -1 : OpenUnseen(notes_ + "/journal", O_WRONLY | O_CREAT | O_APPEND)) {}

    bool Holds(std::string_view path) const {
        return journal_ >= 0 && path.starts_with(home_) && (path.size() == home_.size() || path[home_.size()] == '/');
    }

    void Opened(int file, const std::string& path) {
        const std::lock_guard lock(mutex_);
        paths_[file] = path;
    }
    void Closed(int file) {
        const std::lock_guard lock(mutex_);
        paths_.erase(file);
    }
    // By which an open file of this disk was opened; empty for all others.
    std::string PathOf(int file) {
        const std::lock_guard lock(mutex_);
        const auto found = paths_.find(file);
        return found == paths_.end() ? "" : found->second;
    }

    // False if the call has to fail; errno is then set. It may return late.
    bool IsGranted(const char* call, const std::string& path) {
        bool is_noted = false;
        while (const auto error = ErrorOf(call)) {
            if (!is_noted) Note(*error == 0 ? "waits" : "fails", 0, 0, path, call);
            is_noted = true;
            if (*error != 0) {
                errno = *error;
                return false;
            }
            std::this_thread::sleep_for(kLookAgain);
        }
        return true;
    }

    void Note(const char* kind, ino_t inode, off_t number, const std::string& path, std::string_view bytes = {}) {
        const auto now = std::chrono::steady_clock::now().time_since_epoch();
        std::string note = std::to_string(std::chrono::nanoseconds(now).count()) + " " + kind + " " + std::to_string(inode) + " " +
                           std::to_string(number) + " " + std::to_string(bytes.size()) + " " + path + "\n";
        note += bytes;
        const int error = errno;
        if (Next<WatchedWrite>("write")(journal_, note.data(), note.size()) != static_cast<ssize_t>(note.size())) std::abort();
        errno = error;
    }

private:
    static int OpenUnseen(const std::string& path, int flags) {
        constexpr mode_t kOwner = 0600;
        return Next<WatchedOpen>("open")(path.c_str(), flags | O_CLOEXEC, kOwner);
    }
    static std::string Variable(const char* name) {
        const char* const value = std::getenv(name);
        return value ? value : "";
    }

    // The errno that trouble has for such a call, 0 if it is to wait; nothing if it has none.
    std::optional<int> ErrorOf(const std::string& call) const {
        const int file = OpenUnseen(notes_ + "/trouble", O_RDONLY);
        if (file < 0) return std::nullopt;
        std::array<char, 64> text{};
        (void)!read(file, text.data(), text.size() - 1);
        Next<WatchedClose>("close")(file);
        std::array<char, 16> which{};
        int error = 0;
        if (std::sscanf(text.data(), "%15s %d", which.data(), &error) != 2) return std::nullopt;
        const std::string named = which.data();
        return named == "any" || named == call ? std::optional(error) : std::nullopt;
    }

    const std::string home_ = Variable("HOME");
    const std::string notes_ = Variable("WATCHED_DISK");
    const int journal_;
    std::mutex mutex_;
    std::map<int, std::string> paths_;  // of the open files of this disk
};

// Until the very end of the process: threads write while it exits.
Disk& TheDisk() {
    static Disk& disk = *new Disk;
    return disk;
}

ino_t InodeOf(int file) {
    struct stat found {};
    return fstat(file, &found) == 0 ? found.st_ino : 0;
}

int Open(const char* path, int flags, mode_t mode) {
    const auto open = Next<WatchedOpen>("open");
    if (!TheDisk().Holds(path)) return open(path, flags, mode);
    if (!TheDisk().IsGranted("open", path)) return -1;
    const bool is_new = (flags & O_CREAT) != 0 && Next<WatchedAccess>("access")(path, F_OK) != 0;
    const int file = open(path, flags, mode);
    if (file < 0) return file;
    TheDisk().Opened(file, path);
    if (is_new) TheDisk().Note("new", InodeOf(file), 0, path);
    if (!is_new && (flags & O_TRUNC) != 0) TheDisk().Note("resize", InodeOf(file), 0, path);
    return file;
}

bool MayLook(const char* path) {
    return !TheDisk().Holds(path) || TheDisk().IsGranted("look", path);
}

int Resize(int file, off_t size) {
    const std::string path = TheDisk().PathOf(file);
    if (!path.empty() && !TheDisk().IsGranted("resize", path)) return -1;
    const int result = Next<WatchedResize>("ftruncate")(file, size);
    if (!path.empty() && result == 0) TheDisk().Note("resize", InodeOf(file), size, path);
    return result;
}

template <class Call>
int Rename(const char* name, const char* from, const char* to, Call call) {
    const bool is_watched = TheDisk().Holds(from);
    if (is_watched && !TheDisk().IsGranted(name, from)) return -1;
    const int result = call();
    if (is_watched && result == 0) TheDisk().Note("rename", 0, 0, from, to);
    return result;
}
}  // namespace

int WatchedOpen(const char* path, int flags, mode_t mode) {
    return Open(path, flags, mode);
}

int WatchedOpen64(const char* path, int flags, mode_t mode) {
    return Open(path, flags | O_LARGEFILE, mode);
}

int WatchedClose(int file) {
    TheDisk().Closed(file);
    return Next<WatchedClose>("close")(file);
}

ssize_t WatchedWrite(int file, const void* bytes, std::size_t size) {
    const std::string path = TheDisk().PathOf(file);
    if (!path.empty() && !TheDisk().IsGranted("write", path)) return -1;
    const off_t offset = path.empty() ? 0 : lseek(file, 0, SEEK_CUR);
    const ssize_t written = Next<WatchedWrite>("write")(file, bytes, size);
    if (!path.empty() && written > 0)
        TheDisk().Note("write", InodeOf(file), offset, path, {static_cast<const char*>(bytes), static_cast<std::size_t>(written)});
    return written;
}

int WatchedResize(int file, off_t size) {
    return Resize(file, size);
}

int WatchedResize64(int file, off_t size) {
    return Resize(file, size);
}

int WatchedFlush(int file) {
    const std::string path = TheDisk().PathOf(file);
    if (!path.empty() && !TheDisk().IsGranted("flush", path)) return -1;
    const int result = Next<WatchedFlush>("fsync")(file);
    if (!path.empty() && result == 0) TheDisk().Note("flush", InodeOf(file), 0, path);
    return result;
}

int WatchedRename(const char* from, const char* to) {
    return Rename("rename", from, to, [from, to] { return Next<WatchedRename>("rename")(from, to); });
}

int WatchedRenameToFree(int folder, const char* from, int to_folder, const char* to, unsigned flags) {
    return Rename("rename-to-free", from, to, [=] { return Next<WatchedRenameToFree>("renameat2")(folder, from, to_folder, to, flags); });
}

int WatchedRemove(const char* path) {
    const bool is_watched = TheDisk().Holds(path);
    if (is_watched && !TheDisk().IsGranted("remove", path)) return -1;
    const int result = Next<WatchedRemove>("unlink")(path);
    if (is_watched && result == 0) TheDisk().Note("remove", 0, 0, path);
    return result;
}

int WatchedAccess(const char* path, int mode) {
    return MayLook(path) ? Next<WatchedAccess>("access")(path, mode) : -1;
}

int WatchedStat(const char* path, void* found) {
    return MayLook(path) ? Next<WatchedStat>("stat")(path, found) : -1;
}

int WatchedStat64(const char* path, void* found) {
    return MayLook(path) ? Next<WatchedStat64>("stat64")(path, found) : -1;
}

int WatchedStatx(int folder, const char* path, int flags, unsigned mask, void* found) {
    return MayLook(path) ? Next<WatchedStatx>("statx")(folder, path, flags, mask, found) : -1;
}
