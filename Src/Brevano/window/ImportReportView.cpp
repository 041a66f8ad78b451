// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/ImportReportView.h>

#include <Brevano/window/ImportDesk.h>
#include <Brevano/window/ImportReportModel.h>
#include <Brevano/window/ImportWords.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QSet>
#include <QToolButton>
#include <QTreeView>

#include <algorithm>

namespace {

constexpr int VerdictWidth = 16; // Average characters.
constexpr int NameWidth = 28;

} // namespace

/// What of the list the user was at, so that a report that changes does not take it away.
struct ImportReportView::Bookmark
{
    QSet<QString> selected; // Paths.
    QString current;
};

ImportReportView::ImportReportView(ImportDesk *desk, QWidget *parent)
    : QWidget(parent),
      m_desk(desk),
      m_model(new ImportReportModel(this)),
      m_sums(new QLabel(this)),
      m_hint(new QLabel(this)),
      m_lines(new QTreeView(this)),
      m_show(new QAction(this)),
      m_tryAgain(new QAction(this)),
      m_copyLines(new QAction(this)),
      m_copyReport(new QAction(this))
{
    setUpList();
    layOut();
    connectActions();
    connect(m_desk, &ImportDesk::sigFinished, this, &ImportReportView::takeReport);
    connect(m_desk, &ImportDesk::sigReportChanged, this, &ImportReportView::takeReport);
    retranslate();
}

void ImportReportView::setUpList()
{
    m_lines->setModel(m_model);
    m_lines->setRootIsDecorated(false);
    m_lines->setUniformRowHeights(true);
    m_lines->setAllColumnsShowFocus(true);
    m_lines->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_lines->setTabKeyNavigation(false);
    const int character = m_lines->fontMetrics().averageCharWidth();
    m_lines->setColumnWidth(ImportReportModel::Verdict, VerdictWidth * character);
    m_lines->setColumnWidth(ImportReportModel::Name, NameWidth * character);
    m_lines->setContextMenuPolicy(Qt::ActionsContextMenu);
    m_lines->addActions({m_show, m_tryAgain, m_copyLines});
    m_lines->installEventFilter(this);
}

void ImportReportView::layOut()
{
    auto *layout = new QVBoxLayout(this);
    m_sums->setWordWrap(true);
    layout->addWidget(m_sums);
    m_hint->setWordWrap(true);
    m_hint->setAlignment(Qt::AlignCenter);
    layout->addWidget(m_hint, 1);
    layout->addWidget(m_lines, 1);
    auto *buttons = new QHBoxLayout;
    for (QAction *action : {m_show, m_tryAgain, m_copyReport}) {
        auto *button = new QToolButton(this);
        button->setDefaultAction(action);
        button->setToolButtonStyle(Qt::ToolButtonTextOnly);
        buttons->addWidget(button);
    }
    buttons->addStretch();
    layout->addLayout(buttons);
}

void ImportReportView::connectActions()
{
    connect(m_show, &QAction::triggered, this, &ImportReportView::showCurrent);
    connect(m_tryAgain, &QAction::triggered, this, &ImportReportView::tryAgain);
    connect(m_copyLines, &QAction::triggered, this, &ImportReportView::copyLines);
    connect(m_copyReport, &QAction::triggered, this, &ImportReportView::copyReport);
    connect(m_lines, &QTreeView::doubleClicked, m_show, &QAction::trigger);
    connect(m_lines->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &ImportReportView::updateActions);
}

// Texts

void ImportReportView::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void ImportReportView::retranslate()
{
    m_lines->setAccessibleName(tr("Import Report"));
    m_show->setText(tr("Show"));
    m_show->setToolTip(tr("Show the media, or the file on disk (Enter)"));
    m_tryAgain->setText(tr("Try Again"));
    m_tryAgain->setToolTip(tr("Import or read the selected files once more (F5)"));
    m_copyLines->setText(tr("Copy Lines"));
    m_copyReport->setText(tr("Copy"));
    m_copyReport->setToolTip(tr("Copy the whole report as text"));
    m_model->retranslate();
    takeReport();
}

void ImportReportView::takeReport()
{
    const NxImportReport report = m_desk->report();
    const Bookmark place = bookmark();
    m_model->setLines(report.lines);
    restore(place);
    showTexts(report);
    updateActions();
}

QString ImportReportView::hint(const NxImportReport &report) const
{
    if (!m_desk->hasReport())
        return tr("After an import you see here which files could not be added, and why.");
    return ImportWords::isWorthReading(report) ? QString() : tr("All files were added.");
}

