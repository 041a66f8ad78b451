// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/INxUndoStack.h>
#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemModel.h>
#include <NxVBLEngine/NxEngineProject.h>
#include <NxVBLEngine/objects/NxEngineFolder.h>
#include <NxVBLEngine/objects/NxEngineMedia.h>
#include <NxVBLEngine/objects/NxProjectMemory.h>
#include <NxVBLModel/INxFolderMediaManager.h>
#include <NxVBLModel/INxGroupMedia.h>
#include <NxVBLModel/INxMediaManager.h>
#include <NxVBLModel/INxTimelineEditor.h>

#include <Support/NxTestMain.h>

#include <QtTest>

#include <memory>

#include "ItemStand.h"

using namespace NXMEDIALIBRARY;
using namespace NXVBLMODEL;

namespace {

bool isMedia(const QList<INxAbstractMedia *> &rows, int row)
{
    return row < rows.size() && rows[row]->mediaType() != mtGroup
           && rows[row]->mediaType() != mtImportTile;
}

/// Each row by its media's identity, and behind each header its count. Headers and tiles over
/// nothing, which go with the next rows, are left out.
QStringList described(const NxMediaItemModel &model)
{
    QStringList texts;
    const QList<INxAbstractMedia *> rows = model.getItems();
    for (int row = 0; row < rows.size(); ++row) {
        const auto *group = dynamic_cast<const INxGroupMedia *>(rows[row]);
        if (group && group->itemCount() > 0)
            texts.append(QStringLiteral("%1 %2").arg(rowText(group)).arg(group->itemCount()));
        else if (isMedia(rows, row))
            texts.append(QStringLiteral("%1 %2").arg(rows[row]->name(), rows[row]->mediaId()));
        else if (!group && isMedia(rows, row + 1))
            texts.append(rowText(rows[row]));
    }
    return texts;
}

} // namespace

/// The rows over a real project: whatever is done, undone and done again, they are those of a model
/// that begins now.
class tst_NxMediaItemModel_engine : public QObject
{
    Q_OBJECT

    /// The project's own media, with two folders of the user.
    struct Project
    {
        Project()
        {
            QFETCH(int, sortBy);
            QFETCH(int, groupBy);
            sort = {NxMediaItemViewSortBy(sortBy), sortBy % 2 ? soASC : soDESC};
            group = {NxMediaItemViewGroupBy(groupBy), soASC, nullptr};
            outer = addFolder(section, "outer");
            inner = addFolder(outer, "inner");
            import(outer, {"b", "c", "a"});
            import(inner, {"f", "e"});
            import(section, {"g"});
            model.subscribeMediaItemManager(items);
            show(&model);
            QObject::connect(
                &model, &NxMediaItemModel::sigAfterAddItem, &model,
                [this](INxFolderMedia *, INxAbstractMedia *item) { lastAdded = item->mediaId(); });
        }
        INxFolderMedia *addFolder(INxFolderMedia *parent, const char *name)
        {
            return folders->addFolder(parent, QLatin1String(name))
                       ? parent->childFolder(parent->childFolderCount() - 1)
                       : nullptr;
        }
        /// Dates and names are such that several are equal.
        void import(INxFolderMedia *folder, std::initializer_list<const char *> names)
        {
            QVector<NxMediaSeed> seeds;
            for (const char *name : names) {
                NxMediaSeed seed;
                seed.path =
                    QStringLiteral("/footage/%1%2.mov").arg(QLatin1String(name)).arg(++serial % 3);
                seed.size = serial * 7 % 5;
                seed.created = qint64(serial % 4) * 86400000 * 100;
                seeds.append(seed);
            }
            project.memory()->addNewMedia(static_cast<NxEngineFolder *>(folder), seeds);
        }
        void show(NxMediaItemModel *shown) const
        {
            shown->setSortEnable(true);
            shown->setSortBy(sort);
            shown->setFilter(filter);
            shown->load(outer);
            shown->setGroupBy(group);
        }
        QStringList fresh() const
        {
            NxMediaItemModel begins(mctMedia, nullptr);
            show(&begins);
            return described(begins);
        }
        /// The rows but the last one that was added: where it stands among equal ones, and what
        /// was sorted before it, is known only with the next.
        QStringList withoutLast(const QStringList &rows) const
        {
            QStringList others;
            for (const QString &row : rows) {
                if (!row.endsWith(QLatin1Char(' ') + lastAdded) || row.startsWith(QLatin1Char('[')))
                    others.append(row);
            }
            return others;
        }
        void compareOthers() const
        {
            QCOMPARE(withoutLast(described(model)), withoutLast(fresh()));
            QCOMPARE(described(model).size(), fresh().size());
        }
        void compare() const { QCOMPARE(described(model), fresh()); }
        /// One more at the end of the listing, so that everything is known.
        void settle()
        {
            import(inner, {"b"});
            compare();
        }
        /// Shows a media that many times on a timeline of its own.
        void use(INxAbstractMedia *media, int times)
        {
            INxTimelineEditor *editor = project.timelineEditor();
            INxTimeline *timeline = editor->addTimeline(QStringLiteral("film"));
            for (int i = 0; i < times; ++i)
                QVERIFY(editor->addClip(timeline, media, {0, i, 1, 0}));
        }
        void filterBy(const char *keyword)
        {
            filter.keyword = QLatin1String(keyword);
            model.setFilter(filter);
        }
        QList<INxAbstractMedia *> listed() const { return outer->items(true, true); }

