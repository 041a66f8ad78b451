// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "ProgramRun.h"

#include <Support/NxTestMain.h>

#include <QFile>
#include <QtTest>

namespace {

const QString maker = QStringLiteral(NX_SOURCE_DIR "/Packaging/make-listing");

QByteArray document()
{
    QFile file(QStringLiteral(NX_SOURCE_DIR "/Docs/listing.md"));
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

/// Docs/listing.md is what the program prints of the sample.
class tst_ListingDocument : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theDocumentIsWhatTheProgramPrints();
    void withoutAProgramItTellsItsUsage();
    void aProgramThatFailsLeavesNoPage();
};

void tst_ListingDocument::theDocumentIsWhatTheProgramPrints()
{
    const ProgramResult made =
        ProgramRun::runShell(QStringLiteral("exec \"$1\" \"$BREVANO\""), {maker});
    VERIFY_CODE(made, 0);
    QCOMPARE(made.errors, QByteArray());
    const QList<QByteArray> fresh = made.output.split('\n');
    const QList<QByteArray> written = document().split('\n');
    for (int line = 0; line < qMin(fresh.size(), written.size()); ++line)
        QCOMPARE(written.at(line), fresh.at(line));
    QCOMPARE(written.size(), fresh.size());
}

void tst_ListingDocument::withoutAProgramItTellsItsUsage()
{
    const ProgramResult result = ProgramRun::runShell(QStringLiteral("exec \"$1\""), {maker});
    VERIFY_CODE(result, 2);
    QVERIFY2(result.errors.startsWith("Usage: make-listing"), result.story().constData());
}

void tst_ListingDocument::aProgramThatFailsLeavesNoPage()
{
    const ProgramResult result =
        ProgramRun::runShell(QStringLiteral("exec \"$1\" /bin/false"), {maker});
    VERIFY_CODE(result, 1);
    QCOMPARE(result.output, QByteArray());
}

NX_TEST_MAIN(tst_ListingDocument)
#include "tst_ListingDocument.moc"
