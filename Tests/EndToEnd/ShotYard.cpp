// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ShotYard.h"

#include <Footage/NxFootageRecipes.h>
#include <Footage/NxFootageSet.h>

#include <QFile>
#include <QtTest>

namespace {

constexpr QSize StillSize(480, 270);
constexpr int Tolerance = 16; // Covers are JPEG files.
constexpr double InformationBegins = 0.77; // Of the width of the window.

bool isLike(QRgb pixel, const QColor &colour)
{
    return qAbs(qRed(pixel) - colour.red()) <= Tolerance
           && qAbs(qGreen(pixel) - colour.green()) <= Tolerance
           && qAbs(qBlue(pixel) - colour.blue()) <= Tolerance;
}

} // namespace

const QColor ShotYard::Red(200, 20, 30);
const QColor ShotYard::Green(20, 150, 40);
const QColor ShotYard::Blue(60, 20, 190);

ShotYard::ShotYard() : Yard(Clips::Real)
{
    qputenv("XDG_DATA_HOME", folder().makeDir(QStringLiteral("data")).toUtf8());
    qputenv("XDG_CONFIG_HOME", folder().makeDir(QStringLiteral("config")).toUtf8());
    qputenv("XDG_CACHE_HOME", folder().makeDir(QStringLiteral("cache")).toUtf8());
    folder().makeDir(QStringLiteral("footage/Day 1"));
    paint(QStringLiteral("a red.png"), Red);
    paint(QStringLiteral("Day 1/b green.png"), Green);
    paint(QStringLiteral("c blue.png"), Blue);
    const NxFootageRecipe &film = NxFootageRecipes::named(QStringLiteral("avc.mp4"));
    QVERIFY(QFile::copy(NxFootageSet::path(film), footage(QStringLiteral("d film.mp4"))));
    VERIFY_CODE(run("import",
                    {footage(QStringLiteral("a red.png")), footage(QStringLiteral("Day 1")),
                     footage(QStringLiteral("c blue.png")), footage(QStringLiteral("d film.mp4"))}),
                0);
}

void ShotYard::paint(const QString &name, const QColor &colour) const
{
    QImage still(StillSize, QImage::Format_RGB32);
    still.fill(colour);
    QVERIFY(still.save(footage(name)));
}

ProgramResult ShotYard::shot(const QString &rest) const
{
    const QStringList words{QStringLiteral("--out"), pictureFile()};
    return run("shot", words + rest.split(QLatin1Char('|'), Qt::SkipEmptyParts));
}

QImage ShotYard::picture(const QString &rest) const
{
    const ProgramResult result = shot(rest);
    if (result.code != 0)
        QTest::qFail(result.story().constData(), __FILE__, __LINE__);
    return QImage(pictureFile()).convertToFormat(QImage::Format_RGB32);
}

void ShotYard::writeSettings(const QByteArray &content) const
{
    folder().write(QStringLiteral("data/Brevano/Brevano.ini"), content);
}

QRect ShotYard::patch(const QImage &picture, const QColor &colour)
{
    QRect found;
    const int width = int(picture.width() * InformationBegins);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < width; ++x) {
            if (isLike(picture.pixel(x, y), colour))
                found |= QRect(x, y, 1, 1);
        }
    }
    return found;
}

int ShotYard::pixels(const QImage &picture, const QRect &part, const QColor &colour)
{
    int count = 0;
    for (int y = part.top(); y <= part.bottom(); ++y) {
        for (int x = part.left(); x <= part.right(); ++x)
            count += isLike(picture.pixel(x, y), colour) ? 1 : 0;
    }
    return count;
}
