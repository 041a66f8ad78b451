// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/RecentMenu.h>
#include <Brevano/window/WindowMemory.h>
#include <NxCore/NxMemorySettingsStore.h>
#include <Support/NxTestMain.h>

#include <QtTest>

class tst_RecentMenu : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void theLatestProjectStandsFirst();
    void aProjectIsOpenedByItsPath();
    void projectsThatCameLaterAreInItWhenItOpens();
    void ampersandsInNamesAreShown();
    void theTenthHasNoDigit();
    void theListCanBeCleared();
    void anEmptyListSaysSo();
    void aNewLanguageMakesTheTextsAgain();

private:
    QStringList texts() const;

    std::unique_ptr<WindowMemory> m_memory;
    std::unique_ptr<RecentMenu> m_menu;
};

void tst_RecentMenu::init()
{
    m_menu.reset();
    m_memory = std::make_unique<WindowMemory>(std::make_unique<NxMemorySettingsStore>());
    m_memory->noteRecent(QStringLiteral("/projects/holidays.brevano"));
    m_memory->noteRecent(QStringLiteral("/projects/my.film.brevano"));
    m_menu = std::make_unique<RecentMenu>(m_memory.get());
}

QStringList tst_RecentMenu::texts() const
{
    QStringList all;
    for (const QAction *action : m_menu->actions())
        all.append(action->isSeparator() ? QStringLiteral("-") : action->text());
    return all;
}

void tst_RecentMenu::theLatestProjectStandsFirst()
{
    QCOMPARE(texts(), (QStringList{QStringLiteral("&1  my.film"), QStringLiteral("&2  holidays"),
                                   QStringLiteral("-"), QStringLiteral("&Clear List")}));
    QCOMPARE(m_menu->actions().first()->toolTip(),
             QDir::toNativeSeparators(QStringLiteral("/projects/my.film.brevano")));
    QVERIFY(!m_menu->isEmptyList());
}

void tst_RecentMenu::aProjectIsOpenedByItsPath()
{
    const QSignalSpy spy(m_menu.get(), &RecentMenu::sigOpen);
    m_menu->actions().at(1)->trigger();
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.first().first().toString(), QStringLiteral("/projects/holidays.brevano"));
}

void tst_RecentMenu::projectsThatCameLaterAreInItWhenItOpens()
{
    m_memory->noteRecent(QStringLiteral("/projects/new.brevano"));
    m_menu->popup(QPoint());
    QTRY_VERIFY(m_menu->isVisible());
    QCOMPARE(texts().first(), QStringLiteral("&1  new"));
    m_menu->close();
}

void tst_RecentMenu::ampersandsInNamesAreShown()
{
    m_memory->noteRecent(QStringLiteral("/projects/Tom & Ann.brevano"));
    m_menu->refresh();
    QCOMPARE(texts().first(), QStringLiteral("&1  Tom && Ann"));
}

void tst_RecentMenu::theTenthHasNoDigit()
{
    for (int i = 1; i <= 10; ++i)
        m_memory->noteRecent(QStringLiteral("/film%1").arg(i));
    m_menu->refresh();
    QCOMPARE(texts().at(8), QStringLiteral("&9  film2"));
    QCOMPARE(texts().at(9), QStringLiteral("film1"));
}

void tst_RecentMenu::theListCanBeCleared()
{
    m_menu->actions().last()->trigger();
    QCOMPARE(m_memory->recentProjects(), QStringList());
    QCOMPARE(texts(), QStringList(QStringLiteral("No Recent Projects")));
}

void tst_RecentMenu::anEmptyListSaysSo()
{
    m_memory->clearRecent();
    m_menu->refresh();
    QCOMPARE(texts(), QStringList(QStringLiteral("No Recent Projects")));
    QVERIFY(!m_menu->actions().first()->isEnabled());
    QVERIFY(m_menu->isEmptyList());
}

void tst_RecentMenu::aNewLanguageMakesTheTextsAgain()
{
    m_menu->setTitle(QStringLiteral("old"));
    QEvent event(QEvent::LanguageChange);
    QCoreApplication::sendEvent(m_menu.get(), &event);
    QCOMPARE(m_menu->title(), QStringLiteral("Open &Recent"));
}

NX_TEST_MAIN_WIDGETS(tst_RecentMenu)
#include "tst_RecentMenu.moc"
