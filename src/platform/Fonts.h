// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The list of installed font families, by index from 0, as the program asks whether a font is
// there before it sets it.
#pragma once

#include "platform/Service.h"

#include <string>
#include <string_view>

namespace platform {

class FontService : public Service {
public:
    virtual int count() = 0;
    virtual std::string at(int index) = 0;
};

// The number of fonts and the name of one; no fonts while no list is installed.
int FontCount();
std::string FontAt(int index);

// The name that stands for the desktop's general font, wherever a wished-for font is missing.
inline constexpr std::string_view SystemFont = "System";

} // namespace platform
