// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QTextEdit>

/// A plain text in a dialog, which the mouse can select. It is as large as the text needs, up to a
/// comfortable width and a third of the screen's height; beyond that it scrolls. Words without an
/// end, such as names of files, are broken anywhere.
class NxMessageText : public QTextEdit
{
    Q_OBJECT
public:
    NxMessageText(const QString &text, const QFont &font, QWidget *parent);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
};
