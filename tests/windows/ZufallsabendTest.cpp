// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Thousands of random actions at the table, by button, shortcut and menu item, with any text in
// any field. A model follows what the user meant: the names and each game as they stand. After
// every action the ledger must be the evening as if each had been entered once so, and the enabled
// controls, the beeps, the text size and the sheet must agree with it. TAFELKASSE_SEED replays a
// run, TAFELKASSE_ACTIONS sets its length (5000).
#include "support/Fenster.h"
#include "support/PrintDoubles.h"
#include "support/SheetImage.h"

#include <random>

class ZufallsabendTest : public QObject, Fenster {
    Q_OBJECT
    using Answer = std::function<void(QWidget *)>;

    NamesForm names; // as last confirmed
    std::vector<ResultForm> games; // each as it stands after its corrections
    double size = 12;
    int beepsHeard = 0;
    std::mt19937_64 rng;
    QStringList log;
    QString problem; // with the dialogs of the last action

    int below(int n) { return int(rng() % unsigned(n)); }
    static void replace(QLineEdit *field, const QString &text) { field->selectAll(), field->insert(text); }

    // The ledger as if the names and then each game had been entered once, as they stand now; the
    // date and the flags that the dialogs leave are the ledger's.
    Abend expectedLedger() const
    {
        Abend a;
        Namen_OK(a, names);
        for (const ResultForm &game : games)
            Ergebnisse_OK(a, game);
        a.Tagesdatum = Modul1.Tagesdatum, a.Gute_Eingabe = Modul1.Gute_Eingabe, a.DruckKnopf = Modul1.DruckKnopf;
        return a;
    }

    QString randomText(bool name)
    {
        static const QStringList kinds
            = u"|   |12.9|-3.7|1e3| -2.5E2xyz|1e400|-99999999999999999999|abc|+-5|.5|9223372036854775807|Mah 🀄 Jongg"_s
                  .split(u'|');
        const int kind = below(name ? 5 : 4);
        // a name longer than a line of the sheet, which wraps it; a score beyond 64 bits; an equal name
        return kind == 0 ? kinds[below(int(kinds.size()))]
            : kind == 1  ? QString::number(below(2001) - 1000)
            : kind == 2  ? QString::number(qint64(rng()))
            : kind == 3  ? (name ? u"Äöü ß "_s : u"7"_s).repeated(below(40))
                         : QString::fromStdString(Modul1.Spieler(1 + below(4)));
    }

    // One of the ways to a command, at random: its button, its menu item, its shortcut. `answer`
    // answers the dialog that it must open; without one, it must open none.
    void command(const QString &what, const char *button, Qt::Key key, const char *item, const Answer &answer = {})
    {
        const int way = button ? below(key ? 3 : 2) : 1 + below(2);
        log << what + QStringList{u" (button)"_s, u" (menu)"_s, u" (shortcut)"_s}[way];
        const bool ran = answered(
            answer ? answer : [](QWidget *d) { d->close(); },
            way == 0       ? press(button)
                : way == 1 ? choose(item)
                           : Fenster::command(key));
        if (ran != bool(answer))
            problem = ran ? u"a dialog came up where none may"_s : u"the dialog did not come up"_s;
    }

    void answerGame(QWidget *dialog, const QString &field, bool correction)
    {
        ResultForm spiel{{}, 1 + below(4), 1 + below(4)};
        for (int k = 0; k < 4; ++k) {
            auto *edit = child<QLineEdit>(dialog, field + QString::number(k + 1));
            if (!correction || below(2))
                replace(edit, randomText(false));
            spiel.ScoreText[size_t(k)] = edit->text().toStdString();
        }
        click(dialog, u"Mahjongg_%1"_s.arg(spiel.MahjonggChoice));
        click(dialog, u"Osten_%1"_s.arg(spiel.OstenChoice));
        const bool ok = below(5) > 0;
        QTest::keyClick(dialog, ok ? Qt::Key_Return : Qt::Key_Escape);
        if (ok)
            correction ? void(games.back() = spiel) : games.push_back(spiel);
    }

    void answerNames(QWidget *dialog)
    {
        NamesForm next;
        for (int k = 0; k < 4; ++k) {
            const QString name = randomText(true), carry = randomText(false);
            replace(child<QLineEdit>(dialog, u"Name_%1"_s.arg(k + 1)), name);
            replace(child<QLineEdit>(dialog, u"Übertrag_%1"_s.arg(k + 1)), carry);
            next.Name[size_t(k)] = name.toStdString(), next.Uebertrag[size_t(k)] = carry.toStdString();
        }
        const QString way = QStringList{u"Abbruch_Name"_s, u"close"_s, u"OK_Name"_s}[below(3)];
        end(dialog, way);
        if (way == u"OK_Name"_s)
            names = next;
    }

