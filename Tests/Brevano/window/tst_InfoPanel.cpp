// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "InfoStand.h"

#include <Brevano/window/CoverView.h>
#include <Brevano/window/PathField.h>
#include <NxCore/NxDiskBan.h>
#include <Support/NxTestMain.h>

#include <QAction>
#include <QCoreApplication>
#include <QSignalSpy>
#include <QTranslator>
#include <QtTest>

using namespace NXVBLMODEL;

namespace {

/// Says everything in capitals.
class LoudLanguage final : public QTranslator
{
public:
    QString translate(const char *, const char *source, const char *, int) const override
    {
        return QString::fromUtf8(source).toUpper();
    }
    bool isEmpty() const override { return false; }
};

} // namespace

/// What a user is told of the selected media, beside the list.
class tst_InfoPanel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void oneMediaTellsAll();
    void whatIsNotKnownIsLeftOut();
    void namesAreNoMarkup();
    void aMissingFileSaysWhatToDo();
    void anUnreadableFileSaysWhy();
    void theButtonsAreTheWindowsActions();
    void tellsTheTimelinesThatUseIt();
    void showsTheCoverAsSoonAsItComes();
    void severalMediaAreSummedUp();
    void unknownSizesAreCounted();
    void withoutASelectionTheFolderIsSummedUp();
    void withoutAFolderNothingIsShown();
    void aFolderThatDiesIsForgotten();
    void manyMediaAreSummedUpInSlices();
    void changesAreShownOnce();
    void othersChangesAreNotItsOwn();
    void aRemovedMediaLeaves();
    void aMediaThatComesBackAtOnceStays();
    void aDeadMediaIsNotAskedForAnything();
    void mediaThatDieWhileTheyAreSummedUpAreNotAskedForAnything();
    void aClosedProjectIsNotAskedForAnything();
    void letsGoOfTheManager();
    void aHiddenPanelWaits();
    void followsTheLanguage();
    void aSelectedTextSurvivesOtherNews();
    void everythingIsReachedByKeyboard();
    void nothingReachesForTheDisk();
    void longPathsAreShortenedInTheMiddle();
};

void tst_InfoPanel::initTestCase()
{
    QLocale::setDefault(QLocale::c());
}

void tst_InfoPanel::oneMediaTellsAll()
{
    InfoStand s;
    FakeItem *film = s.addFilm(QStringLiteral("/footage/a.mov"));
    film->camera = QStringLiteral("Maker Model");
    film->created = QDateTime({2024, 5, 6}, {7, 8, 9}, Qt::LocalTime);
    s.select({film});
    QTRY_COMPARE(s.text("name"), QStringLiteral("a.mov"));
    QCOMPARE(s.text("kind"), QStringLiteral("Video"));
    QCOMPARE(s.text("state"), QString());
    QCOMPARE(s.panel.findChild<PathField *>()->text(), QStringLiteral("/footage/a.mov"));
    QCOMPARE(s.fact("Folder"), QStringLiteral("Day 1"));
    QCOMPARE(s.fact("Section"), QStringLiteral("Project Media"));
    QCOMPARE(s.fact("Size"), QStringLiteral("2.0 KiB"));
    QVERIFY2(s.fact("Created").contains(QStringLiteral("2024")), qPrintable(s.fact("Created")));
    QCOMPARE(s.fact("Length"), QStringLiteral("00:00:10:00 (250 frames)"));
    QCOMPARE(s.fact("Picture"), QStringLiteral("1920 x 1080, 25 frames a second"));
    QCOMPARE(s.fact("Camera"), QStringLiteral("Maker Model"));
    QCOMPARE(s.fact("Used on"), QStringLiteral("no timeline"));
}

void tst_InfoPanel::whatIsNotKnownIsLeftOut()
{
    InfoStand s;
    FakeItem *film = s.section.addItem(QStringLiteral("/a.mov"));
    film->info.hasVideo = film->info.hasAudio = film->info.hasImage = false;
    s.select({film});
    QTRY_COMPARE(s.text("name"), QStringLiteral("a.mov"));
    QStringList names;
    for (const auto &fact : s.panel.facts())
        names.append(fact.first);
    QCOMPARE(names, QStringList({QStringLiteral("Section"), QStringLiteral("Used on")}));
}

