// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxWidgets/NxLineEditSizeType.h>
#include <NxWidgets/NxWidgetsExport.h>

#include <QLineEdit>

/// A field for one line of text in the colours of the skin, which it follows. GUI thread only.
class NXWIDGETS_EXPORT NxLineEdit : public QLineEdit
{
    Q_OBJECT
public:
    /// A line edit as high as its size type says, whatever its font is. Its text keeps a little
    /// distance from the border, in its text margins.
    /// @param parent owns it; may be null.
    [[nodiscard]] static QLineEdit *creartNormalLineEdit(QWidget *parent,
                                                         NxLineEditSizeType sizeType);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    explicit NxLineEdit(QWidget *parent);
};
