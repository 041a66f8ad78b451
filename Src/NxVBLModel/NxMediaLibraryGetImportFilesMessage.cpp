// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/NxMediaLibraryGetImportFilesMessage.h>

#include <NxCore/NxMessageType.h>

NxMediaLibraryGetImportFilesMessage::NxMediaLibraryGetImportFilesMessage()
    : NxMessage(nmtGetImportFiles)
{
}

NxMediaLibraryGetImportFilesMessage::~NxMediaLibraryGetImportFilesMessage() = default;
