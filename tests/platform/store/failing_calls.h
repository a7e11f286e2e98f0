#ifndef FITTINGS_TESTS_PLATFORM_STORE_FAILING_CALLS_H_
#define FITTINGS_TESTS_PLATFORM_STORE_FAILING_CALLS_H_

#include <string>

/// Says which call on a file fails, and with which error. The first call after the construction of FailingCalls has the
/// number 1.
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

    /// Returns the name of the first call that failed; empty if none failed.
    static const std::string& Failed();
};

#endif
