// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/INxGroupMedia.h>

#include <algorithm>
#include <iterator>

namespace {

bool isTile(const INxAbstractMedia *media)
{
    const NXVBLMODEL::NxMediaType type = media->mediaType();
    return type == NXVBLMODEL::mtImportTile || type == NXVBLMODEL::mtViewMoreTile;
}

class GroupMedia final : public INxGroupMedia
{
public:
    QString name() const override { return m_title; }
    void setTitle(const QString &title) override { m_title = title; }
    QString groupKey() const override { return m_key; }
    void setGroupKey(const QString &key) override { m_key = key; }

    QList<INxAbstractMedia *> members() const override { return m_members; }
    void setMembers(const QList<INxAbstractMedia *> &members) override
    {
        m_members = members;
        m_tiles.clear();
        std::copy_if(members.begin(), members.end(), std::back_inserter(m_tiles),
                     [](const INxAbstractMedia *member) { return member && isTile(member); });
    }
    void addMember(INxAbstractMedia *member) override
    {
        if (!member)
            return;
        if (isTile(member))
            m_tiles.append(member);
        if (member->mediaType() == NXVBLMODEL::mtImportTile)
            m_members.prepend(member);
        else
            m_members.append(member);
    }
    void removeMember(INxAbstractMedia *member) override
    {
        m_members.removeAll(member);
        m_tiles.removeAll(member);
    }

    bool canFold() const override { return true; }
    bool isExpanded() const override { return m_expanded; }
    void setExpanded(bool expanded) override { m_expanded = expanded; }
    int itemCount() const override { return m_members.size() - m_tiles.size(); }

private:
    QString m_title;
    QString m_key;
    QList<INxAbstractMedia *> m_members; // Not owned.
    QList<INxAbstractMedia *> m_tiles; // The members that are not counted. Not owned.
    bool m_expanded = true;
};

} // namespace

INxGroupMedia::~INxGroupMedia() = default;

INxGroupMedia *INxGroupMedia::createGroup()
{
    return new GroupMedia;
}

void INxGroupMedia::releaseGroup(INxGroupMedia *group)
{
    delete group;
}

NXVBLMODEL::NxMediaType INxGroupMedia::mediaType() const
{
    return NXVBLMODEL::mtGroup;
}
