// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "support/stage.h"

#include <KorDaoUC/Locale>

#include <QtCore/QPointer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>

#include <memory>

namespace kor::test {

//! What the suites of one control begin each test with: the control on a window, in Poland
//! unless told otherwise, and its box to enter.
template <class Control, class Box = QLineEdit>
class FieldSuite : public QObject
{
protected:
    void setUp(const char *boxName, int width = 160, int height = 26, const Locale &locale = Locale::polish())
    {
        failOnWarnings();
        Locale::setSystemDefault(locale);
        m_stage = std::make_unique<Stage>();
        m_control = m_stage->place(new Control, width, height);
        m_box = m_control->template findChild<Box *>(QString::fromLatin1(boxName));
    }
    void tearDown() { m_stage.reset(); }

    //! Gives the control the keyboard; whether its box has it then.
    [[nodiscard]] bool enter()
    {
        if (!m_stage->open())
            return false;
        m_control->setFocus();
        settle();
        return QApplication::focusWidget() == m_box;
    }

    std::unique_ptr<Stage> m_stage;
    QPointer<Control> m_control; //!< which a test may delete
    QPointer<Box> m_box;
};

} // namespace kor::test
