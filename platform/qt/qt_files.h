// The files of the disk, under their paths in UTF-8, and pictures from files of any kind that the toolkit can read.
#pragma once
#include <QFile>
#include <QImage>
#include <QObject>
#include <QString>
#include <condition_variable>
#include <cstddef>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <thread>

#include "platform/files.h"

class QtFiles : public Files {
public:
    std::string ReadHead(const std::string& path, std::size_t most) override;
    std::unique_ptr<OutputFile> OpenForWriting(const std::string& path) override;
};

// Does it on a thread of its own: no key waits for the disk.
class QtWholeFiles final : public QObject, public WholeFiles {
public:
    QtWholeFiles();
    ~QtWholeFiles() override;  // does first what is still to be done

    void Write(std::shared_ptr<OwnName> name, const std::string& bytes, std::function<void(bool)> done) override;
    void Remove(const std::string& path) override;
    void Finish() override;
    bool AreSame(const std::string& path, const std::string& other) override;

private:
    struct Job {
        std::shared_ptr<OwnName> writes;  // null if it removes
        std::function<void()> procedure;
    };
    void Work();
    void TellLater(std::function<void()> procedure);
    void customEvent(QEvent* event) override;

    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<Job> jobs_;                    // the first one is being done
    std::deque<std::function<void()>> told_;  // what has been done and is to be told between events
    bool ends_ = false;
    std::thread worker_;
};

QString SystemPath(const std::string& path);   // as the toolkit takes it
std::string ProgramPath(const QString& path);  // the other way round: as the system writes it

bool IsPicture(const std::string& bytes);      // by its head; what follows may yet be spoiled
QImage ReadPicture(const std::string& bytes);  // null if it cannot be read
