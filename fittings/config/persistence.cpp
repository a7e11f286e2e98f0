#include <fittings/config/persistence.h>

#include <climits>
#include <map>

#include <wx/app.h>

#include <fittings/config/first_showing.h>
#include <fittings/config/persistence/place_when_unmaximized.h>
#include <fittings/config/persistence/window_record.h>
#include <fittings/config/store_config.h>
#include <fittings/config/window_geometry.h>

namespace {

// The toolkit's names for the fields of a frame or dialog.
constexpr char kX[] = "x";
constexpr char kY[] = "y";
constexpr char kWidth[] = "w";
constexpr char kHeight[] = "h";
constexpr char kMaximized[] = "Maximized";
constexpr char kDecorations[] = "decor_";

wxWindow* WindowOf(const wxPersistentObject& who)
{
    if (dynamic_cast<const wxPersistentWindowBase*>(&who))
        return static_cast<wxWindow*>(who.GetObject());
    const auto* const aui = dynamic_cast<const wxPersistentAui*>(&who);
    return aui && aui->Get() ? aui->Get()->GetManagedWindow() : nullptr;
}

wxTopLevelWindow* TopLevelOf(const wxPersistentObject& who)
{
    const auto* const topLevel = dynamic_cast<const wxPersistentTLW*>(&who);
    return topLevel ? topLevel->Get() : nullptr;
}

// Returns one of a rectangle's four numbers by its name; null for any other name.
const int* Field(const wxRect& rect, const wxString& name)
{
    if (name == kX)
        return &rect.x;
    if (name == kY)
        return &rect.y;
    if (name == kWidth)
        return &rect.width;
    return name == kHeight ? &rect.height : nullptr;
}

// Returns whether a stored number can be passed to the toolkit as a value of @a who. The toolkit would assert on a
// number that does not fit an int. For a splitter or data view, the number must also be a place or size that a window
// can have: the toolkit does not check this.
bool IsPossible(long number, const wxPersistentObject& who)
{
    if (dynamic_cast<const wxPersistentSplitter*>(&who) || dynamic_cast<const wxPersistentDataViewCtrl*>(&who))
        return number >= -1 && number == fittings::ToPixels(number);
    return number >= INT_MIN && number <= INT_MAX;
}

}  // namespace

// The windows whose values are collected, and whether a save is due.
class wxStorePersistenceManager::Windows
{
public:
    explicit Windows(wxStorePersistenceManager& manager) : m_manager(manager) {}

    fittings::WindowRecord& RecordOf(wxWindow& window)
    {
        std::weak_ptr<fittings::WindowRecord>& known = m_records[&window];
        std::shared_ptr<fittings::WindowRecord> record = known.lock();
        if (!record) {
            record = fittings::WindowRecord::Attach(window, [this, key = &window] {
                m_records.erase(key);
                m_manager.Flush();
            });
            known = record;
        }
        return *record;
    }

    // Makes sure that the values of the object are saved when its top-level window is destroyed.
    void Keep(const wxPersistentObject& who)
    {
        wxWindow* const window = WindowOf(who);
        if (wxWindow* const topLevel = window ? wxGetTopLevelParent(window) : nullptr)
            RecordOf(*topLevel);
    }

    const fittings::WindowRecord* Find(const wxWindow& window) const
    {
        const auto found = m_records.find(&window);
        return found == m_records.end() ? nullptr : found->second.lock().get();
    }

    // Saves the collected values on the next turn of the event loop. If the program ends before that turn, the values
    // are saved when the window of @a who or one of its parents is destroyed.
    void SaveSoon(const wxPersistentObject& who)
    {
        // The values are saved when a window with a record is destroyed. Look for the nearest window that has one. If
        // there is none, attach a record to the outermost parent and not to the window itself, which may be partly
        // destroyed by now.
        wxWindow* outermost = WindowOf(who);
        for (wxWindow* window = outermost; window; window = window->GetParent()) {
            outermost = window;
            if (Find(*window))
                break;
        }
        if (outermost)
            RecordOf(*outermost);
        if (!wxTheApp || m_isDue)
            return;
        m_isDue = true;
        wxTheApp->CallAfter([this] {
            m_isDue = false;
            m_manager.Flush();
        });
    }

private:
    wxStorePersistenceManager& m_manager;
    std::map<const wxWindow*, std::weak_ptr<fittings::WindowRecord>> m_records;
    bool m_isDue = false;
};

wxStorePersistenceManager::wxStorePersistenceManager() : m_windows(std::make_unique<Windows>(*this)) {}

wxStorePersistenceManager::~wxStorePersistenceManager() = default;

