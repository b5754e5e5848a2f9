// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "support/colordialog.h"
#include "support/eventlog.h"
#include "support/fieldsuite.h"
#include "support/settings.h"

#include <KorDaoUC/KorColor>
#include <KorDaoUC/PropertyBag>
#include <KorDaoUC/RunTimeError>

#include <QtTest/QtTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QApplication>
#include <QtWidgets/QColorDialog>
#include <QtWidgets/QComboBox>

#include <utility>

using namespace kor;
using namespace kor::test;

namespace {

void cancel(QColorDialog &dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); }

} // namespace

//! The colour field, its list and its dialog, driven by keyboard and mouse.
class tst_KorColor : public FieldSuite<KorColor, QComboBox>
{
    Q_OBJECT
private Q_SLOTS:
    static void initTestCase();
    void init();
    void cleanup() { tearDown(); }

    void aFreshControlShowsBrightRed();
    void valueSelectsTheFirstEntryOfItsColor_data();
    void valueSelectsTheFirstEntryOfItsColor();
    void aColorOutsideTheListSelectsTheLastEntry();
    void clickOnlyWhenTheEntryChanges();
    void changeIsReportedForColorsOfTheList();
    void choosingFromTheListSetsValue();
    void arrowsSelectInTheClosedList();
    void cancellingTheDialogChangesNothing();
    void dialogStartsFromTheColorLastSet();
    void aListColorFromTheDialogIsSelected();
    void anotherColorShowsThePreviousOneUntilSelectedAgain();
    void anotherColorIsSelectedByTheListAndOnceMore();
    void theLastDialogColorIsFoundByValue();
    void afterTheDialogTheListHasTheFocus();
    void f6OpensTheDialogAndThenRaisesKeyDown();
    void f6OpensTheDialogFromTheOpenListToo();
    void anErrorOfAHandlerHoldsNoKeyDownBack();
    void hostHearsKeysOfTheList();
    void mouseEventsComeFromTheSurface();
    void wheelChangesNothingWithoutTheFocus();
    void swatchesAreDrawnInTheList();
    void swatchAndPictureShowTheirColors();
    void theDefaultIsNotTakenForBlack_data();
    void theDefaultIsNotTakenForBlack();
    void systemColorsFollowThePalette();
    void patchesFollowTheFont();
    void aDisabledControlOpensNothing();
    void nothingOpensAtDesignTime();
    void deletionWhileTheDialogIsOpenIsSafe();

private:
    QPointer<KorColor> &m_color = m_control;
    QAbstractButton *m_button = nullptr;
    [[nodiscard]] QWidget *part(const char *name) const
    {
        return m_color->findChild<QWidget *>(QString::fromLatin1(name));
    }
    [[nodiscard]] static QColor middleOf(QWidget *widget)
    {
        return widget->grab().toImage().pixelColor(widget->rect().center() * widget->devicePixelRatioF());
    }
};

