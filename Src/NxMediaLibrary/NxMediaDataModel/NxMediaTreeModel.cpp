// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaDataModel/NxMediaTreeModel.h>

#include <NxCore/NxLog.h>
#include <NxVBLModel/INxFolderMediaManager.h>
#include <NxVBLModel/NxMediaIndex.h>
#include <NxVBLModel/NxObserverConnector.h>

#include <QDataStream>
#include <QMimeData>

#include <utility>

namespace {

using Connector = NxObserverConnectorT<INxFolderMediaManager, INxMediaFolderEventObserver>;

QString dragType()
{
    return QStringLiteral("application/ntreemodeldatalist");
}

bool isListedBy(const INxFolderMedia *parent, const INxFolderMedia *folder)
{
    return parent->childFolder(folder->rowInParent()) == folder;
}

/// Whether the folders of this tree tell their parents; an engine need not.
bool tellsParents(const INxFolderMedia *root)
{
    const INxFolderMedia *first = root->childFolder(0);
    return !first || first->parentFolder() == root;
}

} // namespace

NxMediaTreeModel::NxMediaTreeModel(QObject *parent) : QAbstractItemModel(parent) {}

NxMediaTreeModel::~NxMediaTreeModel() = default;

void NxMediaTreeModel::load(INxFolderMedia *root)
{
    const QPointer<INxFolderMedia> wanted(root); // Who hears of the resets may delete it.
    const PendingChange pending = m_pendingChange;
    resetTo(nullptr);
    resetTo(wanted);
    if (!m_root)
        return;
    // What was begun before is still to happen, and the views have read the rows again without it.
    m_pendingChange = pending;
    m_isPendingOutdated = true;
}

void NxMediaTreeModel::clear()
{
    resetTo(nullptr);
}

void NxMediaTreeModel::resetTo(QPointer<INxFolderMedia> root)
{
    beginResetModel();
    if (m_root)
        m_root->disconnect(this);
    m_root = root;
    m_pendingChange = PendingChange::None;
    m_isPendingOutdated = false;
    if (root)
        connect(root.data(), &QObject::destroyed, this, &NxMediaTreeModel::clear);
    endResetModel();
}

void NxMediaTreeModel::setToolTipEnable(bool enable)
{
    m_toolTipEnable = enable;
}

void NxMediaTreeModel::setToolTipVisible(bool visible)
{
    m_toolTipVisible = visible;
}

void NxMediaTreeModel::subscribeFoderManager(INxFolderMediaManager *manager)
{
    auto connector = std::make_unique<Connector>(manager, this);
    if (connector->isConnected())
        m_connectors.push_back(std::move(connector));
}

void NxMediaTreeModel::unSubscribeFoderManager()
{
    m_connectors.clear();
    if (m_pendingChange != PendingChange::None)
        resetTo(m_root); // Its end is not told any more, and the views wait for it.
}

/// The folder whose children are the rows below an index; null when there are none.
INxFolderMedia *NxMediaTreeModel::shownFolder(const QModelIndex &index) const
{
    if (!m_root || !index.isValid())
        return m_root;
    return index.model() == this ? folderAt(index) : nullptr;
}

QModelIndex NxMediaTreeModel::index(int row, int column, const QModelIndex &parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    INxFolderMedia *child = shownFolder(parent)->childFolder(row);
    return child ? createIndex(row, column, child) : QModelIndex();
}

QModelIndex NxMediaTreeModel::parent(const QModelIndex &index) const
{
    const INxFolderMedia *folder = index.isValid() ? shownFolder(index) : nullptr;
    INxFolderMedia *above = folder ? folder->parentFolder() : nullptr;
    if (!above || above == m_root)
        return {};
    return createIndex(above->rowInParent(), 0, above);
}

int NxMediaTreeModel::rowCount(const QModelIndex &parent) const
{
    const INxFolderMedia *folder = shownFolder(parent);
    return folder ? folder->childFolderCount() : 0;
}

int NxMediaTreeModel::columnCount(const QModelIndex &) const
{
    return 1;
}

QVariant NxMediaTreeModel::data(const QModelIndex &index, int role) const
{
    if (role != Qt::ToolTipRole || !m_toolTipEnable || !m_toolTipVisible || !index.isValid())
        return {};
    const INxFolderMedia *folder = shownFolder(index);
    return folder ? folder->toolTipText() : QVariant();
}

QVariant NxMediaTreeModel::headerData(int, Qt::Orientation, int) const
{
    return {};
}

Qt::ItemFlags NxMediaTreeModel::flags(const QModelIndex &index) const
{
    return QAbstractItemModel::flags(index) | Qt::ItemIsEditable | Qt::ItemIsDropEnabled;
}

QStringList NxMediaTreeModel::mimeTypes() const
{
    return {dragType()};
}

