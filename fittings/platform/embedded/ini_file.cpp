#include <fittings/platform/embedded/ini_file.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <iterator>
#include <unordered_set>

#include <unistd.h>

#include <fittings/platform/embedded/ini_codec.h>
#include <fittings/platform/embedded/ini_text.h>

namespace {

// GKeyFile refuses a file whose first section says Encoding=something. It is given a first section of our own, whose
// name EncodeName() never writes.
constexpr std::string_view kFirstSection = "[%%]\n";

constexpr auto kFlags = G_KEY_FILE_KEEP_TRANSLATIONS;

// The last buffer that went out of use. A large block that comes and goes with every file makes the allocator merge
// and split all the small ones of the GKeyFile each time, at a fifth of the cost of loading it.
class SpareBuffer
{
public:
    ~SpareBuffer() { s_isGone = true; }

    static std::string Take() { return s_isGone ? std::string() : std::move(TheOne().m_buffer); }

    static void Give(std::string&& buffer)
    {
        // Objects that live to the end of the process outlive what is kept for a thread.
        if (!s_isGone && buffer.capacity() <= kMaxSize)
            TheOne().m_buffer = std::move(buffer);
    }

private:
    static constexpr std::size_t kMaxSize = std::size_t{1} << 18;

    static SpareBuffer& TheOne()
    {
        static thread_local SpareBuffer spare;
        return spare;
    }

    static thread_local bool s_isGone;
    std::string m_buffer;
};

thread_local bool SpareBuffer::s_isGone = false;

// A file of more lines holds no settings, and its keys would take all memory.
constexpr std::ptrdiff_t kMaxLines = 1'000'000;

bool HasTooManyLines(std::string_view text)
{
    return std::count(text.begin(), text.end(), '\n') > kMaxLines;
}

bool IsUtf16(std::string_view text)
{
    return text.substr(0, 2) == "\xFF\xFE" || text.substr(0, 2) == "\xFE\xFF";
}

std::string FirstSectionName()
{
    return std::string(kFirstSection.substr(1, kFirstSection.size() - 3));
}

// Takes what GKeyFile gives.
void Append(std::vector<std::string>& names, gchar** given)
{
    for (gchar** name = given; name && *name; ++name)
        names.emplace_back(*name);
    g_strfreev(given);
}

// The texts that the names stand for, each once.
std::vector<std::wstring> Decoded(const std::vector<std::string>& names)
{
    std::vector<std::wstring> texts;
    std::unordered_set<std::wstring> known;
    for (const std::string& name : names) {
        std::wstring text = fittings::DecodeName(name);
        if (known.insert(text).second)
            texts.push_back(std::move(text));
    }
    return texts;
}

bool SaveText(const std::string& path, const std::string& text)
{
    return !HasTooManyLines(text) && fittings::ReplaceFileBytes(path, text);
}

// Hides from GKeyFile, for as long as the object lives, the lines that it would not load.
class Mask
{
public:
    explicit Mask(std::string& buffer) : m_buffer(buffer) {}
    ~Mask()
    {
        for (const auto& [at, byte] : m_bytes)
            m_buffer[at] = byte;
    }
    Mask(const Mask&) = delete;
    Mask& operator=(const Mask&) = delete;

    void Put(std::size_t at, char byte)
    {
        m_bytes.emplace_back(at, m_buffer[at]);
        m_buffer[at] = byte;
    }

private:
    std::string& m_buffer;
    std::vector<std::pair<std::size_t, char>> m_bytes;
};

}  // namespace

CIniFile::CIniFile() : m_buffer(SpareBuffer::Take())
{
    Clear();
}

CIniFile::~CIniFile()
{
    SpareBuffer::Give(std::move(m_buffer));
}

void CIniFile::Clear()
{
    m_keys.reset(g_key_file_new());
    m_buffer = kFirstSection;
    m_otherSections.clear();
    m_earlyKeys.clear();
    m_otherSlots.clear();
    m_changes.clear();
    m_changed.clear();
    m_isNoText = false;
}

bool CIniFile::Load(const std::string& path)
{
    Clear();
    m_path = path;
    m_content = fittings::ReadFileBytes(path, m_buffer);
    if (HasTooManyLines(Text()))
        m_content.result = fittings::ReadResult::Failed;
    if (m_content.result == fittings::ReadResult::Read && ParseBuffer())
        return true;
    Clear();
    m_isNoText = m_content.result == fittings::ReadResult::Read;
    return false;
}

bool CIniFile::Refresh(const std::string& path, const std::vector<Change>& changes, std::uint64_t revision)
{
    const bool isSameStore = path == m_path && revision == m_revision;
    if (isSameStore && IsFresh())
        return false;
    CIniFile now;
    now.Load(path);
    // A read does not wait for the file to be filled: what stood there a moment ago still holds.
    if (isSameStore && now.m_content.IsEmptyForNow() && m_content.result == fittings::ReadResult::Read)
        return false;
    if (isSameStore && now.HasFailed() && HasFailed())
        return false;
    const bool isSame = isSameStore && now.HasFailed() == HasFailed() && m_changes.empty() && now.m_buffer == m_buffer;
    now.Apply(changes);
    now.m_revision = revision;
    *this = std::move(now);
    return !isSame;
}

