// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Thousands of random actions at the table, by button, shortcut and menu item, with any text in
// any field. A model follows what the user meant: the names and each game as they stand. After
// every action the ledger must be the evening as if each had been entered once so, and the enabled
// controls, the beeps, the text size and the sheet must agree with it. TAFELKASSE_SEED replays a
// run, TAFELKASSE_ACTIONS sets its length (5000).
#include "ledger/Eingabe.h"
#include "support/Desktop.h"
#include "support/Doubles.h"
#include "support/Modal.h"
#include "support/PrintDoubles.h"
#include "support/SheetImage.h"
#include "windows/Spielstand.h"

#include <QAction>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTextEdit>

#include <optional>
#include <random>

using namespace Qt::StringLiterals;

class ZufallsabendTest : public QObject {
    Q_OBJECT

    struct Modell {
        NamesForm names; // as last confirmed
        std::vector<ResultForm> games; // each as it stands after its corrections
        double size = 12;
        int beeps = 0;
        // The ledger as if the names and then each game had been entered once, as they stand now;
        // the date and the flags that the dialogs leave are taken from `now`.
        Abend abend(const Abend &now) const
        {
            Abend a;
            Namen_OK(a, names);
            for (const ResultForm &game : games)
                Ergebnisse_OK(a, game);
            a.Tagesdatum = now.Tagesdatum, a.Gute_Eingabe = now.Gute_Eingabe, a.DruckKnopf = now.DruckKnopf;
            return a;
        }
    } model;
    std::mt19937_64 rng;
    QStringList log;
    QString problem; // with the dialogs of the last action
    struct SheetInputs { // all that the sheet is made of
        Abend abend;
        Ueberschriften zeilen;
        std::string schrift;
        friend bool operator==(const SheetInputs &, const SheetInputs &) = default;
    };
    std::optional<SheetInputs> expectedFrom; // what expectedImage was made of
    SheetImage expectedImage;

    int below(int n) { return int(rng() % unsigned(n)); }
    static void type(QLineEdit *field, const QString &text) { field->selectAll(), field->insert(text); }

    QString randomText(bool name)
    {
        static const QStringList kinds
            = u"|   |12.9|-3.7|1e3| -2.5E2xyz|1e400|-99999999999999999999|abc|+-5|.5|9223372036854775807|Mah 🀄 Jongg"_s
                  .split(u'|');
        switch (below(name ? 5 : 4)) {
        case 0:
            return kinds[below(int(kinds.size()))];
        case 1:
            return QString::number(qint64(below(2001) - 1000));
        case 2:
            return QString::number(qint64(rng()));
        case 3: // a name longer than a line of the sheet, which wraps it; a score beyond 64 bits
            return name ? u"Äöü ß "_s.repeated(below(40)) : u"7"_s.repeated(below(40));
        default:
            return QString::fromStdString(Modul1.Spieler(1 + below(4))); // an equal name
        }
    }

    // One of the ways to a command: its button, its menu item, its shortcut. `answer` answers the dialog
    // that it must open; without one, it must open none.
    void command(Spielstand &w, const QString &what, QPushButton *button, Qt::Key key, const char *item,
                 const std::function<void(QWidget *)> &answer = {})
    {
        const int way = button ? below(key ? 3 : 2) : 1 + below(2);
        log << what + QStringList{u" (button)"_s, u" (menu)"_s, u" (shortcut)"_s}[way];
        const bool ran = answered(
            answer ? answer : [](QWidget *d) { d->close(); },
            [&] {
                if (way == 0) {
                    QTest::mouseClick(button, Qt::LeftButton);
                } else if (way == 1) {
                    w.findChild<QAction *>(QLatin1String(item))->trigger();
                } else {
                    w.activateWindow();
                    QTRY_VERIFY(QApplication::activeWindow() == &w);
                    QTest::keyClick(&w, key, Qt::ControlModifier);
                }
            });
        if (ran != bool(answer))
            problem = ran ? u"a dialog came up where none may"_s : u"the dialog did not come up"_s;
    }

