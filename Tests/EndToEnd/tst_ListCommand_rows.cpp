// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ListYard.h"

#include <Support/NxTestMain.h>

#include <QFile>
#include <QtTest>

namespace {

/// "Blur 1|Blur 2" and so on.
QString numbered(const char *text, int count)
{
    QStringList names;
    for (int number = 1; number <= count; ++number)
        names.append(QString::fromLatin1(text).arg(number));
    return names.join(QLatin1Char('|'));
}

/// Six of each.
QString two(const char *one, const char *other)
{
    return numbered(one, 6) + QLatin1Char('|') + numbered(other, 6);
}

} // namespace

/// list: what its rows say, and what it says of wrong words.
class tst_ListCommand_rows : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void headersAndTilesAreLinesOfTheirOwn();
    void theListViewsColumnsAreShown();
    void columnsAreTheLastKeyOfMedia();
    void bothSectionsFollowEachOther();
    void emptySectionsAndFoldersShowNothing();
    void otherCategoriesListTheirResources_data();
    void otherCategoriesListTheirResources();
    void resourcesTellWhatTheyHave();
    void wrongWordsAreNamed_data();
    void wrongWordsAreNamed();
    void aFolderThatIsNotThereIsTold();
    void missingFilesAreListedInTheirPlace();
    void anyNameStaysOnItsLine();
    void whatIsNoProjectIsTold();

private:
    std::unique_ptr<ListYard> m_yard;
};

void tst_ListCommand_rows::init()
{
    m_yard = std::make_unique<ListYard>();
}

void tst_ListCommand_rows::cleanup()
{
    m_yard->verifyFootage();
    m_yard.reset();
}

void tst_ListCommand_rows::headersAndTilesAreLinesOfTheirOwn()
{
    const ProgramResult result = m_yard->list(QStringLiteral("--group=type|--sort=name"));
    VERIFY_CODE(result, 0);
    const QList<QByteArray> lines = result.lines();
    QCOMPARE(lines.size(), 15);
    QVERIFY2(lines.at(0).startsWith("Folder  Name      Type      "), lines.at(0).constData());
    QCOMPARE(lines.at(1), QByteArray("== Video (2)"));
    QCOMPARE(lines.at(2), QByteArray("[Import Media]"));
    QVERIFY2(lines.at(3).startsWith(".       a.gif     gif       "), lines.at(3).constData());
    QVERIFY2(lines.at(4).startsWith(".       c 10.mp4  video     "), lines.at(4).constData());
    QCOMPARE(lines.at(5), QByteArray("== Photo (1)"));
    QVERIFY2(lines.at(13).startsWith(".       d.srt     subtitle  "), lines.at(13).constData());
    QCOMPARE(lines.at(14), QByteArray("5 media in 1 folder, 20 bytes"));
}

void tst_ListCommand_rows::theListViewsColumnsAreShown()
{
    const ProgramResult result = m_yard->list(QStringLiteral("--columns|--type=video"));
    VERIFY_CODE(result, 0);
    const QList<QByteArray> lines = result.lines();
    QCOMPARE(lines.size(), 5);
    QCOMPARE(lines.at(0),
             QByteArray("Name      Used  Type   Frame Rate  In Point  Out Point  Duration  "
                        "Resolution  Audio Info  Date Created"));
    QCOMPARE(lines.at(1), QByteArray("[Import Media]"));
    QVERIFY2(lines.at(2).startsWith("a.gif     0     gif    -           -         -          -  "
                                    "       -           -           20"),
             lines.at(2).constData());
    QVERIFY2(lines.at(3).startsWith("c 10.mp4  0     video  "), lines.at(3).constData());
    QCOMPARE(lines.at(4), QByteArray("2 media in 1 folder, 8 bytes"));
}

