// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "SilentMount.h"
#include "WorkedProject.h"

#include <NxVBLEngine/objects/NxEngineMedia.h>
#include <NxVBLEngine/reading/NxFootageReader.h>
#include <Support/NxTestMain.h>

#include <QtTest>

#include <sched.h>
#include <sys/mount.h>

namespace {

constexpr int Patience = 60'000; // ms

} // namespace

/// A drive that takes every question and never answers one.
class tst_SilentDrive : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void aDriveThatNeverAnswersHoldsUpNothingElse();
    void closingDoesNotWaitForADriveThatNeverAnswers();

private:
    std::unique_ptr<WorkedProject> m_project;
};

void tst_SilentDrive::initTestCase()
{
    // What is mounted here is seen by this process and its children alone.
    QCOMPARE(::unshare(CLONE_NEWNS), 0);
    QCOMPARE(::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr), 0);
}

void tst_SilentDrive::init()
{
    m_project = std::make_unique<WorkedProject>();
}

void tst_SilentDrive::cleanup()
{
    m_project.reset();
}

void tst_SilentDrive::aDriveThatNeverAnswersHoldsUpNothingElse()
{
    m_project->settings().slowOpening = std::chrono::milliseconds(300);
    m_project->settings().openingLimit = std::chrono::milliseconds(1'000);
    // A machine that stands still that long makes good files wait, too.
    m_project->settings().silentPause = std::chrono::milliseconds(500);
    m_project->open();
    const QString dead = m_project->dir().makeDir(QStringLiteral("dead"));
    QStringList paths;
    for (int i = 0; i < 20; ++i)
        paths += QStringLiteral("%1/silent %2.mp4").arg(dead).arg(i);
    for (int i = 0; i < 10; ++i)
        paths += m_project->put("avc.mp4", QStringLiteral("fine %1.mp4").arg(i));
    const SilentMount mount(dead);
    QVERIFY2(mount.isMounted(), "the build system saw that it can be mounted");

    const QList<NxEngineMedia *> media = m_project->add(paths);
    for (int i = 20; i < media.size(); ++i)
        QTRY_COMPARE_WITH_TIMEOUT(media.at(i)->stripState(), NxPictureState::Made, Patience);
    for (int i = 0; i < 20; ++i)
        QCOMPARE(media.at(i)->readState(), NxReadState::Unread);
    QTRY_COMPARE_WITH_TIMEOUT(media.at(0)->presence(), NxPresence::Unreachable, Patience);
}

void tst_SilentDrive::closingDoesNotWaitForADriveThatNeverAnswers()
{
    m_project->open();
    const QString dead = m_project->dir().makeDir(QStringLiteral("dead"));
    const SilentMount mount(dead);
    QVERIFY2(mount.isMounted(), "the build system saw that it can be mounted");
    const auto media = m_project->add({dead + QStringLiteral("/silent.mp4")});
    QTRY_VERIFY_WITH_TIMEOUT(!m_project->reader()->workerProcessIds().empty(), Patience);
    m_project->close(); // The test's own time limit is the assertion: this comes back.
    QCOMPARE(media.size(), 1);
}

NX_TEST_MAIN(tst_SilentDrive)
#include "tst_SilentDrive.moc"
