// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Between the ledger's UTF-8 strings and Qt's: the ledger speaks std::string, the widgets
// QString, and font names the way the program spells them.
#pragma once

#include <QFont>
#include <QString>

#include <string>
#include <string_view>

inline QString qs(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline std::string utf8(const QString &text)
{
    return text.toStdString();
}

namespace platform {

// The family behind a font name of the program: SystemFont stands for the desktop's general
// font, any other name for itself.
QString fontFamily(std::string_view name);

// A font of that name and point size.
QFont font(std::string_view name, qreal pointSize);

} // namespace platform
