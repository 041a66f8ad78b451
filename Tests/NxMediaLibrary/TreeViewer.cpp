// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "TreeViewer.h"

#include <NxVBLModel/INxFolderMedia.h>
#include <NxVBLModel/NxMediaIndex.h>

#include <utility>

TreeViewer::TreeViewer(QAbstractItemModel *model, Reporting reporting)
    : m_model(model),
      m_known(readBelow({})),
      m_tested(model),
      m_tester(&m_tested, reporting)
{
    const auto noting = [this](const char *words) {
        return [this, text = QLatin1String(words)](const QModelIndex &parent, int first, int last) {
            note(text, parent, first, last);
        };
    };
    connect(model, &QAbstractItemModel::rowsAboutToBeInserted, this, noting("before inserted"));
    connect(model, &QAbstractItemModel::rowsAboutToBeRemoved, this, noting("before removed"));
    connect(model, &QAbstractItemModel::rowsInserted, this, &TreeViewer::onInserted);
    connect(model, &QAbstractItemModel::rowsRemoved, this, &TreeViewer::onRemoved);
    connect(model, &QAbstractItemModel::dataChanged, this, &TreeViewer::onChanged);
    connect(model, &QAbstractItemModel::modelAboutToBeReset, this,
            [this] { m_told += QStringLiteral("before reset"); });
    connect(model, &QAbstractItemModel::modelReset, this, &TreeViewer::onReset);
    connect(model, &QAbstractItemModel::layoutChanged, this,
            [this] { m_told += QStringLiteral("layout"); });
    connect(model, &QAbstractItemModel::rowsMoved, this, noting("moved"));
}

QString TreeViewer::place(const QModelIndex &index)
{
    QStringList rows;
    for (QModelIndex at = index; at.isValid(); at = at.parent())
        rows.prepend(QString::number(at.row()));
    return rows.isEmpty() ? QStringLiteral("-") : rows.join(QLatin1Char('/'));
}

QStringList TreeViewer::takeTold()
{
    return std::exchange(m_told, {});
}

void TreeViewer::note(const QString &words, const QModelIndex &parent, int first, int last)
{
    m_told += QStringLiteral("%1 %2 %3-%4").arg(words, place(parent)).arg(first).arg(last);
}

TreeViewer::Row TreeViewer::read(const QModelIndex &index) const
{
    return {folderAt(index)->name(), readBelow(index)};
}

TreeViewer::Rows TreeViewer::readBelow(const QModelIndex &parent) const
{
    Rows rows;
    for (int row = 0; row < m_model->rowCount(parent); ++row)
        rows.push_back(read(m_model->index(row, 0, parent)));
    return rows;
}

QString TreeViewer::drawingOf(const Rows &rows)
{
    QStringList texts;
    for (const Row &row : rows) {
        const QString below = drawingOf(row.below);
        texts += below.isEmpty() ? row.name : QStringLiteral("%1(%2)").arg(row.name, below);
    }
    return texts.join(QLatin1Char(' '));
}

TreeViewer::Row *TreeViewer::known(const QModelIndex &index)
{
    Rows *rows = knownBelow(index.parent());
    return rows && index.row() < int(rows->size()) ? &(*rows)[size_t(index.row())] : nullptr;
}

TreeViewer::Rows *TreeViewer::knownBelow(const QModelIndex &parent)
{
    if (!parent.isValid())
        return &m_known;
    Row *row = known(parent);
    return row ? &row->below : nullptr;
}

void TreeViewer::onInserted(const QModelIndex &parent, int first, int last)
{
    note(QStringLiteral("inserted"), parent, first, last);
    Rows *rows = knownBelow(parent);
    if (!rows || first > int(rows->size()) || last >= m_model->rowCount(parent)) {
        m_told += QStringLiteral("where nobody knows of rows");
        return;
    }
    for (int row = first; row <= last; ++row)
        rows->insert(rows->begin() + row, read(m_model->index(row, 0, parent)));
}

void TreeViewer::onRemoved(const QModelIndex &parent, int first, int last)
{
    note(QStringLiteral("removed"), parent, first, last);
    Rows *rows = knownBelow(parent);
    if (rows && last < int(rows->size()))
        rows->erase(rows->begin() + first, rows->begin() + last + 1);
    else
        m_told += QStringLiteral("where nobody knows of rows");
}

void TreeViewer::onChanged(const QModelIndex &from, const QModelIndex &to,
                           const QVector<int> &roles)
{
    QString line = QStringLiteral("changed ") + place(from);
    if (from != to)
        line += QStringLiteral(" to ") + place(to);
    if (!roles.isEmpty())
        line += QStringLiteral(" of %1 roles").arg(roles.size());
    m_told += line;
    if (Row *row = known(from))
        row->name = folderAt(from)->name();
    else
        m_told += QStringLiteral("where nobody knows of rows");
}

void TreeViewer::onReset()
{
    m_told += QStringLiteral("reset");
    m_known = readBelow({});
}
