// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QPair>
#include <QString>
#include <QVector>
#include <QWidget>

class QFormLayout;
class QLabel;

/// Names and values in two columns. Values can be selected with mouse and keyboard.
///
/// A value that stays the same keeps its selection and the keyboard focus when others change.
class FactSheet : public QWidget
{
    Q_OBJECT
public:
    explicit FactSheet(QWidget *parent = nullptr);
    ~FactSheet() override;

    /// From top to bottom: name and value, both in the language of now, neither with markup.
    void setFacts(const QVector<QPair<QString, QString>> &facts);
    [[nodiscard]] QVector<QPair<QString, QString>> facts() const { return m_facts; }

private:
    void addRow();
    void fillRow(int row, const QPair<QString, QString> &fact) const;

    QFormLayout *const m_form; // Owned by the widget.
    QVector<QPair<QString, QString>> m_facts;
};
