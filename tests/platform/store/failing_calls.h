#ifndef FITTINGS_TESTS_PLATFORM_STORE_FAILING_CALLS_H_
#define FITTINGS_TESTS_PLATFORM_STORE_FAILING_CALLS_H_

#include <string>

/// Which of the calls on files that this process makes, counted from 1, fails with which error.
struct Fault
{
    int nth;
    int error;
    bool lasts;  ///< whether all later calls fail, too
};

/// Lets calls on files fail for as long as it lives. Not for processes in which several threads use files.
class FailingCalls
{
public:
    explicit FailingCalls(const Fault& fault);
    ~FailingCalls();
    FailingCalls(const FailingCalls&) = delete;
    FailingCalls& operator=(const FailingCalls&) = delete;

    /// The name of the first call that failed; empty when there were not as many.
    static const std::string& Failed();
};

#endif