void ImportReportView::showTexts(const NxImportReport &report)
{
    const bool hasLines = !report.lines.isEmpty();
    m_sums->setText(m_desk->hasReport() ? ImportWords::sums(report) : QString());
    m_sums->setVisible(m_desk->hasReport());
    m_hint->setText(hint(report));
    m_hint->setVisible(!hasLines);
    m_lines->setVisible(hasLines);
}

// What can be done about lines

void ImportReportView::updateActions()
{
    const QVector<NxImportReportLine> lines = selectedLines();
    m_show->setEnabled(!lines.isEmpty());
    m_copyLines->setEnabled(!lines.isEmpty());
    m_tryAgain->setEnabled(std::any_of(lines.begin(), lines.end(), [this](const auto &line) {
        return m_desk->canTryAgain(line);
    }));
    m_copyReport->setEnabled(m_desk->hasReport());
}

QVector<NxImportReportLine> ImportReportView::selectedLines() const
{
    QVector<int> rows;
    const QItemSelection selection = m_lines->selectionModel()->selection();
    for (const QItemSelectionRange &range : selection) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.append(row);
    }
    std::sort(rows.begin(), rows.end());
    QVector<NxImportReportLine> lines;
    for (const int row : qAsConst(rows))
        lines.append(m_model->line(row));
    return lines;
}

void ImportReportView::showCurrent()
{
    const QModelIndex current = m_lines->currentIndex();
    const QVector<NxImportReportLine> lines = selectedLines();
    if (lines.isEmpty())
        return;
    const bool isCurrentSelected = m_lines->selectionModel()->isSelected(current);
    const QString path = isCurrentSelected ? m_model->line(current.row()).path : lines.first().path;
    if (m_desk->isInProject(path))
        Q_EMIT sigShowMedia(path);
    else
        Q_EMIT sigRevealFile(path);
}

void ImportReportView::tryAgain()
{
    m_desk->tryAgain(selectedLines());
}

void ImportReportView::copyReport()
{
    QApplication::clipboard()->setText(ImportWords::text(m_desk->report()));
}

void ImportReportView::copyLines()
{
    QString text;
    const QVector<NxImportReportLine> lines = selectedLines();
    for (const NxImportReportLine &line : lines)
        text += ImportWords::text(line);
    QApplication::clipboard()->setText(text);
}

// Keys

QAction *ImportReportView::actionOf(const QEvent *event) const
{
    const bool isKey =
        event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
    if (!isKey)
        return nullptr;
    const auto *key = static_cast<const QKeyEvent *>(event);
    if (key->matches(QKeySequence::Copy))
        return m_copyLines;
    if ((key->modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier)
        return nullptr;
    if (key->key() == Qt::Key_F5)
        return m_tryAgain;
    const bool isReturn = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
    return isReturn ? m_show : nullptr;
}

bool ImportReportView::eventFilter(QObject *watched, QEvent *event)
{
    QAction *action = actionOf(event);
    if (!action)
        return QWidget::eventFilter(watched, event);
    event->accept(); // In the list these keys are about its lines, not about the window's media.
    if (event->type() == QEvent::KeyPress)
        action->trigger(); // Does nothing while it is disabled.
    return true;
}

// The user's place in the list

ImportReportView::Bookmark ImportReportView::bookmark() const
{
    Bookmark place;
    const QVector<NxImportReportLine> lines = selectedLines();
    for (const NxImportReportLine &line : lines)
        place.selected.insert(line.path);
    const QModelIndex current = m_lines->currentIndex();
    if (current.isValid())
        place.current = m_model->line(current.row()).path;
    return place;
}

void ImportReportView::restore(const Bookmark &bookmark)
{
    if (m_lines->selectionModel()->hasSelection() || bookmark.selected.isEmpty())
        return; // Lines were only added, or there is nothing to restore.
    QItemSelection selection; // Of whole runs of rows: there may be very many.
    QModelIndex current;
    int first = -1; // Of the run that has not ended.
    for (int row = 0; row <= m_model->rowCount(); ++row) {
        const QString path = row < m_model->rowCount() ? m_model->line(row).path : QString();
        if (!path.isEmpty() && path == bookmark.current)
            current = m_model->index(row, 0);
        const bool isSelected = bookmark.selected.contains(path);
        if (isSelected && first < 0)
            first = row;
        if (isSelected || first < 0)
            continue;
        selection.select(m_model->index(first, 0),
                         m_model->index(row - 1, ImportReportModel::ColumnCount - 1));
        first = -1;
    }
    m_lines->selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
    m_lines->selectionModel()->select(selection, QItemSelectionModel::Select);
}
