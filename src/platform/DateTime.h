// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// A moment in time, as the evening keeps its date, and the two services behind it: the clock
// that gives the present moment and the way a moment is written for the user. While none is
// installed, the system clock serves and a moment is written as German does,
// "12.03.2021, 19:30:00", in the local time zone.
#pragma once

#include "platform/Service.h"

#include <cstdint>
#include <string>

struct DateTime {
    std::int64_t millisecondsSinceEpoch = 0;

    // The current moment from the installed clock.
    static DateTime Now();

    // Date and time of day in the user's time zone, in the form of the installed date
    // service: in German for example "12.03.2021, 19:30:00".
    std::string ToString() const;

    friend bool operator==(DateTime, DateTime) = default;
};

namespace platform {

class ClockService : public Service {
public:
    virtual DateTime now() = 0;
};

class DateFormatService : public Service {
public:
    virtual std::string format(DateTime moment) = 0;
};

} // namespace platform
