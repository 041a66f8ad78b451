// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxWorkerProtocol/NxPictureFile.h>

#include <Support/NxTestMain.h>

#include <QSet>
#include <QtTest>

class tst_NxPictureFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theNameTellsContentsAndKind()
    {
        // Caches are full of such names: another one makes every picture anew.
        const NxFingerprint fingerprint{6291456, 0x3F0C'0000'0000'00A1ULL, 0xFULL};
        const QString contents = QStringLiteral("3f/3f0c0000000000a1000000000000000f");
        QCOMPARE(NxPictureFile::name(fingerprint, NxPictureKind::Cover),
                 contents + QStringLiteral("-1-6291456-cover-1.jpg"));
        QCOMPARE(NxPictureFile::name(fingerprint, NxPictureKind::Strip),
                 contents + QStringLiteral("-1-6291456-strip-1.jpg"));
    }

    void otherContentsHaveAnotherName()
    {
        QSet<QString> names;
        const NxFingerprint fingerprints[] = {
            {1, 0, 0}, {2, 0, 0}, {1, 1, 0}, {1, 0, 1}, {1, quint64(1) << 63, 0}};
        for (const NxFingerprint &fingerprint : fingerprints) {
            for (const NxPictureKind kind : {NxPictureKind::Cover, NxPictureKind::Strip})
                names.insert(NxPictureFile::name(fingerprint, kind));
        }
        QCOMPARE(names.size(), 10);
    }

    void momentsStandInTheMiddleOfTheirTenths()
    {
        constexpr qint64 tenSeconds = 10'000'000;
        QCOMPARE(NxPictureFile::momentUs(0, tenSeconds), qint64(500'000));
        QCOMPARE(NxPictureFile::momentUs(9, tenSeconds), qint64(9'500'000));
        QCOMPARE(NxPictureFile::coverMomentUs(tenSeconds), qint64(1'000'000));
    }

    void momentsAscendWithinTheFilm_data()
    {
        QTest::addColumn<qint64>("duration");
        QTest::newRow("ten frames") << qint64(400'000);
        QTest::newRow("an hour") << qint64(3'600'000'000);
        QTest::newRow("a thousand years") << qint64(1000) * 366 * 86'400 * 1'000'000;
    }

    void momentsAscendWithinTheFilm()
    {
        QFETCH(qint64, duration);
        qint64 previous = -1;
        for (int moment = 0; moment < NxPictureFile::Moments; ++moment) {
            const qint64 at = NxPictureFile::momentUs(moment, duration);
            QVERIFY(at > previous);
            QVERIFY(at < duration);
            previous = at;
        }
    }

    void aFilmWithoutLengthIsShownByItsBeginning()
    {
        QCOMPARE(NxPictureFile::momentUs(9, 0), qint64(0));
        QCOMPARE(NxPictureFile::coverMomentUs(0), qint64(0));
    }

    void aStripStacksSixtyFrames()
    {
        QCOMPARE(NxPictureFile::StripHeight, 60 * NxPictureFile::FrameHeight);
        QCOMPARE(NxPictureFile::StripHeight, 4860);
    }
};

NX_TEST_MAIN(tst_NxPictureFile)
#include "tst_NxPictureFile.moc"
