// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/SearchField.h>

#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaItemManagerPresenter.h>
#include <NxMediaLibrary/PanelYard.h>
#include <NxMediaLibrary/TextLines.h>
#include <Support/NxBracketLanguage.h>
#include <Support/NxTestMain.h>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QShortcut>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>
#include <QVBoxLayout>

using namespace NXMEDIALIBRARY;
using Items = NxMediaItemManagerPresenter;

namespace {

const QStringList AllRows = lines({"abc.mov", "abd.mov", "xyz.mov"});

/// Three media in the panel, and a window with the field.
struct Window : PanelYard
{
    Window()
    {
        add(lines({"abc.mov", "abd.mov", "xyz.mov"}));
        auto *column = new QVBoxLayout(&window);
        column->addWidget(field);
        window.resize(360, 80);
        field->setPresenter(items());
        window.show();
        window.activateWindow();
        field->activate();
        QVERIFY(QTest::qWaitForWindowActive(&window));
    }

    void type(const char *text) const { QTest::keyClicks(edit(), QString::fromUtf8(text)); }
    void pressKey(Qt::Key key) const { QTest::keyClick(edit(), key); }
    QLineEdit *edit() const { return field->findChild<QLineEdit *>(); }
    QLabel *count() const { return field->findChild<QLabel *>(); }
    QToolButton *clearButton() const
    {
        const QList<QToolButton *> buttons = edit()->findChildren<QToolButton *>();
        for (QToolButton *button : buttons) {
            if (button->x() > edit()->width() / 2)
                return button;
        }
        return nullptr;
    }

    QWidget window;
    SearchField *field = new SearchField(&window);
};

} // namespace

/// The field in which users search by name.
class tst_SearchField : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void everyKeySearches();
    void theLatestTextCountsWhenKeysComeDuringASearch();
    void whatASearchChangesIsShown();
    void typingEndsASearchForLikes();
    void keysLeave_data();
    void keysLeave();
    void escIsTheFieldsThoughTheWindowHasAShortcut();
    void theButtonClears();
    void theFieldFollowsWhoeverSearches();
    void theCountStandsInTheField();
    void theCountThatCameFirstIsShownInTheWindow();
    void theCountStandsOnTheLeftFromRightToLeft();
    void theCountGivesWayToTheText();
    void typedTextNeverLiesUnderTheCount();
    void activatingSelectsTheText();
    void withoutAPresenterNothingCanBeTyped();
    void aPresenterMayDie();
    void theFieldMayDieDuringASearch();
    void textsFollowTheLanguage();
};

void tst_SearchField::everyKeySearches()
{
    const Window window;
    window.type("a");
    QCOMPARE(window.rows(), lines({"abc.mov", "abd.mov"}));
    window.type("bd");
    QCOMPARE(window.rows(), lines({"abd.mov"}));
    window.pressKey(Qt::Key_Backspace);
    QCOMPARE(window.rows(), lines({"abc.mov", "abd.mov"}));
    QCOMPARE(window.items()->getFilter().searchMode, int(esmKeyword));
    window.pressKey(Qt::Key_Backspace);
    window.pressKey(Qt::Key_Backspace);
    QCOMPARE(window.rows(), AllRows);
}

void tst_SearchField::theLatestTextCountsWhenKeysComeDuringASearch()
{
    const Window window;
    QStringList keywords;
    connect(window.items(), &Items::sigFilterKeywordChanged, &window.window, [&] {
        keywords.append(window.items()->getFilter().keyword);
        if (keywords.size() == 1)
            window.type("bd");
    });
    window.type("a");
    QCOMPARE(keywords, lines({"a", "abd"}));
    QCOMPARE(window.edit()->text(), QStringLiteral("abd"));
    QCOMPARE(window.rows(), lines({"abd.mov"}));
}

