// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/StartPage.h>

#include <Brevano/window/PanelActions.h>
#include <Brevano/window/WindowMemory.h>

#include <QAction>
#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

constexpr int PageWidth = 520; // px
constexpr qreal TitleScale = 1.6;

} // namespace

StartPage::StartPage(PanelActions *actions, WindowMemory *memory, QWidget *parent)
    : QWidget(parent),
      m_memory(memory),
      m_title(new QLabel(this)),
      m_recentTitle(new QLabel(this)),
      m_recent(new QListWidget(this))
{
    QFont font = m_title->font();
    font.setPointSizeF(font.pointSizeF() * TitleScale);
    m_title->setFont(font);
    auto *column = new QVBoxLayout;
    column->addStretch(1);
    column->addWidget(m_title);
    auto *buttons = new QHBoxLayout;
    for (const PanelActions::Id id :
         {PanelActions::Id::NewProject, PanelActions::Id::OpenProject}) {
        auto *button = new QToolButton(this);
        button->setDefaultAction(actions->action(id));
        button->setFocusPolicy(Qt::StrongFocus);
        button->setToolButtonStyle(Qt::ToolButtonTextOnly);
        buttons->addWidget(button);
    }
    buttons->addStretch(1);
    column->addLayout(buttons);
    column->addWidget(m_recentTitle);
    column->addWidget(m_recent, 2);
    column->addStretch(1);
    m_recent->setMaximumWidth(PageWidth);
    m_recent->setMinimumWidth(PageWidth / 2);
    auto *row = new QHBoxLayout(this);
    row->addStretch(1);
    row->addLayout(column, 2);
    row->addStretch(1);
    connect(m_recent, &QListWidget::itemActivated, this, [this](const QListWidgetItem *item) {
        Q_EMIT sigOpen(item->data(Qt::UserRole).toString());
    });
    retranslate();
}

StartPage::~StartPage() = default;

void StartPage::refresh()
{
    m_recent->clear();
    const QStringList paths = m_memory->recentProjects();
    for (const QString &path : paths) {
        auto *item = new QListWidgetItem(QFileInfo(path).completeBaseName(), m_recent);
        item->setData(Qt::UserRole, path);
        // Names are no rich text, whatever characters they hold.
        item->setToolTip(
            QStringLiteral("<p>%1</p>").arg(QDir::toNativeSeparators(path).toHtmlEscaped()));
    }
    m_recentTitle->setVisible(!paths.isEmpty());
    m_recent->setVisible(!paths.isEmpty());
}

void StartPage::showEvent(QShowEvent *event)
{
    refresh();
    QWidget::showEvent(event);
}

void StartPage::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
}

void StartPage::retranslate()
{
    m_title->setText(tr("Make a project, or open one"));
    m_recentTitle->setText(tr("Recent projects"));
    m_recent->setAccessibleName(m_recentTitle->text());
}
