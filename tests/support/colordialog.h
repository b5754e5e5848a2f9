// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QtCore/QTimer>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QColorDialog>
#include <QtWidgets/QLineEdit>

#include <algorithm>
#include <functional>
#include <utility>

namespace kor::test {

//! Types into the next colour dialog that opens, and remembers the colour it started from.
class DialogUser : public QObject
{
public:
    explicit DialogUser(std::function<void(QColorDialog &)> use) : m_use(std::move(use))
    {
        connect(&m_timer, &QTimer::timeout, this, [this] {
            auto *dialog = qobject_cast<QColorDialog *>(QApplication::activeModalWidget());
            if (!dialog || !dialog->isVisible() || m_isUsed)
                return;
            m_isUsed = true;
            startedFrom = dialog->currentColor();
            m_use(*dialog);
        });
        m_timer.start(10);
    }
    QColor startedFrom;
    [[nodiscard]] bool isUsed() const { return m_isUsed; }

private:
    std::function<void(QColorDialog &)> m_use;
    QTimer m_timer;
    bool m_isUsed = false;
};

//! Chooses a colour by its name as a web page writes it.
inline std::function<void(QColorDialog &)> choose(const char *name)
{
    return [name](QColorDialog &dialog) {
        const auto edits = dialog.findChildren<QLineEdit *>();
        const auto found = std::find_if(edits.cbegin(), edits.cend(), [](const QLineEdit *edit) {
            return edit->text().startsWith(QLatin1Char('#'));
        });
        QLineEdit *edit = *found;
        edit->selectAll();
        QTest::keyClicks(edit, QString::fromLatin1(name));
        QTest::keyClick(&dialog, Qt::Key_Return);
    };
}

} // namespace kor::test
