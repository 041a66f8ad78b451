// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxWidgets/NxSkinPicture.h>

#include <NxCore/NxDiskBan.h>
#include <NxWidgets/NxSkinStyle.h>
#include <Support/NxTempDir.h>
#include <Support/NxTestLog.h>
#include <Support/NxTestMain.h>

#include <QBuffer>
#include <QPainter>
#include <QTest>

#include <cstdlib>

Q_DECLARE_METATYPE(NxSkin)
Q_DECLARE_METATYPE(NxSkinColor)

namespace {

NxSkinStyle &style()
{
    return *NxSkinStyle::instance();
}

NxSkinPicture arrow(const char *direction, const char *state)
{
    const QString path = QStringLiteral(":/Resource/icon8_arrow-%1-%2.png")
                             .arg(QLatin1String(direction), QLatin1String(state));
    return NxSkinPicture(style().FormatResourceFile(path));
}

QByteArray png(int side, Qt::GlobalColor colour)
{
    QImage image(side, side, QImage::Format_RGB32);
    image.fill(colour);
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    image.save(&file, "PNG");
    return file.data();
}

QImage painted(const NxSkinPicture &picture, qreal devicePixelRatio)
{
    const int side = int(12 * devicePixelRatio);
    QImage paper(side, side, QImage::Format_RGB32);
    paper.setDevicePixelRatio(devicePixelRatio);
    paper.fill(Qt::white);
    QPainter(&paper).drawPixmap(2, 2, picture.pixmap(devicePixelRatio));
    return paper;
}

/// Whether two pictures cover the same pixels, give or take what is rounded.
bool haveOneShape(const QImage &a, const QImage &b)
{
    constexpr int rounding = 16;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            if (std::abs(qAlpha(a.pixel(x, y)) - qAlpha(b.pixel(x, y))) > rounding)
                return false;
        }
    }
    return a.size() == b.size();
}

} // namespace

class tst_NxSkinPicture : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void cleanup();
    void arrowsWearTheColoursOfTheSkin_data();
    void arrowsWearTheColoursOfTheSkin();
    void arrowsPointSomewhere();
    void arrowsHaveCrispEdges_data();
    void arrowsHaveCrispEdges();
    void screensGetThePictureTheyCanShow_data();
    void screensGetThePictureTheyCanShow();
    void picturesTakeTheSameRoomOnEveryScreen();
    void theOnlyPictureThereIsServesEveryScreen_data();
    void theOnlyPictureThereIsServesEveryScreen();
    void theSuffixIsWhatFollowsTheLastPointOfTheName_data();
    void theSuffixIsWhatFollowsTheLastPointOfTheName();
    void whatIsNotThereIsNull_data();
    void whatIsNotThereIsNull();
    void onlyFilesAreReadFromTheDisk();
};

void tst_NxSkinPicture::cleanup()
{
    style().setSkin(NxSkin::Dark);
}

void tst_NxSkinPicture::arrowsWearTheColoursOfTheSkin_data()
{
    QTest::addColumn<NxSkin>("skin");
    QTest::addColumn<QByteArray>("direction");
    QTest::addColumn<QByteArray>("state");
    QTest::addColumn<NxSkinColor>("colour");
    for (const NxSkin skin : {NxSkin::Dark, NxSkin::Light}) {
        for (const char *direction : {"right", "down"}) {
            const auto row = [&](const char *state, NxSkinColor colour) {
                QTest::addRow("%s, %s, skin %d", direction, state, int(skin))
                    << skin << QByteArray(direction) << QByteArray(state) << colour;
            };
            row("normal", NxSkinColor::Text_Icon_Secondary);
            row("hover", NxSkinColor::Text_Icon_Primary);
            row("pressed", NxSkinColor::Accent);
            row("disabled", NxSkinColor::Text_Icon_Disabled);
        }
    }
}

void tst_NxSkinPicture::arrowsWearTheColoursOfTheSkin()
{
    QFETCH(NxSkin, skin);
    QFETCH(QByteArray, direction);
    QFETCH(QByteArray, state);
    QFETCH(NxSkinColor, colour);
    style().setSkin(skin);
    const NxSkinPicture picture = arrow(direction.constData(), state.constData());
    QVERIFY(!picture.isNull());
    for (const int ratio : {1, 2}) {
        const QImage image = picture.pixmap(ratio).toImage();
        QCOMPARE(image.size(), QSize(8, 8) * ratio);
        QCOMPARE(image.pixelColor(image.rect().center()), style().GetColor(colour));
        QCOMPARE(image.pixelColor(0, 0).alpha(), 0);
    }
}

void tst_NxSkinPicture::arrowsPointSomewhere()
{
    for (const int ratio : {1, 2}) {
        const QImage right = arrow("right", "normal").pixmap(ratio).toImage();
        const QImage down = arrow("down", "normal").pixmap(ratio).toImage();
        QVERIFY(haveOneShape(right, right.mirrored(false, true)));
        QVERIFY(!haveOneShape(right, right.mirrored(true, false)));
        QVERIFY(haveOneShape(right.transformed(QTransform().rotate(90)), down));
    }
}

void tst_NxSkinPicture::arrowsHaveCrispEdges_data()
{
    QTest::addColumn<int>("ratio");
    QTest::newRow("plain screen") << 1;
    QTest::newRow("crisp screen") << 2;
}

