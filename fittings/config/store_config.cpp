#include <fittings/config/store_config.h>

#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include <wx/app.h>
#include <wx/base64.h>

#include <fittings/config/store_model.h>
#include <fittings/platform/file_util_ex.h>
#include <fittings/platform/std_file_paths.h>

using fittings::FindStoreGroup;
using fittings::FollowedPath;
using fittings::kMaxStoreDepth;
using fittings::MakeStoreGroup;
using fittings::StoreGroup;
using fittings::StoreModel;
using fittings::StorePath;

namespace {

constexpr wchar_t kSeparator = wxCONFIG_PATH_SEPARATOR;

// ImportFrom() records in this section that it has copied a configuration. The name ends with a separator, so the
// section is not a group, and no enumeration of groups finds it.
constexpr const wchar_t* kImportSection = L"wxStoreConfig/";
constexpr const wchar_t* kImportKey = L"Imported";

std::wstring PathOfFile(const wxString& file)
{
    const std::wstring folder = file_util_ex::MakePath(std_file_paths::GetUserDataDir(), L"ui_config");
    return file_util_ex::MakePath(folder, file.ToStdWstring());
}

wxString NameOfApp()
{
    return wxAppConsole::GetInstance() ? wxAppConsole::GetInstance()->GetAppName() : wxString();
}

wxString VendorOfApp()
{
    return wxAppConsole::GetInstance() ? wxAppConsole::GetInstance()->GetVendorName() : wxString();
}

// Returns whether a text can be stored. The store's texts have no null characters.
bool CanBeStored(std::wstring_view text)
{
    return text.find(L'\0') == std::wstring_view::npos;
}

bool IsGroupName(const std::wstring& name)
{
    return !name.empty() && name != L"." && name != L".." && name.find(kSeparator) == std::wstring::npos &&
           CanBeStored(name);
}

wxString ShownPath(const StorePath& path)
{
    return path.empty() ? wxString() : wxString(kSeparator + fittings::SectionOf(path));
}

// Views a wxString as a std::wstring_view. Valid until the wxString changes.
class TextView
{
public:
    explicit TextView(const wxString& text) : m_buffer(text.wc_str()), m_view(m_buffer, text.length()) {}

    operator std::wstring_view() const { return m_view; }

private:
    const decltype(std::declval<const wxString&>().wc_str()) m_buffer;
    const std::wstring_view m_view;
};

// The group and the name in the path of an entry. Everything up to the last separator is the path of the group.
struct EntryPath
{
    std::wstring_view group;
    std::wstring_view name;

    explicit EntryPath(std::wstring_view path)
    {
        const std::size_t last = path.rfind(kSeparator);
        const std::size_t length = last == std::wstring_view::npos ? 0 : last + 1;
        group = path.substr(0, length);
        name = path.substr(length);
    }
};

const fittings::StoreEntry* FindEntry(StoreModel& model, const wxString& path)
{
    model.Refresh();
    const TextView text(path);
    const EntryPath entry(text);
    StoreGroup* const group = model.Find(entry.group);
    return group ? group->entries.Find(entry.name) : nullptr;
}

// Returns whether the entry already has the value @a text in the model. Another process may have changed the stored
// value since the last Refresh().
bool HasText(StoreModel& model, const EntryPath& entry, std::wstring_view text)
{
    StoreGroup* const group = model.Find(entry.group);
    const fittings::StoreEntry* const found = group ? group->entries.Find(entry.name) : nullptr;
    return found && found->text == text;
}

StoreGroup* FindGroup(StoreModel& model, const wxString& path)
{
    model.Refresh();
    return FindStoreGroup(model.Root(), FollowedPath(model.CurrentPath(), TextView(path)));
}

template <typename List>
bool GetNext(const List& list, wxString& name, long& place)
{
    const auto* const item = list.Next(place);
    if (item)
        name = item->name;
    return item != nullptr;
}

std::size_t CountEntries(const StoreGroup& group)
{
    std::size_t count = group.entries.Size();
    long place = 0;
    while (const auto* const inner = group.groups.Next(place))
        count += CountEntries(*inner->value);
    return count;
}

std::size_t CountGroups(const StoreGroup& group)
{
    std::size_t count = group.groups.Size();
    long place = 0;
    while (const auto* const inner = group.groups.Next(place))
        count += CountGroups(*inner->value);
    return count;
}

// Copies the groups and entries of another configuration into the model, and does not expand variables in the texts.
// The destructor restores the path and the options of that configuration.
class Importer
{
public:
    Importer(wxConfigBase& from, StoreModel& to)
        : m_from(from), m_to(to), m_path(from.GetPath()), m_expands(from.IsExpandingEnvVars()),
          m_records(from.IsRecordingDefaults())
    {
        m_from.SetExpandEnvVars(false);
        m_from.SetRecordDefaults(false);
    }

