// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QStringList>

class QPagedPaintDevice;

namespace orders {

//! A name and what stands beside it.
struct PaperFact {
    QString name;
    QString text;
};

//! An order as it is printed: all of it as texts.
struct OrderPaper {
    struct Line {
        QString number;
        QString symbol;
        QString name;
        QString quantity;
        QString unit;
        QString price;
        QString delivery;
        QString amount;
    };

    QStringList seller; //!< name and address
    QString title;
    QString name;         //!< for that of its file
    QStringList customer; //!< name and address
    QList<PaperFact> facts;
    QList<Line> lines;
    QList<PaperFact> totals;
    QString remarks;
};

//! Prints an order on a device. False when the device would not.
[[nodiscard]] bool printOrder(QPagedPaintDevice &device, const OrderPaper &order);

//! The same as PDF.
[[nodiscard]] QByteArray orderPdf(const OrderPaper &order);

} // namespace orders