void tst_InfoPanel::namesAreNoMarkup()
{
    InfoStand s;
    const QString name = QStringLiteral("<b>bold<br>.mov");
    FakeItem *film = s.addFilm(QLatin1Char('/') + name);
    film->camera = QStringLiteral("<i>x</i>\nEnd");
    s.select({film});
    QTRY_COMPARE(s.text("name"), name);
    QCOMPARE(s.fact("Camera"), QStringLiteral("<i>x</i>\\nEnd"));
    for (const QLabel *label : s.panel.findChildren<QLabel *>())
        QCOMPARE(label->textFormat(), Qt::PlainText);
    QVERIFY(!s.panel.findChild<PathField *>()->toolTip().contains(QStringLiteral("<b>")));
}

void tst_InfoPanel::aMissingFileSaysWhatToDo()
{
    InfoStand s;
    FakeItem *film = s.addFilm(QStringLiteral("/gone.mov"));
    film->trouble = QStringLiteral("It is not there.");
    NxFile::setAnswerer([](const QString &) -> std::optional<bool> { return false; });
    s.select({film});
    QTRY_VERIFY(s.text("state").contains(QStringLiteral("missing")));
    QCOMPARE(s.buttons(),
             QStringList({QStringLiteral("Relink"), QStringLiteral("Find Missing Files")}));
    QVERIFY(!s.panel.findChild<CoverView *>()->isVisible());
    NxFile::setAnswerer([](const QString &) -> std::optional<bool> { return true; });
    film->trouble.clear();
    s.announce(film);
    QTRY_COMPARE(s.buttons(), QStringList());
    QCOMPARE(s.text("state"), QString());
    QVERIFY(s.panel.findChild<CoverView *>()->isVisible());
}

void tst_InfoPanel::anUnreadableFileSaysWhy()
{
    InfoStand s;
    FakeItem *film = s.addFilm(QStringLiteral("/broken.mov"));
    film->trouble = QStringLiteral("It ends too early.");
    s.select({film});
    QTRY_COMPARE(s.text("state"), QStringLiteral("The file cannot be read. It ends too early."));
    QCOMPARE(s.buttons(), QStringList(QStringLiteral("Read Again")));
    QCOMPARE(s.fact("Picture"), QString());
}

void tst_InfoPanel::theButtonsAreTheWindowsActions()
{
    InfoStand s;
    FakeItem *film = s.addFilm(QStringLiteral("/broken.mov"));
    film->trouble = QStringLiteral("It ends too early.");
    s.select({film});
    QTRY_COMPARE(s.buttons().size(), 1);
    QAction *action = s.actions.action(PanelActions::Id::ReadAgain);
    QSignalSpy triggered(action, &QAction::triggered);
    for (QToolButton *button : s.panel.findChildren<QToolButton *>()) {
        if (button->isVisible())
            QTest::keyClick(button, Qt::Key_Space);
    }
    QCOMPARE(triggered.size(), 1);
}

void tst_InfoPanel::tellsTheTimelinesThatUseIt()
{
    InfoStand s;
    FakeItem *film = s.addFilm(QStringLiteral("/a.mov"));
    ScriptedTimeline *first = s.project->addTimeline(QStringLiteral("Rough cut"));
    ScriptedTimeline *second = s.project->addTimeline(QStringLiteral("Trailer"));
    first->add(QStringLiteral("one"), film->mediaId());
    second->add(QStringLiteral("two"), film->mediaId());
    first->add(QStringLiteral("three"), film->mediaId());
    s.select({film});
    QTRY_COMPARE(s.fact("Used on"), QStringLiteral("Rough cut (2 times), Trailer"));
    second->add(QStringLiteral("four"), film->mediaId());
    Q_EMIT s.project->stack.changed();
    QTRY_COMPARE(s.fact("Used on"), QStringLiteral("Rough cut (2 times), Trailer (2 times)"));
}

void tst_InfoPanel::showsTheCoverAsSoonAsItComes()
{
    InfoStand s;
    FakeItem *film = s.addFilm(QStringLiteral("/a.mov"));
    s.select({film});
    auto *cover = s.panel.findChild<CoverView *>();
    QTRY_VERIFY(cover->isVisible());
    QTRY_VERIFY(s.shelf.asked.contains(film));
    QCOMPARE(cover->media(), static_cast<INxAbstractMedia *>(film));
    const auto middle = [cover] {
        return cover->grab().toImage().pixelColor(cover->width() / 2, cover->height() / 2);
    };
    QVERIFY(middle() != QColor(Qt::red));
    s.shelf.colours.insert(film, Qt::red);
    QCoreApplication::processEvents(); // Whatever else is to be painted.
    const int asked = s.shelf.asked.size();
    s.shelf.teller(film);
    QTRY_VERIFY(s.shelf.asked.size() > asked);
    QCOMPARE(middle(), QColor(Qt::red));
}

