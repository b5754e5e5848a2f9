// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "filterpane.h"

#include "fieldvalues.h"
#include "grosze.h"
#include "orderstore.h"
#include "paymentterms.h"

#include <KorDaoUC/Database>
#include <KorDaoUC/KorCombo>
#include <KorDaoUC/KorDate>
#include <KorDaoUC/KorListCheck>
#include <KorDaoUC/KorNumber>

#include <QtWidgets/QGroupBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

namespace orders {

FilterPane::FilterPane(const OrderStore &store, kor::Database &database, QWidget *parent)
    : QWidget(parent),
      m_store(store),
      m_form(QStringLiteral(":/orders/forms/frmFilter.frm"), this),
      m_from(m_form.part<KorDate>("datFrom")),
      m_to(m_form.part<KorDate>("datTo")),
      m_least(m_form.part<KorNumber>("numLeast")),
      m_most(m_form.part<KorNumber>("numMost")),
      m_text(m_form.part<QLineEdit>("txtText")),
      m_group(m_form.part<KorCombo>("cmbGroup")),
      m_customer(m_form.part<KorCombo>("cmbCustomer")),
      m_terms(m_form.part<KorListCheck>("lstTerms"))
{
    m_group->setdatabase(&database);
    m_customer->setdatabase(&database);
    m_terms->setSQL(termsToChoose());
    m_terms->Refresh();
    m_terms->setListIndex(-1);
    refreshLists();
    setFilter({});
    connect(m_group, &KorCombo::Click, this, &FilterPane::offerCustomers);
    connect(m_form.part<QPushButton>("cmdShow"), &QPushButton::clicked, this, &FilterPane::asked);
    connect(m_form.part<QPushButton>("cmdClear"), &QPushButton::clicked, this, &FilterPane::clearAsked);
}

//! The frame is as wide as the list below it.
void FilterPane::resizeEvent(QResizeEvent *) { m_form.part<QGroupBox>("fraFilter")->resize(size()); }

OrderFilter FilterPane::filter() const
{
    OrderFilter filter;
    filter.from = dateOf(*m_from);
    filter.to = dateOf(*m_to);
    filter.least = groszeOf(m_least->Value());
    filter.most = groszeOf(m_most->Value());
    filter.text = m_text->text().trimmed();
    filter.group = keyIn(m_group->Value());
    filter.customer = keyIn(m_customer->Value());
    filter.terms = m_terms->ValueChecked().split(m_terms->Separator(), Qt::SkipEmptyParts);
    return filter;
}

void FilterPane::setFilter(const OrderFilter &filter)
{
    m_from->setValue(valueOf(filter.from));
    m_to->setValue(valueOf(filter.to));
    m_least->setValue(zlotysOf(filter.least));
    m_most->setValue(zlotysOf(filter.most));
    m_text->setText(filter.text);
    m_group->setValue(valueOf(filter.group));
    offerCustomers();
    m_customer->setValue(valueOf(filter.customer));
    QString terms;
    for (const QString &code : filter.terms)
        terms += code + m_terms->Separator(); // there is one behind the last key, too
    m_terms->setValueChecked(terms);
}

QStringList FilterPane::texts() const
{
    const OrderFilter filter = this->filter();
    QStringList texts;
    const auto add = [&texts](bool isLimit, const QString &name, const QString &text) {
        if (isLimit)
            texts << name + QStringLiteral(": ") + text;
    };
    add(filter.from.has_value(), QStringLiteral("Data od"), m_from->Text());
    add(filter.to.has_value(), QStringLiteral("Data do"), m_to->Text());
    add(filter.least.has_value(), QStringLiteral("Wartość od"), m_least->Text());
    add(filter.most.has_value(), QStringLiteral("Wartość do"), m_most->Text());
    add(!filter.text.isEmpty(), QStringLiteral("Tekst"), filter.text);
    add(filter.group.has_value(), QStringLiteral("Grupa"), m_group->Text());
    add(filter.customer.has_value(), QStringLiteral("Klient"), m_customer->Text());
    QStringList terms;
    for (const QString &code : filter.terms)
        terms << nameOfTerms(code);
    add(!terms.isEmpty(), QStringLiteral("Płatność"), terms.join(QStringLiteral(", ")));
    return texts;
}

void FilterPane::focusField(FilterField field) { widgetOf(field)->setFocus(Qt::TabFocusReason); }

QWidget *FilterPane::widgetOf(FilterField field) const
{
    switch (field) {
    case FilterField::From: return m_from;
    case FilterField::To: return m_to;
    case FilterField::Least: return m_least;
    case FilterField::Most: return m_most;
    case FilterField::Text: return m_text;
    case FilterField::Group: return m_group;
    case FilterField::Customer: return m_customer;
    case FilterField::Terms: break;
    }
    return m_terms;
}

void FilterPane::refreshLists()
{
    if (!m_store.isAwake())
        return;
    m_group->Refresh();
    m_customer->Refresh();
}

//! The customers of the chosen group. One who is not among them is chosen no longer.
void FilterPane::offerCustomers()
{
    QString source = QStringLiteral("SELECT id, name FROM customers");
    if (const auto group = keyIn(m_group->Value()))
        source += QStringLiteral(" WHERE group_id = %1").arg(*group);
    source += QStringLiteral(" ORDER BY sort_name");
    if (source == m_customer->SQL() || !m_store.isAwake())
        return;
    m_customer->setSQL(source);
    m_customer->Refresh();
}

} // namespace orders
