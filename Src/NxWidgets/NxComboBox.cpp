// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxWidgets/NxComboBox.h>

#include "NxSkinFollower_p.h"

#include <QAbstractItemView>
#include <QStylePainter>
#include <QStyledItemDelegate>

#include <algorithm>

namespace {

constexpr int widestPopup = 360; // px, unless the box itself is wider.

} // namespace

NxComboBox::NxComboBox(QWidget *parent) : QComboBox(parent)
{
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    // Styles that show the entries as a menu would never shorten them.
    setItemDelegate(new QStyledItemDelegate(this));
    view()->setTextElideMode(Qt::ElideMiddle);
    new NxSkinFollower(this);
}

NxComboBox *NxComboBox::CreateComboBox(QWidget *parent)
{
    return new NxComboBox(parent);
}

void NxComboBox::showPopup()
{
    view()->window()->setMaximumWidth(std::max(width(), widestPopup));
    QComboBox::showPopup();
}

void NxComboBox::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    painter.setPen(palette().color(QPalette::Text));
    QStyleOptionComboBox option;
    initStyleOption(&option);
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    const QRect field =
        style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    const int width = field.width() - 2; // Styles leave a pixel free at both ends.
    option.currentText = fontMetrics().elidedText(option.currentText, Qt::ElideMiddle, width);
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}
