// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/INxExtraMedia.h>

#include <NxVBLModel/NxMediaRef.h>

#include <Support/NxTestMain.h>

#include <QTest>

class tst_INxExtraMedia : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void isATileOfTheTypeAskedFor_data();
    void isATileOfTheTypeAskedFor();
    void showsItsTitle();
    void isGoneWhenReleased();
    void releasesNothingForNull();
};

void tst_INxExtraMedia::isATileOfTheTypeAskedFor_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("import") << 18;
    QTest::newRow("view more") << 19;
}

void tst_INxExtraMedia::isATileOfTheTypeAskedFor()
{
    QFETCH(int, type);
    INxExtraMedia *tile = INxExtraMedia::createExtraMedia(NXVBLMODEL::NxMediaType(type));
    QCOMPARE(int(tile->mediaType()), type);
    QCOMPARE(tile->name(), QString());
    QVERIFY(!tile->parentFolder());
    QVERIFY(!tile->isResource());
    INxExtraMedia::releaseExtraMedia(tile);
}

void tst_INxExtraMedia::showsItsTitle()
{
    INxExtraMedia *tile = INxExtraMedia::createExtraMedia(NXVBLMODEL::mtImportTile);
    tile->setTitle(QStringLiteral("Import Media"));
    QCOMPARE(tile->name(), QStringLiteral("Import Media"));
    INxExtraMedia::releaseExtraMedia(tile);
}

void tst_INxExtraMedia::isGoneWhenReleased()
{
    INxExtraMedia *tile = INxExtraMedia::createExtraMedia(NXVBLMODEL::mtViewMoreTile);
    const NxMediaRef watched(tile);
    QVERIFY(!watched.isNull());
    INxExtraMedia::releaseExtraMedia(tile);
    QVERIFY(watched.isNull());
}

void tst_INxExtraMedia::releasesNothingForNull()
{
    INxExtraMedia *tile = INxExtraMedia::createExtraMedia(NXVBLMODEL::mtImportTile);
    const NxMediaRef watched(tile);
    INxExtraMedia::releaseExtraMedia(nullptr);
    QVERIFY(!watched.isNull());
    INxExtraMedia::releaseExtraMedia(tile);
}

NX_TEST_MAIN(tst_INxExtraMedia)
#include "tst_INxExtraMedia.moc"
