// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxVBLEngine/objects/NxSiblingPlaces.h>

#include <NxVBLEngine/objects/NxEngineFolder.h>

namespace {

qint64 placeBefore(const QVector<NxEngineFolder *> &siblings, int spot)
{
    return spot > 0 ? siblings.at(spot - 1)->place() : 0;
}

} // namespace

bool NxSiblingPlaces::hasGap(const QVector<NxEngineFolder *> &siblings, int spot)
{
    return spot >= siblings.size() || siblings.at(spot)->place() - placeBefore(siblings, spot) > 1;
}

qint64 NxSiblingPlaces::placeAt(const QVector<NxEngineFolder *> &siblings, int spot)
{
    const qint64 before = placeBefore(siblings, spot);
    if (spot >= siblings.size())
        return before + Gap;
    return before + (siblings.at(spot)->place() - before) / 2;
}

qint64 NxSiblingPlaces::placeAtEnd(const NxEngineFolder *parent)
{
    return Gap + (parent->children().empty() ? 0 : parent->children().back()->place());
}