        NxEngineProject project;
        INxUndoStack *const undo = project.undoStack();
        INxMediaManager *const manager = project.mediaManager(mctMedia);
        INxMediaItemManager *const items = manager->itemManager();
        INxFolderMediaManager *const folders = manager->folderManager();
        INxFolderMedia *const section = folders->folder(fidRoot);
        INxFolderMedia *outer = nullptr;
        INxFolderMedia *inner = nullptr;
        int serial = 0;
        QString lastAdded;
        NxMediaItemViewSort sort;
        NxMediaItemViewGroup group;
        NxMediaItemViewFilter filter;
        NxMediaItemModel model{mctMedia, nullptr};
    };

    static void addChoices()
    {
        QTest::addColumn<int>("sortBy");
        QTest::addColumn<int>("groupBy");
        for (int sortBy = sbNone; sortBy <= sbSale; ++sortBy) {
            for (const int groupBy : {int(gbNone), int(gbType), int(gbDateCreated)})
                QTest::addRow("sort %d, group %d", sortBy, groupBy) << sortBy << groupBy;
        }
    }

private Q_SLOTS:
    void importsAreFollowed_data() { addChoices(); }

    void importsAreFollowed()
    {
        Project p;
        p.compare();
        p.import(p.outer, {"d", "b", "h", "a"});
        p.compareOthers();
        p.import(p.inner, {"b", "i"});
        p.compare();
        p.import(p.section, {"x"});
        p.compare();
        p.import(p.outer, {"b"});
        p.compareOthers();
        p.settle();
        QCOMPARE(p.listed().size(), 13);
    }

    void importsAreUndoneAndDoneAgain_data() { addChoices(); }

    void importsAreUndoneAndDoneAgain()
    {
        Project p;
        p.import(p.outer, {"d", "b", "h", "a"});
        p.import(p.inner, {"b", "i"});
        p.import(p.outer, {"b"});
        for (int i = 0; i < 3; ++i) {
            QVERIFY(p.undo->undo());
            p.compareOthers();
        }
        QCOMPARE(p.listed().size(), 5);
        for (int i = 0; i < 3; ++i) {
            QVERIFY(p.undo->redo());
            p.compareOthers();
        }
        p.settle();
    }

    void removedMediaComeBackInTheMiddle_data() { addChoices(); }

