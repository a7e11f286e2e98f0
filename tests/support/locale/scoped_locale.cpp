#include <tests/support/locale/scoped_locale.h>

#include <cstdlib>

#include <gtest/gtest.h>

ScopedLocale::ScopedLocale(const char* name, int category)
    : m_category(category), m_before(setlocale(category, nullptr))
{
    setenv("LOCPATH", TEST_LOCALES, 1);
    if (!setlocale(category, name))
        ADD_FAILURE() << "there is no locale " << name;
}

ScopedLocale::~ScopedLocale()
{
    setlocale(m_category, m_before.c_str());
}
