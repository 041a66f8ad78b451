// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/NxQtMessageLog.h>

#include <NxCore/NxLog.h>

#include <QString>

#include <cstring>

namespace {

NxLogLevel levelOf(QtMsgType type)
{
    const bool isHarmless = type == QtDebugMsg || type == QtInfoMsg;
    return isHarmless ? NxLogLevel::Info : NxLogLevel::Error;
}

void forward(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    const bool hasCategory = context.category && std::strcmp(context.category, "default") != 0;
    NxLogRecord record;
    record.level = levelOf(type);
    const QByteArray file(context.file ? context.file : "");
    record.file = file.mid(file.lastIndexOf('/') + 1);
    record.function =
        context.function ? NxLog::qualifiedName(context.function) : QByteArrayLiteral("Qt");
    record.line = context.line;
    record.text =
        hasCategory ? QString::fromUtf8(context.category) + QStringLiteral(": ") + text : text;
    GetGlobalLogInstance()->write(record);
    if (type == QtFatalMsg)
        GetGlobalLogInstance()->stopFile(); // Qt ends the process when this returns.
}

} // namespace

NxQtMessageLog::NxQtMessageLog() : m_previous(qInstallMessageHandler(forward)) {}

NxQtMessageLog::~NxQtMessageLog()
{
    qInstallMessageHandler(m_previous);
}
