// The service that opens files. All reading and writing of the program goes through it, so that a test can lock a file or fill a disk.
#pragma once
#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/failure.h"

// "File error": the disk takes no more than the bytes `taken` of those it was given.
struct WriteFailure : Failure {
    explicit WriteFailure(std::size_t taken_bytes) : Failure(kFileError), taken(taken_bytes) {}
    std::size_t taken;
};

// A file opened for writing. Nothing of its old content is gone before Replace.
class OutputFile {
public:
    virtual ~OutputFile() = default;
    // Cuts the file, writes the bytes in one go, has them flushed to the disk and closes it. Raises WriteFailure when the disk
    // takes no more; what it took stays in the file.
    virtual void Replace(std::string_view bytes) = 0;
};

constexpr std::size_t kLargestFile = 16 << 20;  // bytes, far beyond any sheet: what is larger, or never ends, is not read

// The name of a file that the program keeps for itself. The first write takes the first of `paths` that is free, so that no file of
// anybody else's is written over; the later ones replace what the first one wrote.
struct OwnName {
    std::vector<std::string> paths;
    std::string path;  // that it has; empty before the first write. Not to be read while one may be on its way
};

// Files that the program keeps for itself: each is under its name whole, on the disk, or not at all. Nothing is raised.
class WholeFiles {
public:
    virtual ~WholeFiles() = default;
    // Both may return before it is done; one is done after the other. `done` is called between events, with whether it was.
    virtual void Write(std::shared_ptr<OwnName> name, const std::string& bytes, std::function<void(bool)> done) = 0;
    virtual void Remove(const std::string& path) = 0;
    virtual void Finish() = 0;  // returns when all of it is done

    virtual bool AreSame(const std::string& path, const std::string& other) = 0;  // two names of one file that is there
};

class Files {
public:
    virtual ~Files() = default;
    // Paths are UTF-8, `/` separates folders. Reading raises "File error" if the file cannot be opened or is no ordinary file; opening
    // makes a file that is not there, or raises the same.
    virtual std::string ReadHead(const std::string& path, std::size_t most) = 0;  // its first `most` bytes; all of them if it has no more
    std::string ReadAll(const std::string& path);                                 // raises the same if it is larger than kLargestFile
    virtual std::unique_ptr<OutputFile> OpenForWriting(const std::string& path) = 0;
};