    ~Importer()
    {
        m_from.SetPath(m_path.empty() ? wxString(kSeparator) : m_path);
        m_from.SetExpandEnvVars(m_expands);
        m_from.SetRecordDefaults(m_records);
    }
    Importer(const Importer&) = delete;
    Importer& operator=(const Importer&) = delete;

    void Import(const StorePath& path)
    {
        m_from.SetPath(kSeparator + fittings::SectionOf(path));
        StoreGroup& group = MakeStoreGroup(m_to.Root(), path);
        if (!path.empty())
            m_to.AddSection(group);
        wxString name;
        wxString value;
        long place = 0;
        for (bool more = m_from.GetFirstEntry(name, place); more; more = m_from.GetNextEntry(name, place)) {
            const std::wstring& key = name.ToStdWstring();
            if (!group.entries.Find(key) && m_from.Read(name, &value) && CanBeStored(key + value.ToStdWstring()))
                m_to.Set(group, key, value.ToStdWstring());
        }
        for (bool more = m_from.GetFirstGroup(name, place); more; more = m_from.GetNextGroup(name, place)) {
            StorePath inner = path;
            inner.push_back(name.ToStdWstring());
            if (!IsGroupName(inner.back()) || inner.size() > kMaxStoreDepth)
                continue;
            Import(inner);
            m_from.SetPath(kSeparator + fittings::SectionOf(path));
        }
    }

private:
    wxConfigBase& m_from;
    StoreModel& m_to;
    const wxString m_path;
    const bool m_expands;
    const bool m_records;
};

}  // namespace

wxStoreConfig::wxStoreConfig()
    : wxConfigBase(NameOfApp(), VendorOfApp()), m_model(std::make_unique<StoreModel>(std::nullopt))
{
}

wxStoreConfig::wxStoreConfig(const wxString& file)
    : wxConfigBase(NameOfApp(), VendorOfApp()), m_model(std::make_unique<StoreModel>(PathOfFile(file)))
{
}

wxStoreConfig::~wxStoreConfig()
{
    m_model->Save();
}

bool wxStoreConfig::ImportFrom(wxConfigBase& old)
{
    m_model->Refresh();
    if (&old != this && m_model->HiddenText(kImportSection, kImportKey).empty()) {
        Importer(old, *m_model).Import({});
        m_model->SetHidden(kImportSection, kImportKey, L"1");
    }
    return m_model->Save();
}

void wxStoreConfig::SetPath(const wxString& path)
{
    m_model->Refresh();
    const std::wstring& text = path.ToStdWstring();
    const StorePath followed = FollowedPath(m_model->CurrentPath(), text);
    if (followed.size() > kMaxStoreDepth || !CanBeStored(text))
        return;
    m_model->SetCurrent(followed);
    m_path = ShownPath(followed);
}

const wxString& wxStoreConfig::GetPath() const
{
    return m_path;
}

bool wxStoreConfig::GetFirstGroup(wxString& name, long& place) const
{
    place = 0;
    return GetNextGroup(name, place);
}

bool wxStoreConfig::GetNextGroup(wxString& name, long& place) const
{
    m_model->Refresh();
    return GetNext(m_model->Current().groups, name, place);
}

bool wxStoreConfig::GetFirstEntry(wxString& name, long& place) const
{
    place = 0;
    return GetNextEntry(name, place);
}

bool wxStoreConfig::GetNextEntry(wxString& name, long& place) const
{
    m_model->Refresh();
    return GetNext(m_model->Current().entries, name, place);
}

size_t wxStoreConfig::GetNumberOfEntries(bool recursive) const
{
    m_model->Refresh();
    return recursive ? CountEntries(m_model->Current()) : m_model->Current().entries.Size();
}

size_t wxStoreConfig::GetNumberOfGroups(bool recursive) const
{
    m_model->Refresh();
    return recursive ? CountGroups(m_model->Current()) : m_model->Current().groups.Size();
}

bool wxStoreConfig::HasGroup(const wxString& path) const
{
    return !path.empty() && FindGroup(*m_model, path);
}

bool wxStoreConfig::HasEntry(const wxString& path) const
{
    return FindEntry(*m_model, path) != nullptr;
}

