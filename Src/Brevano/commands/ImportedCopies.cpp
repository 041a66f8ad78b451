// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/commands/ImportedCopies.h>

#include <Brevano/commands/ProjectSession.h>
#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/INxFootageService.h>

namespace {

/// Which of two media came first; identities are counters.
bool isOlder(const INxAbstractMediaItem &a, const INxAbstractMediaItem &b)
{
    return a.mediaId().toLongLong() < b.mediaId().toLongLong();
}

} // namespace

ImportedCopies::ImportedCopies(const ProjectSession &session) : m_service(session.footage())
{
    const QList<INxAbstractMediaItem *> all = session.media();
    for (const INxAbstractMediaItem *media : all) {
        const QByteArray contents = m_service->state(media).fingerprint;
        if (contents.isEmpty())
            continue;
        const INxAbstractMediaItem *&first = m_first[contents];
        if (!first || isOlder(*media, *first))
            first = media;
    }
}

const INxAbstractMediaItem *ImportedCopies::originalOf(const INxAbstractMediaItem &media) const
{
    const QByteArray contents = m_service->state(&media).fingerprint;
    const INxAbstractMediaItem *first = m_first.value(contents);
    return contents.isEmpty() || first == &media ? nullptr : first;
}
