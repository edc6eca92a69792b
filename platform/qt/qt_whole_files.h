// Writes the files that the program keeps for itself, on a thread of its own: no key waits for the disk.
#pragma once
#include <QObject>
#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <string>
#include <thread>

#include "platform/files.h"

class QtWholeFiles : public QObject, public WholeFiles {
public:
    QtWholeFiles();
    ~QtWholeFiles() override;  // does first what is still to be done

    void Write(const std::string& path, const std::string& bytes, std::function<void(bool)> done) override;
    void Remove(const std::string& path) override;
    void Finish() override;
    bool IsThere(const std::string& path) override;
    bool AreSame(const std::string& path, const std::string& other) override;

private:
    void Add(std::function<void()> job);
    void Work();

    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<std::function<void()>> jobs_;  // the first one is being done
    bool ends_ = false;
    std::thread worker_;
};
