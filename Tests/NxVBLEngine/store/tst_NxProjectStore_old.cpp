// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/store/NxProjectSchema.h>
#include <NxVBLEngine/store/NxProjectStore.h>
#include <NxVBLEngine/store/NxProjectWriter.h>
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

/// What a program that knew no footage wrote.
std::vector<NxStoreBatch> oldSession()
{
    const NxChange removal = change(NxChangeKind::MediaRemove, {2});
    NxStoreEntry::Counters counters;
    counters.nextMediaId = 100;
    counters.nextPlace = 1000;
    counters.nextFolderId = 1002;
    counters.nextStepSerial = 2;
    return {addMedia(1, 5),
            {NxStoreEntry::NewFolder{folder(1001)}},
            {NxStoreEntry::StepBegin{1, QStringLiteral("f"), QStringLiteral("a")},
             NxStoreEntry::StepChange{1, removal}, NxStoreEntry::Apply{removal}, counters}};
}

/// A project as the first version of the program made it. Ends the test program when it cannot.
void makeFirstVersion(const QString &path)
{
    auto database = NxSqliteDatabase::open(path, NxSqliteDatabase::Access::Create, nullptr);
    const bool isMade =
        database && NxProjectSchema::migrate(database->get(), {NxProjectSchema::steps().front()});
    if (!isMade)
        qFatal("%s cannot be made", qUtf8Printable(path));
    NxProjectWriter writer(database->get());
    bool isWritten = bool(writer.writeBeginning(QFileInfo(path).path(), 1000));
    for (const NxStoreBatch &batch : oldSession())
        isWritten = isWritten && writer.write(batch);
    if (!isWritten || (*database)->number("PRAGMA user_version", -1) != 1)
        qFatal("%s cannot be written", qUtf8Printable(path));
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

private Q_SLOTS:
    void init()
    {
        m_folder.reset(new NxTempDir);
        m_old = m_folder->filePath(QStringLiteral("Old.brevano"));
        m_new = m_folder->filePath(QStringLiteral("New.brevano"));
        makeFirstVersion(m_old);
        makeProject(m_new, oldSession());
    }

    void isReadAsItIsAndLeftAlone()
    {
        const QByteArray before = readFile(m_old);
        QCOMPARE(contentsOf(m_old), contentsOf(m_new));
        QCOMPARE(readFile(m_old), before);
        QCOMPARE(filesIn(m_folder->path()).size(), 2);
    }

    void takesFootageOnceItIsWritten()
    {
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

    void hasTheStructureOfANewOneAfterwards()
    {
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
