// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxWidgets/NxSkin.h>
#include <NxWidgets/NxSkinColor.h>
#include <NxWidgets/NxWidgetsExport.h>

#include <QColor>
#include <QPalette>
#include <QVector>

class INxSkinEventHandler;

/// The colours and pictures of the skin that is worn now. GUI thread only.
class NXWIDGETS_EXPORT NxSkinStyle
{
public:
    /// The process's skin; never null.
    static NxSkinStyle *instance();

    [[nodiscard]] NxSkin skin() const;

    /// Puts a skin on and tells the handlers; nothing happens when it is worn already. A handler
    /// may choose another skin while it is told: all hear of that one too, and whoever is told
    /// afterwards finds the latest.
    void setSkin(NxSkin skin);

    /// Opaque and valid for every named colour; invalid for any other number.
    [[nodiscard]] QColor GetColor(NxSkinColor colour) const;

    /// Where the skin's own version of a picture lies: ":/Resource/Light/x.png" for
    /// ":/Resource/x.png" while the light skin is worn and has one. Otherwise the path as it is,
    /// also when it does not begin with ":/Resource/". Never reaches for a disk.
    [[nodiscard]] QString FormatResourceFile(const QString &path) const;

    /// The skin's colours in the roles of widgets. Disabled widgets have the disabled text colour.
    [[nodiscard]] QPalette palette() const;

    /// From now on the handler, which is not owned, hears of new skins; once each, however often
    /// it is attached. Handlers may come, go and die while others are told: who goes is not told
    /// any more, who comes has seen the new skin already.
    void Attach(INxSkinEventHandler *handler);
    /// Does nothing for a handler that is not attached.
    void Detach(INxSkinEventHandler *handler);

private:
    Q_DISABLE_COPY_MOVE(NxSkinStyle)
    NxSkinStyle() = default;

    NxSkin m_skin = NxSkin::Dark;
    QVector<INxSkinEventHandler *> m_handlers; // Not owned.
};
