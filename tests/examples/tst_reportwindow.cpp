// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "examples/orderdesk.h"
#include "examples/orderfiles.h"
#include "orders/barchart.h"
#include "orders/reportwindow.h"

#include <KorDaoUC/KorGrid>
#include <KorDaoUC/KorParam>
#include <KorDaoUC/SqlDatabase>

#include <QtWidgets/QProgressDialog>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTableView>

using namespace orders;
using namespace orders::test;

namespace {

enum Parameter { From = 1, To, Customer, Group, Least, Remarks };

} // namespace

//! The report on what was sold, by keyboard alone.
class tst_ReportWindow : public OrderDesk
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    void theMenuOpensIt();
    void allParametersByKeyboard();
    void enterShowsTheReport();
    void thousandsOfOrdersAreGrouped();
    void theGroupIsChosenInItsOwnWindow();
    void theCustomerMayBeAnyoneAgain();
    void aPeriodThatEndsBeforeItBeginsIsSaid();
    void aHalfDateKeepsTheClerkWithOneMessage();
    void aReportWithoutOrdersSaysSo();
    void tabLeavesTheSheetAndComesBack();
    void escapeStopsALongReport();
    void theReportIsPrintedAsPdf();
    void aFileThatCannotBeWrittenStays();

private:
    //! Goes to a parameter by the arrows.
    void goTo(int row)
    {
        while (sheet()->Row() < row)
            press(Qt::Key_Down);
        while (sheet()->Row() > row)
            press(Qt::Key_Up);
        QCOMPARE(sheet()->Row(), row);
    }
    void fill(int row, const QString &text)
    {
        goTo(row);
        press(Qt::Key_A, Qt::ControlModifier);
        type(text);
    }
    //! The first Enter takes the value, the next one is the default button's.
    void show()
    {
        press(Qt::Key_Enter);
        press(Qt::Key_Enter);
    }
    [[nodiscard]] KorParam *sheet() const { return report->findChild<KorParam *>(); }
    [[nodiscard]] KorGrid *grid() const { return report->findChild<KorGrid *>(); }
    [[nodiscard]] QString total() const { return report->findChild<QLabel *>(QStringLiteral("lblTotal"))->text(); }
    [[nodiscard]] QString row(int row) const
    {
        QStringList texts;
        for (int column = 1; column < grid()->Cols(); ++column)
            texts << grid()->TextMatrix(row, column);
        return texts.join(u'|');
    }

    std::unique_ptr<kor::SqlDatabase> database;
    std::unique_ptr<ReportWindow> report;
};

void tst_ReportWindow::init()
{
    open();
    database = std::make_unique<kor::SqlDatabase>(m_store->connection());
    report = std::make_unique<ReportWindow>(*m_store, *database, m_window.get());
    report->open();
    bringUp(*report);
}

void tst_ReportWindow::cleanup()
{
    report.reset();
    database.reset();
    close();
}

void tst_ReportWindow::theMenuOpensIt()
{
    report.reset();
    bringUp(*m_window);
    bool isSeen = false;
    QTimer watch;
    connect(&watch, &QTimer::timeout, this, [&] {
        auto *window = qobject_cast<ReportWindow *>(QApplication::activeModalWidget());
        if (!window || !window->isActiveWindow())
            return;
        isSeen = true;
        watch.stop();
        window->reject();
    });
    watch.start(5);
    press(Qt::Key_F9);
    QTRY_VERIFY(isSeen);
}

void tst_ReportWindow::allParametersByKeyboard()
{
    QTRY_COMPARE(sheet()->Row(), int(From)); // the first value is open and has the keyboard
    fill(From, QStringLiteral("01012025"));
    fill(To, QStringLiteral("31122025"));
    fill(Least, QStringLiteral("1000"));
    fill(Remarks, QStringLiteral("rabat"));
    goTo(Customer);
    type(QStringLiteral("Firma Handlowa E"));
    const ReportQuestion question = report->question();
    QCOMPARE(question.from, QDate(2025, 1, 1));
    QCOMPARE(question.to, QDate(2025, 12, 31));
    QCOMPARE(question.least, 100000);
    QCOMPARE(question.remarks, QStringLiteral("rabat"));
    QCOMPARE(question.customer, 1);
    QCOMPARE(question.group, ReportGroup::Customer);
}

void tst_ReportWindow::enterShowsTheReport()
{
    fill(From, QStringLiteral("01012025"));
    show();
    const auto expected =
        rows(file(), QStringLiteral("SELECT c.name, count(*), sum(o.total) FROM orders o JOIN customers c "
                                    "ON c.id = o.customer_id GROUP BY c.id ORDER BY 3 DESC LIMIT 1"))
            .first();
    const auto all = rows(file(), QStringLiteral("SELECT count(*), sum(total) FROM orders")).first();
    QCOMPARE(grid()->TextMatrix(1, 1), expected.at(0).toString());
    QCOMPARE(grid()->Value(1, 2).toLongLong(), expected.at(1).toLongLong());
    QCOMPARE(qRound64(grid()->Value(1, 3).toDouble() * 100), expected.at(2).toLongLong());
    QVERIFY2(total().contains(amountText(all.at(1).toLongLong())), qPrintable(total()));
    QCOMPARE(report->findChild<BarChart *>()->bars().size(), grid()->Rows() - 1);
    QCOMPARE(sheet()->Row(), int(From)); // and the clerk is where they were
    press(Qt::Key_Down);
    QCOMPARE(sheet()->Row(), int(To));
}

