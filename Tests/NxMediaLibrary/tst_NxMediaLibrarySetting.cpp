// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "PlainSettings.h"
#include "SettingYard.h"

#include <NxCore/NxConfig.h>
#include <NxCore/NxMemorySettingsStore.h>
#include <NxMediaLibrary/setting/NxMediaLibrarySetting.h>

#include <Support/NxTestMain.h>

#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTest>

#include <climits>
#include <memory>
#include <random>

using namespace NXMEDIALIBRARY;
using namespace NXVBLMODEL;

using namespace PlainTables;

namespace {

QByteArray rowName(int code, int kind, const QString &rest)
{
    return QByteArray::number(code) + ' ' + kindName(kind) + ' ' + rest.toUtf8();
}

/// Values that a caller may hand in, unnamed ones among them.
QVector<int> valuesOf(int kind)
{
    QVector<int> values{INT_MIN, -1, 99, INT_MAX};
    const int named = kind == SortBy ? 18 : kind == View ? 4 : kind == GroupBy ? 6 : 3;
    for (int i = 0; i <= named; ++i)
        values.append(i);
    return values;
}

/// Reaches what only subclasses may.
class Probe : public NxMediaLibrarySetting
{
public:
    using NxMediaLibrarySetting::ChangeOtherMatterThumbnailView;
    using NxMediaLibrarySetting::GetDefaultSortByFromString;
    using NxMediaLibrarySetting::GetGroupByFromString;
    using NxMediaLibrarySetting::GetMatterTypeString;
    using NxMediaLibrarySetting::GetSortByFromString;
    using NxMediaLibrarySetting::GetSortOrderFromString;
    using NxMediaLibrarySetting::GetViewTypeFromString;
    using NxMediaLibrarySetting::SaveToConfigFile;
};

} // namespace

class tst_NxMediaLibrarySetting : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    void firstStartHasDefaults();
    void textsAreRead_data();
    void textsAreRead();
    void absentKeysHaveDefaults();
    void valuesAreWritten_data();
    void valuesAreWritten();
    void fileIsPlainText();
    void lastModifiedKeepsTheOlderText();
    void descendingIsWrittenButStartsAscend();
    void groupsThatACategoryLacksAreWrittenAsNone();
    void thumbnailSizeSpreads_data();
    void thumbnailSizeSpreads();
    void spreadingSkipsWhatHasTheSizeAlready();
    void listIsChosenForOneCategoryAlone();
    void unnamedModeStaysInItsCategory();
    void sameValueAgainWritesNothing_data();
    void sameValueAgainWritesNothing();
    void changesOfOtherProgramsAreKept();
    void changesOfOtherProgramsAreNotSeen();
    void sevenToTenShareTheirKeys();
    void unknownCategoriesAreIgnored_data();
    void unknownCategoriesAreIgnored();
    void filterLastsUntilTheEnd();
    void menuIsHandedOver();
    void menuIsTakenOver();
    void restoringWithoutSavingChangesNothing();
    void savesAreRestoredInReverse();
    void savingWritesNothing();
    void restoringWritesWhatDiffers();
    void restoredSizesSpread();
    void behavesLikeThePlainestOne_data();
    void behavesLikeThePlainestOne();
    void helpersKnowTheTables();
    void unknownKindWritesNothing();
    void importStartsOnTheDesktop();
    void importFolderIsRemembered();
    void livesUntilTheManagerDestroysIt();

private:
    std::unique_ptr<SettingYard> m_yard;
};

void tst_NxMediaLibrarySetting::init()
{
    m_yard = std::make_unique<SettingYard>();
}

void tst_NxMediaLibrarySetting::cleanup()
{
    m_yard.reset();
    NxConfig::Instance()->setStore(nullptr);
}

