// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "examples/orderdesk.h"
#include "examples/orderfiles.h"
#include "orders/orderpaper.h"

#include <KorDaoUC/KorGrid>

#include <QtCore/QDir>
#include <QtCore/QProcess>
#include <QtPrintSupport/QPrintDialog>
#include <QtPrintSupport/QPrinter>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QStatusBar>

using namespace orders;
using namespace orders::test;

namespace {

//! What stands on each page of a PDF, read by another program.
QStringList pagesOf(const QString &fileName)
{
    QProcess reader;
    reader.start(QStringLiteral("pdftotext"), {QStringLiteral("-layout"), fileName, QStringLiteral("-")});
    if (!reader.waitForFinished() || reader.exitCode() != 0)
        return {QStringLiteral("pdftotext: ") + reader.errorString()};
    QStringList pages = QString::fromUtf8(reader.readAllStandardOutput()).replace(QChar(0xa0), u' ').split(u'\f');
    pages.removeLast(); // nothing, behind the last one
    return pages;
}

OrderPaper::Line lineOf(int number, const QString &name)
{
    return {QString::number(number), QStringLiteral("T0001"), name,      QStringLiteral("2"),
            QStringLiteral("szt."),  QStringLiteral("1,50"),  QString(), QStringLiteral("3,00")};
}

} // namespace

//! An order on paper, by keyboard.
class tst_OrderPrint : public OrderDesk
{
    Q_OBJECT
private Q_SLOTS:
    void init() { open(); }
    void cleanup() { close(); }

    void theOrderIsOnThePage();
    void theSellerStandsAboveTheOrder();
    void whatIsNotSavedIsMarked();
    void titlesAreRepeatedOnEveryPage();
    void aRowStaysTogether();
    void aRowLongerThanAPageGoesOn();
    void totalsStayTogether();
    void escapeSavesNothing();
    void thePrinterIsAskedFor();

private:
    [[nodiscard]] QString path(const char *name) const { return m_folder->filePath(QString::fromUtf8(name)); }
    [[nodiscard]] QString said() const { return m_window->statusBar()->currentMessage(); }
    //! Does something with the dialog that a key opens.
    template <class Dialog, class Answer>
    void answer(Qt::KeyboardModifiers modifiers, Answer &&work)
    {
        bool isAnswered = false;
        QTimer watch;
        connect(&watch, &QTimer::timeout, this, [&] {
            auto *dialog = qobject_cast<Dialog *>(QApplication::activeModalWidget());
            if (!dialog || !dialog->isActiveWindow())
                return;
            watch.stop();
            isAnswered = true;
            work(*dialog);
        });
        watch.start(5);
        press(Qt::Key_P, modifiers);
        QTRY_VERIFY(isAnswered);
    }
    void printTo(const QString &name)
    {
        answer<QFileDialog>(Qt::ControlModifier, [&](QFileDialog &dialog) {
            auto *edit = dialog.findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
            edit->setText(name);
            QTest::keyClick(edit, Qt::Key_Enter);
        });
    }
    //! Saves a paper and reads it.
    [[nodiscard]] QStringList printed(const OrderPaper &paper) const
    {
        QFile file(path("a.pdf"));
        if (!file.open(QIODevice::WriteOnly) || file.write(orderPdf(paper)) <= 0 || !file.flush())
            return {};
        return pagesOf(path("a.pdf"));
    }
};

void tst_OrderPrint::theOrderIsOnThePage()
{
    const auto order = rows(file(), QStringLiteral("SELECT o.number, c.name, c.city FROM orders o JOIN customers c ON "
                                                   "c.id = o.customer_id ORDER BY o.id LIMIT 1"))
                           .first();
    printTo(path("zamówienie"));
    const QString name = path("zamówienie.pdf");
    QCOMPARE(said(), QStringLiteral("Zapisano plik %1.").arg(name));
    const QStringList pages = pagesOf(name);
    QCOMPARE(pages.size(), 1);
    const QString &page = pages.first();
    auto *grid = part<KorGrid>("grdLines");
    QStringList wanted{QStringLiteral("Zamówienie ") + order.at(0).toString(),
                       order.at(1).toString(),
                       order.at(2).toString(),
                       QStringLiteral("Wartość netto"),
                       QStringLiteral("strona 1 z 1"),
                       date("datOrder")->Text(),
                       part<KorNumber>("numLinesNet")->Text().replace(QChar(0xa0), u' ')};
    for (int row = 1; row < grid->Rows(); ++row) {
        for (const int column : {1, 5, 7}) // symbol, price, amount
            wanted << grid->TextMatrix(row, column).replace(QChar(0xa0), u' ');
    }
    for (const QString &text : wanted)
        QVERIFY2(page.contains(text), qPrintable(text + QStringLiteral(" is not in:\n") + page));
    QVERIFY(!page.contains(QStringLiteral("niezapisane")));
}

