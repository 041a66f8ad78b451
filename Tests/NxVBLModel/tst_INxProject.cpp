// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/INxProject.h>

#include <NxVBLModel/NxTimelineUse.h>

#include <Support/NxTestMain.h>

#include <QTest>

namespace {

struct MemoryProject final : INxProject
{
    INxMediaLibrary *mediaLibrary() override { return nullptr; }
};

} // namespace

class tst_INxProject : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void livesInMemoryByDefault();
    void isUsedByNoTimelineByDefault();
    void aCommitOfNothingIsDoneAtOnce();
    void aCopyIsRefusedWithItsPath();
    void nobodyNeedBeTold();
};

void tst_INxProject::livesInMemoryByDefault()
{
    MemoryProject project;
    QCOMPARE(project.path(), QString());
    QVERIFY(!project.isReadOnly());
    QCOMPARE(project.readOnlyReason(), QString());
    QVERIFY(!project.undoStack());
}

void tst_INxProject::isUsedByNoTimelineByDefault()
{
    MemoryProject project;
    QVERIFY(project.timelineUses(QStringLiteral("1")).isEmpty());
    QVERIFY(project.timelines().isEmpty());
    QVERIFY(!NxTimelineUse().timeline);
    QVERIFY(!NxTimelineUse().clip);
}

void tst_INxProject::aCommitOfNothingIsDoneAtOnce()
{
    MemoryProject project;
    int calls = 0;
    bool isDone = false;
    project.requestCommit([&](const NxResult<void> &result) {
        ++calls;
        isDone = bool(result);
    });
    QCOMPARE(calls, 1);
    QVERIFY(isDone);
}

void tst_INxProject::aCopyIsRefusedWithItsPath()
{
    MemoryProject project;
    QString reason;
    project.saveCopy(QStringLiteral("/films/Copy.brevano"),
                     [&reason](const NxResult<void> &result) { reason = result.errorText(); });
    QCOMPARE(reason, QStringLiteral("/films/Copy.brevano: this project cannot be saved as a file"));
}

void tst_INxProject::nobodyNeedBeTold()
{
    MemoryProject project;
    project.requestCommit({});
    project.saveCopy(QStringLiteral("/films/Copy.brevano"), {});
    QCOMPARE(project.path(), QString());
}

NX_TEST_MAIN(tst_INxProject)
#include "tst_INxProject.moc"
