// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "recordform.h"

#include "columns.h"
#include "fieldvalues.h"
#include "grosze.h"
#include "linetext.h"

#include <KorDaoUC/Database>
#include <KorDaoUC/KorCombo>
#include <KorDaoUC/KorNumber>

#include <QtWidgets/QFormLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>

namespace orders {

namespace {

using Kind = RecordField::Kind;

void setList(KorCombo &list, kor::Database &database, const RecordField &field)
{
    list.setdatabase(&database);
    list.setCanBeNull(true); // a new record takes nothing that nobody has chosen
    list.setNullString(QStringLiteral("(wybierz)"));
    list.setSQL(field.choices);
    list.Refresh();
}

//! A number that may be none.
std::optional<qint64> numberIn(const QVariant &value)
{
    return value.isValid() ? std::optional(value.toLongLong()) : std::nullopt;
}

} // namespace

RecordForm::RecordForm(const RecordTable &table, kor::Database &database, QWidget *parent)
    : QGroupBox(table.one, parent), m_table(table), m_database(database)
{
    constexpr int longest = 40; // characters; longer texts take the room there is
    auto *layout = new QFormLayout(this);
    layout->setLabelAlignment(Qt::AlignRight | Qt::AlignVCenter);
    layout->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    for (const RecordField &field : m_table.fields) {
        const Part part = partFor(field);
        part.widget->setObjectName(field.column);
        if (field.length > 0 && field.length < longest)
            part.widget->setMaximumWidth(fontMetrics().horizontalAdvance(u'0') * (field.length + 4));
        auto *label = new QLabel(field.label);
        label->setBuddy(part.widget);
        layout->addRow(label, part.widget);
        m_parts << part;
    }
    m_unchanged = m_loaded = newRecord(m_table);
}

RecordForm::Part RecordForm::partFor(const RecordField &field)
{
    switch (field.kind) {
    case Kind::Text: return textPart(field);
    case Kind::Amount: return amountPart(field);
    case Kind::Choice: break;
    }
    return choicePart(field);
}

RecordForm::Part RecordForm::textPart(const RecordField &field)
{
    auto *box = new QLineEdit;
    box->setMaxLength(field.length);
    connect(box, &QLineEdit::textChanged, this, &RecordForm::edited);
    const auto read = [box, &field]() -> QVariant {
        const QString text = field.tidied ? field.tidied(box->text()) : box->text().trimmed();
        return text.isEmpty() && field.canBeNull ? QVariant() : QVariant(text);
    };
    const auto show = [box](const QVariant &value) {
        box->setText(value.toString());
        box->setCursorPosition(0); // of a long text its beginning is seen
    };
    return {box, read, show};
}

RecordForm::Part RecordForm::amountPart(const RecordField &field)
{
    auto *box = new KorNumber;
    box->setMaxLength(field.length);
    connect(box, &KorNumber::Change, this, &RecordForm::edited);
    const auto read = [box] { return orNull(groszeOf(box->Value())); };
    const auto show = [box](const QVariant &value) { box->setValue(zlotysOf(numberIn(value))); };
    return {box, read, show};
}

RecordForm::Part RecordForm::choicePart(const RecordField &field)
{
    auto *list = new KorCombo;
    setList(*list, m_database, field);
    m_lists << list;
    connect(list, &KorCombo::Click, this, &RecordForm::edited);
    const auto read = [list] { return orNull(keyIn(list->Value())); };
    return {list, read, [list](const QVariant &value) { list->setValue(valueOf(numberIn(value))); }};
}

void RecordForm::setRecord(const Record &record)
{
    m_loaded = record;
    for (qsizetype at = 0; at < m_parts.size(); ++at)
        m_parts.at(at).show(record.values.at(at));
    m_unchanged = read();
    Q_EMIT edited();
}

Record RecordForm::read() const
{
    Record record{m_loaded.id, {}};
    for (const Part &part : m_parts)
        record.values << part.read();
    return record;
}

Record RecordForm::record() const
{
    Record record = read();
    for (qsizetype at = 0; at < record.values.size(); ++at) {
        if (record.values.at(at) == m_unchanged.values.at(at))
            record.values[at] = m_loaded.values.at(at);
    }
    return record;
}

QString RecordForm::textOf(qsizetype field, const QVariant &value) const
{
    const RecordField &shown = m_table.fields.at(field);
    switch (shown.kind) {
    case Kind::Text: return value.toString();
    case Kind::Amount: return amountText(numberIn(value));
    case Kind::Choice: break;
    }
    KorCombo list;
    setList(list, m_database, shown);
    list.setValue(valueOf(numberIn(value)));
    return list.Text();
}

void RecordForm::focusField(qsizetype field) { m_parts.at(field).widget->setFocus(Qt::TabFocusReason); }

void RecordForm::refreshLists()
{
    for (KorCombo *list : m_lists)
        list->Refresh();
}

} // namespace orders
