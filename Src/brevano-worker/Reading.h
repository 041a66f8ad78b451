// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxWorkerProtocol/NxWorkerMessages.h>
#include <brevano-worker/pictures/PictureMaker.h>

#include <QString>

#include <functional>
#include <memory>

class FootageFile;

/// Reads one file as a request wishes: opens it once, and answers facts, fingerprint and pictures,
/// or why there are none.
class Reading
{
public:
    explicit Reading(const QString &cacheFolder);

    /// `opened` is called when the file is open and its disk has answered. Throws nothing.
    [[nodiscard]] NxReadAnswer answer(const NxReadRequest &request,
                                      const std::function<void()> &opened) const;

private:
    void read(const NxReadRequest &request, const std::function<void()> &opened,
              NxReadAnswer *answer) const;
    void readStream(const NxReadRequest &request, FootageFile *file, NxReadAnswer *answer) const;
    void readStill(const NxReadRequest &request, FootageFile *file, NxReadAnswer *answer) const;
    void readText(const NxReadRequest &request, FootageFile *file, NxReadAnswer *answer) const;

    const PictureMaker m_pictures;
};
