// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxCore/NxLog.h>

#include "NxLogCapture_p.h"
#include "NxLog_p.h"

#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <utility>

namespace {

const char *baseName(const char *path)
{
    const char *name = path;
    for (const char *at = path; *at; ++at) {
        if (*at == '/' || *at == '\\')
            name = at + 1;
    }
    return name;
}

NxLogRecord makeRecord(NxLogLevel level, const char *file, const char *function, int line)
{
    NxLogRecord record;
    record.level = level;
    record.file = QByteArray(baseName(file));
    record.function = QByteArray(function);
    record.line = line;
    return record;
}

void printError(const NxLogRecord &record)
{
    std::fprintf(stderr, "%s\n", qUtf8Printable(record.text));
}

} // namespace

NxLog::NxLog() : d(std::make_unique<NxLogPrivate>()) {}

NxLog::~NxLog() = default;

NxLog *NxLog::global()
{
    // Never destroyed: destructors of other static objects may still have something to say.
    static NxLog *const log = new NxLog;
    // What waits for the file must be written, though, while threads still run.
    struct Closer
    {
        ~Closer() { log->stopFile(); }
    };
    static const Closer closer;
    return log;
}

NxLog *GetGlobalLogInstance()
{
    return NxLog::global();
}

void NxLog::info(const char *file, const char *function, int line, const char *format, ...)
{
    NxLogRecord record = makeRecord(NxLogLevel::Info, file, function, line);
    std::va_list arguments;
    va_start(arguments, format);
    record.text = QString::vasprintf(format, arguments);
    va_end(arguments);
    write(record);
}

void NxLog::error(const char *file, const char *function, int line, const char *format, ...)
{
    NxLogRecord record = makeRecord(NxLogLevel::Error, file, function, line);
    std::va_list arguments;
    va_start(arguments, format);
    record.text = QString::vasprintf(format, arguments);
    va_end(arguments);
    write(record);
}

void NxLog::write(const NxLogRecord &record)
{
    std::shared_ptr<NxLogFile> file;
    {
        const std::lock_guard<std::mutex> lock(d->mutex);
        for (NxLogCapture *capture : d->captures)
            capture->d->append(record);
        file = d->file;
    }
    if (file)
        file->write(record);
    if (record.level == NxLogLevel::Error && d->errorsOnStandardError)
        printError(record);
}

NxResult<void> NxLog::startFile(const QString &path)
{
    NxResult<std::unique_ptr<NxLogFile>> opened = NxLogFile::open(path);
    if (!opened)
        return opened.error();
    std::shared_ptr<NxLogFile> file = opened.take();
    const std::lock_guard<std::mutex> lock(d->mutex);
    d->file.swap(file);
    return {};
}

void NxLog::stopFile()
{
    std::shared_ptr<NxLogFile> file;
    const std::lock_guard<std::mutex> lock(d->mutex);
    d->file.swap(file);
}

void NxLog::setErrorsOnStandardError(bool enabled)
{
    d->errorsOnStandardError = enabled;
}