wxStorePersistenceManager& wxStorePersistenceManager::Install()
{
    // Never destroyed: registered windows and AUI managers may live longer than the static objects of the program.
    static auto* const manager = new wxStorePersistenceManager;
    Set(*manager);
    return *manager;
}

bool wxStorePersistenceManager::Flush()
{
    return !m_config || m_config->Flush();
}

wxConfigBase* wxStorePersistenceManager::GetConfig() const
{
    if (!m_config) {
        m_config = std::make_unique<wxStoreConfig>();
        // Expand nothing: a "$" in the label of a tree's item is not a variable.
        m_config->SetExpandEnvVars(false);
    }
    return m_config.get();
}

bool wxStorePersistenceManager::SaveValue(const wxPersistentObject& who, const wxString& name, bool value)
{
    m_windows->SaveSoon(who);
    return wxPersistenceManager::SaveValue(who, name, value);
}

bool wxStorePersistenceManager::SaveValue(const wxPersistentObject& who, const wxString& name, int value)
{
    m_windows->SaveSoon(who);
    if (wxTopLevelWindow* const window = TopLevelOf(who)) {
        const fittings::WindowRecord& record = m_windows->RecordOf(*window);
        if (name == kMaximized)
            value = record.IsMaximized(*window);
        if (Field(wxRect(), name) && record.IsOutOfItsPlace(*window)) {
            // If the normal place is unknown, keep the stored one.
            if (!record.NormalRect())
                return true;
            value = *Field(*record.NormalRect(), name);
        }
    }
    return wxPersistenceManager::SaveValue(who, name, value);
}

bool wxStorePersistenceManager::SaveValue(const wxPersistentObject& who, const wxString& name, long value)
{
    m_windows->SaveSoon(who);
    return wxPersistenceManager::SaveValue(who, name, value);
}

bool wxStorePersistenceManager::SaveValue(const wxPersistentObject& who, const wxString& name, wxString value)
{
    m_windows->SaveSoon(who);
    return wxPersistenceManager::SaveValue(who, name, value);
}

bool wxStorePersistenceManager::RestoreValue(const wxPersistentObject& who, const wxString& name, bool* value)
{
    // Do not pass on any number other than zero and one: the toolkit would report it to the user as an error.
    long number = 0;
    if (!RestoreValue(who, name, &number) || (number != 0 && number != 1))
        return false;
    *value = number == 1;
    return true;
}

bool wxStorePersistenceManager::RestoreValue(const wxPersistentObject& who, const wxString& name, int* value)
{
    if (wxTopLevelWindow* const window = TopLevelOf(who)) {
        if (name == kX) {
            const bool isRestored = RestorePlace(*window, who);
            *value = window->GetPosition().x;
            return isRestored;
        }
        // The call for "x" has restored the whole place. Return the current y, so that the toolkit does not change it.
        if (name == kY) {
            *value = window->GetPosition().y;
            return true;
        }
        if (Field(wxRect(), name) || name.StartsWith(kDecorations))
            return false;
    }
    long number = 0;
    if (!RestoreValue(who, name, &number) || !IsPossible(number, who))
        return false;
    *value = static_cast<int>(number);
    wxTopLevelWindow* const maximized = name == kMaximized && number != 0 ? TopLevelOf(who) : nullptr;
    if (maximized && m_windows->RecordOf(*maximized).NormalRect())
        fittings::PlaceWhenUnmaximized(*maximized, *m_windows->RecordOf(*maximized).NormalRect());
    return true;
}

bool wxStorePersistenceManager::RestoreValue(const wxPersistentObject& who, const wxString& name, long* value)
{
    m_windows->Keep(who);
    return wxPersistenceManager::RestoreValue(who, name, value);
}

bool wxStorePersistenceManager::RestoreValue(const wxPersistentObject& who, const wxString& name, wxString* value)
{
    m_windows->Keep(who);
    return wxPersistenceManager::RestoreValue(who, name, value);
}

bool wxStorePersistenceManager::RestorePlace(wxTopLevelWindow& window, const wxPersistentObject& who)
{
    fittings::ShowWithoutDelay(window);
    long x = 0;
    long y = 0;
    long width = 0;
    long height = 0;
    const bool isRestored =
        RestoreValue(who, kX, &x) && RestoreValue(who, kY, &y) && RestoreValue(who, kWidth, &width) &&
        RestoreValue(who, kHeight, &height) &&
        fittings::RestoreGeometry(window, wxRect(fittings::ToPixels(x), fittings::ToPixels(y),
                                                 fittings::ToPixels(width), fittings::ToPixels(height)));
    m_windows->RecordOf(window).Follow(window);
    return isRestored;
}
