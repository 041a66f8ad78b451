// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/commands/CommandLine.h>
#include <Brevano/commands/Console.h>
#include <Brevano/commands/DialogAnswers.h>
#include <Support/NxTestMain.h>

#include <QtTest>

#include <cstdio>
#include <memory>

/// Standard input is none of a terminal here.
class tst_DialogAnswers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void questionsAreAnsweredByTheOption_data();
    void questionsAreAnsweredByTheOption();
    void whatNeedsNoChoiceIsToldAsARefusal();
    void aQuestionIsToldOnOneLine();
    void theFileIsChosenOnce();
    void bothOptionsContradictEachOther();

private:
    [[nodiscard]] static CommandLine lineOf(const QStringList &words);
};

namespace {

struct FileClose
{
    void operator()(std::FILE *file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, FileClose>;

QByteArray written(std::FILE *file)
{
    std::fflush(file);
    std::rewind(file);
    QByteArray text(4096, '\0');
    text.resize(int(std::fread(text.data(), 1, size_t(text.size()), file)));
    return text;
}

NMessageDialogInfo question()
{
    NMessageDialogInfo info;
    info.text = QStringLiteral("Really?");
    info.buttons = {mdbAffirmative, mdbNegative};
    info.escapeButton = mdbNegative;
    return info;
}

} // namespace

CommandLine tst_DialogAnswers::lineOf(const QStringList &words)
{
    ProgramArguments arguments;
    for (const QString &word : words)
        arguments.append({word, true});
    return *CommandLine::parse(arguments, {CommandOptions::yes, CommandOptions::no});
}

void tst_DialogAnswers::questionsAreAnsweredByTheOption_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<int>("button");
    QTest::addColumn<bool>("declined");
    QTest::addColumn<QByteArray>("said");

    QTest::newRow("yes") << QStringList{QStringLiteral("--yes")} << int(mdbAffirmative) << false
                         << QByteArray();
    QTest::newRow("no") << QStringList{QStringLiteral("--no")} << int(mdbNegative) << true
                        << QByteArray("brevano: Really?\n");
    QTest::newRow("nothing is said")
        << QStringList() << int(mdbNegative) << true
        << QByteArray("brevano: Really?\n  --yes or --no answers it\n");
}

void tst_DialogAnswers::questionsAreAnsweredByTheOption()
{
    QFETCH(QStringList, words);
    QFETCH(int, button);
    QFETCH(bool, declined);
    QFETCH(QByteArray, said);

    const File errors(std::tmpfile());
    Console console(stdout, errors.get());
    DialogAnswers answers(lineOf(words), &console);
    const NMessageDialogAnswer answer = answers.answer(question());
    QCOMPARE(answer.button, button);
    QVERIFY(!answer.isChecked);
    QCOMPARE(answers.isDeclined(), declined);
    QVERIFY(!answers.isRefused());
    QCOMPARE(written(errors.get()), said);
}

void tst_DialogAnswers::whatNeedsNoChoiceIsToldAsARefusal()
{
    const File errors(std::tmpfile());
    Console console(stdout, errors.get());
    DialogAnswers answers(lineOf({QStringLiteral("--no")}), &console);
    NMessageDialogInfo info;
    info.text = QStringLiteral("That is no film.");
    QCOMPARE(answers.answer(info).button, int(mdbAffirmative));
    QVERIFY(answers.isRefused());
    QVERIFY(!answers.isDeclined());
    QCOMPARE(written(errors.get()), QByteArray("brevano: That is no film.\n"));
}

void tst_DialogAnswers::aQuestionIsToldOnOneLine()
{
    const File errors(std::tmpfile());
    Console console(stdout, errors.get());
    DialogAnswers answers(lineOf({QStringLiteral("--no")}), &console);
    NMessageDialogInfo info = question();
    info.text = QStringLiteral("One\nof\x1b[2J two?");
    info.detail = QStringLiteral("It is for good.");
    QCOMPARE(answers.answer(info).button, int(mdbNegative));
    QCOMPARE(written(errors.get()), QByteArray("brevano: One of\\x1b[2J two? It is for good.\n"));
}

void tst_DialogAnswers::theFileIsChosenOnce()
{
    Console console(stdout, stderr);
    DialogAnswers answers(lineOf({}), &console);
    QCOMPARE(answers.chooseFile({}), QString());
    answers.setFile(QStringLiteral("/a.mp4"));
    QCOMPARE(answers.chooseFile({}), QStringLiteral("/a.mp4"));
    QCOMPARE(answers.chooseFile({}), QString());
}

void tst_DialogAnswers::bothOptionsContradictEachOther()
{
    QCOMPARE(DialogAnswers::fault(lineOf({})), QString());
    QCOMPARE(DialogAnswers::fault(lineOf({QStringLiteral("--yes")})), QString());
    QVERIFY(
        !DialogAnswers::fault(lineOf({QStringLiteral("--yes"), QStringLiteral("--no")})).isEmpty());
}

NX_TEST_MAIN(tst_DialogAnswers)
#include "tst_DialogAnswers.moc"
