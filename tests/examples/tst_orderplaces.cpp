// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "examples/rememberingdesk.h"

#include <KorDaoUC/KorGrid>

#include <QtCore/QDir>
#include <QtGui/QScreen>
#include <QtWidgets/QDialog>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QStatusBar>
#include <QtWidgets/QTableView>

using namespace orders;
using namespace orders::test;

//! The desk's windows from one day to the next.
class tst_OrderPlaces : public RememberingDesk
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        open();
        m_window.reset();
    }
    void cleanup() { end(); }

    void placesOnScreens_data();
    void placesOnScreens();
    void theWindowStandsWhereItStood();
    void aMaximizedWindowIsMaximizedAgain();
    void columnsAreAsWideAsTheyWere();
    void hiddenColumnsStayHidden();
    void aDialogComesBackInItsSize_data();
    void aDialogComesBackInItsSize();
    void aPlaceOutsideTheScreenIsBroughtInside();
    void aBrokenFileIsPutAside_data();
    void aBrokenFileIsPutAside();
    void aFileThatCannotBeWrittenIsSaid();
    void nonsenseInTheFileIsDoneWithout();
    void aWindowThatStaysOpenKeepsNothing();

private:
    [[nodiscard]] QHeaderView *titles() const
    {
        return part<KorGrid>("grdLines")->findChild<QTableView *>(QStringLiteral("grid"))->horizontalHeader();
    }
    [[nodiscard]] QString said() const { return m_window->statusBar()->currentMessage(); }
    void write(const QByteArray &text)
    {
        QVERIFY(QDir().mkpath(QFileInfo(placesFile()).path()));
        QFile file(placesFile());
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
    }
};

void tst_OrderPlaces::placesOnScreens_data()
{
    QTest::addColumn<QRect>("wanted");
    QTest::addColumn<QRect>("place");
    // Two screens side by side, the second one lower.
    // clang-format off
    QTest::newRow("on the first screen")  << QRect(10, 20, 300, 200)     << QRect(10, 20, 300, 200);
    QTest::newRow("on the second screen") << QRect(1100, 300, 300, 200)  << QRect(1100, 300, 300, 200);
    QTest::newRow("mostly on the second") << QRect(900, 300, 300, 200)   << QRect(1000, 300, 300, 200);
    QTest::newRow("a screen that is gone") << QRect(5000, 300, 300, 200) << QRect(700, 300, 300, 200);
    QTest::newRow("above and left")       << QRect(-90, -50, 300, 200)   << QRect(0, 0, 300, 200);
    QTest::newRow("below the edge")       << QRect(10, 790, 300, 200)    << QRect(10, 600, 300, 200);
    QTest::newRow("too large")            << QRect(50, 50, 4000, 3000)   << QRect(0, 0, 1000, 800);
    // clang-format on
}

void tst_OrderPlaces::placesOnScreens()
{
    QFETCH(const QRect, wanted);
    QTEST(placeOnScreens(wanted, {QRect(0, 0, 1000, 800), QRect(1000, 200, 600, 600)}), "place");
    QCOMPARE(placeOnScreens(wanted, {}), wanted);
}

void tst_OrderPlaces::theWindowStandsWhereItStood()
{
    begin();
    QCOMPARE(said(), QString());
    const QRect first = m_window->geometry();
    m_window->setGeometry(2, 31, first.width(), first.height() + 17);
    m_window->close();
    begin();
    QCOMPARE(m_window->geometry(), QRect(2, 31, first.width(), first.height() + 17));
}

void tst_OrderPlaces::columnsAreAsWideAsTheyWere()
{
    begin();
    const int name = titles()->sectionSize(1);
    titles()->resizeSection(1, name - 33);
    const int other = titles()->sectionSize(2);
    m_window->close();
    begin();
    QCOMPARE(titles()->sectionSize(1), name - 33);
    QCOMPARE(titles()->sectionSize(2), other);
    QVERIFY(QSettings(placesFile(), QSettings::IniFormat).contains(QStringLiteral("order/grdLines/Nazwa")));
}

void tst_OrderPlaces::hiddenColumnsStayHidden()
{
    begin();
    m_window->close();
    auto *grid = part<KorGrid>("grdLines");
    int hidden = 0;
    for (int column = 1; column < grid->Cols(); ++column)
        hidden += grid->columnDescription(column).col_width == 0;
    QVERIFY(hidden > 3);
    QSettings(placesFile(), QSettings::IniFormat).setValue(QStringLiteral("order/grdLines/"), 100);
    begin();
    grid = part<KorGrid>("grdLines");
    for (int column = 1; column < grid->Cols(); ++column)
        hidden -= grid->columnDescription(column).col_width == 0;
    QCOMPARE(hidden, 0);
}

