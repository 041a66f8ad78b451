// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/commands/CommandLine.h>
#include <Brevano/commands/CommandTable.h>
#include <Brevano/commands/ViewChoice.h>
#include <NxMediaLibrary/setting/NxMediaLibrarySetting.h>
#include <Support/NxTestMain.h>

#include <QtTest>

using namespace NXMEDIALIBRARY;
using namespace NXVBLMODEL;

class tst_ViewChoice : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theUsersChoiceHoldsWhereNothingIsSaid();
    void eachCategoryHasItsOwnChoice();
    void wordsGoBeforeTheUsersChoice_data();
    void wordsGoBeforeTheUsersChoice();
    void aTypeIsToldToTheStockProviderToo_data();
    void aTypeIsToldToTheStockProviderToo();
    void aKeywordIsSearched();
    void anEmptyKeywordFindsEverything();
    void unknownWordsAreErrors_data();
    void unknownWordsAreErrors();

private:
    static NxResult<ViewChoice> read(const QStringList &words);
};

void tst_ViewChoice::init()
{
    NxMediaLibrarySetting *setting = NxMediaLibrarySetting::instance();
    setting->Save();
    setting->SetSortBy(mctMedia, sbDuration);
    setting->SetSortByOrder(mctMedia, soDESC);
    setting->SetGroupBy(mctMedia, gbType);
    setting->SetGroupByOrder(mctMedia, soDESC);
    setting->SetFilterType(mctMedia, mtfPhoto);
}

void tst_ViewChoice::cleanup()
{
    NxMediaLibrarySetting::instance()->Restore();
}

NxResult<ViewChoice> tst_ViewChoice::read(const QStringList &words)
{
    ProgramArguments arguments{{QStringLiteral("P"), true}};
    for (const QString &word : words)
        arguments.append({word, true});
    const QVector<CommandOption> options = CommandTable::find(QStringLiteral("list"))->options;
    const NxResult<CommandLine> line = CommandLine::parse(arguments, options);
    return line ? ViewChoice::of(*line) : NxResult<ViewChoice>(line.error());
}

void tst_ViewChoice::theUsersChoiceHoldsWhereNothingIsSaid()
{
    const NxResult<ViewChoice> choice = read({});
    QVERIFY2(choice, qPrintable(choice.errorText()));
    QCOMPARE(choice->category, mctMedia);
    QVERIFY((choice->sort == NxMediaItemViewSort{sbDuration, soDESC}));
    QVERIFY((choice->group == NxMediaItemViewGroup{gbType, soDESC, nullptr}));
    NxMediaItemViewFilter photos;
    photos.type = mtfPhoto;
    photos.mediaType = vmtImage;
    QVERIFY(choice->filter == photos);
}

void tst_ViewChoice::eachCategoryHasItsOwnChoice()
{
    NxMediaLibrarySetting::instance()->SetSortBy(mctEffect, sbCategory);
    const NxResult<ViewChoice> choice = read({QStringLiteral("--category=4")});
    QVERIFY2(choice, qPrintable(choice.errorText()));
    QCOMPARE(choice->category, mctEffect);
    QVERIFY((choice->sort == NxMediaItemViewSort{sbCategory, soASC}));
    QVERIFY(choice->group == NxMediaItemViewGroup());
    QVERIFY(choice->filter == NxMediaItemViewFilter());
}

void tst_ViewChoice::wordsGoBeforeTheUsersChoice_data()
{
    QTest::addColumn<QString>("words");
    QTest::addColumn<int>("sort");
    QTest::addColumn<int>("sortOrder");
    QTest::addColumn<int>("group");
    QTest::addColumn<int>("groupOrder");

    QTest::newRow("a sort key begins ascending")
        << "--sort=name" << int(sbName) << int(soASC) << int(gbType) << int(soDESC);
    QTest::newRow("a sort key descending")
        << "--desc --sort=name" << int(sbName) << int(soDESC) << int(gbType) << int(soDESC);
    QTest::newRow("the order alone is turned")
        << "--desc" << int(sbDuration) << int(soASC) << int(gbType) << int(soDESC);
    QTest::newRow("a group key begins ascending")
        << "--group=duration" << int(sbDuration) << int(soDESC) << int(gbDuration) << int(soASC);
    QTest::newRow("a group key descending") << "--group-desc --group=duration" << int(sbDuration)
                                            << int(soDESC) << int(gbDuration) << int(soDESC);
    QTest::newRow("the groups' order alone is turned")
        << "--group-desc" << int(sbDuration) << int(soDESC) << int(gbType) << int(soASC);
    QTest::newRow("nothing of both")
        << "--sort=none --group=none" << int(sbNone) << int(soASC) << int(gbNone) << int(soASC);
}

