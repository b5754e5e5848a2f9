// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "orderform.h"

#include "colorchoice.h"
#include "fieldvalues.h"
#include "grosze.h"
#include "linetext.h"
#include "orderlines.h"
#include "ordermerge.h"
#include "orderstore.h"
#include "paymentterms.h"
#include "searchdialog.h"

#include <KorDaoUC/Color>
#include <KorDaoUC/Convert>
#include <KorDaoUC/Database>
#include <KorDaoUC/FocusedField>
#include <KorDaoUC/Format>
#include <KorDaoUC/KorClick>
#include <KorDaoUC/KorCombo>
#include <KorDaoUC/KorDate>
#include <KorDaoUC/KorGrid>
#include <KorDaoUC/KorList>
#include <KorDaoUC/KorListCheck>
#include <KorDaoUC/KorMultiText>
#include <KorDaoUC/KorNumber>
#include <KorDaoUC/KorUpDown>
#include <KorDaoUC/Variant>

#include <QtCore/QRegularExpression>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

#include <cmath>
#include <initializer_list>

namespace orders {

namespace {

const QString formFile = QStringLiteral(":/orders/forms/frmOrder.frm");

std::optional<double> numberOf(const QVariant &value)
{
    return kor::isNull(value) ? std::nullopt : std::optional(kor::CDbl(value));
}

QVariant orNull(std::optional<double> number) { return number ? QVariant(*number) : kor::null(); }

//! The name under which the colour field shows a colour.
QString colorName(int color)
{
    KorColor colors;
    colors.setValue(color);
    return colors.findChild<QComboBox *>()->currentText();
}

//! Black or white, whichever is read better.
QColor textOn(const QColor &ground)
{
    constexpr double middle = 0.18;
    const auto light = [](double part) { return std::pow(part, 2.2); };
    const double luminance =
        0.2126 * light(ground.redF()) + 0.7152 * light(ground.greenF()) + 0.0722 * light(ground.blueF());
    return luminance > middle ? Qt::black : Qt::white;
}

//! Whether the text of a field is not yet read: its value follows when the field is left.
bool isBeingTyped(const KorDate &field) { return field.Text() != kor::Format(field.Value(), field.FormatMask()); }

} // namespace

OrderForm::OrderForm(const OrderStore &store, kor::Database &database, QWidget *parent)
    : QWidget(parent), m_store(store), m_catalogue(store.connection()), m_form(formFile, this)
{
    m_customer = m_form.part<KorCombo>("cmbCustomer");
    m_terms = m_form.part<KorCombo>("cmbTerms");
    m_discount = m_form.part<KorNumber>("numDiscount");
    m_total = m_form.part<KorNumber>("numTotal");
    m_advance = m_form.part<KorNumber>("numAdvance");
    m_due = m_form.part<KorNumber>("numDue");
    m_number = m_form.part<QLineEdit>("txtNumber");
    m_date = m_form.part<KorDate>("datOrder");
    m_delivery = m_form.part<KorDate>("datDelivery");
    m_address = m_form.part<KorClick>("clkAddress");
    m_priority = m_form.part<KorUpDown>("spnPriority");
    m_remarks = m_form.part<KorMultiText>("txtRemarks");
    m_color = m_form.part<KorColor>("clrLabel");
    m_groups = m_form.part<KorListCheck>("lstGroups");
    m_orders = m_form.part<KorList>("lstOrders");
    m_quantity = m_form.part<KorNumber>("numLinesQuantity");
    m_net = m_form.part<KorNumber>("numLinesNet");
    m_position = m_form.part<QLabel>("lblPosition");

    // The range of a spin field is the program's; it is not saved with the form.
    m_priority->setMin(1);
    m_priority->setMax(5);
    for (kor::DictionaryControl *list : std::initializer_list<kor::DictionaryControl *>{m_customer, m_groups, m_orders})
        list->setdatabase(&database);
    m_customer->Refresh();
    m_groups->Refresh();
    m_groups->setListIndex(-1);
    m_terms->setSQL(termsToChoose());
    m_terms->Refresh();
    m_lines = new OrderLines(m_form.part<KorGrid>("grdLines"), m_catalogue, database, this);
    connectFields();
}

OrderForm::~OrderForm() = default;

QPushButton *OrderForm::button(const char *name) const { return m_form.part<QPushButton>(name); }

void OrderForm::connectFields()
{
    // What is only shown is no stop of the Tab key.
    for (KorNumber *shown : {m_due, m_quantity, m_net}) {
        shown->setFocusPolicy(Qt::NoFocus);
        shown->focusProxy()->setFocusPolicy(Qt::ClickFocus);
    }

    m_address->findChild<QWidget *>(QStringLiteral("cmdClick"))->setFocusPolicy(Qt::ClickFocus);

    connect(m_customer, &KorCombo::Click, this, [this] {
        showAddress();
        Q_EMIT edited();
    });
    connect(m_terms, &KorCombo::Click, this, &OrderForm::edited);
    for (const KorDate *date : {m_date, m_delivery})
        connect(date, &KorDate::Change, this, &OrderForm::edited);
    connect(m_discount, &KorNumber::Change, this, &OrderForm::edited);
    for (const KorNumber *amount : {m_total, m_advance}) {
        connect(amount, &KorNumber::Change, this, [this] {
            showDue();
            Q_EMIT edited();
        });
    }
    connect(m_address, &KorClick::Click, this, &OrderForm::chooseCustomer);
    connect(m_address, &KorClick::Change, this, [this] {
        // Delete in the locked field takes the customer away.
        if (kor::isNull(m_address->Value()) && !kor::isNull(m_customer->Value()))
            m_customer->setValue(kor::null());
    });
    connect(m_priority, &KorUpDown::Change, this, &OrderForm::edited);
    connect(m_remarks, &KorMultiText::Change, this, &OrderForm::edited);
    connect(m_color, &KorColor::Click, this, &OrderForm::edited);
    connect(m_lines, &OrderLines::edited, this, [this] {
        showSums();
        Q_EMIT edited();
    });
    connect(m_groups, &KorListCheck::ItemCheck, this, [this] { offerCustomers(keyIn(m_customer->Value())); });
}

void OrderForm::setOrder(const Order &order)
{
    m_loaded = order;
    m_number->setText(order.number.isEmpty() ? QStringLiteral("(nowe)") : order.number);
    m_date->setValue(order.date.isValid() ? QVariant(order.date) : kor::null());
    m_delivery->setValue(valueOf(order.delivery));
    offerCustomers(order.customer);
    m_customer->setValue(valueOf(order.customer));
    m_terms->setValue(order.paymentTerms);
    m_discount->setValue(orNull(order.discount));
    m_total->setValue(zlotysOf(order.total));
    m_advance->setValue(zlotysOf(order.advance));
    m_priority->setText(kor::CStr(order.priority));
    m_remarks->setText(order.remarks);
    m_color->setValue(order.labelColor.value_or(noColor));
    m_lines->setLines(order.lines);
    if (order.id == 0)
        m_lines->goToFirst();
    showAddress();
    showDue();
    showSums();
    // What the fields round is no change of the clerk's.
    m_unchanged = read();
    Q_EMIT edited();
}

Order OrderForm::order() const { return withUntouched(read(), m_unchanged, m_loaded); }

Order OrderForm::read() const
{
    Order order = m_loaded;
    order.customer = keyIn(m_customer->Value());
    order.date = dateOf(*m_date).value_or(QDate());
    order.delivery = dateOf(*m_delivery);
    order.paymentTerms = kor::CStr(m_terms->Value());
    order.discount = numberOf(m_discount->Value());
    order.total = groszeOf(m_total->Value());
    order.advance = groszeOf(m_advance->Value());
    order.priority = m_priority->Value();
    order.remarks = m_remarks->Text();
    order.labelColor = colorIn(*m_color);
    order.lines = m_lines->lines();
    return order;
}

bool OrderForm::isChanged() const
{
    return read() != m_unchanged || isBeingTyped(*m_date) || isBeingTyped(*m_delivery) || m_lines->isChanged();
}

void OrderForm::setPosition(const QString &text) { m_position->setText(text); }

void OrderForm::setPreferences(const Preferences &preferences) { m_preferences = preferences; }

//! The title of the window tells it too, and so does the field to who does not see colours.
void OrderForm::markUnsaved(bool isUnsaved)
{
    QPalette colors;
    if (isUnsaved && m_preferences.unsavedColor) {
        const QColor behind = kor::toQColor(*m_preferences.unsavedColor, colors);
        colors.setColor(QPalette::Base, behind);
        colors.setColor(QPalette::Text, textOn(behind));
    }
    if (m_number->palette() != colors)
        m_number->setPalette(colors);
    m_number->setAccessibleDescription(isUnsaved ? QStringLiteral("niezapisane zmiany") : QString());
}

void OrderForm::focusFirstField() { m_customer->setFocus(Qt::TabFocusReason); }

void OrderForm::focusField(const OrderProblem &problem)
{
    if (problem.field == OrderField::Lines)
        m_lines->goTo(problem.line, problem.cell);
    else
        widgetOf(problem.field)->setFocus(Qt::TabFocusReason);
}

QWidget *OrderForm::widgetOf(OrderField field) const
{
    switch (field) {
    case OrderField::Date: return m_date;
    case OrderField::Delivery: return m_delivery;
    case OrderField::Customer: return m_customer;
    case OrderField::Terms: return m_terms;
    case OrderField::Discount: return m_discount;
    case OrderField::Priority: return m_priority;
    case OrderField::Total: return m_total;
    case OrderField::Advance: return m_advance;
    case OrderField::Remarks: return m_remarks;
    case OrderField::Label: return m_color;
    case OrderField::Lines: break;
    }
    return nullptr;
}

QString OrderForm::nameOf(OrderField field) const
{
    if (field == OrderField::Lines)
        return QStringLiteral("Pozycje");
    for (const QLabel *label : findChildren<QLabel *>()) {
        if (label->buddy() && widgetOf(field)->isAncestorOf(label->buddy()))
            return label->text().remove(u'&').remove(u':');
        if (label->buddy() == widgetOf(field))
            return label->text().remove(u'&').remove(u':');
    }
    return {};
}

QString OrderForm::textOf(OrderField field, const Order &order) const
{
    switch (field) {
    case OrderField::Date: return kor::Format(order.date, m_date->FormatMask());
    case OrderField::Delivery:
        return order.delivery ? kor::Format(*order.delivery, m_delivery->FormatMask()) : QString();
    case OrderField::Customer: return order.customer ? m_store.nameOf(*order.customer) : m_customer->NullString();
    case OrderField::Terms: return nameOfTerms(order.paymentTerms);
    case OrderField::Discount:
        return order.discount ? kor::Format(*order.discount, m_discount->MaskPicture()) + QStringLiteral(" %")
                              : QString();
    case OrderField::Priority: return kor::CStr(order.priority);
    case OrderField::Total: return amountText(order.total);
    case OrderField::Advance: return amountText(order.advance);
    case OrderField::Remarks: return order.remarks;
    case OrderField::Label: return colorName(order.labelColor.value_or(noColor));
    case OrderField::Lines: return lineTexts(order.lines, m_catalogue);
    }
    return {};
}

void OrderForm::showAddress()
{
    QString address;
    try {
        if (const auto customer = keyIn(m_customer->Value()))
            address = m_store.addressOf(*customer);
    } catch (const StoreError &error) {
        address = error.text(); // the order itself can be edited all the same
    }
    m_address->setValue(m_customer->Value());
    m_address->setText(address);
    showOrdersOfCustomer();
}

void OrderForm::chooseCustomer()
{
    SearchDialog dialog(customersToSearch(m_store), this);
    if (dialog.exec() == QDialog::Accepted && dialog.chosen() != 0) {
        offerCustomers(dialog.chosen());
        m_customer->setValue(valueOf(dialog.chosen()));
    }
    window()->activateWindow(); // not every window system does so by itself
    kor::enterFocusedField(window());
}

void OrderForm::offerCustomers(std::optional<qint64> kept)
{
    QString source = QStringLiteral("SELECT id, name FROM customers");
    QString groups = m_groups->ValueChecked();
    if (!groups.isEmpty()) {
        groups.chop(m_groups->Separator().size()); // there is one behind the last key, too
        source += QStringLiteral(" WHERE group_id IN (%1)").arg(groups);
        if (kept)
            source += QStringLiteral(" OR id = %1").arg(*kept);
    }
    source += QStringLiteral(" ORDER BY sort_name");
    if (source == m_customer->SQL() || !m_store.isAwake())
        return;
    m_customer->setSQL(source);
    m_customer->Refresh();
}

bool OrderForm::refreshDictionaries()
{
    m_store.wake();
    const QVariant customer = m_customer->Value();
    m_customer->Refresh();
    showAddress();
    m_lines->refreshProducts();
    return kor::isNull(customer) || !kor::isNull(m_customer->Value());
}

//! The newest first, to be read.
void OrderForm::showOrdersOfCustomer()
{
    const auto customer = keyIn(m_customer->Value());
    m_orders->setSQL(QStringLiteral("SELECT id, number || '  ' || substr(order_date, 9, 2) || '.' || "
                                    "substr(order_date, 6, 2) FROM orders WHERE customer_id = %1 "
                                    "ORDER BY id DESC LIMIT 100")
                         .arg(customer ? QString::number(*customer) : QStringLiteral("NULL")));
    m_orders->Clear();
    if (m_store.isAwake())
        m_orders->Refresh();
    if (m_orders->HasValues())
        m_orders->setListIndex(-1);
}

QString OrderForm::textOf(const OrderLine &line) const { return lineText(line, m_catalogue); }

QString OrderForm::exportLines()
{
    const QString number = m_loaded.number.isEmpty() ? QStringLiteral("nowe zamówienie") : m_loaded.number;
    return m_lines->exportCells(QStringLiteral("Pozycje %1").arg(number), QString(number).replace(u'/', u'-'));
}

OrderPaper OrderForm::paper() const
{
    const Order printed = order();
    OrderPaper paper;
    static const QRegularExpression lineBreak(QStringLiteral("[\\r\\n]+"));
    paper.seller = m_preferences.seller.split(lineBreak, Qt::SkipEmptyParts);
    paper.title =
        printed.id == 0 ? QStringLiteral("Nowe zamówienie") : QStringLiteral("Zamówienie %1").arg(printed.number);
    paper.name = QString(paper.title).replace(u'/', u'-');
    if (isChanged())
        paper.title += QStringLiteral(" (niezapisane zmiany)");
    paper.customer = {printed.customer ? m_store.nameOf(*printed.customer) : QString()};
    for (const QString &part : m_address->Text().split(QStringLiteral(", ")))
        paper.customer << part;
    for (const OrderField field : {OrderField::Date, OrderField::Delivery, OrderField::Terms, OrderField::Discount}) {
        if (const QString text = textOf(field, printed); !text.isEmpty())
            paper.facts.append({nameOf(field), text});
    }
    for (const OrderLine &line : printed.lines)
        paper.lines << paperLineOf(line, m_catalogue);
    const auto total = [&paper](const QString &name, const QString &text) {
        if (!text.isEmpty())
            paper.totals.append({name, text});
    };
    total(QStringLiteral("Razem netto"), amountText(amountOf(printed.lines)));
    total(QStringLiteral("Wartość zamówienia"), amountText(printed.total));
    total(nameOf(OrderField::Advance), amountText(printed.advance));
    total(QStringLiteral("Do zapłaty"), amountText(dueOf(printed.total, printed.advance)));
    paper.remarks = printed.remarks;
    return paper;
}

//! `SumColumn` is as exact as quantities are. A sum of money may have more digits than it keeps.
void OrderForm::showSums()
{
    const QList<OrderLine> lines = m_lines->lines();
    m_quantity->setValue(lines.isEmpty() ? kor::null() : QVariant(m_lines->quantity()));
    m_net->setValue(zlotysOf(amountOf(lines)));
}

void OrderForm::showDue()
{
    m_due->setValue(zlotysOf(dueOf(groszeOf(m_total->Value()), groszeOf(m_advance->Value()))));
}

} // namespace orders
