#include "program/figure_jobs.h"

#include <algorithm>
#include <iostream>
#include <string>
#if defined(__unix__) || defined(__APPLE__)
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace {
#if defined(__unix__) || defined(__APPLE__)
constexpr bool kParts = true;
constexpr int kCrashed = 70;  // as sysexits.h has it for a fault of the program's own
constexpr std::size_t kAtATime = 2;

bool HasTerminal() {
    return isatty(STDERR_FILENO) == 1;
}

// Returns false where no process can be had.
bool Begin(std::size_t index, const std::function<int(std::size_t)>& job) {
    std::cout.flush();
    const pid_t process = fork();
    if (process != 0) return process > 0;
    const int status = job(index);
    std::cout.flush();
    std::cerr.flush();
    _exit(status);  // what the parent set up is the parent's to end
}

int WaitForOne() {
    int status = 0;
    if (wait(&status) < 0) return kCrashed;
    return WIFEXITED(status) ? WEXITSTATUS(status) : kCrashed;
}
#else
constexpr bool kParts = false;
constexpr std::size_t kAtATime = 1;
bool HasTerminal() {
    return false;
}
bool Begin(std::size_t, const std::function<int(std::size_t)>&) {
    return false;
}
int WaitForOne() {
    return 0;
}
#endif

constexpr const char* kClearLine = "\r\033[K";

class ProgressLine {
public:
    explicit ProgressLine(std::size_t count) : count_(count), shown_(count > 1 && HasTerminal()) { Show(0); }
    ~ProgressLine() {
        if (shown_) std::cerr << kClearLine;
    }
    void Show(std::size_t done) const {
        constexpr std::size_t kWidth = 30;
        if (!shown_) return;
        const std::size_t full = kWidth * done / count_;
        std::cerr << "\r[" << std::string(full, '#') << std::string(kWidth - full, '.') << "] " << done << " of " << count_ << std::flush;
    }

private:
    std::size_t count_;
    bool shown_;
};
}  // namespace

int RunJobs(std::size_t count, const std::function<int(std::size_t)>& job) {
    const ProgressLine progress(count);
    int worst = 0;
    std::size_t begun = 0, done = 0;
    while (done < count) {
        if (begun < count && begun - done < kAtATime) {
            if (!(kParts && count > 1 && Begin(begun, job))) {
                worst = std::max(worst, job(begun));
                ++done;
            }
            ++begun;
            continue;
        }
        worst = std::max(worst, WaitForOne());
        progress.Show(++done);
    }
    return worst;
}

void TellFault(std::string text) {
    while (text.ends_with('\n')) text.pop_back();
    std::ranges::replace_if(
        text, [](char letter) { return letter == '\n' || letter == '\r'; }, ' ');
    std::cerr << (HasTerminal() ? kClearLine : "") + ("marlbrook-figure: " + text + "\n");
}
