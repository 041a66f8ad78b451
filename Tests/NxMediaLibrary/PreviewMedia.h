// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/INxStockMediaItem.h>
#include <NxVBLModel/INxVCGMediaItem.h>

#include <QStringList>

/// Media that can be played in place of their covers, as a test writes them.

struct StripItem final : INxAbstractMediaItem
{
    explicit StripItem(const QString &strip = QString()) : stripPath(strip) {}

    NXVBLMODEL::NxMediaType mediaType() const override { return NXVBLMODEL::mtVideo; }
    QString thumbnailStripPath() const override { return stripPath; }

    QString stripPath;
};

struct StockItem final : INxStockMediaItem
{
    NXVBLMODEL::NxMediaType mediaType() const override { return NXVBLMODEL::mtVideo; }
    int subKind() const override { return kind; }
    QString previewPath() const override { return preview; }
    void requestResource(const QString &text, int what, int downloadKind) override
    {
        requests.append(QStringLiteral("\"%1\" %2 %3").arg(text).arg(what).arg(downloadKind));
    }

    int kind = NXVBLMODEL::mskStockMedia;
    QString preview;
    QStringList requests;
};

struct ProviderClip final : INxVCGMediaItem
{
    NXVBLMODEL::NxMediaType mediaType() const override { return NXVBLMODEL::mtVideo; }
    int stateCode() const override { return state; }
    bool isPreviewAvailable() const override { return available; }
    int mediaCount() const override { return paths.size(); }
    QString mediaPath(int index) const override { return paths.value(index); }

    int state = NXVBLMODEL::vrsReady;
    bool available = true;
    QStringList paths;
};

struct GifItem final : INxAbstractMediaItem
{
    explicit GifItem(const QString &file = QString()) : path(file) {}

    NXVBLMODEL::NxMediaType mediaType() const override { return NXVBLMODEL::mtImage; }
    int kindCode() const override { return code; }
    QString filePath() const override { return path; }

    int code = NXVBLMODEL::mkcAnimatedImage;
    QString path;
};
