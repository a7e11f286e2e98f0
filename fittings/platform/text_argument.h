#ifndef FITTINGS_PLATFORM_TEXT_ARGUMENT_H_
#define FITTINGS_PLATFORM_TEXT_ARGUMENT_H_

#include <cstddef>
#include <string>
#include <type_traits>

#include <fittings/platform/file_util_ex.h>

namespace fittings {

/// Whether a type is wide text: wchar_t pointers and literals, std::wstring, wxString, and types that convert to these.
template <typename Text>
constexpr bool kIsWideText =
    std::is_convertible_v<const Text&, const wchar_t*> || std::is_convertible_v<const Text&, std::wstring>;

/// Whether a type is narrow text: char pointers and literals, std::string, and types that convert to these. A wxString
/// is wide text; it is narrow text too if it converts to `const char*` implicitly.
template <typename Text>
constexpr bool kIsNarrowText =
    std::is_convertible_v<const Text&, const char*> || std::is_convertible_v<const Text&, std::string>;

/// Whether all types are narrow text and at least one of them is not wide text.
template <typename... Texts>
constexpr bool kAreNarrowTexts = (kIsNarrowText<Texts> && ...) && !(kIsWideText<Texts> && ...);

/// Passes a text of any kind to a function that takes a `const wchar_t*`. The pointer is valid while both the text and
/// this object exist.
///
/// file_util_ex::ConvertFromUTF8W() converts narrow text, which is UTF-8 whatever the locale. A text ends at its first
/// null character. A null pointer stays null.
class TextArgument
{
public:
    /// Points to @a text itself if it converts to `const wchar_t*`, otherwise to a copy.
    template <typename Text>
    explicit TextArgument(const Text& text)
    {
        if constexpr (std::is_convertible_v<const Text&, const wchar_t*>) {
            m_text = text;
        } else if constexpr (std::is_convertible_v<const Text&, const char*>) {
            if (const char* narrow = text)
                Keep(file_util_ex::ConvertFromUTF8W(narrow));
        } else if constexpr (std::is_convertible_v<const Text&, std::wstring>) {
            Keep(text);
        } else {
            Keep(file_util_ex::ConvertFromUTF8W(text));
        }
    }

    TextArgument(const TextArgument&) = delete;
    TextArgument& operator=(const TextArgument&) = delete;

    operator const wchar_t*() const { return m_text; }  ///< The text; null for a null pointer.

private:
    void Keep(const std::wstring& converted)
    {
        m_converted = converted;
        m_text = m_converted.c_str();
    }

    std::wstring m_converted;
    const wchar_t* m_text = nullptr;
};

/// Returns wide text in UTF-8, narrow text as it is, and an empty text for a null pointer.
template <typename Text>
std::string NarrowText(const Text& text)
{
    if constexpr (kIsWideText<Text>) {
        const TextArgument wide(text);
        return wide ? file_util_ex::ConvertToUTF8(static_cast<const wchar_t*>(wide)) : std::string();
    } else if constexpr (std::is_convertible_v<const Text&, const char*>) {
        const char* narrow = text;
        return narrow ? narrow : "";
    } else {
        return text;
    }
}

/// Enables a function for @a count texts of any kind if the overload for `const wchar_t*` cannot be called. So every
/// call that compiles without the enabled function keeps its meaning.
template <std::size_t count, typename... Texts>
using IfTexts = std::enable_if_t<sizeof...(Texts) == count && ((kIsWideText<Texts> || kIsNarrowText<Texts>)&&...) &&
                                     !(std::is_convertible_v<const Texts&, const wchar_t*> && ...),
                                 int>;

/// Enables a function for a text of any kind if the overload for @a Taken cannot be called.
template <typename Taken, typename Text>
using IfNot =
    std::enable_if_t<(kIsWideText<Text> || kIsNarrowText<Text>)&&!std::is_convertible_v<const Text&, Taken>, int>;

/// Like IfTexts, for a function that has overloads for `const wchar_t*` and for `const char*`. Enables the function for
/// texts of any kind, except when the compiler already chooses the right overload:
/// - the overload for `const wchar_t*` if all texts convert to this type and at least one of them is not narrow text;
/// - the overload for `const char*` if all texts convert to this type and none of them is wide text.
template <typename... Texts>
using IfMixedTexts =
    std::enable_if_t<((kIsWideText<Texts> || kIsNarrowText<Texts>)&&...) &&
                         !((std::is_convertible_v<const Texts&, const wchar_t*> && ...) &&
                           !(kIsNarrowText<Texts> && ...)) &&
                         !((std::is_convertible_v<const Texts&, const char*> && !kIsWideText<Texts>)&&...),
                     int>;

}  // namespace fittings

#endif
