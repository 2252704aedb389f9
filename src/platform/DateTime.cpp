// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/DateTime.h"

#include <chrono>
#include <ctime>

using platform::ClockService;
using platform::DateFormatService;
using platform::Installed;

namespace {

DateTime systemNow()
{
    using namespace std::chrono;
    return {duration_cast<milliseconds>(system_clock::now().time_since_epoch()).count()};
}

std::string numericDate(DateTime moment)
{
    // Floor division, so that moments before 1970 still fall in the right second.
    std::time_t seconds = static_cast<std::time_t>(moment.millisecondsSinceEpoch / 1000);
    if (moment.millisecondsSinceEpoch % 1000 < 0)
        --seconds;
    std::tm local{};
    char text[64];
    if (!localtime_r(&seconds, &local) || !std::strftime(text, sizeof text, "%d.%m.%Y, %H:%M:%S", &local))
        return {};
    return text;
}

} // namespace

DateTime DateTime::Now()
{
    ClockService *clock = Installed<ClockService>::current();
    return clock ? clock->now() : systemNow();
}

std::string DateTime::ToString() const
{
    DateFormatService *format = Installed<DateFormatService>::current();
    return format ? format->format(*this) : numericDate(*this);
}
