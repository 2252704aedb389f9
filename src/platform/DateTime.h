// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// A moment in time, as the evening keeps its date: taken from the installed clock and
// shown in the user's locale with date and time of day.
#pragma once

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
