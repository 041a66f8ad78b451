// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxWidgets/NxDialogScript.h>

#include "ScriptedUser.h"

#include <NxCore/NxLogCapture.h>
#include <NxWidgets/NMessageDialog.h>
#include <NxWidgets/NxFileDialog.h>
#include <Support/NxTestMain.h>

#include <QApplication>
#include <QDir>
#include <QTest>

#include <optional>

using Codes = QList<int>;

namespace {

/// Answers every dialog alike, possible or not.
class Parrot : public INxDialogAnswerer
{
public:
    explicit Parrot(const NMessageDialogAnswer &answer) : m_answer(answer) {}
    explicit Parrot(const QString &path) : m_path(path) {}

    NMessageDialogAnswer answer(const NMessageDialogInfo &) override { return m_answer; }
    QString chooseFile(const NxFileDialogInfo &) override { return m_path; }

private:
    const NMessageDialogAnswer m_answer;
    const QString m_path;
};

NMessageDialogInfo yesOrNo()
{
    NMessageDialogInfo info;
    info.text = QStringLiteral("Are you sure you want to delete the selected item?");
    info.buttons = {mdbAffirmative, mdbNegative};
    info.escapeButton = mdbNegative;
    return info;
}

NMessageDialogAnswer ask(const NMessageDialogInfo &info)
{
    return NMessageDialog::Ask(nullptr, info);
}

/// A script's choice in a dialog that begins elsewhere.
QString chosen(const QString &path)
{
    Parrot parrot(path);
    const NxDialogScript script(&parrot);
    return NxFileDialog::getOpenFileName(nullptr, {}, QDir::rootPath(), {});
}

} // namespace

class tst_NxDialogScript : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void nobodyAnswersWithoutAScript();
    void theLatestScriptAnswers();
    void answersWithoutAWindowSystem();
    void pressesTheButtonsOfADialog_data();
    void pressesTheButtonsOfADialog();
    void refusesButtonsThatNobodySees_data();
    void refusesButtonsThatNobodySees();
    void checksOnlyABoxThatIsThere_data();
    void checksOnlyABoxThatIsThere();
    void answersQuestions_data();
    void answersQuestions();
    void isToldSomething();
    void choosesAFile_data();
    void choosesAFile();
    void seesWhatIsAskedFor();
    void mayAskWhileItAnswers();
    void userComplainsAboutUnexpectedDialogs_data();
    void userComplainsAboutUnexpectedDialogs();
    void userComplainsAboutMissingDialogs();
    void userComplainsAboutAMissingCheckBox();
};

void tst_NxDialogScript::nobodyAnswersWithoutAScript()
{
    QVERIFY(!NxDialogScript::current());
}

void tst_NxDialogScript::theLatestScriptAnswers()
{
    Parrot yes(NMessageDialogAnswer{mdbAffirmative, false});
    Parrot no(NMessageDialogAnswer{mdbNegative, false});
    {
        const NxDialogScript outer(&yes);
        QCOMPARE(NxDialogScript::current(), &yes);
        {
            const NxDialogScript inner(&no);
            QCOMPARE(NxDialogScript::current(), &no);
            QCOMPARE(ask(yesOrNo()).button, int(mdbNegative));
        }
        QCOMPARE(NxDialogScript::current(), &yes);
        QCOMPARE(ask(yesOrNo()).button, int(mdbAffirmative));
    }
    QVERIFY(!NxDialogScript::current());
}

void tst_NxDialogScript::answersWithoutAWindowSystem()
{
    QVERIFY(!qobject_cast<QGuiApplication *>(QCoreApplication::instance()));
    ScriptedUser user;
    user.press(mdbAffirmative);
    QCOMPARE(ask(yesOrNo()).button, int(mdbAffirmative));
}

void tst_NxDialogScript::pressesTheButtonsOfADialog_data()
{
    QTest::addColumn<Codes>("shown");
    QTest::addColumn<int>("escape");
    QTest::addColumn<int>("pressed");
    const Codes three{mdbAffirmative, mdbNegative, mdbClosed};
    QTest::newRow("yes") << three << int(mdbClosed) << int(mdbAffirmative);
    QTest::newRow("no") << three << int(mdbClosed) << int(mdbNegative);
    QTest::newRow("close") << three << int(mdbNegative) << int(mdbClosed);
    QTest::newRow("the escape button is not shown") << three << 99 << 99;
    QTest::newRow("of its own") << Codes{77} << int(mdbClosed) << 77;
    QTest::newRow("the only one") << Codes{} << int(mdbClosed) << int(mdbAffirmative);
}

