// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "QtServices.h"

#include "QtText.h"

#include <QApplication>
#include <QDateTime>
#include <QFontDatabase>
#include <QLocale>
#include <QMessageBox>
#include <QRegularExpression>

namespace platform
{

void QtBeep::beep()
{
    QApplication::beep();
}

void QtMessageBox::show(std::string_view text)
{
    QMessageBox box(QMessageBox::NoIcon, QString(), qs(text), QMessageBox::Ok, QApplication::activeWindow());
    box.exec();
}

void QtFonts::load()
{
    if (m_loaded)
        return;
    // Qt lists a family that two foundries make once for each, "Courier [urw]" and
    // "Courier [UKWN]", and takes such a name as the family before the bracket: the family is
    // installed under its own name, whichever foundry makes it. QFontDatabase::hasFamily would
    // also follow fontconfig's aliases, by which a stand-in answers for a missing family; the
    // list holds only the families that are there.
    for (const QString &eintrag : QFontDatabase::families()) {
        const qsizetype klammer = eintrag.indexOf(u'[');
        const QString familie = klammer > 0 && eintrag.endsWith(u']') ? eintrag.left(klammer).trimmed() : eintrag;
        if (!m_families.contains(familie))
            m_families.append(familie);
    }
    m_loaded = true;
}

int QtFonts::count()
{
    load();
    return static_cast<int>(m_families.size());
}

std::string QtFonts::at(int index)
{
    load();
    return index >= 0 && index < m_families.size() ? utf8(m_families.at(index)) : std::string();
}

std::string QtDateFormat::format(DateTime moment)
{
    const QLocale locale; // the user's, unless the program sets another
    // The short date, but with a four-digit year; the long time, but without the zone.
    static const QRegularExpression jahr(u"y+"_qs), zone(u"\\s*\\bt+\\b\\s*"_qs);
    QString datum = locale.dateFormat(QLocale::ShortFormat);
    if (!datum.contains(u"yyyy"_qs))
        datum.replace(jahr, u"yyyy"_qs);
    QString zeit = locale.timeFormat(QLocale::LongFormat);
    zeit.remove(zone);
    const QDateTime wann = QDateTime::fromMSecsSinceEpoch(moment.millisecondsSinceEpoch);
    return utf8(locale.toString(wann, datum + u", "_qs + zeit.trimmed()));
}

QtServices::QtServices()
{
    install(&m_beep);
    install(&m_messages);
    install(&m_fonts);
    install(&m_dates);
}

QtServices::~QtServices()
{
    install(static_cast<BeepService *>(nullptr));
    install(static_cast<MessageService *>(nullptr));
    install(static_cast<FontService *>(nullptr));
    install(static_cast<DateFormatService *>(nullptr));
}

QString fontFamily(std::string_view name)
{
    if (name == "system" || name == "System")
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
