// While it lives no file grows beyond `bytes`: what the system writes up to there stays, the rest fails, as on a disk that fills up.
// Nothing else may be written meanwhile, and a test reports after it.
#pragma once
#include <sys/resource.h>

#include <csignal>
#include <cstddef>

class FileSizeLimit {
public:
    explicit FileSizeLimit(std::size_t bytes) : old_action_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &old_limit_);
        const rlimit limit{bytes, old_limit_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit() {
        setrlimit(RLIMIT_FSIZE, &old_limit_);
        std::signal(SIGXFSZ, old_action_);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

private:
    void (*old_action_)(int);
    rlimit old_limit_{};
};
