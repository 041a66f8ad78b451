// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <QList>
#include <QMap>
#include <QString>

/// What kind of message a dialog brings; it decides the icon. Unknown codes look like mdsMessage.
enum NMessageDialogStyle : int {
    mdsMessage = 0, ///< Something to know.
    mdsQuestion = 198, ///< A choice in which nothing gets lost.
    mdsDelete = 230, ///< Something is about to be removed.
};

/// How a dialog was answered. Dialogs may use further codes above 0 for buttons of their own.
enum NMessageDialogButton : int {
    mdbAffirmative = 2,
    mdbNegative = 3,
    mdbClosed = 4, ///< Closed without a choice, or chosen to be ignored.
};

/// What an NMessageDialog shows. All texts are plain: names of files stand in them as they are.
struct NMessageDialogInfo
{
    int style = mdsMessage; ///< An NMessageDialogStyle.
    QString title; ///< The product's name when empty.
    QString text;
    QString detail; ///< Shown smaller below the text; empty for none.
    QList<int> buttons; ///< Codes, in reading order. Empty for a single affirmative "OK".
    int defaultButton = mdbAffirmative; ///< What Return presses; the first when it is not shown.
    /// What Escape and the window's close answer, whether there is such a button or not.
    int escapeButton = mdbClosed;
    /// By code; "&" marks the letter for Alt. Codes left out are called "Yes", "No" and "Close".
    QMap<int, QString> captions;
    QString checkBoxText; ///< Empty for no check box.
    bool isCheckBoxChecked = false; ///< At first.
};

/// How the user answered.
struct NMessageDialogAnswer
{
    int button = mdbClosed; ///< The code of the pressed button, or the escape button's.
    bool isChecked = false; ///< The check box at the end; false without one.
};
