// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/commands/Console.h>

#include <Brevano/commands/ExitCode.h>
#include <Brevano/commands/HostSystem.h>
#include <Brevano/commands/ShownText.h>

#include <QDir>
#include <QFileInfo>

#include <cerrno>
#include <cstring>

namespace {

constexpr const char *clearLine = "\r\x1b[K";

} // namespace

Console::Console(std::FILE *output, std::FILE *errors)
    : m_output(output),
      m_errors(errors),
      m_showsProgress(HostSystem::isTerminal(errors)),
      m_flushEachLine(!HostSystem::isTerminal(output))
{
}

void Console::line(const QByteArray &bytes)
{
    if (m_readerIsGone || m_failure != 0)
        return;
    progress(QString());
    const QByteArray whole = bytes + '\n';
    const bool isWritten =
        std::fwrite(whole.constData(), 1, size_t(whole.size()), m_output) == size_t(whole.size());
    if (!isWritten || (m_flushEachLine && std::fflush(m_output) != 0))
        noteFailure();
}

void Console::line(const QString &text)
{
    line(text.toUtf8());
}

void Console::noteFailure()
{
    if (errno == EPIPE)
        m_readerIsGone = true;
    else
        m_failure = errno;
}

void Console::error(const QString &subject, const QString &cause)
{
    const QString absolute = QDir::cleanPath(QFileInfo(subject).absoluteFilePath());
    note(cause.contains(absolute) ? cause : subject + QLatin1String(": ") + cause);
}

void Console::note(const QString &text)
{
    errorLine(QLatin1String("brevano: ") + text);
}

void Console::detail(const QString &text)
{
    errorLine(QLatin1String("  ") + text);
}

void Console::errorLine(const QString &text)
{
    progress(QString());
    // What stands before on the same terminal was said before.
    if (!m_readerIsGone && m_failure == 0 && std::fflush(m_output) != 0)
        noteFailure();
    const QByteArray whole = ShownText::oneLine(text).toUtf8() + '\n';
    std::fwrite(whole.constData(), 1, size_t(whole.size()), m_errors);
    std::fflush(m_errors);
}

void Console::progress(const QString &text)
{
    if (!m_showsProgress || (text.isEmpty() && !m_progressIsShown))
        return;
    m_progressIsShown = !text.isEmpty();
    const QByteArray whole = clearLine + ShownText::oneLine(text).toUtf8();
    std::fwrite(whole.constData(), 1, size_t(whole.size()), m_errors);
    std::fflush(m_errors);
}

int Console::finish(int code)
{
    progress(QString());
    if (!m_readerIsGone && m_failure == 0 && std::fflush(m_output) != 0)
        noteFailure();
    if (m_failure == 0)
        return code;
    error(QStringLiteral("standard output"), QString::fromLocal8Bit(std::strerror(m_failure)));
    return code == Done ? int(SomeRefused) : code;
}
