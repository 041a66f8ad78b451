// SPDX-FileCopyrightText: 2026 Brevano contributors
// SPDX-License-Identifier: LGPL-2.1-or-later
#pragma once

#include <NxVBLModel/NxImportReport.h>

#include <QAbstractTableModel>

/// The lines of a report, one a row.
class ImportReportModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum Column { Verdict, Name, Reason, ColumnCount };

    explicit ImportReportModel(QObject *parent = nullptr);

    /// Shows other lines. Those that only follow after the ones that are shown are added to them;
    /// anything else resets the model.
    void setLines(const QVector<NxImportReportLine> &lines);
    [[nodiscard]] const NxImportReportLine &line(int row) const { return m_lines.at(row); }
    /// The texts in the language of now.
    void retranslate();

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    [[nodiscard]] static QString text(const NxImportReportLine &line, int column);
    [[nodiscard]] bool isGrownInto(const QVector<NxImportReportLine> &lines) const;

    QVector<NxImportReportLine> m_lines;
};
