// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxMessage.h>
#include <NxVBLModel/NxVBLModelExport.h>

#include <QVariant>

/// Offers a custom media to the panel.
class NXVBLMODEL_EXPORT NxAddCustomMediaItemMessage : public NxMessage
{
public:
    NxAddCustomMediaItemMessage();
    ~NxAddCustomMediaItemMessage() override;

    bool received = false; ///< Written by the first receiver.
    bool alreadyAdded = false; ///< True: only to be acknowledged.
    QVariant value;
};
