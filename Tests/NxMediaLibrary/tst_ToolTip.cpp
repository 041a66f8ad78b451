// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "UtilsMedia.h"

#include <NxMediaLibrary/NxMediaLibraryUtils.h>
#include <NxMediaLibrary/ToolTip.h>

#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <QCoreApplication>
#include <QTest>
#include <QTranslator>

#include <type_traits>

using Builder = QString (*)(const INxAbstractMedia *);
using namespace NXVBLMODEL;
Q_DECLARE_METATYPE(Builder)

namespace {

const QString Download = QStringLiteral("Click to download the online content");
const QString Drag = QStringLiteral("Drag to the timeline to apply");
const QString TwoSeconds = QStringLiteral("00:00:02:00");

struct NamedBuilder
{
    const char *name;
    Builder build;
};

constexpr NamedBuilder AllBuilders[] = {
    {"video", &ToolTip::GetMediaVideoToolTip},
    {"video and audio", &ToolTip::GetMediaVideoAudioToolTip},
    {"audio", &ToolTip::GetMediaAudioToolTip},
    {"subtitle", &ToolTip::GetMediaSubTitleToolTip},
    {"image", &ToolTip::GetMediaImageToolTip},
    {"template", &ToolTip::GetMediaProjectTemplateToolTip},
    {"media", &ToolTip::GetMediaDataToolTip},
    {"library audio", &ToolTip::GetAudioToolTip},
    {"element", &ToolTip::GetElementToolTip},
    {"effect", &ToolTip::GetEffectToolTip},
    {"title", &ToolTip::GetTitleToolTip},
    {"transition", &ToolTip::GetTransitionToolTip},
    {"split screen", &ToolTip::GetSplitScreenToolTip},
    {"effects", &ToolTip::GetEffectDataToolTip},
};

/// Says what it is asked to translate, and from where.
struct LoudTranslator final : QTranslator
{
    LoudTranslator() { QCoreApplication::installTranslator(this); }
    ~LoudTranslator() override { QCoreApplication::removeTranslator(this); }
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *text, const char *, int) const override
    {
        return QStringLiteral("<%1: %2>").arg(QString::fromUtf8(context), QString::fromUtf8(text));
    }
};

/// Called "Sea", two seconds long.
struct Sea final : UtilsItem
{
    explicit Sea(int mediaTypeCode) : UtilsItem(mediaTypeCode)
    {
        shownName = QStringLiteral("Sea");
        frames = 50;
        rate = {25, 1};
    }
};

QString joined(const QStringList &lines)
{
    return lines.join(QLatin1Char('\n'));
}

} // namespace

class tst_ToolTip : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void isARecordOfFunctions();
    void saysNothingOfWhatIsNoItem_data();
    void saysNothingOfWhatIsNoItem();
    void listsNameDateAndLength_data();
    void listsNameDateAndLength();
    void leavesOutWhatIsNotKnown_data();
    void leavesOutWhatIsNotKnown();
    void aPhotoAlwaysHasTwoLines();
    void aTemplateAlsoTellsSizeAndSlots();
    void choosesTheTextOfMediaByTheirType_data();
    void choosesTheTextOfMediaByTheirType();
    void otherVideosAndPhotosHaveTheirTexts();
    void aTypeGoesBeforeWhatTheStreamsSay();
    void timedResourcesTellLengthAndDownload_data();
    void timedResourcesTellLengthAndDownload();
    void appliedResourcesTellWhatToDo_data();
    void appliedResourcesTellWhatToDo();
    void draggedResourcesAreDragged_data();
    void draggedResourcesAreDragged();
    void choosesTheTextOfEffectsByTheirType_data();
    void choosesTheTextOfEffectsByTheirType();
    void namesAnItem();
    void hintsAreTranslated();
};

void tst_ToolTip::isARecordOfFunctions()
{
    QVERIFY(std::is_copy_assignable<ToolTip>::value);
    QVERIFY(std::is_move_assignable<ToolTip>::value);
}

void tst_ToolTip::saysNothingOfWhatIsNoItem_data()
{
    QTest::addColumn<Builder>("build");
    for (const NamedBuilder &builder : AllBuilders)
        QTest::newRow(builder.name) << builder.build;
}

void tst_ToolTip::saysNothingOfWhatIsNoItem()
{
    QFETCH(Builder, build);
    QCOMPARE(build(nullptr), QString());
    for (const int type : {1, 2, 3, 4, 5, 8, 9, 10, 11, 12, 14, 16, 17, 18, 19}) {
        UtilsMedia media(type);
        media.shownName = QStringLiteral("Sea");
        QCOMPARE(build(&media), QString());
    }
    const UtilsFolder folder(QStringLiteral("Clips"));
    QCOMPARE(build(&folder), QString());
}

