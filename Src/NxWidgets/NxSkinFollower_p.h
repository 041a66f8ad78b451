// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxWidgets/INxSkinEventHandler.h>

#include <QObject>

class QWidget;

/// Keeps a widget in the colours of the skin while the widget lives.
class NxSkinFollower : public QObject, public INxSkinEventHandler
{
    Q_OBJECT
public:
    /// A child of the widget, which owns it.
    explicit NxSkinFollower(QWidget *widget);
    ~NxSkinFollower() override;

    void OnSkinChangedEvent(INxSkinEvent *event) override;

private:
    Q_DISABLE_COPY_MOVE(NxSkinFollower)
    void wear();

    QWidget *const m_widget; // Not owned; the parent.
};
