// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaViews/NxMediaNotice.h>

#include <NxMediaLibrary/LibraryStand.h>
#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemModel.h>
#include <NxMediaLibrary/PanelList.h>
#include <NxMediaLibrary/PanelYard.h>
#include <NxMediaLibrary/TextLines.h>
#include <NxWidgets/NxSkinStyle.h>
#include <Support/NxBracketLanguage.h>
#include <Support/NxTestMain.h>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QSignalSpy>
#include <QTest>
#include <QWindow>

using namespace NXMEDIALIBRARY;
using namespace NXVBLMODEL;
using Items = NxMediaItemManagerPresenter;
using Reason = NxMediaNotice::Reason;

namespace {

QString textOf(const NxMediaNotice &notice, const char *label)
{
    return notice.findChild<QLabel *>(QLatin1String(label))->text();
}

QPushButton *buttonOf(const NxMediaNotice &notice, const char *name)
{
    return notice.findChild<QPushButton *>(QLatin1String(name));
}

/// Counts what the mouse does to a widget.
class MouseListener : public QObject
{
public:
    explicit MouseListener(QWidget *widget) { widget->installEventFilter(this); }
    bool eventFilter(QObject *, QEvent *event) override
    {
        presses += event->type() == QEvent::MouseButtonPress;
        return false;
    }
    int presses = 0;
};

/// The panel with a notice over its list. "Clear" takes the filters away.
struct Panel : PanelYard
{
    Panel()
    {
        notice->follow(items(), panel->model());
        QObject::connect(notice, &NxMediaNotice::sigClearWanted, notice, [this] {
            items()->setFilterType(mtfAll);
            items()->setFilterKeyword(QString(), esmKeyword);
        });
        panel->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(panel.get()));
    }

    NxMediaNotice *const notice = new NxMediaNotice(panel->list());
};

/// A scripted category, and a notice over an empty scroll area about what it shows.
struct Shown : LibraryStand
{
    Shown()
    {
        model.setSortEnable(true);
        model.subscribeMediaItemManager(&category.items);
        notice->follow(items, &model);
    }
    void show(ScriptedItemFolder *folder)
    {
        items->setFolder(folder);
        model.setFilter(items->getFilter());
        model.load(folder);
    }

    ScriptedCategory &category = library[mctAudio];
    Items *const items = presenter.getMediaCategoryPresenter(mctAudio)->mediaItemManagerPresenter();
    NxMediaItemModel model{mctAudio, nullptr};
    QScrollArea area;
    NxMediaNotice *const notice = new NxMediaNotice(&area);
};

} // namespace

/// What a view says when it shows no media.
class tst_NxMediaNotice : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { NxSkinStyle::instance()->setSkin(NxSkin::Dark); }
    void cleanup() { NxSkinStyle::instance()->setSkin(NxSkin::Dark); }
    void anEmptyFolderAsksForFiles();
    void theNoticeGoesWhenMediaComeAndComesBackInAnEmptyFolder();
    void theNoticeSaysWhatIsFilteredOut_data();
    void theNoticeSaysWhatIsFilteredOut();
    void anEmptyFolderIsEmptyWhateverTheFilterIs();
    void clearShowsTheMediaAgain();
    void noFolderIsNoEmptyFolder();
    void aFolderThatTakesNoFilesOffersNoImport();
    void loadingIsSaidWhileAServiceDelivers();
    void aFailureIsSaidOfItsFolderAlone();
    void searchesFindNothing_data();
    void searchesFindNothing();
    void theMouseReachesTheView();
    void whatIsDroppedReachesTheView();
    void theNoticeIsAsLargeAsTheViewport();
    void everyWordIsShown();
    void theKeyboardGoesToTheViewWhenItsButtonGoes();
    void whatIsFollowedMayDie();
    void nothingIsSaidOfNobody();
    void coloursFollowTheSkin();
    void textsFollowTheLanguage();
    void namesAreShownAsTheyAre();
};

void tst_NxMediaNotice::anEmptyFolderAsksForFiles()
{
    const Panel panel;
    QCOMPARE(panel.notice->reason(), Reason::EmptyFolder);
    QVERIFY(panel.notice->isVisible());
    QCOMPARE(textOf(*panel.notice, "title"), QStringLiteral("This folder is empty"));
    QCOMPARE(textOf(*panel.notice, "sentence"), QStringLiteral("Drop files here or import them."));
    QVERIFY(!buttonOf(*panel.notice, "clear")->isVisible());
    QSignalSpy wanted(panel.notice, &NxMediaNotice::sigImportWanted);
    QTest::mouseClick(buttonOf(*panel.notice, "import"), Qt::LeftButton);
    QCOMPARE(wanted.count(), 1);
}

