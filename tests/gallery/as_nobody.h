#ifndef FITTINGS_TESTS_GALLERY_AS_NOBODY_H_
#define FITTINGS_TESTS_GALLERY_AS_NOBODY_H_

#include <unistd.h>

/// Takes root's rights to read everything away for as long as the object lives; other users lack them anyway.
class AsNobody
{
public:
    AsNobody() : m_user(geteuid())
    {
        if (m_user == 0 && seteuid(65534) != 0)
            _exit(99);
    }
    ~AsNobody()
    {
        if (seteuid(m_user) != 0)
            _exit(99);
    }
    AsNobody(const AsNobody&) = delete;
    AsNobody& operator=(const AsNobody&) = delete;

private:
    uid_t m_user;
};

#endif
