// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/PathField.h>

#include <QStyleOptionFrame>
#include <QStylePainter>

PathField::PathField(QWidget *parent) : QLineEdit(parent)
{
    setReadOnly(true);
    setFrame(false);
}

PathField::~PathField() = default;

void PathField::setPath(const QString &path)
{
    if (path == text())
        return;
    setText(path);
    // A tooltip that looks like markup would be taken for it.
    setToolTip(QStringLiteral("<p>%1</p>").arg(path.toHtmlEscaped()));
}

QString PathField::shownText() const
{
    return fontMetrics().elidedText(text(), Qt::ElideMiddle, textPlace().width());
}

void PathField::paintEvent(QPaintEvent *event)
{
    const QString shown = shownText();
    if (hasFocus() || shown == text()) {
        QLineEdit::paintEvent(event);
        return;
    }
    QStylePainter painter(this);
    painter.drawItemText(textPlace(), Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(),
                         shown, foregroundRole());
}

QRect PathField::textPlace() const
{
    constexpr int margin = 2; // px, as a line edit leaves beside its text.
    QStyleOptionFrame option;
    initStyleOption(&option);
    return style()
        ->subElementRect(QStyle::SE_LineEditContents, &option, this)
        .adjusted(margin, 0, -margin, 0);
}
