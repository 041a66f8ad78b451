// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "FakeLibrary.h"

#include <Brevano/window/MediaMenu.h>
#include <Brevano/window/PanelActions.h>
#include <NxCore/NxDiskBan.h>
#include <NxCore/NxFile.h>
#include <NxWidgets/NxSkinStyle.h>
#include <Support/NxTestMain.h>

#include <QSet>
#include <QSignalSpy>
#include <QtTest>

using namespace NXVBLMODEL;
using Id = PanelActions::Id;

namespace {

/// A few media and folders, one media's file gone, and a window with its actions.
struct Stand
{
    Stand()
    {
        film = folder->addItem(QStringLiteral("/a.mov"));
        other = folder->addItem(QStringLiteral("/b.mov"));
        gone = folder->addItem(QStringLiteral("/gone.mov"));
        title = folder->addItem(QStringLiteral("/title"));
        title->type = mtTitle;
        title->resource = true;
        for (FakeItem *item : {film, other, gone})
            item->info.flags = sfVideo | sfAudio;
        NxFile::setAnswerer([](const QString &path) -> std::optional<bool> {
            return path != QLatin1String("/gone.mov");
        });
    }
    ~Stand() { NxFile::setAnswerer({}); }
    Q_DISABLE_COPY_MOVE(Stand)

    void update(const QList<INxAbstractMedia *> &medias, bool isReadOnly = false)
    {
        MediaMenu::update(&actions, medias, isReadOnly);
    }
    [[nodiscard]] bool can(Id id) const { return actions.action(id)->isEnabled(); }
    /// Opens the menu, looks at it, and closes it.
    static void open(MediaMenu *menu)
    {
        menu->popup({});
        QVERIFY(menu->isVisible());
        menu->close();
    }
    [[nodiscard]] static QAction *synchronise(const MediaMenu &menu)
    {
        for (QAction *action : menu.actions()) {
            if (action->iconText() == QLatin1String("Synchronize by Sound"))
                return action;
        }
        return nullptr;
    }

    FakeFolder section{QStringLiteral("Project Media"), fkProject};
    FakeFolder *const folder = section.addFolder(QStringLiteral("Day 1"));
    FakeItem *film = nullptr;
    FakeItem *other = nullptr;
    FakeItem *gone = nullptr;
    FakeItem *title = nullptr;
    QWidget window;
    PanelActions actions{&window};
};

/// Those that an update decides about.
const QList<Id> decided = {Id::AddToTimeline, Id::Rename,      Id::Remove, Id::Relink,
                           Id::FindMissing,   Id::ReadAgain,   Id::Reveal, Id::CopyPath,
                           Id::CopyName,      Id::FindInFolder};

} // namespace

/// Context menus of media and folders.
class tst_MediaMenu : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void offersWhatFits_data();
    void offersWhatFits();
    void changesNothingOfAReadOnlyProject();
    void leavesOtherActionsAlone();
    void manyMediaAreNotLookedAtOneByOne();
    void neverLooksAtTheDisk();
    void hasTheActionsOfTheWindow();
    void noTwoEntriesShareALetter_data();
    void noTwoEntriesShareALetter();
    void asksForTheSelectionWhenItOpens();
    void synchroniseIsOfferedWhereItFits_data();
    void synchroniseIsOfferedWhereItFits();
    void synchroniseIsAnnounced();
    void wearsTheSkin();
};

