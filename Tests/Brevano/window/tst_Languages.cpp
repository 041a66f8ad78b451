// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/Languages.h>
#include <Brevano/window/PanelActions.h>
#include <NxMediaLibrary/NxMediaDataModel/NxMediaItemModel.h>
#include <Support/NxTestMain.h>

#include <QAction>
#include <QWidget>
#include <QtTest>

namespace {

/// A window that counts how often it is told of a new language.
class Listener : public QWidget
{
public:
    int changes = 0;

protected:
    void changeEvent(QEvent *event) override
    {
        changes += event->type() == QEvent::LanguageChange ? 1 : 0;
        QWidget::changeEvent(event);
    }
};

} // namespace

class tst_Languages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void eachIsCalledAsItsSpeakersCallIt();
    void theBestOfTheUsersLanguagesIsTaken_data();
    void theBestOfTheUsersLanguagesIsTaken();
    void theSystemsLanguageIsTakenAtFirst();
    void textsOfTheProgramAndOfItsLibrariesChange_data();
    void textsOfTheProgramAndOfItsLibrariesChange();
    void noTwoActionsOfAMenuShareALetter_data();
    void noTwoActionsOfAMenuShareALetter();
    void windowsHearOfAChange();
    void numbersFollowTheLanguage();
    void unknownCodesAreTheSystemsLanguage();
    void everythingIsAsBeforeWhenItGoes();
};

void tst_Languages::cleanup()
{
    QLocale::setDefault(QLocale::c());
}

void tst_Languages::eachIsCalledAsItsSpeakersCallIt()
{
    QStringList all;
    for (const Languages::Language &one : Languages::available())
        all.append(one.code + QLatin1Char(' ') + one.name);
    QCOMPARE(all, (QStringList{QStringLiteral("en English"), QStringLiteral("de Deutsch"),
                               QStringLiteral("zh_CN 简体中文")}));
}

void tst_Languages::theBestOfTheUsersLanguagesIsTaken_data()
{
    QTest::addColumn<QString>("wanted");
    QTest::addColumn<QString>("best");
    const auto row = [](const char *wanted, const char *best) {
        QTest::newRow(wanted) << QString::fromLatin1(wanted) << QString::fromLatin1(best);
    };
    row("", "en");
    row("C", "en");
    row("en-GB", "en");
    row("de-AT", "de");
    row("de_CH", "de");
    row("zh", "zh_CN");
    row("zh-CN", "zh_CN");
    row("zh-SG", "zh_CN");
    row("zh-Hans-HK", "zh_CN");
    row("zh-Hant-TW", "en");
    row("zh-TW", "en");
    row("fr-FR de-DE en-US", "de");
    row("zh-HK de", "de");
}

void tst_Languages::theBestOfTheUsersLanguagesIsTaken()
{
    QFETCH(const QString, wanted);
    QFETCH(const QString, best);
    QCOMPARE(Languages::bestOf(wanted.split(QLatin1Char(' '))), best);
}

void tst_Languages::theSystemsLanguageIsTakenAtFirst()
{
    const Languages languages;
    QCOMPARE(languages.current(), Languages::bestOf(QLocale::system().uiLanguages()));
}

void tst_Languages::textsOfTheProgramAndOfItsLibrariesChange_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("edit");
    QTest::addColumn<QString>("name");
    QTest::newRow("English") << QStringLiteral("en") << QStringLiteral("&Edit")
                             << QStringLiteral("Name");
    QTest::newRow("German") << QStringLiteral("de") << QStringLiteral("&Bearbeiten")
                            << QStringLiteral("Name");
    QTest::newRow("Chinese") << QStringLiteral("zh_CN") << QStringLiteral("编辑(&E)")
                             << QStringLiteral("名称");
}

void tst_Languages::textsOfTheProgramAndOfItsLibrariesChange()
{
    QFETCH(const QString, code);
    QFETCH(const QString, edit);
    QFETCH(const QString, name);
    Languages languages;
    languages.setCurrent(QStringLiteral("de"));
    languages.setCurrent(code);
    QCOMPARE(languages.current(), code);
    QCOMPARE(PanelActions::title(PanelActions::Group::Edit), edit);
    QCOMPARE(NxMediaItemModel::tr("Name"), name);
}

void tst_Languages::noTwoActionsOfAMenuShareALetter_data()
{
    QTest::addColumn<QString>("code");
    for (const Languages::Language &one : Languages::available())
        QTest::newRow(qPrintable(one.code)) << one.code;
}

void tst_Languages::noTwoActionsOfAMenuShareALetter()
{
    QFETCH(const QString, code);
    Languages languages;
    languages.setCurrent(code);
    QWidget window;
    const PanelActions actions(&window);
    for (const PanelActions::Group group : PanelActions::groups()) {
        QStringList letters;
        for (const QAction *action : actions.actions(group)) {
            const QString letter = QKeySequence::mnemonic(action->text()).toString();
            QVERIFY2(!letter.isEmpty(), qPrintable(action->text()));
            QVERIFY2(!letters.contains(letter), qPrintable(action->text()));
            letters.append(letter);
        }
    }
}

void tst_Languages::windowsHearOfAChange()
{
    Languages languages;
    languages.setCurrent(QStringLiteral("en"));
    Listener listener;
    QCoreApplication::sendPostedEvents();
    const auto heard = [&listener] {
        const int before = listener.changes;
        QCoreApplication::sendPostedEvents();
        return listener.changes > before;
    };
    languages.setCurrent(QStringLiteral("de"));
    QVERIFY(heard());
    languages.setCurrent(QStringLiteral("de"));
    QVERIFY(!heard());
    languages.setCurrent(QStringLiteral("zh_CN"));
    QVERIFY(heard());
    languages.setCurrent(QStringLiteral("en"));
    QVERIFY(heard());
}

void tst_Languages::numbersFollowTheLanguage()
{
    Languages languages;
    languages.setCurrent(QStringLiteral("de"));
    QCOMPARE(QLocale().toString(1.5), QStringLiteral("1,5"));
    languages.setCurrent(QStringLiteral("zh_CN"));
    QCOMPARE(QLocale().toString(1.5), QStringLiteral("1.5"));
    QCOMPARE(QLocale().language(), QLocale::Chinese);
}

void tst_Languages::unknownCodesAreTheSystemsLanguage()
{
    Languages languages;
    const QString systems = languages.current();
    languages.setCurrent(QStringLiteral("zh_CN"));
    languages.setCurrent(QStringLiteral("klingon"));
    QCOMPARE(languages.current(), systems);
    languages.setCurrent(QStringLiteral("zh_CN"));
    languages.setCurrent(QString());
    QCOMPARE(languages.current(), systems);
}

void tst_Languages::everythingIsAsBeforeWhenItGoes()
{
    {
        Languages languages;
        languages.setCurrent(QStringLiteral("de"));
    }
    QCOMPARE(PanelActions::title(PanelActions::Group::Edit), QStringLiteral("&Edit"));
    QCOMPARE(QLocale(), QLocale::c());
}

NX_TEST_MAIN_WIDGETS(tst_Languages)
#include "tst_Languages.moc"