void tst_SearchField::whatASearchChangesIsShown()
{
    const Window window;
    connect(window.items(), &Items::sigFilterKeywordChanged, &window.window,
            [&] { window.items()->setFilterKeyword(QStringLiteral("xyz"), esmKeyword); });
    window.type("a");
    QCOMPARE(window.edit()->text(), QStringLiteral("xyz"));
}

void tst_SearchField::typingEndsASearchForLikes()
{
    NxTestLog::expectError(QStringLiteral("search folder is nullptr"));
    const Window window;
    window.items()->setFilterSimilarResource(7, NXVBLMODEL::mctAudio, QString(), true, false);
    QCOMPARE(window.items()->getFilter().searchMode, int(esmSimilar));
    window.type("x");
    const NxMediaItemViewFilter filter = window.items()->getFilter();
    QCOMPARE(filter.searchMode, int(esmKeyword));
    QCOMPARE(filter.similarResourceId, qint64(0));
    QVERIFY(!filter.showBar);
}

void tst_SearchField::keysLeave_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("keyword");
    QTest::newRow("Esc clears and leaves") << int(Qt::Key_Escape) << QString();
    QTest::newRow("Down leaves") << int(Qt::Key_Down) << QStringLiteral("abd");
}

void tst_SearchField::keysLeave()
{
    QFETCH(const int, key);
    const Window window;
    window.type("abd");
    QSignalSpy left(window.field, &SearchField::sigLeave);
    window.pressKey(Qt::Key(key));
    QCOMPARE(left.count(), 1);
    QTEST(window.items()->getFilter().keyword, "keyword");
    QTEST(window.edit()->text(), "keyword");
}

void tst_SearchField::escIsTheFieldsThoughTheWindowHasAShortcut()
{
    Window window;
    const QShortcut shortcut(QKeySequence(Qt::Key_Escape), &window.window);
    QSignalSpy used(&shortcut, &QShortcut::activated);
    window.type("a");
    window.pressKey(Qt::Key_Escape);
    QCOMPARE(window.rows(), AllRows);
    QCOMPARE(used.count(), 0);
}

void tst_SearchField::theButtonClears()
{
    const Window window;
    window.type("xyz");
    QCOMPARE(window.rows(), lines({"xyz.mov"}));
    QVERIFY(window.clearButton());
    QTest::mouseClick(window.clearButton(), Qt::LeftButton);
    QCOMPARE(window.rows(), AllRows);
}

void tst_SearchField::theFieldFollowsWhoeverSearches()
{
    NxTestLog::expectError(QStringLiteral("search folder is nullptr"));
    const Window window;
    window.items()->setFilterKeyword(QStringLiteral("xyz"), esmKeyword);
    QCOMPARE(window.edit()->text(), QStringLiteral("xyz"));
    window.items()->setFilterSimilarResource(7, NXVBLMODEL::mctAudio, QString(), false, false);
    QCOMPARE(window.edit()->text(), QString());
}

void tst_SearchField::theCountStandsInTheField()
{
    const Window window;
    QVERIFY(!window.count()->isVisible());
    window.field->setResultCount(12);
    QVERIFY(window.count()->isVisible());
    QCOMPARE(window.count()->text(), QStringLiteral("12 found"));
    QVERIFY(window.edit()->rect().contains(window.count()->geometry()));
    QVERIFY(!window.clearButton()->geometry().intersects(window.count()->geometry()));
    window.field->setResultCount(0);
    QCOMPARE(window.count()->text(), QStringLiteral("0 found"));
    window.field->setResultCount(-1);
    QVERIFY(!window.count()->isVisible());
}

void tst_SearchField::theCountThatCameFirstIsShownInTheWindow()
{
    QWidget window;
    auto *column = new QVBoxLayout(&window);
    auto *field = new SearchField(&window);
    column->addWidget(field);
    field->setResultCount(12);
    window.resize(360, 80);
    window.show();
    QVERIFY(field->findChild<QLabel *>()->isVisible());
}

