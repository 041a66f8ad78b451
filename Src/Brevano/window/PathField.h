// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QLineEdit>

/// Shows the path of a file. What does not fit is left out in the middle, so that both the drive
/// and the file's own name are seen; with the keyboard focus the whole path can be selected.
class PathField : public QLineEdit
{
    Q_OBJECT
public:
    explicit PathField(QWidget *parent = nullptr);
    ~PathField() override;

    /// The path is also the tooltip.
    void setPath(const QString &path);
    /// What is painted while somebody else has the focus.
    [[nodiscard]] QString shownText() const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    [[nodiscard]] QRect textPlace() const;
};
