// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "PlainEngines.h"

#include <NxMediaLibrary/NxMediaLibraryUtils.h>
#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/INxMediaInfo.h>

#include <QDateTime>
#include <QSize>

#include <algorithm>

#include "PlainNaturalOrder.h"

namespace PlainEngines {

namespace {

const INxAbstractMediaItem *asItem(const INxAbstractMedia *media)
{
    return dynamic_cast<const INxAbstractMediaItem *>(media);
}

template<typename Value>
int compare(const Value &a, const Value &b)
{
    return a < b ? -1 : b < a ? 1 : 0;
}

int compareDates(const QDateTime &a, const QDateTime &b)
{
    if (a.isValid() != b.isValid())
        return a.isValid() ? 1 : -1;
    return a.isValid() ? compare(a.toMSecsSinceEpoch(), b.toMSecsSinceEpoch()) : 0;
}

NxRational rateOf(const INxAbstractMediaItem *item)
{
    return item->mediaInfo() ? item->mediaInfo()->frameRate() : item->frameRate();
}

qint64 msecOf(const INxAbstractMedia *media)
{
    const INxAbstractMediaItem *item = asItem(media);
    if (!item || !item->hasDuration() || rateOf(item).toDouble() <= 0.0)
        return 0;
    const qint64 frames = item->mediaInfo() ? item->mediaInfo()->frameCount() : item->frameCount();
    return qRound64(double(frames) * 1000.0 / rateOf(item).toDouble());
}

int typeOf(const INxAbstractMedia *media)
{
    if (NxMediaLibraryUtils::isVideo(media))
        return 0;
    if (NxMediaLibraryUtils::isPhoto(media))
        return 1;
    if (media->mediaType() == 3)
        return 2;
    return media->mediaType() == 14 ? 4 : 3;
}

int compareSizes(const QSize &a, const QSize &b)
{
    const QSize first = a.isValid() ? a : QSize(-1, -1);
    const QSize second = b.isValid() ? b : QSize(-1, -1);
    if (first.width() != second.width())
        return compare(first.width(), second.width());
    return compare(first.height(), second.height());
}

int compareNewness(const INxAbstractMediaItem *a, const INxAbstractMediaItem *b)
{
    if (a->isNew() != b->isNew())
        return a->isNew() ? -1 : 1;
    return compareDates(b->lastModified(), a->lastModified());
}

int compareItems(const INxAbstractMediaItem *a, const INxAbstractMediaItem *b, int key)
{
    switch (key) {
    case 3:
        return compareDates(a->dateCreated(), b->dateCreated());
    case 4:
        return compare(a->usedCount(), b->usedCount());
    case 5:
        return compare(rateOf(a).toDouble(), rateOf(b).toDouble());
    case 6:
        return compare(a->inPoint(), b->inPoint());
    case 7:
        return compare(a->outPoint(), b->outPoint());
    case 8:
        return compare(b->isFavourite(), a->isFavourite());
    case 9:
        return compareDates(a->favouriteTime(), b->favouriteTime());
    case 10:
        return compareDates(a->downloadTime(), b->downloadTime());
    case 11:
        return compareSizes(NxMediaLibraryUtils::getResolution(a),
                            NxMediaLibraryUtils::getResolution(b));
    case 12:
        return PlainNaturalOrder::compare(a->audioInfoText(), b->audioInfoText());
    case 14:
        return compareNewness(a, b);
    case 15:
        return PlainNaturalOrder::compare(a->categoryName(), b->categoryName());
    case 16:
        return compare(a->listOrder(), b->listOrder());
    default:
        return compare(a->sale(), b->sale());
    }
}

// A media of which nothing is known.
struct UnknownItem final : INxAbstractMediaItem
{
    NXVBLMODEL::NxMediaType mediaType() const override { return NXVBLMODEL::mtVideo; }
};

int compareMedia(const INxAbstractMedia *a, const INxAbstractMedia *b, int key)
{
    const UnknownItem unknown;
    if (key == 1)
        return PlainNaturalOrder::compare(a->name(), b->name());
    if (key == 2)
        return compare(msecOf(a), msecOf(b));
    if (key == 13)
        return compare(typeOf(a), typeOf(b));
    return compareItems(asItem(a) ? asItem(a) : &unknown, asItem(b) ? asItem(b) : &unknown, key);
}

QList<INxAbstractMedia *> ordered(QList<INxAbstractMedia *> items, int key, bool descending)
{
    std::stable_sort(
        items.begin(), items.end(), [&](const INxAbstractMedia *a, const INxAbstractMedia *b) {
            return descending ? compareMedia(b, a, key) < 0 : compareMedia(a, b, key) < 0;
        });
    return items;
}

QString dayOf(const INxAbstractMedia *media)
{
    const INxAbstractMediaItem *item = asItem(media);
    if (!item || !item->dateCreated().isValid())
        return QString();
    const QDate day = item->dateCreated().toLocalTime().date();
    return QStringLiteral("%1/%2/%3")
        .arg(day.year(), 4, 10, QLatin1Char('0'))
        .arg(day.month(), 2, 10, QLatin1Char('0'))
        .arg(day.day(), 2, 10, QLatin1Char('0'));
}

QString textOf(const INxAbstractMedia *media, int key)
{
    const INxAbstractMediaItem *item = asItem(media);
    if (key == 2)
        return dayOf(media);
    if (!item)
        return QString();
    return key == 4 ? item->cameraName() : item->categoryName();
}

int bucketOf(qint64 msec)
{
    const QVector<qint64> bounds{60000, 300000, 1800000, 3600000};
    int bucket = 0;
    while (bucket < bounds.size() && msec >= bounds.at(bucket))
        ++bucket;
    return bucket;
}

QVector<Group> groupedBySteps(const QList<INxAbstractMedia *> &items, int key)
{
    const QStringList titles =
        key == 1
            ? QStringList{QStringLiteral("Video"), QStringLiteral("Photo"), QStringLiteral("Audio"),
                          QStringLiteral("Other"), QStringLiteral("Subtitle")}
            : QStringList{QStringLiteral("less than 1min"), QStringLiteral("1 ~ 5 min"),
                          QStringLiteral("5 ~ 30 min"), QStringLiteral("30 ~ 60 min"),
                          QStringLiteral("more than 60min")};
    QVector<Group> groups;
    for (const QString &title : titles)
        groups.append({title, {}});
    for (INxAbstractMedia *media : items) {
        if (media)
            groups[key == 1 ? typeOf(media) : bucketOf(msecOf(media))].members.append(media);
    }
    return groups;
}

QVector<Group> groupedByText(const QList<INxAbstractMedia *> &items, int key, bool descending)
{
    QVector<Group> groups;
    Group none{QStringLiteral("None"), {}};
    for (INxAbstractMedia *media : items) {
        if (!media)
            continue;
        const QString text = textOf(media, key);
        if (text.isEmpty()) {
            none.members.append(media);
            continue;
        }
        const auto known = std::find_if(groups.begin(), groups.end(),
                                        [&](const Group &group) { return group.title == text; });
        if (known == groups.end())
            groups.append({text, {media}});
        else
            known->members.append(media);
    }
    std::stable_sort(groups.begin(), groups.end(), [&](const Group &a, const Group &b) {
        const int order = PlainNaturalOrder::compare(a.title, b.title);
        return descending ? order > 0 : order < 0;
    });
    if (!none.members.isEmpty())
        groups.append(none);
    return groups;
}

} // namespace

QList<INxAbstractMedia *> sorted(const QList<INxAbstractMedia *> &items, int key, bool descending)
{
    if (key < 1 || key > 17)
        return items;
    QList<INxAbstractMedia *> folders;
    QList<INxAbstractMedia *> others;
    for (INxAbstractMedia *media : items) {
        if (media && media->mediaType() != 0)
            (media->mediaType() == 1 ? folders : others).append(media);
    }
    if (key == 1)
        folders = ordered(folders, key, descending);
    return folders + ordered(others, key, descending);
}

QVector<Group> grouped(const QList<INxAbstractMedia *> &items, int key, bool descending)
{
    if (key < 1 || key > 5)
        return {};
    if (key == 2 || key == 4 || key == 5)
        return groupedByText(items, key, descending);
    QVector<Group> groups = groupedBySteps(items, key);
    if (descending)
        std::reverse(groups.begin(), groups.end());
    return groups;
}

} // namespace PlainEngines
