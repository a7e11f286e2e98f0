#include <tests/faults/jumping_clock.h>

#include <atomic>

#include <sys/syscall.h>
#include <sys/time.h>
#include <time.h>
#include <unistd.h>

namespace {

std::atomic<long> g_ahead{0};

int Read(clockid_t clock, timespec* now)
{
    const int result = static_cast<int>(syscall(SYS_clock_gettime, clock, now));
    if (result == 0 && (clock == CLOCK_REALTIME || clock == CLOCK_REALTIME_COARSE))
        now->tv_sec += g_ahead;
    return result;
}

}  // namespace

void JumpingClock::Jump(long secondsAhead)
{
    g_ahead = secondsAhead;
}

// The functions below replace the C library's functions in the whole process.

extern "C" int clock_gettime(clockid_t clock, timespec* now) noexcept
{
    return Read(clock, now);
}

extern "C" int gettimeofday(timeval* now, void* /*zone*/) noexcept
{
    timespec time = {};
    const int result = Read(CLOCK_REALTIME, &time);
    *now = {time.tv_sec, time.tv_nsec / 1000};
    return result;
}

extern "C" time_t time(time_t* now) noexcept
{
    timespec time = {};
    Read(CLOCK_REALTIME_COARSE, &time);
    if (now)
        *now = time.tv_sec;
    return time.tv_sec;
}
