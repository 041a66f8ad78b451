// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/WindowMemory.h>
#include <NxCore/NxIniSettingsStore.h>
#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <QDockWidget>
#include <QHeaderView>
#include <QMainWindow>
#include <QScreen>
#include <QSplitter>
#include <QStandardItemModel>
#include <QTableView>
#include <QtTest>

using namespace NXVBLMODEL;

namespace {

const QString List = QStringLiteral("list");
const QString Film = QStringLiteral("/projects/film.brevano");

/// Two panes side by side, 400 pixels wide.
struct Panes
{
    Panes()
    {
        splitter.addWidget(new QWidget);
        splitter.addWidget(new QWidget);
        splitter.setHandleWidth(0);
        splitter.resize(400, 100);
        splitter.show();
        splitter.setSizes({200, 200});
    }

    QSplitter splitter;
};

/// A table of three columns.
struct Table
{
    explicit Table(int columns = 3) : model(1, columns) { view.setModel(&model); }

    QStandardItemModel model;
    QTableView view;
};

} // namespace

class tst_WindowMemory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void theWindowComesBackWithItsPlaceAndDocks();
    void aWindowOutsideAllScreensIsBroughtBack();
    void aWindowThatWasNeverSeenIsLeftAsItIs();
    void panesComeBackAsWideAsTheyWere();
    void widthsThatDoNotFitAreLeftAlone_data();
    void widthsThatDoNotFitAreLeftAlone();
    void columnsComeBackInTheirOrder();
    void columnsOfAnotherTableAreLeftAlone();
    void spoiltBlobsCountAsNone_data();
    void spoiltBlobsCountAsNone();
    void aBlobWithOneWrongLetterCountsAsNone();
    void shownPartsAreRemembered_data();
    void shownPartsAreRemembered();
    void theSkinIsRemembered();
    void theLanguageIsRemembered();
    void recentProjectsAreTheLatestFirst();
    void onlyTheLatestTenAreRecent();
    void aProjectCanBeForgotten();
    void spoiltRecentProjectsAreLeftOut();
    void eachCategoryOfEachProjectHasItsFolder();
    void openFoldersAreRemembered();
    void onlyTheLatestProjectsAreKnown();
    void spoiltProjectsCountAsNone_data();
    void spoiltProjectsCountAsNone();
    void stepsThroughFoldersAreWrittenOnceTheyPause();
    void whatWaitsIsWrittenAtTheEnd();
    void everythingSurvivesInAFile();

private:
    void store(const char *key, const QVariant &value);
    QVariant stored(const char *key) const;
    std::unique_ptr<WindowMemory> again();

    NxTempDir m_dir;
    QString m_file;
    std::unique_ptr<WindowMemory> m_memory;
};

void tst_WindowMemory::init()
{
    m_memory.reset();
    m_file =
        m_dir.filePath(QString::fromLatin1(QTest::currentTestFunction())
                       + QString::fromLatin1(QTest::currentDataTag()) + QStringLiteral(".ini"));
    m_memory = again();
}

// A new start of the program, with the same file.
std::unique_ptr<WindowMemory> tst_WindowMemory::again()
{
    return std::make_unique<WindowMemory>(std::make_unique<NxIniSettingsStore>(m_file));
}

void tst_WindowMemory::store(const char *key, const QVariant &value)
{
    NxIniSettingsStore(m_file).setValue(QLatin1String(key), value);
}

QVariant tst_WindowMemory::stored(const char *key) const
{
    return NxIniSettingsStore(m_file).value(QLatin1String(key));
}

void tst_WindowMemory::theWindowComesBackWithItsPlaceAndDocks()
{
    const auto fill = [](QMainWindow *window) {
        auto *dock = new QDockWidget(window);
        dock->setObjectName(QStringLiteral("dock"));
        window->addDockWidget(Qt::LeftDockWidgetArea, dock);
        return dock;
    };
    QMainWindow before;
    before.addDockWidget(Qt::RightDockWidgetArea, fill(&before));
    before.setGeometry(30, 40, 300, 200);
    m_memory->saveWindow(before);

    QMainWindow after;
    QDockWidget *dock = fill(&after);
    QVERIFY(again()->restoreWindow(&after));
    QCOMPARE(after.geometry(), QRect(30, 40, 300, 200));
    QCOMPARE(after.dockWidgetArea(dock), Qt::RightDockWidgetArea);
}

void tst_WindowMemory::aWindowOutsideAllScreensIsBroughtBack()
{
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    QMainWindow before;
    before.setGeometry(QRect(screen.bottomRight() + QPoint(5000, 5000), QSize(300, 200)));
    m_memory->saveWindow(before);

    QMainWindow after;
    QVERIFY(again()->restoreWindow(&after));
    QVERIFY(screen.contains(after.geometry()));
    QCOMPARE(after.size(), QSize(300, 200));
}

