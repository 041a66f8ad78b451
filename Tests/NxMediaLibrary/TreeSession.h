// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxLogCapture.h>
#include <NxMediaLibrary/NxMediaDataModel/NxMediaTreeModel.h>

#include <QVector>

#include <functional>

#include "PlainTree.h"
#include "ScriptedFolders.h"
#include "TreeViewer.h"

/// One thing that happens to a tree of folders. The numbers choose among the folders that there
/// are, whatever their number: an event stays meaningful when others are left out.
struct TreeEvent
{
    int kind = 0;
    int a = 0;
    int b = 0;
    int c = 0;
};

/// A tree of folders to which events happen, with a model that follows them, somebody who looks at
/// it, and the plain tree that both are compared with after each event.
class TreeSession
{
public:
    TreeSession();
    ~TreeSession();

    /// What was wrong after the event; empty when model, viewer and plain tree agree.
    [[nodiscard]] QString play(const TreeEvent &event);

    [[nodiscard]] static QVector<TreeEvent> randomEvents(quint32 seed, int count);
    /// What was wrong first; empty when nothing was.
    [[nodiscard]] static QString playAll(const QVector<TreeEvent> &events);
    /// Leaves out what can be left out without `fails` becoming false.
    [[nodiscard]] static QVector<TreeEvent> shrunk(
        QVector<TreeEvent> events, const std::function<bool(const QVector<TreeEvent> &)> &fails);
    [[nodiscard]] static QString text(const QVector<TreeEvent> &events);

private:
    using Play = void (TreeSession::*)(const TreeEvent &);
    struct Kind
    {
        const char *name;
        Play play;
        int weight;
    };
    static const QVector<Kind> &kinds();

    void add(const TreeEvent &event);
    void remove(const TreeEvent &event);
    void move(const TreeEvent &event);
    void rename(const TreeEvent &event);
    void changeUnknown(const TreeEvent &event);
    void addElsewhere(const TreeEvent &event);
    void removeElsewhere(const TreeEvent &event);
    void endOnly(const TreeEvent &event);
    void nest(const TreeEvent &event);
    void loadInside(const TreeEvent &event);
    void clearInside(const TreeEvent &event);
    void unsubscribeInside(const TreeEvent &event);
    void load(const TreeEvent &event);
    void clear(const TreeEvent &event);
    void find(const TreeEvent &event);

    void beforeAdd(INxFolderMedia *parent, int first, int last);
    void afterAdd();
    void beforeRemove(INxFolderMedia *parent, int first, int last);
    void afterRemove();
    void stateChanged(INxFolderMedia *folder);
    void loadRoot(INxFolderMedia *folder);
    void bury(std::vector<std::unique_ptr<ScriptedFolder>> folders);

    [[nodiscard]] QVector<ScriptedFolder *> folders() const;
    [[nodiscard]] ScriptedFolder *any(int number) const;
    [[nodiscard]] bool isShown(INxFolderMedia *folder) const;
    [[nodiscard]] std::unique_ptr<ScriptedFolder> newFolder();
    [[nodiscard]] QString difference();

    std::unique_ptr<ScriptedFolder> m_root;
    std::unique_ptr<ScriptedFolder> m_elsewhere;
    NxMediaTreeModel m_model;
    TreeViewer m_viewer{&m_model, TreeViewer::Reporting::Warning};
    PlainTree m_plain;
    NxLogCapture m_log;
    QString m_complaint;
    int m_serial = 0;
};
