// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "examples/rememberingdesk.h"
#include "orders/preferences.h"
#include "orders/settingsdialog.h"
#include "orders/vatrates.h"
#include "support/contrast.h"

#include <KorDaoUC/KorClick>
#include <KorDaoUC/KorColor>
#include <KorDaoUC/KorCombo>

#include <QtCore/QDir>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QPlainTextEdit>

using namespace orders;
using namespace orders::test;

//! What a clerk sets for the desk: kept, and in force at once.
class tst_OrderSettings : public RememberingDesk
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        open();
        begin();
    }
    void cleanup() { end(); }

    void everyLetterIsUsedOnce();
    void whatIsTypedIsKept();
    void aNewOrderTakesThemAtOnce();
    void whatIsTypedInAnOrderStays();
    void aNewProductTakesTheVat();
    void theSellerIsOnThePaper();
    void unsavedChangesHaveTheirColour_data();
    void unsavedChangesHaveTheirColour();
    void aColourOutsideTheListIsKept();
    void filesAreOfferedInTheFolder();
    void theFolderIsChosenByKeys();
    void asksAboutChanges_data();
    void asksAboutChanges();
    void whatCanBeChosenIsWhatTheTablesTake_data();
    void whatCanBeChosenIsWhatTheTablesTake();
    void nonsenseInTheFileIsDoneWithout_data();
    void nonsenseInTheFileIsDoneWithout();
    void aFileThatCannotBeWrittenIsSaid();

private:
    //! Opens the settings by their key and does something there.
    void inSettings(const std::function<void(QWidget &)> &work)
    {
        inNextDialog(work);
        press(Qt::Key_Comma, Qt::ControlModifier);
        QTRY_VERIFY(m_window->isActiveWindow());
    }
    static void typeInto(QWidget &dialog, const char *name, const QString &text)
    {
        dialog.findChild<QWidget *>(QString::fromLatin1(name))->setFocus(Qt::TabFocusReason);
        kor::test::settle();
        type(text);
    }
    [[nodiscard]] QColor behindTheNumber() const
    {
        return part<QLineEdit>("txtNumber")->grab().toImage().pixelColor(part<QLineEdit>("txtNumber")->width() - 8, 8);
    }
};

void tst_OrderSettings::everyLetterIsUsedOnce()
{
    const SettingsDialog dialog({});
    const QHash<QChar, QStringList> users = lettersOf(dialog);
    for (const QStringList &texts : users)
        QVERIFY2(texts.size() == 1, qPrintable(texts.join(u' ')));
    QCOMPARE(users.size(), 8);
}

void tst_OrderSettings::whatIsTypedIsKept()
{
    inSettings([](QWidget &) {
        type(QStringLiteral("Hurtownia „Łoś”, Łódź"));
        press(Qt::Key_Tab); // to the button of the larger editor
        press(Qt::Key_Tab);
        press(Qt::Key_Home); // cash
        press(Qt::Key_Tab);
        type(QStringLiteral("7"));
        press(Qt::Key_Tab);
        press(Qt::Key_Up); // from 23 to 8 per cent
        press(Qt::Key_Tab);
        press(Qt::Key_Down); // the first colour that has a name
        press(Qt::Key_Return);
    });
    begin();
    Preferences kept;
    inSettings([&kept](QWidget &dialog) {
        kept = qobject_cast<SettingsDialog *>(&dialog)->preferences();
        press(Qt::Key_Escape);
    });
    QCOMPARE(kept.seller, QStringLiteral("Hurtownia „Łoś”, Łódź"));
    QCOMPARE(kept.paymentTerms, QStringLiteral("G"));
    QCOMPARE(kept.deliveryDays, 7);
    QCOMPARE(kept.vat, 8);
    QVERIFY(kept.unsavedColor);
    QCOMPARE(m_clerk->heard(), QString()); // looking changes nothing
}

void tst_OrderSettings::aNewOrderTakesThemAtOnce()
{
    press(Qt::Key_N, Qt::ControlModifier);
    QVERIFY(!m_window->form().order().delivery);
    inSettings([](QWidget &dialog) {
        typeInto(dialog, "cmbTerms", QStringLiteral("g"));
        typeInto(dialog, "spnDays", QStringLiteral("14"));
        press(Qt::Key_S, Qt::ControlModifier); // while the number is being typed
    });
    QCOMPARE(m_window->form().order().paymentTerms, QStringLiteral("G"));
    QCOMPARE(m_window->form().order().delivery, std::optional(QDate(2026, 12, 5)));
    QVERIFY(!m_window->isWindowModified());
}

void tst_OrderSettings::whatIsTypedInAnOrderStays()
{
    press(Qt::Key_N, Qt::ControlModifier);
    focus("txtRemarks");
    type(QStringLiteral("pilne"));
    inSettings([](QWidget &dialog) {
        typeInto(dialog, "spnDays", QStringLiteral("14"));
        press(Qt::Key_Return);
    });
    QCOMPARE(m_window->form().order().remarks, QStringLiteral("pilne"));
    QVERIFY(!m_window->form().order().delivery);
    QVERIFY(m_window->isWindowModified());
    m_clerk->willPress({Qt::Key_N});
    press(Qt::Key_N, Qt::ControlModifier);
    QVERIFY(m_window->form().order().delivery);
}

