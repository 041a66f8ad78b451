// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/reading/NxReadRequests.h>

#include <NxVBLModel/NxMediaFileTypes.h>

#include <QFile>
#include <QFileInfo>

using namespace NXVBLMODEL;

namespace {

NxFootageRoad roadOf(const QString &path)
{
    const NxSuffixFacts facts = suffixFacts(QFileInfo(path).suffix());
    if (facts.type == mtImage)
        return NxFootageRoad::Still;
    return facts.type == mtSubtitle ? NxFootageRoad::Text : NxFootageRoad::Stream;
}

} // namespace

NxReadRequest NxReadRequests::of(quint64 number, const QString &path, quint8 wishes)
{
    NxReadRequest request;
    request.number = number;
    request.path = QFile::encodeName(path);
    request.road = roadOf(path);
    request.wishes = wishes;
    return request;
}
