// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxMediaLibrary/NxMediaLibraryPresenter_P/NxBaseMediaPresenterPrivate.h>

#include <NxCore/NxUIView.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxBaseMediaPresenter.h>
#include <NxVBLModel/INxAbstractMedia.h>
#include <NxVBLModel/INxProject.h>
#include <NxVBLModel/INxProjectManager.h>
#include <NxWidgets/NMessageDialog.h>

NxBaseMediaPresenterPrivate::NxBaseMediaPresenterPrivate()
{
    qRegisterMetaType<INxAbstractMedia *>("INxAbstractMedia*");
    qRegisterMetaType<QList<INxAbstractMedia *>>("QList<INxAbstractMedia*>");
}

NxBaseMediaPresenterPrivate::~NxBaseMediaPresenterPrivate() = default;

QWidget *NxBaseMediaPresenterPrivate::viewWidget() const
{
    NxUIView *view = q_ptr->view();
    return view ? view->widget() : nullptr;
}

INxProject *NxBaseMediaPresenterPrivate::currentProject()
{
    return INxProjectManager::getInstance()->currentProject();
}

bool NxBaseMediaPresenterPrivate::tellIfReadOnly() const
{
    const INxProject *project = currentProject();
    if (!project || !project->isReadOnly())
        return false;
    NMessageDialog::Infomation(viewWidget(), {}, project->readOnlyReason());
    return true;
}

INxUndoStack *NxBaseMediaPresenterPrivate::undoStack()
{
    INxProject *project = currentProject();
    return project ? project->undoStack() : nullptr;
}
