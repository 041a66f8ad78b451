// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/delegate_P/NxMediaFolderComboBoxPrivate.h>

#include <NxMediaLibrary/delegate/NxMediaFolderComboBox.h>
#include <NxVBLModel/INxFolderMedia.h>
#include <NxVBLModel/INxFolderMediaManager.h>
#include <NxWidgets/NxComboBox.h>

#include <QHBoxLayout>

namespace {

constexpr int indent = 6; // Spaces for each level.

enum EntryRole : int {
    FolderRole = Qt::UserRole, ///< The folder's address, as void *.
    LifeRole, ///< Whether somebody still lives there.
};

} // namespace

NxMediaFolderComboBoxPrivate::NxMediaFolderComboBoxPrivate(NxMediaFolderComboBox *view,
                                                           NxFolderMediaManagerPresenter *folders)
    : q_ptr(view),
      presenter(folders),
      comboBox(NxComboBox::CreateComboBox(view))
{
}

void NxMediaFolderComboBoxPrivate::layOut() const
{
    auto *layout = new QHBoxLayout(q_ptr);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(comboBox);
}

INxFolderMedia *NxMediaFolderComboBoxPrivate::rootFolder() const
{
    INxFolderMediaManager *manager = presenter ? presenter->folderManager() : nullptr;
    return manager ? manager->rootFolder() : nullptr;
}

void NxMediaFolderComboBoxPrivate::appendBelow(const INxFolderMedia *folder, int depth) const
{
    const QList<INxFolderMedia *> children = folder->childFolders();
    for (INxFolderMedia *child : children) {
        if (!child || child->isKind(NXVBLMODEL::fkOnline))
            continue;
        append(child, depth);
        if (child->hasChildFolders())
            appendBelow(child, depth + 1);
    }
}

void NxMediaFolderComboBoxPrivate::append(INxFolderMedia *folder, int depth) const
{
    const QString blanks(depth * indent, QLatin1Char(' '));
    const int entry = comboBox->count();
    comboBox->addItem(QIcon(), QStringLiteral("%1%2").arg(blanks, folder->name()),
                      QVariant::fromValue(static_cast<void *>(folder)));
    comboBox->setItemData(entry, QVariant::fromValue(QPointer<INxFolderMedia>(folder)), LifeRole);
}

int NxMediaFolderComboBoxPrivate::entryOf(const INxFolderMedia *folder) const
{
    for (int entry = 0; folder && entry < comboBox->count(); ++entry) {
        if (comboBox->itemData(entry, LifeRole).value<QPointer<INxFolderMedia>>() == folder)
            return entry;
    }
    return -1;
}

void NxMediaFolderComboBoxPrivate::selectFolder(int entry) const
{
    auto *folder =
        static_cast<INxFolderMedia *>(comboBox->itemData(entry, FolderRole).value<void *>());
    const auto living = comboBox->itemData(entry, LifeRole).value<QPointer<INxFolderMedia>>();
    if (presenter && folder && living == folder)
        presenter->setCurrentFolder(folder);
}
