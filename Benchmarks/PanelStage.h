// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <Brevano/window/MainWindow.h>
#include <Brevano/window/WindowMemory.h>

#include <QObject>
#include <QSize>

#include <functional>
#include <memory>

class NxMediaItemManagerPresenter;
class NxMediaItemView;
class QApplication;
class QPaintEvent;

/// The window of the program with a project, on a screen that nobody sees, and how long it takes
/// until what somebody does can be seen in its panel.
class PanelStage : public QObject
{
    Q_OBJECT
public:
    static constexpr QSize FullHd{1920, 1080};

    /// An application object as the program makes it.
    [[nodiscard]] static std::unique_ptr<QApplication> application(int &argc, char **argv);

    explicit PanelStage(const QSize &size = FullHd);
    ~PanelStage() override;

    /// The panel shows the project and has been painted, afterwards.
    void open(const QString &project);
    /// Instead of opening one.
    void create(const QString &project);
    /// It is known of every file of the folder that it is there, afterwards.
    void findFiles();
    /// Nothing is being read and all covers that can be seen are there, afterwards.
    void settle();

    struct Cost
    {
        double ms = 0; ///< By the clock.
        double worked = 0; ///< ms that the GUI thread worked meanwhile.
    };
    /// What something costs, the painting of the picture that shows it included.
    Cost paint(const std::function<void()> &deed);

    [[nodiscard]] MainWindow *window() { return &m_window; }
    [[nodiscard]] NxMediaItemView *view() const;
    [[nodiscard]] NxMediaItemManagerPresenter *items() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    WindowMemory m_memory;
    MainWindow m_window;
    bool m_isPainted = false;
};
