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
        m_areTilesKnown = false;
    }
    void addMember(INxAbstractMedia *member) override
    {
        if (!member)
            return;
        if (m_areTilesKnown && isTile(member))
            m_tiles.append(member);
        if (member->mediaType() == NXVBLMODEL::mtImportTile)
            m_members.prepend(member);
        else
            m_members.append(member);
    }
    void insertMember(int index, INxAbstractMedia *member) override
    {
        if (member)
            m_members.insert(index, member);
    }
    void removeMemberAt(int index) override
    {
        if (index >= 0 && index < m_members.size())
            removeTile(m_members.takeAt(index));
    }
    void removeMember(INxAbstractMedia *member) override
    {
        m_members.removeAll(member);
        removeTile(member);
    }

    bool canFold() const override { return true; }
    bool isExpanded() const override { return m_expanded; }
    void setExpanded(bool expanded) override { m_expanded = expanded; }
    int itemCount() const override
    {
        findTiles();
        return m_members.size() - m_tiles.size();
    }

private:
    // Put off until somebody counts: a view counts the few groups that it shows.
    void findTiles() const
    {
        if (m_areTilesKnown)
            return;
        m_tiles.clear();
        std::copy_if(m_members.begin(), m_members.end(), std::back_inserter(m_tiles),
                     [](const INxAbstractMedia *member) { return member && isTile(member); });
        m_areTilesKnown = true;
    }
    void removeTile(INxAbstractMedia *member) { m_tiles.removeAll(member); }

    QString m_title;
    QString m_key;
    QList<INxAbstractMedia *> m_members; // Not owned.
    mutable QList<INxAbstractMedia *> m_tiles; // The members that are not counted. Not owned.
    mutable bool m_areTilesKnown = true;
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
