// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/NxMediaTypes.h>
#include <NxVBLModel/NxVBLModelExport.h>

#include <QString>

/// What the resource service says about a library resource.
class NXVBLMODEL_EXPORT INxResourceInfo
{
public:
    virtual ~INxResourceInfo();

    [[nodiscard]] virtual qint64 resId() const = 0;
    /// NXVBLMODEL::NxPaymentType.
    [[nodiscard]] virtual int paymentType() const;
    /// NXVBLMODEL::NxResourceAttribute.
    [[nodiscard]] virtual int attribute() const;
    /// NXVBLMODEL::NxMediaCategoryType.
    [[nodiscard]] virtual int category() const;
    [[nodiscard]] virtual QString name() const;
};
