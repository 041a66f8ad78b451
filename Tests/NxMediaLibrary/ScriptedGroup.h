// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/INxGroupMedia.h>

/// A group that answers what a test wrote into it, and has no members.
struct ScriptedGroup final : INxGroupMedia
{
    explicit ScriptedGroup(const char *called = "Sea", int counted = 3)
        : title(QString::fromUtf8(called)),
          count(counted)
    {
    }

    QString name() const override { return title; }
    void setTitle(const QString &text) override { title = text; }
    QString groupKey() const override { return {}; }
    void setGroupKey(const QString &) override {}
    QList<INxAbstractMedia *> members() const override { return {}; }
    void setMembers(const QList<INxAbstractMedia *> &) override {}
    void addMember(INxAbstractMedia *) override {}
    void insertMember(int, INxAbstractMedia *) override {}
    void removeMemberAt(int) override {}
    void removeMember(INxAbstractMedia *) override {}
    bool canFold() const override { return foldable; }
    bool isExpanded() const override { return expanded; }
    void setExpanded(bool isOpen) override { expanded = isOpen; }
    int itemCount() const override { return count; }

    QString title;
    int count;
    bool foldable = true;
    bool expanded = true;
};
