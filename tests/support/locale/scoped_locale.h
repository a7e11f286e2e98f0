#ifndef FITTINGS_TESTS_SUPPORT_SCOPED_LOCALE_H_
#define FITTINGS_TESTS_SUPPORT_SCOPED_LOCALE_H_

#include <clocale>
#include <string>

/// Sets the process's locale while the object exists; fails the test when there is no such locale.
///
/// The constructor sets LOCPATH to the folder of the tests' locales, for child processes too. The destructor does not
/// restore LOCPATH.
///
/// These locales exist on every machine: de_DE.UTF-8 (decimal point ","), fr_FR.UTF-8 (thousands separator U+202F),
/// fr_FR.ISO-8859-1 (thousands separator 0xA0, one byte), he_IL.UTF-8 (text from right to left), ps_AF.UTF-8 (decimal
/// point U+066B), "C" and C.UTF-8. Other locales of the system may be missing, because LOCPATH hides the system's
/// archive of locales.
///
/// @code
/// const ScopedLocale german("de_DE.UTF-8");
///
/// // LC_CTYPE does not change. If it is the C locale, U+066B cannot be converted to a wide character.
/// const ScopedLocale pointAlone("ps_AF.UTF-8", LC_NUMERIC);
/// @endcode
class ScopedLocale
{
public:
    explicit ScopedLocale(const char* name, int category = LC_ALL);
    ~ScopedLocale();
    ScopedLocale(const ScopedLocale&) = delete;
    ScopedLocale& operator=(const ScopedLocale&) = delete;

private:
    const int m_category;
    const std::string m_before;
};

#endif
