// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/ProjectDialogs.h>

#include <Brevano/window/ProjectHolder.h>
#include <NxCore/NxResult.h>
#include <NxWidgets/NMessageDialog.h>

#include <QDir>
#include <QFileInfo>
#include <QPointer>

namespace {

QString absolute(const QString &path)
{
    return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

// What was opened is open even when the project before it was not written whole: both are true.
bool tell(const ProjectHolder &holder, const QString &path, const NxResult<void> &result,
          QWidget *parent)
{
    const bool isOpen = holder.project() && holder.path() == absolute(path);
    if (!result)
        NMessageDialog::Infomation(parent, QString(), result.error().message);
    return isOpen;
}

} // namespace

bool ProjectDialogs::open(ProjectHolder *holder, const QString &path, QWidget *parent)
{
    if (path.isEmpty() || !ProjectHolder::isMissing(path))
        return tell(*holder, path, holder->open(path), parent);

    NMessageDialogInfo info;
    info.style = mdsQuestion;
    info.text = tr("There is no project \"%1\".").arg(QDir::toNativeSeparators(path));
    info.detail = tr("It may have been moved or renamed, or its drive is not connected. Do you "
                     "want to make a new project there?");
    info.buttons = {mdbAffirmative, mdbNegative};
    info.captions = {{mdbAffirmative, tr("&New Project")}, {mdbNegative, tr("Cancel")}};
    info.defaultButton = mdbNegative;
    info.escapeButton = mdbNegative;
    const QPointer<ProjectHolder> guard(holder); // The window may go while the dialog waits.
    const bool isWanted = NMessageDialog::Ask(parent, info).button == mdbAffirmative;
    return guard && isWanted && create(holder, path, parent);
}

bool ProjectDialogs::create(ProjectHolder *holder, const QString &path, QWidget *parent)
{
    return tell(*holder, path, holder->create(path), parent);
}
