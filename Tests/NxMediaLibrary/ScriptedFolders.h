// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/INxFolderMedia.h>
#include <NxVBLModel/INxFolderMediaManager.h>
#include <NxVBLModel/INxMediaFolderEventObserver.h>
#include <NxVBLModel/NxObserverList.h>

#include <memory>
#include <utility>
#include <vector>

/// A folder that owns those below it and answers what a test wrote into it.
struct ScriptedFolder final : INxFolderMedia
{
    explicit ScriptedFolder(const QString &called = {}) : title(called) {}

    QString name() const override { return title; }
    QString toolTipText() const override { return QStringLiteral("tip of ") + title; }
    INxFolderMedia *parentFolder() const override
    {
        ++questions;
        return tellsParent ? above : nullptr;
    }
    int rowInParent() const override { return row; }
    int kind() const override { return itsKind; }
    int folderId() const override { return NXVBLMODEL::fidFirstUserFolder; }
    int childFolderCount() const override
    {
        ++questions;
        return int(children.size());
    }
    INxFolderMedia *childFolder(int childRow) const override
    {
        ++questions;
        return child(childRow);
    }
    QList<INxFolderMedia *> childFolders() const override
    {
        questions += int(children.size());
        QList<INxFolderMedia *> list;
        for (const auto &one : children)
            list.append(one.get());
        return list;
    }
    QList<INxAbstractMedia *> items(bool recursive, bool mediaOnly) const override
    {
        QList<INxAbstractMedia *> list = media;
        for (const auto &one : children) {
            if (!mediaOnly)
                list.append(one.get());
            if (recursive)
                list.append(one->items(true, mediaOnly));
        }
        return list;
    }

    ScriptedFolder *child(int childRow) const
    {
        return childRow >= 0 && childRow < int(children.size()) ? children[size_t(childRow)].get()
                                                                : nullptr;
    }
    /// Tells nobody.
    ScriptedFolder *insert(int childRow, std::unique_ptr<ScriptedFolder> folder)
    {
        ScriptedFolder *inserted = folder.get();
        inserted->above = this;
        children.insert(children.begin() + childRow, std::move(folder));
        renumber(childRow);
        return inserted;
    }
    ScriptedFolder *append(const QString &called)
    {
        return insert(int(children.size()), std::make_unique<ScriptedFolder>(called));
    }
    /// Tells nobody.
    std::unique_ptr<ScriptedFolder> take(int childRow)
    {
        std::unique_ptr<ScriptedFolder> taken = std::move(children[size_t(childRow)]);
        children.erase(children.begin() + childRow);
        renumber(childRow);
        taken->above = nullptr;
        taken->row = -1;
        return taken;
    }
    void renumber(int fromRow)
    {
        for (int i = fromRow; i < int(children.size()); ++i)
            children[size_t(i)]->row = i;
    }

    inline static int questions = 0; ///< How often any folder was asked where folders stand.

    QString title;
    ScriptedFolder *above = nullptr;
    int row = -1; ///< What the folder says; take() and insert() keep it right.
    int itsKind = NXVBLMODEL::fkNone;
    bool tellsParent = true;
    std::vector<std::unique_ptr<ScriptedFolder>> children;
    QList<INxAbstractMedia *> media;
};

/// A tree of scripted folders whose observers hear of every change as an engine tells it.
struct ScriptedFolderManager final : INxFolderMediaManager
{
    INxFolderMedia *rootFolder() override { return root.get(); }
    INxFolderMedia *folder(int) override { return nullptr; }

    bool canRemoveFolder(INxFolderMedia *) override { return removable; }
    bool addFolder(INxFolderMedia *parent, const QString &name) override
    {
        note(QStringLiteral("add %1 to %2").arg(name, parent->name()));
        if (keepsAll)
            return false;
        insert(parent, parent->childFolderCount(), std::make_unique<ScriptedFolder>(name));
        return true;
    }
    bool removeFolder(INxFolderMedia *folder) override
    {
        note(QStringLiteral("remove %1").arg(folder->name()));
        return !keepsAll && take(folder) != nullptr;
    }
    bool renameFolder(INxFolderMedia *folder, const QString &name) override
    {
        note(QStringLiteral("rename %1 to %2").arg(folder->name(), name));
        if (keepsAll)
            return false;
        static_cast<ScriptedFolder *>(folder)->title = name;
        observers.tell([&](auto *observer) { observer->onFolderStateChangedEvent(folder); });
        return true;
    }
    bool moveFolder(INxFolderMedia *folder, INxFolderMedia *newParent, int row) override
    {
        note(QStringLiteral("move %1 to %2 %3").arg(folder->name(), newParent->name()).arg(row));
        if (keepsAll)
            return false;
        observers.tell([](auto *observer) { observer->onBeforeMoveFolderEvent(); });
        insert(newParent, row, take(folder));
        observers.tell([](auto *observer) { observer->onAfterMoveFolderEvent(); });
        return true;
    }

    ScriptedFolder *insert(INxFolderMedia *parent, int row, std::unique_ptr<ScriptedFolder> folder)
    {
        observers.tell([&](auto *observer) { observer->onBeforeAddFolderEvent(parent, row, row); });
        ScriptedFolder *inserted =
            static_cast<ScriptedFolder *>(parent)->insert(row, std::move(folder));
        observers.tell([](auto *observer) { observer->onAfterAddFolderEvent(); });
        return inserted;
    }
    std::unique_ptr<ScriptedFolder> take(INxFolderMedia *folder)
    {
        ScriptedFolder *parent = static_cast<ScriptedFolder *>(folder)->above;
        const int row = folder->rowInParent();
        observers.tell(
            [&](auto *observer) { observer->onBeforeRemoveFolderEvent(parent, row, row); });
        std::unique_ptr<ScriptedFolder> taken = parent->take(row);
        observers.tell([](auto *observer) { observer->onAfterRemoveFolderEvent(); });
        return taken;
    }

    bool registerObserver(INxMediaFolderEventObserver *observer) override
    {
        return !refuses && observers.add(observer);
    }
    void unregisterObserver(INxMediaFolderEventObserver *observer) override
    {
        observers.remove(observer);
    }

    void note(const QString &call) const
    {
        if (calls)
            calls->append(call);
    }

    std::unique_ptr<ScriptedFolder> root = std::make_unique<ScriptedFolder>(QStringLiteral("root"));
    NxObserverList<INxMediaFolderEventObserver> observers;
    bool refuses = false;
    bool removable = true; ///< Whether folders may be removed.
    bool keepsAll = false; ///< Whether every change is refused.
    QStringList *calls = nullptr; ///< Where it is written down what is asked for. Not owned.
};

/// Builds what a text draws: "A(B C(D)) E" is A with B and C, D in C, and E beside A.
inline void plant(ScriptedFolder *root, const QString &text)
{
    ScriptedFolder *at = root;
    ScriptedFolder *last = nullptr;
    for (const QChar &letter : text) {
        if (letter == QLatin1Char('(')) {
            at = last;
            last = nullptr;
        } else if (letter == QLatin1Char(')')) {
            last = nullptr;
            at = at->above;
        } else if (letter == QLatin1Char(' ')) {
            last = nullptr;
        } else if (last) {
            last->title.append(letter);
        } else {
            last = at->append(letter);
        }
    }
}

/// The folder of that name at or below another; null when there is none.
inline ScriptedFolder *called(ScriptedFolder *root, const QString &name)
{
    if (root->title == name)
        return root;
    for (const auto &child : root->children) {
        if (ScriptedFolder *found = called(child.get(), name))
            return found;
    }
    return nullptr;
}
