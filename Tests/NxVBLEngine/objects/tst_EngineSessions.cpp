// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "EngineEvents.h"
#include "RandomSession.h"

#include <Support/NxSeeds.h>
#include <Support/NxTestMain.h>

#include <QtTest>

#include <algorithm>
#include <memory>

namespace {

// The first line in which two dumps differ, from both; empty when they are the same.
QString difference(const QByteArray &actual, const QByteArray &expected)
{
    const QList<QByteArray> left = actual.split('\n');
    const QList<QByteArray> right = expected.split('\n');
    for (int line = 0; line < std::max(left.size(), right.size()); ++line) {
        if (left.value(line) != right.value(line)) {
            return QString::fromUtf8("line " + QByteArray::number(line) + "\n  is     "
                                     + left.value(line) + "\n  should " + right.value(line));
        }
    }
    return {};
}

} // namespace

/// Long random sessions: whatever was done can be taken back and done again, and every time the
/// project is exactly what it was.
class tst_EngineSessions : public QObject
{
    Q_OBJECT

private:
    static constexpr int Operations = 5000;
    static constexpr int Seeds = 20;

private Q_SLOTS:
    void everythingCanBeTakenBackAndDoneAgain_data()
    {
        nxAddSeeds(Seeds);
    }

    void everythingCanBeTakenBackAndDoneAgain()
    {
        QFETCH(quint32, seed);
        EngineFixture project;
        std::vector<std::unique_ptr<EngineEvents>> observers;
        for (int category = 0; category < NXVBLMODEL::MediaCategoryCount; ++category) {
            observers.push_back(std::make_unique<EngineEvents>(project.memory.category(category)));
            observers.back()->quiet = true;
        }
        RandomSession user(&project.memory, seed);
        int changes = 0;
        // The dump before each step that is still kept, to compare with while undoing.
        QHash<qint64, QByteArray> before;
        for (int i = 0; i < Operations; ++i) {
            const bool wantsDump = i >= Operations - 150;
            const QByteArray dump = wantsDump ? projectDump(project.memory) : QByteArray();
            const qint64 serial = project.undo->lastSerial();
            changes += user.step() ? 1 : 0;
            if (wantsDump && project.undo->lastSerial() != serial)
                before.insert(project.undo->lastSerial(), dump);
            if (i % 50 == 0)
                QCoreApplication::processEvents(); // Lets die what is due.
            if (i % 100 == 0) {
                QVERIFY2(project.memory.brokenInvariant().isEmpty(),
                         qPrintable(user.lastOperation() + project.memory.brokenInvariant()));
            }
        }
        QVERIFY2(changes >= Operations * 7 / 10, qPrintable(QString::number(changes)));

        const QByteArray end = projectDump(project.memory);
        const int done = project.undo->index();
        int compared = 0;
        while (project.undo->canUndo()) {
            const qint64 serial = project.undo->steps()[size_t(project.undo->index()) - 1].serial;
            QVERIFY(project.undo->undo());
            if (before.contains(serial)) {
                QCOMPARE(difference(projectDump(project.memory), before.value(serial)), QString());
                ++compared;
            }
        }
        QVERIFY(compared > 20);
        QCOMPARE(project.memory.brokenInvariant(), QString());
        const QByteArray start = projectDump(project.memory);
        while (project.undo->index() < done)
            QVERIFY(project.undo->redo());
        QCOMPARE(difference(projectDump(project.memory), end), QString());
        while (project.undo->undo()) {}
        QCOMPARE(difference(projectDump(project.memory), start), QString());
        for (const auto &observer : observers)
            QCOMPARE(observer->complaints, QStringList());
    }
};

NX_TEST_MAIN(tst_EngineSessions)
#include "tst_EngineSessions.moc"
