#ifndef FITTINGS_PLATFORM_EMBEDDED_STORE_DEFAULT_STORE_H_
#define FITTINGS_PLATFORM_EMBEDDED_STORE_DEFAULT_STORE_H_

#include <mutex>
#include <string>
#include <utility>
#include <vector>

#include <fittings/platform/embedded/store/ini_file.h>

namespace fittings {

/// The settings that all processes of the application share. Callable from any thread.
class DefaultStore
{
public:
    static DefaultStore& Instance();

    /// Returns the path of the settings file, which is in the current user data directory.
    static std::wstring Path();

    /// Calls @a read with the stored settings and returns the result of @a read.
    template <typename Read>
    auto With(const Read& read)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_file.Refresh(Path());
        return read(std::as_const(m_file));
    }

    /// Makes all changes with one save. Returns false when they could not be saved; none of them is then stored.
    bool Store(const std::vector<SettingsChange>& changes);

private:
    std::mutex m_mutex;  ///< Guards m_file.
    CIniFile m_file;
};

}  // namespace fittings

#endif
