// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "support/heard.h"
#include "support/stage.h"

#include <KorDaoUC/ControlRegistry>
#include <KorDaoUC/ErrorHandler>
#include <KorDaoUC/KorCombo>
#include <KorDaoUC/KorGrid>
#include <KorDaoUC/KorNumber>
#include <KorDaoUC/PropertyPage>
#include <KorDaoUC/PropertyPageDialog>

#include <QtCore/QPointer>
#include <QtTest/QtTest>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QTabWidget>

#include <memory>

using namespace kor;
using namespace kor::test;

//! The pages of selected controls, with OK, Cancel and Apply.
class tst_PropertyPageDialog : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        failOnWarnings();
        setUnhandledErrorHandler([this](QObject *, const RunTimeError &error) { m_unhandled << error.number(); });
    }
    void cleanup()
    {
        m_dialog.reset();
        setUnhandledErrorHandler({});
        m_unhandled.clear();
    }

    void controlsOfOneKindHaveTheirPages();
    void controlsOfTwoKindsHaveWhatTheyHaveInCommon();
    void aPageWithoutItsMembersIsClosedAndTellsWhy();
    void theKeyboardBeginsInTheFirstFieldAndEndsAtTheButtons_data();
    void theKeyboardBeginsInTheFirstFieldAndEndsAtTheButtons();
    void everyPageSaysWhatIsOnIt_data();
    void everyPageSaysWhatIsOnIt();
    void applyIsOpenWhileSomethingIsEdited();
    void theButtonsApplyAndClose_data();
    void theButtonsApplyAndClose();
    void onlyEditedPagesAreApplied();
    void aRefusedValueKeepsTheDialogOpenAtItsPage();
    void oneApplyIsOnePairOfCalls();
    void aHandlerMayEndTheDialog();

private:
    void open(const QObjectList &controls)
    {
        m_dialog.reset(new PropertyPageDialog(controls));
        m_dialog->show();
        m_dialog->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
    }
    [[nodiscard]] QPushButton *button(const char *name) const
    {
        return m_dialog->findChild<QPushButton *>(QString::fromLatin1(name));
    }
    [[nodiscard]] QTabWidget *tabs() const { return m_dialog->findChild<QTabWidget *>(QStringLiteral("tabPages")); }
    [[nodiscard]] QString captions() const
    {
        QStringList all;
        for (int tab = 0; tab < tabs()->count(); ++tab)
            all << tabs()->tabText(tab) + (tabs()->isTabEnabled(tab) ? QString() : QStringLiteral("-"));
        return all.join(u' ');
    }
    void type(const char *field, const QString &text) const
    {
        auto *box = m_dialog->findChild<QLineEdit *>(QString::fromLatin1(field));
        box->setFocus();
        box->selectAll();
        QTest::keyClicks(box, text);
    }
    void choose(const char *field, int entry) const
    {
        m_dialog->findChild<QComboBox *>(QString::fromLatin1(field))->setCurrentIndex(entry);
    }

    std::unique_ptr<PropertyPageDialog> m_dialog;
    QList<int> m_unhandled;
};

void tst_PropertyPageDialog::controlsOfOneKindHaveTheirPages()
{
    KorNumber price;
    price.setObjectName(QStringLiteral("numPrice"));
    KorNumber amount;
    open({&price});
    QCOMPARE(captions(), QStringLiteral("Liczba Wygląd"));
    QCOMPARE(m_dialog->windowTitle(), QStringLiteral("Właściwości: numPrice"));
    QCOMPARE(button("cmdOK")->text(), QStringLiteral("OK"));
    QCOMPARE(button("cmdCancel")->text(), QStringLiteral("Anuluj"));
    QCOMPARE(button("cmdApply")->text(), QStringLiteral("Zastosuj"));
    open({&price, &amount});
    QCOMPARE(captions(), QStringLiteral("Liczba Wygląd"));
    QCOMPARE(m_dialog->windowTitle(), QStringLiteral("Właściwości: zaznaczone kontrolki (2)"));
}

