// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "orderform.h"

#include "orderstore.h"
#include "searchdialog.h"
#include "textboxkind.h"

#include <KorDaoUC/Convert>
#include <KorDaoUC/Database>
#include <KorDaoUC/Date>
#include <KorDaoUC/FormFile>
#include <KorDaoUC/Format>
#include <KorDaoUC/KorClick>
#include <KorDaoUC/KorColor>
#include <KorDaoUC/KorCombo>
#include <KorDaoUC/KorDate>
#include <KorDaoUC/KorList>
#include <KorDaoUC/KorListCheck>
#include <KorDaoUC/KorMultiText>
#include <KorDaoUC/KorNumber>
#include <KorDaoUC/KorUpDown>
#include <KorDaoUC/Variant>

#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

#include <cmath>
#include <initializer_list>
#include <stdexcept>

namespace orders {

namespace {

constexpr int noLabel = 1; // the colour of "(domyślny)"

const QString formFile = QStringLiteral(":/orders/forms/frmOrder.frm");

double numberOr0(const QVariant &value) { return kor::isNull(value) ? 0 : kor::CDbl(value); }

qint64 groszeOf(const KorNumber &field) { return std::llround(numberOr0(field.Value()) * 100); }

void setGrosze(KorNumber &field, qint64 grosze) { field.setValue(static_cast<double>(grosze) / 100); }

[[noreturn]] void refuse(const QString &reason)
{
    throw std::runtime_error((formFile + QStringLiteral(": ") + reason).toStdString());
}

//! The date of a field; an invalid one for a text that is none, nothing for an empty field.
std::optional<QDate> dateOf(const KorDate &field)
{
    const QVariant value = field.Value();
    if (!kor::isNull(value))
        return kor::DateValue(value);
    return field.Text().isEmpty() ? std::nullopt : std::optional(QDate());
}

//! Whether the text of a field is not yet read: its value follows when the field is left.
bool isBeingTyped(const KorDate &field) { return field.Text() != kor::Format(field.Value(), field.FormatMask()); }

} // namespace

OrderForm::OrderForm(const OrderStore &store, kor::Database &database, QWidget *parent)
    : QWidget(parent), m_store(store)
{
    const kor::FormResult loaded = kor::FormFile::load(formFile);
    if (!loaded.form)
        refuse(QStringLiteral("%1: %2").arg(loaded.error.line).arg(loaded.error.reason));
    m_builder.addKind(QStringLiteral("TextBox"), textBoxKind());
    if (const std::optional<QString> reason = m_builder.build(*loaded.form, this))
        refuse(*reason);
    setMinimumSize(size());

    m_customer = part<KorCombo>("cmbCustomer");
    m_terms = part<KorCombo>("cmbTerms");
    m_discount = part<KorNumber>("numDiscount");
    m_total = part<KorNumber>("numTotal");
    m_advance = part<KorNumber>("numAdvance");
    m_due = part<KorNumber>("numDue");
    m_number = part<QLineEdit>("txtNumber");
    m_date = part<KorDate>("datOrder");
    m_delivery = part<KorDate>("datDelivery");
    m_address = part<KorClick>("clkAddress");
    m_priority = part<KorUpDown>("spnPriority");
    m_remarks = part<KorMultiText>("txtRemarks");
    m_color = part<KorColor>("clrLabel");
    m_groups = part<KorListCheck>("lstGroups");
    m_products = part<KorList>("lstProducts");
    m_position = part<QLabel>("lblPosition");

    // The range of a spin field is the program's; it is not saved with the form.
    m_priority->setMin(1);
    m_priority->setMax(5);
    for (kor::DictionaryControl *list :
         std::initializer_list<kor::DictionaryControl *>{m_customer, m_groups, m_products})
        list->setdatabase(&database);
    m_customer->Refresh();
    m_groups->Refresh();
    m_groups->setListIndex(-1);
    m_terms->Refresh();
    connectFields();
}

OrderForm::~OrderForm() = default;

template <class Widget>
Widget *OrderForm::part(const char *name) const
{
    auto *found = findChild<Widget *>(QString::fromLatin1(name));
    if (!found)
        refuse(QStringLiteral("%1 is missing").arg(QLatin1String(name)));
    return found;
}

QPushButton *OrderForm::button(const char *name) const { return part<QPushButton>(name); }

void OrderForm::connectFields()
{
    // What is only shown is no stop of the Tab key.
    m_due->setFocusPolicy(Qt::NoFocus);
    m_due->focusProxy()->setFocusPolicy(Qt::ClickFocus);

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
    connect(m_groups, &KorListCheck::ItemCheck, this, [this] { offerCustomers(m_customer->Value()); });
}

void OrderForm::setOrder(const Order &order)
{
    m_shown = order;
    m_number->setText(order.number.isEmpty() ? QStringLiteral("(nowe)") : order.number);
    m_date->setValue(order.date.isValid() ? QVariant(order.date) : kor::null());
    m_delivery->setValue(order.delivery ? QVariant(*order.delivery) : kor::null());
    const QVariant customer = order.customer ? kor::normalized(*order.customer) : kor::null();
    offerCustomers(customer);
    m_customer->setValue(customer);
    m_terms->setValue(order.paymentTerms);
    m_discount->setValue(order.discount);
    setGrosze(*m_total, order.total);
    setGrosze(*m_advance, order.advance);
    m_priority->setText(kor::CStr(order.priority));
    m_remarks->setText(order.remarks);
    m_color->setValue(order.labelColor.value_or(noLabel));
    m_colorAsShown = m_color->Value();
    showAddress();
    showDue();
    showProducts();
    // As the fields give it back: what they round is no change of the clerk's.
    m_unchanged = this->order();
    Q_EMIT edited();
}

Order OrderForm::order() const
{
    Order order = m_shown;
    const QVariant customer = m_customer->Value();
    order.customer = kor::isNull(customer) ? std::nullopt : std::optional<qint64>(kor::CLng(customer));
    order.date = dateOf(*m_date).value_or(QDate());
    order.delivery = dateOf(*m_delivery);
    order.paymentTerms = kor::CStr(m_terms->Value());
    order.discount = numberOr0(m_discount->Value());
    order.total = groszeOf(*m_total);
    order.advance = groszeOf(*m_advance);
    order.priority = m_priority->Value();
    order.remarks = m_remarks->Text();
    order.labelColor = labelColor();
    return order;
}

bool OrderForm::isChanged() const
{
    return order() != m_unchanged || isBeingTyped(*m_date) || isBeingTyped(*m_delivery);
}

void OrderForm::readDates()
{
    for (KorDate *date : {m_date, m_delivery}) {
        if (isBeingTyped(*date))
            date->setText(date->Text());
    }
}

void OrderForm::setPosition(const QString &text) { m_position->setText(text); }

void OrderForm::focusFirstField() { m_customer->setFocus(Qt::OtherFocusReason); }

void OrderForm::focusField(OrderField field)
{
    switch (field) {
    case OrderField::Date: m_date->setFocus(Qt::OtherFocusReason); break;
    case OrderField::Delivery: m_delivery->setFocus(Qt::OtherFocusReason); break;
    case OrderField::Discount: m_discount->setFocus(Qt::OtherFocusReason); break;
    case OrderField::Advance: m_advance->setFocus(Qt::OtherFocusReason); break;
    case OrderField::Total: m_total->setFocus(Qt::OtherFocusReason); break;
    }
}

void OrderForm::showAddress()
{
    const QVariant customer = m_customer->Value();
    QString address;
    try {
        if (!kor::isNull(customer))
            address = m_store.addressOf(kor::CLng(customer));
    } catch (const StoreError &error) {
        address = error.text(); // the order itself can be edited all the same
    }
    m_address->setValue(customer);
    m_address->setText(address);
}

void OrderForm::chooseCustomer()
{
    SearchDialog dialog(customersToSearch(m_store), this);
    if (dialog.exec() != QDialog::Accepted || dialog.chosen() == 0)
        return;
    const QVariant customer = kor::normalized(dialog.chosen());
    offerCustomers(customer);
    m_customer->setValue(customer);
}

void OrderForm::offerCustomers(const QVariant &kept)
{
    QString source = QStringLiteral("SELECT id, name FROM customers");
    QString groups = m_groups->ValueChecked();
    if (!groups.isEmpty()) {
        groups.chop(m_groups->Separator().size()); // there is one behind the last key, too
        source += QStringLiteral(" WHERE group_id IN (%1)").arg(groups);
        if (!kor::isNull(kept))
            source += QStringLiteral(" OR id = %1").arg(kor::CLng(kept));
    }
    source += QStringLiteral(" ORDER BY sort_name");
    if (source == m_customer->SQL())
        return;
    m_customer->setSQL(source);
    m_customer->Refresh();
}

void OrderForm::showProducts()
{
    // The quantity first: a long name may end in dots.
    m_products->setSQL(QStringLiteral("SELECT line, replace(printf('%g', quantity), '.', ',') || ' ' || unit || ' ' || "
                                      "products.name FROM order_lines JOIN products ON products.id = product_id "
                                      "WHERE order_id = ") +
                       QString::number(m_shown.id) + QStringLiteral(" ORDER BY line"));
    m_products->Clear();
    m_products->Refresh();
    if (m_products->HasValues())
        m_products->setListIndex(-1); // it is there to be read
}

std::optional<int> OrderForm::labelColor() const
{
    // A colour that the list does not have can't be shown, and must not be lost for that.
    if (m_color->Value() == m_colorAsShown)
        return m_shown.labelColor;
    return m_color->Value() == noLabel ? std::nullopt : std::optional<int>(m_color->Value());
}

void OrderForm::showDue() { setGrosze(*m_due, groszeOf(*m_total) - groszeOf(*m_advance)); }

} // namespace orders
