// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QMetaObject>
#include <QPointer>
#include <QWidget>

class NxMediaItemManagerPresenter;
class QLabel;
class QLineEdit;
class QToolButton;

/// The field in which a user searches by name: what is shown follows every key.
///
/// It shows the keyword of the presenter, whoever set it.
class SearchField : public QWidget
{
    Q_OBJECT
public:
    explicit SearchField(QWidget *parent = nullptr);
    ~SearchField() override;

    /// Searches in the media of this presenter, which is not owned and may die; null disables.
    void setPresenter(NxMediaItemManagerPresenter *presenter);
    /// How many media were found, shown in the field; -1 shows nothing.
    void setResultCount(int count);
    /// Takes the keyboard, ready to type another name over the one that is there.
    void activate();

Q_SIGNALS:
    /// The user goes on to the media: they are to take the keyboard.
    void sigLeave();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void retranslate();
    void search();
    void applyText(const QString &text);
    void follow();
    bool serveKey(int key);
    void showCount();

    QPointer<NxMediaItemManagerPresenter> m_presenter;
    QLineEdit *const m_edit;
    QToolButton *const m_clear; // The edit's own; null if it has none.
    QLabel *const m_found;
    int m_resultCount = -1;
    int m_textMargin = 0; // px, without room for the count.
    bool m_isSearching = false;
};
