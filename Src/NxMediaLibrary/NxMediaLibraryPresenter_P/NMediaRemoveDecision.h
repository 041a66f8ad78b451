// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QList>

class INxAbstractMedia;

/// What the user decided about removing media.
struct NMediaRemoveDecision
{
    QList<INxAbstractMedia *> medias; ///< What was asked about, but for what died meanwhile.
    bool confirmed = false;
};
