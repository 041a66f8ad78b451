// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxCore/NxCoreExport.h>
#include <NxCore/NxLogRecord.h>
#include <NxCore/NxResult.h>

#include <memory>

#if defined(__GNUC__) || defined(__clang__)
#define NX_PRINTF_FORMAT(formatAt, firstAt) __attribute__((format(printf, formatAt, firstAt)))
#else
#define NX_PRINTF_FORMAT(formatAt, firstAt)
#endif

class NxLogCapture;
class NxLogPrivate;

/// The process's log.
///
/// Lines go nowhere until somebody asks: the host for a file (startFile()) or for errors on
/// standard error, a test for a capture (NxLogCapture). Every operation may be called from any
/// thread. Texts are UTF-8: write qUtf8Printable(text) for a "%s".
class NXCORE_EXPORT NxLog
{
public:
    /// Writes one line. `file` may be __FILE__; folders are cut off. `function` is
    /// "Class::method".
    void info(const char *file, const char *function, int line, const char *format, ...)
        NX_PRINTF_FORMAT(5, 6);
    void error(const char *file, const char *function, int line, const char *format, ...)
        NX_PRINTF_FORMAT(5, 6);
    /// Writes one line that is complete already.
    void write(const NxLogRecord &record);

    /// Appends all lines to this file from now on, instead of the one before; folders are made.
    /// A thread of its own writes; at 5 MiB the file is set aside, three old ones are kept.
    NxResult<void> startFile(const QString &path);
    /// Writes what is still waiting and closes the file. Also done when the process ends.
    void stopFile();

    /// Whether error lines also go to standard error; no at first.
    void setErrorsOnStandardError(bool enabled);

    /// "Class::method" from what the compiler calls a function (Q_FUNC_INFO): without result,
    /// arguments, outer namespaces and the names of lambdas.
    [[nodiscard]] static QByteArray qualifiedName(const char *prettyFunction);

    /// The log that GetGlobalLogInstance() answers.
    static NxLog *global();

private:
    Q_DISABLE_COPY_MOVE(NxLog)
    friend class NxLogCapture;
    NxLog();
    ~NxLog();

    const std::unique_ptr<NxLogPrivate> d;
};

/// The log of the process; never null, and usable until the very end of the process.
NXCORE_EXPORT NxLog *GetGlobalLogInstance();

/// One line with the place it is written at: NX_LOG_ERROR("no folder %d", id);
#define NX_LOG_INFO(...) NX_LOG_INFO_AS(NxLog::qualifiedName(Q_FUNC_INFO).constData(), __VA_ARGS__)
#define NX_LOG_ERROR(...)                                                                          \
    NX_LOG_ERROR_AS(NxLog::qualifiedName(Q_FUNC_INFO).constData(), __VA_ARGS__)

/// The same, under a function name given as text: NX_LOG_INFO_AS("Class::method", "done");
#define NX_LOG_INFO_AS(function, ...)                                                              \
    GetGlobalLogInstance()->info(__FILE__, function, __LINE__, __VA_ARGS__)
#define NX_LOG_ERROR_AS(function, ...)                                                             \
    GetGlobalLogInstance()->error(__FILE__, function, __LINE__, __VA_ARGS__)
