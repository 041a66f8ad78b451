// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxResult.h>

#include <QCoreApplication>
#include <QList>
#include <QString>

class INxAbstractMedia;
class INxProject;

/// Puts media on the project's timeline, one behind the other.
class TimelineDesk
{
    Q_DECLARE_TR_FUNCTIONS(TimelineDesk)
public:
    TimelineDesk() = delete;

    /// Appends media to the first timeline, which is made when there is none, as one undo step.
    /// Answers the timeline's name, or why nothing was added. The project may be null.
    [[nodiscard]] static NxResult<QString> append(INxProject *project,
                                                  const QList<INxAbstractMedia *> &medias);
};
