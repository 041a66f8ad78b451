// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemModel.h>

#include <NxCore/NxFile.h>
#include <NxMediaLibrary/NxMediaDataModel/NMediaItemData.h>
#include <NxMediaLibrary/ToolTip.h>
#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/INxMediaItemManager.h>
#include <NxVBLModel/INxVCGClassifyMediaItem.h>
#include <NxVBLModel/INxVCGMediaItem.h>
#include <NxVBLModel/NxMediaItemMimeData.h>
#include <NxVBLModel/NxObserverConnector.h>

#include <QEvent>
#include <QTimer>

#include <algorithm>
#include <iterator>

#include "NxResetScope_p.h"

using namespace NXMEDIALIBRARY;

namespace {

constexpr int IdleMsec = 60000;

constexpr const char *MediaHeadings[] = {
    QT_TRANSLATE_NOOP("NxMediaItemModel", "Name"),
    QT_TRANSLATE_NOOP("NxMediaItemModel", "Used"),
    QT_TRANSLATE_NOOP("NxMediaItemModel", "Type"),
    QT_TRANSLATE_NOOP("NxMediaItemModel", "Frame Rate"),
    QT_TRANSLATE_NOOP("NxMediaItemModel", "In Point"),
    QT_TRANSLATE_NOOP("NxMediaItemModel", "Out Point"),
    QT_TRANSLATE_NOOP("NxMediaItemModel", "Duration"),
    QT_TRANSLATE_NOOP("NxMediaItemModel", "Resolution"),
    QT_TRANSLATE_NOOP("NxMediaItemModel", "Audio Info"),
    QT_TRANSLATE_NOOP("NxMediaItemModel", "Date Created"),
};

constexpr const char *ResourceHeadings[] = {
    QT_TRANSLATE_NOOP("NxMediaItemModel", "Name"),
    QT_TRANSLATE_NOOP("NxMediaItemModel", "Library"),
    QT_TRANSLATE_NOOP("NxMediaItemModel", "Favorite"),
    QT_TRANSLATE_NOOP("NxMediaItemModel", "Category"),
    QT_TRANSLATE_NOOP("NxMediaItemModel", "Find Similar"),
};

bool isSynthetic(const INxAbstractMedia *media)
{
    const NXVBLMODEL::NxMediaType type = media->mediaType();
    return type == NXVBLMODEL::mtGroup || type == NXVBLMODEL::mtImportTile
           || type == NXVBLMODEL::mtViewMoreTile;
}

// What somebody else can use: a media that is here.
bool isDraggable(const INxAbstractMedia *media)
{
    const auto *item = dynamic_cast<const INxAbstractMediaItem *>(media);
    if (!item || (!item->isResource() && !NxFile::exists(item->filePath())))
        return false;
    if (dynamic_cast<const INxVCGClassifyMediaItem *>(item))
        return false;
    const auto *clip = dynamic_cast<const INxVCGMediaItem *>(item);
    return !clip || !clip->isOnline() || !clip->isNotAvailable();
}

} // namespace

NxMediaItemModel::NxMediaItemModel(NXVBLMODEL::NxMediaCategoryType categoryType, QObject *parent)
    : QAbstractItemModel(parent),
      m_data(std::make_unique<NMediaItemData>(categoryType)),
      m_categoryType(categoryType),
      m_idle(new QTimer(this))
{
    m_idle->setSingleShot(true);
    m_idle->setInterval(IdleMsec);
    m_idle->setTimerType(Qt::VeryCoarseTimer);
    connect(m_idle, &QTimer::timeout, this, [this] { m_data->releaseCaches(); });
}

NxMediaItemModel::~NxMediaItemModel()
{
    disconnect(m_folderDeath);
}

int NxMediaItemModel::rowCount(const QModelIndex &parent) const
{
    Q_UNUSED(parent)
    return m_data->getItems().size();
}

int NxMediaItemModel::columnCount(const QModelIndex &parent) const
{
    Q_UNUSED(parent)
    return int(m_categoryType == NXVBLMODEL::mctMedia ? std::size(MediaHeadings)
                                                      : std::size(ResourceHeadings));
}

