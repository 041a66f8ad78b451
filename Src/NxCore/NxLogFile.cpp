// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "NxLogFile_p.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <spdlog/async_logger.h>
#include <spdlog/details/thread_pool.h>
#include <spdlog/sinks/rotating_file_sink.h>

#include <exception>
#include <utility>

namespace {

constexpr std::size_t fileBytes = 5 * 1024 * 1024;
constexpr std::size_t keptFiles = 3;
constexpr std::size_t waitingLines = 8192;

/// The end of a line: control characters of the text may not break it.
std::string singleLine(const QString &text)
{
    QByteArray bytes = text.toUtf8();
    bytes.replace('\n', "\\n");
    bytes.replace('\r', "\\r");
    return bytes.toStdString();
}

} // namespace

struct NxLogFile::Sink
{
    std::shared_ptr<spdlog::details::thread_pool> writer;
    std::shared_ptr<spdlog::async_logger> logger;
};

NxLogFile::NxLogFile(std::unique_ptr<Sink> sink) : m_sink(std::move(sink)) {}

NxLogFile::~NxLogFile()
{
    m_sink->logger->flush();
    m_sink->writer.reset(); // Joins after the last line is written.
}

NxResult<std::unique_ptr<NxLogFile>> NxLogFile::open(const QString &path)
{
    if (!QDir().mkpath(QFileInfo(path).absolutePath()))
        return NxError{QStringLiteral("%1: the folder of the log cannot be made").arg(path)};
    try {
        auto file = std::make_shared<spdlog::sinks::rotating_file_sink_mt>(
            QFile::encodeName(path).toStdString(), fileBytes, keptFiles);
        file->set_pattern("%Y-%m-%dT%H:%M:%S.%e%z %L %t %v");
        auto sink = std::make_unique<Sink>();
        sink->writer = std::make_shared<spdlog::details::thread_pool>(waitingLines, 1);
        sink->logger = std::make_shared<spdlog::async_logger>(
            "brevano", std::move(file), sink->writer, spdlog::async_overflow_policy::block);
        // The writing thread pays for the flush, and a killed process leaves its last line.
        sink->logger->flush_on(spdlog::level::info);
        return std::unique_ptr<NxLogFile>(new NxLogFile(std::move(sink)));
    } catch (const std::exception &error) {
        return NxError{QStringLiteral("%1: the log cannot be written: %2")
                           .arg(path, QString::fromUtf8(error.what()))};
    }
}

void NxLogFile::write(const NxLogRecord &record)
{
    const auto level = record.level == NxLogLevel::Error ? spdlog::level::err : spdlog::level::info;
    m_sink->logger->log(level, "{}:{} {}: {}", record.file.constData(), record.line,
                        record.function.constData(), singleLine(record.text));
}