void tst_OrderSettings::aNewProductTakesTheVat()
{
    inSettings([](QWidget &dialog) {
        typeInto(dialog, "cmbVat", QStringLiteral("5"));
        press(Qt::Key_Return);
    });
    QString vat;
    inNextDialog([&vat](QWidget &dialog) {
        press(Qt::Key_N, Qt::ControlModifier);
        vat = dialog.findChild<KorCombo *>(QStringLiteral("vat"))->Text();
        press(Qt::Key_Escape);
    });
    press(Qt::Key_T, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(vat, QStringLiteral("5 %"));
}

void tst_OrderSettings::theSellerIsOnThePaper()
{
    QVERIFY(m_window->form().paper().seller.isEmpty());
    inSettings([](QWidget &) {
        press(Qt::Key_Tab);
        press(Qt::Key_Space); // the larger editor
        auto *editor = QApplication::activePopupWidget()->findChild<QPlainTextEdit *>();
        QTest::keyClicks(editor, QStringLiteral("Hurtownia"));
        QTest::keyClick(editor, Qt::Key_Return);
        QTest::keyClicks(editor, QStringLiteral("Rynek 4"));
        QTest::keyClick(editor, Qt::Key_F4);
        kor::test::settle();
        press(Qt::Key_Return);
    });
    QCOMPARE(m_window->form().paper().seller, (QStringList{QStringLiteral("Hurtownia"), QStringLiteral("Rynek 4")}));
}

void tst_OrderSettings::unsavedChangesHaveTheirColour_data()
{
    QTest::addColumn<QPalette>("theme");
    QTest::addColumn<int>("color");
    const int yellow = 0x00ffff;
    QTest::newRow("yellow in a light theme") << QApplication::palette() << yellow;
    QTest::newRow("yellow in a dark theme") << kor::test::darkTheme() << yellow;
    QTest::newRow("dark blue") << QApplication::palette() << 0x800000;
    QTest::newRow("red") << QApplication::palette() << 0x0000ff;
    QTest::newRow("grey") << QApplication::palette() << 0x808080;
}

void tst_OrderSettings::unsavedChangesHaveTheirColour()
{
    QFETCH(const QPalette, theme);
    QFETCH(const int, color);
    const QPalette before = QApplication::palette();
    QApplication::setPalette(theme);
    kor::test::settle();
    const QColor plain = behindTheNumber();
    inSettings([color](QWidget &dialog) {
        dialog.findChild<KorColor *>()->setValue(color);
        press(Qt::Key_Return);
    });
    QCOMPARE(behindTheNumber(), plain);
    focus("txtRemarks");
    type(QStringLiteral("x"));
    const QColor behind = behindTheNumber();
    QCOMPARE(behind, QColor(color & 0xff, (color >> 8) & 0xff, color >> 16));
    auto *number = part<QLineEdit>("txtNumber");
    QVERIFY(kor::test::contrastIn(number->grab().toImage(), number->rect().adjusted(4, 4, -4, -4), behind) >= 4.5);
    QVERIFY(!number->accessibleDescription().isEmpty()); // not told by colour alone
    press(Qt::Key_S, Qt::ControlModifier);
    QCOMPARE(behindTheNumber(), plain);
    QCOMPARE(number->accessibleDescription(), QString());
    QApplication::setPalette(before);
    kor::test::settle();
}

//! A colour of one's own, which the list of names does not have.
void tst_OrderSettings::aColourOutsideTheListIsKept()
{
    Preferences preferences;
    preferences.unsavedColor = 0x123456;
    SettingsDialog dialog(preferences);
    QVERIFY(dialog.preferences() == preferences);
    dialog.findChild<KorColor *>()->setValue(0x00ffff);
    QCOMPARE(dialog.preferences().unsavedColor, std::optional(0x00ffff));
}

void tst_OrderSettings::filesAreOfferedInTheFolder()
{
    const QString folder = m_folder->filePath(QStringLiteral("wydruki"));
    QVERIFY(QDir().mkpath(folder));
    inSettings([&folder](QWidget &dialog) {
        dialog.findChild<KorClick *>()->setText(folder);
        press(Qt::Key_Return);
    });
    const auto offered = [] {
        QString seen;
        inNextDialog([&seen](QWidget &dialog) {
            seen = qobject_cast<QFileDialog *>(&dialog)->directory().path();
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
        press(Qt::Key_P, Qt::ControlModifier);
        return seen;
    };
    QCOMPARE(offered(), folder);
    begin(); // on another day
    QCOMPARE(offered(), folder);
    QVERIFY(QDir().rmdir(folder)); // a disk that is no longer there
    QVERIFY(offered() != folder);
}

void tst_OrderSettings::theFolderIsChosenByKeys()
{
    const QString folder = m_folder->filePath(QStringLiteral("wydruki"));
    QVERIFY(QDir().mkpath(folder));
    QString chosen;
    QString cleared;
    inSettings([&](QWidget &dialog) {
        auto *field = dialog.findChild<KorClick *>();
        field->setFocus(Qt::TabFocusReason);
        kor::test::settle();
        auto *look = new QTimer(&dialog);
        connect(look, &QTimer::timeout, look, [look, &folder] {
            auto *chooser = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
            if (!chooser || !chooser->isActiveWindow())
                return;
            look->stop();
            chooser->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"))->setText(folder);
            QTest::keyClick(chooser, Qt::Key_Return);
        });
        look->start(5);
        press(Qt::Key_F4);
        chosen = field->Text();
        press(Qt::Key_Delete);
        cleared = field->Text();
        press(Qt::Key_Return);
    });
    QCOMPARE(chosen, folder);
    QCOMPARE(cleared, QString());
}

void tst_OrderSettings::asksAboutChanges_data()
{
    QTest::addColumn<QList<int>>("answers");
    QTest::addColumn<int>("days");
    QTest::newRow("save") << QList<int>{Qt::Key_Z} << 7;
    QTest::newRow("not saved") << QList<int>{Qt::Key_N} << 0;
    QTest::newRow("stay, then save") << QList<int>{Qt::Key_A, Qt::Key_Z} << 7;
}

void tst_OrderSettings::asksAboutChanges()
{
    QFETCH(const QList<int>, answers);
    QFETCH(const int, days);
    for (const int answer : answers)
        m_clerk->willPress({answer});
    inSettings([&](QWidget &dialog) {
        typeInto(dialog, "spnDays", QStringLiteral("7"));
        for (qsizetype times = 0; times < answers.size(); ++times)
            press(Qt::Key_Escape);
    });
    QVERIFY(m_clerk->heard().startsWith(QStringLiteral("Zapisać zmiany?")));
    QCOMPARE(m_places->preferences().deliveryDays, days);
}

void tst_OrderSettings::whatCanBeChosenIsWhatTheTablesTake_data()
{
    QTest::addColumn<QString>("schema");
    QTest::newRow("of a file") << ":/orders/data/schema.sql";
    QTest::newRow("of a server") << ":/orders/data/schema-server.sql";
}

void tst_OrderSettings::whatCanBeChosenIsWhatTheTablesTake()
{
    QFETCH(const QString, schema);
    QFile file(schema);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString tables = QString::fromUtf8(file.readAll());
    QStringList rates;
    for (const int rate : vatRates())
        rates << QString::number(rate);
    QVERIFY(tables.contains(QStringLiteral("CHECK (vat IN (%1))").arg(rates.join(QStringLiteral(", ")))));
    QVERIFY(tables.contains(QStringLiteral("DEFAULT '%1' CHECK (payment_terms IN ('%2'))")
                                .arg(usualTerms, paymentTerms().join(QStringLiteral("', '")))));
}

void tst_OrderSettings::nonsenseInTheFileIsDoneWithout_data()
{
    QTest::addColumn<QByteArray>("line");
    for (const char *line : {"paymentTerms=P15", "deliveryDays=-1", "deliveryDays=91", "deliveryDays=za tydzień",
                             "vat=22", "vat=", "unsavedColor=16777216", "unsavedColor=czerwony"})
        QTest::newRow(line) << QByteArray(line);
}

void tst_OrderSettings::nonsenseInTheFileIsDoneWithout()
{
    QFETCH(const QByteArray, line);
    const QString name = m_folder->filePath(QStringLiteral("inne.ini"));
    QFile written(name);
    QVERIFY(written.open(QIODevice::WriteOnly));
    written.write("[settings]\n" + line + "\nseller=Moja firma\n");
    written.close();
    const Places places(name);
    Preferences expected;
    expected.seller = QStringLiteral("Moja firma");
    QVERIFY(places.preferences() == expected);
}

void tst_OrderSettings::aFileThatCannotBeWrittenIsSaid()
{
    m_window.reset();
    QVERIFY(QDir(QFileInfo(placesFile()).path()).removeRecursively());
    QFile inTheWay(QFileInfo(placesFile()).path()); // a file where the folder should be
    QVERIFY(inTheWay.open(QIODevice::WriteOnly));
    begin();
    press(Qt::Key_N, Qt::ControlModifier);
    m_clerk->willPress({Qt::Key_Return});
    inSettings([](QWidget &dialog) {
        typeInto(dialog, "spnDays", QStringLiteral("7"));
        press(Qt::Key_Return);
    });
    QVERIFY2(m_clerk->heard().startsWith(QStringLiteral("Ustawień nie udało się zapisać")),
             qPrintable(m_clerk->heard()));
    QVERIFY(m_window->form().order().delivery); // in force all the same
}

QTEST_MAIN(tst_OrderSettings)
#include "tst_ordersettings.moc"
