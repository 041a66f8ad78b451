// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "IncludeGraph.h"

#include <QDir>
#include <QMap>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>

namespace {

/// Depth-first walk that tells each way back to a node it is still inside of.
class CycleSearch
{
public:
    explicit CycleSearch(const QVector<QPair<QString, QString>> &edges)
    {
        for (const auto &edge : edges) {
            QStringList &targets = m_targets[edge.first];
            if (!targets.contains(edge.second))
                targets += edge.second;
        }
    }

    [[nodiscard]] QStringList run()
    {
        const QStringList nodes = m_targets.keys();
        for (const QString &node : nodes)
            visit(node);
        return m_found;
    }

private:
    void visit(const QString &node)
    {
        if (m_done.contains(node))
            return;
        const int inside = m_path.indexOf(node);
        if (inside >= 0) {
            m_found += (m_path.mid(inside) + QStringList(node)).join(QStringLiteral(" -> "));
            return;
        }
        m_path += node;
        const QStringList targets = m_targets.value(node);
        for (const QString &target : targets)
            visit(target);
        m_path.removeLast();
        m_done += node;
    }

    QMap<QString, QStringList> m_targets;
    QStringList m_path;
    QSet<QString> m_done;
    QStringList m_found;
};

QString resolve(const SourceFile &file, const QString &target, bool quoted,
                const QSet<QString> &paths)
{
    const QString beside = QDir::cleanPath(QDir(file.folder()).filePath(target));
    if (quoted && paths.contains(beside))
        return beside;
    const QString fromRoot = QDir::cleanPath(target);
    return paths.contains(fromRoot) ? fromRoot : QString();
}

} // namespace

QString IncludeLine::targetModule() const
{
    return moduleOf(resolved.isEmpty() ? target : resolved);
}

QVector<IncludeLine> includeLines(const QVector<SourceFile> &files)
{
    static const QRegularExpression pattern(
        QStringLiteral("^\\s*#\\s*include\\s*([<\"])([^>\"]+)[>\"]"));
    QSet<QString> paths;
    for (const SourceFile &file : files)
        paths += file.path;

    QVector<IncludeLine> includes;
    for (int f = 0; f < files.size(); ++f) {
        const SourceFile &file = files.at(f);
        for (int line = 0; line < file.lines.size(); ++line) {
            if (!file.codeLines.at(line).contains(QLatin1Char('#')))
                continue;
            const QRegularExpressionMatch match = pattern.match(file.lines.at(line));
            if (!match.hasMatch() || match.captured(2).endsWith(QLatin1String(".moc")))
                continue;
            const bool quoted = match.captured(1) == QLatin1String("\"");
            const QString target = match.captured(2);
            includes.append({f, line, target, resolve(file, target, quoted, paths)});
        }
    }
    return includes;
}

QString moduleOf(const QString &path)
{
    return path.left(std::max(0, path.indexOf(QLatin1Char('/'))));
}

QStringList cycles(const QVector<QPair<QString, QString>> &edges)
{
    return CycleSearch(edges).run();
}
