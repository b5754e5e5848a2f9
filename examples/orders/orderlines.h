// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "catalogue.h"
#include "orderline.h"

#include <QtCore/QObject>
#include <QtCore/QStringList>

class KorGrid;

namespace kor {
class Database;
}

namespace orders {

//! The lines of the order on its form: the columns of their grid, and the way from lines to cells and back.
//!
//! The last row may be blank, for a line to be typed into; blank rows are no lines. A product is typed by its symbol or
//! chosen in a window of its own; either way its name, unit and price come with it.
class OrderLines : public QObject
{
    Q_OBJECT

public:
    OrderLines(KorGrid *grid, const Catalogue &catalogue, kor::Database &database, QObject *parent);

    //! Shows these lines; from now on they count as unchanged. The current cell stays where it is, as far as there is
    //! one. Raises StoreError.
    void setLines(const QList<OrderLine> &lines);
    //! The lines as they stand in the cells now. What was not touched is as it was given, though the cells round it.
    [[nodiscard]] QList<OrderLine> lines() const;
    //! Whether the clerk has typed anything since setLines(), though it be no value yet.
    [[nodiscard]] bool isChanged() const;
    //! The sum of all quantities, whatever their units.
    [[nodiscard]] double quantity() const;

    //! Puts the cursor into a cell of the line at that place of lines().
    void goTo(qsizetype line, LineField cell);
    void goToFirst();
    //! Puts the cursor into a new line behind the last one.
    void addLine();
    //! The line with the cursor; nothing in a blank row.
    [[nodiscard]] std::optional<OrderLine> current() const;
    void removeCurrent();
    //! Asks for a file and saves the cells there, their sums below them. What to say of it, "" for nothing.
    [[nodiscard]] QString exportCells(const QString &title, const QString &fileName);
    //! Copies the selected cells for a spreadsheet, all lines while only one is. What to say of it.
    QString copyCells() const;
    //! Pastes what a spreadsheet has copied from the current cell on. What to say of it.
    QString pasteCells();
    [[nodiscard]] bool hasKeyboard() const;
    //! Shows the symbols that the products of the lines have by now. Raises StoreError.
    void refreshProducts();

Q_SIGNALS:
    //! Copying or pasting was asked for on the cells themselves.
    void copyAsked();
    void pasteAsked();
    void edited();

private:
    void addColumns();
    [[nodiscard]] QString text(int row, int column) const;
    void setText(int row, int column, const QString &text);
    [[nodiscard]] QStringList texts(int row) const;
    [[nodiscard]] QList<QStringList> allTexts() const;
    [[nodiscard]] bool isBlank(int row) const;

    void show(int row, const OrderLine &line, qsizetype origin);
    void showProduct(int row, const Product &product);
    void showUnit(int row, std::optional<qint64> unit, const QString &name);
    void showAmount(int row);
    [[nodiscard]] OrderLine read(int row) const;
    [[nodiscard]] OrderLine lineIn(int row) const;
    [[nodiscard]] std::optional<qint64> productIn(int row) const;

    void keyPressed(int &code, int shift);
    void cellChanged(int row, int column);
    void productTyped(int row);
    void chooseProductFor(int row);
    void remember();
    [[nodiscard]] float nextNumber();
    void moveTo(int row, int column);

    KorGrid *m_grid;
    const Catalogue &m_catalogue;
    QList<OrderLine> m_loaded;
    QList<OrderLine> m_shown; //!< the same, as their cells read
    QList<QStringList> m_unchanged;
    QHash<qint64, QString> m_symbols; //!< of the products in the cells
    int m_rememberedRow = 0;
    QStringList m_remembered; //!< the cells of the current row when the cursor came into its cell
    bool m_isPasting = false;
    bool m_hasPasted = false; //!< anything of what is being pasted
    float m_lastNumber = 0;   //!< of the lines, while they are being pasted
};

} // namespace orders
