// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaViews/NxMediaColumns.h>

#include <GalleryMedia.h>

#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemModel.h>

#include <Brevano/FakeLibrary.h>
#include <Support/NxTestMain.h>

#include <QFontMetrics>
#include <QHash>
#include <QSet>
#include <QTest>
#include <QTranslator>

using namespace NXMEDIALIBRARY;
using namespace NXVBLMODEL;

namespace {

constexpr NxMediaCategoryType Categories[] = {
    mctMedia,       mctAudio,      mctTitle,    mctTransition, mctEffect, mctElement,
    mctSplitScreen, mctStockMedia, mctVCGStock, mctTemplate,   mctNone,
};

void addCategoryRows()
{
    QTest::addColumn<NxMediaCategoryType>("category");
    for (const NxMediaCategoryType category : Categories)
        QTest::addRow("category %d", int(category)) << category;
}

QString headingOf(const NxMediaItemModel &model, int column)
{
    return model.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
}

/// Every text in capitals.
struct CapitalTranslator final : QTranslator
{
    CapitalTranslator() { QCoreApplication::installTranslator(this); }
    ~CapitalTranslator() override { QCoreApplication::removeTranslator(this); }
    QString translate(const char *, const char *text, const char *, int) const override
    {
        return QString::fromUtf8(text).toUpper();
    }
    bool isEmpty() const override { return false; }
};

} // namespace

class tst_NxMediaColumns : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void columnsAreThoseOfTheModel_data();
    void columnsAreThoseOfTheModel();
    void aHeadingSortsByWhatItSays_data();
    void aHeadingSortsByWhatItSays();
    void aKeyLeadsBackToItsColumn_data();
    void aKeyLeadsBackToItsColumn();
    void keysWithoutAColumnHaveNone();
    void numbersStandAtTheEndOfTheirColumn_data();
    void numbersStandAtTheEndOfTheirColumn();
    void everyHeadingHasRoomInItsColumn_data();
    void everyHeadingHasRoomInItsColumn();
    void columnsThatAreNotThereAreEmpty_data();
    void columnsThatAreNotThereAreEmpty();
    void everyColumnOfMediaHasItsText();
    void aTextAloneIsThatOfItsColumn();
    void kindsAreSaidAsRowsSayThem_data();
    void kindsAreSaidAsRowsSayThem();
    void textsAreInTheUsersLanguage();
    void whatIsNotKnownIsEmpty();
    void frameRatesHaveTwoDigitsAtMost_data();
    void frameRatesHaveTwoDigitsAtMost();
    void aRateTellsSoundWithoutAText();
    void everyColumnOfResourcesHasItsText();
};

void tst_NxMediaColumns::everyColumnOfMediaHasItsText()
{
    FakeFolder folder(QStringLiteral("Project Media"), fkProject);
    FakeItem *media = folder.addItem(QStringLiteral("/f/a.mp4"));
    media->used = 3;
    media->info.rate = {25, 1};
    media->info.frames = 25 * 61 + 5;
    media->info.video.frameSize = QSize(1920, 1080);
    media->in = 30;
    media->out = 50;
    media->sound = QStringLiteral("48000 Hz, 2 ch");
    media->created = QDateTime(QDate(2026, 7, 1), QTime(9, 8, 7));
    const QStringList expected{
        QStringLiteral("a.mp4"),          QStringLiteral("3"),
        QStringLiteral("Video"),          QStringLiteral("25"),
        QStringLiteral("00:00:01:05"),    QStringLiteral("00:00:02:00"),
        QStringLiteral("00:01:01:05"),    QStringLiteral("1920 x 1080"),
        QStringLiteral("48000 Hz, 2 ch"), QStringLiteral("2026/07/01 09:08:07")};
    QCOMPARE(NxMediaColumns::texts(*media, mctMedia), expected);
}

void tst_NxMediaColumns::columnsAreThoseOfTheModel_data()
{
    addCategoryRows();
}

void tst_NxMediaColumns::columnsAreThoseOfTheModel()
{
    QFETCH(NxMediaCategoryType, category);
    const NxMediaItemModel model(category, nullptr);
    QCOMPARE(NxMediaColumns::count(category), model.columnCount());
    const GalleryItem item;
    QCOMPARE(NxMediaColumns::texts(item, category).size(), model.columnCount());
}

void tst_NxMediaColumns::aHeadingSortsByWhatItSays_data()
{
    addCategoryRows();
}

