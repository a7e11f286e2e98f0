#ifndef FITTINGS_TESTS_SUPPORT_PROCESS_AS_NOBODY_H_
#define FITTINGS_TESTS_SUPPORT_PROCESS_AS_NOBODY_H_

#include <gtest/gtest.h>
#include <unistd.h>

/// Takes away root's right to read and write every file while the object exists. For other users, who do not have this
/// right, nothing changes.
class AsNobody
{
public:
    AsNobody()
    {
        if (m_user == 0 && seteuid(65534) != 0)
            ADD_FAILURE() << "cannot become another user";
    }
    ~AsNobody()
    {
        if (m_user == 0 && seteuid(m_user) != 0)
            ADD_FAILURE() << "cannot become root again";
    }
    AsNobody(const AsNobody&) = delete;
    AsNobody& operator=(const AsNobody&) = delete;

private:
    const uid_t m_user = geteuid();
};

#endif
