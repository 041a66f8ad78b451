// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ExpectedInfo.h"

#include <NxCore/NxConvertUtility.h>
#include <NxCore/NxText.h>

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <iterator>

namespace ExpectedInfo {

namespace {

constexpr qint64 microseconds = 1000; // a millisecond has

struct KindWord
{
    NxFootageKind kind;
    const char *word;
    const char *cover;
    const char *strip;
};

constexpr KindWord kindWords[] = {
    {NxFootageKind::Video, "video", "made", "made"},
    {NxFootageKind::Audio, "audio", "made", "none"},
    {NxFootageKind::Image, "image", "made", "none"},
    {NxFootageKind::AnimatedImage, "gif", "made", "made"},
    {NxFootageKind::Subtitle, "subtitle", "none", "none"},
};

const KindWord &wordsOf(NxFootageKind kind)
{
    const auto *found = std::find_if(std::begin(kindWords), std::end(kindWords),
                                     [kind](const KindWord &words) { return words.kind == kind; });
    Q_ASSERT(found != std::end(kindWords));
    return *found;
}

QJsonValue textOrNull(const QString &text)
{
    return text.isEmpty() ? QJsonValue() : QJsonValue(text);
}

QJsonValue numberOrNull(qint64 number)
{
    return number == 0 ? QJsonValue() : QJsonValue(number);
}

QString cameraOf(const NxFootageTruth &truth)
{
    if (truth.cameraModel.startsWith(truth.cameraMaker))
        return truth.cameraModel;
    return truth.cameraMaker + QLatin1Char(' ') + truth.cameraModel;
}

QString createdOf(const NxFootageTruth &truth, const QFileInfo &file)
{
    QDateTime created = file.birthTime().isValid() ? file.birthTime() : file.lastModified();
    if (truth.shot != NxNoFootageTime)
        created = QDateTime::fromMSecsSinceEpoch(truth.shot);
    return NxText::isoUtc(created.toMSecsSinceEpoch());
}

void addFile(const NxFootageRecipe &recipe, const QString &path, QJsonObject *expected)
{
    const QFileInfo file(path);
    const NxFootageTruth &truth = recipe.truth;
    const QString kind = QLatin1String(wordsOf(truth.kind).word);
    expected->insert(QStringLiteral("name"), recipe.name);
    expected->insert(QStringLiteral("path"), file.filePath());
    expected->insert(QStringLiteral("section"), QStringLiteral("project"));
    expected->insert(QStringLiteral("folder"), file.dir().dirName());
    expected->insert(QStringLiteral("type"), kind);
    expected->insert(QStringLiteral("size"), file.size());
    expected->insert(QStringLiteral("created"), createdOf(truth, file));
    expected->insert(QStringLiteral("missing"), false);
    expected->insert(QStringLiteral("unreadable"), QJsonValue());
    expected->insert(QStringLiteral("read"), QStringLiteral("done"));
    expected->insert(QStringLiteral("reason"), QJsonValue());
}

qint64 millisecondsOf(const NxFootageTruth &truth)
{
    if (truth.isFilm())
        return NxConvertUtility::frame2Msec(truth.frames, truth.rate.toDouble());
    return truth.durationUs / microseconds;
}

void addPictures(const NxFootageTruth &truth, QJsonObject *expected)
{
    expected->insert(QStringLiteral("width"), numberOrNull(truth.size.width()));
    expected->insert(QStringLiteral("height"), numberOrNull(truth.size.height()));
    if (truth.kind == NxFootageKind::Image) {
        expected->insert(QStringLiteral("rotation"), truth.rotation);
        expected->insert(QStringLiteral("codec"), truth.videoCodec);
    }
    if (!truth.isFilm()) {
        expected->insert(QStringLiteral("frames"), QJsonValue());
        expected->insert(QStringLiteral("fps"), QJsonValue());
        expected->insert(QStringLiteral("variable_rate"), QJsonValue());
        return;
    }
    expected->insert(QStringLiteral("frames"), truth.frames);
    expected->insert(QStringLiteral("fps"),
                     QStringLiteral("%1/%2").arg(truth.rate.num).arg(truth.rate.den));
    expected->insert(QStringLiteral("rotation"), truth.rotation);
    expected->insert(QStringLiteral("codec"), truth.videoCodec);
    expected->insert(QStringLiteral("variable_rate"), truth.variableRate);
    if (truth.kind == NxFootageKind::Video) {
        expected->insert(QStringLiteral("pixel_format"), truth.pixelFormat);
        expected->insert(QStringLiteral("bit_depth"), truth.bitDepth);
    }
}

void addTexts(const NxFootageTruth &truth, QJsonObject *expected)
{
    expected->insert(QStringLiteral("camera"), textOrNull(cameraOf(truth).trimmed()));
    expected->insert(QStringLiteral("timecode"), textOrNull(truth.timecode));
    expected->insert(QStringLiteral("reel"), textOrNull(truth.reel));
    expected->insert(QStringLiteral("text_encoding"), textOrNull(truth.textEncoding));
}

void addSound(const NxFootageTruth &truth, QJsonObject *expected)
{
    expected->insert(QStringLiteral("audio_codec"), textOrNull(truth.audioCodec));
    expected->insert(QStringLiteral("sample_rate"), numberOrNull(truth.sampleRate));
    expected->insert(QStringLiteral("channels"), numberOrNull(truth.channels));
    if (truth.kind == NxFootageKind::Audio)
        expected->insert(QStringLiteral("codec"), truth.audioCodec);
}

void addStates(const NxFootageTruth &truth, QJsonObject *expected)
{
    const KindWord &words = wordsOf(truth.kind);
    expected->insert(QStringLiteral("cover_state"), QLatin1String(words.cover));
    expected->insert(QStringLiteral("cover_reason"), QJsonValue());
    expected->insert(QStringLiteral("strip_state"), QLatin1String(words.strip));
    expected->insert(QStringLiteral("strip_reason"), QJsonValue());
}

QString shown(const QJsonValue &value)
{
    const QByteArray text = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(text);
}

/// Sound is counted in hundredths of a second, a text in frames of 40 ms.
bool isLength(const NxFootageTruth &truth, const QJsonValue &value)
{
    constexpr double soundUnit = 10; // ms
    constexpr double textUnit = 40; // ms
    const double expected = double(millisecondsOf(truth));
    if (expected == 0)
        return value.isNull();
    double slack = 0;
    if (truth.kind == NxFootageKind::Audio)
        slack = soundUnit + double(truth.durationSlackUs) / microseconds;
    else if (truth.kind == NxFootageKind::Subtitle)
        slack = textUnit / 2;
    return value.isDouble() && qAbs(value.toDouble() - expected) <= slack;
}

} // namespace

QStringList keys()
{
    return QStringLiteral("name path section folder type size created missing unreadable "
                          "duration_ms frames fps width height rotation codec sample_rate "
                          "channels camera timecode variable_rate reel audio_codec "
                          "pixel_format bit_depth text_encoding read reason fingerprint cover "
                          "cover_state cover_reason strip strip_state strip_reason")
        .split(QLatin1Char(' '));
}

QJsonObject of(const NxFootageRecipe &recipe, const QString &path)
{
    QJsonObject expected;
    addFile(recipe, path, &expected);
    addPictures(recipe.truth, &expected);
    addSound(recipe.truth, &expected);
    addTexts(recipe.truth, &expected);
    addStates(recipe.truth, &expected);
    return expected;
}

QStringList differences(const NxFootageRecipe &recipe, const QString &path, const QJsonObject &info)
{
    QStringList lines;
    const QJsonObject expected = of(recipe, path);
    for (auto key = expected.begin(); key != expected.end(); ++key) {
        const QJsonValue value = info.value(key.key());
        if (value != key.value()) {
            lines += QStringLiteral("%1 is %2 instead of %3")
                         .arg(key.key(), shown(value), shown(key.value()));
        }
    }
    const QJsonValue length = info.value(QLatin1String("duration_ms"));
    if (!isLength(recipe.truth, length)) {
        lines += QStringLiteral("duration_ms is %1 instead of %2")
                     .arg(shown(length))
                     .arg(millisecondsOf(recipe.truth));
    }
    return lines;
}

} // namespace ExpectedInfo