void tst_WindowMemory::aWindowThatWasNeverSeenIsLeftAsItIs()
{
    QMainWindow window;
    window.setGeometry(30, 40, 300, 200);
    QVERIFY(!m_memory->restoreWindow(&window));
    QCOMPARE(window.geometry(), QRect(30, 40, 300, 200));
}

void tst_WindowMemory::panesComeBackAsWideAsTheyWere()
{
    Panes before;
    before.splitter.setSizes({120, 280});
    m_memory->saveSplitter(List, before.splitter);

    Panes after;
    QVERIFY(again()->restoreSplitter(List, &after.splitter));
    QCOMPARE(after.splitter.sizes(), (QList<int>{120, 280}));
    QVERIFY(!m_memory->restoreSplitter(QStringLiteral("other"), &after.splitter));
}

void tst_WindowMemory::widthsThatDoNotFitAreLeftAlone_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("none") << QVariant();
    QTest::newRow("too few") << QVariant(QStringLiteral("100"));
    QTest::newRow("too many") << QVariant(QStringLiteral("100 100 100"));
    QTest::newRow("words") << QVariant(QStringLiteral("wide narrow"));
    QTest::newRow("negative") << QVariant(QStringLiteral("-5 300"));
    QTest::newRow("huge") << QVariant(QStringLiteral("2000000000 2000000000"));
    QTest::newRow("nothing to see") << QVariant(QStringLiteral("0 0"));
    QTest::newRow("another type") << QVariant(QStringList{QStringLiteral("100"), List});
}

void tst_WindowMemory::widthsThatDoNotFitAreLeftAlone()
{
    QFETCH(const QVariant, value);
    store("Window/Splitter_list", value);
    Panes panes;
    QVERIFY(!again()->restoreSplitter(List, &panes.splitter));
    QCOMPARE(panes.splitter.sizes(), (QList<int>{200, 200}));
}

void tst_WindowMemory::columnsComeBackInTheirOrder()
{
    Table before;
    before.view.horizontalHeader()->moveSection(2, 0);
    before.view.setColumnWidth(1, 77);
    before.view.setColumnHidden(0, true);
    m_memory->saveHeader(List, *before.view.horizontalHeader());

    Table after;
    QVERIFY(again()->restoreHeader(List, after.view.horizontalHeader()));
    QCOMPARE(after.view.horizontalHeader()->visualIndex(2), 0);
    QCOMPARE(after.view.columnWidth(1), 77);
    QVERIFY(after.view.isColumnHidden(0));
}

void tst_WindowMemory::columnsOfAnotherTableAreLeftAlone()
{
    Table before;
    before.view.setColumnWidth(1, 77);
    m_memory->saveHeader(List, *before.view.horizontalHeader());
    Table after(4);
    QVERIFY(!m_memory->restoreHeader(List, after.view.horizontalHeader()));
    QVERIFY(after.view.columnWidth(1) != 77);
}

void tst_WindowMemory::spoiltBlobsCountAsNone_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("number") << QVariant(17);
    QTest::newRow("text") << QVariant(QStringLiteral("3 state"));
    QTest::newRow("wrong sum") << QVariant(QStringLiteral("1:") + QLatin1String("MyBzdGF0ZQ=="));
    QTest::newRow("no sum") << QVariant(QStringLiteral(":MyBzdGF0ZQ=="));
    QTest::newRow("list") << QVariant(QStringList{List, List});
    QTest::newRow("bytes") << QVariant(QByteArray("\xff\0\x01", 3));
}

void tst_WindowMemory::spoiltBlobsCountAsNone()
{
    QFETCH(const QVariant, value);
    for (const char *key : {"Window/Geometry", "Window/State", "Window/Header_list"})
        store(key, value);
    QMainWindow window;
    const QRect geometry = window.geometry();
    Table table;
    const QByteArray state = table.view.horizontalHeader()->saveState();
    QVERIFY(!again()->restoreWindow(&window));
    QVERIFY(!again()->restoreHeader(List, table.view.horizontalHeader()));
    QCOMPARE(window.geometry(), geometry);
    QCOMPARE(table.view.horizontalHeader()->saveState(), state);
}

