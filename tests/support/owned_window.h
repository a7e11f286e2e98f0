#ifndef FITTINGS_TESTS_SUPPORT_OWNED_WINDOW_H_
#define FITTINGS_TESTS_SUPPORT_OWNED_WINDOW_H_

#include <wx/weakref.h>

#include <tests/support/gui.h>

/// A pointer to a window. The destructor destroys the window if it still exists.
template <typename Window>
class OwnedWindow : public wxWeakRef<Window>
{
public:
    explicit OwnedWindow(Window* window) : wxWeakRef<Window>(window) {}
    ~OwnedWindow()
    {
        if (this->get())
            DestroyNow(this->get());
    }
    OwnedWindow(const OwnedWindow&) = delete;
    OwnedWindow& operator=(const OwnedWindow&) = delete;
};

#endif
