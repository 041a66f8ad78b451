// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/ShortcutSheet.h>

#include <Brevano/window/PanelActions.h>
#include <NxWidgets/INxSkinEvent.h>
#include <NxWidgets/NxSkinStyle.h>

#include <QAction>
#include <QDialogButtonBox>
#include <QEvent>
#include <QHeaderView>
#include <QKeySequence>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

/// What the list of media does with keys and mouse by itself.
struct ViewKey
{
    const char *what;
    const char *keys;
};

constexpr ViewKey ViewKeys[] = {
    {QT_TRANSLATE_NOOP("ShortcutSheet", "Go to the next media"),
     QT_TRANSLATE_NOOP("ShortcutSheet", "Arrow keys")},
    {QT_TRANSLATE_NOOP("ShortcutSheet", "Go to the first or the last media"),
     QT_TRANSLATE_NOOP("ShortcutSheet", "Home, End")},
    {QT_TRANSLATE_NOOP("ShortcutSheet", "Turn a page"),
     QT_TRANSLATE_NOOP("ShortcutSheet", "Page Up, Page Down")},
    {QT_TRANSLATE_NOOP("ShortcutSheet", "Go to a name"),
     QT_TRANSLATE_NOOP("ShortcutSheet", "Type how it begins")},
    {QT_TRANSLATE_NOOP("ShortcutSheet", "Select as far as there"),
     QT_TRANSLATE_NOOP("ShortcutSheet", "Shift + arrow keys, Shift + click")},
    {QT_TRANSLATE_NOOP("ShortcutSheet", "Select one more, or one less"),
     QT_TRANSLATE_NOOP("ShortcutSheet", "Ctrl + Space, Ctrl + click")},
    {QT_TRANSLATE_NOOP("ShortcutSheet", "Select the media, fold or unfold a group"),
     QT_TRANSLATE_NOOP("ShortcutSheet", "Space")},
    {QT_TRANSLATE_NOOP("ShortcutSheet", "Fold or unfold a group"),
     QT_TRANSLATE_NOOP("ShortcutSheet", "Left, Right")},
    {QT_TRANSLATE_NOOP("ShortcutSheet", "Open the media"),
     QT_TRANSLATE_NOOP("ShortcutSheet", "Return, double click")},
    {QT_TRANSLATE_NOOP("ShortcutSheet", "Look through the media"),
     QT_TRANSLATE_NOOP("ShortcutSheet", "Shift + move the pointer over it")},
    {QT_TRANSLATE_NOOP("ShortcutSheet", "Make thumbnails larger or smaller"),
     QT_TRANSLATE_NOOP("ShortcutSheet", "Ctrl + mouse wheel")},
};

constexpr QSize FirstSize(520, 600); // px

enum Column { WhatColumn, KeysColumn, ColumnCount };

QString keysOf(const QAction *action)
{
    return QKeySequence::listToString(action->shortcuts(), QKeySequence::NativeText);
}

} // namespace

ShortcutSheet::ShortcutSheet(PanelActions *actions, QWidget *parent)
    : QDialog(parent),
      m_actions(actions),
      m_list(new QTreeWidget(this))
{
    m_list->setColumnCount(ColumnCount);
    m_list->setRootIsDecorated(false);
    m_list->header()->setStretchLastSection(true);
    auto *column = new QVBoxLayout(this);
    column->addWidget(m_list);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    column->addWidget(buttons);
    addActions();
    addViewKeys();
    retranslate();
    m_list->expandAll();
    m_list->resizeColumnToContents(WhatColumn);
    resize(FirstSize);
    m_soon.setSingleShot(true);
    connect(&m_soon, &QTimer::timeout, this, &ShortcutSheet::retranslate);
    NxSkinStyle::instance()->Attach(this);
    wear();
}

ShortcutSheet::~ShortcutSheet()
{
    NxSkinStyle::instance()->Detach(this);
}

QVector<QPair<QString, QString>> ShortcutSheet::rows(const QString &heading) const
{
    QVector<QPair<QString, QString>> found;
    for (int i = 0; i < m_list->topLevelItemCount(); ++i) {
        const QTreeWidgetItem *group = m_list->topLevelItem(i);
        if (group->text(WhatColumn) != heading)
            continue;
        for (int row = 0; row < group->childCount(); ++row)
            found.append(
                {group->child(row)->text(WhatColumn), group->child(row)->text(KeysColumn)});
    }
    return found;
}

QStringList ShortcutSheet::headings() const
{
    QStringList texts;
    for (int i = 0; i < m_list->topLevelItemCount(); ++i)
        texts.append(m_list->topLevelItem(i)->text(WhatColumn));
    return texts;
}

void ShortcutSheet::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    // The window may give the actions their new texts after this.
    if (event->type() == QEvent::LanguageChange)
        m_soon.start(0);
}

void ShortcutSheet::OnSkinChangedEvent(INxSkinEvent *event)
{
    if (event->isSkinChanged())
        wear();
}

void ShortcutSheet::addActions()
{
    for (const PanelActions::Group group : PanelActions::groups()) {
        auto *heading = new QTreeWidgetItem(m_list);
        heading->setFirstColumnSpanned(true);
        for (QAction *action : m_actions->actions(group)) {
            m_rows.append({action, new QTreeWidgetItem(heading)});
            // Also told when an action is enabled, which is often.
            connect(action, &QAction::changed, this, [this] {
                if (isVisible())
                    m_soon.start(0);
            });
        }
    }
}

void ShortcutSheet::addViewKeys()
{
    auto *heading = new QTreeWidgetItem(m_list);
    heading->setFirstColumnSpanned(true);
    for (int i = 0; i < int(std::size(ViewKeys)); ++i)
        new QTreeWidgetItem(heading);
}

void ShortcutSheet::retranslate()
{
    setWindowTitle(tr("Keyboard Shortcuts"));
    m_list->setAccessibleName(windowTitle());
    m_list->setHeaderLabels({tr("Action"), tr("Keys")});
    int place = 0;
    for (const PanelActions::Group group : PanelActions::groups()) {
        // Without the sign that underlines a letter.
        const QAction title(PanelActions::title(group));
        m_list->topLevelItem(place++)->setText(WhatColumn, title.iconText());
    }
    for (const auto &row : qAsConst(m_rows)) {
        row.second->setText(WhatColumn, row.first->iconText());
        row.second->setText(KeysColumn, keysOf(row.first));
    }
    QTreeWidgetItem *view = m_list->topLevelItem(place);
    view->setText(WhatColumn, tr("In the list of media"));
    for (int i = 0; i < view->childCount(); ++i) {
        view->child(i)->setText(WhatColumn, tr(ViewKeys[i].what));
        view->child(i)->setText(KeysColumn, tr(ViewKeys[i].keys));
    }
}

void ShortcutSheet::wear()
{
    setPalette(NxSkinStyle::instance()->palette());
}
