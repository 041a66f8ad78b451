// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "FactsOfFile.h"

#include <brevano-worker/facts/FactsReader.h>
#include <brevano-worker/input/Container.h>
#include <brevano-worker/input/FootageFile.h>

#include <QFile>
#include <QFileInfo>
#include <QStringList>

namespace {

bool isOneOf(const QString &suffix, const char *suffixes)
{
    return QString::fromLatin1(suffixes).split(QLatin1Char(' ')).contains(suffix);
}

} // namespace

NxResult<NxFootageFacts> FactsOfFile::read(const QString &path)
{
    const auto file = FootageFile::open(QFile::encodeName(path));
    if (!file)
        return file.error();
    const QString suffix = QFileInfo(path).suffix().toLower();
    if (isOneOf(suffix, "png jpg bmp webp tif tiff heic"))
        return FactsReader::ofStill(file->get());
    if (isOneOf(suffix, "srt lrc"))
        return FactsReader::ofText(file->get());
    const auto container = Container::open(file->get());
    if (!container)
        return container.error();
    return FactsReader::ofStream(container->get());
}
