#ifndef FITTINGS_TESTS_FAULTS_JUMPING_CLOCK_H_
#define FITTINGS_TESTS_FAULTS_JUMPING_CLOCK_H_

/// Sets this process's time of day ahead of the true time by a number of seconds, or behind it, while the object
/// exists. It works like setting the system clock. The monotonic clock does not change.
class JumpingClock
{
public:
    explicit JumpingClock(long secondsAhead = 0) { Jump(secondsAhead); }
    ~JumpingClock() { Jump(0); }
    JumpingClock(const JumpingClock&) = delete;
    JumpingClock& operator=(const JumpingClock&) = delete;

    /// Sets a new offset.
    void Jump(long secondsAhead);
};

#endif
