// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// What becomes of a typed text: Val reads the number at its start, and the cut to a whole
// number goes toward zero and stops at the ends of the 64-bit range.

#include "platform/Text.h"

#include <QTest>

#include <climits>
#include <cmath>

class TextTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void typedTextBecomesNumber_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<qint64>("number");
        QTest::newRow("junk") << QByteArray("abc") << qint64(0);
        QTest::newRow("cut down") << QByteArray("12.9") << qint64(12);
        QTest::newRow("cut up") << QByteArray("-3.7") << qint64(-3);
        QTest::newRow("blanks in front, comma behind") << QByteArray("\t 12,9") << qint64(12);
        QTest::newRow("point first, exponent") << QByteArray(".5e1") << qint64(5);
        QTest::newRow("plus, signed exponent, junk") << QByteArray("+1.5e+1x") << qint64(15);
        QTest::newRow("too large for a double") << QByteArray("1e400") << qint64(LLONG_MAX);
        QTest::newRow("too large, negative") << QByteArray("-1e400") << qint64(LLONG_MIN);
        QTest::newRow("too small for a double") << QByteArray("1e-400") << qint64(0);
        QTest::newRow("too small, written long") << "0." + QByteArray(400, '0') + "1e50" << qint64(0);
        QTest::newRow("400 digits") << "1" + QByteArray(399, '0') << qint64(LLONG_MAX);
        QTest::newRow("exponent beyond any counter") << QByteArray("1e99999999999999999999") << qint64(LLONG_MAX);
        QTest::newRow("largest int64") << QByteArray("9223372036854775807") << qint64(LLONG_MAX);
        QTest::newRow("largest double below 2^63") << QByteArray("9223372036854774784") << qint64(9223372036854774784);
        QTest::newRow("just below -2^63") << QByteArray("-9223372036854777856") << qint64(LLONG_MIN);
    }

    void typedTextBecomesNumber()
    {
        QFETCH(QByteArray, text);
        QFETCH(qint64, number);
        QCOMPARE(ZahlAusText(text.toStdString()), number);
    }

    void notANumberCutsToZero() { QCOMPARE(CutToInt64(std::nan("")), 0); }
};

QTEST_APPLESS_MAIN(TextTest)

#include "TextTest.moc"
