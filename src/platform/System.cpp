// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "System.h"

#include <chrono>
#include <ctime>

namespace {

class QuietBeep final : public platform::BeepService {
public:
    void beep() override { }
};

class QuietMessages final : public platform::MessageService {
public:
    void show(std::string_view) override { }
};

class NoFonts final : public platform::FontService {
public:
    int count() override { return 0; }
    std::string at(int) override { return {}; }
};

class SystemClock final : public platform::ClockService {
public:
    DateTime now() override
    {
        using namespace std::chrono;
        return {duration_cast<milliseconds>(system_clock::now().time_since_epoch()).count()};
    }
};

class NumericDate final : public platform::DateFormatService {
public:
    std::string format(DateTime moment) override
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
};

QuietBeep quietBeep;
QuietMessages quietMessages;
NoFonts noFonts;
SystemClock systemClock;
NumericDate numericDate;

platform::BeepService *beepService = &quietBeep;
platform::MessageService *messageService = &quietMessages;
platform::FontService *fontService = &noFonts;
platform::ClockService *clockService = &systemClock;
platform::DateFormatService *dateFormatService = &numericDate;

} // namespace

namespace platform {

void install(BeepService *service)
{
    beepService = service ? service : &quietBeep;
}

void install(MessageService *service)
{
    messageService = service ? service : &quietMessages;
}

void install(FontService *service)
{
    fontService = service ? service : &noFonts;
}

void install(ClockService *service)
{
    clockService = service ? service : &systemClock;
}

void install(DateFormatService *service)
{
    dateFormatService = service ? service : &numericDate;
}

std::string FormatDateTime(DateTime moment)
{
    return dateFormatService->format(moment);
}

} // namespace platform

void System::Beep()
{
    beepService->beep();
}

int System::FontCount()
{
    return fontService->count();
}

std::string System::FontAt(int index)
{
    return fontService->at(index);
}

void MessageBox(std::string_view text)
{
    messageService->show(text);
}

DateTime DateTime::Now()
{
    return clockService->now();
}
