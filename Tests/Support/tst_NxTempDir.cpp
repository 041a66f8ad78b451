// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTest>

#include <memory>

class tst_NxTempDir : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void writesWithTheFoldersAbove();
    void leavesNothingBehind();
};

void tst_NxTempDir::writesWithTheFoldersAbove()
{
    const NxTempDir dir;
    const QString path = dir.write(QStringLiteral("a/b/c.txt"), QByteArray("content"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("content"));
    QCOMPARE(path, dir.path() + QStringLiteral("/a/b/c.txt"));
}

void tst_NxTempDir::leavesNothingBehind()
{
    auto dir = std::make_unique<NxTempDir>();
    const QString path = dir->path();
    const QString locked = dir->makeDir(QStringLiteral("locked"));
    dir->write(QStringLiteral("locked/file"));
    QVERIFY(QFile::setPermissions(locked, QFileDevice::ReadOwner | QFileDevice::ExeOwner));
    std::FILE *odd = std::fopen((QFile::encodeName(path) + "/caf\xe9").constData(), "w");
    QVERIFY(odd);
    std::fclose(odd);

    dir.reset();

    QVERIFY(!QFileInfo::exists(path));
}

NX_TEST_MAIN(tst_NxTempDir)
#include "tst_NxTempDir.moc"