void tst_NxMediaLibrarySetting::firstStartHasDefaults()
{
    const NxMediaLibrarySetting *setting = NxMediaLibrarySetting::instance();
    for (int code = 0; code < Categories; ++code) {
        QCOMPARE(get(setting, code, View), 3);
        QCOMPARE(get(setting, code, SortBy), code == 0 ? 1 : 14);
        QCOMPARE(get(setting, code, SortByOrder), 0);
        QCOMPARE(get(setting, code, GroupBy), 0);
        QCOMPARE(get(setting, code, GroupByOrder), 0);
        QCOMPARE(setting->GetFilterType(category(code)), mtfAll);
    }
    QVERIFY(!QFileInfo::exists(m_yard->iniPath()));
}

void tst_NxMediaLibrarySetting::textsAreRead_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("text");

    const char *const texts[] = {"ListView",
                                 "SmallThumbnailView",
                                 "MiddleThumbnailView",
                                 "vmLargeThumbnail",
                                 "sbName",
                                 "sbDuration",
                                 "sbDateCreated",
                                 "sbType",
                                 "sbCategory",
                                 "sbLastModify",
                                 "soASC",
                                 "soDESC",
                                 "gbNone",
                                 "gbType",
                                 "gbDateCreated",
                                 "gbDuration",
                                 "gbName",
                                 "gbCategory",
                                 "listview",
                                 "1"};
    for (int code = 0; code < Categories; ++code) {
        for (int kind = 0; kind < KindCount; ++kind) {
            for (const char *text : texts)
                QTest::newRow(rowName(code, kind, QLatin1String(text)).constData())
                    << code << kind << QString(QLatin1String(text));
            QTest::newRow(rowName(code, kind, QStringLiteral("empty")).constData())
                << code << kind << QString();
        }
    }
}

void tst_NxMediaLibrarySetting::textsAreRead()
{
    QFETCH(int, code);
    QFETCH(int, kind);
    QFETCH(QString, text);
    m_yard->writeIni("[NMatterViewMenu]\n" + keyOf(code, kind).toUtf8() + '=' + text.toUtf8()
                     + '\n');
    const NxMediaLibrarySetting *setting = NxMediaLibrarySetting::instance();
    for (int other = 0; other < Categories; ++other) {
        for (int k = 0; k < KindCount; ++k) {
            const bool isSet = keyOf(other, k) == keyOf(code, kind);
            QCOMPARE(get(setting, other, k), readValue(other, k, isSet ? text : QString()));
        }
    }
}

void tst_NxMediaLibrarySetting::absentKeysHaveDefaults()
{
    m_yard->writeIni("[Other]\nMedia_View=ListView\n[NMatterViewMenu]\nAudio_SortBy=sbType\n");
    const NxMediaLibrarySetting *setting = NxMediaLibrarySetting::instance();
    QCOMPARE(get(setting, 0, View), 3);
    QCOMPARE(get(setting, 0, SortBy), 1);
    QCOMPARE(get(setting, 1, SortBy), 13);
    QCOMPARE(get(setting, 2, SortBy), 14);
}

void tst_NxMediaLibrarySetting::valuesAreWritten_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("value");

    for (int code = 0; code < Categories; ++code) {
        for (int kind = 0; kind < KindCount; ++kind) {
            for (int value : valuesOf(kind))
                QTest::newRow(rowName(code, kind, QString::number(value)).constData())
                    << code << kind << value;
        }
    }
}

void tst_NxMediaLibrarySetting::valuesAreWritten()
{
    QFETCH(int, code);
    QFETCH(int, kind);
    QFETCH(int, value);
    NxMediaLibrarySetting *setting = NxMediaLibrarySetting::instance();
    const bool isNew = get(setting, code, kind) != value;
    set(setting, code, kind, value);
    QCOMPARE(get(setting, code, kind), value);

    const QString text = isNew ? writtenText(code, kind, value) : QString();
    QCOMPARE(m_yard->iniKeys().value(keyOf(code, kind)), text);
    QCOMPARE(QFileInfo::exists(m_yard->iniPath()), !text.isEmpty());
    QCOMPARE(get(SettingYard::restart(), code, kind), readValue(code, kind, text));
}

