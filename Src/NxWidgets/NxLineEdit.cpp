// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxWidgets/NxLineEdit.h>

#include "NxSkinFollower_p.h"

#include <NxWidgets/NxSkinStyle.h>

#include <QPainter>

namespace {

constexpr int textMargin = 4; // px

} // namespace

NxLineEdit::NxLineEdit(QWidget *parent) : QLineEdit(parent)
{
    new NxSkinFollower(this);
    // The style's frame would take more of the few pixels than the one that paintEvent() draws.
    setFrame(false);
    setTextMargins(textMargin, 0, textMargin, 0);
}

QLineEdit *NxLineEdit::creartNormalLineEdit(QWidget *parent, NxLineEditSizeType sizeType)
{
    auto *edit = new NxLineEdit(parent);
    edit->setFixedHeight(int(sizeType));
    return edit;
}

void NxLineEdit::paintEvent(QPaintEvent *event)
{
    QLineEdit::paintEvent(event);
    const NxSkinColor border =
        hasFocus() ? NxSkinColor::Control_Focus : NxSkinColor::Control_Border;
    QPainter painter(this);
    painter.setPen(NxSkinStyle::instance()->GetColor(border));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}