void tst_PropertyPageDialog::controlsOfTwoKindsHaveWhatTheyHaveInCommon()
{
    KorNumber number;
    KorCombo combo;
    open({&number, &combo});
    QCOMPARE(captions(), QStringLiteral("Wygląd"));
}

void tst_PropertyPageDialog::aPageWithoutItsMembersIsClosedAndTellsWhy()
{
    KorGrid grid;
    open({&grid});
    QCOMPARE(captions(), QStringLiteral("General- Columns- Wygląd"));
    QVERIFY(tabs()->tabToolTip(0).contains(QStringLiteral("438")));
    QVERIFY(tabs()->tabToolTip(0).contains(QStringLiteral("ReadOnly")));
    QCOMPARE(tabs()->currentIndex(), 2);
    QVERIFY(m_unhandled.isEmpty());
}

void tst_PropertyPageDialog::theKeyboardBeginsInTheFirstFieldAndEndsAtTheButtons_data()
{
    QTest::addColumn<bool>("isGrid");
    QTest::addColumn<QString>("walk");
    QTest::newRow("a page of texts") << false << "chkCheckRange txtMaska txtMinValue txtMaxValue cmdOK cmdCancel";
    QTest::newRow("the third page, as the first two are closed, without the fields that it hides")
        << true << "cmdBackColor cmdForeColor cmdFont cmbBorderStyle cmbBackStyle cmdOK cmdCancel";
}

void tst_PropertyPageDialog::theKeyboardBeginsInTheFirstFieldAndEndsAtTheButtons()
{
    QFETCH(bool, isGrid);
    QFETCH(QString, walk);
    KorNumber number;
    KorGrid grid;
    open({isGrid ? static_cast<QObject *>(&grid) : &number});
    QStringList walked;
    for (qsizetype left = walk.count(u' ') + 1; left > 0; --left) {
        walked << QApplication::focusWidget()->objectName();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    QCOMPARE(walked.join(u' '), walk);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab); // past the tabs
    QCOMPARE(QApplication::focusWidget()->objectName(), walk.section(u' ', 0, 0));
}

void tst_PropertyPageDialog::everyPageSaysWhatIsOnIt_data()
{
    QTest::addColumn<QString>("kind");
    for (const QString &kind : ControlRegistry::names())
        QTest::newRow(qPrintable(kind)) << kind;
}

//! For who hears the designer, or a program that opens the pages.
void tst_PropertyPageDialog::everyPageSaysWhatIsOnIt()
{
    QFETCH(const QString, kind);
    const std::unique_ptr<QWidget> control(ControlRegistry::create(kind));
    open({control.get()});
    for (int tab = 0; tab < tabs()->count(); ++tab) {
        tabs()->setCurrentIndex(tab);
        QCOMPARE(faultsIn(heard(m_dialog.get())), QString());
    }
}

void tst_PropertyPageDialog::applyIsOpenWhileSomethingIsEdited()
{
    KorNumber number;
    open({&number});
    QVERIFY(!button("cmdApply")->isEnabled());
    type("txtMaska", QStringLiteral("0"));
    QVERIFY(button("cmdApply")->isEnabled());
    QTest::mouseClick(button("cmdApply"), Qt::LeftButton);
    QVERIFY(!button("cmdApply")->isEnabled());
    QVERIFY(m_dialog->isVisible());
    QCOMPARE(number.MaskPicture(), QStringLiteral("0"));
}

void tst_PropertyPageDialog::theButtonsApplyAndClose_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("applied");
    QTest::newRow("Enter is OK") << int(Qt::Key_Return) << true;
    QTest::newRow("Escape is Cancel") << int(Qt::Key_Escape) << false;
}

