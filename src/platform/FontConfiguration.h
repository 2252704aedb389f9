// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The desktop's font configuration, read on a thread of its own while the application connects to
// the display. Reading it is the longest single step before the window can show (every rule file
// of the desktop is parsed), and it does not need the display; Qt takes the configuration as read
// when it first asks for a font.
#pragma once

#include <thread>

namespace platform {

class FontConfiguration {
public:
    FontConfiguration();
    ~FontConfiguration();
    FontConfiguration(const FontConfiguration &) = delete;
    FontConfiguration &operator=(const FontConfiguration &) = delete;

    // Waits until the configuration is read. Called before the first font is asked for, since
    // Qt would otherwise read the whole configuration a second time beside this one.
    void waitUntilRead();

private:
    std::thread m_reader;
};

} // namespace platform
