// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/store/NxProjectSchema.h>
#include <NxVBLEngine/store/NxProjectStore.h>
#include <NxVBLEngine/store/NxSqliteDatabase.h>

#include "StoreSamples.h"

#include <NxVBLEngine/Support/NxFootageSamples.h>
#include <NxVBLEngine/Support/NxProjectDump.h>
#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <QFileInfo>

#include <algorithm>

using namespace StoreSamples;

namespace {

/// The project that the old programs made.
std::vector<NxStoreBatch> oldSession()
{
    const NxChange removal = change(NxChangeKind::MediaRemove, {2});
    NxChangeState since;
    since.number = 7;
    const NxChange favourite = change(NxChangeKind::MediaFavourite, {4}, since);
    NxStoreEntry::Counters counters;
    counters.nextMediaId = 100;
    counters.nextPlace = 1000;
    counters.nextFolderId = 1002;
    counters.nextStepSerial = 6;
    return {addMedia(1, 5),
            {NxStoreEntry::NewFolder{folder(1001)}},
            {NxStoreEntry::StepBegin{1, QStringLiteral("f"), QStringLiteral("a")},
             NxStoreEntry::StepChange{1, removal}, NxStoreEntry::Apply{removal}},
            {NxStoreEntry::StepBegin{3, QStringLiteral("f"), QStringLiteral("b")},
             NxStoreEntry::StepChange{3, favourite}, NxStoreEntry::Apply{favourite}, counters}};
}

QByteArray quoted(const QString &text)
{
    return "'" + text.toUtf8().replace("'", "''") + "'";
}

QByteArray hex(const QByteArray &bytes)
{
    return "x'" + bytes.toHex() + "'";
}

/// A media as it stood in the table, with how often timelines used it.
QByteArray oldRow(const NxMediaRecord &media, int used)
{
    QByteArrayList values;
    for (const qint64 number :
         {media.id, qint64(media.category), qint64(media.folder), media.place})
        values += QByteArray::number(number);
    for (const QString &text : {media.name, media.path, media.canonicalPath, media.relativePath})
        values += quoted(text);
    for (const qint64 number :
         {media.size, media.created, media.modified, media.favourite, qint64(used),
          qint64(media.importKind), qint64(media.kindCode), qint64(media.alive ? 1 : 0)})
        values += QByteArray::number(number);
    return "INSERT INTO media VALUES(" + values.join(", ") + ");";
}

QByteArray oldStep(qint64 serial, const char *action, const std::vector<QByteArray> &changes)
{
    const QByteArray number = QByteArray::number(serial);
    QByteArray sql = "INSERT INTO undo_step VALUES(" + number + ", 'f', '" + action + "');";
    for (const QByteArray &change : changes)
        sql += "INSERT INTO undo_change(step, kind, category, ids, before, after) VALUES(" + number
               + ", " + change + ");";
    return sql;
}

QByteArray oldChange(int kind, const QVector<qint64> &ids, qint64 number)
{
    NxChangeState after;
    after.number = number;
    return QByteArray::number(kind) + ", 0, " + hex(packedIds(ids)) + ", x'', "
           + hex(packedState(after));
}

/// The steps 2, 4 and 5 did nothing but note a use, and only 5 was taken back.
QByteArray oldRows(const QString &path)
{
    constexpr int used = 11;
    QByteArray sql = "INSERT INTO meta VALUES('created', 1000), ('project_folder', "
                     + quoted(QFileInfo(path).path())
                     + "), ('undo_done', 4), ('next_media_id', 100), ('next_place', 1000),"
                       " ('next_folder_id', 1002), ('next_step_serial', 6);"
                       "INSERT INTO folder VALUES(1001, 0, 1, 1025024, 'Folder 1001', 1);";
    for (qint64 id = 1; id <= 5; ++id) {
        NxMediaRecord record = media(id);
        record.alive = id != 2;
        if (id == 4)
            record.favourite = 7;
        sql += oldRow(record, int(id % 3));
    }
    return sql + oldStep(1, "a", {oldChange(int(NxChangeKind::MediaRemove), {2}, 0)})
           + oldStep(2, "uses", {oldChange(used, {1}, 1), oldChange(used, {3}, 1)})
           + oldStep(
               3, "b",
               {oldChange(used, {4}, 2), oldChange(int(NxChangeKind::MediaFavourite), {4}, 7)})
           + oldStep(4, "uses", {oldChange(used, {1}, 2)})
           + oldStep(5, "uses", {oldChange(used, {1}, 3)});
}

/// A project as that version of the program made it. Ends the test program when it cannot.
void makeVersion(int version, const QString &path)
{
    const std::vector<NxSchemaStep> &all = NxProjectSchema::steps();
    auto database = NxSqliteDatabase::open(path, NxSqliteDatabase::Access::Create, nullptr);
    const bool isMade =
        database && NxProjectSchema::migrate(database->get(), {all.begin(), all.begin() + version})
        && (*database)->execute(oldRows(path).constData())
        && (*database)->number("PRAGMA user_version", -1) == version;
    if (!isMade)
        qFatal("%s cannot be made", qUtf8Printable(path));
}

} // namespace

