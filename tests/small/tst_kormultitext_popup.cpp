// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "small/multitextsuite.h"
#include "support/heard.h"

#include <KorDaoUC/KorMultiText>

#include <QtGui/QScreen>
#include <QtTest/QtTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QPlainTextEdit>

using namespace kor;
using namespace kor::test;

//! The window of the text editor: when it opens and closes, its size, its place, its looks.
class tst_KorMultiText_PopUp : public MultiTextSuite
{
    Q_OBJECT
private Q_SLOTS:
    void init() { setUp(); }
    void cleanup() { tearDown(); }

    void theEditorIsCreatedAtTheFirstPress();
    void aClickOutsideActsLikeEscape();
    void aSecondClickOnTheButtonOnlyCloses();
    void theButtonPressedByAProgramOnlyCloses();
    void editorIsParentWidthByWindowHeight();
    void sizeIsThatOfTheFirstOpening();
    void noLinesAskForNoHeight();
    void placementAtTheScreensEdges_data();
    void placementAtTheScreensEdges();
    void enabledClickSwitchesTheButton();
    void nothingOpensAtDesignTime();
    void editorFollowsColorsAndFont();
    void screenReadersHearWhatIsEdited();
    void whatToolsWriteIntoTheEditorIsTyped();
    void deletionWhileTheEditorIsOpenIsSafe();
};

void tst_KorMultiText_PopUp::theEditorIsCreatedAtTheFirstPress()
{
    QVERIFY(!popup());
    QVERIFY(open());
    const QPointer<QWidget> first = popup();
    QCOMPARE(first->property("ParentControl").value<QObject *>(), m_text.data());
    QTest::keyClick(editor(), Qt::Key_Escape);
    settle();
    QVERIFY(!first->isVisible());
    QVERIFY(open());
    QCOMPARE(popup(), first.data());
}

void tst_KorMultiText_PopUp::aClickOutsideActsLikeEscape()
{
    QVERIFY(open());
    QTest::keyClicks(editor(), QStringLiteral("nowy"));
    QTest::mouseClick(popup(), Qt::LeftButton, {}, QPoint(-20, -60));
    settle();
    QVERIFY(!popup()->isVisible());
    QCOMPARE(m_text->Text(), QStringLiteral("nowy"));
    QTRY_COMPARE(QApplication::focusWidget(), m_box.data());
}

void tst_KorMultiText_PopUp::aSecondClickOnTheButtonOnlyCloses()
{
    QVERIFY(open());
    // As the window system sends it: to the window under the pointer, while the pop-up is open.
    QTest::mouseClick(m_stage->windowHandle(), Qt::LeftButton, {},
                      m_button->mapTo(m_stage.get(), m_button->rect().center()));
    settle();
    QVERIFY(!popup()->isVisible());
    QTRY_COMPARE(QApplication::focusWidget(), m_box.data());
    QVERIFY(open());
}

void tst_KorMultiText_PopUp::theButtonPressedByAProgramOnlyCloses()
{
    QVERIFY(open());
    QTest::keyClicks(editor(), QStringLiteral("nowy"));
    m_button->click(); // as a screen reader does
    settle();
    QVERIFY(!popup()->isVisible());
    QCOMPARE(m_text->Text(), QStringLiteral("nowy"));
}

void tst_KorMultiText_PopUp::editorIsParentWidthByWindowHeight()
{
    m_text->setOpenLines(7);
    QVERIFY(open());
    QCOMPARE(popup()->size(), QSize(m_text->width(), 7 * m_box->height()));
    const float twipsPerPixel = 1440.0F / static_cast<float>(m_text->logicalDpiX());
    QCOMPARE(popup()->property("ParentWidth").value<float>(), static_cast<float>(m_text->width()) * twipsPerPixel);
    QCOMPARE(popup()->property("WindowHeight").value<float>(), static_cast<float>(7 * m_box->height()) * twipsPerPixel);
    QCOMPARE(editor()->size(), popup()->size());
}

void tst_KorMultiText_PopUp::sizeIsThatOfTheFirstOpening()
{
    QVERIFY(open());
    const QSize size = popup()->size();
    QTest::keyClick(editor(), Qt::Key_Escape);
    m_text->setOpenLines(9);
    m_text->setMaxLength(2);
    m_text->resize(220, 40);
    QVERIFY(open());
    QCOMPARE(popup()->size(), size);
    QTest::keyClicks(editor(), QStringLiteral("12345"));
    QCOMPARE(editor()->toPlainText(), QStringLiteral("12345"));
}

void tst_KorMultiText_PopUp::noLinesAskForNoHeight()
{
    m_text->setOpenLines(0);
    QVERIFY(open());
    QCOMPARE(popup()->property("WindowHeight").value<float>(), 0.0F);
    QVERIFY(popup()->height() <= 1);
    QTest::keyClicks(editor(), QStringLiteral("ok"));
    QTest::keyClick(editor(), Qt::Key_Escape);
    settle();
    QCOMPARE(m_text->Text(), QStringLiteral("ok"));
}

void tst_KorMultiText_PopUp::placementAtTheScreensEdges_data()
{
    QTest::addColumn<QString>("edge");
    for (const char *edge : {"middle", "top", "bottom", "left", "right", "bottom right"})
        QTest::newRow(edge) << QString::fromLatin1(edge);
}