void tst_NxMediaLibrarySetting::fileIsPlainText()
{
    NxMediaLibrarySetting *setting = NxMediaLibrarySetting::instance();
    setting->SetViewType(mctAudio, vmList);
    QCOMPARE(m_yard->iniText(), QByteArray("[NMatterViewMenu]\nAudio_View=ListView\n"));
    setting->SetGroupBy(mctSplitScreen, gbCategory);
    setting->SetGroupByOrder(mctSplitScreen, soDESC);
    QCOMPARE(m_yard->iniText(), QByteArray("[NMatterViewMenu]\nAudio_View=ListView\n"
                                           "SplitScreen_GroupBy=gbCategory\n"
                                           "SplitScreen_GroupByOrder=soDESC\n"));
}

void tst_NxMediaLibrarySetting::lastModifiedKeepsTheOlderText()
{
    const QByteArray older = "[NMatterViewMenu]\nAudio_SortBy=sbDuration\n";
    m_yard->writeIni(older);
    NxMediaLibrarySetting *setting = NxMediaLibrarySetting::instance();
    QCOMPARE(setting->GetSortBy(mctAudio), sbDuration);
    setting->SetSortBy(mctAudio, sbNew);
    QCOMPARE(setting->GetSortBy(mctAudio), sbNew);
    QCOMPARE(m_yard->iniText(), older);
    QCOMPARE(SettingYard::restart()->GetSortBy(mctAudio), sbDuration);
}

void tst_NxMediaLibrarySetting::descendingIsWrittenButStartsAscend()
{
    NxMediaLibrarySetting *setting = NxMediaLibrarySetting::instance();
    setting->SetSortByOrder(mctTitle, soDESC);
    setting->SetGroupByOrder(mctMedia, soDESC);
    const QMap<QString, QString> expected{
        {QStringLiteral("Title_SortByOrder"), QStringLiteral("soDESC")},
        {QStringLiteral("Media_GroupByOrder"), QStringLiteral("soDESC")}};
    QCOMPARE(m_yard->iniKeys(), expected);
    setting = SettingYard::restart();
    QCOMPARE(setting->GetSortByOrder(mctTitle), soASC);
    QCOMPARE(setting->GetGroupByOrder(mctMedia), soASC);

    setting->SetSortByOrder(mctTitle, soASC); // Is so already: the text stays.
    QCOMPARE(m_yard->iniKeys(), expected);
}

void tst_NxMediaLibrarySetting::groupsThatACategoryLacksAreWrittenAsNone()
{
    NxMediaLibrarySetting *setting = NxMediaLibrarySetting::instance();
    setting->SetGroupBy(mctMedia, gbCategory);
    setting->SetGroupBy(mctTransition, gbCameraName);
    QCOMPARE(setting->GetGroupBy(mctMedia), gbCategory);
    QCOMPARE(setting->GetGroupBy(mctTransition), gbCameraName);
    QCOMPARE(m_yard->iniText(), QByteArray("[NMatterViewMenu]\nMedia_GroupBy=gbNone\n"
                                           "Transition_GroupBy=gbNone\n"));
}

void tst_NxMediaLibrarySetting::thumbnailSizeSpreads_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("size");

    for (int code = 0; code < Categories; ++code) {
        for (int size = vmSmallThumbnail; size <= vmLargeThumbnail; ++size)
            QTest::newRow(rowName(code, View, QString::number(size)).constData()) << code << size;
    }
}

void tst_NxMediaLibrarySetting::thumbnailSizeSpreads()
{
    QFETCH(int, code);
    QFETCH(int, size);
    NxMediaLibrarySetting *setting = NxMediaLibrarySetting::instance();
    for (int other = 0; other < Categories; ++other)
        setting->SetViewType(category(other), vmList);
    setting->SetViewType(category(code), static_cast<NxMediaItemViewMode>(size));

    QMap<QString, QString> expected;
    for (int other = 0; other < Categories; ++other) {
        QCOMPARE(get(setting, other, View), size);
        expected.insert(keyOf(other, View), writtenText(other, View, size));
    }
    QCOMPARE(m_yard->iniKeys(), expected);
    setting = SettingYard::restart();
    for (int other = 0; other < Categories; ++other)
        QCOMPARE(get(setting, other, View), size);
}

