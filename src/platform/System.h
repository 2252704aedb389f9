// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The few things the evening asks of the machine it runs on: a beep, a message to the user,
// the list of installed fonts, the clock and how a date is written. Each is a small service behind an interface;
// main() installs the desktop's implementations, a test installs doubles it can watch.
// Until something is installed the services stay quiet: no sound, no message, no fonts,
// and the system clock.
#pragma once

#include "DateTime.h"

#include <string>
#include <string_view>

namespace platform {

// What the services have in common: each is used through the pointer it was installed with
// and is never copied. A copy would be cut down to its interface, and a test double's copy
// would take the original out again when it goes.
class Service {
public:
    Service() = default;
    Service(const Service &) = delete;
    Service &operator=(const Service &) = delete;
    virtual ~Service() = default;
};

class BeepService : public Service {
public:
    virtual void beep() = 0;
};

class MessageService : public Service {
public:
    virtual void show(std::string_view text) = 0;
};

class FontService : public Service {
public:
    virtual int count() = 0;
    virtual std::string at(int index) = 0;
};

class ClockService : public Service {
public:
    virtual DateTime now() = 0;
};

// How a moment is written for the user. The default writes it as German does,
// "12.03.2021, 19:30:00", in the local time zone; the desktop's follows the user's locale.
class DateFormatService : public Service {
public:
    virtual std::string format(DateTime moment) = 0;
};

// Each installs the service for the rest of the run, or until the next install; nullptr
// puts back the quiet default. The caller keeps the object alive while it is installed.
void install(BeepService *service);
void install(MessageService *service);
void install(FontService *service);
void install(ClockService *service);
void install(DateFormatService *service);

// The moment as the installed date service writes it.
std::string FormatDateTime(DateTime moment);

} // namespace platform

namespace System {
void Beep();
int FontCount();
std::string FontAt(int index);
} // namespace System

void MessageBox(std::string_view text);
