// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QList>
#include <QWidget>

#include <memory>

class INxAbstractMediaItem;
class NxMediaItemManagerPresenter;
class NxMissingMediaRelinker;
class QLabel;
class QPushButton;
struct NxRelinkReport;

/// Looks for missing files in a folder, from the status bar: how far it is, a button that cancels,
/// and at the end what came of it. Hidden while nothing is looked for.
class MissingSearch : public QWidget
{
    Q_OBJECT
public:
    explicit MissingSearch(QWidget *parent = nullptr);
    ~MissingSearch() override;

    /// False while a search runs, or where nothing can be searched. The presenter is not owned, and
    /// may die, which ends the search.
    bool start(NxMediaItemManagerPresenter *presenter, const QList<INxAbstractMediaItem *> &missing,
               const QString &directory);
    void cancel();

Q_SIGNALS:
    /// What came of it: a sentence, and what is left for the user, one line each.
    void sigFinished(const QString &summary, const QStringList &details);

protected:
    void changeEvent(QEvent *event) override;

private:
    void showProgress(qint64 seen);
    void finish(const NxRelinkReport &report, int relinked);
    void retranslate();

    std::unique_ptr<NxMissingMediaRelinker> m_relinker; // While it looks, and until the next one.
    QLabel *const m_text; // Children.
    QPushButton *const m_cancel;
    qint64 m_seen = 0;
};