    void answerGame(QWidget *dialog, const char *field, bool correction)
    {
        ResultForm spiel{{}, 1 + below(4), 1 + below(4)};
        for (int k = 0; k < 4; ++k) {
            auto *edit = dialog->findChild<QLineEdit *>(QLatin1String(field) + QString::number(k + 1));
            if (!correction || below(2))
                type(edit, randomText(false));
            spiel.ScoreText[size_t(k)] = edit->text().toStdString();
        }
        QTest::mouseClick(dialog->findChild<QRadioButton *>(u"Mahjongg_%1"_s.arg(spiel.MahjonggChoice)),
                          Qt::LeftButton);
        QTest::mouseClick(dialog->findChild<QRadioButton *>(u"Osten_%1"_s.arg(spiel.OstenChoice)), Qt::LeftButton);
        const bool ok = below(5) > 0;
        QTest::keyClick(dialog, ok ? Qt::Key_Return : Qt::Key_Escape);
        if (ok)
            correction ? void(model.games.back() = spiel) : model.games.push_back(spiel);
    }

    void answerNames(QWidget *dialog)
    {
        NamesForm next;
        for (int k = 0; k < 4; ++k) {
            const QString name = randomText(true), carry = randomText(false);
            type(dialog->findChild<QLineEdit *>(u"Name_%1"_s.arg(k + 1)), name);
            type(dialog->findChild<QLineEdit *>(u"Übertrag_%1"_s.arg(k + 1)), carry);
            next.Name[size_t(k)] = name.toStdString(), next.Uebertrag[size_t(k)] = carry.toStdString();
        }
        const int way = below(3); // Abbruch, the close box, OK
        if (way == 1)
            dialog->close();
        else
            QTest::mouseClick(child<QPushButton>(dialog, way ? "OK_Name" : "Abbruch_Name"), Qt::LeftButton);
        if (way == 2)
            model.names = next;
    }

    void act(Spielstand &w)
    {
        const auto n = int(model.games.size());
        const int choice = below(300);
        using Answer = std::function<void(QWidget *)>;
        if (choice < 150) {
            command(w, u"Ergebnisse"_s, w.Ergebnisse_Button, Qt::Key_E, "ErgebnisseErgebnisseeingeben",
                    n < 99 ? Answer([this](QWidget *d) { answerGame(d, "Ergebnis", false); }) : Answer());
        } else if (choice < 190) {
            command(w, u"Korrektur"_s, w.Korrektur_Button, Qt::Key_K, "ErgebnisseKorrekturletztesSpiel",
                    n > 0 ? Answer([this](QWidget *d) { answerGame(d, "Korrektur", true); }) : Answer());
        } else if (choice < 215) {
            command(w, u"Namen"_s, w.Namen_Button, Qt::Key(0), "ErgebnisseNamenderSpieler",
                    n == 0 ? Answer([this](QWidget *d) { answerNames(d); }) : Answer());
        } else if (choice < 218) {
            const bool ok = below(2);
            command(w, ok ? u"Neustart OK"_s : u"Neustart Abbruch"_s, w.Neustart_Button, Qt::Key_N, "AblageNeu",
                    n > 0 ? Answer([ok](QWidget *d) { QTest::keyClick(d, ok ? Qt::Key_Return : Qt::Key_Escape); })
                          : Answer());
            if (n > 0 && ok)
                model.games.clear(), model.names.Uebertrag = {};
            model.beeps += n > 0;
        } else if (choice < 280) {
            const int which = below(3); // größer, Standard, kleiner
            log << QStringList{u"größer"_s, u"Standard"_s, u"kleiner"_s}[which];
            QTest::mouseClick(QList{w.PushButton1, w.PushButton2, w.PushButton6}[which], Qt::LeftButton);
            if (which == 2 && model.size == 1)
                ++model.beeps;
            else
                model.size = which == 0 ? model.size + 1 : which == 1 ? 12 : model.size - 1;
        } else if (choice < 285) {
            command(w, u"Drucken"_s, nullptr, Qt::Key_P, "AblageDrucken"); // cancelled: nothing changes
        } else {
            command(w, u"Über"_s, w.Ueber_Button, Qt::Key_I, "AppleTafelkasse");
            QWidget *about = w.findChild<QWidget *>(u"UeberTafelkasse"_s);
            QVERIFY(about && about->isVisible());
            below(2) ? QTest::mouseClick(about, Qt::LeftButton) : void(about->close());
        }
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // a closed about window goes
    }

