// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include "support/stage.h"

#include <KorDaoUC/ControlRegistry>
#include <KorDaoUC/ErrorHandler>
#include <KorDaoUC/PropertyPage>

#include <QtCore/QPointer>
#include <QtTest/QTest>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

#include <memory>
#include <utility>
#include <vector>

namespace kor::test {

//! A page in a window that has the keyboard, and the errors that no handler took.
class PageStage
{
public:
    explicit PageStage(const char *name) : page(ControlRegistry::createPage(QString::fromLatin1(name), &m_window))
    {
        (new QVBoxLayout(&m_window))->addWidget(page);
        setUnhandledErrorHandler(
            [this](QObject *, const RunTimeError &error) { m_unhandled.push_back(error.number()); });
    }
    ~PageStage() { setUnhandledErrorHandler({}); }

    [[nodiscard]] bool open()
    {
        m_window.show();
        m_window.activateWindow();
        return QTest::qWaitForWindowActive(&m_window);
    }
    template <class Widget>
    [[nodiscard]] Widget *find(const char *name) const
    {
        return page->findChild<Widget *>(QString::fromLatin1(name));
    }
    [[nodiscard]] QLineEdit *box(const char *name) const { return find<QLineEdit>(name); }
    [[nodiscard]] QString text(const char *name) const { return box(name)->text(); }
    [[nodiscard]] bool isChecked(const char *name) const { return find<QCheckBox>(name)->isChecked(); }
    //! Replaces what stands in a field, by the keyboard.
    void type(const char *name, const QString &text) const
    {
        box(name)->setFocus();
        box(name)->selectAll();
        if (text.isEmpty())
            QTest::keyClick(box(name), Qt::Key_Delete);
        QTest::keyClicks(box(name), text);
    }
    void click(const char *name) const
    {
        auto *button = find<QAbstractButton>(name);
        QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(8, button->height() / 2));
    }
    [[nodiscard]] std::vector<int> takeUnhandled() { return std::exchange(m_unhandled, {}); }

    //! Edits each field with the keyboard, and tells those that marked the page changed.
    [[nodiscard]] QStringList marking(const QStringList &fields) const
    {
        QStringList marked;
        for (const QString &field : fields) {
            page->setChanged(false);
            auto *widget = page->findChild<QWidget *>(field);
            widget->setFocus();
            if (qobject_cast<QLineEdit *>(widget))
                QTest::keyClicks(widget, QStringLiteral("7"));
            else
                QTest::keyClick(widget, qobject_cast<QComboBox *>(widget) ? Qt::Key_Down : Qt::Key_Space);
            if (page->Changed())
                marked << field;
        }
        return marked;
    }

private:
    QWidget m_window;
    std::vector<int> m_unhandled;

public:
    QPointer<PropertyPage> page; //!< in the window
};

//! The number of the error that a late-bound call ends with, 0 for none.
inline int errorOfCall(QObject *object, const char *method)
{
    try {
        return QMetaObject::invokeMethod(object, method) ? 0 : -1;
    } catch (const RunTimeError &error) {
        return error.number();
    }
}

} // namespace kor::test
