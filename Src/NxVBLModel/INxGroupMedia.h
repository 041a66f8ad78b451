// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/INxAbstractMedia.h>

#include <QList>

/// The header row of a group (media type 17).
///
/// Knows its members, does not own them. Made and released through the two static functions;
/// a released group must not be used.
class NXVBLMODEL_EXPORT INxGroupMedia : public INxAbstractMedia
{
public:
    ~INxGroupMedia() override;

    /// The caller gives the group back with releaseGroup().
    [[nodiscard]] static INxGroupMedia *createGroup();
    /// Null is accepted.
    static void releaseGroup(INxGroupMedia *group);

    [[nodiscard]] NXVBLMODEL::NxMediaType mediaType() const override;

    virtual void setTitle(const QString &title) = 0;
    /// What finds the group again whatever the language of its title.
    [[nodiscard]] virtual QString groupKey() const = 0;
    virtual void setGroupKey(const QString &key) = 0;

    /// The "Import Media" tile first, then the items in the order they were added.
    [[nodiscard]] virtual QList<INxAbstractMedia *> members() const = 0;
    /// Replaces the list as it is.
    virtual void setMembers(const QList<INxAbstractMedia *> &members) = 0;
    /// Appends; an "Import Media" tile goes first. Null is ignored.
    virtual void addMember(INxAbstractMedia *member) = 0;
    /// Puts a member, which is no tile, before the one that stands at `index` among all members.
    virtual void insertMember(int index, INxAbstractMedia *member) = 0;
    /// The member itself is not touched and may be dead. Ignored when out of range.
    virtual void removeMemberAt(int index) = 0;
    /// Takes out every occurrence; the member itself is not touched and may be dead.
    virtual void removeMember(INxAbstractMedia *member) = 0;

    /// True when the group shows an arrow and can be folded.
    [[nodiscard]] virtual bool canFold() const = 0;
    [[nodiscard]] virtual bool isExpanded() const = 0;
    virtual void setExpanded(bool expanded) = 0;
    /// Members without tiles: the number in the header.
    [[nodiscard]] virtual int itemCount() const = 0;
};
