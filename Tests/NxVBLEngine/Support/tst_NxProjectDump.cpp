// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NxProjectDump.h"

#include <NxVBLEngine/store/NxProjectStore.h>

#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <QDir>
#include <QFile>

#include <sqlite3.h>

namespace {

constexpr const char *Tables[] = {"meta",      "folder",      "media",    "resource",
                                  "undo_step", "undo_change", "timeline", "clip"};

NxChange renamed(qint64 id, const QString &name)
{
    NxChange change;
    change.what = NxChangeKind::MediaRename;
    change.ids = {id};
    change.before.text = QStringLiteral("before");
    change.after.text = name;
    return change;
}

/// A batch that leaves at least one row in every table.
NxStoreBatch something()
{
    NxMediaRecord media;
    media.id = 1;
    media.folder = 1;
    media.name = QStringLiteral("Clip");
    media.path = QStringLiteral("/footage/Clip.mp4");
    NxFolderRecord folder;
    folder.id = 1001;
    folder.parent = 1;
    folder.name = QStringLiteral("Holiday");
    NxChange resource;
    resource.what = NxChangeKind::ResourceRename;
    resource.category = 2;
    resource.ids = {77};
    resource.after.text = QStringLiteral("My title");

    NxStoreBatch batch;
    batch.push_back(NxStoreEntry::NewFolder{folder});
    batch.push_back(NxStoreEntry::NewMedia{{media}});
    batch.push_back(NxStoreEntry::Apply{resource});
    batch.push_back(NxStoreEntry::NewTimeline{{1, QStringLiteral("Film"), 0, true}});
    NxClipRecord clip;
    clip.id = clip.timeline = clip.media = 1;
    clip.place.length = 20;
    batch.push_back(NxStoreEntry::NewClips{{clip}});
    batch.push_back(NxStoreEntry::StepBegin{1, QStringLiteral("f"), QStringLiteral("Rename")});
    batch.push_back(NxStoreEntry::StepChange{1, renamed(1, QStringLiteral("after"))});
    return batch;
}

int run(const QString &path, const QByteArray &sql)
{
    sqlite3 *database = nullptr;
    sqlite3_open(QFile::encodeName(path).constData(), &database);
    const int code = sqlite3_exec(database, sql.constData(), nullptr, nullptr, nullptr);
    sqlite3_close(database);
    return code;
}

/// Name and type of every column of a table.
QVector<QPair<QByteArray, QByteArray>> columnsOf(const QString &path, const QByteArray &table)
{
    QVector<QPair<QByteArray, QByteArray>> columns;
    sqlite3 *database = nullptr;
    sqlite3_open(QFile::encodeName(path).constData(), &database);
    const auto add = [](void *list, int, char **values, char **) {
        static_cast<QVector<QPair<QByteArray, QByteArray>> *>(list)->append(
            qMakePair(QByteArray(values[1]), QByteArray(values[2])));
        return 0;
    };
    const QByteArray sql = "PRAGMA table_info(" + table + ')';
    sqlite3_exec(database, sql.constData(), add, &columns, nullptr);
    sqlite3_close(database);
    return columns;
}

/// A value of the type that differs from what stands there, null included.
QByteArray otherValue(const QByteArray &column, const QByteArray &type)
{
    if (type == "INTEGER" || column == "value")
        return "coalesce(" + column + ", 5) + 1";
    if (type == "BLOB")
        return "CAST(" + column + " || 'x' AS BLOB)";
    return column + " || 'x'";
}

} // namespace

class tst_NxProjectDump : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void isTheSameForTheSameContents();
    void seesEveryColumn();
    void seesARowMoreAndARowLess();
    void readsAProjectThatIsOpen();
    void changesNothingOnTheDisk();

private:
    QScopedPointer<NxTempDir> m_folder;
    QString m_path;
};

void tst_NxProjectDump::init()
{
    m_folder.reset(new NxTempDir);
    m_path = m_folder->filePath(QStringLiteral("a project.brevano"));
    auto store = NxProjectStore::create(m_path, {});
    QVERIFY2(store, qUtf8Printable(store.errorText()));
    (*store)->write(something());
    const NxResult<void> closed = (*store)->close();
    QVERIFY2(closed, qUtf8Printable(closed.errorText()));
}

void tst_NxProjectDump::isTheSameForTheSameContents()
{
    const QByteArray before = dumpProjectFile(m_path);
    QCOMPARE(
        run(m_path,
            "UPDATE media SET size = size + 9; VACUUM; UPDATE media SET size = size - 9; REINDEX"),
        SQLITE_OK);
    QCOMPARE(dumpProjectFile(m_path), before);
}

void tst_NxProjectDump::seesEveryColumn()
{
    int seen = 0;
    for (const char *table : Tables) {
        for (const auto &[column, type] : columnsOf(m_path, table)) {
            const QByteArray before = dumpProjectFile(m_path);
            const QByteArray sql =
                QByteArray("UPDATE ") + table + " SET " + column + " = " + otherValue(column, type);
            QVERIFY2(run(m_path, sql) == SQLITE_OK, sql.constData());
            QVERIFY2(dumpProjectFile(m_path) != before, sql.constData());
            ++seen;
        }
    }
    QVERIFY(seen >= 2 + 6 + 15 + 3 + 3 + 7 + 4 + 10);
}

void tst_NxProjectDump::seesARowMoreAndARowLess()
{
    const QByteArray before = dumpProjectFile(m_path);
    QCOMPARE(run(m_path, "INSERT INTO resource(id, name) VALUES(78, '')"), SQLITE_OK);
    const QByteArray more = dumpProjectFile(m_path);
    QVERIFY(more != before);
    QCOMPARE(run(m_path, "DELETE FROM resource WHERE id = 78"), SQLITE_OK);
    QCOMPARE(dumpProjectFile(m_path), before);
    QCOMPARE(run(m_path, "DELETE FROM undo_change"), SQLITE_OK);
    QVERIFY(dumpProjectFile(m_path) != before);
}

void tst_NxProjectDump::readsAProjectThatIsOpen()
{
    const QByteArray before = dumpProjectFile(m_path);
    auto store = NxProjectStore::open(m_path, {});
    QVERIFY2(store, qUtf8Printable(store.errorText()));
    bool isCommitted = false;
    (*store)->write({NxStoreEntry::Apply{renamed(1, QStringLiteral("Sunset"))}});
    (*store)->commit([&isCommitted](const NxResult<void> &result) { isCommitted = bool(result); });
    QTRY_VERIFY(isCommitted);
    const QByteArray after = dumpProjectFile(m_path);
    QVERIFY(after != before);
    QVERIFY(after.contains("Sunset"));
    const NxResult<void> closed = (*store)->close();
    QVERIFY2(closed, qUtf8Printable(closed.errorText()));
    QCOMPARE(dumpProjectFile(m_path), after);
}

void tst_NxProjectDump::changesNothingOnTheDisk()
{
    QFile file(m_path);
    QVERIFY(file.open(QFile::ReadOnly));
    const QByteArray before = file.readAll();
    const QStringList entries = QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::Hidden);
    QVERIFY(dumpProjectFile(m_path).contains("Holiday"));
    QVERIFY(file.seek(0));
    QCOMPARE(file.readAll(), before);
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::Hidden), entries);
}

NX_TEST_MAIN(tst_NxProjectDump)
#include "tst_NxProjectDump.moc"