void tst_NxMediaNotice::theNoticeGoesWhenMediaComeAndComesBackInAnEmptyFolder()
{
    const Panel panel;
    panel.add(lines({"a.mov"}));
    QTRY_VERIFY(!panel.notice->isVisible());
    QCOMPARE(panel.notice->reason(), Reason::Nothing);
    panel.pick(panel.addFolder(QStringLiteral("other")));
    QTRY_VERIFY(panel.notice->isVisible());
    QCOMPARE(panel.notice->reason(), Reason::EmptyFolder);
}

void tst_NxMediaNotice::theNoticeSaysWhatIsFilteredOut_data()
{
    QTest::addColumn<NxMediaTypeFilter>("type");
    QTest::addColumn<QString>("keyword");
    QTest::addColumn<QString>("sentence");
    const auto row = [](NxMediaTypeFilter type, const char *keyword, const char *sentence) {
        QTest::newRow(sentence) << type << QString::fromUtf8(keyword)
                                << QString::fromUtf8(sentence);
    };
    row(mtfAll, "abc", "Nothing here has a name that holds \"abc\".");
    row(mtfPhoto, "", "Nothing here is a photo.");
    row(mtfPhoto, "abc", "Nothing here is a photo whose name holds \"abc\".");
    row(mtfVideo, "abc", "Nothing here is a video whose name holds \"abc\".");
    row(mtfAudio, "", "Nothing here is audio.");
    row(mtfAudio, "abc", "Nothing here is audio whose name holds \"abc\".");
    row(mtfSubtitle, "", "Nothing here is a subtitle.");
    row(mtfSubtitle, "%1", "Nothing here is a subtitle whose name holds \"%1\".");
    row(mtfPremium, "", "Nothing here passes the filter.");
    row(mtfPremium, "abc", "Nothing here passes the filter with \"abc\" in its name.");
}

void tst_NxMediaNotice::theNoticeSaysWhatIsFilteredOut()
{
    QFETCH(const NxMediaTypeFilter, type);
    QFETCH(const QString, keyword);
    const Panel panel;
    panel.add(lines({"a.mov"}));
    panel.items()->setFilterType(type);
    panel.items()->setFilterKeyword(keyword, esmKeyword);
    QTRY_COMPARE(panel.notice->reason(), Reason::FilteredOut);
    QTEST(textOf(*panel.notice, "sentence"), "sentence");
    QVERIFY(buttonOf(*panel.notice, "clear")->isVisible());
    QVERIFY(!buttonOf(*panel.notice, "import")->isVisible());
}

void tst_NxMediaNotice::anEmptyFolderIsEmptyWhateverTheFilterIs()
{
    const Panel panel;
    panel.items()->setFilterKeyword(QStringLiteral("abc"), esmKeyword);
    QCOMPARE(NxMediaNotice::reasonFor(*panel.items(), *panel.panel->model()), Reason::EmptyFolder);
}

void tst_NxMediaNotice::clearShowsTheMediaAgain()
{
    const Panel panel;
    panel.add(lines({"a.mov"}));
    panel.items()->setFilterType(mtfAudio);
    panel.items()->setFilterKeyword(QStringLiteral("abc"), esmKeyword);
    QTRY_COMPARE(panel.notice->reason(), Reason::FilteredOut);
    QTest::mouseClick(buttonOf(*panel.notice, "clear"), Qt::LeftButton);
    QCOMPARE(panel.rows(), lines({"a.mov"}));
    QTRY_VERIFY(!panel.notice->isVisible());
}

void tst_NxMediaNotice::noFolderIsNoEmptyFolder()
{
    const Shown shown;
    QCOMPARE(shown.notice->reason(), Reason::NoFolder);
    QCOMPARE(textOf(*shown.notice, "title"), QStringLiteral("No folder is shown"));
    QVERIFY(buttonOf(*shown.notice, "import")->isHidden());
}

void tst_NxMediaNotice::aFolderThatTakesNoFilesOffersNoImport()
{
    Shown shown;
    shown.show(shown.category.section);
    QTRY_COMPARE(shown.notice->reason(), Reason::EmptyFolderNoImport);
    QVERIFY(buttonOf(*shown.notice, "import")->isHidden());
    QVERIFY(buttonOf(*shown.notice, "clear")->isHidden());
}

