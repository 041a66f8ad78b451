// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "GalleryStock.h"

#include <NxVBLModel/INxExtraMedia.h>

using namespace NXVBLMODEL;

GalleryStock::GalleryStock()
    : m_importTile(INxExtraMedia::createExtraMedia(mtImportTile)),
      m_viewMoreTile(INxExtraMedia::createExtraMedia(mtViewMoreTile)),
      m_fixedHeader(QStringLiteral("Cannot be folded"), 12)
{
    m_importTile->setTitle(QStringLiteral("Import Media"));
    addMedia();
    addHeaders();
    addFolders();
}

GalleryStock::~GalleryStock()
{
    for (INxGroupMedia *group : qAsConst(m_groups))
        INxGroupMedia::releaseGroup(group);
    INxExtraMedia::releaseExtraMedia(m_importTile);
    INxExtraMedia::releaseExtraMedia(m_viewMoreTile);
}

QList<INxAbstractMedia *> GalleryStock::media() const
{
    QList<INxAbstractMedia *> all;
    for (const auto &item : m_items)
        all.append(item.get());
    return all;
}

INxAbstractMedia *GalleryStock::importTile() const
{
    return m_importTile;
}

INxAbstractMedia *GalleryStock::viewMoreTile() const
{
    return m_viewMoreTile;
}

QList<INxAbstractMedia *> GalleryStock::headers() const
{
    QList<INxAbstractMedia *> headers;
    for (INxGroupMedia *group : m_groups)
        headers.append(group);
    headers.append(const_cast<GalleryHeader *>(&m_fixedHeader));
    return headers;
}

QList<INxFolderMedia *> GalleryStock::folders() const
{
    QList<INxFolderMedia *> folders;
    for (const auto &folder : m_folders)
        folders.append(folder.get());
    return folders;
}

GalleryItem *GalleryStock::add(NxMediaType type, const QString &name, int hue, qint64 frames)
{
    m_items.push_back(std::make_unique<GalleryItem>(type, name));
    GalleryItem *item = m_items.back().get();
    item->hue = hue;
    item->info.frames = frames;
    return item;
}

void GalleryStock::addMedia()
{
    add(mtVideoAudio, QStringLiteral("Harbour at dawn.mov"), 20, 1234);
    m_marked = add(mtVideo, QStringLiteral("Drone over the valley, take 12.mp4"), 205, 18025);
    m_marked->used = 3;
    m_marked->hasProxy = true;
    m_marked->licence = lsPremium;
    add(mtVideoAudio, QStringLiteral("Still on its way.mxf"), -1, 250)->progress = 40;
    GalleryItem *sound = add(mtAudio, QStringLiteral("Interview left.wav"), -1, 4321);
    sound->info.infoKind = mikAudio;
    sound->info.flags = sfAudio;
    sound->used = 1;
    GalleryItem *photo = add(mtImage, QStringLiteral("IMG_2041.jpg"), 130, -1);
    photo->info.infoKind = mikImage;
    photo->info.flags = sfImage;
    photo->licence = lsStandard;
    GalleryItem *gif = add(mtElement, QStringLiteral("waving.gif"), 300, -1);
    gif->finerKind = mskGif;
    GalleryItem *subtitle = add(mtSubtitle, QStringLiteral("English.srt"), -1, 1500);
    subtitle->info.infoKind = mikSubtitle;
    subtitle->info.flags = sfNone;
    add(mtVideo, QStringLiteral("Lost since Monday.mov"), 45, 640)->unavailable = true;
}

void GalleryStock::addHeaders()
{
    addGroup(QStringLiteral("Video"), true, 3);
    addGroup(QStringLiteral("Audio"), false, 1);
    addGroup(QStringLiteral("Nothing in it"), true, 0);
}

void GalleryStock::addFolders()
{
    const QList<INxAbstractMedia *> all = media();
    m_folders.push_back(std::make_unique<GalleryFolder>(QStringLiteral("Project media"), all));
    m_folders.push_back(
        std::make_unique<GalleryFolder>(QStringLiteral("Holiday, day 1"), all.mid(0, 3)));
    m_folders.push_back(std::make_unique<GalleryFolder>(QStringLiteral("Empty folder"),
                                                        QList<INxAbstractMedia *>()));
    m_folders.push_back(std::make_unique<GalleryFolder>(
        QStringLiteral("A folder whose name is far too long for the tree"), all));
}

INxGroupMedia *GalleryStock::addGroup(const QString &title, bool isExpanded, int members)
{
    INxGroupMedia *group = INxGroupMedia::createGroup();
    group->setTitle(title);
    group->setExpanded(isExpanded);
    group->setMembers(media().mid(0, members));
    m_groups.append(group);
    return group;
}
