// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/NxPresenter.h>

#include <NxCore/INxScene.h>
#include <NxCore/NxLog.h>
#include <NxCore/NxMessage.h>

#include <QCoreApplication>
#include <QThread>

class NxPresenterPrivate
{
public:
    NxUIView *view = nullptr; // Not owned.
};

namespace {

INxScene *registeredScene = nullptr; // Not owned.

bool isOnGuiThread()
{
    const QCoreApplication *application = QCoreApplication::instance();
    return application && application->thread() == QThread::currentThread();
}

} // namespace

NxPresenter::NxPresenter(QObject *parent)
    : QObject(parent),
      d(std::make_unique<NxPresenterPrivate>())
{
}

NxPresenter::~NxPresenter() = default;

bool NxPresenter::dispatchMessage(NxMessage *)
{
    return false;
}

bool NxPresenter::sendMessageToScene(NxMessage *message)
{
    if (!message) {
        NX_LOG_ERROR("no message to send");
        return false;
    }
    if (!isOnGuiThread()) {
        NX_LOG_ERROR("message %d must be sent from the GUI thread", message->type());
        return false;
    }
    if (!registeredScene) {
        NX_LOG_ERROR("no scene takes message %d", message->type());
        return false;
    }
    return registeredScene->onMessage(message);
}

NxUIView *NxPresenter::view() const
{
    return d->view;
}

void NxPresenter::setView(NxUIView *view)
{
    d->view = view;
}

void NxPresenter::registerScene(INxScene *scene)
{
    registeredScene = scene;
}

INxScene *NxPresenter::scene()
{
    return registeredScene;
}
