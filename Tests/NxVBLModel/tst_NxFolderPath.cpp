// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/NxFolderPath.h>

#include <Support/NxTestMain.h>

#include <QTest>

#include "memoryengine.h"

class tst_NxFolderPath : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void writesNames_data();
    void writesNames();
    void readsNames_data();
    void readsNames();
    void everyNameSurvivesTheWayThereAndBack_data();
    void everyNameSurvivesTheWayThereAndBack();
    void beginsBelowTheSection();
    void findsAFolderByItsPath();
};

void tst_NxFolderPath::writesNames_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QString>("path");
    QTest::newRow("none") << QStringList() << QString();
    QTest::newRow("one") << QStringList{QStringLiteral("Holiday")} << QStringLiteral("Holiday");
    QTest::newRow("two") << QStringList{QStringLiteral("Holiday"), QStringLiteral("Day 1")}
                         << QStringLiteral("Holiday/Day 1");
    QTest::newRow("slash") << QStringList{QStringLiteral("a/b")} << QStringLiteral("a\\/b");
    QTest::newRow("backslash") << QStringList{QStringLiteral("a\\b")} << QStringLiteral("a\\\\b");
}

void tst_NxFolderPath::writesNames()
{
    QFETCH(QStringList, names);
    QTEST(NxFolderPath::join(names), "path");
}

void tst_NxFolderPath::readsNames_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QStringList>("names");
    const QStringList two{QStringLiteral("a"), QStringLiteral("b")};
    QTest::newRow("empty") << QString() << QStringList();
    QTest::newRow("separator alone") << QStringLiteral("/") << QStringList();
    QTest::newRow("two") << QStringLiteral("a/b") << two;
    QTest::newRow("leading separator") << QStringLiteral("/a/b") << two;
    QTest::newRow("doubled separator") << QStringLiteral("a//b/") << two;
    QTest::newRow("blanks around") << QStringLiteral(" a / b ") << two;
    QTest::newRow("backslash at the end")
        << QStringLiteral("a\\") << QStringList{QStringLiteral("a\\")};
}

void tst_NxFolderPath::readsNames()
{
    QFETCH(QString, path);
    QTEST(NxFolderPath::split(path), "names");
}

void tst_NxFolderPath::everyNameSurvivesTheWayThereAndBack_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::newRow("slashes") << QStringList{QStringLiteral("/"), QStringLiteral("a//b")};
    QTest::newRow("backslashes") << QStringList{QStringLiteral("\\"), QStringLiteral("\\\\/")};
    QTest::newRow("points") << QStringList{QStringLiteral(".."), QStringLiteral(".")};
    QTest::newRow("line feed") << QStringList{QStringLiteral("a\nb")};
}

void tst_NxFolderPath::everyNameSurvivesTheWayThereAndBack()
{
    QFETCH(QStringList, names);
    QCOMPARE(NxFolderPath::split(NxFolderPath::join(names)), names);
}

void tst_NxFolderPath::beginsBelowTheSection()
{
    MemoryEngine engine;
    auto *holiday = new MemoryFolder(1001, QStringLiteral("Holi/day"), &engine.section);
    auto *day = new MemoryFolder(1002, QStringLiteral("Day 1"), holiday);
    QCOMPARE(NxFolderPath::of(day), QStringLiteral("Holi\\/day/Day 1"));
    QCOMPARE(NxFolderPath::of(&engine.section), QString());
    QCOMPARE(NxFolderPath::of(&engine.root), QString());
    QCOMPARE(NxFolderPath::of(nullptr), QString());
}

void tst_NxFolderPath::findsAFolderByItsPath()
{
    MemoryEngine engine;
    auto *holiday = new MemoryFolder(1001, QStringLiteral("Holiday"), &engine.section);
    auto *day = new MemoryFolder(1002, QStringLiteral("Day 1"), holiday);
    INxFolderMedia *const section = &engine.section;
    QCOMPARE(NxFolderPath::find(section, QStringLiteral("Holiday/Day 1")),
             static_cast<INxFolderMedia *>(day));
    QCOMPARE(NxFolderPath::find(section, QString()), section);
    QVERIFY(!NxFolderPath::find(section, QStringLiteral("holiday")));
    QVERIFY(!NxFolderPath::find(section, QStringLiteral("Day 1")));
    QVERIFY(!NxFolderPath::find(section, QStringLiteral("Nowhere/Day 1")));
    QVERIFY(!NxFolderPath::find(nullptr, QStringLiteral("Holiday")));
}

NX_TEST_MAIN(tst_NxFolderPath)
#include "tst_NxFolderPath.moc"