void tst_ToolTip::listsNameDateAndLength_data()
{
    QTest::addColumn<Builder>("build");
    QTest::addColumn<int>("type");
    QTest::newRow("video") << Builder(&ToolTip::GetMediaVideoToolTip) << int(mtVideo);
    QTest::newRow("video and audio")
        << Builder(&ToolTip::GetMediaVideoAudioToolTip) << int(mtVideoAudio);
    QTest::newRow("audio") << Builder(&ToolTip::GetMediaAudioToolTip) << int(mtAudio);
    QTest::newRow("subtitle") << Builder(&ToolTip::GetMediaSubTitleToolTip) << int(mtSubtitle);
    QTest::newRow("template") << Builder(&ToolTip::GetMediaProjectTemplateToolTip)
                              << int(mtProjectTemplate);
}

void tst_ToolTip::listsNameDateAndLength()
{
    QFETCH(Builder, build);
    QFETCH(int, type);
    const NxTempDir dir;
    Sea item(type);
    item.file = dir.write(QStringLiteral("a.mp4"));
    const QString date = NxMediaLibraryUtils::getCreatDate(&item);
    QVERIFY(!date.isEmpty());
    QCOMPARE(build(&item), joined({QStringLiteral("Sea"), date, TwoSeconds}));
}

void tst_ToolTip::leavesOutWhatIsNotKnown_data()
{
    listsNameDateAndLength_data();
}

void tst_ToolTip::leavesOutWhatIsNotKnown()
{
    QFETCH(Builder, build);
    QFETCH(int, type);
    Sea item(type);
    QCOMPARE(build(&item), joined({QStringLiteral("Sea"), TwoSeconds}));
    item.rate = {};
    QCOMPARE(build(&item), QStringLiteral("Sea"));
    const NxTempDir dir;
    item.file = dir.write(QStringLiteral("a.mp4"));
    QCOMPARE(build(&item),
             joined({QStringLiteral("Sea"), NxMediaLibraryUtils::getCreatDate(&item)}));
    item.shownName.clear();
    QCOMPARE(build(&item), QLatin1Char('\n') + NxMediaLibraryUtils::getCreatDate(&item));
}

void tst_ToolTip::aPhotoAlwaysHasTwoLines()
{
    Sea item(mtImage);
    QCOMPARE(ToolTip::GetMediaImageToolTip(&item), QStringLiteral("Sea\n"));
    const NxTempDir dir;
    item.file = dir.write(QStringLiteral("a.png"));
    QCOMPARE(ToolTip::GetMediaImageToolTip(&item),
             joined({QStringLiteral("Sea"), NxMediaLibraryUtils::getCreatDate(&item)}));
}

void tst_ToolTip::aTemplateAlsoTellsSizeAndSlots()
{
    Sea item(mtProjectTemplate);
    item.slotsSize = QSize(1920, 1080);
    item.slotCount = 12;
    QCOMPARE(ToolTip::GetMediaProjectTemplateToolTip(&item),
             joined({QStringLiteral("Sea"), TwoSeconds, QStringLiteral("1920 x 1080"),
                     QStringLiteral("Media: 12")}));
    item.slotsSize = QSize(0, 0);
    QCOMPARE(ToolTip::GetMediaProjectTemplateToolTip(&item),
             joined({QStringLiteral("Sea"), TwoSeconds, QStringLiteral("Media: 12")}));
    item.slotCount = 0;
    QCOMPARE(ToolTip::GetMediaProjectTemplateToolTip(&item),
             joined({QStringLiteral("Sea"), TwoSeconds}));
}

void tst_ToolTip::choosesTheTextOfMediaByTheirType_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("text");
    const QString timed = joined({QStringLiteral("Sea"), TwoSeconds});
    for (const int type : {0, 1, 8, 9, 10, 11, 12, 17, 18, 19})
        QTest::addRow("type %d", type) << type << QString();
    QTest::newRow("video") << 2 << timed;
    QTest::newRow("audio") << 3 << timed;
    QTest::newRow("video and audio") << 4 << timed;
    QTest::newRow("image") << 5 << QStringLiteral("Sea\n");
    QTest::newRow("subtitle") << 14 << timed;
    QTest::newRow("template") << 16 << timed + QLatin1String("\n4 x 3\nMedia: 2");
}

void tst_ToolTip::choosesTheTextOfMediaByTheirType()
{
    QFETCH(int, type);
    Sea item(type);
    item.slotsSize = QSize(4, 3);
    item.slotCount = 2;
    item.needDownload = true;
    QTEST(ToolTip::GetMediaDataToolTip(&item), "text");
}

