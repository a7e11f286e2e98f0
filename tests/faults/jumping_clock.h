#ifndef FITTINGS_TESTS_FAULTS_JUMPING_CLOCK_H_
#define FITTINGS_TESTS_FAULTS_JUMPING_CLOCK_H_

/// While the object exists, this process's time of day is ahead of the true time by a number of seconds. A negative
/// number sets it behind the true time. The monotonic clock does not change. Setting the system clock has the same
/// effects.
class JumpingClock
{
public:
    explicit JumpingClock(long secondsAhead = 0) { Jump(secondsAhead); }
    ~JumpingClock() { Jump(0); }
    JumpingClock(const JumpingClock&) = delete;
    JumpingClock& operator=(const JumpingClock&) = delete;

    /// Replaces the earlier number of seconds.
    void Jump(long secondsAhead);
};

#endif
