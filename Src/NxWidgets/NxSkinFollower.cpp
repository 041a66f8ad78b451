// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NxSkinFollower_p.h"

#include <NxWidgets/INxSkinEvent.h>
#include <NxWidgets/NxSkinStyle.h>

#include <QWidget>

NxSkinFollower::NxSkinFollower(QWidget *widget) : QObject(widget), m_widget(widget)
{
    NxSkinStyle::instance()->Attach(this);
    wear();
}

NxSkinFollower::~NxSkinFollower()
{
    NxSkinStyle::instance()->Detach(this);
}

void NxSkinFollower::OnSkinChangedEvent(INxSkinEvent *event)
{
    if (event->isSkinChanged())
        wear();
}

void NxSkinFollower::wear()
{
    m_widget->setPalette(NxSkinStyle::instance()->palette());
}
