#ifndef FITTINGS_BASE_STD_STR_H_
#define FITTINGS_BASE_STD_STR_H_

#include <string>
#include <utility>

/// A std::basic_string that accepts null pointers: constructed or assigned from a null pointer, it is empty. It has all
/// the constructors of std::basic_string.
///
/// As with std::basic_string, the assigned pointer may point into the string's own buffer. The destructor is not
/// virtual: do not delete an object through a pointer to its base class.
template <typename CharT>
class CStdStr : public std::basic_string<CharT>
{
public:
    using Base = std::basic_string<CharT>;  ///< The base class, which copies and moves are made from.

    using Base::Base;  // the constructors below hide inherited ones with the same parameters

    CStdStr() = default;
    CStdStr(const CharT* text) : Base(text ? Base(text) : Base()) {}  ///< Copies the text; null counts as empty.
    CStdStr(const Base& text) : Base(text) {}                         ///< Copies the text.
    CStdStr(Base&& text) noexcept : Base(std::move(text)) {}          ///< Moves the text.

    /// Copies the text; null counts as empty.
    CStdStr& operator=(const CharT* text)
    {
        if (text)
            this->assign(text);
        else
            this->clear();
        return *this;
    }
};

#endif
