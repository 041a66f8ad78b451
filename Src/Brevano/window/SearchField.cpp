// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/SearchField.h>

#include <Brevano/window/ToolIcons.h>
#include <NxMediaLibrary/NxMediaLibraryPresenter/NxMediaItemManagerPresenter.h>
#include <NxWidgets/NxLineEdit.h>

#include <QAction>
#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QStyle>
#include <QToolButton>

#include <algorithm>

using Items = NxMediaItemManagerPresenter;

namespace {

constexpr int NoCount = -1;
constexpr int CountGap = 4; // px, between text, count and border.
constexpr int LeastTextWidth = 60; // px; a count that would leave less gives way.
constexpr int WidestField = 320; // px

/// Has the edit make its button that empties it, which can be told by its action's name alone.
QToolButton *clearButton(QLineEdit *edit)
{
    edit->setClearButtonEnabled(true);
    auto *action = edit->findChild<QAction *>(QStringLiteral("_q_qlineeditclearaction"));
    if (!action)
        return nullptr;
    action->setIcon(ToolIcons::icon(ToolIcons::Id::Clear));
    const QList<QToolButton *> buttons = edit->findChildren<QToolButton *>();
    const auto found =
        std::find_if(buttons.cbegin(), buttons.cend(), [action](const QToolButton *button) {
            return button->defaultAction() == action;
        });
    return found == buttons.cend() ? nullptr : *found;
}

} // namespace

SearchField::SearchField(QWidget *parent)
    : QWidget(parent),
      m_edit(NxLineEdit::creartNormalLineEdit(this, NxLineEditSizeType::lestFolder)),
      m_clear(clearButton(m_edit)),
      m_found(new QLabel(m_edit))
{
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_edit);
    setMaximumWidth(WidestField);
    setFocusProxy(m_edit);
    m_edit->addAction(ToolIcons::icon(ToolIcons::Id::Search), QLineEdit::LeadingPosition);
    m_textMargin = m_edit->textMargins().right();
    m_edit->installEventFilter(this);
    if (m_clear)
        m_clear->installEventFilter(this);
    m_found->setForegroundRole(QPalette::PlaceholderText);
    m_found->setAttribute(Qt::WA_TransparentForMouseEvents);
    connect(m_edit, &QLineEdit::textEdited, this, &SearchField::search);
    retranslate();
    setPresenter(nullptr);
}

SearchField::~SearchField() = default;

void SearchField::setPresenter(Items *presenter)
{
    if (m_presenter)
        m_presenter->disconnect(this);
    m_presenter = presenter;
    setEnabled(presenter);
    if (presenter) {
        connect(presenter, &Items::sigFilterChanged, this, &SearchField::follow);
        connect(presenter, &Items::sigFilterKeywordChanged, this, &SearchField::follow);
        connect(presenter, &QObject::destroyed, this, [this] { setPresenter(nullptr); });
    }
    follow();
}

void SearchField::setResultCount(int count)
{
    if (m_resultCount == count)
        return;
    m_resultCount = count;
    showCount();
}

void SearchField::activate()
{
    m_edit->setFocus(Qt::ShortcutFocusReason);
    m_edit->selectAll();
}

// A key that comes while a search runs is seen when that search is done, with all that came since.
void SearchField::search()
{
    if (m_isSearching)
        return;
    const QPointer<SearchField> alive(this);
    m_isSearching = true;
    QString text;
    do {
        text = m_edit->text();
        applyText(text);
    } while (alive && m_edit->text() != text);
    if (!alive)
        return;
    m_isSearching = false;
    follow();
}

void SearchField::applyText(const QString &text)
{
    if (m_presenter && !text.isEmpty())
        m_presenter->clearSimilarSearch();
    if (m_presenter)
        m_presenter->setFilterKeyword(text, NXMEDIALIBRARY::esmKeyword);
}

void SearchField::follow()
{
    if (m_isSearching)
        return;
    const QString keyword = m_presenter ? m_presenter->getFilter().keyword : QString();
    if (m_edit->text() != keyword)
        m_edit->setText(keyword);
}

bool SearchField::serveKey(int key)
{
    if (key != Qt::Key_Escape && key != Qt::Key_Down)
        return false;
    const QPointer<SearchField> alive(this);
    if (key == Qt::Key_Escape) {
        m_edit->clear();
        search();
    }
    if (alive)
        Q_EMIT sigLeave();
    return true;
}

bool SearchField::eventFilter(QObject *watched, QEvent *event)
{
    // The edit moves its button after it got its own size.
    if (event->type() == QEvent::Resize || event->type() == QEvent::Move)
        showCount();
    if (watched != m_edit)
        return QWidget::eventFilter(watched, event);
    // Esc is the field's, whatever shortcut the window has on it.
    if (event->type() == QEvent::ShortcutOverride
        && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape) {
        event->accept();
        return true;
    }
    return event->type() == QEvent::KeyPress && serveKey(static_cast<QKeyEvent *>(event)->key());
}

void SearchField::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    if (event->type() == QEvent::FontChange)
        showCount();
}

void SearchField::retranslate()
{
    m_edit->setPlaceholderText(tr("Name"));
    m_edit->setAccessibleName(tr("Search by name"));
    m_edit->setToolTip(tr("Show only media whose name holds this text"));
    showCount();
}

void SearchField::showCount()
{
    m_found->setText(m_resultCount <= NoCount ? QString() : tr("%n found", nullptr, m_resultCount));
    const int width = m_found->sizeHint().width();
    const bool isToTheRight = isLeftToRight();
    const QRect clear = m_clear ? m_clear->geometry() : QRect();
    const int free = isToTheRight ? clear.left() : m_edit->width() - clear.right() - 1;
    const int room = (m_clear ? free : m_edit->width()) - CountGap;
    const bool isShown = m_resultCount > NoCount && room - width >= LeastTextWidth;
    const QRect place(room - width, 0, width, m_edit->height());
    m_found->setGeometry(QStyle::visualRect(layoutDirection(), m_edit->rect(), place));
    m_found->setVisible(isShown);
    QMargins margins = m_edit->textMargins();
    const int margin = m_textMargin + (isShown ? width + CountGap : 0);
    margins.setRight(isToTheRight ? margin : m_textMargin);
    margins.setLeft(isToTheRight ? m_textMargin : margin);
    if (margins != m_edit->textMargins())
        m_edit->setTextMargins(margins);
}
