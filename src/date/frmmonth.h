// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "constituents/popupform.h"

#include <KorDaoUC/locale.h>

#include <QtCore/QPointer>

namespace kor {

class MonthView;

//! The small window with a month calendar that writes the chosen day into a field.
//!
//! Moving through the calendar writes each day; Enter, Space and a double click write it and close; Escape, Tab and F4
//! close and write nothing more. A field whose "Locked" is True is never written to.
class frmMonth final : public PopupForm // NOLINT(readability-identifier-naming): the name by which hosts find it
{
    Q_OBJECT
    Q_PROPERTY(QObject *ParentControl READ ParentControl WRITE setParentControl DESIGNABLE false STORED false)
    Q_PROPERTY(QString DateMask READ DateMask WRITE setDateMask DESIGNABLE false STORED false)
    Q_PROPERTY(QObject *viewMonth READ viewMonthObject DESIGNABLE false STORED false)

public:
    frmMonth(const Locale &locale, QWidget *control);

    //! The field that receives the day, through its property "Text".
    [[nodiscard]] QObject *ParentControl() const { return m_field; }
    void setParentControl(QObject *field) { m_field = field; }
    //! The mask that the day is written with.
    [[nodiscard]] QString DateMask() const { return m_mask; }
    void setDateMask(const QString &mask) { m_mask = mask; }
    [[nodiscard]] MonthView *viewMonth() const { return m_view; }
    [[nodiscard]] QObject *viewMonthObject() const;

    //! The button that opens the window. A click on it while the window is open only closes it.
    void setOpener(QWidget *button) { m_opener = button; }
    //! Shows the window beside its control, wholly on the control's screen.
    void showBesideControl();

    //! Whether any calendar has handed a day back by a deliberate choice since the last call: one flag for the whole
    //! library, cleared by asking.
    [[nodiscard]] static bool takeHandedBack();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    [[nodiscard]] bool isFieldLocked() const;
    void writeDay();
    void handBack();
    void keyDown(int &code);

    const Locale &m_locale;
    QPointer<QObject> m_field;
    QString m_mask;
    MonthView *m_view;
    QPointer<QWidget> m_opener;
};

} // namespace kor
