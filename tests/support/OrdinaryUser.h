#pragma once

#include <cstdlib>

#include <grp.h>
#include <unistd.h>

/// Lays root's rights down, in the child process of a death test: file permissions do not bind root.
inline void BecomeOrdinaryUser()
{
    constexpr unsigned kNobody = 65534;
    if (geteuid() != 0) {
        return;
    }
    if (setgroups(0, nullptr) != 0 || setresgid(kNobody, kNobody, kNobody) != 0 ||
        setresuid(kNobody, kNobody, kNobody) != 0) {
        std::_Exit(99);
    }
}
