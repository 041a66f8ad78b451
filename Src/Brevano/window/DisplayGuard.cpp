// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/DisplayGuard.h>

#include <Brevano/commands/Console.h>
#include <Brevano/commands/ExitCode.h>

#include <QString>

#include <cstdlib>

namespace {

// A message handler is a plain function.
Console *console = nullptr;
QtMessageHandler outer = nullptr;
QString firstWarning;

// Of a reason that goes on with advice to programmers, the first sentence is for users.
QString reasonOf(const QString &fatal)
{
    return firstWarning.isEmpty() ? fatal.section(QLatin1Char('\n'), 0, 0) : firstWarning;
}

void watch(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (type != QtFatalMsg) {
        if (type == QtWarningMsg && firstWarning.isEmpty())
            firstWarning = text;
        outer(type, context, text);
        return;
    }
    console->note(QStringLiteral("no window can be shown: %1").arg(reasonOf(text)));
    // Nothing is open yet, and half an application cannot be taken down.
    std::_Exit(console->finish(NothingDone));
}

} // namespace

DisplayGuard::DisplayGuard(Console *teller)
{
    console = teller;
    firstWarning.clear();
    outer = qInstallMessageHandler(watch);
}

DisplayGuard::~DisplayGuard()
{
    qInstallMessageHandler(outer);
    console = nullptr;
}
