#ifndef FITTINGS_TESTS_CONFIG_SPY_WINDOW_H_
#define FITTINGS_TESTS_CONFIG_SPY_WINDOW_H_

#include <string>
#include <utility>
#include <vector>

#include <wx/frame.h>
#include <wx/panel.h>

/// A window that records each call that sets its position or size, as "x;y;width;height flags".
template <typename Window>
class SpyWindow : public Window
{
public:
    using Window::Window;

    /// Returns the calls recorded since the previous TakeCalls().
    std::vector<std::string> TakeCalls() { return std::exchange(m_calls, {}); }

protected:
    void DoSetSize(int x, int y, int width, int height, int flags) override
    {
        m_calls.push_back(std::to_string(x) + ";" + std::to_string(y) + ";" + std::to_string(width) + ";" +
                          std::to_string(height) + " " + std::to_string(flags));
        Window::DoSetSize(x, y, width, height, flags);
    }

private:
    std::vector<std::string> m_calls;
};

/// A hidden frame that records the calls after its construction.
class SpyFrame : public SpyWindow<wxFrame>
{
public:
    explicit SpyFrame(const wxRect& rect = wxRect(300, 200, 400, 300))
        : SpyWindow(nullptr, wxID_ANY, "spy", rect.GetPosition(), rect.GetSize())
    {
        TakeCalls();
    }
};

/// The calls that SpyWindow records.
using SizeCalls = std::vector<std::string>;

#endif