void tst_OrderPrint::theSellerStandsAboveTheOrder()
{
    OrderPaper paper = m_window->form().paper();
    paper.seller = {QStringLiteral("Hurtownia „Pod Zegarem”"), QStringLiteral("ul. Rynek 4, 25-303 Kielce")};
    QFile file(path("sprzedawca.pdf"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(orderPdf(paper));
    file.close();
    const QStringList lines = pagesOf(file.fileName()).value(0).split(u'\n', Qt::SkipEmptyParts);
    QVERIFY(lines.size() > 3);
    QCOMPARE(lines.at(0).trimmed(), paper.seller.at(0));
    QCOMPARE(lines.at(1).trimmed(), paper.seller.at(1));
    QCOMPARE(lines.at(2).trimmed(), paper.title);
}

void tst_OrderPrint::whatIsNotSavedIsMarked()
{
    focus("numTotal");
    type(QStringLiteral("77777"));
    printTo(path("a.pdf"));
    const QString page = pagesOf(path("a.pdf")).value(0);
    QVERIFY2(page.contains(QStringLiteral("niezapisane zmiany")), qPrintable(page));
    QVERIFY2(page.contains(QStringLiteral("77 777,00 zł")), qPrintable(page));
    QVERIFY(m_window->form().isChanged()); // printing saves nothing
}

void tst_OrderPrint::titlesAreRepeatedOnEveryPage()
{
    OrderPaper paper;
    paper.title = QStringLiteral("Zamówienie 1");
    for (int number = 1; number <= 150; ++number)
        paper.lines << lineOf(number, QStringLiteral("Pozycja %1.").arg(number));
    const QStringList pages = printed(paper);
    QCOMPARE(pages.size(), 3); // fifty lines and more on each
    int found = 0;
    for (qsizetype page = 0; page < pages.size(); ++page) {
        QCOMPARE(pages.at(page).count(QStringLiteral("Cena netto")), 1);
        QVERIFY(pages.at(page).contains(QStringLiteral("strona %1 z %2").arg(page + 1).arg(pages.size())));
        found += static_cast<int>(pages.at(page).count(QStringLiteral("Pozycja ")));
    }
    QCOMPARE(found, 150);
    QVERIFY(pages.last().contains(QStringLiteral("Pozycja 150.")));
}

void tst_OrderPrint::aRowStaysTogether()
{
    OrderPaper paper;
    paper.title = QStringLiteral("Zamówienie 1");
    for (int number = 1; number <= 60; ++number)
        paper.lines << lineOf(number, QStringLiteral("begin %1\nx\nx\nx\nend %1").arg(number));
    const QStringList pages = printed(paper);
    QVERIFY(pages.size() > 2);
    for (const QString &page : pages)
        QCOMPARE(page.count(QStringLiteral("begin ")), page.count(QStringLiteral("end ")));
}

void tst_OrderPrint::aRowLongerThanAPageGoesOn()
{
    QStringList texts;
    for (int line = 1; line <= 200; ++line)
        texts << QStringLiteral("wers %1.").arg(line);
    OrderPaper paper;
    paper.lines = {lineOf(1, texts.join(u'\n')), lineOf(2, QStringLiteral("ostatnia"))};
    const QStringList pages = printed(paper);
    QVERIFY(pages.size() >= 3);
    QCOMPARE(pages.join(QString()).count(QStringLiteral("wers ")), 200);
    QCOMPARE(pages.join(QString()).count(QStringLiteral("Cena netto")), pages.size());
    QVERIFY(pages.last().contains(QStringLiteral("ostatnia")));
}

void tst_OrderPrint::totalsStayTogether()
{
    OrderPaper paper;
    paper.totals = {{QStringLiteral("Razem netto"), QStringLiteral("1 zł")},
                    {QStringLiteral("Do zapłaty"), QStringLiteral("2 zł")}};
    qsizetype mostPages = 0;
    for (int number = 1; number <= 65; ++number) {
        paper.lines << lineOf(number, QStringLiteral("Pozycja"));
        if (number < 40)
            continue; // one page, for certain
        const QStringList pages = printed(paper);
        QVERIFY(pages.last().contains(QStringLiteral("Razem netto")));
        QVERIFY(pages.last().contains(QStringLiteral("Do zapłaty")));
        QVERIFY(pages.size() >= mostPages);
        mostPages = pages.size();
        if (number == 40)
            QCOMPARE(mostPages, 1);
    }
    QCOMPARE(mostPages, 2);
}

void tst_OrderPrint::escapeSavesNothing()
{
    const QStringList before = QDir(m_folder->path()).entryList(QDir::Files);
    answer<QFileDialog>(Qt::ControlModifier, [](QFileDialog &dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files), before);
    QCOMPARE(said(), QString());
}

void tst_OrderPrint::thePrinterIsAskedFor()
{
    QString fileName;
    answer<QPrintDialog>(Qt::ControlModifier | Qt::ShiftModifier, [&fileName](QPrintDialog &dialog) {
        fileName = dialog.printer()->docName();
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    QCOMPARE(fileName, QStringLiteral("Zamówienie ZAM-2025-0001")); // which is the file's, too, without a printer
    QCOMPARE(said(), QString());
    QVERIFY(m_window->isActiveWindow());
}

QTEST_MAIN(tst_OrderPrint)
#include "tst_orderprint.moc"