bool wxStoreConfig::DoReadString(const wxString& path, wxString* value) const
{
    const fittings::StoreEntry* const found = FindEntry(*m_model, path);
    if (found)
        *value = found->text;
    return found != nullptr;
}

bool wxStoreConfig::DoReadLong(const wxString& path, long* value) const
{
    wxString text;
    // Allow blanks after the number.
    return Read(path, &text) && text.Trim().ToLong(value);
}

bool wxStoreConfig::DoReadBinary(const wxString& path, wxMemoryBuffer* value) const
{
    wxCHECK_MSG(value, false, "no buffer");
    wxString text;
    if (!Read(path, &text))
        return false;
    *value = wxBase64Decode(text);
    return true;
}

bool wxStoreConfig::DoWriteString(const wxString& path, const wxString& value)
{
    const TextView pathText(path);
    const TextView text(value);
    const EntryPath entry(pathText);
    if (!CanBeStored(pathText) || !CanBeStored(text))
        return false;
    // Refresh if the text seems to be stored already: another process may have changed it.
    if (!m_model->IsLoaded() || HasText(*m_model, entry, text))
        m_model->Refresh();
    StoreGroup* group = m_model->Find(entry.group);
    if (!group) {
        const StorePath followed = FollowedPath(m_model->CurrentPath(), entry.group);
        if (followed.size() > kMaxStoreDepth)
            return false;
        group = &MakeStoreGroup(m_model->Root(), followed);
    }
    if (!entry.name.empty()) {
        m_model->Set(*group, entry.name, text);
        return true;
    }
    // The path names a group and no entry. As in wxFileConfig, writing an empty text to such a path makes the group.
    wxCHECK_MSG(value.empty(), false, "a group has no value");
    if (group->parent)
        m_model->AddSection(*group);
    return true;
}

bool wxStoreConfig::DoWriteLong(const wxString& path, long value)
{
    return Write(path, wxString::Format("%ld", value));
}

bool wxStoreConfig::DoWriteBinary(const wxString& path, const wxMemoryBuffer& value)
{
    return Write(path, wxBase64Encode(value));
}

bool wxStoreConfig::RenameEntry(const wxString& oldName, const wxString& newName)
{
    m_model->Refresh();
    StoreGroup& group = m_model->Current();
    const std::wstring& from = oldName.ToStdWstring();
    const std::wstring& to = newName.ToStdWstring();
    const fittings::StoreEntry* const entry = group.entries.Find(from);
    if (!entry || group.entries.Find(to) || to.empty() || to.find(kSeparator) != std::wstring::npos || !CanBeStored(to))
        return false;
    m_model->Set(group, to, std::wstring(entry->text));
    m_model->Remove(group, from);
    return true;
}

bool wxStoreConfig::RenameGroup(const wxString& oldName, const wxString& newName)
{
    m_model->Refresh();
    StoreGroup& parent = m_model->Current();
    const std::wstring& to = newName.ToStdWstring();
    auto* const group = parent.groups.Find(oldName.ToStdWstring());
    if (!group || parent.groups.Find(to) || !IsGroupName(to))
        return false;
    m_model->RenameGroup(**group, to);
    return true;
}

bool wxStoreConfig::DeleteEntry(const wxString& path, bool deleteGroupIfEmpty)
{
    m_model->Refresh();
    const TextView text(path);
    const EntryPath entry(text);
    StoreGroup* const group = m_model->Find(entry.group);
    if (!group || !group->entries.Find(entry.name))
        return false;
    m_model->Remove(*group, entry.name);
    if (deleteGroupIfEmpty && group->parent && group->IsEmpty())
        m_model->RemoveGroup(*group);
    else if (deleteGroupIfEmpty && !group->parent && group->entries.Size() == 0)
        m_model->DropSection(*group);
    m_path = ShownPath(m_model->CurrentPath());
    return true;
}

bool wxStoreConfig::DeleteGroup(const wxString& path)
{
    StoreGroup* const group = path.empty() ? nullptr : FindGroup(*m_model, path);
    if (!group || !group->parent)
        return false;
    m_model->RemoveGroup(*group);
    m_path = ShownPath(m_model->CurrentPath());
    return true;
}

bool wxStoreConfig::DeleteAll()
{
    m_model->Refresh();
    m_model->RemoveAll();
    m_path.clear();
    return true;
}

bool wxStoreConfig::Flush(bool)
{
    return m_model->Save();
}
