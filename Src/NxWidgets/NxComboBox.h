// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxWidgets/NxWidgetsExport.h>

#include <QComboBox>

/// A box to choose one of several entries from, in the colours of the skin, which it follows. Long
/// entries make it no wider: they are shortened in their middle, in the box and, where they need
/// much room, in its popup, too. GUI thread only.
class NXWIDGETS_EXPORT NxComboBox : public QComboBox
{
    Q_OBJECT
public:
    /// @param parent owns it; may be null.
    [[nodiscard]] static NxComboBox *CreateComboBox(QWidget *parent);

    void showPopup() override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    explicit NxComboBox(QWidget *parent);
};
