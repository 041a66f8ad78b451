// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/ImportStatus.h>

#include <Brevano/window/ImportDesk.h>
#include <Brevano/window/ImportWords.h>

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QProgressBar>
#include <QPushButton>

#include <algorithm>
#include <limits>

namespace {

constexpr int BarWidth = 120; // px
constexpr int TroubleWidth = 480; // px

int barValue(qint64 number)
{
    return int(std::min<qint64>(number, std::numeric_limits<int>::max()));
}

} // namespace

ImportStatus::ImportStatus(ImportDesk *desk, QWidget *parent)
    : QWidget(parent),
      m_desk(desk),
      m_text(new QLabel(this)),
      m_bar(new QProgressBar(this)),
      m_cancel(new QPushButton(this)),
      m_report(new QPushButton(this))
{
    layOut();
    retranslate();
    wearLinkColour();
    connect(m_cancel, &QPushButton::clicked, m_desk, &ImportDesk::cancel);
    connect(m_report, &QPushButton::clicked, this, &ImportStatus::sigShowReport);
    connect(m_desk, &ImportDesk::sigProgress, this, &ImportStatus::showProgress);
    connect(m_desk, &ImportDesk::sigFinished, this, &ImportStatus::takeReport);
    connect(m_desk, &ImportDesk::sigReportChanged, this, &ImportStatus::takeReport);
    takeReport();
}

void ImportStatus::layOut()
{
    m_bar->setFixedWidth(BarWidth);
    m_bar->setTextVisible(false);
    m_cancel->setAutoDefault(false);
    m_report->setAutoDefault(false);
    m_report->setFlat(true);
    m_report->setCursor(Qt::PointingHandCursor);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    for (QWidget *widget : {static_cast<QWidget *>(m_text), static_cast<QWidget *>(m_bar),
                            static_cast<QWidget *>(m_cancel), static_cast<QWidget *>(m_report)})
        layout->addWidget(widget);
}

void ImportStatus::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        wearLinkColour();
    if (event->type() != QEvent::LanguageChange)
        return;
    retranslate();
    takeReport();
}

void ImportStatus::retranslate()
{
    m_bar->setAccessibleName(tr("Import Progress"));
    m_cancel->setText(tr("Cancel"));
    m_cancel->setToolTip(tr("Stop importing; what was added stays"));
    m_cancel->setAccessibleName(tr("Cancel Import"));
    m_report->setText(tr("Import Report"));
}

void ImportStatus::wearLinkColour()
{
    QPalette colours = palette();
    colours.setColor(QPalette::ButtonText, colours.color(QPalette::Link));
    m_report->setPalette(colours);
}

void ImportStatus::takeReport()
{
    m_hasNews = false;
    if (m_desk->hasReport()) {
        const NxImportReport report = m_desk->report();
        m_hasNews = ImportWords::isWorthReading(report);
        m_report->setToolTip(ImportWords::sums(report));
        m_report->setAccessibleDescription(m_report->toolTip());
    }
    showProgress();
}

QString ImportStatus::progressText() const
{
    const QLocale locale;
    if (m_desk->isBusy()) {
        return tr("Importing: %1 found, %2 added, %3 read")
            .arg(locale.toString(m_desk->found()), locale.toString(m_desk->added()),
                 locale.toString(m_desk->read()));
    }
    return tr("Reading %1 of %2")
        .arg(locale.toString(m_desk->filesRead()), locale.toString(m_desk->filesKnown()));
}

QString ImportStatus::troubleText() const
{
    const QString reason = m_desk->trouble();
    return reason.isEmpty() ? QString() : tr("Files cannot be read: %1").arg(reason);
}

QString ImportStatus::shortened(const QString &text) const
{
    return m_text->fontMetrics().elidedText(text, Qt::ElideRight, TroubleWidth);
}

void ImportStatus::showProgress()
{
    const bool isBusy = m_desk->isBusy();
    const bool isAtWork = isBusy || m_desk->isReading();
    const QString trouble = isAtWork ? QString() : troubleText();
    m_text->setText(isAtWork ? progressText() : shortened(trouble));
    m_text->setToolTip(trouble);
    m_text->setAccessibleName(trouble);
    m_text->setVisible(!m_text->text().isEmpty());
    showBar();
    m_bar->setVisible(isAtWork);
    m_cancel->setVisible(isBusy);
    m_report->setVisible(m_hasNews && !isBusy);
    setVisible(isAtWork || m_hasNews || !trouble.isEmpty());
}

void ImportStatus::showBar()
{
    const bool isBusy = m_desk->isBusy();
    const qint64 done = isBusy ? m_desk->added() : m_desk->filesRead();
    const qint64 all = isBusy ? m_desk->found() : m_desk->filesKnown();
    const bool isCounting = isBusy && done == 0;
    m_bar->setRange(0, isCounting ? 0 : barValue(all));
    m_bar->setValue(barValue(done));
}
