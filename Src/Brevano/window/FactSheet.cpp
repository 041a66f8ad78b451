// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/FactSheet.h>

#include <QFormLayout>
#include <QLabel>

FactSheet::FactSheet(QWidget *parent) : QWidget(parent), m_form(new QFormLayout(this))
{
    m_form->setContentsMargins(0, 0, 0, 0);
    m_form->setRowWrapPolicy(QFormLayout::WrapLongRows);
    m_form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
}

FactSheet::~FactSheet() = default;

void FactSheet::setFacts(const QVector<QPair<QString, QString>> &facts)
{
    if (facts == m_facts)
        return;
    m_facts = facts;
    while (m_form->rowCount() > facts.size())
        m_form->removeRow(m_form->rowCount() - 1);
    while (m_form->rowCount() < facts.size())
        addRow();
    for (int row = 0; row < facts.size(); ++row)
        fillRow(row, facts.at(row));
}

void FactSheet::addRow()
{
    auto *name = new QLabel(this);
    auto *value = new QLabel(this);
    for (QLabel *label : {name, value})
        label->setTextFormat(Qt::PlainText);
    value->setWordWrap(true);
    value->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    value->setFocusPolicy(Qt::StrongFocus);
    m_form->addRow(name, value);
}

void FactSheet::fillRow(int row, const QPair<QString, QString> &fact) const
{
    const auto put = [this, row](QFormLayout::ItemRole role, const QString &text) {
        auto *label = qobject_cast<QLabel *>(m_form->itemAt(row, role)->widget());
        label->setText(text);
        return label;
    };
    const QString head = tr("%1:").arg(fact.first);
    put(QFormLayout::LabelRole, head);
    // Whoever hears a value read out must hear what it is.
    put(QFormLayout::FieldRole, fact.second)
        ->setAccessibleName(head + QLatin1Char(' ') + fact.second);
}
