// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/NxText.h>

#include <Support/NxTestMain.h>

#include <QTest>

class tst_NxText : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void writesMoments_data();
    void writesMoments();
    void readsMoments_data();
    void readsMoments();
    void showsBytes_data();
    void showsBytes();
};

void tst_NxText::writesMoments_data()
{
    QTest::addColumn<qint64>("msecs");
    QTest::addColumn<QString>("text");

    QTest::newRow("whole second") << Q_INT64_C(1795254758000)
                                  << QStringLiteral("2026-11-21T09:52:38Z");
    QTest::newRow("milliseconds") << Q_INT64_C(1795254758007)
                                  << QStringLiteral("2026-11-21T09:52:38.007Z");
    QTest::newRow("the beginning") << Q_INT64_C(0) << QStringLiteral("1970-01-01T00:00:00Z");
    QTest::newRow("before the beginning")
        << Q_INT64_C(-1) << QStringLiteral("1969-12-31T23:59:59.999Z");
    QTest::newRow("beyond the year 9999") << Q_INT64_C(253402300800000) << QString();
}

void tst_NxText::writesMoments()
{
    QFETCH(qint64, msecs);
    QFETCH(QString, text);
    QCOMPARE(NxText::isoUtc(msecs), text);
    if (!text.isEmpty())
        QCOMPARE(NxText::parseIsoUtc(text).value_or(-42), msecs);
}

void tst_NxText::readsMoments_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("valid");
    QTest::addColumn<qint64>("msecs");

    const qint64 moment = Q_INT64_C(1795254758000);
    QTest::newRow("UTC") << QStringLiteral("2026-11-21T09:52:38Z") << true << moment;
    QTest::newRow("with milliseconds")
        << QStringLiteral("2026-11-21T09:52:38.250Z") << true << moment + 250;
    QTest::newRow("east of Greenwich")
        << QStringLiteral("2026-11-21T11:52:38+02:00") << true << moment;
    QTest::newRow("west of Greenwich")
        << QStringLiteral("2026-11-21T04:22:38-05:30") << true << moment;
    QTest::newRow("without a zone") << QStringLiteral("2026-11-21T09:52:38") << false << qint64(0);
    QTest::newRow("no such day") << QStringLiteral("2026-02-30T09:52:38Z") << false << qint64(0);
    QTest::newRow("no time at all") << QStringLiteral("yesterday") << false << qint64(0);
    QTest::newRow("empty") << QString() << false << qint64(0);
}

void tst_NxText::readsMoments()
{
    QFETCH(QString, text);
    QFETCH(bool, valid);
    QFETCH(qint64, msecs);
    const std::optional<qint64> moment = NxText::parseIsoUtc(text);
    QCOMPARE(moment.has_value(), valid);
    QCOMPARE(moment.value_or(0), msecs);
}

void tst_NxText::showsBytes_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("utf8");
    QTest::addColumn<QString>("shown");

    QTest::newRow("plain") << QByteArray("clip.mp4") << true << QStringLiteral("clip.mp4");
    QTest::newRow("empty") << QByteArray() << true << QString();
    QTest::newRow("umlaut") << QByteArray("gr\xc3\xbc\xc3\x9f") << true << QStringLiteral("grüß");
    QTest::newRow("emoji") << QByteArray("\xf0\x9f\x8e\xac.mov") << true
                           << QStringLiteral("\U0001F3AC.mov");
    QTest::newRow("Latin-1") << QByteArray("caf\xe9.mp4") << false
                             << QStringLiteral("caf\\xe9.mp4");
    QTest::newRow("cut off") << QByteArray("a\xf0\x9f\x8e") << false
                             << QStringLiteral("a\\xf0\\x9f\\x8e");
    QTest::newRow("overlong") << QByteArray("\xc0\xaf") << false << QStringLiteral("\\xc0\\xaf");
    QTest::newRow("overlong, three bytes")
        << QByteArray("\xe0\x80\xaf") << false << QStringLiteral("\\xe0\\x80\\xaf");
    QTest::newRow("surrogate") << QByteArray("\xed\xa0\x80") << false
                               << QStringLiteral("\\xed\\xa0\\x80");
    QTest::newRow("beyond Unicode")
        << QByteArray("\xf4\x90\x80\x80") << false << QStringLiteral("\\xf4\\x90\\x80\\x80");
    QTest::newRow("stray continuation, good rest")
        << QByteArray("\x80ü") << false << QStringLiteral("\\x80ü");
}

void tst_NxText::showsBytes()
{
    QFETCH(QByteArray, bytes);
    QFETCH(bool, utf8);
    QFETCH(QString, shown);
    QCOMPARE(NxText::isUtf8(bytes), utf8);
    QCOMPARE(NxText::displayBytes(bytes), shown);
}

NX_TEST_MAIN(tst_NxText)
#include "tst_NxText.moc"
