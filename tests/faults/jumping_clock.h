#ifndef FITTINGS_TESTS_FAULTS_JUMPING_CLOCK_H_
#define FITTINGS_TESTS_FAULTS_JUMPING_CLOCK_H_

/// Puts the time of day that this process is told so many seconds ahead of the true one, or behind it, for as long as
/// the object lives, as when somebody sets the machine's clock. What only measures how time goes by, the monotonic clock,
/// goes on.
class JumpingClock
{
public:
    explicit JumpingClock(long secondsAhead = 0) { Jump(secondsAhead); }
    ~JumpingClock() { Jump(0); }
    JumpingClock(const JumpingClock&) = delete;
    JumpingClock& operator=(const JumpingClock&) = delete;

    /// Jumps, from wherever it is.
    void Jump(long secondsAhead);
};

#endif