void tst_MediaMenu::offersWhatFits_data()
{
    QTest::addColumn<QStringList>("selected");
    QTest::addColumn<QList<int>>("offered");
    const auto row = [](const char *name, const QStringList &selected, const QList<Id> &offered) {
        QList<int> ids;
        for (const Id id : offered)
            ids.append(int(id));
        QTest::newRow(name) << selected << ids;
    };
    const QString film = QStringLiteral("film");
    const QString other = QStringLiteral("other");
    const QString gone = QStringLiteral("gone");
    const QString title = QStringLiteral("title");
    const QString folder = QStringLiteral("folder");
    const QString section = QStringLiteral("section");
    row("nothing", {}, {Id::FindMissing});
    row("a media", {film},
        {Id::AddToTimeline, Id::Rename, Id::Remove, Id::Relink, Id::ReadAgain, Id::Reveal,
         Id::CopyPath, Id::CopyName, Id::FindInFolder});
    row("two media", {film, other},
        {Id::AddToTimeline, Id::Remove, Id::Relink, Id::ReadAgain, Id::CopyPath, Id::CopyName});
    row("a missing one", {gone},
        {Id::AddToTimeline, Id::Rename, Id::Remove, Id::Relink, Id::FindMissing, Id::CopyPath,
         Id::CopyName, Id::FindInFolder});
    row("a missing one and one that is there", {film, gone},
        {Id::AddToTimeline, Id::Remove, Id::Relink, Id::FindMissing, Id::ReadAgain, Id::CopyPath,
         Id::CopyName});
    row("a resource without a file", {title},
        {Id::AddToTimeline, Id::Rename, Id::Remove, Id::CopyName, Id::FindInFolder});
    row("a folder", {folder}, {Id::Rename, Id::Remove, Id::FindMissing, Id::CopyName});
    row("a section", {section}, {Id::FindMissing, Id::CopyName});
}

void tst_MediaMenu::offersWhatFits()
{
    QFETCH(QStringList, selected);
    QFETCH(QList<int>, offered);
    Stand s;
    const QHash<QString, INxAbstractMedia *> known = {
        {QStringLiteral("film"), s.film},     {QStringLiteral("other"), s.other},
        {QStringLiteral("gone"), s.gone},     {QStringLiteral("title"), s.title},
        {QStringLiteral("folder"), s.folder}, {QStringLiteral("section"), &s.section}};
    QList<INxAbstractMedia *> medias;
    for (const QString &name : selected)
        medias.append(known.value(name));
    s.update(medias);
    for (const Id id : decided)
        QVERIFY2(s.can(id) == offered.contains(int(id)),
                 qPrintable(s.actions.action(id)->iconText()));
}

void tst_MediaMenu::changesNothingOfAReadOnlyProject()
{
    Stand s;
    s.update({s.film}, true);
    for (const Id id : decided) {
        const bool isLooking =
            QList<Id>{Id::Reveal, Id::CopyPath, Id::CopyName, Id::FindInFolder}.contains(id);
        QVERIFY2(s.can(id) == isLooking, qPrintable(s.actions.action(id)->iconText()));
    }
    s.update({}, true);
    QVERIFY(!s.can(Id::FindMissing));
}

void tst_MediaMenu::leavesOtherActionsAlone()
{
    Stand s;
    s.actions.action(Id::Paste)->setEnabled(false);
    s.update({s.film});
    QVERIFY(!s.can(Id::Paste));
    s.update({}, true);
    QVERIFY(s.can(Id::ImportFiles));
}

