// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "EngineFixture.h"

#include <Support/NxTestMain.h>

#include <QPointer>
#include <QtTest>

class tst_NxEngineFolder : public QObject
{
    Q_OBJECT

private:
    EngineFixture project;
    NxEngineFolder *holiday = nullptr;
    NxEngineFolder *day1 = nullptr;
    NxEngineFolder *day2 = nullptr;

private Q_SLOTS:
    void initTestCase()
    {
        holiday = project.addFolder(project.section, QStringLiteral("Holiday"));
        day1 = project.addFolder(holiday, QStringLiteral("Day 1"));
        day2 = project.addFolder(holiday, QStringLiteral("Day 2"));
        project.addMedia(day2, QStringLiteral("d2.mov"));
        project.addMedia(day1, {QStringLiteral("d1b.mov"), QStringLiteral("d1a.mov")});
        project.addMedia(holiday, QStringLiteral("h.mov"));
        project.addMedia(project.section, QStringLiteral("s.mov"));
    }

    void listsItsOwnThenItsChildrensInTheOrderTheyWereAdded()
    {
        QCOMPARE(listing(project.section), QStringLiteral("s.mov h.mov d1b.mov d1a.mov d2.mov"));
        QCOMPARE(listing(holiday), QStringLiteral("h.mov d1b.mov d1a.mov d2.mov"));
        QCOMPARE(listing(holiday, false), QStringLiteral("h.mov"));
    }

    void listsFoldersBeforeTheirItemsWhenAsked()
    {
        QStringList names;
        const QList<INxAbstractMedia *> items = holiday->items(true, false);
        for (const INxAbstractMedia *item : items)
            names.append(item->name());
        QCOMPARE(names.join(QLatin1Char(',')),
                 QStringLiteral("h.mov,Day 1,d1b.mov,d1a.mov,Day 2,d2.mov"));
    }

    void knowsWhatStandsBelow()
    {
        QVERIFY(project.section->contains(day1, true));
        QVERIFY(!project.section->contains(day1, false));
        QVERIFY(holiday->contains(day1, false));
        QVERIFY(!holiday->contains(holiday, true));
        QVERIFY(!day1->contains(holiday, true));
        QVERIFY(!day1->contains(nullptr, true));
    }

    void findsMediaByIdAndPathOnlyBelowItself()
    {
        NxEngineMedia *media = project.named(QStringLiteral("d1a.mov"));
        QCOMPARE(project.section->findMedia(media->mediaId(), true), media);
        QCOMPARE(project.section->findMedia(media->mediaId(), false), nullptr);
        QCOMPARE(day1->findMedia(media->mediaId(), false), media);
        QCOMPARE(day2->findMedia(media->mediaId(), true), nullptr);
        QCOMPARE(holiday->findMediaByPath(QStringLiteral("/footage/d1a.mov"), true), media);
        QCOMPARE(day2->findMediaByPath(QStringLiteral("/footage/d1a.mov"), true), nullptr);
        QCOMPARE(holiday->findMediaByPath(QString(), true), nullptr);
        QCOMPARE(holiday->findMedia(QStringLiteral("nonsense"), true), nullptr);
    }

    void knowsItsPlaceInTheTree()
    {
        QCOMPARE(day1->depth(), 3);
        QCOMPARE(day2->rowInParent(), 1);
        QCOMPARE(day1->owner(), project.section);
        QCOMPARE(holiday->childFolder(1), day2);
        QCOMPARE(holiday->childFolder(2), nullptr);
        QCOMPARE(holiday->childFolder(-1), nullptr);
        QCOMPARE(holiday->childFolderCount(), 2);
        QVERIFY(holiday->folderId() > 1000);
        QVERIFY(!holiday->isSpecial());
        QVERIFY(holiday->canAddMedia());
        QVERIFY(holiday->isCategoryTreeFolder());
    }

    void aRemovedFolderDiesWithTheNextTurnOfTheEventLoop()
    {
        NxEngineFolder *gone = project.addFolder(holiday, QStringLiteral("Gone"));
        const QPointer<INxFolderMedia> watched(gone);
        QVERIFY(project.folders->removeFolder(gone));
        QVERIFY(!watched.isNull()); // Whoever is being told may still look at it.
        QTRY_VERIFY(watched.isNull());
    }
};

NX_TEST_MAIN(tst_NxEngineFolder)
#include "tst_NxEngineFolder.moc"
