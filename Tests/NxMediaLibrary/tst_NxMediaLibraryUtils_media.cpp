// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "UtilsMedia.h"

#include <NxMediaLibrary/NxMediaLibraryUtils.h>

#include <Support/NxTestMain.h>

#include <QTest>

using Utils = NxMediaLibraryUtils;
using Answer = bool (*)(const INxAbstractMedia *);
using namespace NXVBLMODEL;
Q_DECLARE_METATYPE(Answer)

namespace {

constexpr int AllTypes[] = {0, 1, 2, 3, 4, 5, 8, 9, 10, 11, 12, 14, 16, 17, 18, 19};
constexpr int NoInfo = -1;

struct NamedTest
{
    const char *name;
    Answer answer;
};

constexpr NamedTest AllTests[] = {
    {"isVideo", &Utils::isVideo},
    {"isPhoto", &Utils::isPhoto},
    {"isAudio", &Utils::isAudio},
    {"isGif", &Utils::isGif},
    {"isSubtitle", &Utils::isSubtitle},
    {"isProjectTemplate", &Utils::isProjectTemplate},
    {"isResourceMediaImage", &Utils::isResourceMediaImage},
    {"isResourceMediaVideo", &Utils::isResourceMediaVideo},
    {"isSourceMediaVideo", &Utils::isSourceMediaVideo},
    {"isUsed", &Utils::isUsed},
    {"hasAudio", &Utils::hasAudio},
    {"hasVideo", &Utils::hasVideo},
    {"hasImage", &Utils::hasImage},
};

} // namespace

class tst_NxMediaLibraryUtils_media : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void saysNoOfNothing_data();
    void saysNoOfNothing();
    void aFileIsWhatItsStreamsAre_data();
    void aFileIsWhatItsStreamsAre();
    void aFilesMediaTypeMakesNoVideoOrPhoto();
    void aResourceIsWhatItsTypeSays_data();
    void aResourceIsWhatItsTypeSays();
    void aComposedResourceIsAVideoByItsParts_data();
    void aComposedResourceIsAVideoByItsParts();
    void aComposedResourceIsAPhotoByTheFirstThatKnows_data();
    void aComposedResourceIsAPhotoByTheFirstThatKnows();
    void aSecondaryKindGoesBeforeTheParts_data();
    void aSecondaryKindGoesBeforeTheParts();
    void anImagePartOfATypeThatIsNotComposedIsNoPhoto();
    void partsThatAreMissingAreSurvived();
    void knowsAGifByTypeAndSubKind_data();
    void knowsAGifByTypeAndSubKind();
    void aGifCountsAsVideoOnlyAsAFile();
    void whatIsNoItemIsNeitherVideoNorPhoto();
    void knowsSoundByTypeOrInformation_data();
    void knowsSoundByTypeOrInformation();
    void knowsSubtitlesByInformationFirst_data();
    void knowsSubtitlesByInformationFirst();
    void knowsATemplateByItsType();
    void tellsStreamsApart_data();
    void tellsStreamsApart();
    void aFileIsNoResourceMedia();
    void aSourceVideoIsAVideo();
    void isUsedFromTheFirstUse_data();
    void isUsedFromTheFirstUse();
};

void tst_NxMediaLibraryUtils_media::saysNoOfNothing_data()
{
    QTest::addColumn<Answer>("answer");
    for (const NamedTest &test : AllTests)
        QTest::newRow(test.name) << test.answer;
}

void tst_NxMediaLibraryUtils_media::saysNoOfNothing()
{
    QFETCH(Answer, answer);
    QVERIFY(!answer(nullptr));
    const UtilsItem bare(mtNone);
    QVERIFY(!answer(&bare));
}

void tst_NxMediaLibraryUtils_media::aFileIsWhatItsStreamsAre_data()
{
    QTest::addColumn<int>("flags");
    QTest::addColumn<bool>("video");
    QTest::addColumn<bool>("photo");
    QTest::newRow("no information") << NoInfo << false << false;
    QTest::newRow("no stream") << 0 << false << false;
    QTest::newRow("pictures") << 1 << true << false;
    QTest::newRow("sound") << 2 << false << false;
    QTest::newRow("pictures and sound") << 3 << true << false;
    QTest::newRow("still") << 4 << false << true;
    QTest::newRow("still and moving") << 5 << true << true;
    QTest::newRow("all") << 7 << true << true;
    QTest::newRow("unknown bit") << 8 << false << false;
}

