// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/commands/ImportedCopies.h>

#include <Brevano/commands/ProjectSession.h>
#include <NxVBLModel/INxFolderMedia.h>
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
    const QList<INxFolderMedia *> sections = session.sections();
    for (const INxFolderMedia *section : sections) {
        const QList<INxAbstractMedia *> items = section->items(true, true);
        for (const INxAbstractMedia *item : items) {
            const auto *media = dynamic_cast<const INxAbstractMediaItem *>(item);
            const QByteArray contents = media ? m_service->state(media).fingerprint : QByteArray();
            if (contents.isEmpty())
                continue;
            const INxAbstractMediaItem *&first = m_first[contents];
            if (!first || isOlder(*media, *first))
                first = media;
        }
    }
}

const INxAbstractMediaItem *ImportedCopies::originalOf(const INxAbstractMediaItem &media) const
{
    const QByteArray contents = m_service->state(&media).fingerprint;
    const INxAbstractMediaItem *first = m_first.value(contents);
    return contents.isEmpty() || first == &media ? nullptr : first;
}