    void act()
    {
        const auto n = int(games.size());
        const int choice = below(300);
        if (choice < 150) {
            command(u"Ergebnisse"_s, "Ergebnisse_Button", Qt::Key_E, "ErgebnisseErgebnisseeingeben",
                    n < 99 ? Answer([this](QWidget *d) { answerGame(d, u"Ergebnis"_s, false); }) : Answer());
        } else if (choice < 190) {
            command(u"Korrektur"_s, "Korrektur_Button", Qt::Key_K, "ErgebnisseKorrekturletztesSpiel",
                    n > 0 ? Answer([this](QWidget *d) { answerGame(d, u"Korrektur"_s, true); }) : Answer());
        } else if (choice < 215) {
            command(u"Namen"_s, "Namen_Button", Qt::Key(0), "ErgebnisseNamenderSpieler",
                    n == 0 ? Answer([this](QWidget *d) { answerNames(d); }) : Answer());
        } else if (choice < 218) {
            const bool ok = below(2);
            command(ok ? u"Neustart OK"_s : u"Neustart Abbruch"_s, "Neustart_Button", Qt::Key_N, "AblageNeu",
                    n > 0 ? Answer([ok](QWidget *d) { QTest::keyClick(d, ok ? Qt::Key_Return : Qt::Key_Escape); })
                          : Answer());
            if (n > 0 && ok)
                games.clear(), names.Uebertrag = {};
            beepsHeard += n > 0;
        } else if (choice < 280) {
            const int which = below(3); // größer, Standard, kleiner
            log << QStringList{u"größer"_s, u"Standard"_s, u"kleiner"_s}[which];
            press(QList{"PushButton1", "PushButton2", "PushButton6"}[which])();
            if (which == 2 && size == 1)
                ++beepsHeard;
            else
                size = which == 0 ? size + 1 : which == 1 ? 12 : size - 1;
        } else if (choice < 285) {
            command(u"Drucken"_s, nullptr, Qt::Key_P, "AblageDrucken"); // cancelled: nothing changes
        } else {
            command(u"Über"_s, "Ueber_Button", Qt::Key_I, "AppleTafelkasse");
            QWidget *about = window->findChild<QWidget *>(u"UeberTafelkasse"_s);
            QVERIFY(about && about->isVisible());
            below(2) ? QTest::mouseClick(about, Qt::LeftButton) : void(about->close());
        }
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // a closed about window goes
    }

    // Empty when ledger, controls and sheet agree with the model and with each other.
    QString disagreement()
    {
        const auto n = int(games.size());
        if (!(Modul1 == expectedLedger()))
            return u"the ledger of %1 games is not the evening of %2 games as entered"_s.arg(Modul1.Spiel_Nr).arg(n);
        // Names, new game, correction, restart: as buttons, then as menu items.
        QList<bool> enabled;
        for (const char *name : {"Namen_Button", "Ergebnisse_Button", "Korrektur_Button", "Neustart_Button"})
            enabled << button(name)->isEnabled();
        for (const char *name : {"ErgebnisseNamenderSpieler", "ErgebnisseErgebnisseeingeben",
                                 "ErgebnisseKorrekturletztesSpiel", "AblageNeu", "AppleTafelkasse"})
            enabled << item(name)->isEnabled();
        const QList<bool> expected{n == 0, (n < 99), n > 0, n > 0};
        if (enabled != expected + expected + QList{true})
            return u"buttons or menu items at %1 games"_s.arg(n);
        if (beeps.beeps != beepsHeard || window->Anzeige->font().pointSizeF() != size)
            return QString::asprintf("%d beeps at size %g, expected %d at %g", beeps.beeps,
                                     window->Anzeige->font().pointSizeF(), beepsHeard, size);
        const Blatt blatt = Dokument(Modul1, window->Zeilen(), BlattSchrift(), Modul1.Tagesdatum->ToString());
        return SheetImage::firstDifference(SheetImage::fromDocument(*window->Anzeige->document()),
                                           SheetImage::fromPieces(blatt.Stuecke));
    }

private Q_SLOTS:
    void thousandsOfActionsKeepLedgerControlsAndSheetTrue()
    {
        const auto seed
            = qEnvironmentVariable("TAFELKASSE_SEED", QString::number(std::random_device{}())).toULongLong();
        const int actions = qEnvironmentVariable("TAFELKASSE_ACTIONS", u"5000"_s).toInt();
        qInfo("seed %llu (TAFELKASSE_SEED=%llu replays this run)", qulonglong(seed), qulonglong(seed));
        rng.seed(seed);
        ScopedPrintDialog printing(false, QString());
        openWindow();
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));

        int mostGames = 0;
        for (int i = 0; i < actions; ++i) {
            act();
            problem = problem.isEmpty() ? disagreement() : problem;
            mostGames = std::max(mostGames, int(games.size()));
            if (!problem.isEmpty())
                QFAIL(qPrintable(u"seed %1, action %2: %3\nlast: %4"_s.arg(seed).arg(i + 1).arg(
                    problem, log.mid(log.size() - 40).join(u", "_s))));
        }
        QVERIFY2(printing.opened > 0, "never printed");
        // The full ledger is where the guards matter; a run this long reaches it.
        if (actions >= 5000)
            QVERIFY2(mostGames == 99, qPrintable(u"seed %1 never reached 99 games"_s.arg(seed)));
    }
};

QTEST_MAIN(ZufallsabendTest)
#include "ZufallsabendTest.moc"
