#ifndef FITTINGS_TESTS_PLATFORM_STORE_FAILING_CALLS_H_
#define FITTINGS_TESTS_PLATFORM_STORE_FAILING_CALLS_H_

#include <string>

/// Which call on a file fails, counted from 1 since FailingCalls was constructed, and with which error.
struct Fault
{
    int nth;
    int error;
    bool lasts;  ///< whether all later calls fail, too
};

/// Makes calls on files fail while the object exists. Not for processes in which several threads use files.
class FailingCalls
{
public:
    explicit FailingCalls(const Fault& fault);
    ~FailingCalls();
    FailingCalls(const FailingCalls&) = delete;
    FailingCalls& operator=(const FailingCalls&) = delete;

    /// Returns the name of the first call that failed; empty when there were fewer calls.
    static const std::string& Failed();
};

#endif
