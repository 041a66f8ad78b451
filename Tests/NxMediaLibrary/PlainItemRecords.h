// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QString>
#include <QVector>

/// What a media view shows and tells, in a form that can be compared and is not the model's own.
struct PlainItemRecords
{
    enum RowType { ItemRow = 0, HeaderRow = 17, ImportTileRow = 18, MoreTileRow = 19 };
    struct Row
    {
        int type = ItemRow;
        const void *media = nullptr; ///< Of an item.
        QString title; ///< Of a header.
        int count = 0; ///< Of a header: items that it says to hold.
        bool expanded = false; ///< Of a header.
        QVector<const void *> members; ///< Of a header; its tile is null.
        int owner = -1; ///< Of a tile: the first row of its header; -1 without one.

        friend bool operator==(const Row &a, const Row &b)
        {
            return a.type == b.type && a.media == b.media && a.title == b.title
                   && a.count == b.count && a.expanded == b.expanded && a.members == b.members
                   && a.owner == b.owner;
        }
    };
    enum Signal {
        AboutToReset,
        Reset,
        DataChanged,
        RemoveItem,
        AfterAddItem,
        DownloadFinished,
        DownloadFailed,
        FetchMoreStateChanged,
        DownloadLimit,
    };
    struct Told
    {
        Signal signal = Reset;
        int number = 0; ///< The row, the state, or after a reset how many rows there are.
        const void *folder = nullptr;
        const void *media = nullptr;

        friend bool operator==(const Told &a, const Told &b)
        {
            return a.signal == b.signal && a.number == b.number && a.folder == b.folder
                   && a.media == b.media;
        }
    };
    struct Filter
    {
        qint64 anchor = 0; ///< Whose likes a similar search shows.
        QString keyword;
        int type = 0;
        int mode = 0;
        bool largeSteps = false;
    };
};