void tst_ReportWindow::thousandsOfOrdersAreGrouped()
{
    change(file(), {QStringLiteral("UPDATE orders SET customer_id = 1")});
    fill(From, QStringLiteral("01012025"));
    show();
    QCOMPARE(grid()->TextMatrix(1, 2), grouped("1 000"));
    QCOMPARE(grid()->Value(1, 2).toLongLong(), 1000);
    QVERIFY2(total().contains(grouped("1 000,")), qPrintable(total()));
}

void tst_ReportWindow::theGroupIsChosenInItsOwnWindow()
{
    fill(From, QStringLiteral("01012026"));
    goTo(Group);
    QTimer watch;
    connect(&watch, &QTimer::timeout, this, [&] {
        QWidget *chooser = QApplication::activeModalWidget();
        if (!chooser || chooser == report.get() || !chooser->isActiveWindow())
            return;
        watch.stop();
        type(QStringLiteral("mies"));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Enter);
    });
    watch.start(5);
    press(Qt::Key_F4);
    QTRY_VERIFY(report->isActiveWindow());
    show();
    QCOMPARE(grid()->TextMatrix(0, 1), QStringLiteral("Miesiąc"));
    QCOMPARE(grid()->TextMatrix(1, 1), QStringLiteral("styczeń 2026"));
    QCOMPARE(report->question().group, ReportGroup::Month);
}

void tst_ReportWindow::theCustomerMayBeAnyoneAgain()
{
    goTo(Customer);
    type(QStringLiteral("Pasieka"));
    QVERIFY(report->question().customer.has_value());
    goTo(Group); // looking at the parameters has closed the editor
    goTo(Customer);
    press(Qt::Key_Home);
    goTo(Group);
    QCOMPARE(report->question().customer, std::nullopt);
}

void tst_ReportWindow::aPeriodThatEndsBeforeItBeginsIsSaid()
{
    fill(From, QStringLiteral("02012026"));
    fill(To, QStringLiteral("01012026"));
    show();
    QCOMPARE(m_clerk->heard(), QStringLiteral("Okres kończy się, zanim się zaczyna."));
    QCOMPARE(grid()->Rows(), 1);
}

void tst_ReportWindow::aHalfDateKeepsTheClerkWithOneMessage()
{
    fill(From, QStringLiteral("99"));
    press(Qt::Key_Enter);
    QVERIFY(!m_clerk->heard().isEmpty());
    QVERIFY2(!m_clerk->heard().contains(u'|'), qPrintable(m_clerk->heard()));
    QCOMPARE(grid()->Rows(), 1);
    QCOMPARE(sheet()->Row(), int(From));
}

void tst_ReportWindow::aReportWithoutOrdersSaysSo()
{
    fill(Remarks, QStringLiteral("takich uwag nie ma"));
    show();
    QCOMPARE(grid()->Rows(), 1);
    QCOMPARE(total(), QStringLiteral("Nie ma takich zamówień."));
    QVERIFY(report->findChild<BarChart *>()->bars().isEmpty());
}

void tst_ReportWindow::tabLeavesTheSheetAndComesBack()
{
    fill(Remarks, QStringLiteral("pilne"));
    press(Qt::Key_Tab);
    QVERIFY(qobject_cast<QPushButton *>(QApplication::focusWidget()));
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(QApplication::focusWidget()->objectName(), QStringLiteral("TxtBox"));
    QCOMPARE(report->question().remarks, QStringLiteral("pilne"));
}

void tst_ReportWindow::escapeStopsALongReport()
{
    change(file(), {QStringLiteral("WITH RECURSIVE i (x) AS (SELECT 1 UNION ALL SELECT x + 1 FROM i WHERE x < 500000) "
                                   "INSERT INTO orders (number, order_date, total, remarks) SELECT "
                                   "printf('ZAM/2026/%07d', x), '2026-07-02', x, 'Żółty nr ' || x FROM i")});
    QTimer watch;
    bool isStopped = false;
    connect(&watch, &QTimer::timeout, this, [&] {
        auto *progress = report->findChild<QProgressDialog *>();
        if (!progress || !progress->isVisible() || isStopped)
            return;
        QTest::keyClick(progress, Qt::Key_Escape);
        isStopped = true;
    });
    watch.start(5);
    fill(Remarks, QStringLiteral("zolty"));
    show();
    QVERIFY(isStopped);
    QCOMPARE(grid()->Rows(), 1);
    QVERIFY(report->isVisible());
    QCOMPARE(report->question().remarks, QStringLiteral("zolty"));
}

void tst_ReportWindow::theReportIsPrintedAsPdf()
{
    fill(From, QStringLiteral("01012025"));
    show();
    const QString name = m_folder->filePath(QStringLiteral("sprzedaż.pdf"));
    QVERIFY(report->savePdf(name));
    QFile pdf(name);
    QVERIFY(pdf.open(QIODevice::ReadOnly));
    const QByteArray bytes = pdf.readAll();
    QVERIFY(bytes.startsWith("%PDF-"));
    QVERIFY(bytes.count("/Type /Page\n") >= 2); // more customers than fit on one
}

void tst_ReportWindow::aFileThatCannotBeWrittenStays()
{
    show();
    QVERIFY(!report->savePdf(m_folder->filePath(QStringLiteral("nie ma/sprzedaż.pdf"))));
    QVERIFY(m_clerk->heard().startsWith(QStringLiteral("Pliku nie udało się zapisać:")));
    QVERIFY(!report->savePdf(QStringLiteral("/dev/full")));
    QVERIFY(!QFileInfo(QStringLiteral("/dev/full")).isFile()); // and the device is still one
}

QTEST_MAIN(tst_ReportWindow)
#include "tst_reportwindow.moc"
