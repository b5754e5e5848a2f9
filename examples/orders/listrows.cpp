// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "listrows.h"

#include "paymentterms.h"
#include "reportpaper.h"

#include <KorDaoUC/Color>
#include <KorDaoUC/Format>
#include <KorDaoUC/KorGrid>

#include <QtCore/QCollator>
#include <QtCore/QHash>
#include <QtCore/QSet>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QTableView>

#include <algorithm>
#include <utility>
#include <vector>

namespace orders {

namespace {

constexpr int enter = 13;
constexpr qsizetype mostMoved = 5000; // rows, while the clerk works in another window

QString dateText(const QDate &date) { return kor::Format(date, u"Short Date"); }
QString amountIn(std::optional<qint64> grosze) { return grosze ? amountText(*grosze) : QString(); }

//! Sorts by a key that is made once for each order; equals stay as they are.
template <class KeyOf>
void sortBy(QList<ListedOrder> &orders, Qt::SortOrder order, KeyOf &&keyOf)
{
    using Key = decltype(keyOf(orders.first()));
    std::vector<std::pair<Key, qsizetype>> keys;
    keys.reserve(static_cast<std::size_t>(orders.size()));
    for (qsizetype at = 0; at < orders.size(); ++at)
        keys.emplace_back(keyOf(orders.at(at)), at);
    std::stable_sort(keys.begin(), keys.end(), [order](const auto &left, const auto &right) {
        return order == Qt::AscendingOrder ? left.first < right.first : right.first < left.first;
    });
    QList<ListedOrder> sorted;
    sorted.reserve(orders.size());
    for (const auto &[key, at] : keys)
        sorted.append(std::move(orders[at]));
    orders = std::move(sorted);
}

void sortByText(QList<ListedOrder> &orders, Qt::SortOrder order, ListColumn column)
{
    QCollator polish{QLocale(QLocale::Polish)};
    polish.setNumericMode(true);
    sortBy(orders, order, [&](const ListedOrder &each) { return polish.sortKey(textOf(each, column)); });
}

} // namespace

QString textOf(const ListedOrder &order, ListColumn column)
{
    switch (column) {
    case ListColumn::Place: break;
    case ListColumn::Number: return order.number;
    case ListColumn::Date: return dateText(order.date);
    case ListColumn::Customer: return order.customer;
    case ListColumn::Terms: return nameOfTerms(order.terms);
    case ListColumn::Delivery: return order.delivery ? dateText(*order.delivery) : QString();
    case ListColumn::Priority: return QString::number(order.priority);
    case ListColumn::Net: return amountIn(order.net);
    case ListColumn::Total: return amountIn(order.total);
    case ListColumn::Due: return amountIn(order.due);
    case ListColumn::Remarks: return order.remarks.simplified(); // on one line
    }
    return {};
}

ListRows::ListRows(KorGrid *grid, QObject *parent)
    : QObject(parent),
      m_grid(grid),
      m_view(grid->findChild<QTableView *>(QStringLiteral("grid"))),
      m_titles(m_view->horizontalHeader())
{
    m_view->setSelectionBehavior(QAbstractItemView::SelectRows);
    addColumns();
    m_titles->setSortIndicatorShown(true);
    setSort(ListColumn::Date, Qt::DescendingOrder);
    connect(m_titles, &QHeaderView::sortIndicatorChanged, this, &ListRows::sortAsked);
    connect(m_grid, &KorGrid::DblClick, this, [this] {
        if (!m_isOnTitles)
            choose();
    });
    connect(m_grid, &KorGrid::KeyDown, this, [this](int &code, int &shift) {
        if (code != enter || shift != 0)
            return;
        code = 0;
        choose();
    });
    connect(m_grid, &KorGrid::MouseDownRow, this, [this](int &, int &, int &row) {
        m_isOnTitles = row == 0;
        m_stood = m_isOnTitles ? current() : std::nullopt;
    });
}

void ListRows::addColumns()
{
    enum { Left, Right, Centred };
    const bool isLocked = true;
    const QString amount = QStringLiteral("#,##0.00");
    const auto add = [&](const char *type, const QString &title, int width, int place, const QString &format = {}) {
        m_grid->AddColumn(QLatin1String(type), title, width, place, isLocked, format);
    };
    m_grid->setBorderStyle(kor::BorderStyleType::FixedSingle);
    m_grid->setBackColor(kor::WindowBackground);
    m_grid->setForeColor(kor::WindowText);
    add("TEXT", QStringLiteral("Numer"), 1900, Left);
    add("DATE", QStringLiteral("Data"), 1350, Centred);
    add("TEXT", QStringLiteral("Klient"), 3450, Left);
    add("TEXT", QStringLiteral("Płatność"), 1650, Left);
    add("DATE", QStringLiteral("Dostawa"), 1350, Centred);
    add("NUMBER", QStringLiteral("Prior."), 750, Centred, QStringLiteral("0"));
    add("NUMBER", QStringLiteral("Netto"), 1350, Right, amount);
    add("NUMBER", QStringLiteral("Wartość"), 1350, Right, amount);
    add("NUMBER", QStringLiteral("Do zapłaty"), 1350, Right, amount);
    add("TEXT", QStringLiteral("Uwagi"), 2550, Left);
    m_grid->setTextControl(0, static_cast<int>(ListColumn::Place), QStringLiteral("Lp."));
    m_grid->setRows(1);
}

// --- rows

bool ListRows::setOrders(QList<ListedOrder> orders, const MayGoOn &mayGoOn)
{
    const std::optional<qint64> stood = m_stood ? m_stood : current();
    const int scrolled = m_view->verticalScrollBar()->value();
    m_stood = std::nullopt;
    m_orders = std::move(orders);
    sort();
    m_grid->setUpdatesEnabled(false);
    m_grid->setRows(1);
    m_grid->setRows(static_cast<int>(m_orders.size()) + 1);
    LongWork work(mayGoOn, m_orders.size());
    int row = 0;
    bool goesOn = true;
    for (const ListedOrder &order : std::as_const(m_orders)) {
        showRow(++row, order);
        goesOn = work.step();
        if (!goesOn)
            break;
    }
    if (!goesOn) {
        m_orders.resize(row);
        m_grid->setRows(row + 1);
    }
    m_grid->setUpdatesEnabled(true);
    m_view->verticalScrollBar()->setValue(scrolled);
    if (stood)
        goTo(*stood);
    return goesOn;
}

void ListRows::showRow(int row, const ListedOrder &order)
{
    m_grid->setTextControl(row, static_cast<int>(ListColumn::Place), QString::number(row));
    for (int column = static_cast<int>(ListColumn::Number); column < m_grid->Cols(); ++column)
        m_grid->setTextControl(row, column, textOf(order, static_cast<ListColumn>(column)));
}

qsizetype ListRows::placeOf(qint64 id) const
{
    const auto found =
        std::find_if(m_orders.cbegin(), m_orders.cend(), [id](const ListedOrder &order) { return order.id == id; });
    return found == m_orders.cend() ? -1 : found - m_orders.cbegin();
}

std::optional<qint64> ListRows::current() const
{
    const qsizetype place = m_grid->Row() - 1;
    return place >= 0 && place < m_orders.size() ? std::optional(m_orders.at(place).id) : std::nullopt;
}

void ListRows::goTo(qint64 id)
{
    const qsizetype place = placeOf(id);
    if (place < 0)
        return;
    m_grid->setRow(static_cast<int>(place) + 1);
    m_view->scrollTo(m_view->currentIndex());
}

void ListRows::follow(const QList<qint64> &saved, const QList<ListedOrder> &shown)
{
    const QSet<qint64> all(saved.cbegin(), saved.cend());
    QHash<qint64, ListedOrder> coming;
    for (const ListedOrder &order : shown)
        coming.insert(order.id, order);
    QList<qsizetype> gone;
    for (qsizetype place = 0; place < m_orders.size(); ++place) {
        const qint64 id = m_orders.at(place).id;
        if (!all.contains(id))
            continue;
        if (!coming.contains(id)) {
            gone << place;
            continue;
        }
        m_orders[place] = coming.take(id);
        showRow(static_cast<int>(place) + 1, m_orders.at(place));
    }
    remove(gone);
    QList<ListedOrder> added;
    for (const ListedOrder &order : shown) {
        if (coming.contains(order.id))
            added << order;
    }
    add(added);
}

void ListRows::add(const QList<ListedOrder> &orders)
{
    if (orders.isEmpty())
        return;
    if (m_orders.size() <= mostMoved) {
        setOrders(orders + m_orders, [](qint64, qint64) { return true; });
        return;
    }
    for (const ListedOrder &order : orders) {
        m_orders.append(order);
        m_grid->setRows(m_grid->Rows() + 1);
        showRow(m_grid->Rows() - 1, order);
    }
}

void ListRows::remove(const QList<qsizetype> &places)
{
    if (places.isEmpty())
        return;
    for (auto place = places.crbegin(); place != places.crend(); ++place) {
        m_orders.removeAt(*place);
        if (m_orders.isEmpty())
            m_grid->setRows(1);
        else
            m_grid->DelRow(static_cast<int>(*place) + 1);
    }
    for (int row = static_cast<int>(places.first()) + 1; row < m_grid->Rows(); ++row)
        m_grid->setTextControl(row, static_cast<int>(ListColumn::Place), QString::number(row));
}

void ListRows::choose()
{
    if (const std::optional<qint64> id = current())
        Q_EMIT chosen(*id);
}

// --- order

ListColumn ListRows::sortColumn() const { return static_cast<ListColumn>(m_titles->sortIndicatorSection() + 1); }
Qt::SortOrder ListRows::sortOrder() const { return m_titles->sortIndicatorOrder(); }

void ListRows::setSort(ListColumn column, Qt::SortOrder order)
{
    m_titles->setSortIndicator(static_cast<int>(column) - 1, order);
}

void ListRows::sortByCurrent()
{
    const auto column = static_cast<ListColumn>(m_grid->Col());
    const bool isReversed = column == sortColumn() && sortOrder() == Qt::AscendingOrder;
    setSort(column, isReversed ? Qt::DescendingOrder : Qt::AscendingOrder);
}

void ListRows::sort()
{
    if (m_orders.isEmpty())
        return;
    const Qt::SortOrder order = sortOrder();
    const auto by = [&](auto member) {
        sortBy(m_orders, order, [member](const ListedOrder &each) { return each.*member; });
    };
    switch (const ListColumn column = sortColumn()) {
    case ListColumn::Place: break;
    case ListColumn::Date: by(&ListedOrder::date); break;
    case ListColumn::Delivery: by(&ListedOrder::delivery); break;
    case ListColumn::Priority: by(&ListedOrder::priority); break;
    case ListColumn::Net: by(&ListedOrder::net); break;
    case ListColumn::Total: by(&ListedOrder::total); break;
    case ListColumn::Due: by(&ListedOrder::due); break;
    case ListColumn::Number:
    case ListColumn::Customer:
    case ListColumn::Terms:
    case ListColumn::Remarks: sortByText(m_orders, order, column); break;
    }
}

} // namespace orders
