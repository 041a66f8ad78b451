// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxWidgets/NMessageDialog.h>

#include "NxMessageText_p.h"

#include <NxCore/NxCustomProductInfo.h>
#include <NxCore/NxLog.h>
#include <NxWidgets/NxDialogScript.h>
#include <NxWidgets/NxMaskScope.h>

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>

#include <algorithm>
#include <iterator>

namespace {

constexpr int margin = 16; // px
constexpr int spacing = 12; // px

struct IconOfStyle
{
    int style;
    QStyle::StandardPixmap icon;
};

constexpr IconOfStyle Icons[] = {
    {mdsMessage, QStyle::SP_MessageBoxInformation},
    {mdsQuestion, QStyle::SP_MessageBoxQuestion},
    {mdsDelete, QStyle::SP_MessageBoxWarning},
};

struct CaptionOfButton
{
    int code;
    const char *caption;
};

constexpr CaptionOfButton Captions[] = {
    {mdbAffirmative, QT_TRANSLATE_NOOP("NMessageDialog", "Yes")},
    {mdbNegative, QT_TRANSLATE_NOOP("NMessageDialog", "No")},
    {mdbClosed, QT_TRANSLATE_NOOP("NMessageDialog", "Close")},
};

QStyle::StandardPixmap iconOf(int style)
{
    const auto *known = std::find_if(std::begin(Icons), std::end(Icons),
                                     [style](const IconOfStyle &it) { return it.style == style; });
    return known == std::end(Icons) ? QStyle::SP_MessageBoxInformation : known->icon;
}

/// Every button says something, also one that nobody has named.
QString captionOf(int code, const NMessageDialogInfo &info)
{
    const QString told = info.captions.value(code);
    if (!told.isEmpty())
        return told;
    const auto *known = std::find_if(std::begin(Captions), std::end(Captions),
                                     [code](const CaptionOfButton &it) { return it.code == code; });
    if (info.buttons.isEmpty() || known == std::end(Captions))
        return NMessageDialog::tr("OK");
    return NMessageDialog::tr(known->caption);
}

QFont smaller(QFont font)
{
    constexpr qreal ratio = 0.9;
    if (font.pointSizeF() > 0)
        font.setPointSizeF(font.pointSizeF() * ratio);
    else
        font.setPixelSize(std::max(1, int(font.pixelSize() * ratio)));
    return font;
}

/// The answer of a script, as far as a user could have given it.
NMessageDialogAnswer possible(NMessageDialogAnswer answer, const NMessageDialogInfo &info)
{
    answer.isChecked = answer.isChecked && !info.checkBoxText.isEmpty();
    const QList<int> shown = info.buttons.isEmpty() ? QList<int>{mdbAffirmative} : info.buttons;
    if (shown.contains(answer.button) || answer.button == info.escapeButton)
        return answer;
    NX_LOG_ERROR_AS("NMessageDialog::Ask", "\"%s\" has no button %d", qUtf8Printable(info.text),
                    answer.button);
    answer.button = info.escapeButton;
    return answer;
}

/// Alt and the first letter that no other caption has taken.
QKeySequence freeShortcut(const QString &caption, const QList<QKeySequence> &taken)
{
    for (const QChar letter : caption) {
        const QKeySequence candidate = QKeySequence::mnemonic(QLatin1Char('&') + letter);
        if (letter.isLetterOrNumber() && !taken.contains(candidate))
            return candidate;
    }
    return {};
}

/// Captions that mark no letter get one nevertheless, after those that do had their choice.
void giveShortcuts(const QList<QAbstractButton *> &buttons)
{
    QList<QKeySequence> taken;
    for (const QAbstractButton *button : buttons)
        taken += button->shortcut();
    for (QAbstractButton *button : buttons) {
        if (!button->shortcut().isEmpty())
            continue;
        button->setShortcut(freeShortcut(button->text(), taken));
        taken += button->shortcut();
    }
}

} // namespace

NMessageDialog::NMessageDialog(QWidget *parent) : QDialog(parent)
{
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    auto *layout = new QVBoxLayout(this);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->setContentsMargins(margin, margin, margin, margin);
    if (parent)
        connect(parent, &QObject::destroyed, this, &NMessageDialog::letGoOfParent);
    Init(NMessageDialogInfo());
}

NMessageDialog::~NMessageDialog() = default;

