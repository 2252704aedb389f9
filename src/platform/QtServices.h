// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The desktop's side of the platform services: the beep of the desktop, a message box over
// the active window, the fonts that Qt's font database knows and the locale's dates. Each is
// installed for as long as it lives; QtServices holds them all.
#pragma once

#include "platform/Beep.h"
#include "platform/DateTime.h"
#include "platform/Fonts.h"
#include "platform/MessageBox.h"

#include <QStringList>

namespace platform {

class QtBeep final : public Installed<BeepService> {
public:
    void beep() override;
};

class QtMessageBox final : public Installed<MessageService> {
public:
    void show(std::string_view text) override;
};

// The installed font families, each under its own name once, whichever foundries make it;
// read once: the list does not change during an evening, and asking Qt anew for each of the
// hundreds of families would cost at every refresh.
class QtFonts final : public Installed<FontService> {
public:
    int count() override;
    std::string at(int index) override;

private:
    void load();
    QStringList m_families;
    bool m_loaded = false;
};

// Date and time of day as the user's locale writes them, with the year in full and the
// seconds but without the time zone: in German "12.03.2021, 19:30:00", in American English
// "3/12/2021, 7:30:00 PM". Qt's own locale tables serve, which the program has loaded anyway.
class QtDateFormat final : public Installed<DateFormatService> {
public:
    std::string format(DateTime moment) override;
};

// All of the above, installed for as long as the object lives.
struct QtServices {
    QtBeep beep;
    QtMessageBox messages;
    QtFonts fonts;
    QtDateFormat dates;
};

} // namespace platform
