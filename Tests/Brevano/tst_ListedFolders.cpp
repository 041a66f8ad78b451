// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "FakeLibrary.h"

#include <Brevano/commands/CommandLine.h>
#include <Brevano/commands/CommandTable.h>
#include <Brevano/commands/ListedFolders.h>
#include <Support/NxTestMain.h>

#include <QtTest>

using namespace NXVBLMODEL;

class tst_ListedFolders : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void wordsNameTheFolders_data();
    void wordsNameTheFolders();
    void whatIsNotThereIsAnError_data();
    void whatIsNotThereIsAnError();
    void aSectionIsNamedForTheProjectAlone();

private:
    static CommandLine lineOf(const QStringList &words);

    std::unique_ptr<FakeFolders> m_media;
    std::unique_ptr<FakeFolders> m_resources;
};

CommandLine tst_ListedFolders::lineOf(const QStringList &words)
{
    ProgramArguments arguments{{QStringLiteral("P"), true}};
    for (const QString &word : words)
        arguments.append({word, true});
    const QVector<CommandOption> options = CommandTable::find(QStringLiteral("list"))->options;
    return *CommandLine::parse(arguments, options);
}

void tst_ListedFolders::init()
{
    m_media = std::make_unique<FakeFolders>();
    FakeFolder *project = m_media->root.addFolder(QStringLiteral("Project Media"), fkProject);
    project->addFolder(QStringLiteral("AC/DC"))->addFolder(QStringLiteral("Raw"));
    FakeFolder *shared = m_media->root.addFolder(QStringLiteral("Shared Media"), fkShared);
    shared->addFolder(QStringLiteral("Raw"));

    m_resources = std::make_unique<FakeFolders>();
    FakeFolder *all = m_resources->root.addFolder(QStringLiteral("All"), fkUserSection);
    all->addFolder(QString::fromUtf8("🎉 Mine/2"), fkCustom)->addFolder(QStringLiteral("Raw"));
    m_resources->root.addFolder(QStringLiteral("Favorites"), fkFavourites);
}

void tst_ListedFolders::wordsNameTheFolders_data()
{
    QTest::addColumn<int>("category");
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QString>("names");

    const auto words = [](const char *text) {
        return QString::fromUtf8(text).split(QLatin1Char('|'), Qt::SkipEmptyParts);
    };
    const int media = mctMedia;
    const int effect = mctEffect;
    QTest::newRow("all sections") << media << words("") << "Project Media, Shared Media";
    QTest::newRow("a section") << media << words("--section=shared") << "Shared Media";
    QTest::newRow("a folder of the project") << media << words("--folder=AC\\/DC/Raw") << "Raw";
    QTest::newRow("the section as an empty path") << media << words("--folder=") << "Project Media";
    QTest::newRow("a folder of the other section")
        << media << words("--folder|Raw|--section|shared") << "Raw";
    QTest::newRow("resources begin in a section") << effect << words("") << "All";
    QTest::newRow("the same as a path") << effect << words("--folder=/") << "All";
    QTest::newRow("a section of resources") << effect << words("--folder=Favorites") << "Favorites";
    QTest::newRow("a folder of resources")
        << effect << words("--folder=All/🎉 Mine\\/2/Raw") << "Raw";
}

void tst_ListedFolders::wordsNameTheFolders()
{
    QFETCH(int, category);
    QFETCH(QStringList, words);
    QFETCH(QString, names);

    const CommandLine line = lineOf(words);
    const auto type = NxMediaCategoryType(category);
    QCOMPARE(ListedFolders::fault(line, type), QString());
    FakeFolders *folders = category == mctMedia ? m_media.get() : m_resources.get();
    const NxResult<QList<INxFolderMedia *>> chosen = ListedFolders::chosen(line, type, folders);
    QVERIFY2(chosen, qPrintable(chosen.errorText()));
    QStringList found;
    for (const INxFolderMedia *folder : *chosen)
        found.append(folder->name());
    QCOMPARE(found.join(QLatin1String(", ")), names);
}

void tst_ListedFolders::whatIsNotThereIsAnError_data()
{
    QTest::addColumn<int>("category");
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("expected");

    QTest::newRow("a folder") << int(mctMedia) << "AC/DC"
                              << "AC/DC: the project has no such folder";
    QTest::newRow("a section") << int(mctTitle) << "Mine/Raw"
                               << "Mine: the category has no such section, only All, Favorites";
    QTest::newRow("a folder of a section") << int(mctTitle) << "All/Raw"
                                           << "All/Raw: the category has no such folder";
}

void tst_ListedFolders::whatIsNotThereIsAnError()
{
    QFETCH(int, category);
    QFETCH(QString, folder);
    QFETCH(QString, expected);

    FakeFolders *folders = category == mctMedia ? m_media.get() : m_resources.get();
    const NxResult<QList<INxFolderMedia *>> chosen = ListedFolders::chosen(
        lineOf({QStringLiteral("--folder"), folder}), NxMediaCategoryType(category), folders);
    QCOMPARE(chosen.errorText(), expected);
}

void tst_ListedFolders::aSectionIsNamedForTheProjectAlone()
{
    const CommandLine shared = lineOf({QStringLiteral("--section=shared")});
    QCOMPARE(ListedFolders::fault(shared, mctMedia), QString());
    QCOMPARE(ListedFolders::fault(shared, mctTransition),
             QStringLiteral("--section is for the project's own media; in category 3 the first "
                            "name of --folder is the section"));
    QVERIFY(!ListedFolders::fault(lineOf({QStringLiteral("--section=x")}), mctMedia).isEmpty());
}

NX_TEST_MAIN(tst_ListedFolders)
#include "tst_ListedFolders.moc"