void tst_NxMediaColumns::aHeadingSortsByWhatItSays()
{
    QFETCH(NxMediaCategoryType, category);
    const QHash<QString, NxMediaItemViewSortBy> keys{
        {QStringLiteral("Name"), sbName},
        {QStringLiteral("Used"), sbUsed},
        {QStringLiteral("Type"), sbType},
        {QStringLiteral("Frame Rate"), sbFrameRate},
        {QStringLiteral("In Point"), sbInPoint},
        {QStringLiteral("Out Point"), sbOutPoint},
        {QStringLiteral("Duration"), sbDuration},
        {QStringLiteral("Resolution"), sbResolution},
        {QStringLiteral("Audio Info"), sbAudioInfo},
        {QStringLiteral("Date Created"), sbDateCreated},
        {QStringLiteral("Library"), sbNone},
        {QStringLiteral("Favorite"), sbFavourite},
        {QStringLiteral("Category"), sbCategory},
        {QStringLiteral("Find Similar"), sbNone},
    };
    const NxMediaItemModel model(category, nullptr);
    QVERIFY(model.columnCount() > 0);
    for (int column = 0; column < model.columnCount(); ++column) {
        const QString heading = headingOf(model, column);
        QVERIFY2(keys.contains(heading), qPrintable(heading));
        QCOMPARE(NxMediaColumns::sortKey(category, column), keys.value(heading));
    }
}

void tst_NxMediaColumns::aKeyLeadsBackToItsColumn_data()
{
    addCategoryRows();
}

void tst_NxMediaColumns::aKeyLeadsBackToItsColumn()
{
    QFETCH(NxMediaCategoryType, category);
    int sorted = 0;
    for (int column = 0; column < NxMediaColumns::count(category); ++column) {
        const NxMediaItemViewSortBy key = NxMediaColumns::sortKey(category, column);
        if (key == sbNone)
            continue;
        QCOMPARE(NxMediaColumns::column(category, key), column);
        ++sorted;
    }
    QCOMPARE(sorted, category == mctMedia ? 10 : 3);
}

void tst_NxMediaColumns::keysWithoutAColumnHaveNone()
{
    for (const NxMediaCategoryType category : {mctMedia, mctEffect}) {
        for (const NxMediaItemViewSortBy key :
             {sbNone, sbFavouriteTime, sbNew, sbListorder, sbSale, NxMediaItemViewSortBy(99)})
            QCOMPARE(NxMediaColumns::column(category, key), -1);
    }
    QCOMPARE(NxMediaColumns::column(mctMedia, sbCategory), -1);
    QCOMPARE(NxMediaColumns::column(mctEffect, sbDuration), -1);
}

void tst_NxMediaColumns::numbersStandAtTheEndOfTheirColumn_data()
{
    addCategoryRows();
}

void tst_NxMediaColumns::numbersStandAtTheEndOfTheirColumn()
{
    QFETCH(NxMediaCategoryType, category);
    const QSet<QString> numbers{QStringLiteral("Used"),     QStringLiteral("Frame Rate"),
                                QStringLiteral("In Point"), QStringLiteral("Out Point"),
                                QStringLiteral("Duration"), QStringLiteral("Resolution")};
    const NxMediaItemModel model(category, nullptr);
    for (int column = 0; column < model.columnCount(); ++column) {
        const bool isNumber = numbers.contains(headingOf(model, column));
        QCOMPARE(NxMediaColumns::alignment(category, column),
                 Qt::Alignment(isNumber ? Qt::AlignRight : Qt::AlignLeft));
    }
}

void tst_NxMediaColumns::everyHeadingHasRoomInItsColumn_data()
{
    addCategoryRows();
}

void tst_NxMediaColumns::everyHeadingHasRoomInItsColumn()
{
    QFETCH(NxMediaCategoryType, category);
    constexpr int besideHeading = 16; // Margins.
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(12);
    const QFontMetrics metrics(font);
    const NxMediaItemModel model(category, nullptr);
    for (int column = 0; column < model.columnCount(); ++column) {
        const QString heading = headingOf(model, column);
        QVERIFY2(NxMediaColumns::defaultWidth(category, column)
                     >= metrics.horizontalAdvance(heading) + besideHeading,
                 qPrintable(heading));
    }
}

void tst_NxMediaColumns::columnsThatAreNotThereAreEmpty_data()
{
    QTest::addColumn<NxMediaCategoryType>("category");
    QTest::addColumn<int>("column");
    QTest::newRow("before the first of media") << mctMedia << -1;
    QTest::newRow("behind the last of media") << mctMedia << 10;
    QTest::newRow("before the first of effects") << mctEffect << -1;
    QTest::newRow("behind the last of effects") << mctEffect << 5;
}

void tst_NxMediaColumns::columnsThatAreNotThereAreEmpty()
{
    QFETCH(NxMediaCategoryType, category);
    QFETCH(int, column);
    const GalleryItem item(mtVideoAudio, QStringLiteral("Clip"));
    QCOMPARE(NxMediaColumns::text(item, category, column), QString());
    QCOMPARE(NxMediaColumns::sortKey(category, column), sbNone);
    QCOMPARE(NxMediaColumns::defaultWidth(category, column), 0);
    QCOMPARE(NxMediaColumns::alignment(category, column), Qt::Alignment(Qt::AlignLeft));
}

void tst_NxMediaColumns::aTextAloneIsThatOfItsColumn()
{
    GalleryItem item(mtVideoAudio, QStringLiteral("Clip"));
    item.used = 7;
    item.info.frames = 250;
    for (const NxMediaCategoryType category : {mctMedia, mctTitle}) {
        const QStringList all = NxMediaColumns::texts(item, category);
        QCOMPARE(all.at(0), QStringLiteral("Clip"));
        for (int column = 0; column < all.size(); ++column)
            QCOMPARE(NxMediaColumns::text(item, category, column), all.at(column));
    }
}

