// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "WorkedProject.h"

#include <NxVBLEngine/objects/NxEngineMedia.h>
#include <NxVBLEngine/reading/NxFootageReader.h>
#include <Support/NxTestMain.h>

#include <QFile>
#include <QImage>
#include <QtTest>

#include <csignal>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr int Patience = 60'000; // ms

} // namespace

/// The real workers and the files they read are mistreated; everything else goes on.
class tst_HostileFootage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void aWorkerThatIsKilledIsReplaced_data();
    void aWorkerThatIsKilledIsReplaced();
    void aPictureBeyondReasonIsRefused();
    void aFolderWithoutPermissionSaysSo();
    void aFileThatVanishesIsMissingAndHarmsNothing();
    void aFileThatGrowsIsReadWhenItIsQuiet();
    void aFileThatIsReplacedIsReadAgainWithItsPictures();

private:
    std::unique_ptr<WorkedProject> m_project;
};

void tst_HostileFootage::init()
{
    m_project = std::make_unique<WorkedProject>();
    m_project->open();
}

void tst_HostileFootage::cleanup()
{
    m_project.reset();
}

void tst_HostileFootage::aWorkerThatIsKilledIsReplaced_data()
{
    QTest::addColumn<int>("signal");

    QTest::newRow("killed") << SIGKILL;
    QTest::newRow("crashed") << SIGSEGV;
    QTest::newRow("asked to end") << SIGTERM;
}

void tst_HostileFootage::aWorkerThatIsKilledIsReplaced()
{
    QFETCH(int, signal);

    const QList<NxEngineMedia *> first =
        m_project->add({m_project->put("avc.mp4", QStringLiteral("a.mp4"))});
    QTRY_COMPARE_WITH_TIMEOUT(first.at(0)->readState(), NxReadState::Read, Patience);
    for (const qint64 id : m_project->reader()->workerProcessIds())
        QCOMPARE(::kill(pid_t(id), signal), 0);
    QStringList more;
    for (int i = 0; i < 8; ++i)
        more += m_project->put("avc.mp4", QStringLiteral("b%1.mp4").arg(i));
    const QList<NxEngineMedia *> media = m_project->add(more);
    for (const NxEngineMedia *each : media)
        QTRY_COMPARE_WITH_TIMEOUT(each->readState(), NxReadState::Read, Patience);
}

void tst_HostileFootage::aPictureBeyondReasonIsRefused()
{
    // One colour packs well: a small file, and half a gigabyte and more when it is unpacked.
    const QString path = m_project->dir().filePath(QStringLiteral("wall.png"));
    constexpr int side = 24'000;
    QImage wall(side, side, QImage::Format_Mono);
    wall.fill(0);
    QVERIFY(wall.convertToFormat(QImage::Format_Grayscale8).save(path));
    wall = QImage();
    const QList<NxEngineMedia *> media =
        m_project->add({path, m_project->put("avc.mp4", QStringLiteral("fine.mp4"))});
    QTRY_COMPARE_WITH_TIMEOUT(media.at(0)->coverState(), NxPictureState::Failed, Patience);
    QTRY_COMPARE_WITH_TIMEOUT(media.at(1)->coverState(), NxPictureState::Made, Patience);
    QVERIFY2(media.at(0)->footage().coverReason.contains(QLatin1String("24000 x 24000")),
             qPrintable(media.at(0)->footage().coverReason));
    QCOMPARE(media.at(0)->footage().facts.streams.width, side);
}