void tst_PropertyPageDialog::theButtonsApplyAndClose()
{
    QFETCH(int, key);
    QFETCH(bool, applied);
    KorNumber number;
    open({&number});
    type("txtMaska", QStringLiteral("0"));
    QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(key));
    QTRY_VERIFY(!m_dialog->isVisible());
    QCOMPARE(number.MaskPicture(), applied ? QStringLiteral("0") : QStringLiteral("#,##0.00"));
    QCOMPARE(m_dialog->result(), applied ? int(QDialog::Accepted) : int(QDialog::Rejected));
}

void tst_PropertyPageDialog::onlyEditedPagesAreApplied()
{
    KorNumber number;
    open({&number});
    number.setMaskPicture(QStringLiteral("0.0000")); // meanwhile, by the program
    choose("cmbAlignment", 0);
    QTest::mouseClick(button("cmdOK"), Qt::LeftButton);
    QCOMPARE(number.Alignment(), AlignmentType::Left_Justify);
    QCOMPARE(number.MaskPicture(), QStringLiteral("0.0000"));
}

void tst_PropertyPageDialog::aRefusedValueKeepsTheDialogOpenAtItsPage()
{
    KorNumber number;
    open({&number});
    type("txtMinValue", QStringLiteral("abc"));
    tabs()->setCurrentIndex(1);
    choose("cmbAlignment", 0);
    QTest::mouseClick(button("cmdOK"), Qt::LeftButton);
    QCOMPARE(m_unhandled, QList<int>{13});
    QVERIFY(m_dialog->isVisible());
    QCOMPARE(tabs()->currentIndex(), 0);
    QVERIFY(button("cmdApply")->isEnabled());
    QCOMPARE(number.Alignment(), AlignmentType::Right_Justify);
    // Where a handler takes the error, the host's is left alone
    connect(m_dialog->pages().first(), &PropertyPage::Error, this,
            [](int &, QString &, bool &Handled) { Handled = true; });
    QTest::mouseClick(button("cmdApply"), Qt::LeftButton);
    QCOMPARE(m_unhandled, QList<int>{13});
    type("txtMinValue", QStringLiteral("1"));
    QTest::mouseClick(button("cmdOK"), Qt::LeftButton);
    QVERIFY(!m_dialog->isVisible());
    QCOMPARE(number.Alignment(), AlignmentType::Left_Justify);
    QCOMPARE(number.MinValue(), QVariant(1.0F));
}

void tst_PropertyPageDialog::oneApplyIsOnePairOfCalls()
{
    class Writer final : public PropertyWriter
    {
    public:
        void write(QObject &, const QString &property, const QVariant &) override { lines << property; }
        void beginApply() override
        {
            if (depth++ == 0)
                lines << QStringLiteral("begin");
        }
        void endApply() noexcept override
        {
            if (--depth == 0)
                lines << QStringLiteral("end");
        }
        QStringList lines;
        int depth = 0;
    } writer;
    KorNumber number;
    open({&number});
    m_dialog->setWriter(&writer);
    type("txtMaska", QStringLiteral("0"));
    choose("cmbAlignment", 0);
    QTest::mouseClick(button("cmdApply"), Qt::LeftButton);
    QCOMPARE(writer.lines.join(u' '), QStringLiteral("begin CheckRange MaskPicture MinValue MaxValue Alignment end"));
    QCOMPARE(number.MaskPicture(), QStringLiteral("#,##0.00"));
    QTest::mouseClick(button("cmdOK"), Qt::LeftButton);
    m_dialog->setWriter(nullptr);
}

void tst_PropertyPageDialog::aHandlerMayEndTheDialog()
{
    for (const bool fails : {false, true}) {
        KorNumber number;
        open({&number});
        type("txtMaska", QStringLiteral("0"));
        connect(&number, &UserControl::PropertyChanged, this, [&] {
            m_dialog.reset();
            if (fails)
                throw RunTimeError(ErrorNumber::InvalidPropertyValue);
        });
        m_dialog->apply();
        QVERIFY(!m_dialog);
        QCOMPARE(m_unhandled, fails ? QList<int>{380} : QList<int>{});
    }
}

QTEST_MAIN(tst_PropertyPageDialog)

#include "tst_propertypagedialog.moc"
