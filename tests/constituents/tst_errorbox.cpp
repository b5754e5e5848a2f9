// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "support/stage.h"

#include <KorDaoUC/KorNumber>
#include <KorDaoUC/RunTimeError>

#include <QtCore/QTimer>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMessageBox>

using namespace kor;
using namespace kor::test;

//! The box that a clerk sees when an error of the program is handled by nobody.
class tst_ErrorBox : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { QApplication::setApplicationDisplayName(QStringLiteral("Kartoteka zamówień i klientów")); }
    void init()
    {
        failOnWarnings();
        m_stage = std::make_unique<Stage>();
        m_number = m_stage->place(new KorNumber);
        m_number->setObjectName(QStringLiteral("numTotal"));
        QVERIFY(m_stage->open());
        connect(m_number, &KorNumber::Change, this, [] { throw RunTimeError(ErrorNumber::TypeMismatch); });
    }

    void speaksToTheClerkAndKeepsTheErrorFindable()
    {
        show([](const QMessageBox &box) {
            QCOMPARE(box.windowTitle(), QStringLiteral("Błąd programu"));
            QCOMPARE(box.text(), QStringLiteral("Program napotkał nieoczekiwany błąd i nie dokończył ostatniej "
                                                "czynności. Sprawdź zawartość pola, zanim przejdziesz dalej."));
            QCOMPARE(box.informativeText(),
                     QStringLiteral("Jeśli błąd się powtarza, przekaż opiekunowi programu te dane:\n"
                                    "Błąd 13: Type mismatch\nPole: numTotal"));
            QCOMPARE(box.icon(), QMessageBox::Warning);
            QVERIFY(box.textInteractionFlags().testFlag(Qt::TextSelectableByMouse));
        });
    }

    void theTitleFitsTheWindow()
    {
        show([](const QMessageBox &box) {
            // As the window system shows it, with the program's name behind it and room for its buttons.
            const QString title = box.windowTitle() + QStringLiteral(" — ") + QApplication::applicationDisplayName();
            QFont font = box.font();
            font.setBold(true);
            QVERIFY2(box.width() >= QFontMetrics(font).horizontalAdvance(title) + 60, qPrintable(title));
        });
    }

private:
    void show(const std::function<void(const QMessageBox &)> &look)
    {
        bool isSeen = false;
        QTimer watch;
        connect(&watch, &QTimer::timeout, this, [&] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            if (!box)
                return;
            watch.stop();
            isSeen = true;
            look(*box);
            box->accept();
        });
        watch.start(5);
        m_number->setFocus();
        settle();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_1);
        QTRY_VERIFY(isSeen);
    }

    std::unique_ptr<Stage> m_stage;
    KorNumber *m_number = nullptr;
};

QTEST_MAIN(tst_ErrorBox)
#include "tst_errorbox.moc"