void tst_WindowMemory::aBlobWithOneWrongLetterCountsAsNone()
{
    Table before;
    before.view.setColumnWidth(1, 77);
    m_memory->saveHeader(List, *before.view.horizontalHeader());
    QString blob = stored("Window/Header_list").toString();
    const int place = blob.size() - 8;
    blob[place] = QLatin1Char(blob.at(place) == QLatin1Char('A') ? 'B' : 'A');
    store("Window/Header_list", blob);
    Table after;
    QVERIFY(!again()->restoreHeader(List, after.view.horizontalHeader()));
    QVERIFY(after.view.columnWidth(1) != 77);
}

void tst_WindowMemory::shownPartsAreRemembered_data()
{
    QTest::addColumn<int>("part");
    QTest::addColumn<QString>("key");
    QTest::addColumn<bool>("atFirst");
    QTest::newRow("folders") << int(WindowMemory::Part::Folders)
                             << QStringLiteral("Window/FoldersShown") << true;
    QTest::newRow("info") << int(WindowMemory::Part::Info) << QStringLiteral("Window/InfoShown")
                          << true;
    QTest::newRow("report") << int(WindowMemory::Part::Report)
                            << QStringLiteral("Window/ReportShown") << false;
}

void tst_WindowMemory::shownPartsAreRemembered()
{
    QFETCH(const int, part);
    QFETCH(const QString, key);
    QFETCH(const bool, atFirst);
    const auto which = WindowMemory::Part(part);
    QCOMPARE(m_memory->isShown(which), atFirst);
    m_memory->setShown(which, !atFirst);
    QCOMPARE(again()->isShown(which), !atFirst);
    store(qPrintable(key), QStringLiteral("perhaps"));
    QCOMPARE(again()->isShown(which), atFirst);
}

void tst_WindowMemory::theSkinIsRemembered()
{
    QCOMPARE(m_memory->skin(), NxSkin::Dark);
    m_memory->setSkin(NxSkin::Light);
    QCOMPARE(again()->skin(), NxSkin::Light);
    store("Window/Skin", 12);
    QCOMPARE(again()->skin(), NxSkin::Dark);
}

void tst_WindowMemory::theLanguageIsRemembered()
{
    QCOMPARE(m_memory->language(), QString());
    m_memory->setLanguage(QStringLiteral("de"));
    QCOMPARE(again()->language(), QStringLiteral("de"));
}

void tst_WindowMemory::recentProjectsAreTheLatestFirst()
{
    m_memory->noteRecent(QStringLiteral("/a"));
    m_memory->noteRecent(QStringLiteral("/b"));
    m_memory->noteRecent(QStringLiteral("/x/../a"));
    QCOMPARE(again()->recentProjects(), (QStringList{QStringLiteral("/a"), QStringLiteral("/b")}));
}

void tst_WindowMemory::onlyTheLatestTenAreRecent()
{
    for (int i = 1; i <= 12; ++i)
        m_memory->noteRecent(QStringLiteral("/%1").arg(i));
    const QStringList recent = m_memory->recentProjects();
    QCOMPARE(recent.size(), 10);
    QCOMPARE(recent.first(), QStringLiteral("/12"));
    QCOMPARE(recent.last(), QStringLiteral("/3"));
}

void tst_WindowMemory::aProjectCanBeForgotten()
{
    for (const char *path : {"/a", "/b"})
        m_memory->noteRecent(QLatin1String(path));
    m_memory->forgetRecent(QStringLiteral("/b"));
    QCOMPARE(again()->recentProjects(), QStringList(QStringLiteral("/a")));
    m_memory->clearRecent();
    QCOMPARE(again()->recentProjects(), QStringList());
}

void tst_WindowMemory::spoiltRecentProjectsAreLeftOut()
{
    store("Window/RecentProjects", QStringList{QString(), QStringLiteral("relative"),
                                               QStringLiteral("/a"), QStringLiteral("/a")});
    QCOMPARE(again()->recentProjects(), QStringList(QStringLiteral("/a")));
    store("Window/RecentProjects", 5);
    QCOMPARE(again()->recentProjects(), QStringList());
}

void tst_WindowMemory::eachCategoryOfEachProjectHasItsFolder()
{
    const QString other = QStringLiteral("/projects/other.brevano");
    m_memory->setFolder(Film, mctMedia, QStringLiteral("17"));
    m_memory->setFolder(Film, mctAudio, QStringLiteral("21"));
    m_memory->setFolder(other, mctMedia, QStringLiteral("5"));
    m_memory->setCategory(Film, mctAudio);
    m_memory->flush();

    const auto after = again();
    QCOMPARE(after->folder(Film, mctMedia), QStringLiteral("17"));
    QCOMPARE(after->folder(Film, mctAudio), QStringLiteral("21"));
    QCOMPARE(after->folder(Film, mctTitle), QString());
    QCOMPARE(after->folder(other, mctMedia), QStringLiteral("5"));
    QCOMPARE(after->category(Film), mctAudio);
    QCOMPARE(after->category(other), mctMedia);
}