void tst_InfoPanel::severalMediaAreSummedUp()
{
    InfoStand s;
    FakeItem *sound = s.folder->addItem(QStringLiteral("/a.wav"));
    sound->type = mtAudio;
    sound->info.infoKind = mikAudio;
    sound->info.length = 360'000; // An hour.
    sound->size = 1024;
    s.select({s.addFilm(QStringLiteral("/a.mov")), s.addFilm(QStringLiteral("/b.mov")), sound,
              s.folder});
    QTRY_COMPARE(s.fact("Length"), QStringLiteral("01:00:20"));
    QCOMPARE(s.text("name"), QStringLiteral("3 media"));
    QCOMPARE(s.fact("Media"), QStringLiteral("3"));
    QCOMPARE(s.fact("Video"), QStringLiteral("2"));
    QCOMPARE(s.fact("Audio"), QStringLiteral("1"));
    QCOMPARE(s.fact("Size"), QStringLiteral("5.0 KiB"));
    QCOMPARE(s.buttons(), QStringList());
}

void tst_InfoPanel::unknownSizesAreCounted()
{
    InfoStand s;
    FakeItem *unread = s.addFilm(QStringLiteral("/b.mov"));
    unread->size = -1;
    s.select({s.addFilm(QStringLiteral("/a.mov")), unread});
    QTRY_COMPARE(s.fact("Size"), QStringLiteral("2.0 KiB (not known of 1)"));
}

void tst_InfoPanel::withoutASelectionTheFolderIsSummedUp()
{
    InfoStand s;
    FakeItem *film = s.addFilm(QStringLiteral("/a.mov"));
    s.addFilm(QStringLiteral("/b.mov"));
    s.panel.setFolder(&s.section);
    QTRY_COMPARE(s.fact("Length"), QStringLiteral("00:00:20"));
    QCOMPARE(s.text("name"), QStringLiteral("Project Media"));
    QCOMPARE(s.fact("Media"), QStringLiteral("2"));
    s.select({film});
    QTRY_COMPARE(s.text("name"), QStringLiteral("a.mov"));
    s.select({});
    QTRY_COMPARE(s.text("name"), QStringLiteral("Project Media"));
    film->info.frames = 500;
    s.announce(film);
    QTRY_COMPARE(s.fact("Length"), QStringLiteral("00:00:30"));
}

void tst_InfoPanel::withoutAFolderNothingIsShown()
{
    InfoStand s;
    s.select({});
    QTRY_COMPARE(s.text("kind"), QStringLiteral("Nothing is selected"));
    QCOMPARE(s.text("name"), QString());
    QVERIFY(s.panel.facts().isEmpty());
}

void tst_InfoPanel::aFolderThatDiesIsForgotten()
{
    InfoStand s;
    auto folder = std::make_unique<FakeFolder>(QStringLiteral("Short-lived"));
    s.panel.setFolder(folder.get());
    QTRY_COMPARE(s.text("name"), QStringLiteral("Short-lived"));
    folder.reset();
    QTRY_COMPARE(s.text("kind"), QStringLiteral("Nothing is selected"));
}

void tst_InfoPanel::manyMediaAreSummedUpInSlices()
{
    constexpr int many = 100'000;
    InfoStand s;
    FakeItem *film = s.addFilm(QStringLiteral("/a.mov"));
    InfoStand::Medias medias;
    for (int i = 0; i < many; ++i)
        medias.append(film);
    s.select(medias);
    QTRY_COMPARE(s.text("name"), QStringLiteral("100000 media"));
    QCOMPARE(s.fact("Length"), QStringLiteral("being added up"));
    QTRY_COMPARE(s.fact("Length"), QStringLiteral("277:46:40"));
    QCOMPARE(s.fact("Video"), QStringLiteral("100000"));
}

void tst_InfoPanel::changesAreShownOnce()
{
    InfoStand s;
    FakeItem *film = s.addFilm(QStringLiteral("/a.mov"));
    s.select({film});
    QTRY_COMPARE(s.text("name"), QStringLiteral("a.mov"));
    const int before = s.project->asked.size();
    film->camera = QStringLiteral("Maker Model");
    for (int i = 0; i < 5; ++i)
        s.announce(film);
    QCOMPARE(s.fact("Camera"), QString()); // Nothing happens within the announcement.
    QTRY_COMPARE(s.fact("Camera"), QStringLiteral("Maker Model"));
    QCoreApplication::processEvents();
    QCOMPARE(s.project->asked.size(), before + 1);
}

