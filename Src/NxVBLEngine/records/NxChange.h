// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>
#include <NxVBLEngine/records/NxMediaRecord.h>

#include <QByteArray>
#include <QString>
#include <QVector>

/// What a change does. The values are stored in projects: never renumber one.
enum class NxChangeKind : int {
    FolderAdd = 1, ///< Brings a folder to life, where its record says.
    FolderRemove = 2,
    FolderRename = 3, ///< text
    FolderMove = 4, ///< folder (the parent), place
    MediaAdd = 5, ///< Brings media to life, each where its record says.
    MediaRemove = 6,
    MediaRename = 7, ///< text
    MediaMove = 8, ///< folder, place
    MediaFavourite = 9, ///< number: when, NxNoTime for none
    MediaRelink = 10, ///< text: path, secondText: canonical path when it differs
    // 11 stands in old projects and is not given out again.
    ResourceRename = 12, ///< text; empty for the resource's own name
    ResourceFavourite = 13, ///< number: when, NxNoTime for none
    TimelineAdd = 14, ///< Brings a timeline to life; what stands on it comes by itself.
    TimelineRemove = 15,
    TimelineRename = 16, ///< text
    ClipAdd = 17, ///< Brings clips to life, each where its record says.
    ClipRemove = 18, ///< number: the clip that they stood in and went with, if any
    ClipMove = 19, ///< folder: the track, place: the position; also of a removed clip
};

/// What a change is about.
enum class NxObjectKind : int {
    Folder,
    Media,
    Resource,
    Timeline,
    Clip,
};
constexpr int NxObjectKindCount = int(NxObjectKind::Clip) + 1;

/// One side of a change: what the kind names, the rest neutral.
struct NxChangeState
{
    int folder = 0;
    qint64 place = 0;
    QString text;
    QString secondText;
    qint64 number = 0;

    friend bool operator==(const NxChangeState &a, const NxChangeState &b)
    {
        return a.folder == b.folder && a.place == b.place && a.text == b.text
               && a.secondText == b.secondText && a.number == b.number;
    }
};

/// One change to a project: what, to whom, from which state, into which. Memory applies it, the
/// store keeps it, undo turns it round.
///
/// Adding and removing carry no states but for where clips went with: the records of what is
/// removed stay, marked as not alive, until the last undo step that adds or removes them is
/// dropped. They may name many objects; every other kind names one.
struct NxChange
{
    NxChangeKind what = NxChangeKind::MediaAdd;
    int category = 0; ///< NXVBLMODEL::NxMediaCategoryType; 0 for timelines and clips.
    QVector<qint64> ids; ///< Ascending for adds of new media.
    NxChangeState before;
    NxChangeState after;
};

/// Whether a number is the value of a kind.
[[nodiscard]] NXVBLENGINE_TEST_EXPORT bool isChangeKind(int value);
[[nodiscard]] NXVBLENGINE_TEST_EXPORT NxObjectKind objectOf(NxChangeKind kind);
/// Whether changes of this kind bring objects to life or take their life.
[[nodiscard]] NXVBLENGINE_TEST_EXPORT bool isAddOrRemoval(NxChangeKind kind);

/// The change that takes `change` back. Ids are turned round, too.
[[nodiscard]] NXVBLENGINE_TEST_EXPORT NxChange inverted(const NxChange &change);

/// Compact form for the project file: ids as differences, states only where they say something.
[[nodiscard]] NXVBLENGINE_TEST_EXPORT QByteArray packedIds(const QVector<qint64> &ids);
[[nodiscard]] NXVBLENGINE_TEST_EXPORT bool unpackIds(const QByteArray &packed,
                                                     QVector<qint64> *ids);
[[nodiscard]] NXVBLENGINE_TEST_EXPORT QByteArray packedState(const NxChangeState &state);
[[nodiscard]] NXVBLENGINE_TEST_EXPORT bool unpackState(const QByteArray &packed,
                                                       NxChangeState *state);
