// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QByteArray>
#include <QtGlobal>

/// The modules of MLT that films are rendered with; loaded while it lives.
class RenderModules
{
    Q_DISABLE_COPY_MOVE(RenderModules)
public:
    RenderModules();
    ~RenderModules();

    /// False when MLT is not installed as it should be; nothing can be rendered then.
    [[nodiscard]] bool areLoaded() const { return m_areLoaded; }
    /// The modules in a folder that are not needed, in the form in which MLT is told to leave them
    /// alone: loading all takes several times as long, and some speak with devices and displays.
    [[nodiscard]] static QByteArray notNeeded(const QString &folder);

private:
    bool m_areLoaded = false;
};
