// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "korform/readingprogress.h"

#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QProgressBar>

using namespace korform;

//! What the user sees of a database that takes long to read.
class tst_ReadingProgress : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void whatIsReadAtOnceShowsNothing()
    {
        ReadingProgress progress(QStringLiteral("old.mdb"));
        for (qint64 done = 0; done < 100; ++done)
            QVERIFY(progress.goesOn(QStringLiteral("Orders"), done, 100));
        QVERIFY(!dialog());
    }

    void longReadingIsShownAndGoesOn()
    {
        ReadingProgress progress(QStringLiteral("/home/someone/old.mdb"));
        readUntilShown(progress);
        QCOMPARE(dialog()->windowTitle(), QStringLiteral("old.mdb"));
        QVERIFY(progress.goesOn(QStringLiteral("Order Details"), 600, 1000));
        QCOMPARE(dialog()->findChild<QLabel *>()->text(), QStringLiteral("Order Details: 600 of 1000 rows are read"));
        QVERIFY(dialog()->findChild<QProgressBar *>()->value() > 500);
    }

    void escapeStopsIt()
    {
        ReadingProgress progress(QStringLiteral("old.mdb"));
        readUntilShown(progress);
        QTest::keyClick(dialog(), Qt::Key_Escape);
        QVERIFY(!progress.goesOn(QStringLiteral("Orders"), 700, 1000));
    }

private:
    //! Reading lets no events in but by its questions.
    static void readUntilShown(ReadingProgress &progress)
    {
        constexpr qint64 farTooMany = 500;
        for (qint64 done = 0; !dialog() && done < farTooMany; ++done) {
            QThread::msleep(20);
            QVERIFY(progress.goesOn(QStringLiteral("Orders"), done, 1000));
        }
        QVERIFY(dialog());
    }
    static QWidget *dialog() { return QApplication::activeModalWidget(); }
};

QTEST_MAIN(tst_ReadingProgress)
#include "tst_readingprogress.moc"
