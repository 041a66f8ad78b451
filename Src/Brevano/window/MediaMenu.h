// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QList>
#include <QMenu>

#include <functional>

class INxAbstractMedia;
class PanelActions;

/// The context menu of media, or of a folder of the tree, made of the window's actions.
class MediaMenu : public QMenu
{
    Q_OBJECT
public:
    enum class Subject { Media, Folder };

    /// What the menu is about.
    struct Selection
    {
        QList<INxAbstractMedia *> medias; ///< Not owned; of a folder's menu the folder.
        bool isReadOnly = false; ///< Nothing of the project can be changed.
    };
    /// Asked each time the menu opens, and at no other time.
    using Source = std::function<Selection()>;

    /// @param actions not owned; they outlive the menu.
    MediaMenu(PanelActions *actions, Subject subject, Source source, QWidget *parent = nullptr);
    ~MediaMenu() override;

    /// Enables those of the actions about selected media and folders that can be done with these,
    /// and disables the others of them. Never reaches for a disk, and looks at some hundred media
    /// at most, so that it may be called at every change of the selection.
    static void update(PanelActions *actions, const QList<INxAbstractMedia *> &selected,
                       bool isReadOnly);

Q_SIGNALS:
    /// The user wants the two selected media on the timeline, aligned by their sound.
    void sigSynchroniseWanted();

protected:
    void changeEvent(QEvent *event) override;

private:
    void prepare();
    void retranslate();

    PanelActions *const m_actions; // Not owned.
    const Source m_source;
    QAction *m_synchronise = nullptr; // Owned by the menu; null in that of a folder.
};
