// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <NxWidgets/NxFileDialog.h>

#include <NxCore/NxCustomProductInfo.h>
#include <NxWidgets/NxDialogScript.h>
#include <NxWidgets/NxMaskScope.h>

#include <QDir>
#include <QFileDialog>
#include <QRegularExpression>

namespace {

#ifdef Q_OS_WIN
constexpr bool namesHaveCase = false;
#else
constexpr bool namesHaveCase = true;
#endif

/// Where dialogs begin that are given no folder. Empty until the first one ended.
QString &startDirectory()
{
    static QString directory;
    return directory;
}

/// "*.MP4;*.MOV" as "*.MP4 *.mp4 *.MOV *.mov", or without the small ones.
QString blankSeparated(const QString &patterns)
{
    QStringList separated;
    const QStringList parts = patterns.split(QLatin1Char(';'));
    for (const QString &part : parts) {
        const QString pattern = part.trimmed();
        separated += pattern == QLatin1String("*.*") ? QStringLiteral("*") : pattern;
        if (namesHaveCase)
            separated += separated.last().toLower();
    }
    separated.removeAll(QString());
    separated.removeDuplicates();
    return separated.join(QLatin1Char(' '));
}

QString firstThatIsThere(const QStringList &directories)
{
    for (const QString &directory : directories) {
        if (!directory.isEmpty() && QFileInfo(directory).isDir())
            return directory;
    }
    return QDir::homePath();
}

void prepare(QFileDialog &dialog, const NxFileDialogInfo &info)
{
    dialog.setWindowTitle(info.title.isEmpty() ? NxCustomProductInfo::NGetProductName()
                                               : info.title);
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setOption(QFileDialog::ReadOnly); // It would offer to rename and delete otherwise.
    dialog.setOption(QFileDialog::HideNameFilterDetails); // A kind of media has dozens of them.
    dialog.setDirectory(firstThatIsThere({info.directory, startDirectory()}));
    const QString nameFilter = NxFileDialog::nameFilter(info.filter);
    if (!nameFilter.isEmpty())
        dialog.setNameFilter(nameFilter);
    if (!info.fileName.isEmpty())
        dialog.selectFile(info.fileName);
}

QString chosenByScript(INxDialogAnswerer &script, const NxFileDialogInfo &info)
{
    const QString path = QDir::fromNativeSeparators(script.chooseFile(info));
    return path.isEmpty() ? path : QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

/// The parent is about to delete its children, and this one stands on the stack. Hiding ends the
/// wait.
void letGoOfParent(QFileDialog &dialog)
{
    dialog.setParent(nullptr, dialog.windowFlags());
}

QString chosenByUser(QWidget *parent, const NxFileDialogInfo &info)
{
    QFileDialog dialog(parent);
    if (parent)
        QObject::connect(parent, &QObject::destroyed, &dialog, [&] { letGoOfParent(dialog); });
    prepare(dialog, info);
    const NxMaskScope mask;
    const bool isChosen = dialog.exec() == QDialog::Accepted;
    const QString path = isChosen ? QDir::cleanPath(dialog.selectedFiles().value(0)) : QString();
    startDirectory() = isChosen ? QFileInfo(path).path() : dialog.directory().absolutePath();
    return path;
}

} // namespace

QString NxFileDialog::getOpenFileName(QWidget *parent, const QString &title,
                                      const QString &directory, const QString &filter)
{
    NxFileDialogInfo info;
    info.title = title;
    info.directory = directory;
    info.filter = filter;
    return getOpenFileName(parent, info);
}

QString NxFileDialog::getOpenFileName(QWidget *parent, const NxFileDialogInfo &info)
{
    INxDialogAnswerer *script = NxDialogScript::current();
    return script ? chosenByScript(*script, info) : chosenByUser(parent, info);
}

void NxFileDialog::setStartDirectory(const QString &directory)
{
    startDirectory() = directory;
}

QString NxFileDialog::nameFilter(const QString &filter)
{
    // ";;" may also stand between two patterns, and parentheses in a name.
    static const QRegularExpression choice(QStringLiteral(R"((.*?)\(([^()]*)\)\s*(?:;;|$))"));
    QRegularExpressionMatchIterator choices = choice.globalMatch(filter);
    if (!choices.hasNext())
        return blankSeparated(filter);
    QStringList wanted;
    while (choices.hasNext()) {
        const QRegularExpressionMatch match = choices.next();
        const QString patterns = blankSeparated(match.captured(2));
        if (!patterns.isEmpty())
            wanted += QStringLiteral("%1 (%2)").arg(match.captured(1).trimmed(), patterns);
    }
    return wanted.join(QLatin1String(";;"));
}