void tst_ViewChoice::wordsGoBeforeTheUsersChoice()
{
    QFETCH(QString, words);
    QFETCH(int, sort);
    QFETCH(int, sortOrder);
    QFETCH(int, group);
    QFETCH(int, groupOrder);

    const NxResult<ViewChoice> choice = read(words.split(QLatin1Char(' ')));
    QVERIFY2(choice, qPrintable(choice.errorText()));
    QCOMPARE(int(choice->sort.sortBy), sort);
    QCOMPARE(int(choice->sort.order), sortOrder);
    QCOMPARE(int(choice->group.groupBy), group);
    QCOMPARE(int(choice->group.order), groupOrder);
}

void tst_ViewChoice::aTypeIsToldToTheStockProviderToo_data()
{
    QTest::addColumn<QString>("word");
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("mediaType");

    QTest::newRow("all") << "all" << int(mtfAll) << int(vmtNone);
    QTest::newRow("video") << "video" << int(mtfVideo) << int(vmtVideo);
    QTest::newRow("photo") << "photo" << int(mtfPhoto) << int(vmtImage);
    QTest::newRow("audio") << "audio" << int(mtfAudio) << int(vmtAudio);
    QTest::newRow("subtitle") << "subtitle" << int(mtfSubtitle) << int(vmtNone);
    QTest::newRow("paid") << "paid" << int(mtfPaid) << int(vmtNone);
}

void tst_ViewChoice::aTypeIsToldToTheStockProviderToo()
{
    QFETCH(QString, word);
    QFETCH(int, type);
    QFETCH(int, mediaType);

    const NxResult<ViewChoice> choice = read({QStringLiteral("--type"), word});
    QVERIFY2(choice, qPrintable(choice.errorText()));
    QCOMPARE(choice->filter.type, type);
    QCOMPARE(int(choice->filter.mediaType), mediaType);
}

void tst_ViewChoice::aKeywordIsSearched()
{
    const NxResult<ViewChoice> choice = read({QStringLiteral("--search"), QStringLiteral("a b")});
    QVERIFY2(choice, qPrintable(choice.errorText()));
    QCOMPARE(choice->filter.keyword, QStringLiteral("a b"));
    QCOMPARE(choice->filter.searchMode, int(esmKeyword));
}

void tst_ViewChoice::anEmptyKeywordFindsEverything()
{
    const NxResult<ViewChoice> choice = read({QStringLiteral("--search=")});
    QVERIFY2(choice, qPrintable(choice.errorText()));
    QCOMPARE(choice->filter.keyword, QString());
    QCOMPARE(choice->filter.searchMode, int(esmNone));
}

void tst_ViewChoice::unknownWordsAreErrors_data()
{
    QTest::addColumn<QString>("words");
    QTest::addColumn<QString>("begin");

    QTest::newRow("sort") << "--sort=size"
                          << "there is no sort key \"size\", only none, ";
    QTest::newRow("group") << "--group=name"
                           << "there is no group key \"name\", only none, ";
    QTest::newRow("type") << "--type=gif"
                          << "there is no type \"gif\", only all, ";
    QTest::newRow("category") << "--category=11"
                              << "there is no category \"11\", only 0 to 10";
}

void tst_ViewChoice::unknownWordsAreErrors()
{
    QFETCH(QString, words);
    QFETCH(QString, begin);

    const NxResult<ViewChoice> choice = read({words});
    QVERIFY(!choice);
    QVERIFY2(choice.errorText().startsWith(begin), qPrintable(choice.errorText()));
}

NX_TEST_MAIN(tst_ViewChoice)
#include "tst_ViewChoice.moc"
