// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/PanelActions.h>
#include <Brevano/window/StartPage.h>
#include <Brevano/window/WindowMemory.h>
#include <NxCore/NxMemorySettingsStore.h>

#include <Support/NxBracketLanguage.h>
#include <Support/NxTestMain.h>

#include <QAction>
#include <QLabel>
#include <QListWidget>
#include <QSignalSpy>
#include <QTest>
#include <QTextDocumentFragment>
#include <QToolButton>

namespace {

/// The page of a window that knows these projects, the latest first.
struct Stand
{
    explicit Stand(const QStringList &projects = {})
    {
        for (int i = projects.size() - 1; i >= 0; --i)
            memory.noteRecent(projects.at(i));
        page.show();
    }

    [[nodiscard]] QListWidget *list() const { return page.findChild<QListWidget *>(); }
    [[nodiscard]] QStringList texts() const
    {
        QStringList all;
        for (const QLabel *label : page.findChildren<QLabel *>())
            all.append(label->text());
        return all;
    }

    QWidget window;
    PanelActions *const actions = new PanelActions(&window);
    WindowMemory memory{std::make_unique<NxMemorySettingsStore>()};
    StartPage page{actions, &memory};
};

const QString Film = QStringLiteral("/projects/film.brevano");
const QString Trip = QStringLiteral("/projects/trip <b>to Rome.brevano");

} // namespace

/// The page of a window without a project.
class tst_StartPage : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void recentProjectsAreListed();
    void aProjectIsOpenedWithTheKeyboard();
    void aNewUserSeesNoList();
    void theListIsFreshWheneverThePageIsShown();
    void theButtonsDoWhatTheMenuDoes_data();
    void theButtonsDoWhatTheMenuDoes();
    void textsFollowTheLanguage();
};

void tst_StartPage::recentProjectsAreListed()
{
    const Stand stand({Trip, Film});
    QCOMPARE(stand.list()->count(), 2);
    QCOMPARE(stand.list()->item(0)->text(), QStringLiteral("trip <b>to Rome"));
    QCOMPARE(stand.list()->item(1)->text(), QStringLiteral("film"));
    const QString tip = stand.list()->item(0)->toolTip();
    QCOMPARE(QTextDocumentFragment::fromHtml(tip).toPlainText(), Trip);
}

void tst_StartPage::aProjectIsOpenedWithTheKeyboard()
{
    const Stand stand({Trip, Film});
    QSignalSpy opened(&stand.page, &StartPage::sigOpen);
    stand.list()->setCurrentRow(0);
    QTest::keyClick(stand.list(), Qt::Key_Down);
    QTest::keyClick(stand.list(), Qt::Key_Return);
    QCOMPARE(opened.size(), 1);
    QCOMPARE(opened.at(0).at(0).toString(), Film);
}

void tst_StartPage::aNewUserSeesNoList()
{
    const Stand stand;
    QVERIFY(!stand.list()->isVisible());
    int shown = 0;
    for (const QLabel *label : stand.page.findChildren<QLabel *>())
        shown += label->isVisible() ? 1 : 0;
    QCOMPARE(shown, 1);
}

void tst_StartPage::theListIsFreshWheneverThePageIsShown()
{
    Stand stand({Film});
    stand.page.hide();
    stand.memory.noteRecent(Trip);
    stand.page.show();
    QCOMPARE(stand.list()->count(), 2);
    stand.memory.clearRecent();
    stand.page.refresh();
    QVERIFY(!stand.list()->isVisible());
}

void tst_StartPage::theButtonsDoWhatTheMenuDoes_data()
{
    QTest::addColumn<int>("id");
    QTest::newRow("new") << int(PanelActions::Id::NewProject);
    QTest::newRow("open") << int(PanelActions::Id::OpenProject);
}

void tst_StartPage::theButtonsDoWhatTheMenuDoes()
{
    QFETCH(const int, id);
    const Stand stand;
    const QAction *action = stand.actions->action(PanelActions::Id(id));
    QSignalSpy triggered(action, &QAction::triggered);
    for (QToolButton *button : stand.page.findChildren<QToolButton *>()) {
        QVERIFY(button->focusPolicy() & Qt::TabFocus);
        if (button->defaultAction() == action)
            QTest::keyClick(button, Qt::Key_Space);
    }
    QCOMPARE(triggered.size(), 1);
}

void tst_StartPage::textsFollowTheLanguage()
{
    const Stand stand({Film});
    const NxBracketLanguage language;
    QCoreApplication::sendPostedEvents();
    for (const QString &text : stand.texts())
        QVERIFY2(text.startsWith(QLatin1Char('[')), qPrintable(text));
    QVERIFY(stand.list()->accessibleName().startsWith(QLatin1Char('[')));
    QCOMPARE(stand.list()->item(0)->text(), QStringLiteral("film"));
}

NX_TEST_MAIN_WIDGETS(tst_StartPage)
#include "tst_StartPage.moc"
