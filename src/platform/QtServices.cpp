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

using namespace Qt::StringLiterals;

namespace platform {

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
    const QStringList eintraege = QFontDatabase::families();
    for (const QString &eintrag : eintraege) {
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

namespace {

// A date or time format of Qt's locale data as the sheet writes it. The data comes from CLDR,
// and Qt 6.4 does not read all of its letters: a day period "B" ("下午" in Taiwan) would stand
// as a letter and the hour be read as a 24-hour one, so it becomes Qt's AM/PM. The zone goes,
// with the brackets and blanks around it, and the year is written in full. Quoted text is the
// locale's own and stays as it is. A blank is any of Unicode's: newer locale data sets AM/PM
// off by a narrow no-break space, which would otherwise stay behind at the end.
QString BlattMuster(const QString &cldr)
{
    static const QRegularExpression jahr(u"y+"_s), tageszeit(u"[Bb]+"_s), zone(u"t+"_s),
        leereKlammern(u"[(\\[][\\s\\p{Z}]*[)\\]]"_s), blanks(u"([\\s\\p{Z}])[\\s\\p{Z}]+"_s),
        raender(u"^[\\s\\p{Z},]+|[\\s\\p{Z},]+$"_s);
    QStringList teile = cldr.split(u'\'');
    for (qsizetype i = 0; i < teile.size(); i += 2) {
        teile[i].replace(jahr, u"yyyy"_s).replace(tageszeit, u"AP"_s).remove(zone).remove(leereKlammern);
        teile[i].replace(blanks, u"\\1"_s);
    }
    return teile.join(u'\'').remove(raender);
}

} // namespace

std::string QtDateFormat::format(DateTime moment)
{
    const QLocale locale; // the user's, unless the program sets another
    // The short date and the long time, which has the seconds.
    const QString muster = BlattMuster(locale.dateFormat(QLocale::ShortFormat)) + u", "_s
        + BlattMuster(locale.timeFormat(QLocale::LongFormat));
    return utf8(locale.toString(QDateTime::fromMSecsSinceEpoch(moment.millisecondsSinceEpoch), muster));
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