void tst_WindowMemory::openFoldersAreRemembered()
{
    const QStringList open{QStringLiteral("4"), QStringLiteral("äöü, \"x\"")};
    m_memory->setExpandedFolders(Film, mctMedia, open);
    m_memory->flush();
    QVERIFY(again()->expandedFolders(Film, mctMedia) == open);
    QVERIFY(!again()->expandedFolders(Film, mctAudio));
    m_memory->setExpandedFolders(Film, mctMedia, {}); // All of them are folded.
    m_memory->flush();
    QVERIFY(again()->expandedFolders(Film, mctMedia) == QStringList());
}

void tst_WindowMemory::onlyTheLatestProjectsAreKnown()
{
    const auto path = [](int number) { return QStringLiteral("/%1").arg(number); };
    for (int i = 0; i < WindowMemory::MostProjects; ++i)
        m_memory->setFolder(path(i), mctMedia, QStringLiteral("1"));
    m_memory->setFolder(path(0), mctMedia, QStringLiteral("2"));
    m_memory->setFolder(Film, mctMedia, QStringLiteral("3"));
    QCOMPARE(m_memory->folder(path(1), mctMedia), QString());
    m_memory->flush();
    const auto after = again();
    QCOMPARE(after->folder(path(0), mctMedia), QStringLiteral("2"));
    QCOMPARE(after->folder(path(1), mctMedia), QString());
    QCOMPARE(after->folder(path(2), mctMedia), QStringLiteral("1"));
    QCOMPARE(after->folder(Film, mctMedia), QStringLiteral("3"));
}

void tst_WindowMemory::spoiltProjectsCountAsNone_data()
{
    QTest::addColumn<QVariant>("value");
    const QString object = QStringLiteral("[{\"path\":\"/projects/film.brevano\",%1}]");
    QTest::newRow("number") << QVariant(4);
    QTest::newRow("cut off") << QVariant(QStringLiteral("[{\"path\":\"/proj"));
    QTest::newRow("no list") << QVariant(QStringLiteral("{\"path\":1}"));
    QTest::newRow("no objects") << QVariant(QStringLiteral("[1,null,\"x\",[]]"));
    QTest::newRow("no path") << QVariant(QStringLiteral("[{\"category\":1}]"));
    QTest::newRow("wrong fields") << QVariant(
        object.arg(QStringLiteral("\"category\":\"x\",\"folders\":[1],\"expanded\":{\"0\":{}}")));
    QTest::newRow("no such category") << QVariant(object.arg(QStringLiteral("\"category\":11")));
    QTest::newRow("negative category") << QVariant(object.arg(QStringLiteral("\"category\":-1")));
    QTest::newRow("no texts") << QVariant(
        object.arg(QStringLiteral("\"folders\":{\"0\":7},\"expanded\":{\"0\":[7,null]}")));
}

void tst_WindowMemory::spoiltProjectsCountAsNone()
{
    QFETCH(const QVariant, value);
    store("Window/Projects", value);
    const auto after = again();
    QCOMPARE(after->category(Film), mctMedia);
    QCOMPARE(after->folder(Film, mctMedia), QString());
    QVERIFY(!after->expandedFolders(Film, mctMedia));
    after->setFolder(Film, mctMedia, QStringLiteral("9"));
    after->flush();
    QCOMPARE(again()->folder(Film, mctMedia), QStringLiteral("9"));
}

void tst_WindowMemory::stepsThroughFoldersAreWrittenOnceTheyPause()
{
    for (int i = 0; i < 5; ++i)
        m_memory->setFolder(Film, mctMedia, QString::number(i));
    QVERIFY(!stored("Window/Projects").isValid());
    QTRY_VERIFY(stored("Window/Projects").isValid());
    QCOMPARE(again()->folder(Film, mctMedia), QStringLiteral("4"));
}

void tst_WindowMemory::whatWaitsIsWrittenAtTheEnd()
{
    m_memory->setFolder(Film, mctMedia, QStringLiteral("8"));
    m_memory.reset();
    QCOMPARE(again()->folder(Film, mctMedia), QStringLiteral("8"));
}

void tst_WindowMemory::everythingSurvivesInAFile()
{
    m_memory->noteRecent(QStringLiteral("/path, with \"marks\"; and = 中文.brevano"));
    m_memory.reset();
    QCOMPARE(again()->recentProjects(),
             QStringList(QStringLiteral("/path, with \"marks\"; and = 中文.brevano")));
}

NX_TEST_MAIN_WIDGETS(tst_WindowMemory)
#include "tst_WindowMemory.moc"
