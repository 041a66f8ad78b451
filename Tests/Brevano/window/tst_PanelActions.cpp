// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/PanelActions.h>
#include <Support/NxTestMain.h>

#include <QAction>
#include <QCoreApplication>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QTranslator>
#include <QWidget>
#include <QtTest>

namespace {

/// Says everything in capitals.
class LoudLanguage final : public QTranslator
{
public:
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        return qstrcmp(context, "PanelActions") == 0 ? QString::fromUtf8(source).toUpper()
                                                     : QString();
    }
    bool isEmpty() const override { return false; }
};

QSet<QString> matches(const QString &text, const QString &pattern)
{
    QSet<QString> found;
    QRegularExpressionMatchIterator it = QRegularExpression(pattern).globalMatch(text);
    while (it.hasNext())
        found.insert(it.next().captured(1));
    return found;
}

/// The names that the sources give to steps of the history.
QSet<QString> namedSteps()
{
    QSet<QString> names;
    QDirIterator files(QStringLiteral(NX_SOURCE_DIR "/Src"), {QStringLiteral("*.cpp")}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        if (!file.open(QIODevice::ReadOnly))
            continue;
        const QString text = QString::fromUtf8(file.readAll());
        // NxUndoRedoCommander step(stack, "Class::function", "name");
        names += matches(text, QStringLiteral("NxUndoRedoCommander \\w+\\([^;]*"
                                              "QStringLiteral\\(\"(\\w+)\"\\)\\);"));
        // = step(memory(), "name");
        names += matches(text, QStringLiteral("NxUndoRedoCommander \\w+ =\\s*step\\([^;]*"
                                              "\"(\\w+)\"\\);"));
    }
    return names;
}

QList<QAction *> allActions(const PanelActions &actions)
{
    QList<QAction *> all;
    for (const PanelActions::Group group : PanelActions::groups())
        all += actions.actions(group);
    return all;
}

} // namespace

/// What the user can do in the window.
class tst_PanelActions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyActionStandsInOneGroup();
    void everyActionHasATextOfItsOwn();
    void noTwoActionsShareAShortcut();
    void noTwoActionsOfAMenuShareALetter();
    void theShortcutsAreTheWindows();
    void everyGroupHasATitle();
    void everyStepOfTheHistoryHasATitle();
    void anUnknownStepKeepsItsName();
    void textsFollowTheLanguage();
};

void tst_PanelActions::everyActionStandsInOneGroup()
{
    QWidget window;
    const PanelActions actions(&window);
    const QList<QAction *> all = allActions(actions);
    for (int id = 0; id <= int(PanelActions::Id::About); ++id) {
        const QAction *action = actions.action(PanelActions::Id(id));
        QVERIFY2(action, qPrintable(QString::number(id)));
        QCOMPARE(std::count(all.begin(), all.end(), action), 1);
    }
    QCOMPARE(all.size(), int(PanelActions::Id::About) + 1);
}

void tst_PanelActions::everyActionHasATextOfItsOwn()
{
    QWidget window;
    const PanelActions actions(&window);
    QSet<QString> texts;
    for (const QAction *action : allActions(actions)) {
        QVERIFY(!action->iconText().isEmpty());
        QVERIFY2(!texts.contains(action->text()), qPrintable(action->text()));
        texts.insert(action->text());
    }
}

void tst_PanelActions::noTwoActionsShareAShortcut()
{
    QWidget window;
    const PanelActions actions(&window);
    QSet<QString> keys;
    for (const QAction *action : allActions(actions)) {
        for (const QKeySequence &shortcut : action->shortcuts()) {
            const QString text = shortcut.toString();
            QVERIFY2(!keys.contains(text), qPrintable(text));
            keys.insert(text);
        }
    }
    QVERIFY(keys.contains(QStringLiteral("F1")));
}

void tst_PanelActions::noTwoActionsOfAMenuShareALetter()
{
    QWidget window;
    const PanelActions actions(&window);
    for (const PanelActions::Group group : PanelActions::groups()) {
        QSet<QString> letters;
        for (const QAction *action : actions.actions(group)) {
            const QString letter = QKeySequence::mnemonic(action->text()).toString();
            QVERIFY2(!letter.isEmpty(), qPrintable(action->text()));
            QVERIFY2(!letters.contains(letter), qPrintable(action->text()));
            letters.insert(letter);
        }
    }
}

void tst_PanelActions::theShortcutsAreTheWindows()
{
    QWidget window;
    const PanelActions actions(&window);
    for (QAction *action : allActions(actions))
        QVERIFY(window.actions().contains(action));
}

void tst_PanelActions::everyGroupHasATitle()
{
    QSet<QString> titles;
    for (const PanelActions::Group group : PanelActions::groups()) {
        QVERIFY(!PanelActions::title(group).isEmpty());
        titles.insert(PanelActions::title(group));
    }
    QCOMPARE(titles.size(), PanelActions::groups().size());
}

void tst_PanelActions::everyStepOfTheHistoryHasATitle()
{
    const QSet<QString> names = namedSteps();
    for (const char *known : {"deleteMediaItems", "addFolder", "importMedia", "addComposite"})
        QVERIFY2(names.contains(QLatin1String(known)), known); // They are found at all.
    for (const QString &name : names)
        QVERIFY2(PanelActions::stepTitle(name) != name, qPrintable(name));
}

void tst_PanelActions::anUnknownStepKeepsItsName()
{
    QCOMPARE(PanelActions::stepTitle(QStringLiteral("walkTheDog")), QStringLiteral("walkTheDog"));
    QCOMPARE(PanelActions::stepTitle(QString()), QString());
}

void tst_PanelActions::textsFollowTheLanguage()
{
    QWidget window;
    PanelActions actions(&window);
    const QString before = actions.action(PanelActions::Id::Quit)->text();
    LoudLanguage loud;
    QVERIFY(QCoreApplication::installTranslator(&loud));
    actions.retranslate();
    for (const QAction *action : allActions(actions))
        QCOMPARE(action->text(), action->text().toUpper());
    QCOMPARE(PanelActions::stepTitle(QStringLiteral("addFolder")), QStringLiteral("NEW FOLDER"));
    QCoreApplication::removeTranslator(&loud);
    actions.retranslate();
    QCOMPARE(actions.action(PanelActions::Id::Quit)->text(), before);
}

NX_TEST_MAIN_WIDGETS(tst_PanelActions)
#include "tst_PanelActions.moc"