void tst_OrderPlaces::aDialogComesBackInItsSize_data()
{
    QTest::addColumn<QKeyCombination>("keys");
    QTest::newRow("search") << (Qt::CTRL | Qt::Key_F);
    QTest::newRow("report") << QKeyCombination(Qt::Key_F9);
    QTest::newRow("customers") << (Qt::CTRL | Qt::SHIFT | Qt::Key_K);
    QTest::newRow("products") << (Qt::CTRL | Qt::SHIFT | Qt::Key_T);
    QTest::newRow("settings") << (Qt::CTRL | Qt::Key_Comma);
}

void tst_OrderPlaces::aDialogComesBackInItsSize()
{
    QFETCH(const QKeyCombination, keys);
    begin();
    QSize seen;
    const auto visit = [&](const std::function<void(QWidget &)> &inside) {
        bool isSeen = false;
        QTimer watch;
        connect(&watch, &QTimer::timeout, this, [&] {
            auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
            if (!dialog || !dialog->isActiveWindow())
                return;
            watch.stop();
            isSeen = true;
            inside(*dialog);
            dialog->reject();
        });
        watch.start(5);
        press(keys.key(), keys.keyboardModifiers());
        QTRY_VERIFY(isSeen);
        QTRY_VERIFY(m_window->isActiveWindow());
    };
    visit([&](QWidget &dialog) {
        dialog.resize(700, dialog.height() + 13); // which the smallest screen has room for
        seen = dialog.size();
    });
    visit([&](QWidget &dialog) { QCOMPARE(dialog.size(), seen); });
}

void tst_OrderPlaces::aPlaceOutsideTheScreenIsBroughtInside()
{
    begin();
    m_window->move(5000, 4000); // a screen that is gone since
    m_window->close();
    begin();
    QVERIFY(m_window->screen()->availableGeometry().contains(m_window->geometry().topLeft()));
}

void tst_OrderPlaces::aMaximizedWindowIsMaximizedAgain()
{
    begin();
    m_window->showMaximized();
    m_window->close();
    begin();
    QVERIFY(m_window->isMaximized());
}

void tst_OrderPlaces::aBrokenFileIsPutAside_data()
{
    QTest::addColumn<QByteArray>("contents");
    QTest::newRow("another program's") << QByteArray("<html>\nthis is no settings file\n</html>\n");
    QTest::newRow("cut off") << QByteArray("[order]\ngeometry=@ByteArray(x)\n[rep");
}

void tst_OrderPlaces::aBrokenFileIsPutAside()
{
    QFETCH(const QByteArray, contents);
    write(contents);
    begin();
    QVERIFY2(said().startsWith(QStringLiteral("Pliku z układem okien i ustawieniami nie da się odczytać; odłożono")),
             qPrintable(said()));
    QFile aside(placesFile() + QStringLiteral(".popsuty"));
    QVERIFY(aside.open(QIODevice::ReadOnly));
    QCOMPARE(aside.readAll(), contents);
    const QRect moved(2, 43, m_window->width(), m_window->height());
    m_window->setGeometry(moved);
    m_window->close();
    begin();
    QCOMPARE(m_window->geometry(), moved);
    QCOMPARE(said(), QString());
}

void tst_OrderPlaces::aFileThatCannotBeWrittenIsSaid()
{
    QFile inTheWay(QFileInfo(placesFile()).path()); // a file where the folder should be
    QVERIFY(inTheWay.open(QIODevice::WriteOnly));
    begin();
    QVERIFY2(said().startsWith(QStringLiteral("Układ okien i ustawienia nie zostaną zapamiętane")), qPrintable(said()));
    m_window->close();
    QVERIFY(!m_window->isVisible());
    begin();
    QVERIFY(m_window->isVisible());
}

void tst_OrderPlaces::nonsenseInTheFileIsDoneWithout()
{
    write(
        "[order]\nplace=@Rect(x\nmaximized=może\ngrdLines\\Nazwa=szeroko\ngrdLines\\Towar=999999\ngrdLines\\J.m.=-5\n");
    begin();
    QVERIFY(m_window->isVisible());
    QVERIFY(titles()->sectionSize(1) > 100);
    QVERIFY(titles()->sectionSize(0) <= 2000);
    QVERIFY(titles()->sectionSize(3) >= 20);
}

void tst_OrderPlaces::aWindowThatStaysOpenKeepsNothing()
{
    begin();
    focus("numTotal");
    type(QStringLiteral("5"));
    m_window->close(); // the question is answered with Escape
    QVERIFY(m_window->isVisible());
    QVERIFY(!QFile::exists(placesFile()));
}

QTEST_MAIN(tst_OrderPlaces)
#include "tst_orderplaces.moc"
