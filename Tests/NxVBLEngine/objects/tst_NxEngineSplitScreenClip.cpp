// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "TimelineStand.h"

#include <Support/NxTestMain.h>

#include <QtTest>

using namespace NXVBLMODEL;

class tst_NxEngineSplitScreenClip : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itShowsNothingAtFirst()
    {
        TimelineStand stand;
        const NxClipPlace place{1, 20, 40, 3};
        INxSplitScreenClip *split = stand.editor->addSplitScreen(stand.timeline, place);
        QVERIFY(split);
        QCOMPARE(split->kind(), int(ckSplitScreen));
        QCOMPARE(split->mediaId(), QString());
        QVERIFY(split->place() == place);
        QVERIFY(split->innerClips().isEmpty());
        QCOMPARE(stand.timeline->clips(), QList<INxClip *>{split});
    }

    void innerClipsStandWhereItStands()
    {
        TimelineStand stand;
        INxSplitScreenClip *split = stand.editor->addSplitScreen(stand.timeline, {1, 20, 40, 3});
        INxClip *inner = stand.editor->addInnerClip(split, stand.film, 77);
        QVERIFY(inner->place() == (NxClipPlace{1, 20, 40, 77}));
        QCOMPARE(inner->timeline(), stand.timeline);
        QCOMPARE(stand.timeline->clips().size(),
                 1); // It is the split screen's, not the timeline's.
        QVERIFY(stand.editor->moveClip(split, 5, 200));
        QVERIFY(inner->place() == (NxClipPlace{5, 200, 40, 77}));
        QCOMPARE(stand.broken(), QString());
    }

    void usesNameTheTimelineThatShowsIt()
    {
        TimelineStand stand;
        INxSplitScreenClip *split = stand.addSplit(stand.timeline, 0, 0);
        INxClip *inner = stand.editor->addInnerClip(split, stand.film, 0);
        const QList<NxTimelineUse> uses = stand.uses(stand.film);
        QCOMPARE(uses.size(), 1);
        QCOMPARE(uses.first().timeline, stand.timeline);
        QCOMPARE(uses.first().clip, inner);
        QCOMPARE(stand.film->usedCount(), 1);
    }

    void innerClipsGoAndComeBackInTheirOrder()
    {
        TimelineStand stand;
        INxSplitScreenClip *split = stand.addSplit(stand.timeline, 0, 0);
        QList<INxClip *> inner;
        for (NxEngineMedia *media : {stand.film, stand.sound, stand.picture, stand.film})
            inner += stand.editor->addInnerClip(split, media, 0);
        QCOMPARE(split->innerClips(), inner);
        QVERIFY(split->removeInnerClip(inner.at(1)));
        QVERIFY(split->removeInnerClip(inner.at(0)));
        QVERIFY(!split->removeInnerClip(inner.at(0)));
        QCOMPARE(split->innerClips(), inner.mid(2));
        QCOMPARE(stand.film->usedCount(), 1);
        stand.undo->undo();
        stand.undo->undo();
        QCOMPARE(split->innerClips(), inner);
        QCOMPARE(stand.film->usedCount(), 2);
        QCOMPARE(stand.broken(), QString());
    }

    void innerClipsGoWithIt()
    {
        TimelineStand stand;
        INxSplitScreenClip *split = stand.addSplit(stand.timeline, 0, 0);
        INxClip *inner = stand.editor->addInnerClip(split, stand.film, 0);
        const QByteArray before = stand.dump();
        QVERIFY(stand.timeline->removeClip(split));
        QCOMPARE(stand.film->usedCount(), 0);
        QCOMPARE(inner->timeline(), nullptr);
        QVERIFY(split->innerClips().isEmpty());
        QCOMPARE(stand.broken(), QString());
        QVERIFY(stand.undo->undo());
        QCOMPARE(split->innerClips(), QList<INxClip *>{inner});
        QCOMPARE(stand.dump(), before);
        QCOMPARE(stand.broken(), QString());
    }

    void itHoldsNoClipOfAnother()
    {
        TimelineStand stand;
        INxSplitScreenClip *one = stand.addSplit(stand.timeline, 0, 0);
        INxSplitScreenClip *two = stand.addSplit(stand.timeline, 1, 0);
        INxClip *inner = stand.editor->addInnerClip(one, stand.film, 0);
        QVERIFY(!two->removeInnerClip(inner));
        QVERIFY(!two->removeInnerClip(nullptr));
        QCOMPARE(one->innerClips(), QList<INxClip *>{inner});
    }
};

NX_TEST_MAIN(tst_NxEngineSplitScreenClip)
#include "tst_NxEngineSplitScreenClip.moc"
