#pragma once

#include <QtGlobal>

#include <unistd.h>

/// Drops root's rights as long as it lives, because root may write read-only files.
struct Unprivileged {
    Unprivileged() = default;
    ~Unprivileged()
    {
        if (::geteuid() != ::getuid() && ::seteuid(::getuid()) != 0)
            qFatal("cannot go back to the user that the test began as");
    }
    Unprivileged(const Unprivileged &) = delete;
    Unprivileged &operator=(const Unprivileged &) = delete;

    bool worked = ::geteuid() != 0 || ::seteuid(65534) == 0;
};
