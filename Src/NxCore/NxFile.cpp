// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/NxFile.h>

#include <NxCore/NxDiskBan.h>

#include <QFileInfo>

#include <memory>
#include <mutex>
#include <utility>

namespace {

struct Installed
{
    std::mutex mutex;
    std::shared_ptr<const NxFile::Answerer> answerer; // Guarded by the mutex.
};

Installed &installed()
{
    static Installed instance;
    return instance;
}

std::shared_ptr<const NxFile::Answerer> currentAnswerer()
{
    const std::lock_guard<std::mutex> lock(installed().mutex);
    return installed().answerer;
}

} // namespace

bool NxFile::exists(const QString &path)
{
    if (path.isEmpty())
        return false;
    if (const std::optional<bool> known = knownToExist(path))
        return *known;
    NxDiskBan::note("NxFile::exists");
    return QFileInfo::exists(path);
}

std::optional<bool> NxFile::knownToExist(const QString &path)
{
    if (path.isEmpty())
        return false;
    const std::shared_ptr<const Answerer> answerer = currentAnswerer();
    return answerer ? (*answerer)(path) : std::nullopt;
}

void NxFile::setAnswerer(Answerer answerer)
{
    std::shared_ptr<const Answerer> replacement;
    if (answerer)
        replacement = std::make_shared<const Answerer>(std::move(answerer));
    const std::lock_guard<std::mutex> lock(installed().mutex);
    installed().answerer.swap(replacement);
}
