// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The program's picture at the sizes it hands the window manager, as pixels ready for the screen:
// written into the program at build time from the PNGs in data/icons (by symbolpixel), so that
// nothing is decoded before the window maps.
#pragma once

#include <cstdint>
#include <span>

struct SymbolBild {
    int seite; // width and height in pixels
    // seite × seite pixels, row by row, as Qt's premultiplied ARGB32 stores them.
    const std::uint32_t *pixel;
};

extern const std::span<const SymbolBild> SymbolBilder;