/// The parent is about to delete its children, and this one is the caller's. Hiding ends the wait.
void NMessageDialog::letGoOfParent()
{
    setParent(nullptr, windowFlags());
}

void NMessageDialog::Init(const NMessageDialogInfo &info)
{
    delete m_content;
    m_content = new QWidget(this);
    m_escapeButton = info.escapeButton;
    setWindowTitle(info.title.isEmpty() ? NxCustomProductInfo::NGetProductName() : info.title);
    setAccessibleDescription(info.text);

    auto *grid = new QGridLayout(m_content);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(spacing);
    grid->addWidget(makeIcon(info.style), 0, 0, Qt::AlignTop);
    grid->addLayout(makeTexts(info), 0, 1, Qt::AlignVCenter);
    if (!info.checkBoxText.isEmpty()) {
        m_checkBox = new QCheckBox(info.checkBoxText, m_content);
        m_checkBox->setObjectName(QStringLiteral("checkBox"));
        m_checkBox->setChecked(info.isCheckBoxChecked);
        grid->addWidget(m_checkBox, 1, 1);
    }
    grid->addLayout(makeButtons(info), 2, 0, 1, 2);
    grid->setColumnStretch(1, 1);
    layout()->addWidget(m_content);
    giveShortcuts(
        m_content->findChildren<QAbstractButton *>(QString(), Qt::FindDirectChildrenOnly));
}

QWidget *NMessageDialog::makeIcon(int style) const
{
    const int side = this->style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, this);
    auto *icon = new QLabel(m_content);
    icon->setObjectName(QStringLiteral("icon"));
    icon->setPixmap(this->style()->standardIcon(iconOf(style), nullptr, this).pixmap(side));
    return icon;
}

QLayout *NMessageDialog::makeTexts(const NMessageDialogInfo &info)
{
    auto *texts = new QVBoxLayout;
    auto *text = new NxMessageText(info.text, font(), m_content);
    text->setObjectName(QStringLiteral("text"));
    texts->addWidget(text);
    if (!info.detail.isEmpty()) {
        auto *detail = new NxMessageText(info.detail, smaller(font()), m_content);
        detail->setObjectName(QStringLiteral("detail"));
        texts->addWidget(detail);
    }
    return texts;
}

QLayout *NMessageDialog::makeButtons(const NMessageDialogInfo &info)
{
    auto *row = new QHBoxLayout;
    row->addStretch();
    const QList<int> codes = info.buttons.isEmpty() ? QList<int>{mdbAffirmative} : info.buttons;
    const bool isDefaultShown = codes.contains(info.defaultButton);
    const int defaultCode = isDefaultShown ? info.defaultButton : codes.first();
    for (const int code : codes) {
        auto *button = new QPushButton(captionOf(code, info), m_content);
        button->setObjectName(QStringLiteral("button%1").arg(code));
        connect(button, &QPushButton::clicked, this, [this, code] { done(code); });
        row->addWidget(button);
        if (code == defaultCode) {
            button->setDefault(true);
            button->setFocus();
        }
    }
    return row;
}

int NMessageDialog::ShowModel()
{
    const int escape = m_escapeButton; // The dialog itself may be gone when the wait is over.
    const NxMaskScope mask;
    const int code = exec();
    return code == QDialog::Rejected ? escape : code;
}

bool NMessageDialog::isCheckBoxChecked() const
{
    return m_checkBox && m_checkBox->isChecked();
}

NMessageDialogAnswer NMessageDialog::Ask(QWidget *parent, const NMessageDialogInfo &info)
{
    if (INxDialogAnswerer *script = NxDialogScript::current())
        return possible(script->answer(info), info);
    NMessageDialog dialog(parent);
    dialog.Init(info);
    const int button = dialog.ShowModel();
    return {button, dialog.isCheckBoxChecked()};
}

bool NMessageDialog::Question_YesNo(QWidget *parent, const QString &title, const QString &text)
{
    NMessageDialogInfo info;
    info.style = mdsQuestion;
    info.title = title;
    info.text = text;
    info.buttons = {mdbAffirmative, mdbNegative};
    info.escapeButton = mdbNegative;
    return Ask(parent, info).button == mdbAffirmative;
}

void NMessageDialog::Infomation(QWidget *parent, const QString &title, const QString &text)
{
    NMessageDialogInfo info;
    info.title = title;
    info.text = text;
    Q_UNUSED(Ask(parent, info)) // There is nothing to choose.
}
