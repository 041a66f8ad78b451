// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/reading/NxReadRequests.h>

#include <Support/NxTestMain.h>

#include <QFile>
#include <QTest>

Q_DECLARE_METATYPE(NxFootageRoad)

class tst_NxReadRequests : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void theSuffixDecidesTheRoad_data();
    void theSuffixDecidesTheRoad();
    void whatIsAskedStandsInTheRequest();
};

void tst_NxReadRequests::theSuffixDecidesTheRoad_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<NxFootageRoad>("road");
    QTest::newRow("film") << QStringLiteral("/a/b.mov") << NxFootageRoad::Stream;
    QTest::newRow("sound") << QStringLiteral("/a/b.wav") << NxFootageRoad::Stream;
    QTest::newRow("moving picture") << QStringLiteral("/a/b.gif") << NxFootageRoad::Stream;
    QTest::newRow("picture") << QStringLiteral("/a/b.jpg") << NxFootageRoad::Still;
    QTest::newRow("picture in capitals") << QStringLiteral("/a/b.PNG") << NxFootageRoad::Still;
    QTest::newRow("subtitles") << QStringLiteral("/a/b.srt") << NxFootageRoad::Text;
    QTest::newRow("folder with a suffix") << QStringLiteral("/a.jpg/b") << NxFootageRoad::Stream;
}

void tst_NxReadRequests::theSuffixDecidesTheRoad()
{
    QFETCH(QString, path);
    QTEST(NxReadRequests::of(1, path, rwFacts).road, "road");
}

void tst_NxReadRequests::whatIsAskedStandsInTheRequest()
{
    const QString path = QStringLiteral("/a/\u00e4 b.mov");
    const NxReadRequest request = NxReadRequests::of(7, path, rwFacts | rwFingerprint);
    QCOMPARE(request.number, quint64(7));
    QCOMPARE(QFile::decodeName(request.path), path);
    QCOMPARE(int(request.wishes), int(rwFacts | rwFingerprint));
}

NX_TEST_MAIN(tst_NxReadRequests)
#include "tst_NxReadRequests.moc"
