// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "System.h"

#include <chrono>
#include <ctime>

namespace {

// Nothing installed means the quiet default of each service.
platform::BeepService *beepService = nullptr;
platform::MessageService *messageService = nullptr;
platform::FontService *fontService = nullptr;
platform::ClockService *clockService = nullptr;
platform::DateFormatService *dateFormatService = nullptr;

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

namespace platform {

void install(BeepService *service)
{
    beepService = service;
}

void install(MessageService *service)
{
    messageService = service;
}

void install(FontService *service)
{
    fontService = service;
}

void install(ClockService *service)
{
    clockService = service;
}

void install(DateFormatService *service)
{
    dateFormatService = service;
}

std::string FormatDateTime(DateTime moment)
{
    return dateFormatService ? dateFormatService->format(moment) : numericDate(moment);
}

} // namespace platform

void System::Beep()
{
    if (beepService)
        beepService->beep();
}

int System::FontCount()
{
    return fontService ? fontService->count() : 0;
}

std::string System::FontAt(int index)
{
    return fontService ? fontService->at(index) : std::string();
}

void MessageBox(std::string_view text)
{
    if (messageService)
        messageService->show(text);
}

DateTime DateTime::Now()
{
    return clockService ? clockService->now() : systemNow();
}