void tst_ListCommand_rows::columnsAreTheLastKeyOfMedia()
{
    const ProgramResult result = m_yard->list(QStringLiteral("--columns|--json|--type=photo"));
    VERIFY_CODE(result, 0);
    QCOMPARE(result.lines().size(), 2);
    QCOMPARE(result.lines().at(0),
             QByteArray(R"({"row":0,"kind":"import","title":"Import Media"})"));
    const QByteArray columns =
        R"("variable_rate":null,"columns":{"Name":"b.jpg","Used":"0","Type":"image",)"
        R"("Frame Rate":null,"In Point":null,"Out Point":null,"Duration":null,)"
        R"("Resolution":null,"Audio Info":null,"Date Created":"20)";
    QVERIFY2(result.lines().at(1).contains(columns), result.lines().at(1).constData());
    QVERIFY2(result.lines().at(1).endsWith("\"}}"), result.lines().at(1).constData());
}

void tst_ListCommand_rows::bothSectionsFollowEachOther()
{
    const QString other = m_yard->folder().write(QStringLiteral("other/Y.mp4"));
    const QString another = m_yard->folder().write(QStringLiteral("other/x.mp4"));
    VERIFY_CODE(m_yard->run("import", {other, another, QStringLiteral("--section=shared")}), 0);
    QCOMPARE(m_yard->rowsOf(QStringLiteral("--type=video")),
             QStringLiteral("[import]|a.gif|c 10.mp4|[import]|x.mp4|Y.mp4"));
    QCOMPARE(m_yard->rowsOf(QStringLiteral("--type=photo")), QStringLiteral("[import]|b.jpg"));
    QCOMPARE(m_yard->rowsOf(QStringLiteral("--section=shared|--desc")),
             QStringLiteral("[import]|Y.mp4|x.mp4"));
    QCOMPARE(m_yard->rowsOf(QStringLiteral("--section=project|--type=video")),
             QStringLiteral("[import]|a.gif|c 10.mp4"));
    const ProgramResult table = m_yard->list(QStringLiteral("--type=video|--group=type"));
    QCOMPARE(table.lines().size(), 10);
    QCOMPARE(table.lines().at(5), QByteArray("== Video (2)"));
    QVERIFY2(table.lines().at(7).startsWith("[shared] .  x.mp4"), table.story().constData());
}

void tst_ListCommand_rows::emptySectionsAndFoldersShowNothing()
{
    VERIFY_CODE(m_yard->run("mkdir", {QStringLiteral("Empty")}), 0);
    const QByteArray nothing("0 media in 0 folders, 0 bytes\n");
    for (const char *rest : {"--folder=Empty", "--folder=Empty|--group=type", "--section=shared",
                             "--section=shared|--columns"}) {
        const ProgramResult result = m_yard->list(QLatin1String(rest));
        VERIFY_CODE(result, 0);
        QCOMPARE(result.output, nothing);
        QCOMPARE(m_yard->rowsOf(QLatin1String(rest)), QString());
    }
}

