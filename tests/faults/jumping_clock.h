#ifndef FITTINGS_TESTS_FAULTS_JUMPING_CLOCK_H_
#define FITTINGS_TESTS_FAULTS_JUMPING_CLOCK_H_

/// Sets this process's time of day so many seconds ahead of the true one, or behind it, as long as the object lives, as
/// when somebody sets the machine's clock. The monotonic clock does not change.
class JumpingClock
{
public:
    explicit JumpingClock(long secondsAhead = 0) { Jump(secondsAhead); }
    ~JumpingClock() { Jump(0); }
    JumpingClock(const JumpingClock&) = delete;
    JumpingClock& operator=(const JumpingClock&) = delete;

    /// Sets another offset.
    void Jump(long secondsAhead);
};

#endif
