// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLModel/NxClipExportImportMediaMessage.h>

#include <NxCore/NxMessageType.h>

NxClipExportImportMediaMessage::NxClipExportImportMediaMessage()
    : NxMessage(nmtClipExportImportMedia)
{
}

NxClipExportImportMediaMessage::~NxClipExportImportMediaMessage() = default;
