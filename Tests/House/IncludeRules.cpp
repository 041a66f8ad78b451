// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "IncludeRules.h"

#include <QHash>
#include <QRegularExpression>

namespace {

using ModuleTable = QHash<QString, QStringList>;

/// What each module may include besides itself; what stands lower is named too.
const ModuleTable &standsOn()
{
    static const QString core = QStringLiteral("NxCore");
    static const QString settings = QStringLiteral("NxAppSettings");
    static const QString widgets = QStringLiteral("NxWidgets");
    static const QString model = QStringLiteral("NxVBLModel");
    static const QString engine = QStringLiteral("NxVBLEngine");
    static const QString library = QStringLiteral("NxMediaLibrary");
    static const QString views = QStringLiteral("NxMediaViews");
    static const QString protocol = QStringLiteral("NxWorkerProtocol");
    static const ModuleTable table{
        {core, {}},
        {settings, {core}},
        {widgets, {core}},
        {model, {core}},
        {protocol, {core}},
        {engine, {model, core, protocol}},
        {library, {widgets, settings, model, core}},
        {views, {library, widgets, settings, model, core}},
        {QStringLiteral("Brevano"), {views, library, engine, widgets, settings, model, core}},
        {QStringLiteral("brevano-worker"), {protocol, core}},
    };
    return table;
}

bool isModule(const QString &name)
{
    return standsOn().contains(name);
}

bool mayKnow(const QString &module, const QString &other)
{
    return module == other || standsOn().value(module).contains(other);
}

/// Headers from outside that only some files of Src/ may include.
struct ForeignHeader
{
    QRegularExpression header;
    QRegularExpression allowedFiles;
    QString reason;
};

const QVector<ForeignHeader> &foreignHeaders()
{
    const auto pattern = [](const char *text) { return QRegularExpression(QLatin1String(text)); };
    static const QVector<ForeignHeader> table{
        {pattern("^sqlite3(ext)?\\.h$"), pattern("^NxVBLEngine/[Ss]tore/"),
         QStringLiteral("SQLite is known to the engine's store folder alone")},
        {pattern("^(QtSql/|QSql)"), pattern("^$"),
         QStringLiteral("projects are stored through SQLite's own interface, not QtSql")},
        {pattern("^lib(av|sw|postproc)[a-z]*/"), pattern("^brevano-worker/"),
         QStringLiteral("FFmpeg is known to the worker program alone")},
        {pattern("^(mlt|Mlt|framework/mlt)"), pattern("^brevano-worker/"),
         QStringLiteral("MLT is known to the worker program alone")},
        {pattern("^exiv2/"), pattern("^brevano-worker/"),
         QStringLiteral("exiv2 is known to the worker program alone")},
        {pattern("^(spdlog|fmt)/"), pattern("^NxCore/[^/]*\\.cpp$"),
         QStringLiteral("spdlog stays behind the log of NxCore, in no header")},
        {pattern("^(Qt[A-Za-z]+/[0-9.]+/|private/)"), pattern("^$"),
         QStringLiteral("Qt's private headers change without notice")},
    };
    return table;
}

bool isWidgetHeader(const QString &target, const QStringList &widgetHeaders)
{
    return target == QLatin1String("QtWidgets") || target.startsWith(QLatin1String("QtWidgets/"))
           || widgetHeaders.contains(target);
}

bool hasNoWidgets(const QString &module)
{
    static const QStringList modules{QStringLiteral("NxCore"), QStringLiteral("NxAppSettings"),
                                     QStringLiteral("NxVBLModel"), QStringLiteral("NxVBLEngine"),
                                     QStringLiteral("NxWorkerProtocol"),
                                     QStringLiteral("brevano-worker")};
    return modules.contains(module);
}

bool isPrivateHeader(const QString &target)
{
    return target.endsWith(QLatin1String("_p.h")) || target.contains(QLatin1String("_P/"));
}

QString directionFault(const QString &module, const IncludeLine &include)
{
    const QString other = include.targetModule();
    if (!isModule(other))
        return {};
    if (!mayKnow(module, other))
        return QStringLiteral("%1 may not know %2 (<%3>)").arg(module, other, include.target);
    if (module != other && isPrivateHeader(include.target))
        return QStringLiteral("<%1> is private to %2").arg(include.target, other);
    return {};
}

} // namespace