    void removedMediaComeBackInTheMiddle()
    {
        Project p;
        for (int i = 0; i < 6; ++i)
            p.import(i % 2 ? p.outer : p.inner, {"k", "b", "m"});
        p.settle();
        const QList<INxAbstractMedia *> before = p.listed();
        QList<INxAbstractMedia *> removed;
        for (int i = 1; i < before.size(); i += 2)
            removed.append(before[i]);
        QVERIFY(removed.size() > 10);
        QVERIFY(p.items->removeMediaItems(p.outer, removed));
        p.compare();
        QVERIFY(p.undo->undo());
        QCOMPARE(p.listed(), before);
        p.compareOthers();
        QVERIFY(p.undo->redo());
        p.compare();
        QVERIFY(p.undo->undo());
        p.settle();
        QVERIFY(p.items->removeMediaItems(p.outer, p.listed()));
        p.compare();
        QVERIFY(p.undo->undo());
        p.settle();
    }

    void movedMediaAreFollowed_data() { addChoices(); }

    void movedMediaAreFollowed()
    {
        Project p;
        const QList<INxAbstractMedia *> listed = p.listed();
        const auto move = [&p](INxFolderMedia *to, const QList<INxAbstractMedia *> &moved) {
            QVERIFY(p.items->moveMediaItems(nullptr, to, moved));
            p.compareOthers();
            p.settle();
        };
        move(p.section, {listed[1], listed[4]});
        QCOMPARE(p.listed().size(), 4);
        move(p.inner, {listed[0]});
        move(p.outer, {listed[1], listed[3]});
        move(p.outer, p.section->items(false, true));
        for (int i = 0; i < 3; ++i)
            QVERIFY(p.undo->undo());
        p.settle();
    }

    void changedMediaAreFollowedWithTheNextRows_data() { addChoices(); }

    void changedMediaAreFollowedWithTheNextRows()
    {
        Project p;
        const QList<INxAbstractMedia *> listed = p.listed();
        QVERIFY(p.items->renameMediaItem(listed[0], QStringLiteral("zz")));
        QVERIFY(p.items->setFavourite(listed[2], true));
        p.use(listed[3], 3);
        p.settle();
        QVERIFY(p.items->renameMediaItem(listed[4], QStringLiteral("0")));
        p.model.setSortBy(p.sort);
        p.compare();
        QVERIFY(p.items->renameMediaItem(listed[1], QStringLiteral("y")));
        QVERIFY(p.items->removeMediaItems(nullptr, {listed[1]}));
        QVERIFY(p.undo->undo());
        QVERIFY(p.undo->undo());
        p.settle();
    }

    void filteredRowsAreFollowed_data() { addChoices(); }

    void filteredRowsAreFollowed()
    {
        Project p;
        p.filterBy("b");
        p.compare();
        p.import(p.outer, {"b", "c", "ab"});
        p.compareOthers();
        const QList<INxAbstractMedia *> listed = p.listed();
        QVERIFY(p.items->removeMediaItems(nullptr, {listed[0], listed[1], listed[3]}));
        p.compareOthers();
        QVERIFY(p.undo->undo());
        p.settle();
        p.filterBy("");
        p.compare();
    }

    void foldersThatComeAndGoAreFollowed_data() { addChoices(); }

    void foldersThatComeAndGoAreFollowed()
    {
        Project p;
        INxFolderMedia *third = p.addFolder(p.outer, "third");
        p.import(third, {"b", "a"});
        p.compare();
        QVERIFY(p.folders->removeFolder(p.inner));
        p.compare();
        QVERIFY(p.undo->undo());
        p.import(third, {"b"});
        p.compare();
        QVERIFY(p.folders->moveFolder(third, p.outer, 0));
        p.compare();
        p.settle();
        QVERIFY(p.folders->removeFolder(p.outer));
        QTRY_COMPARE(p.model.rowCount(), 0);
        QVERIFY(!p.model.folder());
    }
};

NX_TEST_MAIN(tst_NxMediaItemModel_engine)
#include "tst_NxMediaItemModel_engine.moc"
