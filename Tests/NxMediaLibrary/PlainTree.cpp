// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "PlainTree.h"

#include <NxVBLModel/INxFolderMedia.h>

#include <functional>
#include <utility>

namespace {

QString placeText(const QVector<int> &path)
{
    QStringList rows;
    for (int row : path)
        rows.append(QString::number(row));
    return rows.isEmpty() ? QStringLiteral("-") : rows.join(QLatin1Char('/'));
}

} // namespace

void PlainTree::load(INxFolderMedia *root)
{
    const Open open = m_open;
    clear();
    m_root = root;
    reset();
    m_open = root ? open : Open::Nothing;
    m_isOutdated = true;
}

void PlainTree::clear()
{
    m_root = nullptr;
    m_open = Open::Nothing;
    reset();
}

void PlainTree::unsubscribed()
{
    if (m_open != Open::Nothing)
        reset();
    m_open = Open::Nothing;
}

void PlainTree::reset()
{
    m_told += {QStringLiteral("before reset"), QStringLiteral("reset")};
}

QVector<PlainTree::Row> PlainTree::allRows() const
{
    QVector<Row> rows;
    const std::function<void(INxFolderMedia *, const QVector<int> &)> walk =
        [&](INxFolderMedia *folder, const QVector<int> &path) {
            rows.append({folder, path});
            const QList<INxFolderMedia *> children = folder->childFolders();
            for (int i = 0; i < children.size(); ++i)
                walk(children.at(i), path + QVector<int>{i});
        };
    if (m_root)
        walk(m_root, {});
    return rows;
}

void PlainTree::before(Open open, INxFolderMedia *parent, int first, int last, const QString &words)
{
    const QString name = parent ? parent->name() : QString();
    if (m_open != Open::Nothing && !m_isOutdated) {
        m_told += QStringLiteral("error: a folder change inside another one is ignored: ") + name;
        return;
    }
    for (const Row &row : allRows()) {
        if (row.folder != parent)
            continue;
        m_open = open;
        m_isOutdated = false;
        m_range = QStringLiteral(" %1 %2-%3").arg(placeText(row.path)).arg(first).arg(last);
        m_told += QStringLiteral("before ") + words + m_range;
        return;
    }
    m_told += QStringLiteral("error: find folder failed: ") + name;
}

void PlainTree::beforeAdd(INxFolderMedia *parent, int first, int last)
{
    if (m_root)
        before(Open::Add, parent, first, last, QStringLiteral("inserted"));
}

void PlainTree::beforeRemove(INxFolderMedia *parent, int first, int last)
{
    before(Open::Remove, parent, first, last, QStringLiteral("removed"));
}

void PlainTree::after(Open open, const QString &words)
{
    if (m_open != open)
        return;
    m_open = Open::Nothing;
    if (m_isOutdated)
        reset();
    else
        m_told += words + m_range;
}

void PlainTree::stateChanged(INxFolderMedia *folder)
{
    for (const Row &row : allRows()) {
        if (row.folder != folder)
            continue;
        for (QVector<int> path = row.path; !path.isEmpty(); path.removeLast())
            m_told += QStringLiteral("changed ") + placeText(path);
    }
}

QStringList PlainTree::takeTold()
{
    return std::exchange(m_told, {});
}

QString PlainTree::drawing() const
{
    const std::function<QString(INxFolderMedia *)> draw = [&](INxFolderMedia *folder) {
        QStringList texts;
        for (INxFolderMedia *child : folder->childFolders()) {
            const QString below = draw(child);
            texts += below.isEmpty() ? child->name()
                                     : QStringLiteral("%1(%2)").arg(child->name(), below);
        }
        return texts.join(QLatin1Char(' '));
    };
    return m_root ? draw(m_root) : QString();
}

QString PlainTree::placeBelow(INxFolderMedia *top, INxFolderMedia *folder) const
{
    QVector<int> above;
    const QVector<Row> rows = allRows();
    for (const Row &row : rows) {
        if (row.folder == top)
            above = row.path;
    }
    for (const Row &row : rows) {
        const bool isBelow = row.path.mid(0, above.size()) == above;
        if (row.folder == folder && isBelow)
            return placeText(row.path);
    }
    return {};
}