void tst_NxMediaLibraryUtils_media::aFileIsWhatItsStreamsAre()
{
    QFETCH(int, flags);
    const UtilsInfo info(mikUnknown, flags);
    UtilsItem item(mtAudio);
    item.info = flags == NoInfo ? nullptr : &info;
    QTEST(Utils::isVideo(&item), "video");
    QTEST(Utils::isPhoto(&item), "photo");
}

void tst_NxMediaLibraryUtils_media::aFilesMediaTypeMakesNoVideoOrPhoto()
{
    const UtilsPart moving(mpkVideo);
    const UtilsPart still(mpkImage);
    for (const int type : AllTypes) {
        UtilsItem item(type);
        item.code = mkcStillImage;
        item.itsParts = {const_cast<UtilsPart *>(&moving), const_cast<UtilsPart *>(&still)};
        QVERIFY2(!Utils::isVideo(&item), qPrintable(QString::number(type)));
        QVERIFY2(!Utils::isPhoto(&item), qPrintable(QString::number(type)));
    }
}

void tst_NxMediaLibraryUtils_media::aResourceIsWhatItsTypeSays_data()
{
    QTest::addColumn<int>("type");
    for (const int type : AllTypes)
        QTest::addRow("type %d", type) << type;
}

void tst_NxMediaLibraryUtils_media::aResourceIsWhatItsTypeSays()
{
    QFETCH(int, type);
    // Streams say nothing about a resource.
    const UtilsInfo everything(mikVideo, sfVideo | sfAudio | sfImage);
    UtilsItem item(type);
    item.resource = true;
    item.info = &everything;
    QCOMPARE(Utils::isVideo(&item), type == 2 || type == 4);
    QCOMPARE(Utils::isPhoto(&item), type == 5);
    QCOMPARE(Utils::isResourceMediaVideo(&item), type == 2 || type == 4);
    QCOMPARE(Utils::isResourceMediaImage(&item), type == 5);
}

void tst_NxMediaLibraryUtils_media::aComposedResourceIsAVideoByItsParts_data()
{
    QTest::addColumn<QList<int>>("parts");
    QTest::addColumn<bool>("video");
    QTest::addColumn<bool>("photo");
    QTest::newRow("no part") << QList<int>() << false << false;
    QTest::newRow("video") << QList<int>{1} << true << false;
    QTest::newRow("image") << QList<int>{3} << false << true;
    QTest::newRow("both") << QList<int>{3, 1} << true << true;
    QTest::newRow("others") << QList<int>{0, 2, 4} << false << false;
    QTest::newRow("video at last") << QList<int>{2, 4, 1} << true << false;
}

void tst_NxMediaLibraryUtils_media::aComposedResourceIsAVideoByItsParts()
{
    QFETCH(QList<int>, parts);
    QList<UtilsPart> made;
    for (const int kind : parts)
        made.append(UtilsPart(kind));
    UtilsItem item(mtElement);
    item.resource = true;
    for (UtilsPart &part : made)
        item.itsParts.append(&part);
    QTEST(Utils::isVideo(&item), "video");
    QTEST(Utils::isPhoto(&item), "photo");
}

void tst_NxMediaLibraryUtils_media::aComposedResourceIsAPhotoByTheFirstThatKnows_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("sub");
    QTest::addColumn<bool>("photo");
    QTest::newRow("nothing") << 0 << 0 << false;
    QTest::newRow("still image") << 3 << 0 << true;
    QTest::newRow("picture element") << 0 << 1000 << true;
    QTest::newRow("both") << 3 << 1000 << true;
    QTest::newRow("animated") << 1 << 0 << false;
    QTest::newRow("stock copy") << 8 << 0 << false;
    QTest::newRow("stock media") << 0 << 1001 << false;
    QTest::newRow("GIF") << 1 << 1006 << false;
}