QModelIndex NxMediaItemModel::index(int row, int column, const QModelIndex &parent) const
{
    Q_UNUSED(parent)
    return createIndex(row, column, mediaItem(row));
}

QModelIndex NxMediaItemModel::parent(const QModelIndex &index) const
{
    Q_UNUSED(index)
    return {};
}

QVariant NxMediaItemModel::data(const QModelIndex &index, int role) const
{
    INxAbstractMedia *media = index.isValid() ? mediaItem(index.row()) : nullptr;
    if (!media || role != Qt::ToolTipRole)
        return {};
    if (m_categoryType == NXVBLMODEL::mctMedia)
        return ToolTip::GetMediaDataToolTip(media);
    if (m_categoryType == NXVBLMODEL::mctAudio)
        return ToolTip::GetEffectDataToolTip(media);
    return {};
}

QVariant NxMediaItemModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractItemModel::headerData(section, orientation, role);
    if (section < 0 || section >= columnCount())
        return {};
    return tr(m_categoryType == NXVBLMODEL::mctMedia ? MediaHeadings[section]
                                                     : ResourceHeadings[section]);
}

Qt::ItemFlags NxMediaItemModel::flags(const QModelIndex &index) const
{
    Qt::ItemFlags flags = QAbstractItemModel::flags(index);
    const INxAbstractMedia *media = index.isValid() ? mediaItem(index.row()) : nullptr;
    if (!media)
        return flags;
    if (isSynthetic(media))
        return flags & ~(Qt::ItemIsSelectable | Qt::ItemIsEditable | Qt::ItemIsDragEnabled);
    if (index.column() == 0)
        flags |= Qt::ItemIsEditable;
    return flags | Qt::ItemIsDragEnabled;
}

bool NxMediaItemModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    return QAbstractItemModel::setData(index, value, role);
}

QMimeData *NxMediaItemModel::mimeData(const QModelIndexList &indexes) const
{
    auto dragged = std::make_unique<NxMediaItemMimeData>();
    for (const QModelIndex &index : indexes) {
        INxAbstractMedia *media = mediaItem(index.row());
        if (isDraggable(media))
            dragged->append(media);
    }
    return dragged.release();
}

bool NxMediaItemModel::canFetchMore(const QModelIndex &parent) const
{
    Q_UNUSED(parent)
    return m_fetchMoreEnable && folder() && folder()->canFetchMore();
}

void NxMediaItemModel::fetchMore(const QModelIndex &parent)
{
    Q_UNUSED(parent)
    if (INxFolderMedia *shown = folder())
        shown->fetchMore();
}

bool NxMediaItemModel::event(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        m_data->updateExtraText();
    return QAbstractItemModel::event(event);
}

void NxMediaItemModel::load(const INxFolderMedia *folder)
{
    const NxResetScope scope(this);
    m_data->load(folder);
    watchFolder();
}

// Rows must not outlive what they show.
void NxMediaItemModel::watchFolder()
{
    disconnect(m_folderDeath);
    if (!folder())
        return;
    m_folderDeath = connect(folder(), &QObject::destroyed, this, [this] {
        const NxResetScope scope(this);
        m_data->clear();
        m_data->load(nullptr);
    });
}

void NxMediaItemModel::clear()
{
    const NxResetScope scope(this);
    m_data->clear();
}

INxFolderMedia *NxMediaItemModel::folder() const
{
    return m_data->folder();
}

QList<INxAbstractMedia *> NxMediaItemModel::getItems() const
{
    return m_data->getItems();
}

INxAbstractMedia *NxMediaItemModel::mediaItem(int row) const
{
    return m_data->mediaItem(row);
}

QList<int> NxMediaItemModel::rows(const INxAbstractMedia *item) const
{
    return m_data->rows(item);
}

QVector<int> NxMediaItemModel::wholeLineRows() const
{
    return m_data->wholeLineRows();
}

int NxMediaItemModel::listedCount() const
{
    return m_data->listedCount();
}