void tst_NxMediaNotice::loadingIsSaidWhileAServiceDelivers()
{
    Shown shown;
    ScriptedItemFolder *section = shown.category.section;
    section->loaded = false;
    shown.show(section);
    QTRY_COMPARE(shown.notice->reason(), Reason::Loading);
    section->loaded = true;
    shown.model.onFetchMoreStateChangedEvent(section, INxFolderMedia::FetchMoreLoading);
    QTRY_COMPARE(shown.notice->reason(), Reason::Loading);
    shown.model.onFetchMoreStateChangedEvent(section, INxFolderMedia::FetchMoreFinished);
    QTRY_COMPARE(shown.notice->reason(), Reason::EmptyFolderNoImport);
}

void tst_NxMediaNotice::aFailureIsSaidOfItsFolderAlone()
{
    Shown shown;
    shown.show(shown.category.section);
    shown.model.onFetchMoreStateChangedEvent(shown.category.section,
                                             INxFolderMedia::FetchMoreFailed);
    QTRY_COMPARE(shown.notice->reason(), Reason::LoadFailed);
    QCOMPARE(textOf(*shown.notice, "title"), QStringLiteral("Loading failed"));
    shown.show(shown.category.addFolder("other", shown.category.section));
    QTRY_COMPARE(shown.notice->reason(), Reason::EmptyFolderNoImport);
}

void tst_NxMediaNotice::searchesFindNothing_data()
{
    QTest::addColumn<bool>("isResult");
    QTest::addColumn<bool>("isFolder");
    QTest::addColumn<bool>("isForLikes");
    QTest::newRow("the result of a search") << true << false << false;
    QTest::newRow("a search folder") << false << true << false;
    QTest::newRow("a search for likes") << false << false << true;
}

void tst_NxMediaNotice::searchesFindNothing()
{
    QFETCH(const bool, isResult);
    QFETCH(const bool, isFolder);
    QFETCH(const bool, isForLikes);
    Shown shown;
    shown.category.section->searchResult = isResult;
    shown.category.section->searchFolder = isFolder;
    if (isForLikes) {
        NxTestLog::expectError(QStringLiteral("search folder is nullptr"));
        shown.items->setFilterSimilarResource(7, mctAudio, QString(), false, false);
    }
    shown.show(shown.category.section);
    QTRY_COMPARE(shown.notice->reason(), Reason::EmptySearch);
}

void tst_NxMediaNotice::theMouseReachesTheView()
{
    const Panel panel;
    const MouseListener list(panel.panel->list()->viewport());
    QVERIFY(panel.notice->isVisible());
    const auto press = [&](const QWidget *on) {
        const QPoint at = on->mapTo(panel.panel.get(), on->rect().center());
        QTest::mouseClick(panel.panel->windowHandle(), Qt::LeftButton, {}, at);
    };
    press(panel.notice->findChild<QLabel *>(QStringLiteral("title")));
    QCOMPARE(list.presses, 1);
    const QPoint corner = panel.notice->mapTo(panel.panel.get(), QPoint(2, 2));
    QTest::mouseClick(panel.panel->windowHandle(), Qt::LeftButton, {}, corner);
    QCOMPARE(list.presses, 2);
    QSignalSpy wanted(panel.notice, &NxMediaNotice::sigImportWanted);
    press(buttonOf(*panel.notice, "import"));
    QCOMPARE(wanted.count(), 1);
    QCOMPARE(list.presses, 2);
}

// Qt offers what is dragged to the widget below the pointer, then to those around it.
void tst_NxMediaNotice::whatIsDroppedReachesTheView()
{
    const Panel panel;
    QWidget *viewport = panel.panel->list()->viewport();
    viewport->setAcceptDrops(true);
    for (int y = 1; y < viewport->height(); y += 5) {
        QWidget *target = viewport->childAt(viewport->width() / 2, y);
        QVERIFY(target);
        while (!target->acceptDrops())
            target = target->parentWidget();
        QCOMPARE(target, viewport);
    }
}

void tst_NxMediaNotice::theNoticeIsAsLargeAsTheViewport()
{
    const Panel panel;
    const QWidget *viewport = panel.panel->list()->viewport();
    QCOMPARE(panel.notice->geometry(), viewport->rect());
    panel.panel->resize(500, 300);
    QTRY_VERIFY(viewport->height() < 300);
    QTRY_COMPARE(panel.notice->geometry(), viewport->rect());
}