void tst_NxMediaLibrarySetting::spreadingSkipsWhatHasTheSizeAlready()
{
    m_yard->writeIni("[NMatterViewMenu]\nTitle_View=SmallThumbnailView\n");
    NxMediaLibrarySetting *setting = NxMediaLibrarySetting::instance();
    m_yard->writeIni("[NMatterViewMenu]\nTitle_View=AnotherProgramsText\n");
    setting->SetViewType(mctAudio, vmSmallThumbnail);
    const QMap<QString, QString> keys = m_yard->iniKeys();
    QCOMPARE(keys.size(), 8);
    for (int code = 0; code < Categories; ++code) {
        const QString text = code == mctTitle ? QStringLiteral("AnotherProgramsText")
                                              : QStringLiteral("SmallThumbnailView");
        QCOMPARE(keys.value(keyOf(code, View)), text);
    }
}

void tst_NxMediaLibrarySetting::listIsChosenForOneCategoryAlone()
{
    NxMediaLibrarySetting *setting = NxMediaLibrarySetting::instance();
    setting->SetViewType(mctAudio, vmList);
    for (int code = 0; code < Categories; ++code)
        QCOMPARE(get(setting, code, View), code == mctAudio ? 0 : 3);
    QCOMPARE(m_yard->iniKeys().keys(), QStringList(QStringLiteral("Audio_View")));
}

void tst_NxMediaLibrarySetting::unnamedModeStaysInItsCategory()
{
    NxMediaLibrarySetting *setting = NxMediaLibrarySetting::instance();
    set(setting, mctTitle, View, 4);
    for (int code = 0; code < Categories; ++code)
        QCOMPARE(get(setting, code, View), code == mctTitle ? 4 : 3);
    QCOMPARE(m_yard->iniText(), QByteArray("[NMatterViewMenu]\nTitle_View=vmLargeThumbnail\n"));
}

void tst_NxMediaLibrarySetting::sameValueAgainWritesNothing_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("value");

    QTest::newRow("list") << int(View) << 0;
    QTest::newRow("thumbnails") << int(View) << 2;
    QTest::newRow("sort key") << int(SortBy) << 2;
    QTest::newRow("sort order") << int(SortByOrder) << 1;
    QTest::newRow("group") << int(GroupBy) << 5;
    QTest::newRow("group order") << int(GroupByOrder) << 1;
}

void tst_NxMediaLibrarySetting::sameValueAgainWritesNothing()
{
    QFETCH(int, kind);
    QFETCH(int, value);
    NxMediaLibrarySetting *setting = NxMediaLibrarySetting::instance();
    set(setting, mctEffect, kind, value);
    QVERIFY(QFile::remove(m_yard->iniPath()));
    set(setting, mctEffect, kind, value);
    QVERIFY(!QFileInfo::exists(m_yard->iniPath()));
}

void tst_NxMediaLibrarySetting::changesOfOtherProgramsAreKept()
{
    NxMediaLibrarySetting *setting = NxMediaLibrarySetting::instance();
    setting->SetViewType(mctAudio, vmList);
    m_yard->writeIni(m_yard->iniText() + "Title_View=ListView\n\n[Window]\nwidth=1280\n");
    setting->SetSortBy(mctAudio, sbType);
    QCOMPARE(m_yard->iniText(),
             QByteArray("[NMatterViewMenu]\nAudio_SortBy=sbType\nAudio_View=ListView\n"
                        "Title_View=ListView\n\n[Window]\nwidth=1280\n"));
}

