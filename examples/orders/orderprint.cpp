// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "orderprint.h"

#include "messages.h"
#include "orderpaper.h"
#include "paper.h"
#include "savedfile.h"

#include <QtPrintSupport/QPrintDialog>
#include <QtPrintSupport/QPrinter>

namespace orders {

namespace {

const QString title = QStringLiteral("Drukowanie");

QString savePdf(QWidget *parent, const OrderPaper &order, const QString &fileName)
{
    return saveFile(parent, title, fileName, orderPdf(order)) ? QStringLiteral("Zapisano plik %1.").arg(fileName)
                                                              : QStringLiteral("Nic nie zapisano.");
}

} // namespace

QString askAndSavePdf(QWidget *parent, const OrderPaper &order)
{
    const QString fileName =
        askForFile(parent, title, order.name + QStringLiteral(".pdf"), {QStringLiteral("Dokument PDF (*.pdf)")});
    return fileName.isEmpty() ? QString() : savePdf(parent, order, fileName);
}

QString askAndPrint(QWidget *parent, const OrderPaper &order)
{
    QPrinter printer(QPrinter::HighResolution);
    setUpPages(printer);
    printer.setDocName(order.name);
    QPrintDialog dialog(&printer, parent);
    dialog.setWindowTitle(title);
    dialog.setOptions(QAbstractPrintDialog::PrintToFile);
    const bool isChosen = dialog.exec() == QDialog::Accepted;
    parent->activateWindow(); // not every window system does so by itself
    if (!isChosen)
        return {};
    if (printer.outputFormat() == QPrinter::PdfFormat)
        return savePdf(parent, order, printer.outputFileName());
    if (printOrder(printer, order))
        return QStringLiteral("Wysłano na drukarkę %1.").arg(printer.printerName());
    warn(parent, title, QStringLiteral("Drukarka %1 nie przyjęła wydruku.").arg(printer.printerName()));
    return QStringLiteral("Nic nie wydrukowano.");
}

} // namespace orders