void tst_NxSkinPicture::arrowsHaveCrispEdges()
{
    QFETCH(int, ratio);
    const QImage down = arrow("down", "normal").pixmap(ratio).toImage();
    const int middle = down.width() / 2;
    const int top = 2 * ratio;
    const int bottom = 6 * ratio;
    for (const int x : {middle - 1, middle}) {
        QCOMPARE(down.pixelColor(x, top - 1).alpha(), 0);
        QCOMPARE(down.pixelColor(x, top).alpha(), 255);
        QVERIFY(down.pixelColor(x, bottom - 1).alpha() > 0);
        QCOMPARE(down.pixelColor(x, bottom).alpha(), 0);
    }
    QCOMPARE(down.pixelColor(1, top).alpha(), 255);
}

void tst_NxSkinPicture::screensGetThePictureTheyCanShow_data()
{
    QTest::addColumn<qreal>("screen");
    QTest::addColumn<int>("side");
    QTest::addColumn<qreal>("ratio");
    QTest::newRow("plain") << 1.0 << 8 << 1.0;
    QTest::newRow("a little crisper") << 1.25 << 16 << 2.0;
    QTest::newRow("twice as crisp") << 2.0 << 16 << 2.0;
    QTest::newRow("crisper than any picture") << 3.0 << 16 << 2.0;
}

void tst_NxSkinPicture::screensGetThePictureTheyCanShow()
{
    QFETCH(qreal, screen);
    QFETCH(int, side);
    QFETCH(qreal, ratio);
    const QPixmap pixmap = arrow("right", "normal").pixmap(screen);
    QCOMPARE(pixmap.size(), QSize(side, side));
    QCOMPARE(pixmap.devicePixelRatio(), ratio);
}

void tst_NxSkinPicture::picturesTakeTheSameRoomOnEveryScreen()
{
    const NxTempDir dir;
    const QString path = dir.write(QStringLiteral("x.png"), png(8, Qt::red));
    dir.write(QStringLiteral("x@2x.png"), png(16, Qt::red));
    for (const int ratio : {1, 2}) {
        const QImage paper = painted(NxSkinPicture(path), ratio);
        const QRect covered(2 * ratio, 2 * ratio, 8 * ratio, 8 * ratio);
        for (int y = 0; y < paper.height(); ++y) {
            for (int x = 0; x < paper.width(); ++x)
                QCOMPARE(paper.pixelColor(x, y) == QColor(Qt::red), covered.contains(x, y));
        }
    }
}

void tst_NxSkinPicture::theOnlyPictureThereIsServesEveryScreen_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<int>("side");
    QTest::addColumn<qreal>("ratio");
    QTest::newRow("plain") << QStringLiteral("x.png") << 8 << 1.0;
    QTest::newRow("crisp") << QStringLiteral("x@2x.png") << 16 << 2.0;
}

void tst_NxSkinPicture::theOnlyPictureThereIsServesEveryScreen()
{
    QFETCH(QString, file);
    QFETCH(int, side);
    QFETCH(qreal, ratio);
    const NxTempDir dir;
    dir.write(file, png(side, Qt::red));
    const NxSkinPicture picture(dir.filePath(QStringLiteral("x.png")));
    QVERIFY(!picture.isNull());
    for (const qreal screen : {1.0, 2.0}) {
        QCOMPARE(picture.pixmap(screen).size(), QSize(side, side));
        QCOMPARE(picture.pixmap(screen).devicePixelRatio(), ratio);
    }
}

void tst_NxSkinPicture::theSuffixIsWhatFollowsTheLastPointOfTheName_data()
{
    QTest::addColumn<QString>("plain");
    QTest::addColumn<QString>("crisp");
    QTest::newRow("two points") << QStringLiteral("a.b.png") << QStringLiteral("a.b@2x.png");
    QTest::newRow("no suffix") << QStringLiteral("a") << QStringLiteral("a@2x");
    QTest::newRow("a point in the folder")
        << QStringLiteral("folder.d/a") << QStringLiteral("folder.d/a@2x");
}

void tst_NxSkinPicture::theSuffixIsWhatFollowsTheLastPointOfTheName()
{
    QFETCH(QString, plain);
    QFETCH(QString, crisp);
    const NxTempDir dir;
    const NxSkinPicture picture(dir.write(plain, png(4, Qt::red)));
    dir.write(crisp, png(8, Qt::red));
    QCOMPARE(picture.pixmap(2.0).width(), 4);
    const QPixmap found = NxSkinPicture(dir.filePath(plain)).pixmap(2.0);
    QCOMPARE(found.width(), 8);
    QCOMPARE(found.devicePixelRatio(), 2.0);
}

void tst_NxSkinPicture::whatIsNotThereIsNull_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("no path") << QString();
    QTest::newRow("no resource") << QStringLiteral(":/Resource/none.png");
    QTest::newRow("no file") << QStringLiteral("/nowhere/none.png");
    QTest::newRow("a folder") << QStringLiteral(":/Resource");
    QTest::newRow("no picture") << QStringLiteral(":/Resource/words.png");
}

void tst_NxSkinPicture::whatIsNotThereIsNull()
{
    QFETCH(QString, path);
    const NxSkinPicture picture(path);
    QVERIFY(picture.isNull());
    QVERIFY(picture.pixmap(1.0).isNull());
    QVERIFY(picture.pixmap(2.0).isNull());
    QVERIFY(NxSkinPicture().isNull());
}

void tst_NxSkinPicture::onlyFilesAreReadFromTheDisk()
{
    const NxDiskBan ban;
    NxSkinPicture(QStringLiteral(":/Resource/icon8_arrow-right-normal.png"));
    QCOMPARE(ban.breaches(), QStringList());
    NxTestLog::expectError(QStringLiteral("NxSkinPicture"));
    NxSkinPicture(QStringLiteral("/nowhere/none.png"));
    QCOMPARE(ban.breaches().size(), 1);
}

NX_TEST_MAIN(tst_NxSkinPicture)
#include "tst_NxSkinPicture.moc"