void tst_NxMediaLibrarySetting::changesOfOtherProgramsAreNotSeen()
{
    const NxMediaLibrarySetting *setting = NxMediaLibrarySetting::instance();
    m_yard->writeIni("[NMatterViewMenu]\nAudio_View=ListView\n");
    QCOMPARE(setting->GetViewType(mctAudio), vmLargeThumbnail);
    QCOMPARE(SettingYard::restart()->GetViewType(mctAudio), vmList);
}

void tst_NxMediaLibrarySetting::sevenToTenShareTheirKeys()
{
    NxMediaLibrarySetting *setting = NxMediaLibrarySetting::instance();
    for (int code = 7; code <= 10; ++code)
        set(setting, code, SortBy, code == 10 ? 15 : code - 6);
    set(setting, 8, View, 0);
    for (int code = 7; code <= 9; ++code)
        QCOMPARE(get(setting, code, SortBy), code - 6);
    const QMap<QString, QString> expected{
        {QStringLiteral("None_SortBy"), QStringLiteral("sbCategory")},
        {QStringLiteral("None_View"), QStringLiteral("ListView")}};
    QCOMPARE(m_yard->iniKeys(), expected);
    setting = SettingYard::restart();
    for (int code = 7; code <= 10; ++code) {
        QCOMPARE(get(setting, code, SortBy), 15);
        QCOMPARE(get(setting, code, View), 0);
    }
}

void tst_NxMediaLibrarySetting::unknownCategoriesAreIgnored_data()
{
    QTest::addColumn<int>("code");

    QTest::newRow("none") << 11;
    QTest::newRow("after the last") << 12;
    QTest::newRow("negative") << -1;
    QTest::newRow("least") << INT_MIN;
    QTest::newRow("greatest") << INT_MAX;
}

void tst_NxMediaLibrarySetting::unknownCategoriesAreIgnored()
{
    QFETCH(int, code);
    const PlainSettings untouched;
    NxMediaLibrarySetting *setting = NxMediaLibrarySetting::instance();
    for (int kind = 0; kind < KindCount; ++kind) {
        for (int value : valuesOf(kind))
            set(setting, code, kind, value);
    }
    setting->SetFilterType(category(code), mtfAudio);
    setting->SetMatterMenu(category(code), MatterMenu());

    QVERIFY(!QFileInfo::exists(m_yard->iniPath()));
    QCOMPARE(untouched.differenceTo(setting), QString());
    QCOMPARE(get(setting, code, View), 3);
    for (int kind = SortBy; kind < KindCount; ++kind)
        QCOMPARE(get(setting, code, kind), 0);
    QCOMPARE(setting->GetFilterType(category(code)), mtfAll);

    MatterMenu menu{mtfVideo, vmList, sbType, soDESC, gbType, soDESC};
    setting->GetMatterMenu(category(code), menu);
    QCOMPARE(menu.filterType, mtfVideo);
    QCOMPARE(menu.viewType, vmLargeThumbnail);
    QCOMPARE(menu.sortBy, sbNone);
    QCOMPARE(menu.sortByOrder, soASC);
    QCOMPARE(menu.groupBy, gbNone);
    QCOMPARE(menu.groupByOrder, soASC);
}

void tst_NxMediaLibrarySetting::filterLastsUntilTheEnd()
{
    NxMediaLibrarySetting *setting = NxMediaLibrarySetting::instance();
    for (int code = 0; code < Categories; ++code)
        setting->SetFilterType(category(code), static_cast<NxMediaTypeFilter>(code));
    for (int code = 0; code < Categories; ++code)
        QCOMPARE(int(setting->GetFilterType(category(code))), code);
    QVERIFY(!QFileInfo::exists(m_yard->iniPath()));
    QCOMPARE(SettingYard::restart()->GetFilterType(mctTitle), mtfAll);
}

