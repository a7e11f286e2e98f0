#ifndef FITTINGS_TESTS_XRC_LOADED_RESOURCE_H_
#define FITTINGS_TESTS_XRC_LOADED_RESOURCE_H_

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <wx/frame.h>
#include <wx/panel.h>
#include <wx/xrc/xmlres.h>

/// Loads controls.xrc with the handlers of the toolkit and of this library, and creates a frame or a panel from it. The
/// destructor destroys the window.
class LoadedResource : public wxXmlResource
{
public:
    LoadedResource();
    ~LoadedResource() override;

    /// Creates the frame with that name.
    wxFrame* MakeFrame(const std::string& name);

    /// Creates the panel with that name in a new frame.
    wxPanel* MakePanel(const std::string& name);

    /// The messages of the errors that the loading has reported.
    std::vector<std::string> errors;

protected:
    void DoReportError(const wxString& file, const wxXmlNode* position, const wxString& message) override;

private:
    wxFrame* m_frame = nullptr;
};

class LoadedResourceTest : public testing::Test
{
protected:
    LoadedResource resource;
};

/// This class is not a control, although the resource uses it as the subclass of a control. The destructor of
/// LoadedResource deletes the objects in `made`.
class StrayObject : public wxObject
{
public:
    StrayObject() { made.push_back(this); }

    static std::vector<wxObject*> made;

    wxDECLARE_DYNAMIC_CLASS(StrayObject);
};

#endif
