// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "pages/pagefield.h"

#include "constituents/combobox.h"
#include "constituents/heldevents.h"
#include "constituents/textbox.h"
#include "pages/fieldrow.h"
#include "pages/lookfield.h"

#include <KorDaoUC/convert.h>
#include <KorDaoUC/runtimeerror.h>
#include <KorDaoUC/variant.h>

#include <QtWidgets/QCheckBox>

#include <utility>

namespace kor {

namespace {

class TextField final : public PageField
{
public:
    TextField(QWidget *page, const std::function<void()> &edited) : m_box(new TextBox(page))
    {
        QObject::connect(m_box, &TextBox::Change, page, edited);
    }
    [[nodiscard]] QWidget *widget() const override { return m_box; }
    void show(const QVariant &value) override { m_box->setProgramText(CStr(normalized(value))); }
    [[nodiscard]] QVariant value() const override { return m_box->text(); }

private:
    TextBox *m_box;
};

bool isChecked(FieldKind kind, const QVariant &value)
{
    switch (kind) {
    case FieldKind::CheckBit: return (CLng(value) & 1) != 0;
    case FieldKind::CheckNumber: return (value.typeId() == QMetaType::QString ? Val(CStr(value)) : CDbl(value)) != 0;
    default: return CBool(value);
    }
}

//! A check box that bears to be deleted when it tells of a click.
class CheckBox final : public QCheckBox
{
public:
    CheckBox(const QString &caption, QWidget *page, const std::function<void()> &edited)
        : QCheckBox(caption, page), m_events(this, [this, edited] {
              if (std::exchange(m_isToggled, false))
                  edited();
          })
    {
        connect(this, &QCheckBox::toggled, this, [this] {
            m_isToggled = true;
            m_events.raise();
        });
    }

protected:
    void nextCheckState() override
    {
        m_events.during([this] { QCheckBox::nextCheckState(); });
    }

private:
    bool m_isToggled = false;
    HeldEvents m_events;
};

class CheckField final : public PageField
{
public:
    CheckField(const FieldRow &row, QWidget *page, const std::function<void()> &edited)
        : m_kind(row.kind), m_box(new CheckBox(row.caption, page, edited))
    {
    }
    [[nodiscard]] QWidget *widget() const override { return m_box; }
    void show(const QVariant &value) override { m_box->setChecked(isChecked(m_kind, normalized(value))); }
    [[nodiscard]] QVariant value() const override
    {
        const bool isSet = m_box->isChecked();
        if (m_kind == FieldKind::CheckBit || m_kind == FieldKind::CheckTruth)
            return isSet;
        return QVariant::fromValue(static_cast<short>(isSet));
    }

private:
    FieldKind m_kind;
    QCheckBox *m_box;
};

class ListField final : public PageField
{
public:
    ListField(const FieldRow &row, QWidget *page, const std::function<void()> &edited) : m_box(new ComboBox(page))
    {
        m_box->AddItems(row.entries);
        QObject::connect(m_box, &ComboBox::Click, page, edited);
    }
    [[nodiscard]] QWidget *widget() const override { return m_box; }
    void show(const QVariant &value) override
    {
        const int index = CInt(normalized(value));
        if (index < -1 || index >= m_box->ListCount())
            throw RunTimeError(ErrorNumber::InvalidPropertyValue);
        m_box->setListIndex(index);
    }
    [[nodiscard]] QVariant value() const override { return m_box->ListIndex(); }

private:
    ComboBox *m_box;
};

} // namespace

std::unique_ptr<PageField> makeField(const FieldRow &row, QWidget *page, std::function<void()> edited)
{
    switch (row.kind) {
    case FieldKind::Text: return std::make_unique<TextField>(page, edited);
    case FieldKind::CheckBit:
    case FieldKind::CheckTruth:
    case FieldKind::CheckState:
    case FieldKind::CheckNumber: return std::make_unique<CheckField>(row, page, edited);
    case FieldKind::List: return std::make_unique<ListField>(row, page, edited);
    case FieldKind::Color: return makeColorField(page, std::move(edited));
    case FieldKind::Font: return makeFontField(page, std::move(edited));
    default: return nullptr;
    }
}

} // namespace kor
