// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "PanelStage.h"

#include "BenchmarkTools.h"

#include <Brevano/window/CoverWait.h>
#include <Brevano/window/PanelView.h>
#include <Brevano/window/ProjectHolder.h>
#include <NxCore/INxSettingsStore.h>
#include <NxCore/NxFile.h>
#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemModel.h>
#include <NxMediaViews/NxMediaItemView.h>
#include <NxMediaViews/NxMediaPanelBinder.h>
#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/INxFootageService.h>
#include <NxVBLModel/INxProject.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QEventLoop>

#include <chrono>

namespace {

constexpr std::chrono::minutes LongestWait{5};
constexpr double LongestPaint = 60'000; // ms

} // namespace

std::unique_ptr<QApplication> PanelStage::application(int &argc, char **argv)
{
    QCoreApplication::setApplicationName(QStringLiteral("Brevano"));
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    auto application = std::make_unique<QApplication>(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));
    return application;
}

PanelStage::PanelStage(const QSize &size) : m_window(&m_memory)
{
    m_window.resize(size);
    view()->viewport()->installEventFilter(this);
    m_window.show();
}

PanelStage::~PanelStage()
{
    if (!m_window.closeProject())
        giveUp(QStringLiteral("the project cannot be closed"));
}

void PanelStage::open(const QString &project)
{
    paint([&] {
        if (!m_window.openProject(project))
            giveUp(project);
    });
}

void PanelStage::create(const QString &project)
{
    paint([&] {
        if (!m_window.createProject(project))
            giveUp(project);
    });
}

void PanelStage::findFiles()
{
    QElapsedTimer timer;
    timer.start();
    const NxMediaItemModel *model = view()->mediaModel();
    for (int row = 0; row < model->rowCount(); ++row) {
        const auto *item = dynamic_cast<INxAbstractMediaItem *>(model->mediaItem(row));
        while (item && item->isSourceMedia() && !NxFile::knownToExist(item->filePath())) {
            if (timer.hasExpired(std::chrono::milliseconds(LongestWait).count()))
                giveUp(item->filePath());
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
    }
}

void PanelStage::settle()
{
    INxFootageService *service = m_window.holder()->project()->footageService();
    QEventLoop loop;
    connect(service, &INxFootageService::idle, &loop, &QEventLoop::quit);
    if (!service->isIdle())
        loop.exec();
    if (!CoverWait(service, view(), nullptr).wait(LongestWait))
        giveUp(QStringLiteral("covers did not come"));
    paint([this] { view()->viewport()->update(); });
}

PanelStage::Cost PanelStage::paint(const std::function<void()> &deed)
{
    m_isPainted = false;
    const double worked = workedMilliseconds();
    QElapsedTimer timer;
    timer.start();
    deed();
    while (!m_isPainted) {
        if (milliseconds(timer) > LongestPaint)
            giveUp(QStringLiteral("nothing is painted"));
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return {milliseconds(timer), workedMilliseconds() - worked};
}

NxMediaItemView *PanelStage::view() const
{
    return m_window.panel()->view();
}

NxMediaItemManagerPresenter *PanelStage::items() const
{
    return m_window.panel()->binder()->items();
}

bool PanelStage::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Paint)
        m_isPainted = true;
    return QObject::eventFilter(watched, event);
}
