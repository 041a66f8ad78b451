// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <cstdio>

/// What the program says: results on standard output, everything else on standard error.
///
/// A reader of the results who goes away (`brevano list ... | head`) ends the output without a
/// word; the work itself goes on.
class Console
{
public:
    Console(std::FILE *output, std::FILE *errors);
    Q_DISABLE_COPY_MOVE(Console)

    /// Hand each line on as soon as it is complete; always so when the output is no terminal.
    void setFlushEachLine() { m_flushEachLine = true; }
    /// One line of results; the bytes are UTF-8 without a line end.
    void line(const QByteArray &bytes);
    void line(const QString &text);
    /// False once nobody reads the results any more.
    [[nodiscard]] bool isRead() const { return !m_readerIsGone; }

    /// "brevano: <subject>: <cause>" on standard error; the subject is a file. It is left out when
    /// the cause names it already.
    void error(const QString &subject, const QString &cause);
    /// "brevano: <text>" on standard error.
    void note(const QString &text);
    /// A line of standard error without the program's name, below a note.
    void detail(const QString &text);

    /// Shows how far the work is, in place of what was shown before; nothing where standard error
    /// is no terminal.
    void progress(const QString &text);

    /// Hands on what waits. Answers `code`, or, when a result could not be written, says why and
    /// answers what tells it.
    [[nodiscard]] int finish(int code);

private:
    void errorLine(const QString &text);
    void noteFailure();

    std::FILE *const m_output;
    std::FILE *const m_errors;
    const bool m_showsProgress;
    bool m_flushEachLine;
    bool m_readerIsGone = false;
    bool m_progressIsShown = false;
    int m_failure = 0; // The errno of the first write that failed, but for a reader who went.
};
