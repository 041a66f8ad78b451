// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/INxMediaImporter.h>

#include <Support/NxTempDir.h>
#include <Support/NxSeeds.h>
#include <Support/NxTestMain.h>

#include <QHash>
#include <QTest>

#include <algorithm>

#include "PresenterSession.h"
#include "ProjectDesk.h"

namespace {

/// The first line in which two dumps differ, from both; empty when they are the same.
QString difference(const QByteArray &actual, const QByteArray &expected)
{
    if (actual == expected)
        return {};
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

/// Follows what a user does, and knows how the project stood before and after each step.
class History
{
public:
    explicit History(ProjectDesk *desk) : m_desk(desk), m_now(desk->dump()) {}

    /// Lets something be done. Answers what is wrong with it; empty when it was one step or none.
    template<typename Deed>
    QString watch(const Deed &deed)
    {
        const qint64 last = m_desk->undo()->lastSerial();
        const QByteArray before = m_now;
        deed();
        m_now = m_desk->dump();
        const int added = stepsAfter(last);
        if (added > 1)
            return QStringLiteral("%1 steps instead of one").arg(added);
        if (added == 0)
            return difference(m_now, before);
        m_before.insert(topSerial(), before);
        m_after.insert(topSerial(), m_now);
        return {};
    }
    /// Takes one step back. Answers what is not as it was before the step.
    QString undo()
    {
        const qint64 serial = topSerial();
        if (!m_desk->undo()->undo())
            return QStringLiteral("no undo");
        m_now = m_desk->dump();
        return difference(m_now, m_before.value(serial));
    }
    /// Does one step again. Answers what is not as it was after the step.
    QString redo()
    {
        if (!m_desk->undo()->redo())
            return QStringLiteral("no redo");
        m_now = m_desk->dump();
        return difference(m_now, m_after.value(topSerial()));
    }
    [[nodiscard]] const QByteArray &now() const { return m_now; }

private:
    /// Of the step that would be taken back next.
    [[nodiscard]] qint64 topSerial() const
    {
        return m_desk->undo()->steps()[size_t(m_desk->undo()->index()) - 1].serial;
    }
    [[nodiscard]] int stepsAfter(qint64 serial) const
    {
        const auto &steps = m_desk->undo()->steps();
        return int(std::count_if(steps.begin(), steps.end(), [serial](const NxUndoRecord &step) {
            return step.serial > serial;
        }));
    }

    ProjectDesk *const m_desk; // Not owned.
    QByteArray m_now;
    QHash<qint64, QByteArray> m_before; // By the serial of the step.
    QHash<qint64, QByteArray> m_after;
};

/// The view side of the panel: imports at once, and shows what is selected.
void serve(ProjectDesk *desk)
{
    NxMediaItemManagerPresenter *items = desk->items.get();
    QObject::connect(items, &NxMediaItemManagerPresenter::sigImportMedia, items,
                     [desk](const NXMEDIALIBRARY::NxMediaImportParam &param,
                            QList<INxAbstractMediaItem *> &medias) {
                         medias =
                             desk->media()->importer()->addNow(param.folder, param.files, nullptr);
                     });
    QObject::connect(items, &NxMediaItemManagerPresenter::sigSelectItems, items,
                     &NxMediaItemManagerPresenter::setSelectedItems);
}

/// Whether all that is selected stands in the project.
bool isSelectionAlive(const ProjectDesk &desk)
{
    const QList<INxAbstractMedia *> selected = desk.items->selectedItems();
    return std::all_of(selected.begin(), selected.end(), [&desk](const INxAbstractMedia *media) {
        return desk.section()->containsMedia(media, true);
    });
}

} // namespace

/// Long sessions with the panel: every thing the user does is one step, and every step can be
/// taken back and done again exactly.
class tst_PresenterHistory : public QObject
{
    Q_OBJECT

private:
    static constexpr int Operations = 500;
    static constexpr quint32 Seeds = 20;
    static constexpr quint32 EveryFile = 4; ///< Each such seed works on a project file.

private Q_SLOTS:
    void everyStepComesBackExactly_data()
    {
        nxAddSeeds(Seeds);
    }

    void everyStepComesBackExactly()
    {
        QFETCH(quint32, seed);
        const NxTempDir folder;
        const bool isFile = seed % EveryFile == 0;
        ProjectDesk desk(isFile ? folder.filePath(QStringLiteral("film.brevano")) : QString());
        serve(&desk);
        PresenterSession user(&desk, seed);
        History history(&desk);
        int replayed = 0;
        for (int i = 0; i < Operations; ++i) {
            QString wrong;
            const int choice = user.below(10);
            const bool undoes = choice < 2 && desk.undo()->canUndo();
            const bool redoes = choice == 2 && desk.undo()->canRedo();
            if (undoes)
                wrong = history.undo();
            else if (redoes)
                wrong = history.redo();
            else
                wrong = history.watch([&user] { user.step(); });
            replayed += undoes || redoes ? 1 : 0;
            const QString told = QStringLiteral("seed %1, operation %2, %3: %4")
                                     .arg(QString::number(seed), QString::number(i),
                                          undoes   ? QStringLiteral("undo")
                                          : redoes ? QStringLiteral("redo")
                                                   : user.lastOperation(),
                                          wrong);
            QVERIFY2(wrong.isEmpty(), qPrintable(told));
            QVERIFY2(isSelectionAlive(desk), qPrintable(told));
            if (i % 50 == 0) {
                QCoreApplication::processEvents(); // Lets die what is due.
                QVERIFY2(desk.memory()->brokenInvariant().isEmpty(),
                         qPrintable(told + desk.memory()->brokenInvariant()));
            }
        }
        QVERIFY(replayed > Operations / 20);
        takeBackAndDoAgain(&desk, &history);
        if (isFile && !QTest::currentTestFailed())
            isTheSameWhenOpenedAgain(&desk);
    }

private:
    static void takeBackAndDoAgain(ProjectDesk *desk, History *history)
    {
        const int done = desk->undo()->index();
        const QByteArray end = history->now();
        QVERIFY(done > 50);
        while (desk->undo()->canUndo())
            QCOMPARE(history->undo(), QString());
        QCOMPARE(desk->memory()->brokenInvariant(), QString());
        while (desk->undo()->index() < done)
            QCOMPARE(history->redo(), QString());
        QCOMPARE(difference(desk->dump(), end), QString());
        QCOMPARE(desk->memory()->brokenInvariant(), QString());
    }

    static void isTheSameWhenOpenedAgain(ProjectDesk *desk)
    {
        const QByteArray end = desk->dump();
        const int done = desk->undo()->index();
        desk->reopen();
        QCOMPARE(difference(desk->dump(), end), QString());
        QCOMPARE(desk->undo()->index(), done);
        while (desk->undo()->undo()) {}
        const QByteArray first = desk->dump();
        desk->reopen();
        QCOMPARE(difference(desk->dump(), first), QString());
        while (desk->undo()->index() < done)
            QVERIFY(desk->undo()->redo());
        QCOMPARE(difference(desk->dump(), end), QString());
    }
};

NX_TEST_MAIN(tst_PresenterHistory)
#include "tst_PresenterHistory.moc"