bool CIniFile::IsFresh() const
{
    const auto identity = fittings::IdentityOf(m_path);
    if (!identity)
        return errno == ENOENT && m_content.result == fittings::ReadResult::Missing;
    return m_content.isSettled && m_content.identity == identity;
}

bool CIniFile::Parse(std::string_view text)
{
    Clear();
    m_buffer += text;
    if (ParseBuffer())
        return true;
    Clear();
    return false;
}

bool CIniFile::Save(const std::string& path) const
{
    if (path.empty() || (HasFailed() && path == m_path))
        return false;
    if (!m_isNoText)
        return SaveText(path, ChangedText());
    // What could not be read goes to another name, unless somebody has put a new file in its place.
    const auto identity = fittings::IdentityOf(path);
    if (!identity && errno != ENOENT)
        return false;
    if (!(identity == m_content.identity))
        return SaveText(path, ChangedText());
    if (m_changes.empty())
        return true;
    const std::string other = fittings::KeepUnderOtherName(path);
    if (other.empty())
        return false;
    if (SaveText(path, ChangedText()))
        return true;
    unlink(other.c_str());
    return false;
}

fittings::UpdateResult CIniFile::Update() const
{
    using fittings::UpdateResult;
    if (m_isNoText || HasFailed())
        return Save(m_path) ? UpdateResult::Saved : UpdateResult::Failed;
    std::string changed = ChangedText();
    if (HasTooManyLines(changed))
        return UpdateResult::Failed;
    const auto merge = [this](std::string_view expected, std::string_view put, std::string_view displaced) {
        auto text = Merged(expected, put, displaced);
        return text && HasTooManyLines(*text) ? std::nullopt : text;
    };
    return fittings::UpdateFileBytes(m_path, {m_content, Text(), std::move(changed), merge});
}

std::optional<std::wstring> CIniFile::Get(std::wstring_view section, std::wstring_view key) const
{
    const GText value = Find(section, key);
    if (!value)
        return std::nullopt;
    return fittings::DecodeValue(value.get());
}

bool CIniFile::Has(std::wstring_view section, std::wstring_view key, std::optional<std::wstring_view> text) const
{
    const GText value = Find(section, key);
    return value ? text && fittings::DecodesTo(value.get(), *text) : !text;
}

void CIniFile::Set(std::wstring_view section, std::wstring_view key, std::wstring_view value)
{
    const Slot names(fittings::EncodeName(section), fittings::EncodeName(key));
    const auto found = FindSlot(names);
    if (found && fittings::DecodesTo(Value(*found).get(), value))
        return;
    const Slot slot = found ? *found : NewSlot(names);
    if (!found && slot != names)
        m_otherSlots[names].push_back(slot);
    g_key_file_set_value(m_keys.get(), slot.first.c_str(), slot.second.c_str(), fittings::EncodeValue(value).c_str());
    NoteChange(slot);
}

void CIniFile::Delete(std::wstring_view section, std::wstring_view key)
{
    const Slot names(fittings::EncodeName(section), fittings::EncodeName(key));
    Remove(names);
    for (auto early = m_earlyKeys.begin(); section.empty() && early != m_earlyKeys.end();) {
        const bool isMeant = fittings::DecodeName(early->first) == key;
        if (isMeant)
            NoteChange({"", early->first});
        early = isMeant ? m_earlyKeys.erase(early) : std::next(early);
    }
    // A hand-written file may have the key under several names.
    const auto others = m_otherSlots.find(names);
    if (others == m_otherSlots.end())
        return;
    for (const Slot& slot : others->second)
        Remove(slot);
}

std::vector<std::wstring> CIniFile::SectionNames() const
{
    return Decoded(GroupNames());
}

std::vector<std::wstring> CIniFile::KeyNames(std::wstring_view section) const
{
    std::vector<std::string> keys;
    for (const std::string& group : GroupNames(section)) {
        std::vector<std::string> names;
        Append(names, g_key_file_get_keys(m_keys.get(), group.c_str(), nullptr, nullptr));
        // A key that stood there twice is still named when it has been removed.
        std::copy_if(names.begin(), names.end(), std::back_inserter(keys), [&](const std::string& key) {
            return g_key_file_has_key(m_keys.get(), group.c_str(), key.c_str(), nullptr);
        });
    }
    return Decoded(keys);
}

std::vector<std::string> CIniFile::GroupNames() const
{
    std::vector<std::string> names;
    Append(names, g_key_file_get_groups(m_keys.get(), nullptr));
    // The first section is ours, unless a person has given the same name to one.
    std::vector<std::string> keys;
    Append(keys, g_key_file_get_keys(m_keys.get(), FirstSectionName().c_str(), nullptr, nullptr));
    if (keys.empty())
        names.erase(std::remove(names.begin(), names.end(), FirstSectionName()), names.end());
    return names;
}

