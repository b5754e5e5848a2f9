// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "pages/tablepage.h"

#include "constituents/commandbutton.h"
#include "constituents/errorguard.h"
#include "pages/latebound.h"

#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

#include <algorithm>
#include <utility>

namespace kor {

namespace {

QFormLayout *formLayout(QWidget *parent)
{
    auto *layout = new QFormLayout(parent);
    layout->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    return layout;
}

QAbstractButton *makeButton(const FieldRow &row, QWidget *page)
{
    if (row.kind == FieldKind::Button) {
        auto *button = new QPushButton(row.caption, page);
        button->setAutoDefault(false);
        return button;
    }
    auto *button = new CommandButton(CommandButton::Sign::Dots, page);
    if (!row.entries.isEmpty())
        button->setText(row.entries.first());
    button->setAccessibleName(row.caption);
    button->setToolTip(row.caption);
    return button;
}

} // namespace

TablePage::TablePage(const PageTable &table, QWidget *parent) : PropertyPage(parent), m_table(table)
{
    setObjectName(QString::fromLatin1(table.name));
    setWindowTitle(table.caption);
    formLayout(this);
    for (const FieldRow &row : table.fields)
        makeRow(row);
}

QFormLayout *TablePage::placeOf(const FieldRow &row) const
{
    auto *page = static_cast<QFormLayout *>(layout());
    if (!row.frame)
        return page;
    const QString name = QString::fromLatin1(row.frame);
    if (const auto *frame = findChild<QGroupBox *>(name))
        return static_cast<QFormLayout *>(frame->layout());
    const auto titled = std::find_if(m_table.frames.cbegin(), m_table.frames.cend(),
                                     [&](const FrameRow &frame) { return name == QLatin1String(frame.name); });
    auto *frame = new QGroupBox(titled->title);
    frame->setObjectName(name);
    page->addRow(frame);
    return formLayout(frame);
}

void TablePage::makeRow(const FieldRow &row)
{
    QFormLayout *place = placeOf(row);
    m_fields.push_back(makeField(row, this, [this, &row] { guarded(this, [this, &row] { edited(row); }); }));
    QWidget *widget = m_fields.back() ? m_fields.back()->widget() : makeButton(row, this);
    widget->setObjectName(QString::fromLatin1(row.name));
    if (row.kind == FieldKind::SideButton) {
        auto *line = static_cast<QBoxLayout *>(place->itemAt(place->count() - 1)->layout());
        line->addWidget(widget);
        return;
    }
    auto *line = new QHBoxLayout;
    line->addWidget(widget);
    if (row.kind == FieldKind::Button)
        line->addStretch();
    if (row.label) {
        auto *label = new QLabel(row.caption, this);
        label->setObjectName(QString::fromLatin1(row.label));
        label->setBuddy(widget);
        place->addRow(label, line);
    } else {
        place->addRow(line);
    }
}

PageField &TablePage::field(const FieldRow &row) const
{
    return *m_fields[static_cast<std::size_t>(&row - m_table.fields.data())];
}

PageField &TablePage::field(const char *name) const
{
    return field(*std::find_if(m_table.fields.cbegin(), m_table.fields.cend(),
                               [name](const FieldRow &one) { return qstrcmp(one.name, name) == 0; }));
}

const FieldRow &TablePage::rowOf(const QByteArray &member) const
{
    return *std::find_if(m_table.fields.cbegin(), m_table.fields.cend(),
                         [&](const FieldRow &one) { return member == one.member; });
}

QAbstractButton &TablePage::button(const char *name) const
{
    return *findChild<QAbstractButton *>(QString::fromLatin1(name));
}

void TablePage::onClick(const char *name, std::function<void()> deed)
{
    connect(&button(name), &QAbstractButton::clicked, this, [this, deed = std::move(deed)] { guarded(this, deed); });
}

QVariant TablePage::read(QObject &control, const char *member) { return readMember(control, member); }

void TablePage::write(QObject &control, const char *member, const QVariant &value)
{
    writeProperty(control, member, value);
}

void TablePage::edited(const FieldRow &row)
{
    if (row.marks == FieldRow::Marks::Yes)
        markChanged();
}

void TablePage::showMember(QObject &control, const FieldRow &row)
{
    const QPointer<TablePage> self = this;
    const QVariant value = read(control, row.member);
    if (self)
        field(row).show(value);
}

TablePage::Writing TablePage::writing(QObject *control, const FieldRow &row) const
{
    return {control, row.member, field(row).value()};
}

void TablePage::writeAll(const std::vector<Writing> &all)
{
    const QPointer<TablePage> self = this;
    for (const Writing &one : all) {
        if (one.control)
            write(*one.control, one.member, one.value);
        if (!self)
            return;
    }
}

void TablePage::readControls()
{
    const QPointer<TablePage> self = this;
    for (const QByteArray &member : m_table.reads) {
        QObject *control = self ? firstControl() : nullptr;
        if (!control)
            return;
        showMember(*control, rowOf(member));
    }
}

void TablePage::writeControls()
{
    std::vector<Writing> all;
    const auto note = [&](QObject *control, const QByteArrayList &members) {
        for (const QByteArray &member : members)
            all.push_back(writing(control, rowOf(member)));
    };
    if (QObject *first = firstControl())
        note(first, m_table.writes);
    for (QObject *control : SelectedControls())
        note(control, m_table.writesToAll);
    writeAll(all);
}

} // namespace kor
