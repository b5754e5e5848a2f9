// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "orderlines.h"

#include "fieldvalues.h"
#include "gridclipboard.h"
#include "gridfile.h"
#include "grosze.h"
#include "messages.h"
#include "productchooser.h"
#include "statement.h"

#include <KorDaoUC/Convert>
#include <KorDaoUC/Database>
#include <KorDaoUC/Date>
#include <KorDaoUC/FocusedField>
#include <KorDaoUC/KorGrid>
#include <KorDaoUC/Variant>

#include <QtCore/QScopedValueRollback>
#include <QtWidgets/QTableView>

#include <algorithm>

namespace orders {

namespace {

//! The columns in their order. The running number stands in the fixed one. Those behind the amount are hidden: exact
//! values and keys of what the cells before show, and the place of a line among those that were loaded.
enum Column {
    Number,
    ProductSymbol,
    Name,
    Quantity,
    Unit,
    Price,
    Delivery,
    Amount,
    ExactQuantity,
    ExactPrice,
    ProductKey,
    UnitKey,
    Vat,
    Origin,
    ColumnCount
};

Column columnOf(LineField field)
{
    switch (field) {
    case LineField::Product: return ProductSymbol;
    case LineField::Name: return Name;
    case LineField::Quantity: return Quantity;
    case LineField::Unit: return Unit;
    case LineField::Price: return Price;
    case LineField::Delivery: return Delivery;
    }
    return ProductSymbol;
}

template <class Value>
std::optional<Value> numberIn(const QString &text)
{
    return text.isEmpty() ? std::nullopt : std::optional(static_cast<Value>(text.toLongLong()));
}

template <class Value>
QString textOf(std::optional<Value> key)
{
    return key ? QString::number(*key) : QString();
}

} // namespace

OrderLines::OrderLines(KorGrid *grid, const Catalogue &catalogue, kor::Database &database, QObject *parent)
    : QObject(parent), m_grid(grid), m_catalogue(catalogue)
{
    m_grid->setdatabase(&database);
    addColumns();
    connect(m_grid, &KorGrid::Change, this, [this](int &row, int &column) { cellChanged(row, column); });
    connect(m_grid, &KorGrid::SelChange, this, &OrderLines::remember);
    connect(m_grid, &KorGrid::KeyDown, this, [this](int &code, int &shift) { keyPressed(code, shift); });
    connect(m_grid, &KorGrid::ClickClick, this, [this](int &row) { chooseProductFor(row); });
}

void OrderLines::addColumns()
{
    enum { Left, Right, Centred };
    enum { Free, Locked };
    constexpr int unlimited = 0;
    constexpr int black = 0;
    const QString noFormat;
    const QString twoPlaces = QStringLiteral("#,##0.00");
    // Nothing can be chosen too: a unit that was chosen by mistake goes away again.
    const QString units = QStringLiteral("SELECT NULL, '' UNION ALL SELECT id, name FROM units ORDER BY 1 NULLS FIRST");
    m_grid->setTextControl(0, Number, QStringLiteral("Lp."));
    m_grid->AddColumn(QStringLiteral("CLICK"), QStringLiteral("Towar"), 1350, Left);
    m_grid->AddColumn(QStringLiteral("TEXT"), QStringLiteral("Nazwa"), 4500, Left, Free, noFormat, black, unlimited, {},
                      {}, 0, true);
    m_grid->AddColumn(QStringLiteral("NUMBER"), QStringLiteral("Ilość"), 1200, Right, Free, twoPlaces, black, unlimited,
                      {}, {}, ExactQuantity);
    m_grid->AddColumn(QStringLiteral("COMBO"), QStringLiteral("J.m."), 1050, Centred, Free, noFormat, black, unlimited,
                      units, QStringLiteral("units"), UnitKey);
    m_grid->AddColumn(QStringLiteral("NUMBER"), QStringLiteral("Cena netto"), 1500, Right, Free, twoPlaces, black,
                      unlimited, {}, {}, ExactPrice);
    m_grid->AddColumn(QStringLiteral("DATE"), QStringLiteral("Dostawa"), 1650, Centred);
    m_grid->AddColumn(QStringLiteral("NUMBER"), QStringLiteral("Wartość netto"), 1650, Right, Locked, twoPlaces);
    while (m_grid->Cols() < ColumnCount)
        m_grid->AddColumn(QStringLiteral("TEXT"), QString(), 0, Left);
}

// --- cells

QString OrderLines::text(int row, int column) const { return m_grid->TextMatrix(row, column); }
void OrderLines::setText(int row, int column, const QString &text) { m_grid->setTextControl(row, column, text); }

QStringList OrderLines::texts(int row) const
{
    QStringList all;
    for (int column = Number; column < ColumnCount; ++column)
        all << text(row, column);
    return all;
}

QList<QStringList> OrderLines::allTexts() const
{
    QList<QStringList> all;
    for (int row = 1; row < m_grid->Rows(); ++row) {
        if (!isBlank(row))
            all << texts(row).first(Amount);
    }
    return all;
}

bool OrderLines::isBlank(int row) const
{
    if (!text(row, Origin).isEmpty())
        return false; // a line of the file in which nothing was entered
    for (int column = ProductSymbol; column < Amount; ++column) {
        if (!text(row, column).isEmpty())
            return false;
    }
    return true;
}

// --- lines into cells

void OrderLines::setLines(const QList<OrderLine> &lines)
{
    const int row = m_grid->Row();
    const int column = m_grid->Col();
    m_shown.clear();
    m_symbols.clear();
    m_grid->DelRow(1, m_grid->Rows() - 1);
    m_grid->setRows(std::max(1, static_cast<int>(lines.size())) + 1);
    for (qsizetype place = 0; place < lines.size(); ++place)
        show(static_cast<int>(place) + 1, lines.at(place), place);
    m_loaded = lines;
    for (int shown = 1; shown <= lines.size(); ++shown)
        m_shown << read(shown);
    m_unchanged = allTexts();
    m_rememberedRow = 0;
    moveTo(std::clamp(row, 1, m_grid->Rows() - 1), column);
}

void OrderLines::show(int row, const OrderLine &line, qsizetype origin)
{
    setText(row, Number, QString::number(line.number));
    setText(row, Origin, QString::number(origin));
    if (const auto product = line.product ? m_catalogue.product(*line.product) : std::nullopt) {
        m_symbols.insert(product->id, product->symbol);
        setText(row, ProductSymbol, product->symbol);
        setText(row, ProductKey, QString::number(product->id));
    }
    setText(row, Name, line.name);
    m_grid->setValue(row, Quantity, line.quantity ? QVariant(*line.quantity) : kor::null());
    showUnit(row, line.unit, line.unit ? m_catalogue.unitName(*line.unit) : QString());
    m_grid->setValue(row, Price, zlotysOf(line.netPrice));
    m_grid->setValue(row, Delivery, valueOf(line.delivery));
    setText(row, Vat, textOf(line.vat));
    showAmount(row);
}

void OrderLines::showProduct(int row, const Product &product)
{
    const bool isSame = numberIn<qint64>(text(row, ProductKey)) == product.id;
    m_symbols.insert(product.id, product.symbol);
    setText(row, ProductKey, QString::number(product.id));
    if (isSame)
        return; // what was agreed otherwise stays
    setText(row, Name, product.name);
    showUnit(row, product.unit, product.unitName);
    m_grid->setValue(row, Price, zlotysOf(product.netPrice));
    setText(row, Vat, QString::number(product.vat));
}

void OrderLines::showUnit(int row, std::optional<qint64> unit, const QString &name)
{
    setText(row, UnitKey, textOf(unit));
    setText(row, Unit, name);
}

void OrderLines::showAmount(int row) { m_grid->setValue(row, Amount, zlotysOf(amountOf(read(row)))); }

// --- cells into lines

QList<OrderLine> OrderLines::lines() const
{
    QList<OrderLine> all;
    for (int row = 1; row < m_grid->Rows(); ++row) {
        if (!isBlank(row))
            all << lineIn(row);
    }
    return all;
}

bool OrderLines::isChanged() const { return allTexts() != m_unchanged; }

double OrderLines::quantity() const { return m_grid->SumColumn(Quantity); }

OrderLine OrderLines::read(int row) const
{
    OrderLine line;
    line.number = numberIn<int>(text(row, Number)).value_or(0);
    line.product = productIn(row);
    line.name = text(row, Name);
    if (const QVariant quantity = m_grid->Value(row, Quantity); !kor::isNull(quantity))
        line.quantity = kor::CDbl(quantity);
    // A key stays in its column when nothing is chosen.
    if (!text(row, Unit).isEmpty())
        line.unit = numberIn<qint64>(text(row, UnitKey));
    line.netPrice = groszeOf(m_grid->Value(row, Price));
    line.vat = numberIn<int>(text(row, Vat));
    if (const QVariant day = m_grid->Value(row, Delivery); !kor::isNull(day))
        line.delivery = kor::DateValue(day);
    else if (!text(row, Delivery).isEmpty())
        line.delivery = QDate();
    return line;
}

OrderLine OrderLines::lineIn(int row) const
{
    OrderLine line = read(row);
    const auto origin = numberIn<qsizetype>(text(row, Origin));
    if (!origin || *origin >= m_shown.size())
        return line;
    const OrderLine &shown = m_shown.at(*origin);
    const OrderLine &loaded = m_loaded.at(*origin);
    const auto keep = [&](auto member) {
        if (line.*member == shown.*member)
            line.*member = loaded.*member;
    };
    keep(&OrderLine::product);
    keep(&OrderLine::name);
    keep(&OrderLine::quantity);
    keep(&OrderLine::unit);
    keep(&OrderLine::netPrice);
    keep(&OrderLine::delivery);
    return line;
}

std::optional<qint64> OrderLines::productIn(int row) const
{
    const QString symbol = text(row, ProductSymbol).trimmed();
    if (symbol.isEmpty())
        return std::nullopt;
    const auto key = numberIn<qint64>(text(row, ProductKey));
    const bool isKnown = key && m_symbols.value(*key).compare(symbol, Qt::CaseInsensitive) == 0;
    return isKnown ? *key : OrderLine::noProduct;
}

// --- what the clerk does

void OrderLines::remember()
{
    m_rememberedRow = m_grid->Row();
    m_remembered = texts(m_rememberedRow);
}

void OrderLines::cellChanged(int row, int column)
{
    if (column == ProductSymbol)
        productTyped(row);
    if (text(row, Number).isEmpty() && !isBlank(row))
        setText(row, Number, kor::CStr(nextNumber()));
    showAmount(row);
    m_hasPasted = true;
    if (!m_isPasting)
        Q_EMIT edited();
}

//! Of a line behind all others. Those that are pasted are not looked through for each of them.
float OrderLines::nextNumber() { return m_isPasting ? ++m_lastNumber : m_grid->MaxColumn(Number) + 1; }

void OrderLines::productTyped(int row)
{
    const QString symbol = text(row, ProductSymbol);
    if (row == m_rememberedRow && symbol == m_remembered.at(ProductSymbol)) {
        // Escape, or typed back: what came with another product goes with it.
        for (const int column : {ProductKey, Name, UnitKey, Unit, ExactPrice, Price, Vat})
            setText(row, column, m_remembered.at(column));
        return;
    }
    try {
        if (const auto product = m_catalogue.productOf(symbol))
            showProduct(row, *product);
    } catch (const StoreError &) {
        // The symbol stays; saving tells what is wrong with the file.
    }
}

void OrderLines::chooseProductFor(int row)
{
    // What is no symbol yet is what the clerk is looking for.
    const bool isSought = productIn(row) == OrderLine::noProduct;
    std::optional<Product> product;
    try {
        product = chooseProduct(m_catalogue, isSought ? text(row, ProductSymbol) : QString(), m_grid);
    } catch (const StoreError &error) {
        warn(m_grid->window(), QStringLiteral("Baza danych"), error.text());
    }
    m_grid->window()->activateWindow(); // not every window system does so by itself
    if (!product) {
        kor::enterFocusedField(m_grid->window());
        return;
    }
    showProduct(row, *product);
    setText(row, ProductSymbol, product->symbol);
    cellChanged(row, Name);
    moveTo(row, Quantity);
}

void OrderLines::goTo(qsizetype line, LineField cell)
{
    for (int row = 1; row < m_grid->Rows(); ++row) {
        if (isBlank(row) || line-- > 0)
            continue;
        m_grid->setFocus(Qt::TabFocusReason);
        moveTo(row, columnOf(cell));
        return;
    }
}

void OrderLines::goToFirst() { moveTo(1, ProductSymbol); }

void OrderLines::addLine()
{
    m_grid->setFocus(Qt::TabFocusReason);
    if (!isBlank(m_grid->Rows() - 1)) {
        const float number = nextNumber();
        m_grid->AddRow();
        setText(m_grid->Rows() - 1, Number, kor::CStr(number));
    }
    moveTo(m_grid->Rows() - 1, ProductSymbol);
}

//! `SetFocusCell` would put the row on top, and the lines before it out of sight.
void OrderLines::moveTo(int row, int column)
{
    auto *cells = m_grid->findChild<QTableView *>(QStringLiteral("grid"));
    cells->scrollTo(cells->model()->index(row - 1, column - 1));
    m_grid->setRow(row);
    m_grid->setCol(column);
}

std::optional<OrderLine> OrderLines::current() const
{
    const int row = m_grid->Row();
    return isBlank(row) ? std::nullopt : std::optional(lineIn(row));
}

void OrderLines::removeCurrent()
{
    m_grid->DelRow(m_grid->Row());
    Q_EMIT edited();
}

QString OrderLines::exportCells(const QString &title, const QString &fileName)
{
    const QHash<int, QVariant> totals{
        {Name, QStringLiteral("Razem")}, {Quantity, quantity()}, {Amount, zlotysOf(amountOf(lines()))}};
    return askAndSaveGrid(m_grid->window(), *m_grid, {title, fileName, totals});
}

QString OrderLines::copyCells() const { return copyCellsOf(*m_grid); }

QString OrderLines::pasteCells()
{
    m_hasPasted = false;
    m_lastNumber = m_grid->MaxColumn(Number);
    const QString said = [this] {
        const QScopedValueRollback pasting(m_isPasting, true);
        return pasteCellsInto(m_grid->window(), *m_grid);
    }();
    remember(); // what came with the products that were pasted stays
    if (m_hasPasted)
        Q_EMIT edited(); // once, as the whole order is looked at then
    return said;
}

//! What was agreed stays as it is.
void OrderLines::refreshProducts()
{
    const QList<qint64> products = m_symbols.keys();
    for (const qint64 id : products) {
        const QString symbol = m_symbols.value(id);
        const std::optional<Product> product = m_catalogue.product(id);
        if (!product) { // its symbol is one that was mistyped, from now on
            m_symbols.remove(id);
            continue;
        }
        if (product->symbol == symbol)
            continue;
        m_symbols.insert(id, product->symbol);
        const auto renew = [&](QStringList &cells) {
            if (cells.value(ProductSymbol) == symbol)
                cells[ProductSymbol] = product->symbol;
        };
        std::for_each(m_unchanged.begin(), m_unchanged.end(), renew);
        renew(m_remembered);
        for (int row = 1; row < m_grid->Rows(); ++row) {
            if (text(row, ProductSymbol) == symbol)
                setText(row, ProductSymbol, product->symbol);
        }
    }
}

//! On the cells themselves, the clipboard's keys are free; in an open cell they are the cell's.
void OrderLines::keyPressed(int &code, int shift)
{
    constexpr int isShift = 1;
    constexpr int isCtrl = 2;
    constexpr int insertKey = 45;
    const bool copies = shift == isCtrl && (code == 'C' || code == insertKey);
    const bool pastes = (shift == isCtrl && code == 'V') || (shift == isShift && code == insertKey);
    if (!copies && !pastes)
        return;
    code = 0;
    if (copies)
        Q_EMIT copyAsked();
    else
        Q_EMIT pasteAsked();
}

bool OrderLines::hasKeyboard() const
{
    const QWidget *focused = m_grid->window()->focusWidget();
    return focused && m_grid->isAncestorOf(focused);
}

} // namespace orders
