// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/ImportStatus.h>

#include "ImportYard.h"
#include "ScriptedImport.h"

#include <Support/NxBracketLanguage.h>
#include <Support/NxTestMain.h>

#include <QLabel>
#include <QLocale>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

namespace {

/// The widget in a window, over a project that does what the test says.
struct Stand
{
    Stand()
    {
        window.show();
        status.show(); // As a status bar shows what it is given.
        desk.setProject(&project);
    }
    [[nodiscard]] QString text() const { return status.findChild<QLabel *>()->text(); }
    [[nodiscard]] QProgressBar *bar() const { return status.findChild<QProgressBar *>(); }
    [[nodiscard]] QPushButton *button(const QString &name) const
    {
        const QList<QPushButton *> buttons = status.findChildren<QPushButton *>();
        for (QPushButton *one : buttons) {
            if (one->text() == name)
                return one;
        }
        return nullptr;
    }
    [[nodiscard]] bool shows(const QString &name) const
    {
        const QPushButton *found = button(name);
        return found && found->isVisible();
    }

    ScriptedProject project;
    ImportDesk desk;
    QWidget window;
    ImportStatus status{&desk, &window};
    const QString cancel = QStringLiteral("Cancel");
    const QString report = QStringLiteral("Import Report");
};

NxImportReport refusal()
{
    NxImportReport report;
    report.lines = {{QStringLiteral("/a.txt"), NxImportVerdict::Refused,
                     QStringLiteral("Not a film."), QString()}};
    report.refused = 1;
    report.added = 1'234;
    return report;
}

} // namespace

class tst_ImportStatus : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::English)); }
    void nothingIsShownWhileNothingHappens();
    void anImportTellsHowFarItIs();
    void theBarIsBusyWhileNothingIsAdded();
    void cancelStopsTheImport();
    void readingAloneTellsHowFarItIs();
    void theReportIsOfferedWhenItHasSomethingToTell();
    void anImportThatWentWellLeavesNothingBehind();
    void aFileThatTurnsOutUnreadableBringsTheReport();
    void whyNothingCanBeReadIsTold();
    void closingTheProjectTakesTheReportAway();
    void theTextsAreThoseOfTheLanguageOfNow();
    void theLinkWearsTheColourOfLinks();
    void everyControlHasANameAndTheKeyboard();
};

void tst_ImportStatus::nothingIsShownWhileNothingHappens()
{
    const Stand stand;
    QVERIFY(!stand.status.isVisible());
}

