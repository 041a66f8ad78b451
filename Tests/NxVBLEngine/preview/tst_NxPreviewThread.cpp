// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/preview/NxPreviewThread.h>

#include "ScriptedFilms.h"

#include <NxCore/NxDoorbell.h>
#include <Support/NxTestMain.h>

#include <QFile>
#include <QTest>

#include <algorithm>
#include <memory>
#include <vector>

namespace {

using What = NxPreviewNews::What;

struct Previews
{
    Previews()
        : bell([this] {
              if (!thread)
                  return; // It rang before it ended.
              for (NxPreviewNews &one : thread->take())
                  news.push_back(std::move(one));
          })
    {
    }
    void start() { thread = std::make_unique<NxPreviewThread>(films.settings(), bell.rope()); }
    void play(const QString &name)
    {
        NxPreviewOrder order;
        order.what = NxPreviewOrder::What::Play;
        order.open.number = ++number;
        order.open.path = QFile::encodeName(films.film(name));
        order.show.size = ScriptedFilms::Size;
        thread->add(order);
    }
    [[nodiscard]] int frames() const
    {
        return int(std::count_if(news.begin(), news.end(), [this](const NxPreviewNews &one) {
            return one.what == What::Frame && one.frame.number == number;
        }));
    }

    ScriptedFilms films;
    NxDoorbell bell;
    quint64 number = 0;
    std::vector<NxPreviewNews> news;
    std::unique_ptr<NxPreviewThread> thread;
};

} // namespace

class tst_NxPreviewThread : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void newsComeWithTheBell();
    void theProcessIsTheOneThatRuns();
    void itEndsWithWorkUnderWay_data();
    void itEndsWithWorkUnderWay();
    void itMayEndAtOnce();
};

void tst_NxPreviewThread::newsComeWithTheBell()
{
    Previews f;
    f.start();
    f.play(QStringLiteral("a.mp4")); // Perhaps before the thread is up.
    QTRY_COMPARE_WITH_TIMEOUT(f.frames(), NxPreviewSlots::Count, 30'000);
    QCOMPARE(f.news.front().what, What::Opened);
    QVERIFY(f.thread->take().empty());
}

void tst_NxPreviewThread::theProcessIsTheOneThatRuns()
{
    Previews f;
    f.start();
    QCOMPARE(f.thread->processId(), 0);
    f.play(QStringLiteral("a.mp4"));
    QTRY_COMPARE_WITH_TIMEOUT(f.frames(), NxPreviewSlots::Count, 30'000);
    QCOMPARE(QStringList{QString::number(f.thread->processId())}, f.films.starts());
}

void tst_NxPreviewThread::itEndsWithWorkUnderWay_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"a.mp4", "hang-opening.mp4", "hang-playing.mp4", "crash-playing.mp4"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void tst_NxPreviewThread::itEndsWithWorkUnderWay()
{
    QFETCH(QString, name);
    Previews f;
    f.start();
    f.play(name);
    QTRY_VERIFY_WITH_TIMEOUT(!f.films.opened().isEmpty(), 30'000);
    f.thread.reset();
    for (const QString &id : f.films.starts())
        QTRY_VERIFY(isProcessGone(id.toLongLong()));
}

void tst_NxPreviewThread::itMayEndAtOnce()
{
    Previews f;
    for (int i = 0; i < 20; ++i) {
        f.start();
        f.thread.reset();
        f.start();
        f.play(QStringLiteral("a.mp4"));
        f.thread.reset();
    }
    for (const QString &id : f.films.starts())
        QTRY_VERIFY(isProcessGone(id.toLongLong()));
}

NX_TEST_MAIN(tst_NxPreviewThread)
#include "tst_NxPreviewThread.moc"