void tst_HostileFootage::aFolderWithoutPermissionSaysSo()
{
    const QString path = m_project->put("avc.mp4", QStringLiteral("shut.mp4"));
    QVERIFY(::chmod(QFile::encodeName(path).constData(), 0) == 0);
    const QList<NxEngineMedia *> media = m_project->add({path});
    if (::access(QFile::encodeName(path).constData(), R_OK) == 0) {
        // Nothing is shut for root.
        QTRY_COMPARE_WITH_TIMEOUT(media.at(0)->readState(), NxReadState::Read, Patience);
        return;
    }
    QTRY_COMPARE_WITH_TIMEOUT(media.at(0)->readState(), NxReadState::Failed, Patience);
    QVERIFY(media.at(0)->isUnavailable());
    QVERIFY(media.at(0)->unavailableReason().contains(QLatin1String("permission")));
}

void tst_HostileFootage::aFileThatVanishesIsMissingAndHarmsNothing()
{
    const QString path = m_project->put("avc.mp4", QStringLiteral("gone.mp4"));
    QVERIFY(QFile::remove(path));
    const QList<NxEngineMedia *> media =
        m_project->add({path, m_project->put("avc.mp4", QStringLiteral("there.mp4"))});
    QTRY_COMPARE_WITH_TIMEOUT(media.at(1)->readState(), NxReadState::Read, Patience);
    QTRY_COMPARE_WITH_TIMEOUT(media.at(0)->presence(), NxPresence::Missing, Patience);
    QVERIFY(media.at(0)->isUnavailable());

    QVERIFY(QFile::copy(media.at(1)->filePath(), path));
    QTRY_COMPARE_WITH_TIMEOUT(media.at(0)->readState(), NxReadState::Read, Patience);
    QTRY_VERIFY_WITH_TIMEOUT(!media.at(0)->isUnavailable(), Patience);
}

void tst_HostileFootage::aFileThatGrowsIsReadWhenItIsQuiet()
{
    QFile whole(m_project->put("avc.mp4", QStringLiteral("whole.mp4")));
    QVERIFY(whole.open(QIODevice::ReadOnly));
    const QByteArray bytes = whole.readAll();
    QFile growing(m_project->dir().filePath(QStringLiteral("growing.mp4")));
    QVERIFY(growing.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    QCOMPARE(growing.write(bytes.left(bytes.size() / 3)), qint64(bytes.size() / 3));
    const QList<NxEngineMedia *> media = m_project->add({growing.fileName()});
    QTRY_COMPARE_WITH_TIMEOUT(media.at(0)->readState(), NxReadState::Failed, Patience);
    QVERIFY(!media.at(0)->unavailableReason().isEmpty());

    QCOMPARE(growing.write(bytes.mid(bytes.size() / 3)),
             qint64(bytes.size() - bytes.size() / 3));
    growing.close();
    QTRY_COMPARE_WITH_TIMEOUT(media.at(0)->readState(), NxReadState::Read, Patience);
    QVERIFY(!media.at(0)->isUnavailable());
    QTRY_COMPARE_WITH_TIMEOUT(media.at(0)->stripState(), NxPictureState::Made, Patience);
}

void tst_HostileFootage::aFileThatIsReplacedIsReadAgainWithItsPictures()
{
    const QString path = m_project->put("avc.mp4", QStringLiteral("clip.mp4"));
    const QList<NxEngineMedia *> media = m_project->add({path});
    QTRY_COMPARE_WITH_TIMEOUT(media.at(0)->stripState(), NxPictureState::Made, Patience);
    const NxFootageRecord before = media.at(0)->footage();

    QVERIFY(QFile::remove(path));
    QCOMPARE(m_project->put("turned 90.mp4", QStringLiteral("clip.mp4")), path);
    QTRY_VERIFY_WITH_TIMEOUT(media.at(0)->fingerprint() != before.fingerprint
                                 && media.at(0)->stripState() == NxPictureState::Made,
                             Patience);
    const NxFootageRecord after = media.at(0)->footage();
    QCOMPARE(after.facts.streams.rotation, 90);
    QVERIFY(before.facts.streams.width != after.facts.streams.width);
    QVERIFY(after.stamp != before.stamp);
}

NX_TEST_MAIN(tst_HostileFootage)
#include "tst_HostileFootage.moc"
