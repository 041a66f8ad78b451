// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/NxStringUtils.h>

#include <QFontMetrics>

int NxStringUtils::calcTextLenght(const QFont &font, const QString &text)
{
    return QFontMetrics(font).horizontalAdvance(text);
}
