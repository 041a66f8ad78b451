// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxMessage.h>
#include <NxVBLModel/NxVBLModelExport.h>

#include <QStringList>

/// Asks which of some files the panel would import.
class NXVBLMODEL_EXPORT NxMediaLibraryGetImportFilesMessage : public NxMessage
{
public:
    NxMediaLibraryGetImportFilesMessage();
    ~NxMediaLibraryGetImportFilesMessage() override;

    QStringList files;
    QStringList result; ///< Written.
};
