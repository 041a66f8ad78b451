// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>
#include <NxVBLEngine/objects/NxEngineItem.h>
#include <NxVBLEngine/objects/NxResourceCatalogue.h>
#include <NxVBLEngine/records/NxResourceRecord.h>

/// A resource of the library: made by the engine for every project, with the user's own name and
/// favourite mark on top.
class NXVBLENGINE_TEST_EXPORT NxEngineResource final : public NxEngineItem
{
public:
    explicit NxEngineResource(const NxResourceEntry &entry);
    ~NxEngineResource() override;

    [[nodiscard]] qint64 id() const { return m_entry.id; }
    [[nodiscard]] int category() const { return m_entry.category; }
    /// What the user changed; name empty and favourite NxNoTime when nothing.
    [[nodiscard]] NxResourceRecord record() const;
    /// Empty: the resource's own name.
    void setUserName(const QString &name) { m_userName = name; }
    [[nodiscard]] QString userName() const { return m_userName; }
    void setFavouriteSince(qint64 time) { m_favourite = time; }
    [[nodiscard]] qint64 favouriteSince() const { return m_favourite; }
    void setUsed(int uses) { m_used = uses; }

    NXVBLMODEL::NxMediaType mediaType() const override { return m_entry.type; }
    int subKind() const override { return m_entry.subKind; }
    int state() const override { return m_entry.licence; }
    int kindCode() const override { return m_entry.kindCode; }
    QString name() const override;
    QString mediaId() const override;
    qint64 resourceId() const override { return m_entry.id; }
    bool isResource() const override { return true; }

    bool isNeedDownload() const override { return m_entry.needsDownload; }
    bool hasDuration() const override;
    int usedCount() const override { return m_used; }
    bool isFavourite() const override { return m_favourite != NxNoTime; }
    QDateTime favouriteTime() const override;
    QString categoryName() const override { return m_entry.categoryText; }
    int listOrder() const override { return m_entry.listOrder; }

private:
    const NxResourceEntry m_entry;
    QString m_userName;
    qint64 m_favourite = NxNoTime;
    int m_used = 0; // By the timelines.
};
