// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The toolkit's floor for the start-up figures: a main window of the same size and shape as
// Tafelkasse's (a menu bar, a text area, a row of buttons above it and a few below), built
// with Qt Widgets alone and nothing of the program. Whatever Tafelkasse needs beyond this
// to come up is its own cost.
#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QTextEdit>

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    QMainWindow fenster;
    fenster.setWindowTitle(QStringLiteral("Qt Widgets floor"));

    QMenu *ablage = fenster.menuBar()->addMenu(QStringLiteral("Ablage"));
    ablage->addAction(QStringLiteral("Neu"));
    ablage->addAction(QStringLiteral("Drucken…"));
    ablage->addSeparator();
    ablage->addAction(QStringLiteral("Beenden"), &app, &QCoreApplication::quit);
    QMenu *ergebnisse = fenster.menuBar()->addMenu(QStringLiteral("Ergebnisse"));
    ergebnisse->addAction(QStringLiteral("Eingeben…"));
    ergebnisse->addAction(QStringLiteral("Korrigieren…"));

    auto *inhalt = new QWidget;
    inhalt->setMinimumSize(896, 616);
    fenster.setCentralWidget(inhalt);
    auto *text = new QTextEdit(inhalt);
    text->setGeometry(-1, 72, 898, 484);
    text->setReadOnly(true);
    // The table as the window's, one button a line.
    // clang-format off
    const struct {
        const char *titel;
        QRect geometrie;
    } knoepfe[] = {
        {"Über…", {30, 20, 98, 20}},
        {"Namen", {145, 20, 142, 20}},
        {"Eingeben", {303, 20, 191, 20}},
        {"Korrigieren", {510, 20, 191, 20}},
        {"Neustart", {770, 20, 98, 20}},
        {"kleiner", {120, 576, 80, 20}},
        {"Standard", {203, 576, 80, 20}},
        {"größer", {286, 576, 80, 20}},
        {"Quit", {730, 576, 138, 20}},
    };
    // clang-format on
    for (const auto &k : knoepfe)
        (new QPushButton(QString::fromUtf8(k.titel), inhalt))->setGeometry(k.geometrie);
    (new QLabel(QStringLiteral("Darstellung:"), inhalt))->setGeometry(30, 576, 91, 20);

    fenster.resize(fenster.minimumSizeHint().expandedTo(QSize(896, 616)));
    fenster.show();
    return QApplication::exec();
}
