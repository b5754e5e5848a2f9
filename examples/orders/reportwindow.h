// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "report.h"
#include "reportpaper.h"

#include <QtWidgets/QDialog>

class KorGrid;
class KorParam;
class QLabel;
class QPushButton;

namespace kor {
class Database;
}

namespace orders {

class BarChart;
class OrderStore;

//! What was sold: parameters above, the result as a table and a chart below, and both on paper.
class ReportWindow : public QDialog
{
    Q_OBJECT

public:
    ReportWindow(const OrderStore &store, kor::Database &database, QWidget *parent = nullptr);

    //! What the parameters say now.
    [[nodiscard]] ReportQuestion question() const;
    //! Reads the report and shows it. False when a parameter is wrong, or the clerk stopped it.
    bool showReport();
    //! Saves what is shown, as PDF. False when the file could not be written; what it held before is still there.
    bool savePdf(const QString &fileName);

private:
    void addParameters(kor::Database &database);
    void addColumns();
    void choose(const QString &symbol);
    void askForPdf();
    void exportRows();
    void show(const Report &report, ReportGroup group);
    [[nodiscard]] std::optional<Report> read(const ReportQuestion &question);
    [[nodiscard]] QStringList parameterTexts() const;
    template <class Visit>
    void visitParameters(Visit &&visit) const;

    const OrderStore &m_store;
    KorParam *m_parameters;
    KorGrid *m_rows;
    BarChart *m_chart;
    QLabel *m_total;
    QPushButton *m_pdf;
    QPushButton *m_export;
    Report m_report;
    ReportHeading m_heading;
};

} // namespace orders
