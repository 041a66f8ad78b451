// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QWidget>

class ImportDesk;
class QLabel;
class QProgressBar;
class QPushButton;

/// How far the import is, for the status bar; after it, the way to its report, and why files cannot
/// be read if none of them can. Hidden while there is nothing to say.
class ImportStatus : public QWidget
{
    Q_OBJECT
public:
    /// @param desk not owned; must outlive the widget.
    explicit ImportStatus(ImportDesk *desk, QWidget *parent = nullptr);

Q_SIGNALS:
    /// The user wants to see the report of the last import.
    void sigShowReport();

protected:
    void changeEvent(QEvent *event) override;

private:
    void layOut();
    void retranslate();
    void wearLinkColour();
    void takeReport();
    void showProgress();
    [[nodiscard]] QString progressText() const;
    [[nodiscard]] QString troubleText() const;
    [[nodiscard]] QString shortened(const QString &text) const;
    void showBar();

    ImportDesk *const m_desk; // Not owned.
    QLabel *const m_text; // The children are the widget's.
    QProgressBar *const m_bar;
    QPushButton *const m_cancel;
    QPushButton *const m_report;
    bool m_hasNews = false; // Something to tell of the last import.
};
