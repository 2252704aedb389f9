// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/UeberTafelkasse.h"

#include "ledger/Modul1.h"
#include "platform/QtText.h"
#include "windows/Tabellenmass.h"

#include <QAccessibleWidget>
#include <QLabel>
#include <QMouseEvent>

using namespace Qt::StringLiterals;

namespace {

// A screen reader announces the window as a window, by its title: a bare QWidget would be a
// nameless "filler" to it.
QAccessibleInterface *alsFenster(const QString &klasse, QObject *object)
{
    if (klasse == QLatin1String(UeberTafelkasse::staticMetaObject.className()))
        return new QAccessibleWidget(static_cast<QWidget *>(object), QAccessible::Window);
    return nullptr;
}

} // namespace

UeberTafelkasse::UeberTafelkasse(QWidget *parent)
    : QWidget(parent,
              Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint
                  | Qt::WindowMinimizeButtonHint)
    , StaticText1(new QLabel(u"Tafelkasse"_s, this))
    , StaticText2(new QLabel(u"Programm für den \"stäbchenlosen Zahlungsverkehr\"\n"
                             u"bzw. zur Berechnung der Gewinne, Verluste und Kontostände \n"
                             u"für vier Mah Jongg-SpielerInnen in bis zu 100 Spielen."_s,
                             this))
    // The credit: the version of this build and the licence, on one line at 12 pixels, in the
    // widest of the usual desktop fonts (DejaVu Sans) with room for a longer version number.
    , StaticText3(new QLabel(u"Version " TAFELKASSE_VERSION u" · Freie Software unter GNU GPL 3 oder später"_s, this))
{
    QAccessible::installFactory(alsFenster);
    Layout();
    Event_Opening();
}

void UeberTafelkasse::Layout()
{
    setObjectName(u"UeberTafelkasse"_s);
    setWindowTitle(u"Tafelkasse"_s);
    FesteGroesse(this, {429, 201});
    // The close box ends the window; the next "Über…" makes a new one.
    setAttribute(Qt::WA_DeleteOnClose);

    QPalette farben = palette();
    farben.setColor(QPalette::Window, QColor(0xEE, 0xEE, 0xEE));
    farben.setColor(QPalette::WindowText, Qt::black);
    setPalette(farben);
    setAutoFillBackground(true);

    const struct {
        QLabel *label;
        QString name;
        QRect geometrie;
        bool mehrzeilig;
    } labels[] = {
        {StaticText1, u"StaticText1"_s, {21, 20, 388, 48}, false},
        {StaticText2, u"StaticText2"_s, {21, 74, 384, 53}, true},
        {StaticText3, u"StaticText3"_s, {20, 149, 397, 25}, true},
    };
    for (const auto &l : labels) {
        l.label->setObjectName(l.name);
        l.label->setGeometry(l.geometrie);
        l.label->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
        l.label->setWordWrap(l.mehrzeilig);
    }
}

namespace {

// The labels are placed for a desktop on which a point is a pixel. Where a point is larger
// (12 points are 16 pixels at 96 dpi) the second line would wrap and push the third out of
// its label, so the sizes 36 and 12 are taken in pixels: as large as the places allow.
QFont SchriftImRaster(std::string_view name, int groesse)
{
    QFont schrift(platform::fontFamily(name));
    schrift.setPixelSize(groesse);
    return schrift;
}

} // namespace

void UeberTafelkasse::Event_Opening()
{
    const std::string schrift = SchriftOderSystem("Palatino");
    StaticText1->setFont(SchriftImRaster(schrift, 36));
    StaticText2->setFont(SchriftImRaster(schrift, 12));
    StaticText3->setFont(SchriftImRaster(schrift, 12));
}

void UeberTafelkasse::mousePressEvent(QMouseEvent *event)
{
    event->accept();
    Event_MouseDown();
}

void UeberTafelkasse::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape) {
        event->accept();
        Event_MouseDown();
    } else {
        QWidget::keyPressEvent(event);
    }
}

void UeberTafelkasse::Event_MouseDown()
{
    // Hidden, not closed: the next "Über…" shows this same window again.
    hide();
}