void tst_NxMediaLibraryUtils_media::aComposedResourceIsAPhotoByTheFirstThatKnows()
{
    QFETCH(int, code);
    QFETCH(int, sub);
    QFETCH(bool, photo);
    UtilsItem item(mtElement);
    item.resource = true;
    item.code = code;
    item.sub = sub;
    QCOMPARE(Utils::isPhoto(&item), photo);
    // What it says of itself also stands against a secondary interface that says otherwise.
    UtilsSecondaryItem secondary(skNone);
    secondary.resource = true;
    secondary.code = code;
    secondary.sub = sub;
    QCOMPARE(Utils::isPhoto(&secondary), photo);
}

void tst_NxMediaLibraryUtils_media::aSecondaryKindGoesBeforeTheParts_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<bool>("photo");
    QTest::newRow("none") << 0 << false;
    QTest::newRow("photo") << 1 << true;
    QTest::newRow("other") << 2 << false;
    QTest::newRow("negative") << -1 << false;
}

void tst_NxMediaLibraryUtils_media::aSecondaryKindGoesBeforeTheParts()
{
    QFETCH(int, kind);
    UtilsPart still(mpkImage);
    UtilsSecondaryItem item(kind);
    item.resource = true;
    QTEST(Utils::isPhoto(&item), "photo");
    item.itsParts = {&still};
    QTEST(Utils::isPhoto(&item), "photo");
}

void tst_NxMediaLibraryUtils_media::anImagePartOfATypeThatIsNotComposedIsNoPhoto()
{
    UtilsPart still(mpkImage);
    UtilsPart moving(mpkVideo);
    UtilsItem title(mtTitle);
    title.resource = true;
    title.code = mkcStillImage;
    title.sub = mskPictureElement;
    title.itsParts = {&still, &moving};
    QVERIFY(!Utils::isPhoto(&title));
    QVERIFY(!Utils::isVideo(&title));
}

void tst_NxMediaLibraryUtils_media::partsThatAreMissingAreSurvived()
{
    UtilsPart still(mpkImage);
    UtilsItem item(mtElement);
    item.resource = true;
    item.itsParts = {nullptr, &still};
    QVERIFY(Utils::isPhoto(&item));
    QVERIFY(!Utils::isVideo(&item));
}

void tst_NxMediaLibraryUtils_media::knowsAGifByTypeAndSubKind_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("sub");
    QTest::addColumn<bool>("gif");
    for (const int type : AllTypes) {
        for (const int sub : {0, 1000, 1001, 1004, 1006, 1010}) {
            QTest::addRow("type %d sub-kind %d", type, sub)
                << type << sub << (type == 12 && (sub == 1004 || sub == 1006));
        }
    }
}

void tst_NxMediaLibraryUtils_media::knowsAGifByTypeAndSubKind()
{
    QFETCH(int, type);
    QFETCH(int, sub);
    UtilsItem item(type);
    item.sub = sub;
    QTEST(Utils::isGif(&item), "gif");
    UtilsMedia media(type);
    media.sub = sub;
    QTEST(Utils::isGif(&media), "gif");
}

void tst_NxMediaLibraryUtils_media::aGifCountsAsVideoOnlyAsAFile()
{
    for (const int sub : {int(mskGif), int(mskStockGif)}) {
        UtilsItem gif(mtElement);
        gif.sub = sub;
        QVERIFY(Utils::isVideo(&gif));
        gif.resource = true;
        QVERIFY(!Utils::isVideo(&gif));
        UtilsPart moving(mpkVideo);
        gif.itsParts = {&moving};
        QVERIFY(Utils::isVideo(&gif));
    }
}

void tst_NxMediaLibraryUtils_media::whatIsNoItemIsNeitherVideoNorPhoto()
{
    for (const int type : AllTypes) {
        UtilsMedia media(type);
        media.sub = mskGif;
        for (const bool resource : {false, true}) {
            media.resource = resource;
            QVERIFY(!Utils::isVideo(&media));
            QVERIFY(!Utils::isPhoto(&media));
            QVERIFY(!Utils::isResourceMediaVideo(&media));
            QVERIFY(!Utils::isResourceMediaImage(&media));
            QVERIFY(!Utils::isSourceMediaVideo(&media));
        }
    }
    const UtilsFolder folder(QStringLiteral("Clips"));
    for (const NamedTest &test : AllTests)
        QVERIFY2(!test.answer(&folder), test.name);
}