void tst_NxMediaLibrarySetting::menuIsHandedOver()
{
    NxMediaLibrarySetting *setting = NxMediaLibrarySetting::instance();
    setting->SetFilterType(mctElement, mtfPaid);
    setting->SetViewType(mctElement, vmList);
    setting->SetSortBy(mctElement, sbCategory);
    setting->SetSortByOrder(mctElement, soDESC);
    setting->SetGroupBy(mctElement, gbCategory);
    setting->SetGroupByOrder(mctElement, soDESC);
    MatterMenu menu;
    menu.filterType = mtfAudio;
    setting->GetMatterMenu(mctElement, menu);
    QCOMPARE(menu.filterType, mtfAudio);
    QCOMPARE(menu.viewType, vmList);
    QCOMPARE(menu.sortBy, sbCategory);
    QCOMPARE(menu.sortByOrder, soDESC);
    QCOMPARE(menu.groupBy, gbCategory);
    QCOMPARE(menu.groupByOrder, soDESC);
}

void tst_NxMediaLibrarySetting::menuIsTakenOver()
{
    NxMediaLibrarySetting *setting = NxMediaLibrarySetting::instance();
    setting->SetFilterType(mctMedia, mtfAudio);
    setting->SetMatterMenu(mctMedia, {mtfVideo, vmList, sbDuration, soDESC, gbDuration, soDESC});
    QCOMPARE(setting->GetFilterType(mctMedia), mtfAudio);
    QCOMPARE(m_yard->iniKeys(),
             (QMap<QString, QString>{
                 {QStringLiteral("Media_View"), QStringLiteral("ListView")},
                 {QStringLiteral("Media_SortBy"), QStringLiteral("sbDuration")},
                 {QStringLiteral("Media_SortByOrder"), QStringLiteral("soDESC")},
                 {QStringLiteral("Media_GroupBy"), QStringLiteral("gbDuration")},
                 {QStringLiteral("Media_GroupByOrder"), QStringLiteral("soDESC")},
             }));
    setting->SetMatterMenu(mctAudio, {mtfVideo, vmSmallThumbnail, sbName, soASC, gbNone, soASC});
    QCOMPARE(setting->GetViewType(mctMedia), vmSmallThumbnail);
}

void tst_NxMediaLibrarySetting::restoringWithoutSavingChangesNothing()
{
    NxMediaLibrarySetting *setting = NxMediaLibrarySetting::instance();
    setting->SetViewType(mctAudio, vmList);
    setting->SetFilterType(mctAudio, mtfAudio);
    QVERIFY(QFile::remove(m_yard->iniPath()));
    setting->Restore();
    QCOMPARE(setting->GetViewType(mctAudio), vmList);
    QCOMPARE(setting->GetFilterType(mctAudio), mtfAudio);
    QVERIFY(!QFileInfo::exists(m_yard->iniPath()));
}

void tst_NxMediaLibrarySetting::savesAreRestoredInReverse()
{
    NxMediaLibrarySetting *setting = NxMediaLibrarySetting::instance();
    const NxMediaItemViewSortBy keys[] = {sbName, sbDuration, sbType};
    for (const NxMediaItemViewSortBy key : keys) {
        setting->SetSortBy(mctEffect, key);
        setting->SetFilterType(mctEffect, static_cast<NxMediaTypeFilter>(key % 7));
        if (key != sbType)
            setting->Save();
    }
    setting->Restore();
    QCOMPARE(setting->GetSortBy(mctEffect), sbDuration);
    QCOMPARE(setting->GetFilterType(mctEffect), mtfPhoto);
    setting->Restore();
    QCOMPARE(setting->GetSortBy(mctEffect), sbName);
    QCOMPARE(setting->GetFilterType(mctEffect), mtfVideo);
    setting->SetSortBy(mctEffect, sbType);
    setting->Restore(); // Both snapshots are used up.
    QCOMPARE(setting->GetSortBy(mctEffect), sbType);
}