void tst_NxMediaColumns::kindsAreSaidAsRowsSayThem_data()
{
    QTest::addColumn<NxMediaType>("type");
    QTest::addColumn<int>("finerKind");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *name, NxMediaType type, int finerKind, const char *text) {
        QTest::newRow(name) << type << finerKind << QString::fromLatin1(text);
    };
    row("video", mtVideo, mskNone, "Video");
    row("sound", mtAudio, mskNone, "Audio");
    row("photo", mtImage, mskNone, "Photo");
    row("animated picture", mtElement, mskGif, "GIF");
    row("subtitle", mtSubtitle, mskNone, "Subtitle");
    row("what nobody knows", NxMediaType(999), mskNone, "");
}

void tst_NxMediaColumns::kindsAreSaidAsRowsSayThem()
{
    QFETCH(NxMediaType, type);
    QFETCH(int, finerKind);
    GalleryItem item(type);
    item.finerKind = finerKind;
    QTEST(NxMediaColumns::text(item, mctMedia, NxMediaColumns::column(mctMedia, sbType)), "text");
}

void tst_NxMediaColumns::textsAreInTheUsersLanguage()
{
    const CapitalTranslator translator;
    FakeFolder folder(QStringLiteral("All"), fkUserSection);
    FakeItem *media = folder.addItem(QStringLiteral("Blur"));
    media->favourite = true;
    QCOMPARE(NxMediaColumns::text(*media, mctEffect, 2), QStringLiteral("YES"));
    QCOMPARE(NxMediaColumns::text(*media, mctMedia, 2), QStringLiteral("VIDEO"));
    QCOMPARE(NxMediaColumns::text(*media, mctMedia, 0), QStringLiteral("Blur"));
}

void tst_NxMediaColumns::whatIsNotKnownIsEmpty()
{
    FakeFolder folder(QStringLiteral("Project Media"), fkProject);
    const FakeItem *media = folder.addItem(QStringLiteral("/f/a.mp4"));
    const QStringList expected{QStringLiteral("a.mp4"),
                               QStringLiteral("0"),
                               QStringLiteral("Video"),
                               QString(),
                               QString(),
                               QString(),
                               QString(),
                               QString(),
                               QString(),
                               QString()};
    QCOMPARE(NxMediaColumns::texts(*media, mctMedia), expected);
}

void tst_NxMediaColumns::frameRatesHaveTwoDigitsAtMost_data()
{
    QTest::addColumn<int>("num");
    QTest::addColumn<int>("den");
    QTest::addColumn<QString>("text");

    QTest::newRow("film from video") << 24000 << 1001 << "23.98";
    QTest::newRow("NTSC") << 30000 << 1001 << "29.97";
    QTest::newRow("whole") << 60 << 1 << "60";
    QTest::newRow("half") << 25 << 2 << "12.5";
    QTest::newRow("unknown") << 0 << 0 << "";
    QTest::newRow("nonsense") << 0 << 1 << "";
}

void tst_NxMediaColumns::frameRatesHaveTwoDigitsAtMost()
{
    QFETCH(int, num);
    QFETCH(int, den);
    QFETCH(QString, text);

    FakeFolder folder(QStringLiteral("Project Media"), fkProject);
    FakeItem *media = folder.addItem(QStringLiteral("/f/a.mp4"));
    media->info.rate = {num, den};
    QCOMPARE(NxMediaColumns::texts(*media, mctMedia).at(3), text);
}

void tst_NxMediaColumns::aRateTellsSoundWithoutAText()
{
    FakeFolder folder(QStringLiteral("Project Media"), fkProject);
    FakeItem *media = folder.addItem(QStringLiteral("/f/a.wav"));
    media->type = mtAudio;
    media->info.flags = sfAudio;
    media->info.audio.sampleRate = 44100;
    const QStringList texts = NxMediaColumns::texts(*media, mctMedia);
    QCOMPARE(texts.at(2), QStringLiteral("Audio"));
    QCOMPARE(texts.at(8), QStringLiteral("44100 Hz"));
}

void tst_NxMediaColumns::everyColumnOfResourcesHasItsText()
{
    FakeFolder folder(QStringLiteral("All"), fkUserSection);
    FakeItem *media = folder.addItem(QStringLiteral("Blur 1"));
    media->category = QStringLiteral("Blurs");
    const QString library = QStringLiteral("All");
    QStringList expected{QStringLiteral("Blur 1"), library, QString(), QStringLiteral("Blurs"),
                         QString()};
    QCOMPARE(NxMediaColumns::texts(*media, mctEffect), expected);
    media->favourite = true;
    expected[2] = QStringLiteral("yes");
    QCOMPARE(NxMediaColumns::texts(*media, mctEffect), expected);
}

NX_TEST_MAIN_WIDGETS(tst_NxMediaColumns)
#include "tst_NxMediaColumns.moc"
