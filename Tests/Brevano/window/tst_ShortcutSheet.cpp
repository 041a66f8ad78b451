// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/PanelActions.h>
#include <Brevano/window/ShortcutSheet.h>
#include <NxWidgets/NxSkinStyle.h>
#include <Support/NxTestMain.h>

#include <QAction>
#include <QCoreApplication>
#include <QTranslator>
#include <QTreeWidget>
#include <QtTest>

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

/// A window with its actions, and the sheet.
struct Stand
{
    QWidget window;
    PanelActions actions{&window};
    ShortcutSheet sheet{&actions, &window};

    [[nodiscard]] QString keysOf(const char *heading, const char *what) const
    {
        for (const auto &row : sheet.rows(QString::fromLatin1(heading))) {
            if (row.first == QLatin1String(what))
                return row.second;
        }
        return QStringLiteral("no such row");
    }
};

} // namespace

/// The window of keyboard shortcuts.
class tst_ShortcutSheet : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void everyActionIsListedInItsGroup();
    void signsOfMenusAreLeftOut();
    void theKeysOfTheListAreListedToo_data();
    void theKeysOfTheListAreListedToo();
    void leavesTheWindowUsable();
    void followsNewKeys();
    void keepsThePlaceWhenActionsAreSwitched();
    void followsTheLanguage();
    void wearsTheSkin();
    void escapeClosesIt();
};

void tst_ShortcutSheet::cleanup()
{
    NxSkinStyle::instance()->setSkin(NxSkin::Dark);
}

void tst_ShortcutSheet::everyActionIsListedInItsGroup()
{
    const Stand s;
    const QStringList headings = s.sheet.headings();
    const QList<PanelActions::Group> groups = PanelActions::groups();
    QCOMPARE(headings.size(), groups.size() + 1);
    for (int i = 0; i < groups.size(); ++i) {
        const QList<QAction *> actions = s.actions.actions(groups.at(i));
        const auto rows = s.sheet.rows(headings.at(i));
        QCOMPARE(rows.size(), actions.size());
        for (int row = 0; row < rows.size(); ++row) {
            QCOMPARE(rows.at(row).first, actions.at(row)->iconText());
            QCOMPARE(rows.at(row).second,
                     actions.at(row)->shortcut().toString(QKeySequence::NativeText));
        }
    }
}

void tst_ShortcutSheet::signsOfMenusAreLeftOut()
{
    const Stand s;
    QVERIFY(s.sheet.headings().contains(QStringLiteral("File")));
    QCOMPARE(s.keysOf("File", "Import Files"), QStringLiteral("Ctrl+I"));
    QCOMPARE(s.keysOf("Help", "Keyboard Shortcuts"), QStringLiteral("F1"));
    QCOMPARE(s.keysOf("Help", "About Brevano"), QString());
}

void tst_ShortcutSheet::theKeysOfTheListAreListedToo_data()
{
    QTest::addColumn<QString>("part");
    for (const char *part : {"Arrow", "Home, End", "Page Up", "Space", "Return",
                             "Shift + move the pointer", "Ctrl + mouse wheel", "Type"})
        QTest::newRow(part) << QString::fromLatin1(part);
}

void tst_ShortcutSheet::theKeysOfTheListAreListedToo()
{
    QFETCH(QString, part);
    const Stand s;
    QStringList keys;
    for (const auto &row : s.sheet.rows(s.sheet.headings().constLast())) {
        QVERIFY(!row.first.isEmpty());
        keys.append(row.second);
    }
    QVERIFY2(!keys.filter(part).isEmpty(), qPrintable(keys.join(QLatin1Char('\n'))));
}

void tst_ShortcutSheet::leavesTheWindowUsable()
{
    const Stand s;
    QVERIFY(!s.sheet.isModal());
    const auto *list = s.sheet.findChild<QTreeWidget *>();
    QVERIFY(!list->accessibleName().isEmpty());
    QVERIFY(list->focusPolicy() & Qt::TabFocus);
    QVERIFY(list->topLevelItem(0)->isExpanded());
}

void tst_ShortcutSheet::followsNewKeys()
{
    Stand s;
    s.sheet.show();
    s.actions.action(PanelActions::Id::About)->setShortcut(QKeySequence(QStringLiteral("F12")));
    QTRY_COMPARE(s.keysOf("Help", "About Brevano"), QStringLiteral("F12"));
}

void tst_ShortcutSheet::keepsThePlaceWhenActionsAreSwitched()
{
    Stand s;
    s.sheet.show();
    auto *list = s.sheet.findChild<QTreeWidget *>();
    QTreeWidgetItem *chosen = list->topLevelItem(2)->child(3);
    list->setCurrentItem(chosen);
    s.actions.action(PanelActions::Id::About)->setEnabled(false);
    s.actions.action(PanelActions::Id::About)->setText(QStringLiteral("Something else"));
    QTRY_COMPARE(s.keysOf("Help", "Something else"), QString());
    QCOMPARE(list->currentItem(), chosen);
}

void tst_ShortcutSheet::followsTheLanguage()
{
    Stand s;
    s.sheet.show();
    LoudLanguage loud;
    QVERIFY(QCoreApplication::installTranslator(&loud));
    QTRY_COMPARE(s.sheet.windowTitle(), QStringLiteral("KEYBOARD SHORTCUTS"));
    s.actions.retranslate();
    QTRY_COMPARE(s.keysOf("FILE", "IMPORT FILES"), QStringLiteral("CTRL+I"));
    for (const QString &heading : s.sheet.headings()) {
        QCOMPARE(heading, heading.toUpper());
        for (const auto &row : s.sheet.rows(heading))
            QCOMPARE(row.first, row.first.toUpper());
    }
    QCoreApplication::removeTranslator(&loud);
    s.actions.retranslate();
    QTRY_COMPARE(s.sheet.windowTitle(), QStringLiteral("Keyboard Shortcuts"));
}

void tst_ShortcutSheet::wearsTheSkin()
{
    const Stand s;
    QCOMPARE(s.sheet.palette().color(QPalette::Window),
             NxSkinStyle::instance()->palette().color(QPalette::Window));
    NxSkinStyle::instance()->setSkin(NxSkin::Light);
    QCOMPARE(s.sheet.palette().color(QPalette::Window),
             NxSkinStyle::instance()->palette().color(QPalette::Window));
}

void tst_ShortcutSheet::escapeClosesIt()
{
    Stand s;
    s.sheet.show();
    QTest::keyClick(s.sheet.findChild<QTreeWidget *>(), Qt::Key_Escape);
    QVERIFY(!s.sheet.isVisible());
}

NX_TEST_MAIN_WIDGETS(tst_ShortcutSheet)
#include "tst_ShortcutSheet.moc"
