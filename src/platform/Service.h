// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// How the program reaches the machine: each service (beep, clock and date, font list, message
// box, print dialog) is a small interface with a quiet default for when nothing is installed.
// An implementation derives from Installed<its interface> and is the service of its kind for as
// long as it lives: main() keeps the desktop's for the whole run, a test its doubles for one
// test, and when one goes, the one installed before it comes back.
#pragma once

#include <cassert>
#include <utility>

namespace platform {

// Each service is used through the pointer it was installed with and is never copied: a copy
// would be cut down to its interface, and would put back the service before it when it goes.
class Service {
public:
    Service() = default;
    Service(const Service &) = delete;
    Service &operator=(const Service &) = delete;
    virtual ~Service() = default;
};

template<typename Interface>
class Installed : public Interface {
public:
    // The installed service of this kind, or null for the quiet default.
    static Interface *current() { return s_current; }

protected:
    Installed()
        : m_previous(std::exchange(s_current, this))
    { }
    ~Installed() override
    {
        // Services go in the reverse order of their coming, as objects on a stack do.
        assert(s_current == this);
        s_current = m_previous;
    }

private:
    static inline Interface *s_current = nullptr;
    Interface *const m_previous;
};

} // namespace platform