void tst_NxMediaNotice::everyWordIsShown()
{
    const Panel panel;
    for (const int width : {900, 420}) {
        panel.panel->resize(width, 500);
        for (const char *name : {"title", "sentence"}) {
            const auto *label = panel.notice->findChild<QLabel *>(QLatin1String(name));
            QTRY_VERIFY(panel.notice->width() > 0 && label->width() <= panel.notice->width());
            QTRY_VERIFY(label->height() >= label->heightForWidth(label->width()));
        }
    }
}

void tst_NxMediaNotice::theKeyboardGoesToTheViewWhenItsButtonGoes()
{
    const Panel panel;
    panel.add(lines({"a.mov"}));
    panel.items()->setFilterType(mtfAudio);
    QTRY_COMPARE(panel.notice->reason(), Reason::FilteredOut);
    QLineEdit next(panel.panel.get()); // It would be reached by Tab.
    next.show();
    buttonOf(*panel.notice, "clear")->setFocus();
    QCOMPARE(QApplication::focusWidget(), buttonOf(*panel.notice, "clear"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    QCOMPARE(panel.rows(), lines({"a.mov"}));
    QTRY_VERIFY(!panel.notice->isVisible());
    QCOMPARE(QApplication::focusWidget(), panel.panel->list());
}

void tst_NxMediaNotice::whatIsFollowedMayDie()
{
    const Shown shown;
    QScrollArea area;
    const auto *notice = new NxMediaNotice(&area);
    auto items = std::make_unique<Items>(nullptr, nullptr);
    auto model = std::make_unique<NxMediaItemModel>(mctAudio, nullptr);
    const_cast<NxMediaNotice *>(notice)->follow(items.get(), model.get());
    QCOMPARE(notice->reason(), Reason::NoFolder);
    model.reset();
    QTRY_COMPARE(notice->reason(), Reason::Nothing);
    model = std::make_unique<NxMediaItemModel>(mctAudio, nullptr);
    const_cast<NxMediaNotice *>(notice)->follow(items.get(), model.get());
    QCOMPARE(notice->reason(), Reason::NoFolder);
    items.reset();
    QTRY_COMPARE(notice->reason(), Reason::Nothing);
}

void tst_NxMediaNotice::nothingIsSaidOfNobody()
{
    Shown shown;
    shown.notice->follow(nullptr, nullptr);
    QCOMPARE(shown.notice->reason(), Reason::Nothing);
    QVERIFY(shown.notice->isHidden());
    shown.show(shown.category.section);
    QCoreApplication::processEvents();
    QVERIFY(shown.notice->isHidden());
}

void tst_NxMediaNotice::coloursFollowTheSkin()
{
    const Shown shown;
    const auto colourOf = [&](const char *label) {
        return shown.notice->findChild<QLabel *>(QLatin1String(label))
            ->palette()
            .color(QPalette::WindowText);
    };
    for (const NxSkin skin : {NxSkin::Light, NxSkin::Dark}) {
        NxSkinStyle::instance()->setSkin(skin);
        QCOMPARE(colourOf("title"),
                 NxSkinStyle::instance()->GetColor(NxSkinColor::Text_Icon_Primary));
        QCOMPARE(colourOf("sentence"),
                 NxSkinStyle::instance()->GetColor(NxSkinColor::Text_Icon_Secondary));
    }
}

void tst_NxMediaNotice::textsFollowTheLanguage()
{
    const Panel panel;
    const NxBracketLanguage language;
    QTRY_COMPARE(textOf(*panel.notice, "title"), QStringLiteral("[This folder is empty]"));
    QCOMPARE(buttonOf(*panel.notice, "import")->text(), QStringLiteral("[Import]"));
    QCOMPARE(panel.notice->accessibleName(), QStringLiteral("[This folder is empty]"));
}

void tst_NxMediaNotice::namesAreShownAsTheyAre()
{
    const Panel panel;
    panel.add(lines({"a.mov"}));
    panel.items()->setFilterKeyword(QStringLiteral("<b>x</b>") + QString(80, QLatin1Char('y')),
                                    esmKeyword);
    QTRY_COMPARE(panel.notice->reason(), Reason::FilteredOut);
    const QLabel *sentence = panel.notice->findChild<QLabel *>(QStringLiteral("sentence"));
    QCOMPARE(sentence->textFormat(), Qt::PlainText);
    QVERIFY(sentence->text().contains(QLatin1String("<b>x</b>y")));
    QVERIFY(!sentence->text().contains(QString(60, QLatin1Char('y'))));
    QVERIFY(sentence->text().contains(QString(52, QLatin1Char('y')) + QChar(0x2026)));
}

NX_TEST_MAIN_WIDGETS(tst_NxMediaNotice)
#include "tst_NxMediaNotice.moc"
