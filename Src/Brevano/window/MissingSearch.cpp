// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/MissingSearch.h>

#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaItemManagerPresenter.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMissingMediaRelinker.h>
#include <NxVBLModel/INxAbstractMediaItem.h>

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>

MissingSearch::MissingSearch(QWidget *parent)
    : QWidget(parent),
      m_text(new QLabel(this)),
      m_cancel(new QPushButton(this))
{
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_text);
    row->addWidget(m_cancel);
    connect(m_cancel, &QPushButton::clicked, this, &MissingSearch::cancel);
    retranslate();
    hide();
}

MissingSearch::~MissingSearch() = default;

bool MissingSearch::start(NxMediaItemManagerPresenter *presenter,
                          const QList<INxAbstractMediaItem *> &missing, const QString &directory)
{
    if (m_relinker && m_relinker->isRunning())
        return false;
    m_relinker = std::make_unique<NxMissingMediaRelinker>(presenter);
    connect(m_relinker.get(), &NxMissingMediaRelinker::progress, this,
            [this](qint64 seen) { showProgress(seen); });
    connect(m_relinker.get(), &NxMissingMediaRelinker::finished, this, &MissingSearch::finish);
    showProgress(0);
    setVisible(m_relinker->start(missing, directory));
    return !isHidden();
}

void MissingSearch::cancel()
{
    if (m_relinker)
        m_relinker->cancel();
}

void MissingSearch::showProgress(qint64 seen)
{
    m_seen = seen;
    m_text->setText(tr("Looking for missing files: %1 seen").arg(QLocale().toString(seen)));
}

void MissingSearch::finish(const NxRelinkReport &report, int relinked)
{
    hide();
    QStringList details;
    for (const NxRelinkFinding &finding : report.findings) {
        const INxAbstractMedia *media = finding.media.get();
        if (!media || finding.match == NxRelinkMatch::None)
            continue;
        if (finding.match == NxRelinkMatch::Ambiguous)
            details.append(tr("\"%1\" could be any of these: %2")
                               .arg(media->name(), finding.paths.join(QLatin1String(", "))));
    }
    details += report.unreadable;
    QString summary = tr("%1 of %2 missing files found").arg(relinked).arg(report.findings.size());
    if (report.cancelled)
        summary = tr("The search was cancelled. Nothing was relinked.");
    Q_EMIT sigFinished(summary, details);
}

void MissingSearch::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
}

void MissingSearch::retranslate()
{
    m_cancel->setText(tr("Cancel"));
    showProgress(m_seen);
}
