// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxCoreExport.h>

#include <QString>

class QFont;

/// Measures of texts.
class NXCORE_EXPORT NxStringUtils
{
public:
    /// How many pixels the pen advances when the text is drawn in this font.
    [[nodiscard]] static int calcTextLenght(const QFont &font, const QString &text);
};
