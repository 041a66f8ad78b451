// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "Command.h"
#include "TranslationFile.h"

#include <Support/NxTempDir.h>
#include <Support/NxTestMain.h>

#include <QFile>
#include <QtTest>

namespace {

const QString folder = QStringLiteral(NX_SOURCE_DIR "/Translations");

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Each text as "context: text", in alphabetical order.
QStringList sourcesOf(const QVector<TranslatedText> &texts)
{
    QStringList all;
    for (const TranslatedText &text : texts)
        all.append(text.context + QLatin1String(": ") + text.source);
    all.sort();
    return all;
}

QStringList without(const QStringList &all, const QStringList &some)
{
    QStringList rest;
    for (const QString &one : all) {
        if (!some.contains(one))
            rest.append(one);
    }
    return rest;
}

} // namespace

class tst_Translations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void aWrongTranslationIsFound_data();
    void aWrongTranslationIsFound();
    void everyTextIsTranslated_data();
    void everyTextIsTranslated();
    void theTextsAreThoseOfTheSources_data();
    void theTextsAreThoseOfTheSources();
    void textsOfHelpersAndOtherNamesAreCollected_data();
    void textsOfHelpersAndOtherNamesAreCollected();

private:
    static void addLanguages();

    const NxTempDir m_fresh;
};

// What the sources say now, with the translations that there are.
void tst_Translations::initTestCase()
{
    const CommandResult result = runCommand(folder + QStringLiteral("/update"), {m_fresh.path()});
    QVERIFY2(result.code == 0, qPrintable(result.errors));
}

void tst_Translations::addLanguages()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("German") << QStringLiteral("brevano_de.ts");
    QTest::newRow("Chinese") << QStringLiteral("brevano_zh_CN.ts");
}

void tst_Translations::aWrongTranslationIsFound_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("translation");
    QTest::addColumn<QString>("fault");
    const auto row = [](const char *name, const char *source, const char *translation,
                        const char *fault) {
        QTest::newRow(name) << QString::fromUtf8(source) << QString::fromUtf8(translation)
                            << QString::fromUtf8(fault);
    };
    row("good", "&Move \"%1\" to %2...", "%1(&M) 移到 %2...", "");
    row("a letter of another alphabet", "Lar&ger", "Gr&ößer", "");
    row("empty", "Move", "", "is empty");
    row("blank", "Move", " ", "is empty");
    row("a value less", "%1 of %2", "%1 von", "has other values in it");
    row("a value twice", "%1 of %2", "%1 von %1 %2", "has other values in it");
    row("another value", "%n found", "%1 gefunden", "has other values in it");
    row("no local number", "%Ln found", "%n gefunden", "has other values in it");
    row("no letter", "&File", "Datei", "has another number of letters to press");
    row("a sign, no letter", "&File", "Da&&tei", "has another number of letters to press");
    row("a letter more", "File", "&Datei", "has another number of letters to press");
    row("no dots", "Open...", "Öffnen", "differs in the dots at its end");
    row("dots too much", "Open", "Öffnen...", "differs in the dots at its end");
    row("one line", "Open\nnow", "Jetzt öffnen", "has another number of lines");
}

void tst_Translations::aWrongTranslationIsFound()
{
    QFETCH(const QString, source);
    QFETCH(const QString, translation);
    QFETCH(const QString, fault);
    const QString entry = QStringLiteral("<message><source>%1</source><translation%2>%3"
                                         "</translation></message>");
    const auto faultOf = [&](const QString &attribute, const QString &content) {
        const QString message = entry.arg(source.toHtmlEscaped(), attribute, content);
        const QVector<TranslatedText> texts =
            TranslationFile::read(QStringLiteral("<TS><context><name>Menu</name>%1</context></TS>")
                                      .arg(message)
                                      .toUtf8());
        return texts.size() == 1 ? texts.first().fault() : QStringLiteral("cannot be read");
    };
    const auto told = [&source](const QString &what) {
        return QStringLiteral("Menu: the translation of \"%1\" %2").arg(source, what);
    };
    const QString form = QStringLiteral("<numerusform>%1</numerusform>");
    const QString content = translation.toHtmlEscaped();
    const QString expected = fault.isEmpty() ? QString() : told(fault);
    QCOMPARE(faultOf(QString(), content), expected);
    QCOMPARE(faultOf(QString(), form.arg(source.toHtmlEscaped()) + form.arg(content)), expected);
    QCOMPARE(faultOf(QStringLiteral(" type=\"unfinished\""), content),
             told(QStringLiteral("is not finished")));
}

void tst_Translations::everyTextIsTranslated_data()
{
    addLanguages();
}

void tst_Translations::everyTextIsTranslated()
{
    QFETCH(const QString, file);
    const QVector<TranslatedText> texts = TranslationFile::read(contentOf(m_fresh.filePath(file)));
    QVERIFY(texts.size() > 400);
    QStringList faults;
    for (const TranslatedText &text : texts) {
        const QString fault = text.fault();
        if (!fault.isEmpty())
            faults.append(fault);
    }
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
}

void tst_Translations::theTextsAreThoseOfTheSources_data()
{
    addLanguages();
}

void tst_Translations::theTextsAreThoseOfTheSources()
{
    QFETCH(const QString, file);
    const QStringList now = sourcesOf(TranslationFile::read(contentOf(m_fresh.filePath(file))));
    const QStringList kept =
        sourcesOf(TranslationFile::read(contentOf(folder + QLatin1Char('/') + file)));
    const QString unknown = without(now, kept).join(QLatin1Char('\n'));
    const QString gone = without(kept, now).join(QLatin1Char('\n'));
    QVERIFY2(unknown.isEmpty(), qPrintable(QLatin1String("run Translations/update: ") + unknown));
    QVERIFY2(gone.isEmpty(), qPrintable(QLatin1String("run Translations/update: ") + gone));
}

void tst_Translations::textsOfHelpersAndOtherNamesAreCollected_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("a class of its own") << QStringLiteral("NxMediaItemModel: Name");
    QTest::newRow("a table") << QStringLiteral("PanelActions: &Quit");
    QTest::newRow("a helper") << QStringLiteral("NxProjectStore: the list of clips breaks off");
    QTest::newRow("a helper, in a string")
        << QStringLiteral("NxProjectStore: is not a Brevano project: %1");
    QTest::newRow("another name of a class")
        << QStringLiteral("NxMediaItemManagerPresenter: Stop asking for now.");
    QTest::newRow("a plural of a cut number")
        << QStringLiteral("NxProjectStore: entries with impossible values are left out: %n");
}

void tst_Translations::textsOfHelpersAndOtherNamesAreCollected()
{
    QFETCH(const QString, text);
    const QString file = m_fresh.filePath(QStringLiteral("brevano_de.ts"));
    QVERIFY(sourcesOf(TranslationFile::read(contentOf(file))).contains(text));
}

NX_TEST_MAIN(tst_Translations)
#include "tst_Translations.moc"
