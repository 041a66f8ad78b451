// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/disk/NxFileProbe.h>

#include "../Support/NxAsNobody.h"
#include "RawFiles.h"

#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <QDateTime>
#include <QFileInfo>
#include <QTest>

#include <unistd.h>

Q_DECLARE_METATYPE(NxFileKind)

class tst_NxFileProbe : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void kindsAreToldApartWithoutOpening_data();
    void kindsAreToldApartWithoutOpening();
    void factsAreThoseOfTheFile();
    void identityIsTheSameByEveryWay();
    void permissionIsThatOfTheUser();
    void canonicalPathsFollowAllLinks();
    void namesThatAreNoTextAreShown();
    void lengthIsCountedInBytes();
    void volumesAreKnownWithoutAskingThem();
    void aPathBelongsToItsInnermostVolume_data();
    void aPathBelongsToItsInnermostVolume();
};

void tst_NxFileProbe::kindsAreToldApartWithoutOpening_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<NxFileKind>("kind");
    QTest::addColumn<bool>("isLink");
    QTest::newRow("file") << QStringLiteral("a.mp4") << NxFileKind::File << false;
    QTest::newRow("folder") << QStringLiteral("folder") << NxFileKind::Folder << false;
    QTest::newRow("missing") << QStringLiteral("gone") << NxFileKind::Missing << false;
    QTest::newRow("below a file") << QStringLiteral("a.mp4/b") << NxFileKind::Missing << false;
    QTest::newRow("pipe") << QStringLiteral("pipe") << NxFileKind::Special << false;
    QTest::newRow("socket") << QStringLiteral("socket") << NxFileKind::Special << false;
    QTest::newRow("link") << QStringLiteral("link") << NxFileKind::File << true;
    QTest::newRow("link to nowhere") << QStringLiteral("dangling") << NxFileKind::Missing << true;
    QTest::newRow("link to itself") << QStringLiteral("loop") << NxFileKind::Failed << true;
    QTest::newRow("device") << QStringLiteral("zero") << NxFileKind::Special << true;
    QTest::newRow("nothing") << QString() << NxFileKind::Folder << false;
}

void tst_NxFileProbe::kindsAreToldApartWithoutOpening()
{
    const NxTempDir dir;
    dir.write(QStringLiteral("a.mp4"));
    dir.makeDir(QStringLiteral("folder"));
    RawFiles::makePipe(dir.filePath(QStringLiteral("pipe")));
    RawFiles::makeSocket(dir.filePath(QStringLiteral("socket")));
    RawFiles::link(QStringLiteral("a.mp4"), dir.filePath(QStringLiteral("link")));
    RawFiles::link(QStringLiteral("gone"), dir.filePath(QStringLiteral("dangling")));
    RawFiles::link(QStringLiteral("loop"), dir.filePath(QStringLiteral("loop")));
    RawFiles::link(QStringLiteral("/dev/zero"), dir.filePath(QStringLiteral("zero")));
    QFETCH(QString, name);
    QFETCH(NxFileKind, kind);
    const NxFileFacts facts = NxFileProbe::look(dir.filePath(name));
    QCOMPARE(facts.kind, kind);
    QCOMPARE(facts.error.isEmpty(), kind != NxFileKind::Failed);
    QTEST(NxFileProbe::isLink(dir.filePath(name)), "isLink");
}

