// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/RecentMenu.h>

#include <Brevano/window/WindowMemory.h>

#include <QDir>
#include <QEvent>
#include <QFileInfo>

namespace {

// An "&" in a name is shown, not taken for the letter to press.
QString shown(QString name)
{
    return name.replace(QLatin1Char('&'), QLatin1String("&&"));
}

// The first nine have a digit to press.
QString numbered(int number, const QString &name)
{
    constexpr int LastDigit = 9;
    return number > LastDigit ? name : QStringLiteral("&%1  %2").arg(QString::number(number), name);
}

} // namespace

RecentMenu::RecentMenu(WindowMemory *memory, QWidget *parent) : QMenu(parent), m_memory(memory)
{
    setToolTipsVisible(true);
    connect(this, &QMenu::aboutToShow, this, &RecentMenu::refresh);
    refresh();
}

RecentMenu::~RecentMenu() = default;

void RecentMenu::refresh()
{
    setTitle(tr("Open &Recent"));
    clear();
    const QStringList paths = m_memory->recentProjects();
    for (int i = 0; i < paths.size(); ++i)
        addProject(i + 1, paths.at(i));
    if (paths.isEmpty()) {
        addAction(tr("No Recent Projects"))->setEnabled(false);
        return;
    }
    addSeparator();
    QAction *forget = addAction(tr("&Clear List"));
    connect(forget, &QAction::triggered, this, [this] {
        m_memory->clearRecent();
        refresh();
    });
}

void RecentMenu::addProject(int number, const QString &path)
{
    const QString native = QDir::toNativeSeparators(path);
    const QFileInfo info(path);
    QAction *action = addAction(numbered(number, shown(info.completeBaseName())));
    action->setToolTip(native);
    action->setStatusTip(native);
    connect(action, &QAction::triggered, this, [this, path] { Q_EMIT sigOpen(path); });
}

bool RecentMenu::isEmptyList() const
{
    return m_memory->recentProjects().isEmpty();
}

void RecentMenu::changeEvent(QEvent *event)
{
    QMenu::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        refresh();
}
