// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxWidgets/NMessageDialogInfo.h>

#include <QStringList>

/// All that a message dialog shows, one line for each part: what is empty is left out.
inline QStringList dialogText(const NMessageDialogInfo &info)
{
    QStringList buttons;
    for (const int button : info.buttons) {
        const QString caption = info.captions.value(button);
        buttons.append(QString::number(button)
                       + (caption.isEmpty() ? caption : QLatin1Char(' ') + caption));
    }
    QStringList lines = {QStringLiteral("style %1").arg(info.style)};
    if (!info.title.isEmpty())
        lines.append(QLatin1String("title ") + info.title);
    lines.append(info.text);
    if (!info.detail.isEmpty())
        lines.append(info.detail);
    if (!buttons.isEmpty())
        lines.append(QLatin1String("buttons ") + buttons.join(QLatin1String(", ")));
    lines.append(
        QStringLiteral("default %1, escape %2").arg(info.defaultButton).arg(info.escapeButton));
    if (!info.checkBoxText.isEmpty()) {
        const bool isChecked = info.isCheckBoxChecked;
        lines.append((isChecked ? QLatin1String("[x] ") : QLatin1String("[ ] "))
                     + info.checkBoxText);
    }
    return lines;
}
