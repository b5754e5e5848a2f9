// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "support/fieldsuite.h"

#include <KorDaoUC/KorMultiText>

#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QPlainTextEdit>

namespace kor::test {

//! A text field of several lines on a window, with its button and its editor.
class MultiTextSuite : public FieldSuite<KorMultiText>
{
protected:
    void setUp()
    {
        FieldSuite::setUp("txtText");
        m_button = m_text->findChild<QAbstractButton *>(QStringLiteral("cmdClick"));
    }
    //! The editor, by the button; whether it has the keyboard then.
    [[nodiscard]] bool open()
    {
        if (!m_stage->isVisible() && !m_stage->open())
            return false;
        settle();
        QTest::mouseClick(m_button, Qt::LeftButton);
        settle();
        return popup() && popup()->isVisible() && QApplication::focusWidget() == editor();
    }
    [[nodiscard]] QWidget *popup() const { return m_text->findChild<QWidget *>(QStringLiteral("frmText")); }
    [[nodiscard]] QPlainTextEdit *editor() const
    {
        return m_text->findChild<QPlainTextEdit *>(QStringLiteral("txtMulti"));
    }

    QPointer<KorMultiText> &m_text = m_control;
    QAbstractButton *m_button = nullptr;
};

} // namespace kor::test
