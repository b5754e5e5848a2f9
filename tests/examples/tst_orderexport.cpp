// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "examples/orderdesk.h"
#include "orders/gridfile.h"

#include <KorDaoUC/KorGrid>

#include <QtCore/QDir>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QProgressDialog>
#include <QtWidgets/QStatusBar>

using namespace orders;
using namespace orders::test;

namespace {

QByteArray contents(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(not readable)");
}

} // namespace

//! The lines of an order as a file, by keyboard.
class tst_OrderExport : public OrderDesk
{
    Q_OBJECT
private Q_SLOTS:
    void init() { open(); }
    void cleanup() { close(); }

    void linesAreSavedAsCsv();
    void aNameWithoutEndingIsAWorkbook();
    void escapeInTheQuestionSavesNothing();
    void aFolderIsSaidInTheClerksWords();
    void aRefusedCellKeepsTheClerk();
    void escapeStopsALongExport();

private:
    //! Answers the question for a file by a name and Enter; without a name, by Escape.
    void save(const QString &name)
    {
        bool isAnswered = false;
        QTimer watch;
        connect(&watch, &QTimer::timeout, this, [&] {
            auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
            if (!dialog || !dialog->isActiveWindow())
                return;
            watch.stop();
            isAnswered = true;
            if (name.isEmpty()) {
                QTest::keyClick(dialog, Qt::Key_Escape);
                return;
            }
            auto *edit = dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
            edit->setText(name); // as if it were typed; the dialog would complete it
            QTest::keyClick(edit, Qt::Key_Enter);
        });
        watch.start(5);
        press(Qt::Key_F12);
        QTRY_VERIFY(isAnswered);
    }
    [[nodiscard]] QString path(const char *name) const { return m_folder->filePath(QString::fromUtf8(name)); }
    [[nodiscard]] QString said() const { return m_window->statusBar()->currentMessage(); }
};

void tst_OrderExport::linesAreSavedAsCsv()
{
    auto *grid = part<KorGrid>("grdLines");
    save(path("pozycje.csv"));
    QCOMPARE(said(), QStringLiteral("Zapisano plik %1.").arg(path("pozycje.csv")));
    const QStringList lines = QString::fromUtf8(contents(path("pozycje.csv"))).split(QStringLiteral("\r\n"));
    QCOMPARE(lines.size(), grid->Rows() - 1 + 3); // titles, sums, and nothing behind the last break
    QCOMPARE(lines.first(), QStringLiteral("Lp.;Towar;Nazwa;Ilość;J.m.;Cena netto;Dostawa;Wartość netto"));
    const QStringList first = lines.at(1).split(u';');
    QCOMPARE(first.at(0), QStringLiteral("1"));
    QCOMPARE(first.at(1), grid->TextMatrix(1, 1));
    QVERIFY(lines.at(lines.size() - 2).startsWith(QStringLiteral(";;Razem;")));
}

void tst_OrderExport::aNameWithoutEndingIsAWorkbook()
{
    save(path("pozycje"));
    QVERIFY(!QFile::exists(path("pozycje")));
    QVERIFY(contents(path("pozycje.xlsx")).startsWith("PK"));
}

void tst_OrderExport::escapeInTheQuestionSavesNothing()
{
    const QStringList before = QDir(m_folder->path()).entryList(QDir::Files);
    save({});
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files), before);
    QCOMPARE(said(), QString());
    QVERIFY(m_window->isActiveWindow());
}

void tst_OrderExport::aFolderIsSaidInTheClerksWords()
{
    QVERIFY(QDir().mkpath(path("folder.csv")));
    QVERIFY(
        !saveGrid(m_window.get(), *part<KorGrid>("grdLines"), {QStringLiteral("Pozycje"), {}, {}}, path("folder.csv")));
    QCOMPARE(m_clerk->heard(), QStringLiteral("Pliku nie udało się zapisać:\n%1").arg(path("folder.csv")));
    QCOMPARE(m_clerk->explained(), QStringLiteral("Pod tą nazwą jest folder."));
}

void tst_OrderExport::aRefusedCellKeepsTheClerk()
{
    focus("datDelivery");
    press(Qt::Key_A, Qt::ControlModifier);
    type(QStringLiteral("99"));
    press(Qt::Key_F12);
    QVERIFY(!m_clerk->heard().isEmpty());
    QVERIFY(!QApplication::activeModalWidget());
    QCOMPARE(focusName(), QStringLiteral("datDelivery"));
}

void tst_OrderExport::escapeStopsALongExport()
{
    KorGrid grid;
    for (int column = 0; column < 8; ++column)
        grid.AddColumn(QStringLiteral("NUMBER"), QStringLiteral("Liczba"), 1000, 1);
    constexpr int rows = 150000;
    grid.setRows(rows);
    for (int row = 1; row < rows; ++row) {
        for (int column = 1; column <= 8; ++column)
            grid.setTextControl(row, column, QStringLiteral("1 234,50"));
    }
    bool isStopped = false;
    QTimer watch;
    connect(&watch, &QTimer::timeout, this, [&] {
        auto *dialog = m_window->findChild<QProgressDialog *>();
        if (!dialog || !dialog->isVisible() || isStopped)
            return;
        isStopped = true;
        QTest::keyClick(dialog, Qt::Key_Escape);
    });
    watch.start(5);
    QVERIFY(!saveGrid(m_window.get(), grid, {QStringLiteral("Liczby"), {}, {}}, path("liczby.xlsx")));
    QVERIFY(isStopped);
    QVERIFY(!QFile::exists(path("liczby.xlsx")));
    QCOMPARE(m_clerk->heard(), QString());
}

QTEST_MAIN(tst_OrderExport)
#include "tst_orderexport.moc"
