// SPDX-FileCopyrightText: 2026 Tafelkasse developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// Numbers as the evening reads and writes them: what Val makes of a typed text and what is
// left of it after the cut to a whole number, the cut at the ends of the 64-bit range, the
// decimal text of a number, and the date of the evening as the sheet shows it.

#include "platform/DateTime.h"
#include "platform/Text.h"
#include "support/Doubles.h"

#include <QTest>

#include <cmath>
#include <cstdint>
#include <limits>

namespace {

constexpr double inf = std::numeric_limits<double>::infinity();
constexpr qint64 int64Max = std::numeric_limits<qint64>::max();
constexpr qint64 int64Min = std::numeric_limits<qint64>::min();
constexpr double twoTo63 = 9223372036854775808.0;

} // namespace

class TextTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void typedTextBecomesNumber_data();
    void typedTextBecomesNumber();
    void cutStaysInsideTheRange_data();
    void cutStaysInsideTheRange();
    void strWritesPlainDecimal_data();
    void strWritesPlainDecimal();
    void dateShowsDateAndTimeInGerman();
};

void TextTest::typedTextBecomesNumber_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<double>("value");
    QTest::addColumn<qint64>("whole");

    const QByteArray digits400 = "1" + QByteArray(399, '0');

    QTest::newRow("empty") << QByteArray() << 0.0 << qint64(0);
    QTest::newRow("blanks only") << QByteArray("   ") << 0.0 << qint64(0);
    QTest::newRow("junk") << QByteArray("abc") << 0.0 << qint64(0);
    QTest::newRow("fraction cut down") << QByteArray("12.9") << 12.9 << qint64(12);
    QTest::newRow("negative fraction cut up") << QByteArray("-3.7") << -3.7 << qint64(-3);
    QTest::newRow("plus sign") << QByteArray("+5") << 5.0 << qint64(5);
    QTest::newRow("blanks then junk behind") << QByteArray("  42abc") << 42.0 << qint64(42);
    QTest::newRow("tab in front") << QByteArray("\t7") << 7.0 << qint64(7);
    QTest::newRow("point first") << QByteArray(".5") << 0.5 << qint64(0);
    QTest::newRow("point last") << QByteArray("5.") << 5.0 << qint64(5);
    QTest::newRow("exponent") << QByteArray("1e3") << 1000.0 << qint64(1000);
    QTest::newRow("exponent without digits") << QByteArray("1e") << 1.0 << qint64(1);
    QTest::newRow("signed exponent then junk") << QByteArray("1e+2x") << 100.0 << qint64(100);
    QTest::newRow("negative with exponent") << QByteArray("-1.5e1") << -15.0 << qint64(-15);
    QTest::newRow("too large for a double") << QByteArray("1e400") << inf << int64Max;
    QTest::newRow("too large, negative") << QByteArray("-1e400") << -inf << int64Min;
    QTest::newRow("too small for a double") << QByteArray("1e-400") << 0.0 << qint64(0);
    QTest::newRow("exponent beyond any counter") << QByteArray("1e99999999999999999999") << inf << int64Max;
    QTest::newRow("largest int64 in digits") << QByteArray("9223372036854775807") << twoTo63 << int64Max;
    QTest::newRow("2^63 in digits") << QByteArray("9223372036854775808") << twoTo63 << int64Max;
    QTest::newRow("below smallest int64") << QByteArray("-9223372036854775809") << -twoTo63 << int64Min;
    QTest::newRow("400 digits") << digits400 << inf << int64Max;
    QTest::newRow("comma is junk") << QByteArray("12,9") << 12.0 << qint64(12);
    QTest::newRow("hex is zero and junk") << QByteArray("0x10") << 0.0 << qint64(0);
    QTest::newRow("two signs") << QByteArray("--5") << 0.0 << qint64(0);
    QTest::newRow("euro sign in front") << QByteArray("€5") << 0.0 << qint64(0);
}

void TextTest::typedTextBecomesNumber()
{
    QFETCH(QByteArray, text);
    QFETCH(double, value);
    QFETCH(qint64, whole);

    const std::string_view view(text.constData(), static_cast<std::size_t>(text.size()));
    const double actual = Val(view);
    // Exact: the reading must be the nearest double, and infinities must keep their sign.
    QVERIFY2(actual == value,
             QByteArray::number(actual, 'g', 17) + " instead of " + QByteArray::number(value, 'g', 17));
    QCOMPARE(qint64(CutToInt64(actual)), whole);
    QCOMPARE(qint64(ZahlAusText(view)), whole);
}

void TextTest::cutStaysInsideTheRange_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<qint64>("whole");

    QTest::newRow("NaN") << std::nan("") << qint64(0);
    QTest::newRow("+inf") << inf << int64Max;
    QTest::newRow("-inf") << -inf << int64Min;
    QTest::newRow("2^63") << twoTo63 << int64Max;
    QTest::newRow("just below 2^63") << std::nextafter(twoTo63, 0.0) << qint64(9223372036854774784);
    QTest::newRow("-2^63") << -twoTo63 << int64Min;
    QTest::newRow("just below -2^63") << std::nextafter(-twoTo63, -inf) << int64Min;
    QTest::newRow("just below one") << 0.9999999999 << qint64(0);
}

void TextTest::cutStaysInsideTheRange()
{
    QFETCH(double, value);
    QFETCH(qint64, whole);

    QCOMPARE(qint64(CutToInt64(value)), whole);
}

void TextTest::strWritesPlainDecimal_data()
{
    QTest::addColumn<qint64>("value");
    QTest::addColumn<QByteArray>("text");

    QTest::newRow("zero") << qint64(0) << QByteArray("0");
    QTest::newRow("minus one") << qint64(-1) << QByteArray("-1");
    QTest::newRow("no separators") << qint64(-1234567) << QByteArray("-1234567");
    QTest::newRow("largest") << int64Max << QByteArray("9223372036854775807");
    QTest::newRow("smallest") << int64Min << QByteArray("-9223372036854775808");
}

void TextTest::strWritesPlainDecimal()
{
    QFETCH(qint64, value);
    QFETCH(QByteArray, text);

    QCOMPARE(QByteArray::fromStdString(Str(value)), text);
    // The correction form shows a score through Str and reads it back through Val: the
    // round trip must give the same number, at the ends of the range too.
    QCOMPARE(qint64(ZahlAusText(Str(value))), value);
}

void TextTest::dateShowsDateAndTimeInGerman()
{
    const FixedClock clock;
    QCOMPARE(QString::fromStdString(DateTime::Now().ToString()), QStringLiteral("12.03.2021, 19:30:00"));
}

QTEST_APPLESS_MAIN(TextTest)

#include "TextTest.moc"
