// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later

// What is chosen and told in dialogs.

#include <Brevano/window/MainWindow.h>

#include <Brevano/window/ProjectHolder.h>
#include <Brevano/window/ShortcutSheet.h>
#include <NxWidgets/NMessageDialog.h>
#include <NxWidgets/NxFileDialog.h>

#include <QApplication>
#include <QDir>
#include <QFileDialog>

namespace {

QString withSuffix(const QString &path)
{
    return ProjectHolder::isProjectPath(path) ? path : path + ProjectHolder::suffix();
}

} // namespace

// Dialogs

void MainWindow::chooseProject()
{
    const QString path =
        NxFileDialog::getOpenFileName(this, tr("Open Project"), QFileInfo(m_holder->path()).path(),
                                      tr("Brevano projects") + QStringLiteral(" (*.brevano)"));
    if (!path.isEmpty())
        openProject(path);
}

void MainWindow::chooseNewProject()
{
    const QString path = QFileDialog::getSaveFileName(
        this, tr("New Project"), QDir::home().filePath(tr("New Project") + ProjectHolder::suffix()),
        tr("Brevano projects") + QStringLiteral(" (*.brevano)"), nullptr,
        QFileDialog::DontConfirmOverwrite);
    if (!path.isEmpty())
        createProject(withSuffix(path));
}

void MainWindow::chooseCopy()
{
    const QString chosen =
        QFileDialog::getSaveFileName(this, tr("Save a Copy"), m_holder->path(),
                                     tr("Brevano projects") + QStringLiteral(" (*.brevano)"),
                                     nullptr, QFileDialog::DontConfirmOverwrite);
    if (chosen.isEmpty())
        return;
    const QString path = withSuffix(chosen);
    const QPointer<MainWindow> self(this);
    m_holder->saveCopy(path, [self, path](const NxResult<void> &saved) {
        if (!self)
            return;
        if (saved)
            self->tell(tr("Copied to %1").arg(QDir::toNativeSeparators(path)));
        else
            NMessageDialog::Infomation(self, {}, saved.error().message);
    });
}

void MainWindow::showShortcuts()
{
    if (!m_shortcuts) {
        m_shortcuts = new ShortcutSheet(m_actions, this);
        m_shortcuts->setAttribute(Qt::WA_DeleteOnClose);
    }
    m_shortcuts->show();
    m_shortcuts->raise();
    m_shortcuts->activateWindow();
}

void MainWindow::showAbout()
{
    NMessageDialog::Infomation(
        this, {},
        tr("Brevano %1\nThe media library of a video editor.\nFree software under the GNU Lesser "
           "General Public License, version 2.1 or later.")
            .arg(QApplication::applicationVersion()));
}