    // Empty when ledger, controls and sheet agree with the model and with each other.
    QString disagreement(Spielstand &w, int beeps)
    {
        const auto n = std::int64_t(model.games.size());
        if (!(Modul1 == model.abend(Modul1)))
            return u"the ledger of %1 games is not the evening of %2 games as they were entered"_s.arg(Modul1.Spiel_Nr)
                .arg(n);
        // Names, new game, correction, restart: as buttons, then as menu items.
        QList<bool> enabled{w.Namen_Button->isEnabled(), w.Ergebnisse_Button->isEnabled(),
                            w.Korrektur_Button->isEnabled(), w.Neustart_Button->isEnabled()};
        for (const char *name : {"ErgebnisseNamenderSpieler", "ErgebnisseErgebnisseeingeben",
                                 "ErgebnisseKorrekturletztesSpiel", "AblageNeu"})
            enabled << w.findChild<QAction *>(QLatin1String(name))->isEnabled();
        const QList<bool> expected{n == 0, (n < 99), n > 0, n > 0};
        if (enabled != expected + expected || !w.findChild<QAction *>(u"AppleTafelkasse"_s)->isEnabled())
            return u"buttons or menu items at %1 games"_s.arg(n);
        if (beeps != model.beeps || w.Anzeige->font().pointSizeF() != model.size)
            return u"%1 beeps at size %2, expected %3 at %4"_s.arg(beeps)
                .arg(w.Anzeige->font().pointSizeF())
                .arg(model.beeps)
                .arg(model.size);
        // Most actions leave the ledger alone, and the same inputs make the same sheet.
        SheetInputs inputs{Modul1, w.Zeilen(), BlattSchrift()};
        if (expectedFrom != inputs) {
            expectedImage = SheetImage::fromPieces(
                Dokument(inputs.abend, inputs.zeilen, inputs.schrift, Modul1.Tagesdatum->ToString()).Stuecke);
            expectedFrom = std::move(inputs);
        }
        return SheetImage::firstDifference(SheetImage::fromDocument(*w.Anzeige->document()), expectedImage);
    }

private Q_SLOTS:
    void thousandsOfActionsKeepLedgerControlsAndSheetTrue()
    {
        const QByteArray seedText = qgetenv("TAFELKASSE_SEED");
        const std::uint64_t seed = seedText.isEmpty() ? std::random_device{}() : seedText.toULongLong();
        const int actions = qEnvironmentVariableIsSet("TAFELKASSE_ACTIONS")
            ? qEnvironmentVariableIntValue("TAFELKASSE_ACTIONS")
            : 5000;
        qInfo("seed %llu (TAFELKASSE_SEED=%llu replays this run)", qulonglong(seed), qulonglong(seed));
        rng.seed(seed);
        FixedClock clock;
        const GermanDates dates;
        ScopedBeepCounter beeps;
        ScopedFontList fonts({"Courier", "Palatino"});
        ScopedPrintDialog printing(false, QString());
        Modul1 = Abend{};
        Spielstand window;
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));

        int mostGames = 0;
        for (int i = 0; i < actions; ++i) {
            problem.clear();
            act(window);
            if (problem.isEmpty())
                problem = disagreement(window, beeps.beeps);
            mostGames = std::max(mostGames, int(model.games.size()));
            if (!problem.isEmpty()) {
                const QString last = log.mid(std::max<qsizetype>(0, log.size() - 40)).join(u", "_s);
                QFAIL(qPrintable(u"seed %1, action %2: %3\nlast: %4"_s.arg(seed).arg(i + 1).arg(problem, last)));
            }
        }
        QVERIFY2(printing.opened > 0, "never printed");
        // The full ledger is where the guards matter; a run this long reaches it.
        if (actions >= 5000)
            QVERIFY2(mostGames == 99, qPrintable(u"seed %1 never reached 99 games"_s.arg(seed)));
    }
};

QTEST_MAIN(ZufallsabendTest)
#include "ZufallsabendTest.moc"
