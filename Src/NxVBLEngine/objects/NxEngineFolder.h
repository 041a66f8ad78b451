// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>
#include <NxVBLEngine/records/NxFolderRecord.h>
#include <NxVBLModel/INxFolderMedia.h>

#include <vector>

class NxEngineCategory;
class NxEngineItem;
struct NxSectionEntry;

/// A folder of the engine. Made, changed and deleted by its category.
///
/// The favourites section of a resource category is the one folder that lists guests: resources
/// whose home, and parent, is another section.
class NXVBLENGINE_TEST_EXPORT NxEngineFolder final : public INxFolderMedia
{
    Q_OBJECT
public:
    /// The hidden root of a category.
    explicit NxEngineFolder(NxEngineCategory *category);
    NxEngineFolder(NxEngineCategory *category, const NxSectionEntry &section);
    /// A folder of the user.
    NxEngineFolder(NxEngineCategory *category, const NxFolderRecord &record, int kind);
    ~NxEngineFolder() override;

    [[nodiscard]] NxEngineCategory *category() const { return m_category; }
    [[nodiscard]] NxFolderRecord record() const;
    [[nodiscard]] qint64 place() const { return m_place; }
    void setPlace(qint64 place) { m_place = place; }
    void setName(const QString &name) { m_name = name; }
    [[nodiscard]] NxEngineFolder *parentEngineFolder() const { return m_parent; }
    /// True for folders that the user made.
    [[nodiscard]] bool isUserFolder() const { return m_id >= NXVBLMODEL::fidFirstUserFolder; }
    /// True when user folders may stand in this one.
    [[nodiscard]] bool canAddFolder() const { return m_takesFolders; }
    [[nodiscard]] bool listsGuests() const;

    [[nodiscard]] const std::vector<NxEngineFolder *> &children() const { return m_children; }
    /// The row at which a child of that place stands, or would stand.
    [[nodiscard]] int rowForPlace(qint64 place) const;
    void insertChild(NxEngineFolder *child);
    void takeChild(NxEngineFolder *child);
    /// Null when no child has that very name.
    [[nodiscard]] NxEngineFolder *childNamed(const QString &name) const;

    [[nodiscard]] const std::vector<NxEngineItem *> &ownItems() const { return m_items; }
    /// By the item's place; items that come in order are appended.
    void insertItem(NxEngineItem *item);
    void takeItem(NxEngineItem *item);
    /// In the order in which they became favourites.
    void insertGuest(NxEngineItem *item);
    void takeGuest(NxEngineItem *item);

    QString name() const override { return m_name; }
    QString mediaId() const override;
    INxFolderMedia *parentFolder() const override { return m_parent; }

    QList<INxAbstractMedia *> items(bool recursive, bool mediaOnly) const override;
    INxAbstractMedia *lastMedia(bool recursive) const override;
    int listedPlace(const INxAbstractMedia *media, bool recursive) const override;
    bool containsMedia(const INxAbstractMedia *media, bool recursive) const override;
    INxAbstractMedia *findMedia(const QString &id, bool recursive) const override;
    INxAbstractMedia *findMediaByPath(const QString &path, bool recursive) const override;

    QList<INxFolderMedia *> childFolders() const override;
    INxFolderMedia *childFolder(int row) const override;
    int childFolderCount() const override { return int(m_children.size()); }
    int rowInParent() const override;
    int depth() const override;

    int folderId() const override { return m_id; }
    int kind() const override { return m_kind; }
    bool holdsMediaType(int folderKind) const override;
    INxMediaManager *mediaManager() const override;
    bool canAddMedia() const override { return m_takesMedia; }
    bool isSpecial() const override { return !isUserFolder(); }

private:
    void appendItems(QList<INxAbstractMedia *> *list, bool recursive, bool mediaOnly) const;
    int itemCount(bool recursive) const;
    /// As many as items(true, true) lists.
    [[nodiscard]] int mediaCount() const;
    [[nodiscard]] int mediaBefore(const NxEngineFolder *child) const;
    void renumberChildren(int fromRow);

    NxEngineCategory *const m_category; // Not owned.
    const int m_id;
    const int m_kind;
    const bool m_online;
    const bool m_takesMedia;
    const bool m_takesFolders;
    qint64 m_place = 0;
    QString m_name;
    NxEngineFolder *m_parent = nullptr; // Not owned.
    std::vector<NxEngineFolder *> m_children; // By place. Not owned.
    int m_row = -1;
    std::vector<NxEngineItem *> m_items; // By place, guests by favourite time. Not owned.
};