void tst_NxMediaLibrarySetting::savingWritesNothing()
{
    NxMediaLibrarySetting *setting = NxMediaLibrarySetting::instance();
    setting->SetViewType(mctAudio, vmList);
    setting->SetFilterType(mctAudio, mtfVideo);
    QVERIFY(QFile::remove(m_yard->iniPath()));
    setting->Save();
    QVERIFY(!QFileInfo::exists(m_yard->iniPath()));
    setting->SetFilterType(mctAudio, mtfAudio);
    setting->Restore(); // Only a filter differs.
    QCOMPARE(setting->GetFilterType(mctAudio), mtfVideo);
    QVERIFY(!QFileInfo::exists(m_yard->iniPath()));
}

void tst_NxMediaLibrarySetting::restoringWritesWhatDiffers()
{
    NxMediaLibrarySetting *setting = NxMediaLibrarySetting::instance();
    setting->SetViewType(mctAudio, vmList);
    setting->SetSortBy(mctTitle, sbType);
    setting->Save();
    setting->SetSortBy(mctTitle, sbName);
    setting->SetSortByOrder(mctTitle, soDESC);
    setting->SetGroupBy(mctMedia, gbType);
    setting->SetGroupByOrder(mctMedia, soDESC);
    QVERIFY(QFile::remove(m_yard->iniPath()));
    setting->Restore();
    QCOMPARE(m_yard->iniKeys(), (QMap<QString, QString>{
                                    {QStringLiteral("Title_SortBy"), QStringLiteral("sbType")},
                                    {QStringLiteral("Title_SortByOrder"), QStringLiteral("soASC")},
                                    {QStringLiteral("Media_GroupBy"), QStringLiteral("gbNone")},
                                    {QStringLiteral("Media_GroupByOrder"), QStringLiteral("soASC")},
                                }));
}

void tst_NxMediaLibrarySetting::restoredSizesSpread()
{
    NxMediaLibrarySetting *setting = NxMediaLibrarySetting::instance();
    setting->SetViewType(mctAudio, vmSmallThumbnail);
    setting->SetViewType(mctMedia, vmList);
    setting->Save();
    setting->Save();

    setting->SetViewType(mctMedia, vmSmallThumbnail);
    setting->Restore(); // Only category 0 differs, and a list does not spread.
    QCOMPARE(setting->GetViewType(mctMedia), vmList);

    setting->SetViewType(mctAudio, vmLargeThumbnail);
    setting->Restore(); // Category 1 differs, and its size reaches category 0 again.
    for (int code = 0; code < Categories; ++code)
        QCOMPARE(get(setting, code, View), int(vmSmallThumbnail));
}

void tst_NxMediaLibrarySetting::behavesLikeThePlainestOne_data()
{
    QTest::addColumn<quint32>("seed");

    for (quint32 seed = 1; seed <= 6; ++seed)
        QTest::newRow(QByteArray::number(seed).constData()) << seed;
    const quint32 fresh = std::random_device()();
    QTest::newRow(("fresh " + QByteArray::number(fresh)).constData()) << fresh;
}

void tst_NxMediaLibrarySetting::behavesLikeThePlainestOne()
{
    QFETCH(quint32, seed);
    std::mt19937 random(seed);
    const auto below = [&random](int bound) { return int(random() % quint32(bound)); };
    PlainSettings plain;
    NxMediaLibrarySetting *setting = NxMediaLibrarySetting::instance();
    for (int step = 0; step < 60; ++step) {
        const int code = below(Categories);
        const int kind = below(KindCount);
        const int value = below(kind == SortBy ? 18 : 6);
        const int action = below(20);
        if (action == 0) {
            setting->Save();
            plain.save();
        } else if (action == 1) {
            setting->Restore();
            plain.restore();
        } else if (action == 2) {
            setting->SetFilterType(category(code), static_cast<NxMediaTypeFilter>(value));
            plain.setFilter(code, value);
        } else if (action == 3) {
            setting = SettingYard::restart();
            plain.start();
        } else {
            set(setting, code, kind, value);
            plain.set(code, kind, value);
        }
        QCOMPARE(plain.differenceTo(setting), QString());
        QCOMPARE(m_yard->iniKeys(), plain.file());
    }
}

