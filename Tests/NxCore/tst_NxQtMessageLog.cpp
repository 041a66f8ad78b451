// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/NxLogCapture.h>
#include <NxCore/NxQtMessageLog.h>

#include <Support/NxTestMain.h>

#include <QLoggingCategory>
#include <QTest>

namespace {

Q_LOGGING_CATEGORY(testCategory, "brevano.test")

} // namespace

class tst_NxQtMessageLog : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void forwardsByLevel_data();
    void forwardsByLevel();
    void namesTheCategory();
    void namesTheFunction();
    void stopsWhenItDies();
};

void tst_NxQtMessageLog::forwardsByLevel_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("isError");

    QTest::newRow("debug") << int(QtDebugMsg) << false;
    QTest::newRow("info") << int(QtInfoMsg) << false;
    QTest::newRow("warning") << int(QtWarningMsg) << true;
    QTest::newRow("critical") << int(QtCriticalMsg) << true;
}

void tst_NxQtMessageLog::forwardsByLevel()
{
    QFETCH(int, type);
    QFETCH(bool, isError);
    if (isError)
        NxTestLog::expectError(QStringLiteral("said 100% so"));
    const NxLogCapture capture;
    const NxQtMessageLog forward;
    const QMessageLogContext context("/src/A.cpp", 12, "void A::b(int)", "default");

    qt_message_output(QtMsgType(type), context, QStringLiteral("said 100% so"));

    QCOMPARE(capture.records().size(), 1);
    const NxLogRecord record = capture.records().constFirst();
    QCOMPARE(record.level, isError ? NxLogLevel::Error : NxLogLevel::Info);
    QCOMPARE(record.text, QStringLiteral("said 100% so"));
    QCOMPARE(record.file, QByteArray("A.cpp"));
    QCOMPARE(record.function, QByteArray("A::b"));
    QCOMPARE(record.line, 12);
}

void tst_NxQtMessageLog::namesTheCategory()
{
    const NxLogCapture capture;
    const NxQtMessageLog forward;
    qCInfo(testCategory, "hello");
    QCOMPARE(capture.texts(), QStringList{QStringLiteral("brevano.test: hello")});
}

void tst_NxQtMessageLog::namesTheFunction()
{
    const NxLogCapture capture;
    const NxQtMessageLog forward;
    qt_message_output(QtInfoMsg, QMessageLogContext(), QStringLiteral("from nowhere"));
    QCOMPARE(capture.records().constFirst().function, QByteArray("Qt"));
}

void tst_NxQtMessageLog::stopsWhenItDies()
{
    const NxLogCapture capture;
    {
        const NxQtMessageLog forward;
        qInfo("forwarded");
    }
    qInfo("not forwarded");
    QCOMPARE(capture.texts(), QStringList{QStringLiteral("forwarded")});
}

NX_TEST_MAIN(tst_NxQtMessageLog)
#include "tst_NxQtMessageLog.moc"
