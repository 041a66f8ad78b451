// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/ToolIcons.h>

#include <NxWidgets/NxSkinStyle.h>
#include <Support/NxTestMain.h>

#include <QImage>
#include <QPainter>
#include <QSet>
#include <QTest>

using Id = ToolIcons::Id;

Q_DECLARE_METATYPE(QIcon::Mode)
Q_DECLARE_METATYPE(QIcon::State)
Q_DECLARE_METATYPE(NxSkinColor)
Q_DECLARE_METATYPE(NxSkin)

namespace {

constexpr int Side = 16;

QImage picture(Id id, int side = Side, QIcon::Mode mode = QIcon::Normal,
               QIcon::State state = QIcon::Off)
{
    return ToolIcons::icon(id)
        .pixmap(QSize(side, side), mode, state)
        .toImage()
        .convertToFormat(QImage::Format_ARGB32);
}

/// The colours of what is drawn without a trace of what lies below.
QSet<QRgb> opaqueColours(const QImage &image)
{
    QSet<QRgb> colours;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) == 0xff)
                colours.insert(image.pixel(x, y));
        }
    }
    return colours;
}

} // namespace

/// The pictures on tools.
class tst_ToolIcons : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { NxSkinStyle::instance()->setSkin(NxSkin::Dark); }
    void cleanup() { NxSkinStyle::instance()->setSkin(NxSkin::Dark); }
    void everyToolHasAPictureOfItsOwn();
    void picturesWearTheColoursOfTheSkin_data();
    void picturesWearTheColoursOfTheSkin();
    void anIconThatWasMadeBeforeWearsTheNewSkin();
    void picturesAreDrawnForTheScreenTheyAreOn();
    void picturesAreDrawnWhereTheyAreWanted();
};

void tst_ToolIcons::everyToolHasAPictureOfItsOwn()
{
    QVector<QImage> pictures;
    for (int id = int(Id::Import); id <= int(Id::More); ++id) {
        const QImage one = picture(Id(id));
        QCOMPARE(one.size(), QSize(Side, Side));
        QImage nothing(one.size(), one.format());
        nothing.fill(Qt::transparent);
        QVERIFY2(one != nothing, qPrintable(QString::number(id)));
        QCOMPARE(qAlpha(one.pixel(0, 0)), 0);
        QVERIFY2(!pictures.contains(one), qPrintable(QString::number(id)));
        pictures.append(one);
    }
}

void tst_ToolIcons::picturesWearTheColoursOfTheSkin_data()
{
    QTest::addColumn<NxSkin>("skin");
    QTest::addColumn<QIcon::Mode>("mode");
    QTest::addColumn<QIcon::State>("state");
    QTest::addColumn<NxSkinColor>("colour");
    for (const NxSkin skin : {NxSkin::Dark, NxSkin::Light}) {
        const char *name = skin == NxSkin::Dark ? "dark" : "light";
        QTest::addRow("%s", name) << skin << QIcon::Normal << QIcon::Off
                                  << NxSkinColor::Text_Icon_Primary;
        QTest::addRow("%s, chosen", name)
            << skin << QIcon::Normal << QIcon::On << NxSkinColor::Accent;
        QTest::addRow("%s, of no use now", name)
            << skin << QIcon::Disabled << QIcon::On << NxSkinColor::Text_Icon_Disabled;
    }
}

void tst_ToolIcons::picturesWearTheColoursOfTheSkin()
{
    QFETCH(const NxSkin, skin);
    QFETCH(const QIcon::Mode, mode);
    QFETCH(const QIcon::State, state);
    QFETCH(const NxSkinColor, colour);
    NxSkinStyle::instance()->setSkin(skin);
    const QRgb wanted = NxSkinStyle::instance()->GetColor(colour).rgb();
    QCOMPARE(opaqueColours(picture(Id::Large, Side, mode, state)), QSet<QRgb>{wanted});
}

void tst_ToolIcons::anIconThatWasMadeBeforeWearsTheNewSkin()
{
    const QIcon icon = ToolIcons::icon(Id::Sort);
    const QImage dark = icon.pixmap(Side).toImage();
    NxSkinStyle::instance()->setSkin(NxSkin::Light);
    QVERIFY(icon.pixmap(Side).toImage() != dark);
}

void tst_ToolIcons::picturesAreDrawnForTheScreenTheyAreOn()
{
    const QImage crisp = picture(Id::Search, 2 * Side);
    QCOMPARE(crisp.size(), QSize(2 * Side, 2 * Side));
    QVERIFY(crisp != picture(Id::Search).scaled(crisp.size()));
    const QImage smooth =
        picture(Id::Search).scaled(crisp.size(), Qt::KeepAspectRatio, Qt::SmoothTransformation);
    QVERIFY(crisp != smooth.convertToFormat(QImage::Format_ARGB32));
}

void tst_ToolIcons::picturesAreDrawnWhereTheyAreWanted()
{
    QImage sheet(3 * Side, Side, QImage::Format_ARGB32);
    sheet.fill(Qt::transparent);
    {
        QPainter painter(&sheet);
        ToolIcons::icon(Id::Large).paint(&painter, QRect(Side, 0, Side, Side));
    }
    QCOMPARE(sheet.copy(Side, 0, Side, Side), picture(Id::Large));
    QVERIFY(opaqueColours(sheet.copy(0, 0, Side, Side)).isEmpty());
    QVERIFY(opaqueColours(sheet.copy(2 * Side, 0, Side, Side)).isEmpty());
}

NX_TEST_MAIN_WIDGETS(tst_ToolIcons)
#include "tst_ToolIcons.moc"