void tst_KorMultiText_PopUp::placementAtTheScreensEdges()
{
    QFETCH(QString, edge);
    m_stage->setWindowFlag(Qt::FramelessWindowHint);
    m_text->setGeometry(0, 0, 160, 26);
    m_stage->setFixedSize(160, 120);
    const QRect screen = m_stage->screen()->geometry();
    QPoint at = screen.center();
    if (edge.contains(QLatin1String("top")))
        at.setY(screen.top());
    if (edge.contains(QLatin1String("bottom"))) {
        at.setY(screen.bottom() + 1 - 120);
        m_text->move(0, 94);
    }
    if (edge.contains(QLatin1String("left")))
        at.setX(screen.left() + 2); // the offscreen platform lets no window come nearer
    if (edge.contains(QLatin1String("right")))
        at.setX(screen.right() + 1 - 160);
    m_stage->move(at);
    QVERIFY(m_stage->open());
    QTRY_COMPARE(m_stage->pos(), at);
    QVERIFY(open());
    const QRect control(m_text->mapToGlobal(QPoint(0, 0)), m_text->size());
    const QRect place = popup()->geometry();
    QVERIFY(screen.contains(place));
    QCOMPARE(place.left(), control.left());
    if (edge.contains(QLatin1String("bottom")))
        QCOMPARE(place.bottom() + 1, control.top());
    else
        QCOMPARE(place.top(), control.bottom() + 1);

    // Now wider than the control, which only a control that has shrunk since the first opening can see.
    QTest::keyClick(editor(), Qt::Key_Escape);
    const bool isAtRight = edge.contains(QLatin1String("right"));
    m_text->setGeometry(isAtRight ? 100 : 0, m_text->y(), 60, 26);
    QVERIFY(open());
    const int left = m_text->mapToGlobal(QPoint(0, 0)).x();
    QCOMPARE(popup()->geometry().x(), isAtRight ? left - (160 - 60) : left);
    QVERIFY(screen.contains(popup()->geometry()));
}

void tst_KorMultiText_PopUp::enabledClickSwitchesTheButton()
{
    m_text->setEnabledClick(false);
    QVERIFY(!m_button->isEnabled());
    QVERIFY(!open());
    QVERIFY(!popup());
    m_text->setEnabledClick(true);
    QVERIFY(open());
}

void tst_KorMultiText_PopUp::nothingOpensAtDesignTime()
{
    UserControl::setUserMode(m_stage.get(), false);
    QVERIFY(!open());
    QVERIFY(!popup());
}

void tst_KorMultiText_PopUp::editorFollowsColorsAndFont()
{
    QFont font = m_text->Font();
    font.setPointSize(17);
    m_text->setFont(font);
    m_text->setBackColor(0x0000FFFF);
    m_text->setForeColor(0x000000FF);
    QVERIFY(open());
    QCOMPARE(editor()->font().pointSize(), 17);
    QCOMPARE(editor()->palette().color(QPalette::Base), QColor(Qt::yellow));
    QCOMPARE(editor()->palette().color(QPalette::Text), QColor(Qt::red));
}

void tst_KorMultiText_PopUp::screenReadersHearWhatIsEdited()
{
    QVERIFY(!m_button->accessibleName().isEmpty());
    m_text->setAccessibleName(QStringLiteral("Uwagi"));
    m_text->setText(QStringLiteral("jeden dwa"));
    QVERIFY(open());
    QCOMPARE(faultsIn(heard(popup())), QString());
    QCOMPARE(heard(popup())->role(), QAccessible::Dialog);
    QAccessibleInterface *text = heard(editor());
    QCOMPARE(text->role(), QAccessible::EditableText);
    QCOMPARE(text->text(QAccessible::Name), QStringLiteral("Uwagi"));
    QCOMPARE(text->text(QAccessible::Value), QStringLiteral("jeden dwa"));
    QVERIFY(text->state().multiLine && text->state().editable && text->state().focused);
    QAccessibleTextInterface *reading = text->textInterface();
    QCOMPARE(reading->text(6, 9), QStringLiteral("dwa"));
    QVERIFY(reading->characterRect(6).left() > reading->characterRect(0).right());
    QCOMPARE(reading->offsetAtPoint(reading->characterRect(6).topLeft() + QPoint(1, 1)), 6);
    reading->setSelection(0, 0, 5);
    QCOMPARE(editor()->textCursor().selectedText(), QStringLiteral("jeden"));
}

void tst_KorMultiText_PopUp::whatToolsWriteIntoTheEditorIsTyped()
{
    m_text->setMaxLength(12);
    m_text->setText(QStringLiteral("jeden dwa"));
    QVERIFY(open());
    QAccessibleEditableTextInterface *text = heard(editor())->editableTextInterface();
    text->replaceText(0, 5, QStringLiteral("raz\n"));
    QCOMPARE(editor()->toPlainText(), QStringLiteral("raz\n dwa"));
    text->deleteText(4, 5);
    QCOMPARE(editor()->toPlainText(), QStringLiteral("raz\ndwa"));
    text->insertText(7, QStringLiteral(" trzy cztery")); // more than there is room for
    QCOMPARE(editor()->toPlainText(), QStringLiteral("raz\ndwa trzy"));
    editor()->setReadOnly(true);
    text->deleteText(0, 3);
    heard(editor())->setText(QAccessible::Value, QStringLiteral("nic"));
    QCOMPARE(editor()->toPlainText(), QStringLiteral("raz\ndwa trzy"));
    QVERIFY(heard(editor())->state().readOnly);
}

void tst_KorMultiText_PopUp::deletionWhileTheEditorIsOpenIsSafe()
{
    QVERIFY(open());
    QTest::keyClicks(editor(), QStringLiteral("nowy"));
    delete m_text;
    settle();
    QVERIFY(!QApplication::activePopupWidget());
    m_stage->button()->setFocus();
    QTRY_COMPARE(QApplication::focusWidget(), m_stage->button());
}

QTEST_MAIN(tst_KorMultiText_PopUp)
#include "tst_kormultitext_popup.moc"
