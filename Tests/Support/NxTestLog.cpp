// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NxTestLog.h"

#include <NxCore/NxLog.h>
#include <NxCore/NxLogCapture.h>

#include <QStringList>

#include <algorithm>
#include <memory>
#include <mutex>
#include <vector>

namespace {

struct Expectation
{
    QString part;
    bool repeats = false;
    bool met = false;
};

/// What the platform says at every turn and no test can help.
const char *const platformNoise[] = {
    // The offscreen platform has no window manager: size hints, raising, grabbing.
    "This plugin does not support ",
    // The offscreen platform has no fonts of its own, only fontconfig's.
    "QFontDatabase: Cannot find font directory",
    // What all programs of a user may watch together is limited.
    "inotify_add_watch(",
};

struct State
{
    std::mutex mutex;
    std::vector<Expectation> expectations;
    QStringList unannounced;
    std::unique_ptr<NxLogCapture> capture;
    int capturedLines = 0; // Lines of the capture that are judged already.
    QtMessageHandler previous = nullptr;
};

State &state()
{
    static State instance;
    return instance;
}

void judge(State &s, const QString &text, const QString &origin)
{
    const auto fits = [&text](const Expectation &expectation) {
        return (expectation.repeats || !expectation.met) && text.contains(expectation.part);
    };
    const auto found = std::find_if(s.expectations.begin(), s.expectations.end(), fits);
    if (found == s.expectations.end())
        s.unannounced += QStringLiteral("not announced: %1 [%2]").arg(text, origin);
    else
        found->met = true;
}

void judgeNewLogLines(State &s)
{
    if (!s.capture)
        return;
    const QVector<NxLogRecord> records = s.capture->records();
    for (; s.capturedLines < records.size(); ++s.capturedLines) {
        const NxLogRecord &record = records.at(s.capturedLines);
        if (record.level == NxLogLevel::Error)
            judge(s, record.text, QString::fromUtf8(record.function));
    }
    s.capture->clear();
    s.capturedLines = 0;
}

bool isNoise(const QString &text)
{
    return std::any_of(std::begin(platformNoise), std::end(platformNoise),
                       [&text](const char *noise) { return text.contains(QLatin1String(noise)); });
}

void onQtMessage(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    State &s = state();
    QtMessageHandler previous = nullptr;
    {
        const std::lock_guard<std::mutex> lock(s.mutex);
        previous = s.previous;
        const bool isComplaint = type == QtWarningMsg || type == QtCriticalMsg;
        if (isComplaint && !isNoise(text))
            judge(s, text, QString::fromUtf8(context.category));
    }
    if (previous)
        previous(type, context, text);
}

void expect(const QString &part, bool repeats)
{
    State &s = state();
    const std::lock_guard<std::mutex> lock(s.mutex);
    judgeNewLogLines(s); // What was said before the announcement is not covered by it.
    s.expectations.push_back({part, repeats, false});
}

} // namespace

void NxTestLog::expectError(const QString &part)
{
    expect(part, false);
}

void NxTestLog::expectErrors(const QString &part)
{
    expect(part, true);
}

void NxTestLog::start()
{
    state().capture = std::make_unique<NxLogCapture>();
}

void NxTestLog::listenToQt()
{
    const QtMessageHandler previous = qInstallMessageHandler(onQtMessage);
    if (previous == onQtMessage)
        return;
    State &s = state();
    const std::lock_guard<std::mutex> lock(s.mutex);
    s.previous = previous;
}

QString NxTestLog::takeComplaints()
{
    State &s = state();
    const std::lock_guard<std::mutex> lock(s.mutex);
    judgeNewLogLines(s);
    QStringList complaints;
    complaints.swap(s.unannounced);
    for (const Expectation &expectation : s.expectations) {
        if (!expectation.met)
            complaints += QStringLiteral("announced, but never came: %1").arg(expectation.part);
    }
    s.expectations.clear();
    return complaints.join(QLatin1Char('\n'));
}