bool NxMediaTreeModel::dropMimeData(const QMimeData *data, Qt::DropAction, int, int,
                                    const QModelIndex &)
{
    if (!data)
        return true;
    QDataStream stream(data->data(dragType()));
    QString text; // Read and let go: it is the folder presenter that moves folders.
    while (!stream.atEnd() && stream.status() == QDataStream::Ok)
        stream >> text;
    return true;
}

QModelIndex NxMediaTreeModel::findIndex(INxFolderMedia *folder, const QModelIndex &start) const
{
    INxFolderMedia *const top = shownFolder(start);
    if (!top || !folder)
        return {};
    if (folder == top)
        return start; // Invalid for the root.
    switch (placeOf(folder, top)) {
    case Place::Below:
        return createIndex(folder->rowInParent(), 0, folder);
    case Place::Elsewhere:
        return {};
    case Place::Unclear:
        break;
    }
    return searchBelow(top, folder);
}

/// Asks the folder, its parent and so on where they stand, and believes what each parent confirms.
NxMediaTreeModel::Place NxMediaTreeModel::placeOf(const INxFolderMedia *folder,
                                                  const INxFolderMedia *top) const
{
    bool isBelow = false;
    for (const INxFolderMedia *at = folder; at != m_root;) {
        const INxFolderMedia *parent = at->parentFolder();
        if (!parent && at->rowInParent() < 0 && tellsParents(m_root))
            return Place::Elsewhere; // A root, or a folder that stands nowhere.
        if (!parent || !isListedBy(parent, at))
            return Place::Unclear;
        isBelow = isBelow || parent == top;
        at = parent;
    }
    return isBelow ? Place::Below : Place::Elsewhere;
}

/// Depth first, in the order of the rows.
QModelIndex NxMediaTreeModel::searchBelow(INxFolderMedia *top, const INxFolderMedia *folder) const
{
    std::vector<std::pair<const INxFolderMedia *, int>> path{{top, 0}};
    while (!path.empty()) {
        const INxFolderMedia *parent = path.back().first;
        const int row = path.back().second++;
        INxFolderMedia *child = parent->childFolder(row);
        if (child == folder)
            return createIndex(row, 0, child);
        if (child)
            path.emplace_back(child, 0);
        else if (row >= parent->childFolderCount())
            path.pop_back();
    }
    return {};
}

/// Whether rows may come or go below a parent; says why not.
bool NxMediaTreeModel::canBegin(const INxFolderMedia *parent, const QModelIndex &index,
                                const char *function) const
{
    const QString name = parent ? parent->name() : QString();
    if (m_pendingChange != PendingChange::None && !m_isPendingOutdated) {
        NX_LOG_ERROR_AS(function, "a folder change inside another one is ignored: %s",
                        qUtf8Printable(name));
        return false;
    }
    if (parent && (index.isValid() || parent == m_root))
        return true;
    NX_LOG_ERROR_AS(function, "find folder failed: %s", qUtf8Printable(name));
    return false;
}

/// Closes a change of this kind. True when rows are to be announced.
bool NxMediaTreeModel::takePending(PendingChange change)
{
    if (m_pendingChange != change)
        return false;
    m_pendingChange = PendingChange::None; // What hears of the rows may change folders itself.
    if (!m_isPendingOutdated)
        return true;
    resetTo(m_root);
    return false;
}

void NxMediaTreeModel::onBeforeAddFolderEvent(INxFolderMedia *parent, const int &first,
                                              const int &last)
{
    if (!m_root)
        return;
    const QModelIndex index = findIndex(parent);
    if (!canBegin(parent, index, "NxMediaTreeModel::onBeforeAddFolderEvent"))
        return;
    m_pendingChange = PendingChange::Insert;
    m_isPendingOutdated = false;
    beginInsertRows(index, first, last);
}

void NxMediaTreeModel::onAfterAddFolderEvent()
{
    if (takePending(PendingChange::Insert))
        endInsertRows();
}

void NxMediaTreeModel::onBeforeRemoveFolderEvent(INxFolderMedia *parent, const int &first,
                                                 const int &last)
{
    const QModelIndex index = findIndex(parent);
    if (!canBegin(parent, index, "NxMediaTreeModel::onBeforeRemoveFolderEvent"))
        return;
    m_pendingChange = PendingChange::Remove;
    m_isPendingOutdated = false;
    beginRemoveRows(index, first, last);
}

void NxMediaTreeModel::onAfterRemoveFolderEvent()
{
    if (takePending(PendingChange::Remove))
        endRemoveRows();
}

void NxMediaTreeModel::onBeforeMoveFolderEvent() {}

void NxMediaTreeModel::onAfterMoveFolderEvent() {}

void NxMediaTreeModel::onFolderStateChangedEvent(INxFolderMedia *folder)
{
    // Persistent: what repaints may take folders away.
    for (QPersistentModelIndex index = findIndex(folder); index.isValid(); index = index.parent())
        Q_EMIT dataChanged(index, index);
}