void tst_InfoPanel::othersChangesAreNotItsOwn()
{
    InfoStand s;
    FakeItem *film = s.addFilm(QStringLiteral("/a.mov"));
    FakeItem *other = s.addFilm(QStringLiteral("/b.mov"));
    s.select({film});
    QTRY_COMPARE(s.text("name"), QStringLiteral("a.mov"));
    film->camera = QStringLiteral("Maker Model");
    s.announce(other);
    QCoreApplication::processEvents();
    QCOMPARE(s.fact("Camera"), QString());
}

void tst_InfoPanel::aRemovedMediaLeaves()
{
    InfoStand s;
    FakeItem *film = s.addFilm(QStringLiteral("/a.mov"));
    FakeItem *other = s.addFilm(QStringLiteral("/b.mov"));
    s.select({film, other});
    QTRY_COMPARE(s.text("name"), QStringLiteral("2 media"));
    s.announceRemoval(film);
    QTRY_COMPARE(s.text("name"), QStringLiteral("b.mov"));
    s.announceRemoval(other);
    QTRY_COMPARE(s.text("kind"), QStringLiteral("Nothing is selected"));
}

void tst_InfoPanel::aMediaThatComesBackAtOnceStays()
{
    InfoStand s;
    FakeItem *film = s.addFilm(QStringLiteral("/a.mov"));
    s.select({film});
    QTRY_COMPARE(s.text("name"), QStringLiteral("a.mov"));
    film->camera = QStringLiteral("Maker Model");
    s.announceRemoval(film); // As a move to another folder may be told.
    s.category.manager.observers.tell(
        [&](auto *observer) { observer->onAfterAddItemEvent(&s.section, film); });
    QTRY_COMPARE(s.fact("Camera"), QStringLiteral("Maker Model"));
    QCOMPARE(s.text("name"), QStringLiteral("a.mov"));
}

void tst_InfoPanel::aDeadMediaIsNotAskedForAnything()
{
    InfoStand s;
    FakeItem *film = s.addFilm(QStringLiteral("/a.mov"));
    s.select({film});
    QTRY_COMPARE(s.text("name"), QStringLiteral("a.mov"));
    s.folder->destroy(film);
    QEvent language(QEvent::LanguageChange);
    QCoreApplication::sendEvent(&s.panel, &language);
    QTRY_COMPARE(s.text("kind"), QStringLiteral("Nothing is selected"));
    QVERIFY(!s.panel.findChild<CoverView *>()->media());
}

void tst_InfoPanel::mediaThatDieWhileTheyAreSummedUpAreNotAskedForAnything()
{
    constexpr int many = 5'000; // More than one slice.
    InfoStand s;
    QVector<FakeItem *> films;
    for (int i = 0; i < many; ++i)
        films.append(s.addFilm(QStringLiteral("/%1.mov").arg(i)));
    s.panel.setFolder(&s.section);
    QTRY_COMPARE(s.fact("Length"), QStringLiteral("being added up"));
    for (int i = 1; i <= many / 2; ++i) {
        s.announceRemoval(films.at(many - i));
        s.folder->destroy(films.at(many - i));
    }
    QTRY_COMPARE(s.fact("Media"), QString::number(many / 2));
    QTRY_COMPARE(s.fact("Video"), QString::number(many / 2));
}

void tst_InfoPanel::aClosedProjectIsNotAskedForAnything()
{
    InfoStand s;
    FakeItem *film = s.addFilm(QStringLiteral("/a.mov"));
    s.select({film});
    QTRY_COMPARE(s.fact("Used on"), QStringLiteral("no timeline"));
    s.project.reset();
    QTRY_COMPARE(s.fact("Used on"), QString());
    QCOMPARE(s.text("name"), QStringLiteral("a.mov"));
}

void tst_InfoPanel::letsGoOfTheManager()
{
    InfoStand s;
    FakeItem *film = s.addFilm(QStringLiteral("/a.mov"));
    const auto observers = [&s] {
        int count = 0;
        s.category.manager.observers.tell([&count](auto *) { ++count; });
        return count;
    };
    s.panel.setFolder(s.folder);
    s.select({film});
    QCOMPARE(observers(), 1);
    s.panel.setFolder(nullptr);
    s.panel.setMedia({}, nullptr);
    QCOMPARE(observers(), 0);
    QTRY_COMPARE(s.text("kind"), QStringLiteral("Nothing is selected"));
}

