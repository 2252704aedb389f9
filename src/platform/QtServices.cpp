// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/QtServices.h"

#include "platform/QtText.h"

#include <QApplication>
#include <QDateTime>
#include <QFontDatabase>
#include <QLocale>
#include <QMessageBox>

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

// Where an opening bracket stands at the end of the pattern so far, with blanks at most after it:
// its place plus one, or 0 if there is none.
qsizetype leereKlammer(const QString &muster)
{
    qsizetype offen = muster.size();
    while (offen > 0 && muster.at(offen - 1).isSpace())
        --offen;
    return offen > 0 && (muster.at(offen - 1) == u'(' || muster.at(offen - 1) == u'[') ? offen : 0;
}

// A date or time format of Qt's locale data as the sheet writes it. The data comes from CLDR,
// and Qt 6.4 does not read all of its letters: a day period "B" ("下午" in Taiwan) would stand
// as a letter and the hour be read as a 24-hour one, so it becomes Qt's AM/PM. The zone goes,
// with the brackets and blanks around it, and the year is written in full. Quoted text is the
// locale's own and stays as it is. A blank is any of Unicode's: newer locale data sets AM/PM off
// by a narrow no-break space, which would otherwise stay behind at the end. One pass by hand: a
// regular expression engine here would be loaded and compiled at start for the head of the first
// sheet, half a megabyte of it.
QString BlattMuster(const QString &cldr)
{
    QString muster;
    bool zitat = false;
    for (qsizetype i = 0; i < cldr.size(); ++i) {
        const QChar c = cldr.at(i);
        if (c == u'\'')
            zitat = !zitat;
        const auto lauf = [&](auto gehoertDazu) {
            while (i + 1 < cldr.size() && gehoertDazu(cldr.at(i + 1)))
                ++i;
        };
        // Letters outside quotes are the format's own; quoted text is the locale's words.
        const bool format = !zitat && c != u'\'';
        if (format && c == u'y') {
            lauf([](QChar n) { return n == u'y'; });
            muster += u"yyyy"_s;
        } else if (format && (c == u'B' || c == u'b')) {
            lauf([](QChar n) { return n == u'B' || n == u'b'; });
            muster += u"AP"_s;
        } else if (format && c == u't') {
            lauf([](QChar n) { return n == u't'; });
        } else if (format && (c == u')' || c == u']') && leereKlammer(muster) > 0) {
            // Brackets that held only the zone go with it.
            muster.truncate(leereKlammer(muster) - 1);
        } else if (!format || !c.isSpace() || muster.isEmpty() || !muster.back().isSpace()) {
            muster += c;
        }
    }
    const auto rand = [](QChar c) { return c.isSpace() || c == u','; };
    qsizetype anfang = 0, ende = muster.size();
    while (anfang < ende && rand(muster.at(anfang)))
        ++anfang;
    while (ende > anfang && rand(muster.at(ende - 1)))
        --ende;
    return muster.mid(anfang, ende - anfang);
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

} // namespace platform
