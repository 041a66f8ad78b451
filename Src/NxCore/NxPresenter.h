// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxCoreExport.h>

#include <QObject>

#include <memory>

class INxScene;
class NxMessage;
class NxPresenterPrivate;
class NxUIView;

/// Base of all presenters: the messages' road in and out, and the view that is served.
///
/// GUI thread only. Presenters own child presenters as Qt children; nothing here owns the view
/// or the scene, and both are set to null before they die.
class NXCORE_EXPORT NxPresenter : public QObject
{
    Q_OBJECT
public:
    explicit NxPresenter(QObject *parent = nullptr);
    ~NxPresenter() override;

    /// Takes a message from the rest of the editor; true ends its road. The base takes none.
    virtual bool dispatchMessage(NxMessage *message);

    /// Hands a message to the scene and waits for it, so that a query's answer can be read
    /// afterwards. Answers what the scene answered; false, with one error line in the log, when
    /// there is no scene, no message, or the caller is not on the GUI thread.
    bool sendMessageToScene(NxMessage *message);

    /// The view that is served, null at first. Not owned.
    [[nodiscard]] NxUIView *view() const;
    void setView(NxUIView *view);

    /// The scene of all presenters, one per process; null takes it away. Not owned.
    static void registerScene(INxScene *scene);
    [[nodiscard]] static INxScene *scene();

private:
    const std::unique_ptr<NxPresenterPrivate> d;
};
