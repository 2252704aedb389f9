// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/QtText.h"

#include "platform/Fonts.h"

#include <QFontDatabase>

namespace platform {

QString fontFamily(std::string_view name)
{
    if (name == SystemFont)
        return QFontDatabase::systemFont(QFontDatabase::GeneralFont).family();
    return qs(name);
}

QFont font(std::string_view name, qreal pointSize)
{
    QFont f(fontFamily(name));
    f.setPointSizeF(pointSize);
    return f;
}

} // namespace platform