void tst_NxMediaLibrarySetting::helpersKnowTheTables()
{
    for (int code = 0; code < Categories; ++code) {
        QCOMPARE(Probe::GetMatterTypeString(category(code)), prefixOf(code));
        QCOMPARE(int(Probe::GetDefaultSortByFromString(category(code))), code == 0 ? 1 : 14);
        QCOMPARE(Probe::GetGroupByFromString(QString(), category(code)), gbNone);
    }
    QCOMPARE(Probe::GetMatterTypeString(mctNone), QStringLiteral("None"));
    QCOMPARE(Probe::GetViewTypeFromString(QString()), vmLargeThumbnail);
    QCOMPARE(Probe::GetViewTypeFromString(QStringLiteral("ListView")), vmList);
    QCOMPARE(Probe::GetSortByFromString(QStringLiteral("nonsense")), sbName);
    QCOMPARE(Probe::GetSortByFromString(QStringLiteral("sbLastModify")), sbNew);
    QCOMPARE(Probe::GetSortOrderFromString(QStringLiteral("soDESC")), soASC);
}

void tst_NxMediaLibrarySetting::unknownKindWritesNothing()
{
    Probe probe;
    probe.SaveToConfigFile(mctMedia, QStringLiteral("FilterType"), 1);
    probe.SaveToConfigFile(mctMedia, QString(), 1);
    QVERIFY(!QFileInfo::exists(m_yard->iniPath()));
    probe.SaveToConfigFile(mctMedia, QStringLiteral("SortByOrder"), 1);
    QCOMPARE(m_yard->iniText(), QByteArray("[NMatterViewMenu]\nMedia_SortByOrder=soDESC\n"));
    probe.ChangeOtherMatterThumbnailView(mctMedia, vmSmallThumbnail);
    QCOMPARE(probe.GetViewType(mctMedia), vmLargeThumbnail);
    QCOMPARE(probe.GetViewType(mctReserved), vmSmallThumbnail);
    QVERIFY(!m_yard->iniKeys().contains(QStringLiteral("Media_View")));
}

void tst_NxMediaLibrarySetting::importStartsOnTheDesktop()
{
    NxConfig::Instance()->setStore(std::make_unique<NxMemorySettingsStore>());
    const QStringList desktops = QStandardPaths::standardLocations(QStandardPaths::DesktopLocation);
    QCOMPARE(NxMediaLibrarySetting::GetImportDefaultDir(),
             desktops.value(0, QStringLiteral("C:\\Users\\Public\\Music\\Sample Music")));
    QVERIFY(!NxMediaLibrarySetting::isActive());
}

void tst_NxMediaLibrarySetting::importFolderIsRemembered()
{
    NxConfig::Instance()->setStore(std::make_unique<NxMemorySettingsStore>());
    NxMediaLibrarySetting::SetImportDefaultDir(QStringLiteral("/footage/today"));
    QCOMPARE(NxMediaLibrarySetting::GetImportDefaultDir(), QStringLiteral("/footage/today"));
    QCOMPARE(NxConfig::Instance()->getDefaultImportDir(QString()),
             QStringLiteral("/footage/today"));
}

void tst_NxMediaLibrarySetting::livesUntilTheManagerDestroysIt()
{
    QVERIFY(!NxMediaLibrarySetting::isActive());
    NxMediaLibrarySetting *setting = NxMediaLibrarySetting::instance();
    QVERIFY(setting->attachManager());
    QCOMPARE(NxMediaLibrarySetting::instance(), setting);
    QVERIFY(NxMediaLibrarySetting::isActive());
    NxLazySingletonManager::destroyAll();
    QVERIFY(!NxMediaLibrarySetting::isActive());
}

NX_TEST_MAIN(tst_NxMediaLibrarySetting)
#include "tst_NxMediaLibrarySetting.moc"
