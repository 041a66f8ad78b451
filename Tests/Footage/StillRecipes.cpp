// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NxFootageRecipes.h"

#include <QDateTime>

namespace {

constexpr QSize pictureSize(640, 360);
constexpr NxRational once{25, 1};
constexpr int halfTurn = 180;

QStringList drawing(const char *arguments, const QString &target)
{
    const QString line = QStringLiteral("-v error -y -bitexact -f yuv4mpegpipe -i pipe:0 ")
                         + QLatin1String(arguments);
    return line.split(QLatin1Char(' '), Qt::SkipEmptyParts) + QStringList{target};
}

/// A picture with the number 0.
NxFootageRecipe still(const QString &name, const char *format, const char *arguments)
{
    NxFootageRecipe recipe;
    recipe.name = name;
    recipe.frames = NxNumberedFrames(pictureSize, 1, once);
    recipe.steps.append({QStringLiteral(NX_FFMPEG), drawing(arguments, NxFootageStep::Output)});
    recipe.truth.kind = NxFootageKind::Image;
    recipe.truth.size = pictureSize;
    recipe.truth.videoCodec = QLatin1String(format);
    recipe.truth.isNumbered = true;
    recipe.truth.keyFrameDistance = 1;
    return recipe;
}

NxFootageRecipe photo(const QString &name)
{
    return still(name, "jpeg", "-c:v mjpeg -q:v 3");
}

NxFootageStep exif(const QStringList &settings)
{
    QStringList arguments;
    for (const QString &setting : settings)
        arguments += QStringLiteral("-Mset ") + setting;
    arguments += NxFootageStep::Output;
    return {QStringLiteral(NX_EXIV2), arguments};
}

NxFootageRecipe photoOfACamera(const char *name, const QString &offset, qint64 shot)
{
    NxFootageRecipe recipe = photo(QLatin1String(name));
    QStringList settings{
        QStringLiteral("Exif.Image.Make Lumen"),
        QStringLiteral("Exif.Image.Model Still One"),
        QStringLiteral("Exif.Photo.DateTimeOriginal 2022:03:04 05:06:07"),
    };
    if (!offset.isEmpty())
        settings += QStringLiteral("Exif.Photo.0x9011 Ascii ") + offset;
    recipe.steps.append(exif(settings));
    recipe.truth.cameraMaker = QStringLiteral("Lumen");
    recipe.truth.cameraModel = QStringLiteral("Still One");
    recipe.truth.shot = shot;
    return recipe;
}

std::vector<NxFootageRecipe> photos()
{
    const QDateTime local(QDate(2022, 3, 4), QTime(5, 6, 7), Qt::LocalTime);
    const QDateTime abroad(QDate(2022, 3, 4), QTime(0, 6, 7), Qt::UTC);
    return {
        photo(QStringLiteral("plain.jpg")),
        photoOfACamera("camera.jpg", {}, local.toMSecsSinceEpoch()),
        photoOfACamera("camera abroad.jpg", QStringLiteral("+05:00"), abroad.toMSecsSinceEpoch()),
    };
}

std::vector<NxFootageRecipe> turnedPhotos()
{
    struct Turn
    {
        int rotation;
        bool mirrored;
    };
    // By EXIF orientation, from 1 on.
    constexpr Turn turns[] = {{0, false},  {0, true},   {180, false}, {180, true},
                              {270, true}, {90, false}, {90, true},   {270, false}};
    std::vector<NxFootageRecipe> recipes;
    int orientation = 1;
    for (const Turn &turn : turns) {
        NxFootageRecipe recipe = photo(QStringLiteral("orientation %1.jpg").arg(orientation));
        recipe.steps.append(exif({QStringLiteral("Exif.Image.Orientation %1").arg(orientation)}));
        recipe.truth.rotation = turn.rotation;
        recipe.truth.mirrored = turn.mirrored;
        if (turn.rotation % halfTurn != 0)
            recipe.truth.size.transpose();
        recipes.push_back(recipe);
        ++orientation;
    }
    return recipes;
}

NxFootageRecipe heic()
{
    NxFootageRecipe recipe = still(QStringLiteral("picture.heic"), "heic", "");
    const QString source = NxFootageStep::Scratch + QStringLiteral("/picture.png");
    recipe.steps.first().arguments = drawing("-c:v png", source);
    recipe.steps.append({QStringLiteral(NX_HEIF_ENC),
                         {QStringLiteral("-q"), QStringLiteral("90"), source, QStringLiteral("-o"),
                          NxFootageStep::Output}});
    return recipe;
}

NxFootageRecipe gif(const char *name, int frames)
{
    constexpr NxRational tenth{10, 1};
    constexpr qint64 second = 1000000; // us
    NxFootageRecipe recipe =
        still(QLatin1String(name), "gif",
              "-vf split[a][b];[a]palettegen[p];[b][p]paletteuse=dither=none -c:v gif");
    recipe.frames = NxNumberedFrames({320, 180}, frames, tenth);
    recipe.truth.size = recipe.frames.size();
    if (frames == 1)
        return recipe;
    recipe.truth.kind = NxFootageKind::AnimatedImage;
    recipe.truth.rate = tenth;
    recipe.truth.frames = frames;
    recipe.truth.durationUs = frames * second * tenth.den / tenth.num;
    recipe.truth.keyFrameDistance = frames;
    return recipe;
}

} // namespace

std::vector<NxFootageRecipe> NxFootageRecipes::stills()
{
    constexpr int animated = 30;
    std::vector<NxFootageRecipe> recipes{
        still(QStringLiteral("picture.png"), "png", "-c:v png -pix_fmt rgb24"),
        still(QStringLiteral("picture.bmp"), "bmp", "-c:v bmp -pix_fmt bgr24"),
        still(QStringLiteral("picture.webp"), "webp", "-c:v libwebp -quality 90"),
        still(QStringLiteral("picture.tiff"), "tiff", "-c:v tiff -pix_fmt rgb24"),
        still(QStringLiteral("picture 16 bits.tif"), "tiff", "-c:v tiff -pix_fmt rgb48le"),
        heic(),
        gif("one.gif", 1),
        gif("many.gif", animated),
    };
    for (const auto &part : {photos(), turnedPhotos()})
        recipes.insert(recipes.end(), part.begin(), part.end());
    return recipes;
}
