// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/Achtung.h"

#include "ledger/Modul1.h"
#include "platform/QtText.h"

#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QStyle>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int CanvasSeite = 46;

// The warning icon of the desktop's style, drawn at the top left of the canvas and never
// larger than the canvas.
class WarnSymbol : public QWidget {
    Q_OBJECT
public:
    explicit WarnSymbol(QWidget *parent)
        : QWidget(parent)
    { }

protected:
    void paintEvent(QPaintEvent *) override { Canvas1_Paint(); }

private:
    void Canvas1_Paint()
    {
        const int seite = std::min(CanvasSeite, style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, this));
        QPainter painter(this);
        style()->standardIcon(QStyle::SP_MessageBoxWarning, nullptr, this).paint(&painter, 0, 0, seite, seite);
    }
};

} // namespace

Achtung::Achtung(QWidget *parent)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint)
    , Canvas1(new WarnSymbol(this))
    , Abbruch(new QPushButton(u"Abbruch"_s, this))
    , OK(new QPushButton(u"OK"_s, this))
    , StaticText1(
          new QLabel(u"Damit werden alle bisherigen Ergebnisse gelöscht und die Tabelle beginnt von vorne!"_s, this))
{
    Layout();
}

void Achtung::Layout()
{
    setObjectName(u"Achtung"_s);
    setWindowTitle(QString());
    setFixedSize(345, 160);
    setModal(true);

    Canvas1->setObjectName(u"Canvas1"_s);
    Canvas1->setGeometry(13, 31, CanvasSeite, CanvasSeite);
    Canvas1->setAccessibleName(u"Warnung"_s);
    Abbruch->setObjectName(u"Abbruch"_s);
    Abbruch->setGeometry(59, 106, 74, 20);
    OK->setObjectName(u"OK"_s);
    OK->setGeometry(206, 106, 74, 20);
    StaticText1->setObjectName(u"StaticText1"_s);
    StaticText1->setGeometry(71, 31, 255, 53);
    StaticText1->setWordWrap(true);
    StaticText1->setAlignment(Qt::AlignLeft | Qt::AlignTop);

    setTabOrder(Abbruch, OK);
    // Return confirms, unless the user has moved the focus onto Abbruch: a focused button answers
    // Return itself. The dialog opens with the focus on OK.
    OK->setDefault(true);
    // Without a title, a screen reader names the warning by its sentence.
    setAccessibleName(StaticText1->text());

    connect(Abbruch, &QPushButton::clicked, this, &Achtung::Abbruch_Pressed);
    connect(OK, &QPushButton::clicked, this, &Achtung::OK_Pressed);
}

void Achtung::reject()
{
    Abbruch_Pressed();
}

void Achtung::Abbruch_Pressed()
{
    Modul1.DruckKnopf = 0;
    QDialog::reject();
}

void Achtung::OK_Pressed()
{
    Modul1.DruckKnopf = 1;
    accept();
}

#include "Achtung.moc"
