// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLEngine/NxVBLEngineExport.h>

#include <QString>

/// The folder of covers and film strips on disk. Every function waits for a disk.
namespace NxPictureCache {

/// Bytes that the folder may hold.
constexpr qint64 DefaultLimit = 2LL * 1024 * 1024 * 1024;

/// Removes the pictures that were used longest ago until the folder holds nine tenths of
/// `limit`, if it holds more than `limit`; and what a worker that died left half written.
/// Touches nothing that is not a picture of ours, and follows no link. Answers the bytes of
/// pictures that are left.
NXVBLENGINE_TEST_EXPORT qint64 trim(const QString &folder, qint64 limit);
/// The picture was used: it is removed later than others. Notes it once a day.
NXVBLENGINE_TEST_EXPORT void noteUse(const QString &path);

} // namespace NxPictureCache
