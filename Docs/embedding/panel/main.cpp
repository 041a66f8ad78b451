// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include "../memoryengine.h"

#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaLibraryPresenter.h>
#include <NxMediaViews/NxFolderTreeView.h>
#include <NxMediaViews/NxMediaItemView.h>
#include <NxMediaViews/NxMediaPanelBinder.h>
#include <NxVBLModel/NxMediaEngineDoor.h>
#include <NxWidgets/NxWidgetView.h>

#include <QApplication>
#include <QHBoxLayout>

#include <cstdio>

/// Folders beside media, bound to the presenters.
class EditorPanel : public NxWidgetView
{
public:
    explicit EditorPanel(NxMediaLibraryPresenter *presenter)
        : m_tree(new NxFolderTreeView(this)),
          m_view(new NxMediaItemView(this)),
          m_binder(this, m_view, m_tree)
    {
        auto *row = new QHBoxLayout(this);
        row->addWidget(m_tree, 1);
        row->addWidget(m_view, 3);
        m_binder.setPresenter(presenter);
    }
    [[nodiscard]] NxMediaPanelBinder *binder() { return &m_binder; }

private:
    NxFolderTreeView *const m_tree; // Children.
    NxMediaItemView *const m_view;
    NxMediaPanelBinder m_binder;
};

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    MemoryEngine engine;
    const NxMediaEngineDoor door(&engine);
    engine.items.addMediaItems(&engine.section, {new MemoryMedia(QStringLiteral("beach.mp4")),
                                                 new MemoryMedia(QStringLiteral("palm.mov"))});

    NxMediaLibraryPresenter presenter(engine.mediaLibrary(), nullptr);
    presenter.setCurrentCategoryType(NXVBLMODEL::mctMedia);
    EditorPanel panel(&presenter);
    QObject::connect(panel.binder(), &NxMediaPanelBinder::sigOpenWanted, &panel,
                     [](INxAbstractMedia *media) { std::puts(qUtf8Printable(media->name())); });
    panel.resize(900, 600);
    panel.show();

    const bool isWindow = QGuiApplication::platformName() != QLatin1String("offscreen");
    const int code = isWindow ? QApplication::exec() : 0;
    const int listed = panel.binder()->listedCount();
    const bool isPainted = !panel.grab().isNull();
    panel.binder()->letGo(); // Before the presenter goes.
    std::printf("%d media\n", listed);
    return isPainted && listed == 2 ? code : 1;
}
