// A library that is loaded before all others into the program under test (LD_PRELOAD). Its time of day is as many seconds away from the
// system's as stand in the file that SHIFTED_CLOCK names; without that file it is the same. What only measures, the monotonic clock, stays.
#include <dlfcn.h>
#include <sys/time.h>

#include <cstdio>
#include <cstdlib>
#include <ctime>

// Under names of their own: headers declare the true ones in other ways for each level of optimization.
extern "C" {
int ShiftedClock(clockid_t clock, timespec* found) __asm__("clock_gettime");
int ShiftedDay(timeval* found, void* zone) __asm__("gettimeofday");
time_t ShiftedSeconds(time_t* found) __asm__("time");
}

namespace {
time_t Shift() {
    const char* const path = std::getenv("SHIFTED_CLOCK");
    std::FILE* const file = path ? std::fopen(path, "r") : nullptr;
    if (!file) return 0;
    long long seconds = 0;
    if (std::fscanf(file, "%lld", &seconds) != 1) seconds = 0;
    (void)std::fclose(file);
    return static_cast<time_t>(seconds);
}

// The system's own.
int Read(clockid_t clock, timespec* found) {
    static const auto read = reinterpret_cast<decltype(&ShiftedClock)>(dlsym(RTLD_NEXT, "clock_gettime"));
    return read(clock, found);
}

timespec Now() {
    timespec now{};
    Read(CLOCK_REALTIME, &now);
    now.tv_sec += Shift();
    return now;
}
}  // namespace

int ShiftedClock(clockid_t clock, timespec* found) {
    if (clock != CLOCK_REALTIME) return Read(clock, found);
    *found = Now();
    return 0;
}

int ShiftedDay(timeval* found, void*) {
    constexpr long kNanosecondsAMicrosecond = 1000;
    const timespec now = Now();
    *found = {now.tv_sec, now.tv_nsec / kNanosecondsAMicrosecond};
    return 0;
}

time_t ShiftedSeconds(time_t* found) {
    const time_t now = Now().tv_sec;
    if (found) *found = now;
    return now;
}
