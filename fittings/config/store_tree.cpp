#include <fittings/config/store_tree.h>

#include <wx/arrstr.h>
#include <wx/confbase.h>

namespace fittings {

namespace {

constexpr wchar_t kSeparator = wxCONFIG_PATH_SEPARATOR;

// Removes the first step from the text and returns the step.
std::wstring_view TakeStep(std::wstring_view& text)
{
    const std::size_t end = text.find(kSeparator);
    const std::wstring_view step = text.substr(0, end);
    text.remove_prefix(end == std::wstring_view::npos ? text.size() : end + 1);
    return step;
}

bool IsName(std::wstring_view step)
{
    return !step.empty() && step != L"." && step != L"..";
}

}  // namespace

std::wstring StoreGroup::Section() const
{
    if (!parent)
        return {};
    return parent->parent ? parent->Section() + kSeparator + name : name;
}

std::wstring SectionOf(const StorePath& path)
{
    std::wstring section;
    for (const std::wstring& name : path)
        section += section.empty() ? name : kSeparator + name;
    return section;
}

std::optional<StorePath> PathOfSection(std::wstring_view section)
{
    if (!section.empty() && section.back() == kSeparator)
        return std::nullopt;
    StorePath path;
    while (!section.empty()) {
        const std::wstring_view step = TakeStep(section);
        if (!IsName(step) || path.size() == kMaxStoreDepth)
            return std::nullopt;
        path.emplace_back(step);
    }
    return path;
}

StorePath FollowedPath(const StorePath& current, std::wstring_view text)
{
    const std::wstring_view whole = text;
    StorePath path;
    if (!text.empty() && text.front() != kSeparator)
        path = current;
    bool leavesRoot = false;
    while (!text.empty()) {
        const std::wstring_view step = TakeStep(text);
        if (IsName(step)) {
            path.emplace_back(step);
        } else if (step == L"..") {
            leavesRoot = leavesRoot || path.empty();
            if (!path.empty())
                path.pop_back();
        }
    }
    if (leavesRoot) {
        // The text leads above the root. Let the toolkit report this error.
        wxArrayString ignored;
        wxSplitPath(ignored, kSeparator + SectionOf(current) + kSeparator + wxString(std::wstring(whole)));
    }
    return path;
}

StoreGroup* FindStoreGroup(StoreGroup& root, const StorePath& path)
{
    StoreGroup* group = &root;
    for (const std::wstring& name : path) {
        const auto* const next = group->groups.Find(name);
        if (!next)
            return nullptr;
        group = next->get();
    }
    return group;
}

StoreGroup& MakeStoreGroup(StoreGroup& root, const StorePath& path)
{
    StoreGroup* group = &root;
    for (const std::wstring& name : path) {
        const auto* const next = group->groups.Find(name);
        group = next ? next->get() : group->groups.Add(name, std::make_unique<StoreGroup>(group, name)).get();
    }
    return *group;
}

}  // namespace fittings
