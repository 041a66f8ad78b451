// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/NxImportReport.h>

#include <QVector>
#include <QWidget>

class ImportDesk;
class ImportReportModel;
class QAction;
class QLabel;
class QTreeView;

/// The report of the last import: its sums, and what was not plainly added, line by line, with
/// what can be done about it. For a dock.
class ImportReportView : public QWidget
{
    Q_OBJECT
public:
    /// @param desk not owned; must outlive the widget.
    explicit ImportReportView(ImportDesk *desk, QWidget *parent = nullptr);

Q_SIGNALS:
    /// The user wants to see the media of this path, which is in the project.
    void sigShowMedia(const QString &path);
    /// The user wants to see where this path is on disk.
    void sigRevealFile(const QString &path);

protected:
    void changeEvent(QEvent *event) override;
    /// Watches the list, whose keys are not the window's.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Bookmark;

    void layOut();
    void setUpList();
    void connectActions();
    void retranslate();
    void takeReport();
    void showTexts(const NxImportReport &report);
    [[nodiscard]] QString hint(const NxImportReport &report) const;
    void updateActions();
    [[nodiscard]] QAction *actionOf(const QEvent *event) const;

    void showCurrent();
    void tryAgain();
    void copyReport();
    void copyLines();

    [[nodiscard]] QVector<NxImportReportLine> selectedLines() const;
    [[nodiscard]] Bookmark bookmark() const;
    void restore(const Bookmark &bookmark);

    ImportDesk *const m_desk; // Not owned.
    ImportReportModel *const m_model; // The children are the widget's.
    QLabel *const m_sums;
    QLabel *const m_hint; // In place of lines.
    QTreeView *const m_lines;
    QAction *const m_show;
    QAction *const m_tryAgain;
    QAction *const m_copyLines;
    QAction *const m_copyReport; // Has a button only.
};