// Under its own name and the others that mean the same, in the order of the file.
std::vector<std::string> CIniFile::GroupNames(std::wstring_view section) const
{
    std::vector<std::string> names;
    const std::string name = fittings::EncodeName(section);
    if (m_otherSections.count(name) == 0) {
        if (g_key_file_has_group(m_keys.get(), name.c_str()))
            names.push_back(name);
        return names;
    }
    for (std::string& group : GroupNames()) {
        if (fittings::DecodeName(group) == section)
            names.push_back(std::move(group));
    }
    return names;
}

// False when there is nothing in the text that anybody could have meant as settings.
bool CIniFile::ParseBuffer()
{
    Mask mask(m_buffer);
    const std::size_t start = kFirstSection.size();
    if (fittings::ByteOrderMarkSize(Text()) > 0) {
        mask.Put(start, '#');
        mask.Put(start + 2, '\n');
    }
    fittings::IniLines lines(Text());
    const bool isText = !lines.HasNul() && !IsUtf16(Text());
    bool hasSection = false;
    std::string_view rawSection;
    std::string section;
    bool isOther = false;
    for (fittings::IniLine line; lines.Next(line);) {
        switch (line.kind) {
        case fittings::IniLineKind::Comment:
            break;
        case fittings::IniLineKind::Section:
            hasSection = true;
            rawSection = line.name;
            section = line.isPlainName ? std::string(line.name) : fittings::EncodeName(fittings::DecodeName(line.name));
            isOther = section != rawSection;
            if (isOther)
                m_otherSections[section].emplace_back(rawSection);
            break;
        case fittings::IniLineKind::Key:
            if (isOther || !line.isPlainName)
                NoteName(section, rawSection, line.name);
            break;
        case fittings::IniLineKind::EarlyKey:
            m_earlyKeys.emplace_back(line.name, Text().substr(line.value, line.end - line.value));
            mask.Put(start + line.begin, '#');
            break;
        case fittings::IniLineKind::BrokenSection:
        case fittings::IniLineKind::Unknown:
            mask.Put(start + line.begin, '#');
            break;
        }
    }
    return (hasSection || isText) &&
           g_key_file_load_from_data(m_keys.get(), m_buffer.data(), m_buffer.size(), kFlags, nullptr);
}

void CIniFile::NoteName(const std::string& section, std::string_view rawSection, std::string_view rawKey)
{
    std::string key = fittings::EncodeName(fittings::DecodeName(rawKey));
    if (section != rawSection || key != rawKey)
        m_otherSlots[{section, std::move(key)}].emplace_back(rawSection, rawKey);
}

CIniFile::GText CIniFile::Value(const Slot& slot) const
{
    return {g_key_file_get_value(m_keys.get(), slot.first.c_str(), slot.second.c_str(), nullptr), g_free};
}

CIniFile::GText CIniFile::Find(std::wstring_view section, std::wstring_view key) const
{
    const Slot names(fittings::EncodeName(section), fittings::EncodeName(key));
    GText value = Value(names);
    if (!value) {
        if (const auto slot = FindSlot(names))
            value = Value(*slot);
    }
    return value;
}

// Where the key stands: under the name that we write, or the last of those that mean the same.
std::optional<CIniFile::Slot> CIniFile::FindSlot(const Slot& names) const
{
    if (Value(names))
        return names;
    const auto others = m_otherSlots.find(names);
    if (others != m_otherSlots.end()) {
        for (auto slot = others->second.rbegin(); slot != others->second.rend(); ++slot) {
            if (Value(*slot))
                return *slot;
        }
    }
    return std::nullopt;
}

void CIniFile::Remove(const Slot& slot)
{
    if (g_key_file_remove_key(m_keys.get(), slot.first.c_str(), slot.second.c_str(), nullptr))
        NoteChange(slot);
}

// A new key joins its section also where that has another name than we would write.
CIniFile::Slot CIniFile::NewSlot(Slot names) const
{
    const auto others = m_otherSections.find(names.first);
    if (others != m_otherSections.end() && !g_key_file_has_group(m_keys.get(), names.first.c_str()))
        names.first = others->second.back();
    return names;
}

void CIniFile::NoteChange(const Slot& slot)
{
    if (m_changed.insert(slot.first + '\n' + slot.second).second)
        m_changes.push_back(slot);
}

std::string_view CIniFile::Text() const
{
    return std::string_view(m_buffer).substr(kFirstSection.size());
}

std::string CIniFile::ChangedText() const
{
    std::vector<fittings::IniEdit> edits;
    edits.reserve(m_changes.size());
    for (const Slot& slot : m_changes) {
        if (slot.first.empty()) {
            edits.push_back({"", slot.second, std::nullopt});
            continue;
        }
        if (slot.second.empty()) {
            const bool isThere = g_key_file_has_group(m_keys.get(), slot.first.c_str());
            edits.push_back({slot.first, "", isThere ? std::optional<std::string>("") : std::nullopt});
            continue;
        }
        const GText value = Value(slot);
        edits.push_back({slot.first, slot.second, value ? std::optional<std::string>(value.get()) : std::nullopt});
    }
    return edits.empty() ? std::string(Text()) : fittings::ApplyEdits(Text(), edits);
}