void tst_ListCommand_rows::otherCategoriesListTheirResources_data()
{
    QTest::addColumn<QString>("category");
    QTest::addColumn<QString>("expected");

    QTest::newRow("sounds") << "1" << two("Calm Loop %1", "Driving Beat %1");
    QTest::newRow("titles") << "2" << two("Lower Third %1", "Opener %1");
    QTest::newRow("transitions") << "3" << two("Dissolve %1", "Wipe %1");
    QTest::newRow("effects") << "4" << two("Blur %1", "Film Look %1");
    QTest::newRow("elements") << "5" << two("Arrow %1", "Sticker %1");
    QTest::newRow("split screens") << "6" << two("Three Pictures %1", "Two Pictures %1");
    QTest::newRow("stock media") << "7" << two("City Clip %1", "Nature Picture %1");
    QTest::newRow("the stock provider's home") << "8" << QString();
    QTest::newRow("the provider's pictures")
        << "8|--folder=Images" << numbered("Stock Picture %1", 6);
    QTest::newRow("a type at the provider") << "8|--folder=Videos|--type=photo" << QString();
    QTest::newRow("the provider's order")
        << "8|--folder=Audio|--type=audio|--desc" << numbered("Stock Track %1", 6);
    QTest::newRow("templates") << "9" << numbered("Travel Template %1", 10);
    QTest::newRow("nothing") << "10" << QString();
    QTest::newRow("another section") << "4|--folder=Downloaded" << numbered("Glow %1", 4);
    QTest::newRow("descending") << "9|--desc|--folder=Downloaded"
                                << "Family Template 4|Family Template 3|Family Template 2"
                                   "|Family Template 1";
    QTest::newRow("groups") << "4|--group=category"
                            << QLatin1String("== Blurs (6)|") + numbered("Blur %1", 6)
                                   + QLatin1String("|== Looks (6)|") + numbered("Film Look %1", 6);
    QTest::newRow("a keyword") << "4|--search=look 3"
                               << "Film Look 3";
    QTest::newRow("a licence") << "4|--type=premium"
                               << "Blur 3|Blur 6|Film Look 3|Film Look 6";
}

void tst_ListCommand_rows::otherCategoriesListTheirResources()
{
    QFETCH(QString, category);
    QFETCH(QString, expected);

    QCOMPARE(m_yard->rowsOf(QStringLiteral("--sort=name|--category=") + category), expected);
}

void tst_ListCommand_rows::resourcesTellWhatTheyHave()
{
    const ProgramResult json =
        m_yard->list(QStringLiteral("--category=4|--sort=name|--json|--columns"));
    VERIFY_CODE(json, 0);
    const QByteArray begin =
        R"({"row":0,"kind":"media","title":"Blur 1","name":"Blur 1","path":null,"section":"All",)"
        R"("folder":"","type":"effect","size":null,"created":null,"missing":false,)"
        R"("unreadable":null,)";
    QVERIFY2(json.lines().at(0).startsWith(begin), json.lines().at(0).constData());
    const QByteArray end =
        R"("columns":{"Name":"Blur 1","Library":"All","Favorite":null,"Category":"Blurs",)"
        R"("Find Similar":null}})";
    QVERIFY2(json.lines().at(0).endsWith(end), json.lines().at(0).constData());

    const ProgramResult table = m_yard->list(QStringLiteral("--category=4|--sort=name|--columns"));
    QCOMPARE(table.lines().size(), 14);
    QCOMPARE(table.lines().at(0),
             QByteArray("Name         Library  Favorite  Category  Find Similar"));
    QCOMPARE(table.lines().at(1), QByteArray("Blur 1       All      -         Blurs     -"));
    QCOMPARE(table.lines().at(13), QByteArray("12 media in 1 folder, 0 bytes"));
}

void tst_ListCommand_rows::wrongWordsAreNamed_data()
{
    QTest::addColumn<QString>("rest");
    QTest::addColumn<QString>("said");

    QTest::newRow("sort") << "--sort=size"
                          << "brevano: there is no sort key \"size\", only none, name, duration, ";
    QTest::newRow("group") << "--group|Type"
                           << "brevano: there is no group key \"Type\", only none, type, ";
    QTest::newRow("type") << "--type=gif"
                          << "brevano: there is no type \"gif\", only all, video, photo, ";
    QTest::newRow("a category too far") << "--category=11"
                                        << "brevano: there is no category \"11\", only 0 to 10 ";
    QTest::newRow("a category below") << "--category=-1"
                                      << "brevano: there is no category \"-1\", only 0 to 10 ";
    QTest::newRow("a category's name") << "--category=media"
                                       << "brevano: there is no category \"media\", only 0 to 10 ";
    QTest::newRow("a section of a category")
        << "--category=4|--section=project"
        << "brevano: --section is for the project's own media; in category 4 ";
    QTest::newRow("a key is missing") << "--sort"
                                      << "brevano: list: --sort needs a KEY ";
    QTest::newRow("a value too much") << "--desc=yes"
                                      << "brevano: list: --desc takes no value ";
}

