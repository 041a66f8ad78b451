// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/NxDesktopService.h>

#include <Support/NxTestMain.h>

#include <QTest>
#include <QUrl>

class tst_NxDesktopService : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void opensAddresses_data();
    void opensAddresses();
    void refusesWhatIsNoAddress_data();
    void refusesWhatIsNoAddress();
    void reportsWhatCannotBeOpened();

    void cleanup() { NxDesktopService::setOpener({}); }
};

void tst_NxDesktopService::opensAddresses_data()
{
    QTest::addColumn<QString>("address");

    QTest::newRow("web page") << QStringLiteral("https://example.org/a?b=c#d");
    QTest::newRow("file") << QStringLiteral("file:///home/zoe/clip.mp4");
}

void tst_NxDesktopService::opensAddresses()
{
    QFETCH(QString, address);
    QList<QUrl> opened;
    NxDesktopService::setOpener([&opened](const QUrl &url) {
        opened += url;
        return true;
    });
    QVERIFY(NxDesktopService::openURL(address));
    QCOMPARE(opened, QList<QUrl>{QUrl(address)});
}

void tst_NxDesktopService::refusesWhatIsNoAddress_data()
{
    QTest::addColumn<QString>("address");

    QTest::newRow("empty") << QString();
    QTest::newRow("no scheme") << QStringLiteral("example.org/hevc");
    QTest::newRow("blank in the host") << QStringLiteral("https://exam ple.org");
    QTest::newRow("scheme alone") << QStringLiteral("https://:80x");
}

void tst_NxDesktopService::refusesWhatIsNoAddress()
{
    QFETCH(QString, address);
    bool wasOpened = false;
    NxDesktopService::setOpener([&wasOpened](const QUrl &) { return wasOpened = true; });
    NxTestLog::expectError(
        QStringLiteral("\"%1\" is no address that could be opened").arg(address));
    QVERIFY(!NxDesktopService::openURL(address));
    QVERIFY(!wasOpened);
}

void tst_NxDesktopService::reportsWhatCannotBeOpened()
{
    NxDesktopService::setOpener([](const QUrl &) { return false; });
    NxTestLog::expectError(QStringLiteral("https://example.org could not be opened"));
    QVERIFY(!NxDesktopService::openURL(QStringLiteral("https://example.org")));
}

NX_TEST_MAIN(tst_NxDesktopService)
#include "tst_NxDesktopService.moc"
