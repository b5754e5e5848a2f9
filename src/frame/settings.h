// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "frame/settingvalue.h"

#include <KorDaoUC/propertybag.h>
#include <KorDaoUC/savedsetting.h>
#include <KorDaoUC/variant.h>

#include <QtCore/QList>
#include <QtCore/QPointer>
#include <QtCore/QStringList>
#include <QtCore/QVariant>
#include <QtGui/QFont>

#include <algorithm>
#include <functional>
#include <initializer_list>
#include <type_traits>
#include <utility>
#include <vector>

namespace kor {

//! The saved settings of one control: a row for each key, in file order. Writing and reading both walk the table, so
//! they can't drift apart. A repeated key is a repeated row.
template <class Control>
class SettingsTable
{
public:
    struct Row {
        //! A setting with a constant default.
        template <class Getter, class Setter>
        Row(const char *name, Getter getter, Setter setter, const QVariant &defaultValue,
            SettingUse rowUse = SettingUse::ReadAndWrite)
            : key(QString::fromLatin1(name)),
              use(rowUse),
              defaultOf([defaultValue](const Control &) { return defaultValue; }),
              read([getter](const Control &control) { return settingOf(std::invoke(getter, control)); }),
              apply([setter](Control &control, const QVariant &value) { assign(control, setter, value); })
        {
        }

        //! The same setting with a default that is asked of the control, as the ambient font is.
        Row withDefault(std::function<QVariant(const Control &)> asked) const
        {
            Row row = *this;
            row.defaultOf = std::move(asked);
            return row;
        }

        //! The same setting, read after those of a lower rank; all others have rank 0. Within a rank file order holds.
        Row readAt(int rank) const
        {
            Row row = *this;
            row.readRank = rank;
            return row;
        }

        //! Something that happens between two settings while they are read.
        static Row whileReading(std::function<void(Control &)> step)
        {
            Row row;
            row.step = std::move(step);
            return row;
        }

        QString key;
        SettingUse use = SettingUse::ReadAndWrite;
        int readRank = 0;
        std::function<QVariant(const Control &)> defaultOf;
        std::function<QVariant(const Control &)> read;
        std::function<void(Control &, const QVariant &)> apply;
        std::function<void(Control &)> step;

    private:
        Row() = default;

        template <class Object, class Argument, class Result>
        static void assign(Control &control, Result (Object::*setter)(Argument), const QVariant &value)
        {
            (control.*setter)(settingAs<std::remove_cvref_t<Argument>>(value));
        }
        template <class Function>
        static void assign(Control &control, const Function &setter,
                           const QVariant &value) requires std::is_invocable_v<Function, Control &, const QVariant &>
        {
            setter(control, value);
        }
    };

    SettingsTable(std::initializer_list<Row> rows) : m_rows(rows)
    {
        for (const Row &row : m_rows)
            m_readOrder.push_back(&row);
        std::stable_sort(m_readOrder.begin(), m_readOrder.end(),
                         [](const Row *left, const Row *right) { return left->readRank < right->readRank; });
    }
    Q_DISABLE_COPY_MOVE(SettingsTable)

    void write(const Control &control, PropertyBag &bag) const
    {
        for (const Row &row : m_rows) {
            if (!row.step && row.use != SettingUse::ReadOnly)
                bag.WriteProperty(row.key, row.read(control), row.defaultOf(control));
        }
    }

    //! Gives a field of a new control what the setting of this key is by default.
    template <class Value>
    void toDefault(const Control &control, const char *key, Value &field) const
    {
        const auto row = std::find_if(m_rows.begin(), m_rows.end(),
                                      [key](const Row &candidate) { return candidate.key == QLatin1String(key); });
        Q_ASSERT(row != m_rows.end());
        field = settingAs<Value>(row->defaultOf(control));
    }

    //! The rows in file order, as whoever reads about the control wants them.
    [[nodiscard]] QList<SavedSetting> listed(const Control &control) const
    {
        QList<SavedSetting> all;
        for (const Row &row : m_rows) {
            if (!row.step)
                all.append({row.key, row.use, row.defaultOf(control)});
        }
        return all;
    }

    [[nodiscard]] QStringList keys() const
    {
        QStringList all;
        for (const Row &row : m_rows) {
            if (!row.step)
                all.append(row.key);
        }
        return all;
    }

    //! Ends early when a handler of an event that a setting raises has deleted the control.
    void read(Control &control, const PropertyBag &bag) const
    {
        const QPointer<Control> self = &control;
        for (const Row *row : m_readOrder) {
            if (!self)
                return;
            if (row->step)
                row->step(control);
            else if (row->use != SettingUse::WriteOnly)
                takeSetting(row->key,
                            [&] { row->apply(control, bag.ReadProperty(row->key, row->defaultOf(control))); });
        }
    }

private:
    std::vector<Row> m_rows;
    std::vector<const Row *> m_readOrder;
};

//! An Integer, as saved forms hold enumerations.
[[nodiscard]] inline QVariant integer(short value) { return QVariant::fromValue(value); }

//! A getter whose number saved forms hold as an Integer; a Long where that is too small for it.
template <class Control>
[[nodiscard]] auto asInteger(int (Control::*getter)() const)
{
    return [getter](const Control &control) {
        const int value = (control.*getter)();
        const auto narrow = static_cast<short>(value);
        return narrow == value ? integer(narrow) : QVariant(value);
    };
}

//! The row of the font. Its default is the ambient font, and a control that shows it goes on following it.
template <class Control>
[[nodiscard]] typename SettingsTable<Control>::Row fontSetting()
{
    const auto read = [](const Control &control) {
        return QVariant(control.usesAmbientFont() ? control.ambientFont() : control.Font());
    };
    const auto apply = [](Control &control, const QVariant &saved) {
        const auto font = settingAs<QFont>(saved);
        if (font == control.ambientFont())
            control.useAmbientFont();
        else
            control.setFont(font);
    };
    return
        typename SettingsTable<Control>::Row("Font", read, apply, QVariant()).withDefault([](const Control &control) {
            return QVariant(control.ambientFont());
        });
}

} // namespace kor
