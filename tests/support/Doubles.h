// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Stand-ins for the machine, installed by a test for as long as the object lives: a beep
// counter, a message recorder, a font list of the test's choosing and a clock that stands
// still.
#pragma once

#include "platform/System.h"

#include <string>
#include <vector>

class ScopedBeepCounter final : public platform::BeepService {
public:
    ScopedBeepCounter() { platform::install(this); }
    ~ScopedBeepCounter() override { platform::install(static_cast<platform::BeepService *>(nullptr)); }
    void beep() override { ++beeps; }
    int beeps = 0;
};

class ScopedMessageRecorder final : public platform::MessageService {
public:
    ScopedMessageRecorder() { platform::install(this); }
    ~ScopedMessageRecorder() override { platform::install(static_cast<platform::MessageService *>(nullptr)); }
    void show(std::string_view text) override { messages.emplace_back(text); }
    std::vector<std::string> messages;
};

class ScopedFontList final : public platform::FontService {
public:
    explicit ScopedFontList(std::vector<std::string> names = {})
        : fonts(std::move(names))
    {
        platform::install(this);
    }
    ~ScopedFontList() override { platform::install(static_cast<platform::FontService *>(nullptr)); }
    int count() override { return static_cast<int>(fonts.size()); }
    std::string at(int index) override { return fonts.at(static_cast<std::size_t>(index)); }
    std::vector<std::string> fonts;
};

// 12 March 2021, 19:30:00 in Berlin, unless the test sets another moment.
class FixedClock final : public platform::ClockService {
public:
    static constexpr std::int64_t Maerz2021 = 1615573800000;
    explicit FixedClock(std::int64_t ms = Maerz2021)
        : moment{ms}
    {
        platform::install(this);
    }
    ~FixedClock() override { platform::install(static_cast<platform::ClockService *>(nullptr)); }
    DateTime now() override { return moment; }
    DateTime moment;
};
