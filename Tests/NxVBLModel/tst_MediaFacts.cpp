// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/INxMediaInfo.h>
#include <NxVBLModel/INxMediaPart.h>
#include <NxVBLModel/INxResourceInfo.h>
#include <NxVBLModel/INxSecondaryMedia.h>
#include <NxVBLModel/NxImportReport.h>
#include <NxVBLModel/NxStreamInfo.h>

#include <Support/NxTestMain.h>

#include <QTest>

namespace {

struct PlainInfo final : INxMediaInfo
{
    int kind() const override { return NXVBLMODEL::mikVideo; }
    int streamFlags() const override { return NXVBLMODEL::sfVideo; }
};

struct Part final : INxMediaPart
{
    explicit Part(int k) : m_kind(k) {}
    int partKind() const override { return m_kind; }
    const int m_kind;
};

struct PlainResource final : INxResourceInfo
{
    qint64 resId() const override { return 7; }
};

struct SecondaryPhoto final : INxSecondaryMedia
{
    int secondaryKind() const override { return NXVBLMODEL::skPhoto; }
};

} // namespace

/// The records and small interfaces that describe a media.
class tst_MediaFacts : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void anInformationWithoutNumbersSaysSo();
    void aStreamIsUnknownUntilItIsRead();
    void aPartIsOfItsOwnKindAlone_data();
    void aPartIsOfItsOwnKindAlone();
    void aResourceIsFreeAndOfNoCategoryByDefault();
    void aSecondaryMediaIsReachedThroughItsInterface();
    void anEmptyReportCountsNothing();
};

void tst_MediaFacts::anInformationWithoutNumbersSaysSo()
{
    const PlainInfo info;
    QCOMPARE(info.frameCount(), qint64(0));
    QVERIFY(!info.frameRate().isValid());
    QCOMPARE(info.duration(), qint64(0));
    QVERIFY(!info.videoStream());
    QVERIFY(!info.audioStream());
    QVERIFY(!info.imageInfo());
    QVERIFY(info.canSeek());
    QCOMPARE(info.demuxer(), QString());
    QCOMPARE(info.videoBitRate(), qint64(0));
    QCOMPARE(info.audioBitRate(), qint64(0));
    QCOMPARE(info.timecode(), QString());
    QCOMPARE(info.reelName(), QString());
    QCOMPARE(info.textEncoding(), QString());
}

void tst_MediaFacts::aStreamIsUnknownUntilItIsRead()
{
    const NxVideoStreamInfo video;
    QVERIFY(!video.frameSize.isValid());
    QCOMPARE(video.rotation, 0);
    QCOMPARE(video.bitDepth, 0);
    QVERIFY(!video.variableFrameRate);
    const NxAudioStreamInfo audio;
    QCOMPARE(audio.sampleRate, 0);
    QCOMPARE(audio.channels, 0);
    QVERIFY(!NxImageInfo().size.isValid());
}

void tst_MediaFacts::aPartIsOfItsOwnKindAlone_data()
{
    QTest::addColumn<int>("own");
    QTest::addColumn<int>("asked");
    QTest::addColumn<bool>("is");
    QTest::newRow("a video is a video") << 1 << 1 << true;
    QTest::newRow("a video is no image") << 1 << 3 << false;
    QTest::newRow("an image is an image") << 3 << 3 << true;
    QTest::newRow("an image is no video") << 3 << 1 << false;
}

void tst_MediaFacts::aPartIsOfItsOwnKindAlone()
{
    QFETCH(int, own);
    QFETCH(int, asked);
    QFETCH(bool, is);
    QCOMPARE(Part(own).isPart(asked), is);
}

void tst_MediaFacts::aResourceIsFreeAndOfNoCategoryByDefault()
{
    const PlainResource resource;
    QCOMPARE(resource.paymentType(), int(NXVBLMODEL::ptFree));
    QCOMPARE(resource.attribute(), int(NXVBLMODEL::raNone));
    QCOMPARE(resource.category(), int(NXVBLMODEL::mctNone));
    QCOMPARE(resource.name(), QString());
}

void tst_MediaFacts::aSecondaryMediaIsReachedThroughItsInterface()
{
    const SecondaryPhoto photo;
    const INxSecondaryMedia &secondary = photo;
    QCOMPARE(secondary.secondaryKind(), 1);
}

void tst_MediaFacts::anEmptyReportCountsNothing()
{
    const NxImportReport report;
    QVERIFY(report.lines.isEmpty());
    const qint64 sum = report.found + report.added + report.alreadyThere + report.refused
                       + report.unreadable + report.cancelled + report.passedOverHidden
                       + report.passedOverOther + report.passedOverTwice + report.foldersAdded;
    QCOMPARE(sum, qint64(0));
}

NX_TEST_MAIN(tst_MediaFacts)
#include "tst_MediaFacts.moc"
