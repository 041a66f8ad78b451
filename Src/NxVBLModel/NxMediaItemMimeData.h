// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/NxMediaRef.h>
#include <NxVBLModel/NxVBLModelExport.h>

#include <QList>
#include <QMimeData>
#include <QVector>

/// Media on their way from one view to another. Holds them weakly: what died on the way is left
/// out.
class NXVBLMODEL_EXPORT NxMediaItemMimeData : public QMimeData
{
    Q_OBJECT
public:
    NxMediaItemMimeData();
    ~NxMediaItemMimeData() override;

    /// Null is ignored.
    void append(INxAbstractMedia *media);
    /// In the order they were appended. Not owned.
    [[nodiscard]] QList<INxAbstractMedia *> items() const;

private:
    QVector<NxMediaRef> m_items;
};
