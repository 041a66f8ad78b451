// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QAbstractItemModelTester>
#include <QIdentityProxyModel>
#include <QStringList>

#include <memory>
#include <vector>

/// What the model tester sees of a folder tree model: all but one thing that it refuses, that the
/// place beside the rows claims to be editable.
class TestedTree : public QIdentityProxyModel
{
    Q_OBJECT
public:
    explicit TestedTree(QAbstractItemModel *model) { setSourceModel(model); }
    Qt::ItemFlags flags(const QModelIndex &index) const override
    {
        return index.isValid() ? sourceModel()->flags(mapToSource(index)) : Qt::ItemIsDropEnabled;
    }
};

/// Somebody who looks at a folder tree model: writes down what the model tells, and knows of the
/// rows only what he was told. A model that breaks the rules of models ends the test program,
/// unless another way of reporting is chosen.
///
/// A place is the rows that lead to it ("0/2"), "-" is the place of the root.
class TreeViewer : public QObject
{
    Q_OBJECT
public:
    using Reporting = QAbstractItemModelTester::FailureReportingMode;
    explicit TreeViewer(QAbstractItemModel *model, Reporting reporting = Reporting::Fatal);

    /// What the model told since the last call: "before inserted - 0-1", "changed 0/2", ...
    [[nodiscard]] QStringList takeTold();
    /// All names that he knows of, as "A(B C(D)) E".
    [[nodiscard]] QString drawing() const { return drawingOf(m_known); }
    /// What a drawing is made of, asked from the model now.
    [[nodiscard]] QString modelDrawing() const { return drawingOf(readBelow({})); }
    [[nodiscard]] static QString place(const QModelIndex &index);

private:
    struct Row
    {
        QString name;
        std::vector<Row> below;
    };
    using Rows = std::vector<Row>;

    [[nodiscard]] Row read(const QModelIndex &index) const;
    [[nodiscard]] Rows readBelow(const QModelIndex &parent) const;
    [[nodiscard]] static QString drawingOf(const Rows &rows);
    [[nodiscard]] Row *known(const QModelIndex &index);
    [[nodiscard]] Rows *knownBelow(const QModelIndex &parent);
    void note(const QString &words, const QModelIndex &parent, int first, int last);

    void onInserted(const QModelIndex &parent, int first, int last);
    void onRemoved(const QModelIndex &parent, int first, int last);
    void onChanged(const QModelIndex &from, const QModelIndex &to, const QVector<int> &roles);
    void onReset();

    QAbstractItemModel *const m_model; // Not owned.
    Rows m_known;
    QStringList m_told;
    TestedTree m_tested;
    QAbstractItemModelTester m_tester;
};
