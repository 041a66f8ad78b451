// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/commands/RelinkCommand.h>

#include <Brevano/commands/CommandLine.h>
#include <Brevano/commands/Console.h>
#include <Brevano/commands/DialogAnswers.h>
#include <Brevano/commands/ExitCode.h>
#include <Brevano/commands/FootageRun.h>
#include <Brevano/commands/InterruptWatcher.h>
#include <Brevano/commands/JsonLine.h>
#include <Brevano/commands/MediaFacts.h>
#include <Brevano/commands/MediaResolver.h>
#include <Brevano/commands/ProjectSession.h>
#include <Brevano/commands/RelinkRun.h>
#include <Brevano/commands/ShownText.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaItemManagerPresenter.h>
#include <NxVBLModel/INxAbstractMediaItem.h>
#include <NxVBLModel/INxFootageService.h>

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <iterator>

namespace {

struct MatchWord
{
    NxRelinkMatch match;
    const char *json;
    const char *text;
};

constexpr MatchWord MatchWords[] = {
    {NxRelinkMatch::None, "not_found", "was not found"},
    {NxRelinkMatch::Fingerprint, "fingerprint", "the same contents"},
    {NxRelinkMatch::NameSizeDuration, "name_size_duration", "the same name, size and length"},
    {NxRelinkMatch::Ambiguous, "ambiguous", "may be one of these files:"},
};

const MatchWord &wordOf(NxRelinkMatch match)
{
    return *std::find_if(std::begin(MatchWords), std::end(MatchWords),
                         [match](const MatchWord &it) { return it.match == match; });
}

bool isRelinked(const NxRelinkFinding &finding)
{
    return finding.match == NxRelinkMatch::Fingerprint
           || finding.match == NxRelinkMatch::NameSizeDuration;
}

QString absolute(const QString &path)
{
    return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

QString faultOf(const CommandLine &line)
{
    const bool hasFile = line.has(CommandOptions::to);
    const bool hasFolder = line.has(CommandOptions::searchFolder);
    if (hasFile == hasFolder)
        return QStringLiteral("relink: say either the file by --to, or where to look by --search");
    if (hasFile && line.names().size() != 2)
        return QStringLiteral("relink --to: say which media; one at a time");
    if (hasFile && line.has(CommandOptions::json))
        return QStringLiteral("relink: --json goes with --search");
    return {};
}

} // namespace

int RelinkCommand::run(const CommandLine &line, Console *console)
{
    const QString fault = faultOf(line);
    if (!fault.isEmpty())
        return wrongUsage(console, fault);
    m_console = console;
    m_json = line.has(CommandOptions::json);
    const InterruptWatcher interrupts;
    ProjectSession session(console);
    if (!session.open(line.names().constFirst(), ProjectSession::Access::Change))
        return ProjectUnusable;
    session.engine().refreshExistence();
    const int code = line.has(CommandOptions::to) ? relinkOne(&session, line, interrupts)
                                                  : relinkFound(&session, line, interrupts);
    return session.close(code);
}

std::optional<QList<INxAbstractMediaItem *>> RelinkCommand::named(ProjectSession *session,
                                                                  const CommandLine &line)
{
    if (line.names().size() == 1)
        return session->media();
    const MediaResolver::Answer answer =
        MediaResolver(session->sections()).resolve(line.names().mid(1));
    if (!MediaResolver::isUnderstood(answer, m_console))
        return std::nullopt;
    QList<INxAbstractMediaItem *> media;
    for (INxAbstractMedia *item : answer.media) {
        if (auto *found = dynamic_cast<INxAbstractMediaItem *>(item))
            media.append(found);
    }
    return media;
}

int RelinkCommand::relinkOne(ProjectSession *session, const CommandLine &line,
                             const InterruptWatcher &interrupts)
{
    const std::optional<QList<INxAbstractMediaItem *>> media = named(session, line);
    if (!media || media->isEmpty())
        return NothingDone;
    const QString path = absolute(*line.value(CommandOptions::to));
    const QFileInfo file(path);
    if (!file.isFile()) {
        m_console->error(path, file.exists() ? QStringLiteral("it is no file")
                                             : QStringLiteral("there is no such file"));
        return NothingDone;
    }
    INxAbstractMediaItem *item = media->constFirst();
    DialogAnswers answers(line, m_console);
    answers.setFile(path);
    const NxDialogScript script(&answers);
    if (session->itemPresenter()->relinkMedia({item}) == 0)
        return NothingDone;
    if (!session->commit())
        return ProjectUnusable;
    m_console->line(
        ShownText::oneLine(QStringLiteral("Relinked \"%1\" to %2").arg(item->name(), path)));
    return readAll(session, line, {item}, interrupts);
}

int RelinkCommand::relinkFound(ProjectSession *session, const CommandLine &line,
                               const InterruptWatcher &interrupts)
{
    const std::optional<QList<INxAbstractMediaItem *>> media = named(session, line);
    if (!media)
        return NothingDone;
    QList<INxAbstractMediaItem *> missing;
    QStringList paths;
    for (INxAbstractMediaItem *item : *media) {
        if (!MediaFacts::isMissing(*item))
            continue;
        missing.append(item);
        paths.append(item->sourcePath());
    }
    RelinkRun search(session->itemPresenter(), m_console, interrupts);
    const RelinkRun::Outcome outcome =
        search.run(missing, absolute(*line.value(CommandOptions::searchFolder)));
    if (!session->commit())
        return ProjectUnusable;
    for (const QString &trouble : outcome.report.unreadable)
        m_console->note(trouble);
    QList<INxAbstractMediaItem *> relinked;
    for (int i = 0; i < outcome.report.findings.size(); ++i) {
        const NxRelinkFinding &finding = outcome.report.findings.at(i);
        tell(finding, paths.value(i));
        if (isRelinked(finding))
            relinked.append(missing.at(i));
    }
    const int left = missing.size() - outcome.relinked;
    if (!m_json)
        m_console->line(QStringLiteral("%1 relinked, %2 still missing")
                            .arg(ShownText::count(outcome.relinked, "media", "media"))
                            .arg(left));
    if (outcome.report.cancelled)
        return Interrupted;
    const int read = readAll(session, line, relinked, interrupts);
    if (read != Done || left == 0)
        return read;
    return outcome.relinked == 0 ? NothingDone : SomeRefused;
}

void RelinkCommand::tell(const NxRelinkFinding &finding, const QString &path)
{
    const auto *item = dynamic_cast<INxAbstractMediaItem *>(finding.media.get());
    if (!item)
        return;
    const MatchWord &word = wordOf(finding.match);
    if (m_json) {
        JsonLine line;
        line.addText("event", QLatin1String(isRelinked(finding) ? "relinked" : "missing"));
        line.addText("match", QLatin1String(word.json));
        line.addText("was", path);
        line.addTexts("candidates", finding.paths);
        MediaFacts::addIdentity(&line, *item);
        m_console->line(line.text());
        return;
    }
    if (isRelinked(finding)) {
        m_console->line(ShownText::oneLine(
            QStringLiteral("Relinked \"%1\" to %2 (%3)")
                .arg(item->name(), finding.paths.constFirst(), QLatin1String(word.text))));
        return;
    }
    m_console->error(path, QLatin1String(word.text));
    for (const QString &candidate : finding.paths)
        m_console->detail(ShownText::oneLine(candidate));
}

int RelinkCommand::readAll(ProjectSession *session, const CommandLine &line,
                           const QList<INxAbstractMediaItem *> &media,
                           const InterruptWatcher &interrupts)
{
    if (media.isEmpty() || line.has(CommandOptions::noRead))
        return Done;
    FootageRun reading(session->footage(), m_console, interrupts);
    const FootageRun::Outcome outcome = reading.run(
        [&media](INxFootageService *service) { service->read(media, INxFootageService::wFacts); });
    if (!outcome.trouble.isEmpty())
        m_console->note(outcome.trouble);
    if (!session->commit())
        return ProjectUnusable;
    return outcome.interrupted ? Interrupted : Done;
}
