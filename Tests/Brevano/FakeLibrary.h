// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/INxFolderMedia.h>

#include <memory>
#include <vector>

/// A media of a name and a path, without a file.
class FakeItem final : public INxAbstractMediaItem
{
public:
    FakeItem(INxFolderMedia *folder, const QString &path) : m_folder(folder), m_path(path) {}

    NXVBLMODEL::NxMediaType mediaType() const override { return NXVBLMODEL::mtVideoAudio; }
    QString name() const override { return m_path.section(QLatin1Char('/'), -1); }
    QString sourcePath() const override { return m_path; }
    INxFolderMedia *parentFolder() const override { return m_folder; }

private:
    INxFolderMedia *const m_folder; // Not owned.
    const QString m_path;
};

/// A folder that holds fake media and fake folders.
class FakeFolder final : public INxFolderMedia
{
public:
    explicit FakeFolder(const QString &name, int kind = NXVBLMODEL::fkNone,
                        FakeFolder *parent = nullptr)
        : m_name(name),
          m_kind(kind),
          m_parent(parent)
    {
    }

    FakeFolder *addFolder(const QString &name)
    {
        m_children.push_back(std::make_unique<FakeFolder>(name, NXVBLMODEL::fkNone, this));
        return m_children.back().get();
    }
    FakeItem *addItem(const QString &path)
    {
        m_items.push_back(std::make_unique<FakeItem>(this, path));
        return m_items.back().get();
    }

    QString name() const override { return m_name; }
    int kind() const override { return m_kind; }
    bool isKind(int folderKind) const override { return folderKind == m_kind; }
    int folderId() const override { return m_kind; }
    int depth() const override { return m_parent ? m_parent->depth() + 1 : 1; }
    INxFolderMedia *parentFolder() const override { return m_parent; }
    INxFolderMedia *owner() const override
    {
        return m_parent ? m_parent->owner() : const_cast<FakeFolder *>(this);
    }
    QList<INxAbstractMedia *> items(bool recursive, bool) const override
    {
        QList<INxAbstractMedia *> result;
        for (const auto &item : m_items)
            result.append(item.get());
        for (const auto &child : m_children)
            result += recursive ? child->items(true, true) : QList<INxAbstractMedia *>();
        return result;
    }
    INxAbstractMedia *findMediaByPath(const QString &path, bool recursive) const override
    {
        const QList<INxAbstractMedia *> all = items(recursive, true);
        for (INxAbstractMedia *item : all) {
            if (item->sourcePath() == path)
                return item;
        }
        return nullptr;
    }

private:
    const QString m_name;
    const int m_kind;
    FakeFolder *const m_parent;
    std::vector<std::unique_ptr<FakeFolder>> m_children;
    std::vector<std::unique_ptr<FakeItem>> m_items;
};