void tst_ToolTip::otherVideosAndPhotosHaveTheirTexts()
{
    Sea gif(mtElement);
    gif.sub = mskGif;
    QCOMPARE(ToolTip::GetMediaDataToolTip(&gif), QStringLiteral("Sea"));
    Sea picture(mtElement);
    picture.resource = true;
    picture.sub = mskPictureElement;
    QCOMPARE(ToolTip::GetMediaDataToolTip(&picture), QStringLiteral("Sea\n"));
    const UtilsInfo both(mikUnknown, sfVideo | sfImage);
    Sea odd(mtEffect);
    odd.info = &both;
    QCOMPARE(ToolTip::GetMediaDataToolTip(&odd), QStringLiteral("Sea"));
}

void tst_ToolTip::aTypeGoesBeforeWhatTheStreamsSay()
{
    const UtilsInfo moving(mikVideo, sfVideo);
    Sea image(mtImage);
    image.info = &moving;
    QCOMPARE(ToolTip::GetMediaDataToolTip(&image), QStringLiteral("Sea\n"));
}

void tst_ToolTip::timedResourcesTellLengthAndDownload_data()
{
    QTest::addColumn<Builder>("build");
    QTest::newRow("audio") << Builder(&ToolTip::GetAudioToolTip);
    QTest::newRow("element") << Builder(&ToolTip::GetElementToolTip);
}

void tst_ToolTip::timedResourcesTellLengthAndDownload()
{
    QFETCH(Builder, build);
    Sea item(mtAudio);
    QCOMPARE(build(&item), joined({QStringLiteral("Sea"), TwoSeconds}));
    item.needDownload = true;
    QCOMPARE(build(&item), joined({QStringLiteral("Sea"), TwoSeconds, Download}));
    item.rate = {};
    QCOMPARE(build(&item), joined({QStringLiteral("Sea"), Download}));
    item.needDownload = false;
    QCOMPARE(build(&item), QStringLiteral("Sea"));
}

void tst_ToolTip::appliedResourcesTellWhatToDo_data()
{
    QTest::addColumn<Builder>("build");
    QTest::newRow("effect") << Builder(&ToolTip::GetEffectToolTip);
    QTest::newRow("title") << Builder(&ToolTip::GetTitleToolTip);
}

void tst_ToolTip::appliedResourcesTellWhatToDo()
{
    QFETCH(Builder, build);
    Sea item(mtVideo);
    QCOMPARE(build(&item), joined({QStringLiteral("Sea"), Drag}));
    item.needDownload = true;
    QCOMPARE(build(&item), joined({QStringLiteral("Sea"), Download}));
}

void tst_ToolTip::draggedResourcesAreDragged_data()
{
    QTest::addColumn<Builder>("build");
    QTest::newRow("transition") << Builder(&ToolTip::GetTransitionToolTip);
    QTest::newRow("split screen") << Builder(&ToolTip::GetSplitScreenToolTip);
}

void tst_ToolTip::draggedResourcesAreDragged()
{
    QFETCH(Builder, build);
    Sea item(mtVideo);
    QCOMPARE(build(&item), joined({QStringLiteral("Sea"), Drag}));
    item.needDownload = true;
    QCOMPARE(build(&item), joined({QStringLiteral("Sea"), Drag}));
}

void tst_ToolTip::choosesTheTextOfEffectsByTheirType_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("text");
    for (const int type : {0, 1, 2, 4, 5, 14, 16, 17, 18, 19})
        QTest::addRow("type %d", type) << type << QString();
    QTest::newRow("audio") << 3 << joined({QStringLiteral("Sea"), TwoSeconds, Download});
    QTest::newRow("title") << 8 << joined({QStringLiteral("Sea"), Download});
    QTest::newRow("transition") << 9 << joined({QStringLiteral("Sea"), Drag});
    QTest::newRow("effect") << 10 << joined({QStringLiteral("Sea"), Download});
    QTest::newRow("split screen") << 11 << joined({QStringLiteral("Sea"), Drag});
    QTest::newRow("element") << 12 << joined({QStringLiteral("Sea"), Download});
}

void tst_ToolTip::choosesTheTextOfEffectsByTheirType()
{
    QFETCH(int, type);
    Sea item(type);
    item.needDownload = true;
    QTEST(ToolTip::GetEffectDataToolTip(&item), "text");
}

void tst_ToolTip::namesAnItem()
{
    const Sea item(mtVideo);
    QCOMPARE(ToolTip::getName(&item), QStringLiteral("Sea"));
    QCOMPARE(ToolTip::getName(nullptr), QString());
}

void tst_ToolTip::hintsAreTranslated()
{
    const LoudTranslator loud;
    Sea item(mtEffect);
    QCOMPARE(ToolTip::GetEffectToolTip(&item),
             QStringLiteral("Sea\n<ToolTip: Drag to the timeline to apply>"));
    item.needDownload = true;
    QCOMPARE(ToolTip::GetEffectToolTip(&item),
             QStringLiteral("Sea\n<ToolTip: Click to download the online content>"));
}

NX_TEST_MAIN(tst_ToolTip)
#include "tst_ToolTip.moc"
