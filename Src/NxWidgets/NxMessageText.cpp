// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NxMessageText_p.h"

#include <QScreen>

#include <algorithm>
#include <cmath>
#include <memory>

namespace {

constexpr int fewestColumns = 24;
constexpr int comfortableColumns = 60;

} // namespace

NxMessageText::NxMessageText(const QString &text, const QFont &font, QWidget *parent)
    : QTextEdit(parent)
{
    setFont(font);
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse);
    setFocusPolicy(Qt::ClickFocus);
    setFrameShape(QFrame::NoFrame);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    document()->setDocumentMargin(0);
    setPlainText(text);

    // It looks like a part of the dialog, not like a field to write in.
    viewport()->setAutoFillBackground(false);
    QPalette colours = palette();
    colours.setBrush(QPalette::Text, colours.windowText());
    setPalette(colours);
}

QSize NxMessageText::sizeHint() const
{
    const QSize available = screen()->availableSize();
    const int column = fontMetrics().averageCharWidth();
    const std::unique_ptr<QTextDocument> measured(document()->clone());
    measured->setTextWidth(std::min(comfortableColumns * column, available.width() / 2));
    const int width = int(std::ceil(measured->idealWidth()));
    const int height = int(std::ceil(measured->size().height()));
    return {std::max(width, fewestColumns * column), std::min(height, available.height() / 3)};
}

QSize NxMessageText::minimumSizeHint() const
{
    return sizeHint();
}
