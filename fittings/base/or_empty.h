#ifndef FITTINGS_BASE_OR_EMPTY_H_
#define FITTINGS_BASE_OR_EMPTY_H_

namespace fittings {

/// Returns the text, or an empty text for a null pointer.
inline const wchar_t* OrEmpty(const wchar_t* text)
{
    return text ? text : L"";
}

}  // namespace fittings

#endif