void tst_KorColor::initTestCase() { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

void tst_KorColor::init()
{
    setUp("cmbColor", 200);
    m_button = m_color->findChild<QAbstractButton *>(QStringLiteral("cmdColor"));
}

void tst_KorColor::aFreshControlShowsBrightRed()
{
    QCOMPARE(m_box->count(), 18);
    QCOMPARE(m_box->currentText(), QStringLiteral("Jasnoczerwony"));
    QCOMPARE(m_color->Value(), 255);
    QVERIFY(settingsOf(*m_color).isEmpty());
}

void tst_KorColor::valueSelectsTheFirstEntryOfItsColor_data()
{
    QTest::addColumn<int>("color");
    QTest::addColumn<int>("entry");
    // clang-format off
    QTest::newRow("(domyślny)")     << 1        << 0;
    QTest::newRow("Czarny")         << 0        << 1; // as "Inny kolor..." is at first
    QTest::newRow("Niebieski")      << 8388608  << 2;
    QTest::newRow("Zielony")        << 32768    << 3;
    QTest::newRow("Błękitny")       << 8421376  << 4;
    QTest::newRow("Czerwony")       << 128      << 5;
    QTest::newRow("Fioletowy")      << 8388736  << 6;
    QTest::newRow("Brązowy")        << 32896    << 7;
    QTest::newRow("Szary")          << 12632256 << 8;
    QTest::newRow("Ciemnoszary")    << 8421504  << 9;
    QTest::newRow("Jasnoniebieski") << 16711680 << 10;
    QTest::newRow("Jasnozielony")   << 65280    << 11;
    QTest::newRow("Turkusowy")      << 16776960 << 12;
    QTest::newRow("Jasnoczerwony")  << 255      << 13;
    QTest::newRow("Różowy")         << 16711935 << 14;
    QTest::newRow("Żółty")          << 65535    << 15;
    QTest::newRow("Biały")          << 16777215 << 16;
    // clang-format on
}

void tst_KorColor::valueSelectsTheFirstEntryOfItsColor()
{
    QFETCH(int, color);
    EventLog log(m_color);
    m_color->setValue(color);
    QTEST(m_box->currentIndex(), "entry");
    QCOMPARE(m_box->currentText(), QString::fromUtf8(QTest::currentDataTag()));
    QCOMPARE(m_color->Value(), color);
    QCOMPARE(log.take(), color == 255 ? QString() : QStringLiteral("Click"));
}

void tst_KorColor::aColorOutsideTheListSelectsTheLastEntry()
{
    m_color->setValue(0x123456);
    QCOMPARE(m_box->currentText(), QStringLiteral("Inny kolor..."));
    QCOMPARE(m_color->Value(), 0);
}

void tst_KorColor::clickOnlyWhenTheEntryChanges()
{
    EventLog log(m_color);
    m_color->setValue(0);
    QCOMPARE(log.take(), QStringLiteral("Click"));
    m_color->setValue(0);
    QCOMPARE(log.take(), QString());
    m_color->setValue(0x123456);
    QCOMPARE(log.take(), QStringLiteral("Click Click")); // by the list, and once more by the control
    m_color->setValue(0x123457);
    QCOMPARE(log.take(), QStringLiteral("Click"));
}

void tst_KorColor::changeIsReportedForColorsOfTheList()
{
    QStringList reported;
    connect(m_color, &UserControl::PropertyChanged, this, [&](const QString &name) { reported << name; });
    m_color->setValue(255); // selected already
    m_color->setValue(0);
    QCOMPARE(std::exchange(reported, {}), (QStringList{QStringLiteral("Color"), QStringLiteral("Color")}));
    m_color->setValue(0x123456);
    QCOMPARE(reported, QStringList());
}

void tst_KorColor::choosingFromTheListSetsValue()
{
    QVERIFY(enter());
    EventLog log(m_color);
    log.ignore({QStringLiteral("KeyUp"), QStringLiteral("KeyDown"), QStringLiteral("KeyPress")});
    m_box->showPopup();
    settle();
    QTest::keyClick(m_box->view(), Qt::Key_Down);
    QTest::keyClick(m_box->view(), Qt::Key_Down);
    QCOMPARE(log.take(), QString());
    QTest::keyClick(m_box->view(), Qt::Key_Return);
    settle();
    QCOMPARE(log.take(), QStringLiteral("Click"));
    QCOMPARE(m_color->Value(), 65535);
    QCOMPARE(m_box->currentText(), QStringLiteral("Żółty"));
}

void tst_KorColor::arrowsSelectInTheClosedList()
{
    QVERIFY(enter());
    EventLog log(m_color);
    QTest::keyClick(m_box, Qt::Key_Up);
    QCOMPARE(log.take(), QStringLiteral("KeyDown(38,0) Click KeyUp(38,0)"));
    QCOMPARE(m_color->Value(), 16776960);
}

void tst_KorColor::cancellingTheDialogChangesNothing()
{
    QVERIFY(enter());
    m_color->setValue(255);
    EventLog log(m_color);
    DialogUser user(&cancel);
    QTest::mouseClick(m_button, Qt::LeftButton);
    QVERIFY(user.isUsed());
    QCOMPARE(m_color->Value(), 255);
    QCOMPARE(log.take(), QString());
    m_color->setValue(0x123456); // still unknown
    QCOMPARE(m_color->Value(), 0);
}

void tst_KorColor::dialogStartsFromTheColorLastSet()
{
    QVERIFY(enter());
    m_color->setValue(0x123456);
    m_box->setCurrentIndex(3); // a choice in the list is not where the dialog starts
    DialogUser user(&cancel);
    QTest::mouseClick(m_button, Qt::LeftButton);
    QCOMPARE(user.startedFrom, QColor(0x56, 0x34, 0x12));
}

void tst_KorColor::aListColorFromTheDialogIsSelected()
{
    QVERIFY(enter());
    EventLog log(m_color);
    DialogUser user(choose("#0000ff"));
    QTest::mouseClick(m_button, Qt::LeftButton);
    QCOMPARE(m_box->currentText(), QStringLiteral("Jasnoniebieski"));
    QCOMPARE(m_color->Value(), 0xFF0000);
    QCOMPARE(log.take(), QStringLiteral("Click"));
}

void tst_KorColor::anotherColorShowsThePreviousOneUntilSelectedAgain()
{
    QVERIFY(enter());
    {
        DialogUser user(choose("#563412"));
        QTest::mouseClick(m_button, Qt::LeftButton);
    }
    QCOMPARE(m_box->currentText(), QStringLiteral("Inny kolor..."));
    QCOMPARE(m_color->Value(), 0); // the colour before this one
    EventLog log(m_color);
    log.ignore({QStringLiteral("KeyUp"), QStringLiteral("KeyDown"), QStringLiteral("KeyPress")});
    m_stage->activateWindow();
    m_box->showPopup();
    settle();
    QTest::keyClick(m_box->view(), Qt::Key_Return);
    settle();
    QCOMPARE(m_color->Value(), 0x123456);
    QCOMPARE(log.take(), QStringLiteral("Click"));
    {
        DialogUser user(choose("#664422"));
        QTest::mouseClick(m_button, Qt::LeftButton);
    }
    QCOMPARE(m_color->Value(), 0x123456);
    m_box->setCurrentIndex(0);
    m_box->setCurrentIndex(17);
    QCOMPARE(m_color->Value(), 0x224466);
}

void tst_KorColor::anotherColorIsSelectedByTheListAndOnceMore()
{
    QVERIFY(enter());
    EventLog log(m_color);
    {
        DialogUser user(choose("#563412"));
        QTest::mouseClick(m_button, Qt::LeftButton);
    }
    QCOMPARE(log.take(), QStringLiteral("Click Click"));
    {
        DialogUser user(choose("#664422"));
        QTest::mouseClick(m_button, Qt::LeftButton);
    }
    QCOMPARE(log.take(), QStringLiteral("Click")); // the entry is selected already
    QCOMPARE(m_color->Value(), 0x123456);
    log.ignore({QStringLiteral("KeyUp"), QStringLiteral("KeyDown"), QStringLiteral("KeyPress")});
    m_stage->activateWindow();
    m_box->showPopup();
    settle();
    QWidget *list = m_box->view()->viewport();
    const QPoint last = m_box->view()->visualRect(m_box->model()->index(17, 0)).center();
    QTest::mouseMove(list, last);
    QTest::qWait(QApplication::doubleClickInterval()); // before that, the click could be the one that opened the list
    QTest::mouseClick(list, Qt::LeftButton, {}, last);
    settle();
    QCOMPARE(m_color->Value(), 0x224466);
    QCOMPARE(log.take(), QStringLiteral("Click"));
}

void tst_KorColor::theLastDialogColorIsFoundByValue()
{
    QVERIFY(enter());
    DialogUser user(choose("#563412"));
    QTest::mouseClick(m_button, Qt::LeftButton);
    m_color->setValue(255);
    m_color->setValue(0x123456);
    QCOMPARE(m_box->currentText(), QStringLiteral("Inny kolor..."));
    QCOMPARE(m_color->Value(), 0x123456);
}

void tst_KorColor::afterTheDialogTheListHasTheFocus()
{
    QVERIFY(enter());
    m_stage->button()->setFocus();
    settle();
    DialogUser user(choose("#0000ff"));
    QTest::mouseClick(m_button, Qt::LeftButton);
    m_stage->activateWindow();
    QTRY_COMPARE(QApplication::focusWidget(), m_box.data());
}

void tst_KorColor::f6OpensTheDialogAndThenRaisesKeyDown()
{
    QVERIFY(enter());
    EventLog log(m_color);
    {
        DialogUser user(choose("#0000ff"));
        QTest::keyPress(m_box, Qt::Key_F6);
        QVERIFY(user.isUsed());
    }
    QCOMPARE(log.take(), QStringLiteral("Click KeyDown(117,0)"));
    DialogUser user(&cancel);
    QTest::keyPress(m_box, Qt::Key_F6, Qt::ShiftModifier);
    QVERIFY(user.isUsed());
    QCOMPARE(log.take(), QStringLiteral("KeyDown(117,1)"));
}

void tst_KorColor::f6OpensTheDialogFromTheOpenListToo()
{
    QVERIFY(enter());
    m_box->showPopup();
    settle();
    EventLog log(m_color);
    DialogUser user(choose("#0000ff"));
    QTest::keyPress(m_box->view(), Qt::Key_F6);
    QVERIFY(user.isUsed());
    QVERIFY(!m_box->view()->isVisible());
    QCOMPARE(m_color->Value(), 0xFF0000);
    QCOMPARE(log.take(), QStringLiteral("Click KeyDown(117,0)"));
}

void tst_KorColor::anErrorOfAHandlerHoldsNoKeyDownBack()
{
    QVERIFY(enter());
    QStringList log;
    connect(m_color, &KorColor::Click, this, [] { throw RunTimeError(ErrorNumber::TypeMismatch); });
    connect(m_color, &UserControl::Error, this, [&](int &number, const QString &, bool &handled) {
        log << QStringLiteral("Error %1").arg(number);
        handled = true;
    });
    connect(m_color, &KorColor::KeyDown, this, [&](int &code) { log << QStringLiteral("KeyDown %1").arg(code); });
    DialogUser user(choose("#0000ff"));
    QTest::keyPress(m_box, Qt::Key_F6);
    QCOMPARE(log, (QStringList{QStringLiteral("Error 13"), QStringLiteral("KeyDown 117")}));
    QCOMPARE(m_color->Value(), 0xFF0000);
}

void tst_KorColor::hostHearsKeysOfTheList()
{
    QVERIFY(enter());
    EventLog log(m_color);
    QTest::keyClick(m_box, Qt::Key_B);
    QVERIFY(log.take().startsWith(QStringLiteral("KeyDown(66,0) KeyPress(98) Click KeyUp(66,0)")));
    connect(m_color, &KorColor::KeyPress, this, [](int &ascii) { ascii = 0; });
    const int before = m_box->currentIndex();
    QTest::keyClick(m_box, Qt::Key_C);
    QCOMPARE(m_box->currentIndex(), before);
    connect(m_color, &KorColor::KeyDown, this, [](int &code, int &) { code = 0; });
    QTest::keyClick(m_box, Qt::Key_Down);
    QCOMPARE(m_box->currentIndex(), before);
}

void tst_KorColor::mouseEventsComeFromTheSurface()
{
    QVERIFY(enter());
    EventLog log(m_color);
    log.ignore({QStringLiteral("MouseMove")});
    const QPoint at = part("picSwatch")->mapTo(m_stage.get(), QPoint(3, 3));
    QTest::mouseClick(m_stage->windowHandle(), Qt::LeftButton, Qt::ControlModifier, at);
    QCOMPARE(log.take(), QStringLiteral("MouseDown(1,2) MouseUp(1,2)"));
}

void tst_KorColor::wheelChangesNothingWithoutTheFocus()
{
    QVERIFY(m_stage->open());
    m_stage->button()->setFocus();
    settle();
    const QPointF at = m_box->rect().center();
    const auto turn = [&] {
        QWheelEvent wheel(at, m_box->mapToGlobal(at), {}, QPoint(0, 120), Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(m_box, &wheel);
    };
    turn();
    QCOMPARE(m_color->Value(), 255);
    m_box->setFocus();
    settle();
    turn();
    QCOMPARE(m_color->Value(), 16776960);
}

void tst_KorColor::swatchesAreDrawnInTheList()
{
    QVERIFY(enter());
    {
        DialogUser user(choose("#563412"));
        QTest::mouseClick(m_button, Qt::LeftButton);
    }
    m_stage->setStyleSheet(QStringLiteral(
        "QWidget { font-weight: bold }")); // at a change of style the toolkit makes its own delegates anew
    m_stage->activateWindow();
    m_box->showPopup();
    settle();
    QAbstractItemView *list = m_box->view();
    const QImage picture = list->viewport()->grab().toImage();
    for (int row = 0; row < m_box->count(); ++row) {
        m_color->setValue(0x123456);
        m_box->setCurrentIndex(row);
        const int value = m_color->Value();
        const QColor color(value & 0xFF, (value >> 8) & 0xFF, value >> 16);
        const QRect place = list->visualRect(list->model()->index(row, 0));
        QVERIFY(list->viewport()->rect().contains(place)); // all of them at a glance
        bool isFound = false;
        for (int x = place.left(); x < place.left() + place.height() && !isFound; ++x)
            isFound = picture.pixelColor(QPoint(x, place.center().y()) * picture.devicePixelRatio()) == color;
        QVERIFY2(isFound, qPrintable(m_box->itemText(row)));
    }
    m_box->hidePopup();
}

void tst_KorColor::swatchAndPictureShowTheirColors()
{
    QVERIFY(m_stage->open());
    m_color->setValue(0xFF0000);
    QCOMPARE(middleOf(part("picSwatch")), QColor(Qt::blue));
    QCOMPARE(middleOf(part("picColor")), QColor(Qt::blue));
    m_color->setValue(0x123456);
    QCOMPARE(middleOf(part("picSwatch")), QColor(Qt::black));
    QCOMPARE(middleOf(part("picColor")), QColor(0x56, 0x34, 0x12));
}

void tst_KorColor::theDefaultIsNotTakenForBlack_data()
{
    QTest::addColumn<QColor>("empty");
    QTest::newRow("light theme") << QColor(Qt::white);
    QTest::newRow("dark theme") << QColor(60, 60, 60);
}

void tst_KorColor::theDefaultIsNotTakenForBlack()
{
    QFETCH(const QColor, empty);
    QPalette palette = m_stage->palette();
    palette.setColor(QPalette::Base, empty);
    m_stage->setPalette(palette);
    QVERIFY(enter());
    const auto corner = [this] {
        QWidget *swatch = part("picSwatch");
        const QImage picture = swatch->grab().toImage();
        return picture.pixelColor(swatch->rect().topLeft() * swatch->devicePixelRatioF() + QPoint(2, 2));
    };
    m_color->setValue(0);
    QCOMPARE(corner(), QColor(Qt::black));
    m_color->setValue(1);
    QCOMPARE(corner(), empty);
    QCOMPARE(middleOf(part("picSwatch")), QColor(1, 0, 0)); // the colour that it is all the same
    m_box->showPopup();
    settle();
    const auto drawn = [list = m_box->view()](int row) {
        const QRect place = list->visualRect(list->model()->index(row, 0));
        return list->viewport()->grab(QRect(place.topLeft(), QSize(place.height() * 3 / 2, place.height()))).toImage();
    };
    m_box->view()->setCurrentIndex({});
    int differing = 0;
    const QImage none = drawn(0);
    const QImage black = drawn(1);
    for (int y = 0; y < none.height(); ++y) {
        for (int x = 0; x < none.width(); ++x)
            differing += qAbs(qGray(none.pixel(x, y)) - qGray(black.pixel(x, y))) > 40 ? 1 : 0;
    }
    QVERIFY2(differing > 10, qPrintable(QString::number(differing)));
    m_box->hidePopup();
}

void tst_KorColor::systemColorsFollowThePalette()
{
    QVERIFY(m_stage->open());
    QPalette palette = m_stage->palette();
    palette.setColor(QPalette::Button, QColor(20, 40, 60));
    m_stage->setPalette(palette);
    QCOMPARE(middleOf(part("picColor")), QColor(20, 40, 60)); // &H8000000F at first
    palette.setColor(QPalette::Button, QColor(200, 40, 60));
    m_stage->setPalette(palette);
    QCOMPARE(middleOf(part("picColor")), QColor(200, 40, 60));
    m_color->setFocus();
    DialogUser user(&cancel);
    QTest::mouseClick(m_button, Qt::LeftButton);
    QCOMPARE(user.startedFrom, QColor(200, 40, 60));
}

void tst_KorColor::patchesFollowTheFont()
{
    QVERIFY(m_stage->open());
    m_color->resize(240, 60);
    const QRect before = part("picSwatch")->geometry();
    QFont font = m_color->Font();
    font.setPointSize(2 * font.pointSize());
    m_color->setFont(font);
    const QRect after = part("picSwatch")->geometry();
    QVERIFY(after.height() > before.height());
    m_color->resize(241, 60);
    QCOMPARE(part("picSwatch")->geometry(), after);
}

void tst_KorColor::aDisabledControlOpensNothing()
{
    QVERIFY(m_stage->open());
    m_color->setEnabled(false);
    DialogUser user(&cancel);
    EventLog log(m_color);
    QTest::mouseClick(m_button, Qt::LeftButton);
    QTest::keyClick(m_box, Qt::Key_F6);
    QVERIFY(!user.isUsed());
    QCOMPARE(log.take(), QString());
}

void tst_KorColor::nothingOpensAtDesignTime()
{
    QVERIFY(enter());
    UserControl::setUserMode(m_stage.get(), false);
    DialogUser user(&cancel);
    EventLog log(m_color);
    QTest::mouseClick(m_button, Qt::LeftButton);
    QTest::keyPress(m_box, Qt::Key_F6);
    QVERIFY(!user.isUsed());
    QCOMPARE(log.take(), QStringLiteral("KeyDown(117,0)"));
}

void tst_KorColor::deletionWhileTheDialogIsOpenIsSafe()
{
    QVERIFY(enter());
    const QPointer<KorColor> control = m_color;
    DialogUser user([&](QColorDialog &) { delete control.data(); });
    QTest::keyPress(m_box, Qt::Key_F6);
    QVERIFY(!control);
}

QTEST_MAIN(tst_KorColor)
#include "tst_korcolor.moc"
