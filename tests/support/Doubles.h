// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Stand-ins for the machine, each installed by a test for as long as it lives, as main() installs
// the desktop's services: a beep counter, a font list of the test's choosing and a clock that
// stands still.
#pragma once

#include "platform/Beep.h"
#include "platform/DateTime.h"
#include "platform/Fonts.h"

#include <string>
#include <vector>

using platform::Installed;

struct ScopedBeepCounter final : Installed<platform::BeepService> {
    void beep() override { ++beeps; }
    int beeps = 0;
};

struct ScopedFontList final : Installed<platform::FontService> {
    explicit ScopedFontList(std::vector<std::string> names = {})
        : fonts(std::move(names))
    { }
    int count() override { return static_cast<int>(fonts.size()); }
    std::string at(int index) override { return fonts.at(static_cast<std::size_t>(index)); }
    std::vector<std::string> fonts;
};

// 12 March 2021, 19:30:00 in Berlin, unless the test sets another moment.
struct FixedClock final : Installed<platform::ClockService> {
    static constexpr std::int64_t Maerz2021 = 1615573800000;
    explicit FixedClock(std::int64_t ms = Maerz2021)
        : moment{ms}
    { }
    DateTime now() override { return moment; }
    DateTime moment;
};