QStringList IncludeRules::directionFaults(const QVector<SourceFile> &files)
{
    QStringList faults;
    for (const SourceFile &file : files) {
        if (!isModule(moduleOf(file.path)))
            faults += file.fault(0, QStringLiteral("lies in no module of the house"));
    }
    const QVector<IncludeLine> includes = includeLines(files);
    for (const IncludeLine &include : includes) {
        const SourceFile &file = files.at(include.file);
        const QString fault = directionFault(moduleOf(file.path), include);
        if (!fault.isEmpty())
            faults += file.fault(include.line, fault);
    }
    return faults;
}

QStringList IncludeRules::foreignHeaderFaults(const QVector<SourceFile> &files,
                                              const QStringList &widgetHeaders)
{
    QStringList faults;
    const QVector<IncludeLine> includes = includeLines(files);
    for (const IncludeLine &include : includes) {
        const SourceFile &file = files.at(include.file);
        for (const ForeignHeader &foreign : foreignHeaders()) {
            if (foreign.header.match(include.target).hasMatch()
                && !foreign.allowedFiles.match(file.path).hasMatch())
                faults += file.fault(include.line, foreign.reason);
        }
        const QString module = moduleOf(file.path);
        if (hasNoWidgets(module) && isWidgetHeader(include.target, widgetHeaders))
            faults +=
                file.fault(include.line, QStringLiteral("%1 works without QtWidgets").arg(module));
    }
    return faults;
}

QStringList IncludeRules::fileCycleFaults(const QVector<SourceFile> &files)
{
    QVector<QPair<QString, QString>> edges;
    const QVector<IncludeLine> includes = includeLines(files);
    for (const IncludeLine &include : includes) {
        if (!include.resolved.isEmpty())
            edges.append(qMakePair(files.at(include.file).path, include.resolved));
    }
    return cycles(edges);
}

QStringList IncludeRules::folderCycleFaults(const QVector<SourceFile> &files)
{
    // Classes and their private halves, in "Folder" and "Folder_P", are one folder.
    const auto wholeFolder = [](QString folder) {
        if (folder.endsWith(QLatin1String("_P")))
            folder.chop(2);
        return folder;
    };
    QVector<QPair<QString, QString>> edges;
    const QVector<IncludeLine> includes = includeLines(files);
    for (const IncludeLine &include : includes) {
        const QString from = wholeFolder(files.at(include.file).folder());
        const QString to = wholeFolder(SourceFile{include.resolved, {}, {}}.folder());
        if (!include.resolved.isEmpty() && from != to)
            edges.append(qMakePair(from, to));
    }
    return cycles(edges);
}

QStringList IncludeRules::linkFaults(const QString &module, const QString &text)
{
    static const QRegularExpression word(QStringLiteral("[A-Za-z0-9_:-]+"));
    QStringList faults;
    const QStringList lines = text.split(QLatin1Char('\n'));
    for (int line = 0; line < lines.size(); ++line) {
        const QString code = lines.at(line).section(QLatin1Char('#'), 0, 0);
        QRegularExpressionMatchIterator words = word.globalMatch(code);
        while (words.hasNext()) {
            QString name = words.next().captured();
            name.remove(QLatin1String("Nx::"));
            const bool unknown = isModule(name) && !mayKnow(module, name);
            const bool widgets = hasNoWidgets(module) && name == QLatin1String("Qt5::Widgets");
            if (unknown || widgets)
                faults += QStringLiteral("%1/CMakeLists.txt:%2: %1 may not link %3")
                              .arg(module, QString::number(line + 1), name);
        }
    }
    return faults;
}
