#ifndef FITTINGS_PLATFORM_TEXT_ARGUMENT_H_
#define FITTINGS_PLATFORM_TEXT_ARGUMENT_H_

#include <cstddef>
#include <string>
#include <type_traits>

#include <fittings/platform/file_util_ex.h>

namespace fittings {

/// Whether a type is wide text: wchar_t pointers and literals, std::wstring, wxString, and what else converts to these.
template <typename Text>
constexpr bool kIsWideText =
    std::is_convertible_v<const Text&, const wchar_t*> || std::is_convertible_v<const Text&, std::wstring>;

/// Whether a type is narrow text: char pointers and literals, std::string, and what else converts to these. The
/// toolkit's texts are wide, and narrow too where it converts them to `const char*` unasked.
template <typename Text>
constexpr bool kIsNarrowText =
    std::is_convertible_v<const Text&, const char*> || std::is_convertible_v<const Text&, std::string>;

/// Whether all texts can be narrow, and one is nothing else.
template <typename... Texts>
constexpr bool kAreNarrowTexts = (kIsNarrowText<Texts> && ...) && !(kIsWideText<Texts> && ...);

/// A text of any kind, as a function that takes a `const wchar_t*` is given it: for the length of that call.
///
/// Narrow text is taken as UTF-8, whatever the locale, as file_util_ex::ConvertFromUTF8W() reads it. A text ends at its
/// first null character, as behind a pointer; a null pointer stays one.
class TextArgument
{
public:
    /// Refers to @a text, or to a converted copy.
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

/// Returns a text of any kind in UTF-8, and narrow text as it is; a null pointer gives an empty one.
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

/// Chooses a function for @a count texts of any kind, where the function of `const wchar_t*` beside it cannot be
/// called: all calls that compile without the chosen one mean what they mean without it.
template <std::size_t count, typename... Texts>
using IfTexts = std::enable_if_t<sizeof...(Texts) == count && ((kIsWideText<Texts> || kIsNarrowText<Texts>)&&...) &&
                                     !(std::is_convertible_v<const Texts&, const wchar_t*> && ...),
                                 int>;

/// Chooses a function for a text of any kind, where the function of @a Taken beside it cannot be called.
template <typename Taken, typename Text>
using IfNot =
    std::enable_if_t<(kIsWideText<Text> || kIsNarrowText<Text>)&&!std::is_convertible_v<const Text&, Taken>, int>;

/// As IfTexts, where there is a function of `const char*` too: chooses for mixed texts, and for those that suit both.
template <typename... Texts>
using IfMixedTexts =
    std::enable_if_t<((kIsWideText<Texts> || kIsNarrowText<Texts>)&&...) &&
                         !((std::is_convertible_v<const Texts&, const wchar_t*> && ...) &&
                           !(kIsNarrowText<Texts> && ...)) &&
                         !((std::is_convertible_v<const Texts&, const char*> && !kIsWideText<Texts>)&&...),
                     int>;

}  // namespace fittings

#endif