void tst_InfoPanel::aHiddenPanelWaits()
{
    InfoStand s;
    s.panel.hide();
    FakeItem *film = s.addFilm(QStringLiteral("/a.mov"));
    s.select({film});
    QCoreApplication::processEvents();
    QVERIFY(s.project->asked.isEmpty());
    s.panel.show();
    QCOMPARE(s.text("name"), QStringLiteral("a.mov"));
}

void tst_InfoPanel::followsTheLanguage()
{
    InfoStand s;
    s.select({s.addFilm(QStringLiteral("/a.mov"))});
    QTRY_COMPARE(s.text("name"), QStringLiteral("a.mov"));
    LoudLanguage loud;
    QVERIFY(QCoreApplication::installTranslator(&loud));
    QTRY_COMPARE(s.fact("USED ON"), QStringLiteral("NO TIMELINE"));
    QCOMPARE(s.fact("PICTURE"), QStringLiteral("1920 x 1080, 25 FRAMES A SECOND"));
    QCOMPARE(s.text("kind"), QStringLiteral("VIDEO"));
    QCOMPARE(s.text("name"), QStringLiteral("a.mov"));
    QCoreApplication::removeTranslator(&loud);
    QTRY_COMPARE(s.fact("Used on"), QStringLiteral("no timeline"));
}

void tst_InfoPanel::aSelectedTextSurvivesOtherNews()
{
    InfoStand s;
    FakeItem *film = s.addFilm(QStringLiteral("/a.mov"));
    s.select({film});
    QTRY_COMPARE(s.text("name"), QStringLiteral("a.mov"));
    QLabel *folder = nullptr;
    for (QLabel *label : s.panel.findChildren<QLabel *>()) {
        if (label->text() == QLatin1String("Day 1"))
            folder = label;
    }
    QVERIFY(folder);
    folder->setSelection(0, 3);
    film->camera = QStringLiteral("Maker Model");
    s.announce(film);
    QTRY_COMPARE(s.fact("Camera"), QStringLiteral("Maker Model"));
    QCOMPARE(folder->selectedText(), QStringLiteral("Day"));
}

void tst_InfoPanel::everythingIsReachedByKeyboard()
{
    InfoStand s;
    s.select({s.addFilm(QStringLiteral("/a.mov"))});
    QTRY_COMPARE(s.text("name"), QStringLiteral("a.mov"));
    QVERIFY(!s.panel.accessibleName().isEmpty());
    QVERIFY(!s.panel.findChild<PathField *>()->accessibleName().isEmpty());
    QVERIFY(s.panel.findChild<PathField *>()->focusPolicy() & Qt::TabFocus);
    QStringList names;
    for (const QLabel *label : s.panel.findChild<FactSheet *>()->findChildren<QLabel *>()) {
        const bool isValue = !label->accessibleName().isEmpty();
        QCOMPARE(bool(label->focusPolicy() & Qt::TabFocus), isValue);
        QCOMPARE(bool(label->textInteractionFlags() & Qt::TextSelectableByKeyboard), isValue);
        if (isValue)
            names.append(label->accessibleName());
    }
    QVERIFY(names.contains(QStringLiteral("Size: 2.0 KiB")));
}

void tst_InfoPanel::nothingReachesForTheDisk()
{
    InfoStand s;
    const NxDiskBan ban;
    FakeItem *film = s.addFilm(QStringLiteral("/a.mov"));
    s.select({film});
    QTRY_COMPARE(s.text("name"), QStringLiteral("a.mov"));
    s.panel.setFolder(&s.section);
    s.select({});
    QTRY_COMPARE(s.fact("Video"), QStringLiteral("1"));
    QCOMPARE(ban.breaches(), QStringList());
}

void tst_InfoPanel::longPathsAreShortenedInTheMiddle()
{
    const QString path = QStringLiteral("/media/drive") + QString(200, QLatin1Char('x'))
                         + QStringLiteral("/take 12.mov");
    PathField field;
    field.setPath(path);
    field.resize(300, field.sizeHint().height());
    QVERIFY2(field.shownText().startsWith(QStringLiteral("/media")), qPrintable(field.shownText()));
    QVERIFY2(field.shownText().endsWith(QStringLiteral("12.mov")), qPrintable(field.shownText()));
    QVERIFY(field.shownText().size() < path.size());
    QVERIFY(field.toolTip().contains(path));
    field.selectAll();
    QCOMPARE(field.selectedText(), path);
    field.setPath(QStringLiteral("/a.mov"));
    QCOMPARE(field.shownText(), QStringLiteral("/a.mov"));
}

NX_TEST_MAIN_WIDGETS(tst_InfoPanel)
#include "tst_InfoPanel.moc"
