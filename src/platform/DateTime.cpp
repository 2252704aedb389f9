// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "DateTime.h"

#include <unicode/datefmt.h>
#include <unicode/locid.h>
#include <unicode/unistr.h>

#include <memory>

std::string DateTime::ToString() const
{
    // Building an ICU formatter costs far more than formatting, and the sheet shows the
    // date at every refresh: keep one per locale.
    static std::unique_ptr<icu::DateFormat> format;
    static std::string formatLocale;
    const icu::Locale &locale = icu::Locale::getDefault();
    if (!format || formatLocale != locale.getName()) {
        format.reset(icu::DateFormat::createDateTimeInstance(icu::DateFormat::kMedium, icu::DateFormat::kMedium,
                                                             locale));
        formatLocale = locale.getName();
    }
    if (!format)
        return {};
    icu::UnicodeString text;
    format->format(static_cast<UDate>(millisecondsSinceEpoch), text);
    std::string utf8;
    text.toUTF8String(utf8);
    return utf8;
}
