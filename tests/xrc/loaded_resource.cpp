#include <tests/xrc/loaded_resource.h>

#include <gtest/gtest.h>

#include <fittings/xrc/colour_combo_handler.h>
#include <fittings/xrc/number_ctrl_handler.h>
#include <fittings/xrc/tree_handler.h>
#include <tests/support/gui.h>

std::vector<wxObject*> StrayObject::made;

wxIMPLEMENT_DYNAMIC_CLASS(StrayObject, wxObject);

LoadedResource::LoadedResource()
{
    InitAllHandlers();
    AddHandler(new wxColourComboXmlHandler);
    AddHandler(new wxHandyTreeCtrlXmlHandler);
    AddHandler(new wxNumberCtrlXmlHandler);
    EXPECT_TRUE(Load(CONTROLS_XRC));
}

LoadedResource::~LoadedResource()
{
    if (m_frame)
        DestroyNow(m_frame);
    for (wxObject* const stray : StrayObject::made)
        delete stray;
    StrayObject::made.clear();
}

wxFrame* LoadedResource::MakeFrame(const std::string& name)
{
    m_frame = LoadFrame(nullptr, name);
    return m_frame;
}

wxPanel* LoadedResource::MakePanel(const std::string& name)
{
    m_frame = new wxFrame(nullptr, wxID_ANY, name);
    return LoadPanel(m_frame, name);
}

void LoadedResource::DoReportError(const wxString& /*file*/, const wxXmlNode* /*position*/, const wxString& message)
{
    errors.push_back(message.utf8_string());
}