void tst_ListCommand_rows::wrongWordsAreNamed()
{
    QFETCH(QString, rest);
    QFETCH(QString, said);

    const ProgramResult result = m_yard->list(rest);
    VERIFY_CODE(result, 2);
    QCOMPARE(result.output, QByteArray());
    QVERIFY2(result.errors.startsWith(said.toUtf8()), result.story().constData());
}

void tst_ListCommand_rows::aFolderThatIsNotThereIsTold()
{
    const ProgramResult section = m_yard->list(QStringLiteral("--category=4|--folder=Mine"));
    VERIFY_CODE(section, 1);
    QVERIFY2(section.said("Mine: the category has no such section, only All, Favorites, "
                          "Downloaded"),
             section.story().constData());
    const ProgramResult folder = m_yard->list(QStringLiteral("--category=4|--folder=All/Mine"));
    VERIFY_CODE(folder, 1);
    QVERIFY2(folder.said("All/Mine: the category has no such folder"), folder.story().constData());
}

void tst_ListCommand_rows::missingFilesAreListedInTheirPlace()
{
    QVERIFY(QFile::remove(m_yard->footage(QStringLiteral("b.jpg"))));
    const ProgramResult json = m_yard->list(QStringLiteral("--json|--group=type|--sort=name"));
    VERIFY_CODE(json, 0);
    const QVector<QJsonObject> media = Yard::mediaOf(json);
    QCOMPARE(media.size(), 5);
    for (const QJsonObject &one : media) {
        const bool isGone = one.value(QLatin1String("name")) == QLatin1String("b.jpg");
        QCOMPARE(one.value(QLatin1String("missing")), QJsonValue(isGone));
    }
    for (const char *rest : {"--type=photo", "--type=photo|--columns"}) {
        const ProgramResult table = m_yard->list(QLatin1String(rest));
        VERIFY_CODE(table, 0);
        QVERIFY2(table.lines().at(2).endsWith("  missing"), table.story().constData());
        QVERIFY2(table.output.endsWith(", 1 missing\n"), table.story().constData());
    }
    m_yard->watchFootage();
}

void tst_ListCommand_rows::anyNameStaysOnItsLine()
{
    const QString name = QString::fromUtf8("🎉 one\ntwo\x1b[2J.mp4");
    const QString clip = m_yard->folder().write(QStringLiteral("odd/") + name);
    VERIFY_CODE(m_yard->run("import", {clip}), 0);
    QCOMPARE(m_yard->rowsOf(QString::fromUtf8("--search=🎉 one")),
             QStringLiteral("[import]|") + name);
    for (const char *columns : {"--search=two", "--search=two|--columns"}) {
        const ProgramResult table = m_yard->list(QLatin1String(columns));
        VERIFY_CODE(table, 0);
        QCOMPARE(table.lines().size(), 4);
        QVERIFY2(table.lines().at(2).contains("🎉 one\\ntwo\\x1b[2J.mp4"),
                 table.story().constData());
        QVERIFY(!table.output.contains('\x1b'));
    }
}

void tst_ListCommand_rows::whatIsNoProjectIsTold()
{
    m_yard->folder().write(QStringLiteral("Letter.brevano"), "Dear all,");
    const ProgramResult result =
        ProgramRun::run({QStringLiteral("list"), m_yard->path(QStringLiteral("Letter.brevano")),
                         QStringLiteral("--group=type"), QStringLiteral("--json")});
    VERIFY_CODE(result, 4);
    QVERIFY2(result.said("Letter.brevano: "), result.story().constData());
    QCOMPARE(result.output, QByteArray());
}

NX_TEST_MAIN(tst_ListCommand_rows)
#include "tst_ListCommand_rows.moc"
