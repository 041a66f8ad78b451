// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QHash>
#include <QString>

class INxAbstractMediaItem;
class INxFootageService;
class ProjectSession;

/// Which media of a project have the same contents as one that it held before.
class ImportedCopies
{
public:
    explicit ImportedCopies(const ProjectSession &session);

    /// The first other media with the same contents; null when there is none, or it stands behind.
    [[nodiscard]] const INxAbstractMediaItem *originalOf(const INxAbstractMediaItem &media) const;

private:
    const INxFootageService *const m_service; // Not owned.
    QHash<QByteArray, const INxAbstractMediaItem *> m_first; // By fingerprint.
};
