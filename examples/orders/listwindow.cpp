// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "listwindow.h"

#include "filterpane.h"
#include "focusmark.h"
#include "gridclipboard.h"
#include "gridfile.h"
#include "listpaper.h"
#include "messages.h"
#include "orderstore.h"
#include "places.h"
#include "progress.h"
#include "savedfile.h"

#include <KorDaoUC/FocusedField>
#include <KorDaoUC/KorGrid>

#include <QtCore/QScopedValueRollback>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QStatusBar>
#include <QtWidgets/QVBoxLayout>

#include <functional>
#include <utility>

namespace orders {

namespace {

constexpr int messageTime = 5000; // milliseconds
const QString windowName = QStringLiteral("list");
const QString filterName = QStringLiteral("list/filter");
const QString sortName = QStringLiteral("list/sort");
const QString columnKey = QStringLiteral("column");
const QString descendingKey = QStringLiteral("descending");
const QString title = QStringLiteral("Lista zamówień");

} // namespace

ListWindow::ListWindow(const OrderStore &store, kor::Database &database, Places *places)
    : QDialog(nullptr, Qt::Window), // lies beside the order's window, not always above it
      m_store(store),
      m_places(places),
      m_menus(new QMenuBar),
      m_filter(new FilterPane(store, database)),
      m_grid(new KorGrid),
      m_rows(new ListRows(m_grid, this)),
      m_status(new QStatusBar),
      m_sums(new QLabel)
{
    setWindowTitle(QStringLiteral("Lista zamówień – Zamówienia"));
    m_grid->setObjectName(QStringLiteral("grdOrders"));
    m_grid->setAccessibleName(title);
    m_sums->setObjectName(QStringLiteral("lblSums"));
    m_status->addPermanentWidget(m_sums);
    auto *middle = new QVBoxLayout;
    middle->setContentsMargins(9, 9, 9, 0);
    middle->addWidget(m_filter);
    middle->addWidget(m_grid, 1);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setMenuBar(m_menus);
    layout->addLayout(middle, 1);
    layout->addWidget(m_status);
    resize(1240, 680);
    new FocusMark(this);

    makeMenus();
    restore();
    connect(m_filter, &FilterPane::asked, this, [this] {
        if (refresh() && !m_rows->orders().isEmpty())
            m_grid->setFocus(Qt::TabFocusReason);
    });
    connect(m_filter, &FilterPane::clearAsked, this, &ListWindow::clearFilter);
    connect(m_rows, &ListRows::chosen, this, &ListWindow::orderChosen);
    // Not while the title is still being clicked: a long work lets other events in.
    connect(m_rows, &ListRows::sortAsked, this, &ListWindow::sortAgain, Qt::QueuedConnection);
}

ListWindow::~ListWindow() = default;

void ListWindow::makeMenus()
{
    const auto add = [this](QMenu *menu, const QString &text, const QKeySequence &key,
                            const std::function<void()> &work) { menu->addAction(text, key, this, work); };
    QMenu *list = m_menus->addMenu(QStringLiteral("&Lista"));
    add(list, QStringLiteral("&Otwórz zamówienie\tEnter"), {}, [this] {
        if (const auto id = m_rows->current())
            Q_EMIT orderChosen(*id);
    });
    add(list, QStringLiteral("Od&śwież"), Qt::Key_F5, [this] {
        m_filter->refreshLists();
        refresh();
    });
    add(list, QStringLiteral("&Sortuj według kolumny z kursorem"), Qt::Key_F3, [this] { m_rows->sortByCurrent(); });
    list->addSeparator();
    add(list, QStringLiteral("Drukuj do &PDF..."), Qt::CTRL | Qt::Key_P, [this] { printToPdf(); });
    add(list, QStringLiteral("&Kopiuj"), Qt::CTRL | Qt::SHIFT | Qt::Key_C, [this] { say(copyCellsOf(*m_grid)); });
    if (canSaveGrids())
        add(list, QStringLiteral("&Eksportuj..."), Qt::Key_F12, [this] { exportRows(); });
    list->addSeparator();
    add(list, QStringLiteral("&Zamknij\tEsc"), {}, [this] { reject(); });

    QMenu *filter = m_menus->addMenu(QStringLiteral("&Filtr"));
    add(filter, QStringLiteral("&Szukaj tekstu"), Qt::CTRL | Qt::Key_F,
        [this] { m_filter->focusField(FilterField::Text); });
    add(filter, QStringLiteral("&Okres"), Qt::Key_F6, [this] { m_filter->focusField(FilterField::From); });
    add(filter, QStringLiteral("&Lista"), Qt::Key_F7, [this] { m_grid->setFocus(Qt::TabFocusReason); });
    filter->addSeparator();
    add(filter, QStringLiteral("&Wyczyść filtr"), Qt::CTRL | Qt::Key_R, [this] { clearFilter(); });
}

// --- from one day to the next

void ListWindow::restore()
{
    if (!m_places)
        return;
    m_places->restore(*this, windowName);
    m_filter->setFilter(filterOf(m_places->texts(filterName)));
    const QMap<QString, QString> sort = m_places->texts(sortName);
    const int column = sort.value(columnKey).toInt();
    if (column > 0 && column < m_grid->Cols())
        m_rows->setSort(static_cast<ListColumn>(column),
                        sort.contains(descendingKey) ? Qt::DescendingOrder : Qt::AscendingOrder);
}

void ListWindow::keep()
{
    if (!m_places)
        return;
    m_places->keep(*this, windowName);
    m_places->keepTexts(filterName, textsOf(m_filter->filter()));
    QMap<QString, QString> sort{{columnKey, QString::number(static_cast<int>(m_rows->sortColumn()))}};
    if (m_rows->sortOrder() == Qt::DescendingOrder)
        sort.insert(descendingKey, QStringLiteral("1"));
    m_places->keepTexts(sortName, sort);
}

void ListWindow::present()
{
    const bool isOpened = !isVisible();
    show();
    raise();
    activateWindow();
    if (!isOpened)
        return;
    m_grid->setFocus(Qt::TabFocusReason);
    refresh();
}

void ListWindow::done(int result)
{
    if (isVisible())
        keep();
    QDialog::done(result);
}

// --- reading

bool ListWindow::refresh()
{
    if (m_isBusy || !kor::leaveFocusedField(this))
        return false;
    const OrderFilter asked = m_filter->filter();
    if (const auto problem = problemOf(asked)) {
        warn(this, title, problem->text);
        m_filter->focusField(problem->field);
        return false;
    }
    std::optional<OrderList> list = read(asked);
    if (list) {
        m_shown = asked;
        m_limits = m_filter->texts();
        m_all = list->all;
        fill(std::move(list->orders));
    }
    followMissed();
    kor::enterFocusedField(this);
    return list.has_value();
}

std::optional<OrderList> ListWindow::read(const OrderFilter &filter)
{
    const QScopedValueRollback busy(m_isBusy, true);
    Progress progress(this, title, QStringLiteral("Odczytywanie zamówień..."));
    try {
        std::optional<OrderList> list = readOrders(m_store.connection(), filter,
                                                   [&](qint64 done, qint64 all) { return progress.goesOn(done, all); });
        if (!list)
            say(QStringLiteral("Przerwano; lista pozostaje taka, jaka była."));
        return list;
    } catch (const StoreError &error) {
        progress.end();
        warn(this, QStringLiteral("Baza danych"), error.text(), QStringLiteral("Lista pozostaje taka, jaka była."));
    }
    return std::nullopt;
}

void ListWindow::fill(QList<ListedOrder> orders)
{
    const QScopedValueRollback busy(m_isBusy, true);
    const qsizetype found = orders.size();
    Progress progress(this, title, QStringLiteral("Wypełnianie listy..."));
    const bool isWhole =
        m_rows->setOrders(std::move(orders), [&](qint64 done, qint64 all) { return progress.goesOn(done, all); });
    showSums();
    if (!isWhole)
        say(QStringLiteral("Przerwano: lista pokazuje tylko część z %1 zamówień.").arg(found));
}

void ListWindow::sortAgain()
{
    if (m_isBusy)
        return;
    fill(m_rows->orders());
    followMissed();
}

void ListWindow::clearFilter()
{
    if (m_isBusy)
        return;
    m_filter->setFilter({});
    kor::enterFocusedField(this);
    refresh();
}

// --- what changes meanwhile

void ListWindow::follow(qint64 id) { followAll({id}); }

void ListWindow::followCustomer(qint64 id)
{
    const bool isShownByFilter = m_filter->filter() == m_shown;
    m_filter->refreshLists();
    if (isShownByFilter)
        m_limits = m_filter->texts();
    try {
        followAll(ordersOf(m_store.connection(), id));
    } catch (const StoreError &) {
        sayMissed();
    }
}

void ListWindow::followAll(const QList<qint64> &ids)
{
    if (!isVisible())
        return; // they are read anew when it is opened
    m_missed << ids;
    if (!m_isBusy)
        followMissed();
}

void ListWindow::followMissed()
{
    const QList<qint64> ids = std::exchange(m_missed, {});
    if (ids.isEmpty())
        return;
    try {
        const QList<ListedOrder> orders = readListed(m_store.connection(), m_shown, ids);
        m_all = countOrders(m_store.connection());
        m_rows->follow(ids, orders);
        showSums();
    } catch (const StoreError &) {
        sayMissed();
    }
}

void ListWindow::sayMissed()
{
    say(QStringLiteral("Nie udało się odczytać tego, co zapisano; F5 odczyta listę na nowo."));
}

void ListWindow::showSums() { m_sums->setText(sumText(m_rows->orders(), m_all)); }

void ListWindow::say(const QString &text) { m_status->showMessage(text, messageTime); }

// --- files

void ListWindow::exportRows()
{
    if (m_isBusy)
        return;
    const OrderSums sums = sumsOf(m_rows->orders());
    const auto zlotys = [](qint64 grosze) { return QVariant(static_cast<double>(grosze) / 100); };
    const QHash<int, QVariant> totals{{static_cast<int>(ListColumn::Customer), QStringLiteral("Razem")},
                                      {static_cast<int>(ListColumn::Net), zlotys(sums.net)},
                                      {static_cast<int>(ListColumn::Total), zlotys(sums.total)},
                                      {static_cast<int>(ListColumn::Due), zlotys(sums.due)}};
    {
        const QScopedValueRollback busy(m_isBusy, true);
        say(askAndSaveGrid(this, *m_grid, {title, QStringLiteral("zamówienia"), totals}));
    }
    followMissed();
}

void ListWindow::printToPdf()
{
    if (m_isBusy)
        return;
    const QString fileName =
        askForFile(this, title, QStringLiteral("zamówienia.pdf"), {QStringLiteral("Dokument PDF (*.pdf)")});
    if (fileName.isEmpty())
        return;
    savePdf(fileName);
    followMissed();
}

void ListWindow::savePdf(const QString &fileName)
{
    const QScopedValueRollback busy(m_isBusy, true);
    Progress progress(this, title, QStringLiteral("Przygotowanie wydruku..."));
    const QByteArray pdf = listPdf(m_rows->orders(), m_limits, m_sums->text(),
                                   [&](qint64 done, qint64 all) { return progress.goesOn(done, all); });
    progress.end();
    const bool isSaved = !pdf.isEmpty() && saveFile(this, title, fileName, pdf);
    say(isSaved ? QStringLiteral("Zapisano plik %1.").arg(fileName) : QStringLiteral("Nic nie zapisano."));
}

} // namespace orders
