#ifndef FITTINGS_GALLERY_TOUR_EVENT_PUMP_H_
#define FITTINGS_GALLERY_TOUR_EVENT_PUMP_H_

#include <chrono>
#include <functional>

#include <wx/app.h>
#include <wx/evtloop.h>

namespace gallery::simulated_user {

/// Handles every event that has arrived, then does the idle processing.
inline void HandleEvents()
{
    wxEventLoopBase* const loop = wxEventLoopBase::GetActive();
    while (loop->Pending())
        loop->Dispatch();
    // Deliver posted events here: Pending() turns off the loop's idle handling, which usually delivers them.
    wxTheApp->ProcessPendingEvents();
    loop->ProcessIdle();
}

/// Runs the event loop until @a done returns true. Returns false if this takes longer than @a milliseconds.
inline bool WaitUntil(const std::function<bool()>& done, int milliseconds = 30000)
{
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::milliseconds(milliseconds);
    for (;;) {
        HandleEvents();
        if (done())
            return true;
        if (std::chrono::steady_clock::now() > deadline)
            return false;
        wxEventLoopBase::GetActive()->DispatchTimeout(5);
    }
}

}  // namespace gallery::simulated_user

#endif