void tst_NxDialogScript::pressesTheButtonsOfADialog()
{
    QFETCH(Codes, shown);
    QFETCH(int, escape);
    QFETCH(int, pressed);
    NMessageDialogInfo info = yesOrNo();
    info.buttons = shown;
    info.escapeButton = escape;
    ScriptedUser user;
    user.press(pressed);
    QCOMPARE(ask(info).button, pressed);
}

void tst_NxDialogScript::refusesButtonsThatNobodySees_data()
{
    QTest::addColumn<Codes>("shown");
    QTest::addColumn<int>("escape");
    QTest::addColumn<int>("pressed");
    const Codes two{mdbAffirmative, mdbNegative};
    QTest::newRow("not shown") << two << int(mdbNegative) << int(mdbClosed);
    QTest::newRow("no code at all") << two << int(mdbClosed) << 0;
    QTest::newRow("not even a no") << Codes{} << int(mdbClosed) << int(mdbNegative);
    QTest::newRow("no yes either") << Codes{mdbNegative} << int(mdbClosed) << int(mdbAffirmative);
}

void tst_NxDialogScript::refusesButtonsThatNobodySees()
{
    QFETCH(Codes, shown);
    QFETCH(int, escape);
    QFETCH(int, pressed);
    NMessageDialogInfo info = yesOrNo();
    info.buttons = shown;
    info.escapeButton = escape;
    Parrot parrot(NMessageDialogAnswer{pressed, false});
    const NxDialogScript script(&parrot);
    NxTestLog::expectError(QStringLiteral("selected item?\" has no button %1").arg(pressed));
    const NxLogCapture log;
    QCOMPARE(ask(info).button, escape);
    QCOMPARE(log.records().size(), 1);
    QCOMPARE(log.records().first().level, NxLogLevel::Error);
    QCOMPARE(log.records().first().function, QByteArray("NMessageDialog::Ask"));
}

void tst_NxDialogScript::checksOnlyABoxThatIsThere_data()
{
    QTest::addColumn<QString>("caption");
    QTest::addColumn<bool>("checks");
    QTest::addColumn<bool>("isChecked");
    const QString caption = QStringLiteral("Stop asking for now.");
    QTest::newRow("checked") << caption << true << true;
    QTest::newRow("not checked") << caption << false << false;
    QTest::newRow("no box") << QString() << true << false;
    QTest::newRow("no box, nothing checked") << QString() << false << false;
}

void tst_NxDialogScript::checksOnlyABoxThatIsThere()
{
    QFETCH(QString, caption);
    QFETCH(bool, checks);
    QFETCH(bool, isChecked);
    NMessageDialogInfo info = yesOrNo();
    info.checkBoxText = caption;
    info.isCheckBoxChecked = !checks;
    Parrot parrot(NMessageDialogAnswer{mdbNegative, checks});
    const NxDialogScript script(&parrot);
    const NMessageDialogAnswer answer = ask(info);
    QCOMPARE(answer.button, int(mdbNegative));
    QCOMPARE(answer.isChecked, isChecked);
}

void tst_NxDialogScript::answersQuestions_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<bool>("isYes");
    QTest::newRow("yes") << int(mdbAffirmative) << true;
    QTest::newRow("no") << int(mdbNegative) << false;
}

void tst_NxDialogScript::answersQuestions()
{
    QFETCH(int, button);
    QFETCH(bool, isYes);
    ScriptedUser user;
    user.press(button).escape();
    const QString title = QStringLiteral("Alert");
    const QString text = QStringLiteral("Are you sure you want to delete the selected folder?");
    QCOMPARE(NMessageDialog::Question_YesNo(nullptr, title, text), isYes);
    QCOMPARE(NMessageDialog::Question_YesNo(nullptr, title, text), false);
    const NMessageDialogInfo asked = user.messages().first();
    QCOMPARE(asked.style, int(mdsQuestion));
    QCOMPARE(asked.title, title);
    QCOMPARE(asked.text, text);
    QCOMPARE(asked.buttons, (Codes{mdbAffirmative, mdbNegative}));
    QCOMPARE(asked.defaultButton, int(mdbAffirmative));
    QCOMPARE(asked.escapeButton, int(mdbNegative));
}

