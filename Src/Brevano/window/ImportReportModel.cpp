// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brevano/window/ImportReportModel.h>

#include <Brevano/commands/ShownText.h>
#include <Brevano/window/ImportWords.h>
#include <NxWidgets/NxSkinStyle.h>

#include <algorithm>
#include <array>

namespace {

constexpr std::array<const char *, ImportReportModel::ColumnCount> Titles = {
    QT_TRANSLATE_NOOP("ImportReportModel", "Result"),
    QT_TRANSLATE_NOOP("ImportReportModel", "Name"),
    QT_TRANSLATE_NOOP("ImportReportModel", "Reason"),
};

bool isSame(const NxImportReportLine &a, const NxImportReportLine &b)
{
    return a.verdict == b.verdict && a.path == b.path && a.reason == b.reason
           && a.folder == b.folder;
}

bool isFailure(NxImportVerdict verdict)
{
    return verdict == NxImportVerdict::Refused || verdict == NxImportVerdict::Unreadable;
}

/// The last part of a path; of "/", the path itself.
QString nameOf(const QString &path)
{
    const QString name = path.section(QLatin1Char('/'), -1, -1, QString::SectionSkipEmpty);
    return name.isEmpty() ? path : name;
}

/// File names are no rich text, whatever characters they hold.
QString toolTipOf(const QString &text)
{
    return QStringLiteral("<p>%1</p>").arg(ShownText::oneLine(text).toHtmlEscaped());
}

} // namespace

ImportReportModel::ImportReportModel(QObject *parent) : QAbstractTableModel(parent) {}

void ImportReportModel::setLines(const QVector<NxImportReportLine> &lines)
{
    if (!isGrownInto(lines)) {
        beginResetModel();
        m_lines = lines;
        endResetModel();
        return;
    }
    if (lines.size() == m_lines.size())
        return;
    beginInsertRows(QModelIndex(), m_lines.size(), lines.size() - 1);
    m_lines = lines;
    endInsertRows();
}

bool ImportReportModel::isGrownInto(const QVector<NxImportReportLine> &lines) const
{
    return lines.size() >= m_lines.size()
           && std::equal(m_lines.begin(), m_lines.end(), lines.begin(), isSame);
}

void ImportReportModel::retranslate()
{
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
    if (!m_lines.isEmpty())
        Q_EMIT dataChanged(index(0, 0), index(m_lines.size() - 1, ColumnCount - 1));
}

int ImportReportModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_lines.size();
}

int ImportReportModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QString ImportReportModel::text(const NxImportReportLine &line, int column)
{
    if (column == Verdict)
        return ImportWords::verdict(line.verdict);
    return ShownText::oneLine(column == Name ? nameOf(line.path) : line.reason);
}

QVariant ImportReportModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return QVariant();
    const NxImportReportLine &line = m_lines.at(index.row());
    if (role == Qt::DisplayRole)
        return text(line, index.column());
    if (role == Qt::ToolTipRole)
        return toolTipOf(index.column() == Reason ? line.reason : line.path);
    if (role == Qt::ForegroundRole && index.column() == Verdict && isFailure(line.verdict))
        return NxSkinStyle::instance()->GetColor(NxSkinColor::Warning);
    return QVariant();
}

QVariant ImportReportModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    return tr(Titles[size_t(section)]);
}
