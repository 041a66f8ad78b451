// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/NxMediaTypes.h>
#include <NxVBLModel/NxVBLModelExport.h>

#include <QList>
#include <QMetaType>
#include <QString>

class INxFolderMedia;
struct NxMediaGuard;

/// Anything that a media view lists: a media item, a folder, a group header or a tile.
///
/// Media come by the million, so they are plain objects without signals. Who keeps one beyond the
/// current event keeps a NxMediaRef. Changes are announced by the managers' observers. No query
/// touches a disk, a decoder, a database or the network; what one answers stays valid until
/// control returns to the event loop. GUI thread only.
class NXVBLMODEL_EXPORT INxAbstractMedia
{
public:
    INxAbstractMedia() = default;
    virtual ~INxAbstractMedia();
    INxAbstractMedia(const INxAbstractMedia &) = delete;
    INxAbstractMedia &operator=(const INxAbstractMedia &) = delete;

    /// What the object is. Until an item's file is read this is what the suffix tells; it may
    /// change once, when the facts arrive, and that is announced as a state change.
    [[nodiscard]] virtual NXVBLMODEL::NxMediaType mediaType() const = 0;
    /// A finer class, NXVBLMODEL::NxMediaSubKind.
    [[nodiscard]] virtual int subKind() const;
    /// The licence, NXVBLMODEL::NxLicenceState; folders answer 0.
    [[nodiscard]] virtual int state() const;
    /// NXVBLMODEL::NxMediaKindCode.
    [[nodiscard]] virtual int kindCode() const;

    /// The name that is shown, compared, elided and searched.
    [[nodiscard]] virtual QString name() const;
    /// The identity within the project, never used twice. Keys timeline uses.
    [[nodiscard]] virtual QString mediaId() const;
    /// The id of the library resource behind the media; 0 when there is none.
    [[nodiscard]] virtual qint64 resourceId() const;
    /// The folder that lists the media; null for the hidden root, group headers and tiles.
    [[nodiscard]] virtual INxFolderMedia *parentFolder() const;
    /// The path as imported; empty for folders.
    [[nodiscard]] virtual QString sourcePath() const;

    /// True for a resource of the library, false for a file of the project. A resource needs no
    /// file to be shown or dragged.
    [[nodiscard]] virtual bool isResource() const;
    /// True for a resource that is a real, present media file (a downloaded stock clip) and may
    /// be filed into the project.
    [[nodiscard]] virtual bool isSourceMedia() const;

private:
    friend struct NxMediaGuard;
    NxMediaGuard *m_guard = nullptr; // Made at the first NxMediaRef.
};

Q_DECLARE_METATYPE(INxAbstractMedia *)
Q_DECLARE_METATYPE(QList<INxAbstractMedia *>)