void tst_NxMediaLibraryUtils_media::knowsSoundByTypeOrInformation_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("kind");
    for (const int type : AllTypes) {
        for (const int kind : {NoInfo, 0, 3, 4, 5, 16})
            QTest::addRow("type %d information %d", type, kind) << type << kind;
    }
}

void tst_NxMediaLibraryUtils_media::knowsSoundByTypeOrInformation()
{
    QFETCH(int, type);
    QFETCH(int, kind);
    const UtilsInfo info(kind, sfAudio);
    UtilsItem item(type);
    item.info = kind == NoInfo ? nullptr : &info;
    QCOMPARE(Utils::isAudio(&item), type == 3 || kind == 4);
}

void tst_NxMediaLibraryUtils_media::knowsSubtitlesByInformationFirst_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("kind");
    QTest::addColumn<bool>("subtitle");
    QTest::newRow("type alone") << 14 << NoInfo << true;
    QTest::newRow("other type alone") << 3 << NoInfo << false;
    QTest::newRow("kind 16") << 3 << 16 << true;
    QTest::newRow("type and kind") << 14 << 16 << true;
    QTest::newRow("information against type") << 14 << 4 << false;
    QTest::newRow("information knows nothing") << 14 << 0 << false;
    QTest::newRow("kind 14 is no kind") << 3 << 14 << false;
}

void tst_NxMediaLibraryUtils_media::knowsSubtitlesByInformationFirst()
{
    QFETCH(int, type);
    QFETCH(int, kind);
    const UtilsInfo info(kind);
    UtilsItem item(type);
    item.info = kind == NoInfo ? nullptr : &info;
    QTEST(Utils::isSubtitle(&item), "subtitle");
}

void tst_NxMediaLibraryUtils_media::knowsATemplateByItsType()
{
    for (const int type : AllTypes) {
        const UtilsItem item(type);
        QCOMPARE(Utils::isProjectTemplate(&item), type == 16);
    }
}

void tst_NxMediaLibraryUtils_media::tellsStreamsApart_data()
{
    QTest::addColumn<int>("flags");
    for (int flags = NoInfo; flags < 8; ++flags)
        QTest::addRow("flags %d", flags) << flags;
}

void tst_NxMediaLibraryUtils_media::tellsStreamsApart()
{
    QFETCH(int, flags);
    const bool known = flags != NoInfo;
    const UtilsInfo info(mikUnknown, flags);
    UtilsItem item(mtVideoAudio);
    item.info = known ? &info : nullptr;
    QCOMPARE(Utils::hasVideo(&item), known && (flags & 1));
    QCOMPARE(Utils::hasAudio(&item), known && (flags & 2));
    QCOMPARE(Utils::hasImage(&item), known && (flags & 4));
}

void tst_NxMediaLibraryUtils_media::aFileIsNoResourceMedia()
{
    const UtilsInfo info(mikVideo, sfVideo | sfImage);
    UtilsItem file(mtVideo);
    file.info = &info;
    QVERIFY(Utils::isVideo(&file));
    QVERIFY(!Utils::isResourceMediaVideo(&file));
    QVERIFY(!Utils::isResourceMediaImage(&file));
}

void tst_NxMediaLibraryUtils_media::aSourceVideoIsAVideo()
{
    UtilsItem item(mtVideo);
    item.resource = true;
    QVERIFY(!Utils::isSourceMediaVideo(&item));
    item.source = true;
    QVERIFY(Utils::isSourceMediaVideo(&item));
    item.type = mtImage;
    QVERIFY(!Utils::isSourceMediaVideo(&item));
}

void tst_NxMediaLibraryUtils_media::isUsedFromTheFirstUse_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<bool>("used");
    QTest::newRow("-1") << -1 << false;
    QTest::newRow("0") << 0 << false;
    QTest::newRow("1") << 1 << true;
    QTest::newRow("12") << 12 << true;
}

void tst_NxMediaLibraryUtils_media::isUsedFromTheFirstUse()
{
    QFETCH(int, count);
    UtilsItem item;
    item.used = count;
    QTEST(Utils::isUsed(&item), "used");
}

NX_TEST_MAIN(tst_NxMediaLibraryUtils_media)
#include "tst_NxMediaLibraryUtils_media.moc"
