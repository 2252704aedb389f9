// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Thousands of random actions at the table, by button, shortcut and menu item, with any text in
// any field. A model follows what the user meant; after every action the ledger, the enabled
// controls and the sheet must agree with it. TAFELKASSE_SEED replays a run, TAFELKASSE_ACTIONS
// sets its length (5000).
#include "platform/Text.h"
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

    struct Spiel {
        int winner, east; // 0 to 3, as chosen in the dialog
        std::array<std::int64_t, 4> scores;
    };
    struct Modell {
        std::array<std::string, 4> names{StandardName(1), StandardName(2), StandardName(3), StandardName(4)};
        std::array<std::int64_t, 4> carry{};
        std::vector<Spiel> games;
        double size = 12;
        int beeps = 0;
    } model;
    std::mt19937_64 rng;
    QStringList log;
    bool answered = true; // whether the dialog that the last action expected came up
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
    void expect(std::function<void(QWidget *)> answer)
    {
        answered = false;
        whenModal([this, answer](QWidget *dialog) { answered = true, answer(dialog); });
    }

    QString randomText(bool name)
    {
        static const QStringList kinds{u""_s,           u"   "_s,        u"12.9"_s,  u"-3.7"_s,
                                       u"1e3"_s,        u" -2.5E2xyz"_s, u"1e400"_s, u"-99999999999999999999"_s,
                                       u"abc"_s,        u"+-5"_s,        u".5"_s,    u"9223372036854775807"_s,
                                       u"Mah 🀄 Jongg"_s};
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
            return QString::fromStdString(model.names[size_t(below(4))]); // an equal name
        }
    }

    // One of the ways to a command: its button, its menu item, its shortcut.
    void command(Spielstand &w, const QString &what, QPushButton *button, Qt::Key key, const char *item)
    {
        const int way = button ? below(key ? 3 : 2) : 1 + below(2);
        log << what + QStringList{u" (button)"_s, u" (menu)"_s, u" (shortcut)"_s}[way];
        if (way == 0) {
            QTest::mouseClick(button, Qt::LeftButton);
        } else if (way == 1) {
            w.findChild<QAction *>(QLatin1String(item))->trigger();
        } else {
            w.activateWindow();
            QTRY_VERIFY(QApplication::activeWindow() == &w);
            QTest::keyClick(&w, key, Qt::ControlModifier);
        }
    }

    void answerGame(QWidget *dialog, const char *field, bool correction)
    {
        Spiel spiel{below(4), below(4), {}};
        for (int k = 0; k < 4; ++k) {
            auto *edit = dialog->findChild<QLineEdit *>(QLatin1String(field) + QString::number(k + 1));
            if (!correction || below(2))
                type(edit, randomText(false));
            spiel.scores[size_t(k)] = ZahlAusText(edit->text().toStdString());
        }
        QTest::mouseClick(dialog->findChild<QRadioButton *>(u"Mahjongg_%1"_s.arg(spiel.winner + 1)), Qt::LeftButton);
        QTest::mouseClick(dialog->findChild<QRadioButton *>(u"Osten_%1"_s.arg(spiel.east + 1)), Qt::LeftButton);
        const bool ok = below(5) > 0;
        QTest::keyClick(dialog, ok ? Qt::Key_Return : Qt::Key_Escape);
        if (ok)
            correction ? void(model.games.back() = spiel) : model.games.push_back(spiel);
    }

    void answerNames(QWidget *dialog)
    {
        Modell next = model;
        for (int k = 0; k < 4; ++k) {
            const QString name = randomText(true), carry = randomText(false);
            type(dialog->findChild<QLineEdit *>(u"Name_%1"_s.arg(k + 1)), name);
            type(dialog->findChild<QLineEdit *>(u"Übertrag_%1"_s.arg(k + 1)), carry);
            next.names[size_t(k)] = name.isEmpty() ? StandardName(k + 1) : name.toStdString();
            next.carry[size_t(k)] = ZahlAusText(carry.toStdString());
        }
        const int way = below(3); // Abbruch, the close box, OK
        if (way == 1)
            dialog->close();
        else
            QTest::mouseClick(child<QPushButton>(dialog, way ? "OK_Name" : "Abbruch_Name"), Qt::LeftButton);
        if (way == 2)
            model = next;
    }

    void act(Spielstand &w)
    {
        const auto n = int(model.games.size());
        const int choice = below(300);
        if (choice < 150) {
            if (n < 99)
                expect([this](QWidget *d) { answerGame(d, "Ergebnis", false); });
            command(w, u"Ergebnisse"_s, w.Ergebnisse_Button, Qt::Key_E, "ErgebnisseErgebnisseeingeben");
        } else if (choice < 190) {
            if (n > 0)
                expect([this](QWidget *d) { answerGame(d, "Korrektur", true); });
            command(w, u"Korrektur"_s, w.Korrektur_Button, Qt::Key_K, "ErgebnisseKorrekturletztesSpiel");
        } else if (choice < 215) {
            if (n == 0)
                expect([this](QWidget *d) { answerNames(d); });
            command(w, u"Namen"_s, w.Namen_Button, Qt::Key(0), "ErgebnisseNamenderSpieler");
        } else if (choice < 218) {
            const bool ok = below(2);
            if (n > 0) {
                ++model.beeps;
                expect([ok](QWidget *d) { QTest::keyClick(d, ok ? Qt::Key_Return : Qt::Key_Escape); });
                if (ok)
                    model.games.clear(), model.carry = {};
            }
            command(w, ok ? u"Neustart OK"_s : u"Neustart Abbruch"_s, w.Neustart_Button, Qt::Key_N, "AblageNeu");
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
        QTest::qWait(0);
    }

    // Empty when ledger, controls and sheet agree with the model and with each other.
    QString disagreement(Spielstand &w, int beeps)
    {
        const Abend &a = Modul1;
        const auto n = std::int64_t(model.games.size());
        if (a.Spiel_Nr != n)
            return u"Spiel_Nr %1, expected %2"_s.arg(a.Spiel_Nr).arg(n);
        for (int k = 1; k <= 4; ++k) {
            if (a.Spieler(k) != model.names[size_t(k - 1)] || a.Stand(k)[0] != model.carry[size_t(k - 1)])
                return u"name or carry-over of player %1"_s.arg(k);
            for (std::int64_t i = 1; i <= n; ++i) {
                const Spiel &s = model.games[size_t(i - 1)];
                const auto r = size_t(i);
                const auto u = [&](int p) { return std::uint64_t(a.Umsatz(p)[r]); };
                if (a.Mahjongg[r] != model.names[size_t(s.winner)] || a.Osten[r] != model.names[size_t(s.east)]
                    || a.Ergebnis(k)[r] != s.scores[size_t(k - 1)] || u(1) + u(2) + u(3) + u(4) != 0
                    || std::uint64_t(a.Stand(k)[r]) != std::uint64_t(a.Stand(k)[r - 1]) + u(k))
                    return u"game %1 of player %2: names, score, balance or the turnovers' sum of 0"_s.arg(i).arg(k);
            }
        }
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
        SheetInputs inputs{a, w.Zeilen(), BlattSchrift()};
        if (expectedFrom != inputs) {
            expectedImage = SheetImage::fromPieces(
                Dokument(inputs.abend, inputs.zeilen, inputs.schrift, a.Tagesdatum->ToString()).Stuecke);
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
        ScopedBeepCounter beeps;
        ScopedFontList fonts({"Courier", "Palatino"});
        ScopedPrintDialog printing(false, QString());
        Modul1 = Abend{};
        Spielstand window;
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));

        int mostGames = 0;
        for (int i = 0; i < actions; ++i) {
            act(window);
            const QString problem = answered ? disagreement(window, beeps.beeps) : u"the dialog did not come up"_s;
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