void tst_NxDialogScript::isToldSomething()
{
    ScriptedUser user;
    user.press(mdbAffirmative).escape();
    NMessageDialog::Infomation(nullptr, QStringLiteral("Relink"), QStringLiteral("Too short."));
    NMessageDialog::Infomation(nullptr, {}, QStringLiteral("Too long."));
    const NMessageDialogInfo told = user.messages().first();
    QCOMPARE(told.style, int(mdsMessage));
    QCOMPARE(told.title, QStringLiteral("Relink"));
    QCOMPARE(told.text, QStringLiteral("Too short."));
    QVERIFY(told.buttons.isEmpty());
    QCOMPARE(user.messages().last().text, QStringLiteral("Too long."));
    QCOMPARE(user.dialogs(), 2);
}

void tst_NxDialogScript::choosesAFile_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("cleaned");
    const auto row = [](const char *name, const QString &path, const QString &cleaned) {
        QTest::newRow(name) << path << cleaned;
    };
    const QString root = QDir::rootPath();
    const QString here = QDir::currentPath() + QLatin1Char('/');
    row("none", {}, {});
    row("whole", root + QStringLiteral("footage/a.mp4"), root + QStringLiteral("footage/a.mp4"));
    row("detours", root + QStringLiteral("x//../footage/./a.mp4"),
        root + QStringLiteral("footage/a.mp4"));
    row("short", QStringLiteral("a.mp4"), here + QStringLiteral("a.mp4"));
    row("as the system writes it", QDir::toNativeSeparators(here + QStringLiteral("day 1/a.mp4")),
        here + QStringLiteral("day 1/a.mp4"));
}

void tst_NxDialogScript::choosesAFile()
{
    QFETCH(QString, path);
    QFETCH(QString, cleaned);
    QCOMPARE(chosen(path), cleaned);
}

void tst_NxDialogScript::seesWhatIsAskedFor()
{
    ScriptedUser user;
    user.choose({});
    const QString title = QStringLiteral("Relink");
    const QString folder = QStringLiteral("/footage");
    const QString filter = QStringLiteral("*.MP4;*.MOV");
    QVERIFY(NxFileDialog::getOpenFileName(nullptr, title, folder, filter).isEmpty());
    QCOMPARE(user.dialogs(), 1);
    const NxFileDialogInfo asked = user.fileDialogs().first();
    QCOMPARE(asked.title, title);
    QCOMPARE(asked.directory, folder);
    QCOMPARE(asked.filter, filter);
}

void tst_NxDialogScript::mayAskWhileItAnswers()
{
    ScriptedUser user;
    std::optional<bool> inner;
    user.press(mdbAffirmative).whileOpen([&inner] {
        inner = NMessageDialog::Question_YesNo(nullptr, {}, QStringLiteral("Really?"));
    });
    user.press(mdbNegative);
    QCOMPARE(ask(yesOrNo()).button, int(mdbAffirmative));
    QCOMPARE(inner, std::optional<bool>(false));
    QCOMPARE(user.messages().last().text, QStringLiteral("Really?"));
    QCOMPARE(user.waiting(), 0);
}

void tst_NxDialogScript::userComplainsAboutUnexpectedDialogs_data()
{
    QTest::addColumn<bool>("isFileExpected");
    QTest::newRow("nothing was expected") << false;
    QTest::newRow("a dialog of the other kind was expected") << true;
}

void tst_NxDialogScript::userComplainsAboutUnexpectedDialogs()
{
    QFETCH(bool, isFileExpected);
    NxTestLog::expectError(QStringLiteral("nobody expected this dialog: \"Are you sure"));
    ScriptedUser user;
    if (isFileExpected)
        user.choose({});
    QCOMPARE(ask(yesOrNo()).button, int(mdbNegative));
    QCOMPARE(user.waiting(), isFileExpected ? 1 : 0);
    if (isFileExpected)
        QVERIFY(NxFileDialog::getOpenFileName(nullptr, {}, {}, {}).isEmpty());
}

void tst_NxDialogScript::userComplainsAboutMissingDialogs()
{
    NxTestLog::expectError(QStringLiteral("2 dialogs never came up"));
    ScriptedUser user;
    user.press(mdbAffirmative).choose({});
}

void tst_NxDialogScript::userComplainsAboutAMissingCheckBox()
{
    NxTestLog::expectError(QStringLiteral("has no check box"));
    ScriptedUser user;
    user.checkAndPress(mdbNegative);
    QVERIFY(!ask(yesOrNo()).isChecked);
}

int main(int argc, char **argv)
{
    return nxRunTest<QCoreApplication, tst_NxDialogScript>(argc, argv);
}
#include "tst_NxDialogScript.moc"
