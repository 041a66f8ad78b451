// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "FakeLibrary.h"

#include <Brevano/commands/ColumnTexts.h>
#include <Support/NxTestMain.h>

#include <QtTest>

using namespace NXVBLMODEL;

class tst_ColumnTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyColumnOfMediaHasItsText();
    void whatIsNotKnownIsEmpty();
    void frameRatesHaveTwoDigitsAtMost_data();
    void frameRatesHaveTwoDigitsAtMost();
    void aRateTellsSoundWithoutAText();
    void everyColumnOfResourcesHasItsText();
};

void tst_ColumnTexts::everyColumnOfMediaHasItsText()
{
    FakeFolder folder(QStringLiteral("Project Media"), fkProject);
    FakeItem *media = folder.addItem(QStringLiteral("/f/a.mp4"));
    media->used = 3;
    media->info.rate = {25, 1};
    media->info.frames = 25 * 61 + 5;
    media->info.video.frameSize = QSize(1920, 1080);
    media->in = 30;
    media->out = 50;
    media->sound = QStringLiteral("48000 Hz, 2 ch");
    media->created = QDateTime(QDate(2026, 7, 1), QTime(9, 8, 7));
    const QStringList expected{
        QStringLiteral("a.mp4"),          QStringLiteral("3"),
        QStringLiteral("video"),          QStringLiteral("25"),
        QStringLiteral("00:00:01:05"),    QStringLiteral("00:00:02:00"),
        QStringLiteral("00:01:01:05"),    QStringLiteral("1920 x 1080"),
        QStringLiteral("48000 Hz, 2 ch"), QStringLiteral("2026/07/01 09:08:07")};
    QCOMPARE(ColumnTexts::of(*media, mctMedia), expected);
}

void tst_ColumnTexts::whatIsNotKnownIsEmpty()
{
    FakeFolder folder(QStringLiteral("Project Media"), fkProject);
    const FakeItem *media = folder.addItem(QStringLiteral("/f/a.mp4"));
    const QStringList expected{QStringLiteral("a.mp4"),
                               QStringLiteral("0"),
                               QStringLiteral("video"),
                               QString(),
                               QString(),
                               QString(),
                               QString(),
                               QString(),
                               QString(),
                               QString()};
    QCOMPARE(ColumnTexts::of(*media, mctMedia), expected);
}

void tst_ColumnTexts::frameRatesHaveTwoDigitsAtMost_data()
{
    QTest::addColumn<int>("num");
    QTest::addColumn<int>("den");
    QTest::addColumn<QString>("text");

    QTest::newRow("film from video") << 24000 << 1001 << "23.98";
    QTest::newRow("NTSC") << 30000 << 1001 << "29.97";
    QTest::newRow("whole") << 60 << 1 << "60";
    QTest::newRow("half") << 25 << 2 << "12.5";
    QTest::newRow("unknown") << 0 << 0 << "";
    QTest::newRow("nonsense") << 0 << 1 << "";
}

void tst_ColumnTexts::frameRatesHaveTwoDigitsAtMost()
{
    QFETCH(int, num);
    QFETCH(int, den);
    QFETCH(QString, text);

    FakeFolder folder(QStringLiteral("Project Media"), fkProject);
    FakeItem *media = folder.addItem(QStringLiteral("/f/a.mp4"));
    media->info.rate = {num, den};
    QCOMPARE(ColumnTexts::of(*media, mctMedia).at(3), text);
}

void tst_ColumnTexts::aRateTellsSoundWithoutAText()
{
    FakeFolder folder(QStringLiteral("Project Media"), fkProject);
    FakeItem *media = folder.addItem(QStringLiteral("/f/a.wav"));
    media->type = mtAudio;
    media->info.flags = sfAudio;
    media->info.audio.sampleRate = 44100;
    const QStringList texts = ColumnTexts::of(*media, mctMedia);
    QCOMPARE(texts.at(2), QStringLiteral("audio"));
    QCOMPARE(texts.at(8), QStringLiteral("44100 Hz"));
}

void tst_ColumnTexts::everyColumnOfResourcesHasItsText()
{
    FakeFolder folder(QStringLiteral("All"), fkUserSection);
    FakeItem *media = folder.addItem(QStringLiteral("Blur 1"));
    media->category = QStringLiteral("Blurs");
    const QString library = QStringLiteral("All");
    QStringList expected{QStringLiteral("Blur 1"), library, QString(), QStringLiteral("Blurs"),
                         QString()};
    QCOMPARE(ColumnTexts::of(*media, mctEffect), expected);
    media->favourite = true;
    expected[2] = QStringLiteral("yes");
    QCOMPARE(ColumnTexts::of(*media, mctEffect), expected);
}

NX_TEST_MAIN(tst_ColumnTexts)
#include "tst_ColumnTexts.moc"
