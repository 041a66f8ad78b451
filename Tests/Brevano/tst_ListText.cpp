// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "FakeLibrary.h"

#include <Brevano/commands/ListText.h>
#include <Brevano/commands/ListedRows.h>
#include <Brevano/commands/ViewChoice.h>
#include <Support/NxTestMain.h>

#include <QtTest>

using namespace NXMEDIALIBRARY;
using namespace NXVBLMODEL;

class tst_ListText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void filesStandBesideTheirFacts();
    void headersAndTilesStandAcrossTheColumns();
    void theListViewsColumnsStandWithTheirHeadings();
    void withoutRowsThereIsNoTable();
    void theSumsCountMediaAlone();
    void resourcesAreNeverMissing();

private:
    std::unique_ptr<FakeFolder> m_folder;
};

void tst_ListText::init()
{
    m_folder = std::make_unique<FakeFolder>(QStringLiteral("Project Media"), fkProject);
    FakeItem *first = m_folder->addItem(QStringLiteral("/nowhere/long name.mp4"));
    first->size = 2048;
    first->created = QDateTime(QDate(2026, 7, 1), QTime(9, 8));
    FakeFolder *day = m_folder->addFolder(QStringLiteral("Day"));
    FakeItem *second = day->addItem(QStringLiteral("/nowhere/b.wav"));
    second->type = mtAudio;
    second->info.flags = sfAudio;
}

void tst_ListText::filesStandBesideTheirFacts()
{
    const ListedRows rows({m_folder.get()}, ViewChoice());
    const QStringList expected{
        QStringLiteral("Folder  Name           Type      Size  Created"),
        QStringLiteral("[Import Media]"),
        QStringLiteral(".       long name.mp4  video  2.0 KiB  2026-07-01 09:08  missing"),
        QStringLiteral("Day     b.wav          audio        -  -                 missing")};
    QCOMPARE(ListText(mctMedia, ListText::Columns::Files).table(rows), expected);
}

void tst_ListText::headersAndTilesStandAcrossTheColumns()
{
    ViewChoice choice;
    choice.group.groupBy = gbType;
    const QStringList lines =
        ListText(mctMedia, ListText::Columns::Files).table(ListedRows({m_folder.get()}, choice));
    QCOMPARE(lines.size(), 7);
    QCOMPARE(lines.at(1), QStringLiteral("== Video (1)"));
    QCOMPARE(lines.at(2), QStringLiteral("[Import Media]"));
    QVERIFY2(lines.at(3).startsWith(QLatin1String(".       long")), qPrintable(lines.at(3)));
    QCOMPARE(lines.at(4), QStringLiteral("== Audio (1)"));
    QVERIFY2(lines.at(6).startsWith(QLatin1String("Day     b.wav          audio")),
             qPrintable(lines.at(6)));
}

void tst_ListText::theListViewsColumnsStandWithTheirHeadings()
{
    ViewChoice choice;
    choice.category = mctEffect;
    FakeFolder all(QStringLiteral("All"), fkUserSection);
    FakeItem *blur = all.addItem(QStringLiteral("Blur 1"));
    blur->resource = true;
    blur->category = QStringLiteral("Blurs");
    const QStringList expected{QStringLiteral("Name    Library  Favorite  Category  Find Similar"),
                               QStringLiteral("Blur 1  All      -         Blurs     -")};
    QCOMPARE(ListText(mctEffect, ListText::Columns::ListView).table(ListedRows({&all}, choice)),
             expected);
}

void tst_ListText::withoutRowsThereIsNoTable()
{
    FakeFolder empty(QStringLiteral("Project Media"), fkProject);
    const ListedRows rows({&empty}, ViewChoice());
    QCOMPARE(ListText(mctMedia, ListText::Columns::Files).table(rows), QStringList());
    QCOMPARE(ListText::sums(rows), QStringLiteral("0 media in 0 folders, 0 bytes"));
}

void tst_ListText::theSumsCountMediaAlone()
{
    ViewChoice choice;
    choice.group.groupBy = gbType;
    QCOMPARE(ListText::sums(ListedRows({m_folder.get()}, choice)),
             QStringLiteral("2 media in 2 folders, 2.0 KiB, 2 missing"));
}

void tst_ListText::resourcesAreNeverMissing()
{
    FakeFolder all(QStringLiteral("All"), fkUserSection);
    FakeItem *blur = all.addItem(QStringLiteral("Blur 1"));
    blur->resource = true;
    blur->type = mtEffect;
    ViewChoice choice;
    choice.category = mctEffect;
    const ListedRows rows({&all}, choice);
    const QStringList expected{QStringLiteral("Folder   Name    Type    Size  Created"),
                               QStringLiteral("[All] .  Blur 1  effect     -  -")};
    QCOMPARE(ListText(mctEffect, ListText::Columns::Files).table(rows), expected);
    QCOMPARE(ListText::sums(rows), QStringLiteral("1 media in 1 folder, 0 bytes"));
}

NX_TEST_MAIN(tst_ListText)
#include "tst_ListText.moc"
