// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QWidget>

/// The shade over one window: follows its size, lets no mouse event through.
class NxMask : public QWidget
{
    Q_OBJECT
public:
    /// Covers the window, which owns it.
    explicit NxMask(QWidget *window);

    /// Whether a window has a mask.
    [[nodiscard]] static bool covers(const QWidget *window);

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
};