void tst_ImportStatus::anImportTellsHowFarItIs()
{
    Stand stand;
    ScriptedMedia a(QStringLiteral("/a.mp4"));
    ScriptedMedia b(QStringLiteral("/b.mp4"));
    Q_EMIT stand.project.files.progress(1, 1'234, 2, 1);
    Q_EMIT stand.project.files.added(1, {&a, &b});
    stand.project.reader.tell(&a, QString());
    QTRY_COMPARE(stand.text(), QStringLiteral("Importing: 1,234 found, 2 added, 1 read"));
    QVERIFY(stand.status.isVisible());
    QVERIFY(stand.bar()->isVisible());
    QVERIFY(stand.shows(stand.cancel));
    QVERIFY(!stand.shows(stand.report));
    Q_EMIT stand.project.files.finished(1, NxImportReport());
    QVERIFY(!stand.status.isVisible());
}

void tst_ImportStatus::theBarIsBusyWhileNothingIsAdded()
{
    Stand stand;
    ScriptedMedia media(QStringLiteral("/a.mp4"));
    Q_EMIT stand.project.files.progress(1, 10, 0, 0);
    QTRY_VERIFY(stand.bar()->isVisible());
    QCOMPARE(stand.bar()->maximum(), 0);
    Q_EMIT stand.project.files.added(1, {&media});
    QTRY_COMPARE(stand.bar()->maximum(), 10);
    QCOMPARE(stand.bar()->value(), 1);
}

void tst_ImportStatus::cancelStopsTheImport()
{
    Stand stand;
    Q_EMIT stand.project.files.progress(5, 10, 0, 0);
    QTRY_VERIFY(stand.shows(stand.cancel));
    stand.button(stand.cancel)->click();
    QCOMPARE(stand.project.files.cancelled, QList<quint64>{5});
}

void tst_ImportStatus::readingAloneTellsHowFarItIs()
{
    Stand stand;
    Q_EMIT stand.project.reader.progress(12, 3'000);
    QTRY_COMPARE(stand.text(), QStringLiteral("Reading 12 of 3,000"));
    QVERIFY(stand.status.isVisible());
    QCOMPARE(stand.bar()->value(), 12);
    QCOMPARE(stand.bar()->maximum(), 3'000);
    QVERIFY(!stand.shows(stand.cancel));
    Q_EMIT stand.project.reader.progress(3'000, 3'000);
    QTRY_VERIFY(!stand.status.isVisible());
}

void tst_ImportStatus::theReportIsOfferedWhenItHasSomethingToTell()
{
    Stand stand;
    const QSignalSpy asked(&stand.status, &ImportStatus::sigShowReport);
    Q_EMIT stand.project.files.finished(1, refusal());
    QVERIFY(stand.status.isVisible());
    QVERIFY(stand.shows(stand.report));
    QVERIFY(!stand.bar()->isVisible());
    QCOMPARE(stand.button(stand.report)->toolTip(), QStringLiteral("1,234 added, 1 refused"));
    QTest::keyClick(stand.button(stand.report), Qt::Key_Space);
    QCOMPARE(asked.size(), 1);

    Q_EMIT stand.project.files.progress(2, 10, 0, 0); // The next import.
    QTRY_VERIFY(!stand.shows(stand.report));
}

void tst_ImportStatus::anImportThatWentWellLeavesNothingBehind()
{
    ImportYard yard;
    QWidget window;
    ImportStatus status(&yard.desk, &window);
    window.show();
    yard.import({yard.picture(QStringLiteral("a.png"))});
    QCOMPARE(yard.desk.report().added, 1);
    QTRY_VERIFY(!status.isVisible());
    yard.import({yard.path(QStringLiteral("a.png"))});
    QTRY_VERIFY(status.isVisible());
}

void tst_ImportStatus::aFileThatTurnsOutUnreadableBringsTheReport()
{
    Stand stand;
    ScriptedMedia media(QStringLiteral("/a.mp4"));
    Q_EMIT stand.project.files.added(1, {&media});
    Q_EMIT stand.project.files.finished(1, NxImportReport());
    QVERIFY(!stand.shows(stand.report));
    stand.project.reader.tell(&media, QStringLiteral("Cut off."));
    QTRY_VERIFY(stand.shows(stand.report));
    stand.project.reader.tell(&media, QString());
    QTRY_VERIFY(!stand.status.isVisible());
}

void tst_ImportStatus::whyNothingCanBeReadIsTold()
{
    Stand stand;
    const auto *label = stand.status.findChild<QLabel *>();
    stand.project.reader.obstacle = QStringLiteral("The reader is gone. ").repeated(30).trimmed();
    const QString whole = QStringLiteral("Files cannot be read: ") + stand.project.reader.obstacle;
    Q_EMIT stand.project.reader.progress(1, 2);
    QTRY_COMPARE(stand.text(), QStringLiteral("Reading 1 of 2"));
    QCOMPARE(label->toolTip(), QString());
    Q_EMIT stand.project.reader.idle();
    QTRY_COMPARE(label->toolTip(), whole);
    QCOMPARE(label->accessibleName(), whole);
    QVERIFY(stand.status.isVisible());
    QVERIFY(label->isVisible());
    QVERIFY(stand.text().startsWith(QStringLiteral("Files cannot be read: The reader is gone.")));
    QVERIFY(stand.text().size() < whole.size()); // So long that the window would grow.
    QVERIFY(!stand.bar()->isVisible());
    stand.desk.setProject(nullptr);
    QTRY_VERIFY(!stand.status.isVisible());
}

void tst_ImportStatus::closingTheProjectTakesTheReportAway()
{
    Stand stand;
    Q_EMIT stand.project.files.finished(1, refusal());
    QVERIFY(stand.status.isVisible());
    stand.desk.setProject(nullptr);
    QVERIFY(!stand.status.isVisible());
}

void tst_ImportStatus::theTextsAreThoseOfTheLanguageOfNow()
{
    Stand stand;
    Q_EMIT stand.project.reader.progress(1, 2);
    QTRY_VERIFY(!stand.text().isEmpty());
    {
        NxBracketLanguage language;
        QTRY_VERIFY(stand.button(QStringLiteral("[Cancel]")));
        QVERIFY(stand.button(QStringLiteral("[Import Report]")));
        QCOMPARE(stand.text(), QStringLiteral("[Reading 1 of 2]"));
    }
    QTRY_VERIFY(stand.button(stand.cancel));
}

void tst_ImportStatus::theLinkWearsTheColourOfLinks()
{
    Stand stand;
    QPalette colours = stand.window.palette();
    colours.setColor(QPalette::Link, QColor(Qt::magenta));
    stand.window.setPalette(colours);
    QCOMPARE(stand.button(stand.report)->palette().color(QPalette::ButtonText),
             QColor(Qt::magenta));
}

void tst_ImportStatus::everyControlHasANameAndTheKeyboard()
{
    const Stand stand;
    QVERIFY(!stand.bar()->accessibleName().isEmpty());
    QCOMPARE(stand.button(stand.cancel)->accessibleName(), QStringLiteral("Cancel Import"));
    QVERIFY(stand.button(stand.cancel)->focusPolicy() & Qt::TabFocus);
    QVERIFY(stand.button(stand.report)->focusPolicy() & Qt::TabFocus);
}

NX_TEST_MAIN_WIDGETS(tst_ImportStatus)
#include "tst_ImportStatus.moc"