void tst_NxFileProbe::factsAreThoseOfTheFile()
{
    const NxTempDir dir;
    const QString path = dir.write(QStringLiteral("a.mp4"), QByteArray(4'321, 'x'));
    const NxFileFacts facts = NxFileProbe::look(path);
    const QFileInfo info(path);
    QCOMPARE(facts.size, 4'321);
    QCOMPARE(facts.modified, info.lastModified().toMSecsSinceEpoch());
    const QDateTime born = info.birthTime();
    QCOMPARE(facts.created, born.isValid() ? born.toMSecsSinceEpoch() : NxNoTime);
    QVERIFY(facts.readable);
    QVERIFY(facts.inode != 0);
}

void tst_NxFileProbe::identityIsTheSameByEveryWay()
{
    const NxTempDir dir;
    const QString folder = dir.makeDir(QStringLiteral("a/b"));
    RawFiles::link(folder, dir.filePath(QStringLiteral("way")));
    const NxFileFacts straight = NxFileProbe::look(folder);
    const NxFileFacts byLink = NxFileProbe::look(dir.filePath(QStringLiteral("way")));
    QCOMPARE(byLink.inode, straight.inode);
    QCOMPARE(byLink.device, straight.device);
    QVERIFY(NxFileProbe::look(dir.path()).inode != straight.inode);
}

void tst_NxFileProbe::permissionIsThatOfTheUser()
{
    const NxTempDir dir;
    const QString open = dir.write(QStringLiteral("open.mp4"));
    const QString closed = dir.write(QStringLiteral("closed.mp4"));
    const QString hidden = dir.write(QStringLiteral("locked/a.mp4"));
    NxAsNobody::give(dir.path());
    RawFiles::setMode(closed, 0);
    RawFiles::setMode(dir.filePath(QStringLiteral("locked")), 0);
    const QString found = NxAsNobody::run([&] {
        const NxFileFacts denied = NxFileProbe::look(hidden);
        return QStringLiteral("%1 %2 %3 %4")
            .arg(NxFileProbe::look(open).readable)
            .arg(NxFileProbe::look(closed).readable)
            .arg(denied.kind == NxFileKind::Denied)
            .arg(denied.error);
    });
    QCOMPARE(found, QStringLiteral("1 0 1 Permission denied"));
}

void tst_NxFileProbe::canonicalPathsFollowAllLinks()
{
    const NxTempDir dir;
    const QString real = dir.write(QStringLiteral("real/a.mp4"));
    RawFiles::link(QStringLiteral("real"), dir.filePath(QStringLiteral("way")));
    RawFiles::link(QStringLiteral("way/a.mp4"), dir.filePath(QStringLiteral("b.mp4")));
    QCOMPARE(NxFileProbe::canonicalPath(dir.filePath(QStringLiteral("b.mp4"))).path, real);
    QCOMPARE(NxFileProbe::canonicalPath(dir.filePath(QStringLiteral("gone"))).path, QString());
}

void tst_NxFileProbe::namesThatAreNoTextAreShown()
{
    const NxTempDir dir;
    RawFiles::makeFolder(dir.path(), "caf\xe9");
    const QByteArray target = "caf\xe9";
    const QByteArray link = dir.filePath(QStringLiteral("way")).toUtf8();
    QCOMPARE(::symlink(target.constData(), link.constData()), 0);
    const NxFileProbe::Canonical found
        = NxFileProbe::canonicalPath(dir.filePath(QStringLiteral("way")));
    QCOMPARE(found.path, QString());
    QCOMPARE(found.unshowable, dir.filePath(QStringLiteral("caf\\xe9")));
}

void tst_NxFileProbe::lengthIsCountedInBytes()
{
    QVERIFY(!NxFileProbe::isTooLong(QString(4'095, QLatin1Char('a'))));
    QVERIFY(NxFileProbe::isTooLong(QString(4'096, QLatin1Char('a'))));
    QVERIFY(NxFileProbe::isTooLong(QString(2'048, QChar(0xe4))));
}

void tst_NxFileProbe::volumesAreKnownWithoutAskingThem()
{
    const QStringList roots = NxFileProbe::volumeRoots();
    QVERIFY(roots.contains(QStringLiteral("/")));
    QVERIFY(roots.contains(QStringLiteral("/proc")));
}

void tst_NxFileProbe::aPathBelongsToItsInnermostVolume_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("volume");
    QTest::newRow("top") << QStringLiteral("/a.mp4") << QStringLiteral("/");
    QTest::newRow("inside") << QStringLiteral("/mnt/usb/a.mp4") << QStringLiteral("/mnt/usb");
    QTest::newRow("itself") << QStringLiteral("/mnt/usb") << QStringLiteral("/mnt/usb");
    QTest::newRow("innermost") << QStringLiteral("/mnt/usb/in/a") << QStringLiteral("/mnt/usb/in");
    QTest::newRow("only the same beginning") << QStringLiteral("/mnt/usb2/a")
                                             << QStringLiteral("/");
}

void tst_NxFileProbe::aPathBelongsToItsInnermostVolume()
{
    QFETCH(QString, path);
    const QStringList roots{QStringLiteral("/"), QStringLiteral("/mnt/usb"),
                            QStringLiteral("/mnt/usb/in")};
    QTEST(NxFileProbe::volumeOf(path, roots), "volume");
}

NX_TEST_MAIN(tst_NxFileProbe)
#include "tst_NxFileProbe.moc"