void tst_MediaMenu::manyMediaAreNotLookedAtOneByOne()
{
    constexpr int many = 100'000;
    Stand s;
    int questions = 0;
    NxFile::setAnswerer([&questions](const QString &) -> std::optional<bool> {
        ++questions;
        return true;
    });
    QList<INxAbstractMedia *> medias;
    for (int i = 0; i < many; ++i)
        medias.append(s.film);
    s.update(medias);
    QVERIFY2(questions < 1'000, qPrintable(QString::number(questions)));
    QVERIFY(s.can(Id::FindMissing)); // Nobody knows that there is none.
    QVERIFY(s.can(Id::Remove));
    QVERIFY(!s.can(Id::Rename));
}

void tst_MediaMenu::neverLooksAtTheDisk()
{
    Stand s;
    NxFile::setAnswerer({});
    const NxDiskBan ban;
    s.update({s.film, s.other, s.folder});
    QCOMPARE(ban.breaches(), QStringList());
    QVERIFY(s.can(Id::ReadAgain)); // What nobody knows to be missing may be there.
}

void tst_MediaMenu::hasTheActionsOfTheWindow()
{
    Stand s;
    const MediaMenu media(&s.actions, MediaMenu::Subject::Media,
                          [] { return MediaMenu::Selection(); });
    for (const Id id : decided)
        QVERIFY2(media.actions().contains(s.actions.action(id)),
                 qPrintable(s.actions.action(id)->iconText()));
    QVERIFY(!media.accessibleName().isEmpty());
    const MediaMenu folder(&s.actions, MediaMenu::Subject::Folder,
                           [] { return MediaMenu::Selection(); });
    for (const Id id : {Id::NewFolder, Id::Rename, Id::Remove, Id::ImportFiles, Id::ImportFolder,
                        Id::RemoveUnused, Id::FindMissing})
        QVERIFY2(folder.actions().contains(s.actions.action(id)),
                 qPrintable(s.actions.action(id)->iconText()));
    QVERIFY(!folder.actions().contains(s.actions.action(Id::AddToTimeline)));
    QVERIFY(!Stand::synchronise(folder));
}

void tst_MediaMenu::noTwoEntriesShareALetter_data()
{
    QTest::addColumn<int>("subject");
    QTest::newRow("media") << int(MediaMenu::Subject::Media);
    QTest::newRow("folder") << int(MediaMenu::Subject::Folder);
}

void tst_MediaMenu::noTwoEntriesShareALetter()
{
    QFETCH(int, subject);
    Stand s;
    const MediaMenu menu(&s.actions, MediaMenu::Subject(subject),
                         [] { return MediaMenu::Selection(); });
    QSet<QString> letters;
    for (const QAction *action : menu.actions()) {
        if (action->isSeparator())
            continue;
        const QString letter = QKeySequence::mnemonic(action->text()).toString();
        QVERIFY2(!letter.isEmpty() && !letters.contains(letter), qPrintable(action->text()));
        letters.insert(letter);
    }
}

void tst_MediaMenu::asksForTheSelectionWhenItOpens()
{
    Stand s;
    MediaMenu::Selection selection;
    int questions = 0;
    MediaMenu menu(&s.actions, MediaMenu::Subject::Media, [&] {
        ++questions;
        return selection;
    });
    QCOMPARE(questions, 0);
    Stand::open(&menu);
    QCOMPARE(questions, 1);
    QVERIFY(!s.can(Id::Rename));
    selection.medias = {s.film};
    Stand::open(&menu);
    QCOMPARE(questions, 2);
    QVERIFY(s.can(Id::Rename));
    selection.isReadOnly = true;
    Stand::open(&menu);
    QVERIFY(!s.can(Id::Rename));
}

void tst_MediaMenu::synchroniseIsOfferedWhereItFits_data()
{
    QTest::addColumn<int>("films");
    QTest::addColumn<bool>("isReadOnly");
    QTest::addColumn<bool>("isOffered");
    QTest::newRow("one film") << 1 << false << false;
    QTest::newRow("two films") << 2 << false << true;
    QTest::newRow("two films of a read-only project") << 2 << true << false;
}

void tst_MediaMenu::synchroniseIsOfferedWhereItFits()
{
    QFETCH(int, films);
    QFETCH(bool, isReadOnly);
    QFETCH(bool, isOffered);
    Stand s;
    const QList<INxAbstractMedia *> both = {s.film, s.other};
    MediaMenu menu(&s.actions, MediaMenu::Subject::Media, [&] {
        return MediaMenu::Selection{both.mid(0, films), isReadOnly};
    });
    QVERIFY(!Stand::synchronise(menu)->isVisible());
    Stand::open(&menu);
    QCOMPARE(Stand::synchronise(menu)->isVisible(), isOffered);
}

void tst_MediaMenu::synchroniseIsAnnounced()
{
    Stand s;
    MediaMenu menu(&s.actions, MediaMenu::Subject::Media, [&] {
        return MediaMenu::Selection{{s.film, s.other}, false};
    });
    QSignalSpy wanted(&menu, &MediaMenu::sigSynchroniseWanted);
    Stand::open(&menu);
    Stand::synchronise(menu)->trigger();
    QCOMPARE(wanted.size(), 1);
}

void tst_MediaMenu::wearsTheSkin()
{
    Stand s;
    MediaMenu menu(&s.actions, MediaMenu::Subject::Media, [] { return MediaMenu::Selection(); });
    for (const NxSkin skin : {NxSkin::Light, NxSkin::Dark}) {
        NxSkinStyle::instance()->setSkin(skin);
        Stand::open(&menu);
        QCOMPARE(menu.palette().color(QPalette::Window),
                 NxSkinStyle::instance()->palette().color(QPalette::Window));
    }
}

NX_TEST_MAIN_WIDGETS(tst_MediaMenu)
#include "tst_MediaMenu.moc"
