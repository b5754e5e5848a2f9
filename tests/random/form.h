// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "random/cellwatch.h"
#include "random/handlers.h"

#include <QtCore/QPointer>
#include <QtWidgets/QWidget>

#include <memory>
#include <optional>
#include <vector>

namespace kor::test {

//! One of the controls on the form, and what is remembered of it between two steps.
struct Place {
    QString name;
    QPointer<UserControl> control;
    std::unique_ptr<Handlers> handlers;
    std::optional<CellWatch> cells;
    //! Text and value were set apart from each other, as settings and BlockChange allow: no rule ties them any more. Of
    //! a grid: its columns are no longer the ones that it was given.
    bool isLoose = false;
    QString text;
    QVariant value;
    bool isLocked = false;
    bool isTypedInto = false;
    bool isEnteredLocked = false; //!< and was so before the user came in: a lock that comes later holds what was typed

    void remember();
};

//! A form with every control of the library, twice: on the form itself and on a panel.
class Form : public QWidget
{
public:
    Form();
    ~Form() override;

    //! Puts new controls where handlers have deleted the old ones, and brings back what they hid.
    void mend();
    //! Has the keyboard again when what had popped up is gone. This platform leaves a hidden window active.
    void takeActivity();
    [[nodiscard]] std::vector<Place> &places() { return m_places; }
    [[nodiscard]] Place &at(int control);
    //! From now on only controls of this name are at().
    void confineTo(const QString &name) { m_only = name; }
    [[nodiscard]] QWidget *panel() const { return m_panel; }
    [[nodiscard]] MoodyDatabase &database() { return m_database; }

private:
    void fill(std::size_t place);

    QWidget *m_panel;
    MoodyDatabase m_database;
    std::vector<Place> m_places;
    QList<QRect> m_rects; //!< where the controls of one half are
    QString m_only;
};

} // namespace kor::test
