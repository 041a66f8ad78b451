// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/INxMediaProxyService.h>

#include <QStringList>

/// Makes no proxies, but writes down which ones are wanted.
struct ScriptedProxies final : INxMediaProxyService
{
    using Items = QList<INxAbstractMediaItem *>;

    void setResolution(int resolution) override
    {
        note(QStringLiteral("proxies of %1 px").arg(resolution), {});
    }
    void createProxyFile(const Items &items) override
    {
        note(QStringLiteral("create proxies"), items);
    }
    void stopCreateProxyFile(const Items &items) override
    {
        note(QStringLiteral("stop proxies"), items);
    }
    bool checkFreeSpace(const QString &directory, const Items &items, double &neededMB,
                        double &remainMB) override
    {
        note(QStringLiteral("room in %1 for proxies").arg(directory), items);
        neededMB = needed;
        remainMB = remaining;
        return fits;
    }

    void note(QString call, const Items &items)
    {
        for (const INxAbstractMediaItem *item : items)
            call += QLatin1Char(' ') + item->name();
        if (calls)
            calls->append(call);
    }

    bool fits = true; ///< Whether there is room.
    double needed = 0; ///< MB.
    double remaining = 0; ///< MB.
    QStringList *calls = nullptr; ///< Where calls are written down. Not owned.
};
