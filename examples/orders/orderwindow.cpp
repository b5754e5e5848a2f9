// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "orderwindow.h"

#include "arrowicon.h"
#include "conflictdialog.h"
#include "focusmark.h"
#include "gridfile.h"
#include "listwindow.h"
#include "messages.h"
#include "orderlines.h"
#include "ordermerge.h"
#include "orderprint.h"
#include "orderstore.h"
#include "places.h"
#include "productchooser.h"
#include "recordtables.h"
#include "recordwindow.h"
#include "reportwindow.h"
#include "savedfile.h"
#include "searchdialog.h"
#include "settingsdialog.h"

#include <KorDaoUC/Clock>
#include <KorDaoUC/FocusedField>
#include <KorDaoUC/SqlDatabase>

#include <QtCore/QFileInfo>
#include <QtGui/QAction>
#include <QtGui/QCloseEvent>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStatusBar>

#include <utility>

namespace orders {

namespace {

constexpr int messageTime = 5000; // milliseconds
const QString windowName = QStringLiteral("order");

} // namespace

OrderWindow::OrderWindow(OrderStore &store, Places *places)
    : m_store(store),
      m_places(places),
      m_database(std::make_unique<kor::SqlDatabase>(store.connection())),
      m_form(new OrderForm(store, *m_database, this)),
      m_cursor(store.ids())
{
    setCentralWidget(m_form);
    new FocusMark(this);
    statusBar()->addPermanentWidget(new QLabel(QFileInfo(store.connection().databaseName()).fileName()));
    makeOrderMenu();
    makeMoveMenu();
    makeOtherMenus();
    connect(m_form, &OrderForm::edited, this, &OrderWindow::updateState);
    usePreferences(m_places ? m_places->preferences() : Preferences());
    showOrder(m_cursor.first());
    m_form->focusFirstField();
    if (!m_places)
        return;
    m_places->restore(*this, windowName);
    if (!m_places->complaint().isEmpty())
        statusBar()->showMessage(m_places->complaint(), 2 * messageTime);
}

OrderWindow::~OrderWindow() = default;

QAction *OrderWindow::addCommand(QMenu *menu, const QString &text, const QKeySequence &key, const char *button,
                                 const std::function<void()> &work)
{
    QAction *action = menu->addAction(text, key, this, [this, work] {
        guarded(work);
        kor::enterFocusedField(this); // the clerk types on over what the field shows now
    });
    if (button)
        connect(m_form->button(button), &QPushButton::clicked, action, &QAction::trigger);
    return action;
}

// The commands have keys that mean nothing in a text: a field keeps Ctrl+Home, Ctrl+End and Ctrl+Delete to itself.

void OrderWindow::makeOrderMenu()
{
    QMenu *order = menuBar()->addMenu(QStringLiteral("Za&mówienie"));
    addCommand(order, QStringLiteral("&Nowe"), Qt::CTRL | Qt::Key_N, "cmdNew", [this] { startNew(); });
    m_save = addCommand(order, QStringLiteral("&Zapisz"), Qt::CTRL | Qt::Key_S, "cmdSave", [this] { (void)save(); });
    m_undo = addCommand(order, QStringLiteral("&Cofnij zmiany..."), Qt::CTRL | Qt::Key_R, nullptr, [this] {
        if (mayDropChanges(this, QStringLiteral("Zamówienia")))
            showOrder(m_cursor.current());
    });
    m_remove = addCommand(order, QStringLiteral("&Usuń..."), Qt::CTRL | Qt::Key_D, "cmdDelete", [this] { remove(); });
    order->addSeparator();
    addCommand(order, QStringLiteral("&Dodaj pozycję"), Qt::Key_F7, nullptr, [this] { addLine(); });
    addCommand(order, QStringLiteral("Usuń p&ozycję..."), Qt::Key_F8, nullptr, [this] { removeLine(); });
    order->addSeparator();
    addCommand(order, QStringLiteral("Drukuj do &PDF..."), Qt::CTRL | Qt::Key_P, nullptr, [this] { printToPdf(); });
    addCommand(order, QStringLiteral("D&rukuj..."), Qt::CTRL | Qt::SHIFT | Qt::Key_P, nullptr,
               [this] { printOnPaper(); });
    auto *copy = addCommand(order, QStringLiteral("Kop&iuj pozycje"), Qt::CTRL | Qt::SHIFT | Qt::Key_C, nullptr,
                            [this] { statusBar()->showMessage(m_form->lines().copyCells(), messageTime); });
    auto *paste = addCommand(order, QStringLiteral("&Wklej z arkusza"), Qt::CTRL | Qt::SHIFT | Qt::Key_V, nullptr,
                             [this] { pasteLines(); });
    connect(&m_form->lines(), &OrderLines::copyAsked, copy, &QAction::trigger);
    connect(&m_form->lines(), &OrderLines::pasteAsked, paste, &QAction::trigger);
    if (canSaveGrids())
        addCommand(order, QStringLiteral("&Eksportuj pozycje..."), Qt::Key_F12, nullptr, [this] { exportLines(); });
    order->addSeparator();
    addCommand(order, QStringLiteral("U&stawienia..."), Qt::CTRL | Qt::Key_Comma, nullptr, [this] { settings(); });
    addCommand(order, QStringLiteral("Za&kończ"), Qt::CTRL | Qt::Key_Q, nullptr, [this] { close(); });
}

void OrderWindow::makeMoveMenu()
{
    const auto goTo = [this](std::optional<qint64> (OrderCursor::*where)() const) {
        return [this, where] { go((m_cursor.*where)()); };
    };
    QMenu *move = menuBar()->addMenu(QStringLiteral("Prz&ejdź"));
    addCommand(move, QStringLiteral("&Pierwsze"), Qt::ALT | Qt::Key_Home, "cmdFirst", goTo(&OrderCursor::first));
    addCommand(move, QStringLiteral("P&oprzednie"), Qt::CTRL | Qt::Key_PageUp, "cmdPrevious",
               goTo(&OrderCursor::previous));
    addCommand(move, QStringLiteral("&Następne"), Qt::CTRL | Qt::Key_PageDown, "cmdNext", goTo(&OrderCursor::next));
    addCommand(move, QStringLiteral("&Ostatnie"), Qt::ALT | Qt::Key_End, "cmdLast", goTo(&OrderCursor::last));
    move->addSeparator();
    addCommand(move, QStringLiteral("&Szukaj..."), Qt::CTRL | Qt::Key_F, "cmdFind", [this] { search(); });
    addCommand(move, QStringLiteral("&Lista zamówień"), Qt::CTRL | Qt::Key_L, nullptr, [this] { list(); });

    // The arrows are pictures only; whoever hears the form hears what the menu calls them.
    struct ArrowButton {
        const char *button;
        QString name;
        Arrow arrow;
    };
    for (const auto &[button, name, arrow] : {ArrowButton{"cmdFirst", QStringLiteral("Pierwsze"), Arrow::First},
                                              ArrowButton{"cmdPrevious", QStringLiteral("Poprzednie"), Arrow::Previous},
                                              ArrowButton{"cmdNext", QStringLiteral("Następne"), Arrow::Next},
                                              ArrowButton{"cmdLast", QStringLiteral("Ostatnie"), Arrow::Last}}) {
        m_form->button(button)->setAccessibleName(name);
        m_form->button(button)->setIcon(arrowIcon(arrow));
    }
}

void OrderWindow::makeOtherMenus()
{
    QMenu *records = menuBar()->addMenu(QStringLiteral("K&lienci i towary"));
    addCommand(records, QStringLiteral("&Klienci..."), Qt::CTRL | Qt::SHIFT | Qt::Key_K, nullptr,
               [this] { keepCustomers(); });
    addCommand(records, QStringLiteral("&Towary..."), Qt::CTRL | Qt::SHIFT | Qt::Key_T, nullptr,
               [this] { keepProducts(); });

    QMenu *reports = menuBar()->addMenu(QStringLiteral("Zestaw&ienia"));
    addCommand(reports, QStringLiteral("&Sprzedaż..."), Qt::Key_F9, nullptr, [this] { report(); });

    QMenu *help = menuBar()->addMenu(QStringLiteral("Pomo&c"));
    addCommand(help, QStringLiteral("&O programie"), {}, nullptr, [this] { about(); });
}

void OrderWindow::guarded(const std::function<void()> &work)
{
    try {
        work();
    } catch (const StoreError &error) {
        warn(this, QStringLiteral("Baza danych"), error.text());
    }
}

bool OrderWindow::mayLeave()
{
    if (!m_form->isChanged())
        return true;
    switch (askAboutChanges(this, QStringLiteral("Zamówienia"))) {
    case Changes::Save: return save();
    case Changes::Discard: return true;
    case Changes::Keep: break;
    }
    return false;
}

bool OrderWindow::save()
{
    if (!kor::leaveFocusedField(this))
        return false;
    const Order order = m_form->order();
    if (const std::optional<OrderProblem> problem = problemOf(order)) {
        warn(this, QStringLiteral("Zamówienie"), problem->text);
        m_form->focusField(*problem);
        return false;
    }
    try {
        if (order.id != 0)
            return saveChanged(order);
        const Order saved = m_store.add(order);
        m_cursor.append(saved.id);
        showSaved(saved);
        return true;
    } catch (const StoreError &error) {
        warn(this, QStringLiteral("Baza danych"), error.text(),
             QStringLiteral("Zamówienie nie jest zapisane. To, co wpisano, pozostaje w formularzu."));
        return false;
    }
}

bool OrderWindow::saveChanged(Order ours)
{
    Order loaded = m_form->loaded();
    for (;;) {
        const Outcome outcome = m_store.save(ours, loaded);
        switch (outcome.kind) {
        case Outcome::Kind::Done: showSaved(outcome.order); return true;
        case Outcome::Kind::DeletedMeanwhile: return saveDeleted(ours);
        case Outcome::Kind::ChangedMeanwhile: break;
        }
        if (!decide(loaded, outcome.order, ours))
            return false;
        loaded = outcome.order;
    }
}

bool OrderWindow::decide(const Order &loaded, const Order &theirs, Order &ours)
{
    const QList<Difference> fields = differences(loaded, ours, theirs);
    if (fields.isEmpty())
        return true; // the same was changed to the same
    QList<Conflict> conflicts;
    for (const Difference &difference : fields) {
        const OrderField field = difference.field;
        conflicts.append({m_form->nameOf(field), m_form->textOf(field, loaded), m_form->textOf(field, ours),
                          m_form->textOf(field, theirs), difference.isOurs});
    }
    ConflictDialog dialog(QStringLiteral("Zamówienie %1").arg(ours.number), conflicts, this);
    return orders::decide(dialog, [&](const ConflictDialog &choice) {
        Order decided = ours;
        for (qsizetype at = 0; at < fields.size(); ++at) {
            if (choice.takesTheirs(at))
                take(fields.at(at).field, decided, theirs);
        }
        const std::optional<OrderProblem> problem = problemOf(decided);
        if (!problem)
            ours = decided;
        return problem ? problem->text : QString();
    });
}

bool OrderWindow::saveDeleted(Order ours)
{
    const QString question =
        QStringLiteral("Zamówienie %1 usunięto tymczasem na innym stanowisku.\nZapisać je jako nowe?").arg(ours.number);
    if (ask(this, QStringLiteral("Zamówienia"), question,
            {QStringLiteral("&Zapisz jako nowe"), QStringLiteral("&Anuluj")}) != 0)
        return false;
    const qint64 gone = std::exchange(ours.id, 0);
    const Order saved = m_store.add(ours);
    m_cursor.removeCurrent();
    Q_EMIT orderChanged(gone);
    m_cursor.append(saved.id);
    showSaved(saved);
    return true;
}

void OrderWindow::showSaved(const Order &saved)
{
    m_form->setOrder(saved);
    statusBar()->showMessage(QStringLiteral("Zapisano zamówienie %1.").arg(saved.number), messageTime);
    Q_EMIT orderChanged(saved.id);
}

void OrderWindow::remove()
{
    Order order = m_form->loaded();
    if (order.id == 0)
        return;
    QString question = QStringLiteral("Usunąć zamówienie %1 razem z jego pozycjami?").arg(order.number);
    for (Outcome outcome{Outcome::Kind::ChangedMeanwhile, order}; outcome.kind == Outcome::Kind::ChangedMeanwhile;) {
        if (ask(this, QStringLiteral("Zamówienia"), question, {QStringLiteral("&Usuń"), QStringLiteral("&Anuluj")}) !=
            0)
            return;
        outcome = m_store.remove(order);
        order = outcome.order;
        question =
            QStringLiteral("Zamówienie %1 zmieniono i zapisano tymczasem na innym stanowisku. Usunąć je mimo to?")
                .arg(order.number);
    }
    m_cursor.removeCurrent();
    Q_EMIT orderChanged(order.id);
    showOrder(m_cursor.current());
    statusBar()->showMessage(QStringLiteral("Usunięto zamówienie %1.").arg(order.number), messageTime);
}

void OrderWindow::addLine()
{
    if (kor::leaveFocusedField(this))
        m_form->lines().addLine();
}

void OrderWindow::removeLine()
{
    OrderLines &lines = m_form->lines();
    if (!lines.hasKeyboard()) {
        statusBar()->showMessage(QStringLiteral("Przejdź najpierw do pozycji (Alt+J)."), messageTime);
        return;
    }
    if (const std::optional<OrderLine> line = lines.current()) {
        const QString question = QStringLiteral("Usunąć pozycję?\n%1").arg(m_form->textOf(*line));
        if (ask(this, QStringLiteral("Zamówienia"), question, {QStringLiteral("&Usuń"), QStringLiteral("&Anuluj")}) !=
            0)
            return;
    }
    lines.removeCurrent();
}

void OrderWindow::pasteLines()
{
    if (!m_form->lines().hasKeyboard())
        statusBar()->showMessage(QStringLiteral("Przejdź najpierw do pozycji (Alt+J)."), messageTime);
    else if (kor::leaveFocusedField(this))
        statusBar()->showMessage(m_form->lines().pasteCells(), messageTime);
}

void OrderWindow::exportLines()
{
    if (!kor::leaveFocusedField(this))
        return;
    const QString said = m_form->exportLines();
    if (!said.isEmpty())
        statusBar()->showMessage(said, messageTime);
}

void OrderWindow::printToPdf()
{
    if (!kor::leaveFocusedField(this))
        return;
    const OrderPaper paper = m_form->paper();
    const QString said = askAndSavePdf(this, paper);
    if (!said.isEmpty())
        statusBar()->showMessage(said, messageTime);
}

void OrderWindow::printOnPaper()
{
    if (!kor::leaveFocusedField(this))
        return;
    const OrderPaper paper = m_form->paper();
    const QString said = askAndPrint(this, paper);
    if (!said.isEmpty())
        statusBar()->showMessage(said, messageTime);
}

void OrderWindow::go(std::optional<qint64> id)
{
    // The keys stay in force at both ends: otherwise they would reach the field and change it.
    if (!id)
        statusBar()->showMessage(QStringLiteral("Dalej nie ma zamówień."), messageTime);
    else if (id != m_cursor.current() && mayLeave())
        showOrder(id);
}

void OrderWindow::startNew()
{
    if (!mayLeave())
        return;
    showOrder(std::nullopt);
    m_form->focusFirstField();
}

void OrderWindow::search()
{
    if (!mayLeave())
        return;
    SearchDialog dialog(ordersToSearch(m_store), this);
    const Visit visit(m_places, dialog, QStringLiteral("search"));
    const bool isChosen = dialog.exec() == QDialog::Accepted;
    activateWindow();
    if (isChosen)
        showOrder(dialog.chosen());
}

void OrderWindow::report()
{
    ReportWindow window(m_store, *m_database, this);
    const Visit visit(m_places, window, QStringLiteral("report"));
    window.exec();
    activateWindow();
}

void OrderWindow::keepCustomers()
{
    RecordWindow window(m_store, customersTable(), customersToSearch(m_store), *m_database, this);
    connect(&window, &RecordWindow::changed, this, &OrderWindow::customerChanged);
    keepRecords(QStringLiteral("customers"), window, m_form->order().customer);
}

void OrderWindow::keepProducts()
{
    const Catalogue catalogue(m_store.connection());
    RecordWindow window(m_store, productsTable(m_preferences.vat), productsToSearch(catalogue), *m_database, this);
    const std::optional<OrderLine> line = m_form->lines().current();
    keepRecords(QStringLiteral("products"), window, line ? line->product : std::nullopt);
}

void OrderWindow::settings()
{
    SettingsDialog dialog(m_preferences, this);
    const bool isSaved = [&] {
        const Visit visit(m_places, dialog, QStringLiteral("settings"));
        return dialog.exec() == QDialog::Accepted;
    }();
    activateWindow();
    if (!isSaved)
        return;
    usePreferences(dialog.preferences());
    updateState();
    if (!m_cursor.current() && !m_form->isChanged())
        showOrder(std::nullopt); // by what was set now
    if (m_places && !m_places->keep(m_preferences))
        warn(this, QStringLiteral("Ustawienia"),
             QStringLiteral("Ustawień nie udało się zapisać. Obowiązują do zakończenia programu."));
}

void OrderWindow::usePreferences(const Preferences &preferences)
{
    m_preferences = preferences;
    m_form->setPreferences(preferences);
    offerFilesIn(preferences.folder);
}

//! The order stays as it is being typed.
void OrderWindow::keepRecords(const QString &name, RecordWindow &window, std::optional<qint64> first)
{
    if (first)
        window.go(*first);
    {
        const Visit visit(m_places, window, name);
        window.exec();
    }
    activateWindow();
    if (window.hasSaved() && !m_form->refreshDictionaries())
        warn(this, QStringLiteral("Zamówienie"),
             QStringLiteral("Klienta, który był wybrany w zamówieniu, usunięto. Wybierz innego."));
}

ListWindow &OrderWindow::list()
{
    if (!m_list) {
        m_list = std::make_unique<ListWindow>(m_store, *m_database, m_places);
        connect(m_list.get(), &ListWindow::orderChosen, this,
                [this](qint64 id) { guarded([this, id] { openOrder(id); }); });
        connect(m_list.get(), &QDialog::finished, this, [this] { activateWindow(); });
        connect(this, &OrderWindow::orderChanged, m_list.get(), &ListWindow::follow);
        connect(this, &OrderWindow::customerChanged, m_list.get(), &ListWindow::followCustomer);
    }
    m_list->present();
    return *m_list;
}

void OrderWindow::openOrder(qint64 id)
{
    raise();
    activateWindow();
    if (id != m_cursor.current() && mayLeave())
        showOrder(id);
    kor::enterFocusedField(this);
}

void OrderWindow::showOrder(std::optional<qint64> id)
{
    if (!id) {
        m_cursor.goToNew();
        Order order;
        order.date = kor::Clock::today();
        order.paymentTerms = m_preferences.paymentTerms;
        if (m_preferences.deliveryDays > 0)
            order.delivery = order.date.addDays(m_preferences.deliveryDays);
        m_form->setOrder(order);
        return;
    }
    const std::optional<Order> order = m_store.order(*id); // first: the desk stays where it is when that fails
    m_cursor.goTo(*id);
    if (order) {
        m_form->setOrder(*order);
        return;
    }
    m_cursor.removeCurrent();
    Q_EMIT orderChanged(*id);
    warn(this, QStringLiteral("Zamówienia"), QStringLiteral("Zamówienie zostało tymczasem usunięte."));
    showOrder(m_cursor.current());
}

void OrderWindow::updateState()
{
    const Order order = m_form->order();
    const bool isNew = order.id == 0;
    const bool isChanged = m_form->isChanged();
    setWindowTitle(isNew ? QStringLiteral("Nowe zamówienie[*] – Zamówienia")
                         : QStringLiteral("%1[*] – Zamówienia").arg(order.number));
    setWindowModified(isChanged);
    m_form->setPosition(m_cursor.text());
    m_form->markUnsaved(isChanged);
    m_save->setEnabled(isNew || isChanged);
    m_undo->setEnabled(isChanged);
    m_remove->setEnabled(!isNew);
    m_form->button("cmdSave")->setEnabled(m_save->isEnabled());
    m_form->button("cmdDelete")->setEnabled(m_remove->isEnabled());
    for (const char *name : {"cmdFirst", "cmdPrevious"})
        m_form->button(name)->setEnabled(m_cursor.previous().has_value());
    m_form->button("cmdNext")->setEnabled(m_cursor.next().has_value());
    m_form->button("cmdLast")->setEnabled(m_cursor.last().has_value() && m_cursor.current() != m_cursor.last());
}

void OrderWindow::about()
{
    QMessageBox::about(this, QStringLiteral("O programie"),
                       QStringLiteral("<b>Zamówienia</b><p>Przykładowy program biblioteki KorDaoUC %1.</p>"
                                      "<p>Dane są przykładowe; firmy i osoby są zmyślone.</p>")
                           .arg(QStringLiteral(KORDAOUC_VERSION)));
}

void OrderWindow::closeEvent(QCloseEvent *event)
{
    bool mayClose = false;
    guarded([&] { mayClose = mayLeave(); });
    event->setAccepted(mayClose);
    if (mayClose && m_list)
        m_list->close();
    if (mayClose && m_places)
        m_places->keep(*this, windowName);
}

} // namespace orders
