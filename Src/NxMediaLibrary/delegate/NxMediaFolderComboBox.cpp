// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/delegate/NxMediaFolderComboBox.h>

#include <NxMediaLibrary/delegate_P/NxMediaFolderComboBoxPrivate.h>
#include <NxVBLModel/INxFolderMedia.h>
#include <NxWidgets/NxComboBox.h>

NxMediaFolderComboBox::NxMediaFolderComboBox(NxFolderMediaManagerPresenter *presenter,
                                             NxUIView *parent)
    : NxWidgetView(parent),
      d_ptr(std::make_unique<NxMediaFolderComboBoxPrivate>(this, presenter))
{
    d_func()->layOut();
    load(d_func()->rootFolder());
    connect(d_func()->comboBox, QOverload<int>::of(&QComboBox::activated), this,
            [this](int entry) { d_func()->selectFolder(entry); });
}

NxMediaFolderComboBox::~NxMediaFolderComboBox() = default;

void NxMediaFolderComboBox::load(INxFolderMedia *folder)
{
    if (folder)
        d_func()->appendBelow(folder, folder->depth() + 1);
}

void NxMediaFolderComboBox::clear()
{
    d_func()->comboBox->clear();
}

void NxMediaFolderComboBox::setDefaultFolder()
{
    d_func()->selectFolder(0);
}

void NxMediaFolderComboBox::showFolder(const INxFolderMedia *folder)
{
    const int entry = d_func()->entryOf(folder);
    if (entry >= 0)
        d_func()->comboBox->setCurrentIndex(entry);
}