/// Projects that older programs made.
class tst_NxProjectStore_old : public QObject
{
    Q_OBJECT

private:
    QScopedPointer<NxTempDir> m_folder;
    QString m_old;
    QString m_new;

    static void addVersions()
    {
        QTest::addColumn<int>("version");
        for (int version = 1; version < NxProjectSchema::currentVersion(); ++version)
            QTest::addRow("version %d", version) << version;
    }

private Q_SLOTS:
    void init()
    {
        m_folder.reset(new NxTempDir);
        m_old = m_folder->filePath(QStringLiteral("Old.brevano"));
        m_new = m_folder->filePath(QStringLiteral("New.brevano"));
        makeProject(m_new, oldSession());
    }

    void isReadAsItIsAndLeftAlone_data() { addVersions(); }

    void isReadAsItIsAndLeftAlone()
    {
        QFETCH(int, version);
        makeVersion(version, m_old);
        const QByteArray before = readFile(m_old);
        QCOMPARE(contentsOf(m_old), contentsOf(m_new));
        QCOMPARE(readFile(m_old), before);
        QCOMPARE(filesIn(m_folder->path()).size(), 2);
    }

    void takesFootageOnceItIsWritten_data() { addVersions(); }

    void takesFootageOnceItIsWritten()
    {
        QFETCH(int, version);
        makeVersion(version, m_old);
        auto store = NxProjectStore::open(m_old, {});
        QVERIFY2(store, qUtf8Printable(store.errorText()));
        QVERIFY((*store)->load());
        (*store)->write({NxStoreEntry::Footage{{NxFootageSamples::full(3)}}});
        QVERIFY((*store)->close());
        makeProject(m_folder->filePath(QStringLiteral("Fresh.brevano")), [] {
            std::vector<NxStoreBatch> batches = oldSession();
            batches.push_back({NxStoreEntry::Footage{{NxFootageSamples::full(3)}}});
            return batches;
        }());
        const QStringList taken = contentsOf(m_old);
        QCOMPARE(taken, contentsOf(m_folder->filePath(QStringLiteral("Fresh.brevano"))));
        QVERIFY(taken.filter(QStringLiteral("footage|3|1|")).size() == 1);
    }

    void takesTimelinesOnceTheyAreWritten_data() { addVersions(); }

    void takesTimelinesOnceTheyAreWritten()
    {
        QFETCH(int, version);
        makeVersion(version, m_old);
        auto store = NxProjectStore::open(m_old, {});
        QVERIFY2(store, qUtf8Printable(store.errorText()));
        const auto contents = (*store)->load();
        QVERIFY(contents);
        QCOMPARE(contents->counters.nextTimelineId, 1);
        QCOMPARE(contents->counters.nextClipId, 1);
        (*store)->write(
            {NxStoreEntry::NewTimeline{timeline(1)}, NxStoreEntry::NewClips{{clip(1)}}});
        QVERIFY((*store)->close());
        const QStringList taken = contentsOf(m_old);
        QCOMPARE(taken.filter(QStringLiteral("timeline|1|")).size(), 1);
        QCOMPARE(taken.filter(QStringLiteral("clip|1|")).size(), 1);
    }

    void stepsThatNotedUsesAreGone_data() { addVersions(); }

    void stepsThatNotedUsesAreGone()
    {
        QFETCH(int, version);
        makeVersion(version, m_old);
        auto store = NxProjectStore::open(m_old, {});
        QVERIFY2(store, qUtf8Printable(store.errorText()));
        const auto contents = (*store)->load();
        QVERIFY(contents);
        QCOMPARE(contents->damage, QString());
        QCOMPARE(int(contents->undoSteps.size()), 2);
        QCOMPARE(contents->undoSteps[0].action, QStringLiteral("a"));
        QCOMPARE(contents->undoSteps[1].action, QStringLiteral("b"));
        QCOMPARE(contents->undoSteps[1].changes.size(), 1);
        QCOMPARE(contents->undoDone, 2);
        QCOMPARE((*store)->integrityProblems(), QStringList());
        QVERIFY((*store)->close());
    }

    void hasTheStructureOfANewOneAfterwards_data() { addVersions(); }

    void hasTheStructureOfANewOneAfterwards()
    {
        QFETCH(int, version);
        makeVersion(version, m_old);
        auto store = NxProjectStore::open(m_old, {});
        QVERIFY2(store, qUtf8Printable(store.errorText()));
        (*store)->write({NxStoreEntry::StepPosition{1}});
        QVERIFY((*store)->close());
        const auto structure = [](const QString &path) {
            QList<QByteArray> lines = dumpProjectFile(path).split('\n');
            lines.erase(std::remove_if(lines.begin(), lines.end(),
                                       [](const QByteArray &line) {
                                           return !line.startsWith("schema")
                                                  && !line.startsWith("pragma");
                                       }),
                        lines.end());
            return lines;
        };
        QVERIFY(structure(m_new).size() > 8);
        QCOMPARE(structure(m_old), structure(m_new));
    }
};

NX_TEST_MAIN(tst_NxProjectStore_old)
#include "tst_NxProjectStore_old.moc"
