// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/INxAppInfo.h>
#include <NxCore/NxCustomProductInfo.h>

#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTest>

namespace {

class OtherInfo : public INxAppInfo
{
public:
    QString getDirectory(int pathKind) override { return QStringLiteral("/%1").arg(pathKind); }
};

} // namespace

class tst_NxAppInfo : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void makesTheUsersDataFolder();
    void reportsADataFolderThatCannotBeMade();
    void findsTheResources();
    void refusesUnknownKinds_data();
    void refusesUnknownKinds();
    void letsTheHostAnswer();
    void kindsNeverChange();
    void namesTheProduct();

    void cleanup() { INxAppInfo::setInstance(nullptr); }
};

void tst_NxAppInfo::makesTheUsersDataFolder()
{
    const QString expected = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    QVERIFY(QDir(expected).removeRecursively());
    const QString path = INxAppInfo::getInstance()->getDirectory(INxAppInfo::pkUserData);
    QCOMPARE(path, expected);
    QVERIFY(QFileInfo(path).isDir());
    QVERIFY(!path.endsWith(QLatin1Char('/')));
}

void tst_NxAppInfo::reportsADataFolderThatCannotBeMade()
{
    const NxTempDir dir;
    const QByteArray before = qgetenv("XDG_DATA_HOME");
    const QString file = dir.write(QStringLiteral("file")); // No folder fits below a file.
    qputenv("XDG_DATA_HOME", file.toUtf8());
    NxTestLog::expectError(file);
    INxAppInfo::getInstance()->getDirectory(INxAppInfo::pkUserData);
    qputenv("XDG_DATA_HOME", before);
}

void tst_NxAppInfo::findsTheResources()
{
    const QString path = INxAppInfo::getInstance()->getDirectory(INxAppInfo::pkResources);
    QVERIFY2(QFileInfo(path).isDir(), qUtf8Printable(path));
    QVERIFY2(path.endsWith(QStringLiteral("share/brevano")), qUtf8Printable(path));
    QVERIFY(QDir::isAbsolutePath(path));
}

void tst_NxAppInfo::refusesUnknownKinds_data()
{
    QTest::addColumn<int>("kind");

    QTest::newRow("zero") << 0;
    QTest::newRow("between the known ones") << 13;
    QTest::newRow("negative") << -1;
}

void tst_NxAppInfo::refusesUnknownKinds()
{
    QFETCH(int, kind);
    NxTestLog::expectError(QStringLiteral("no folder has the kind %1").arg(kind));
    QCOMPARE(INxAppInfo::getInstance()->getDirectory(kind), QString());
}

void tst_NxAppInfo::letsTheHostAnswer()
{
    OtherInfo other;
    INxAppInfo::setInstance(&other);
    QCOMPARE(INxAppInfo::getInstance()->getDirectory(INxAppInfo::pkUserData),
             QStringLiteral("/12"));
    INxAppInfo::setInstance(nullptr);
    QVERIFY(INxAppInfo::getInstance() != &other);
}

void tst_NxAppInfo::kindsNeverChange()
{
    QCOMPARE(int(INxAppInfo::pkUserData), 12);
    QCOMPARE(int(INxAppInfo::pkResources), 19);
}

void tst_NxAppInfo::namesTheProduct()
{
    QCOMPARE(NxCustomProductInfo::NGetProductName(), QStringLiteral("Brevano"));
}

NX_TEST_MAIN(tst_NxAppInfo)
#include "tst_NxAppInfo.moc"