void tst_SearchField::theCountStandsOnTheLeftFromRightToLeft()
{
    QWidget window;
    window.setLayoutDirection(Qt::RightToLeft);
    auto *column = new QVBoxLayout(&window);
    auto *field = new SearchField(&window);
    column->addWidget(field);
    window.resize(360, 80);
    window.show();
    field->setResultCount(12);
    const auto *count = field->findChild<QLabel *>();
    const auto *edit = field->findChild<QLineEdit *>();
    QVERIFY(count->isVisible());
    QVERIFY(edit->rect().contains(count->geometry()));
    QVERIFY(count->geometry().right() < edit->width() / 2);
    QVERIFY(edit->textMargins().left() > count->width());
}

void tst_SearchField::theCountGivesWayToTheText()
{
    Window window;
    window.field->setResultCount(12);
    window.window.resize(130, 80);
    QTRY_VERIFY(!window.count()->isVisible());
    window.window.resize(360, 80);
    QTRY_VERIFY(window.count()->isVisible());
    QVERIFY(window.edit()->rect().contains(window.count()->geometry()));
    QVERIFY(!window.clearButton()->geometry().intersects(window.count()->geometry()));
}

void tst_SearchField::typedTextNeverLiesUnderTheCount()
{
    const Window window;
    const int before = window.edit()->textMargins().right();
    window.field->setResultCount(12);
    QVERIFY(window.edit()->textMargins().right() >= before + window.count()->width());
    window.field->setResultCount(-1);
    QCOMPARE(window.edit()->textMargins().right(), before);
}

void tst_SearchField::activatingSelectsTheText()
{
    const Window window;
    window.type("abd");
    window.edit()->clearFocus();
    window.field->activate();
    QVERIFY(window.edit()->hasFocus());
    QCOMPARE(window.edit()->selectedText(), QStringLiteral("abd"));
}

void tst_SearchField::withoutAPresenterNothingCanBeTyped()
{
    const Window window;
    window.type("abd");
    window.field->setPresenter(nullptr);
    QVERIFY(!window.edit()->isEnabled());
    QCOMPARE(window.edit()->text(), QString());
    QCOMPARE(window.items()->getFilter().keyword, QStringLiteral("abd"));
    window.field->setPresenter(window.items());
    QVERIFY(window.edit()->isEnabled());
    QCOMPARE(window.edit()->text(), QStringLiteral("abd"));
}

void tst_SearchField::aPresenterMayDie()
{
    const Window window;
    auto other = std::make_unique<Items>(nullptr, nullptr);
    other->setFilterKeyword(QStringLiteral("q"), esmKeyword);
    window.field->setPresenter(other.get());
    QCOMPARE(window.edit()->text(), QStringLiteral("q"));
    other.reset();
    QVERIFY(!window.edit()->isEnabled());
    QCOMPARE(window.edit()->text(), QString());
}

void tst_SearchField::theFieldMayDieDuringASearch()
{
    Window window;
    auto *other = new SearchField(&window.window);
    other->setPresenter(window.items());
    other->show();
    connect(window.items(), &Items::sigFilterKeywordChanged, other, [other] { delete other; });
    const QPointer<SearchField> alive(other);
    auto *edit = other->findChild<QLineEdit *>();
    edit->setText(QStringLiteral("xyz"));
    Q_EMIT edit->textEdited(edit->text()); // As a key would, but for what Qt does after it.
    QVERIFY(!alive);
    QCOMPARE(window.edit()->text(), QStringLiteral("xyz"));
}

void tst_SearchField::textsFollowTheLanguage()
{
    const Window window;
    QCOMPARE(window.edit()->placeholderText(), QStringLiteral("Name"));
    window.field->setResultCount(3);
    const NxBracketLanguage language;
    QTRY_COMPARE(window.edit()->placeholderText(), QStringLiteral("[Name]"));
    QCOMPARE(window.edit()->accessibleName(), QStringLiteral("[Search by name]"));
    QCOMPARE(window.count()->text(), QStringLiteral("[3 found]"));
}

NX_TEST_MAIN_WIDGETS(tst_SearchField)
#include "tst_SearchField.moc"
