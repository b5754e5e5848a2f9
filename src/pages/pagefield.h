// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QVariant>

#include <functional>
#include <memory>

class QWidget;

namespace kor {

struct FieldRow;

//! A field of a page, as the page sees it.
class PageField
{
public:
    virtual ~PageField() = default;

    [[nodiscard]] virtual QWidget *widget() const = 0;
    //! Shows a member's value. Error 13 for one of the wrong kind, 94 for Null, 380 for an index that is none.
    virtual void show(const QVariant &value) = 0;
    //! What the member becomes.
    [[nodiscard]] virtual QVariant value() const = 0;
};

//! The field of a row, or none for a button. `edited` is called when what it shows has become another, by whomever.
[[nodiscard]] std::unique_ptr<PageField> makeField(const FieldRow &row, QWidget *page, std::function<void()> edited);

} // namespace kor
