// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxWorkerProtocol/NxFootageFacts.h>

#include <QString>

class FootageFile;

/// What a camera wrote into a picture. Whatever is damaged or missing is empty: a picture that can
/// be shown is not refused because of its tags.
struct ExifTags
{
    QString maker;
    QString model;
    qint64 shot = NxNoFootageTime; ///< ms UTC.

    [[nodiscard]] static ExifTags read(const FootageFile &file);
};
