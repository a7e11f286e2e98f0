#ifndef FITTINGS_GALLERY_FOLDERS_NATIVE_TEXT_H_
#define FITTINGS_GALLERY_FOLDERS_NATIVE_TEXT_H_

#include <cstdint>
#include <string>

#include <wx/string.h>

#include <fittings/numedit/number_format.h>

namespace gallery {

/// @name File names
///
/// A file name is bytes in no particular encoding. Files are opened by these bytes. Texts made from the bytes are for
/// display and for the settings.
/// @{

/// Returns a name or path for display: bytes that are not UTF-8 become U+FFFD, control characters become visible
/// symbols.
wxString DisplayText(const std::string& bytes);

/// Returns a path as a text that PathFromText() turns back into the same bytes. "%", "|", the control characters of
/// ASCII, and bytes that are not UTF-8 are percent-encoded; the rest stays as it is.
std::wstring TextFromPath(const std::string& path);
std::string PathFromText(const std::wstring& text);

/// Returns the bytes of a path that was typed or chosen in a dialog.
std::string PathFromDialog(const wxString& path);

/// @}
/// @name Numbers for people, in the current locale
/// @{

/// Returns a text such as "1.2 kB".
wxString HumanSize(std::uint64_t bytes);

/// Returns a text such as "1.2 kB (1,234 bytes)"; below 1000 bytes, a text such as "999 bytes".
wxString ExactSize(std::uint64_t bytes);

/// Returns the locale's format with grouped digits. If the locale has no separator, a no-break space is used.
CNumberFormat GroupingFormat();

/// Returns a text such as "171,661", with the separator of GroupingFormat().
wxString GroupedNumber(std::uint64_t number);

/// Returns a text such as "2026-03-14 09:26", in local time.
wxString HumanTime(std::int64_t secondsSinceEpoch);

/// Returns a text such as "1 folder" or "2 folders".
wxString Counted(std::size_t count, const wxString& one, const wxString& many);

/// @}

}  // namespace gallery

#endif
