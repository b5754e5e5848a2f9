// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "support/heard.h"

#include <KorDaoUC/FormBuilder>
#include <KorDaoUC/FormFile>
#include <KorDaoUC/KorNumber>
#include <KorDaoUC/RunTimeError>

#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTabWidget>

namespace FormFile = kor::FormFile;
using kor::FormBlock;
using kor::FormBuilder;
using kor::test::nameOf;

namespace {

const char *const orderForm = "Begin Form frmOrder\n"
                              "   Caption = \"Zamówienie\"\n"
                              "   Width = 6000\n"
                              "   Height = 3000\n"
                              "   Begin Label lblPrice\n"
                              "      Caption = \"&Cena:\"\n"
                              "      Left = 150\n"
                              "      TabIndex = 2\n"
                              "      Top = 300\n"
                              "   End\n"
                              "   Begin KorDaoUC.KorNumber numDiscount\n"
                              "      TabIndex = 4\n"
                              "   End\n"
                              "   Begin KorDaoUC.KorNumber numPrice\n"
                              "      ' twips\n"
                              "      Left = 1207\n"
                              "      Top = 300!\n"
                              "      Width = 1800\n"
                              "      Height = 375\n"
                              "      Tag = \"price\"\n"
                              "      MaskPicture = \"0.000\"\n"
                              "      MaxValue = 1000!\n"
                              "      TabIndex = 3\n"
                              "   End\n"
                              "   Begin Frame fraButtons\n"
                              "      Caption = \"Decyzja\"\n"
                              "      Left = 150\n"
                              "      Top = 1500\n"
                              "      Width = 4000\n"
                              "      Height = 1200\n"
                              "      Begin CommandButton cmdSave\n"
                              "         Caption = \"&Zapisz\"\n"
                              "         Left = 150\n"
                              "         Top = 450\n"
                              "         TabIndex = 1\n"
                              "      End\n"
                              "   End\n"
                              "End\n";

FormBlock parsed(const QByteArray &text)
{
    const kor::FormResult result = FormFile::parse(text);
    return result.form ? *result.form : FormBlock{QStringLiteral("(bad text)"), result.error.reason, {}, {}};
}

QByteArray withoutComments(QByteArray text) { return text.replace("      ' twips\n", ""); }

//! The name of the widget with the focus, or of the control around it.
QString focusName()
{
    const QWidget *widget = QApplication::focusWidget();
    if (widget && qobject_cast<KorNumber *>(widget->parentWidget()))
        widget = widget->parentWidget();
    return widget ? widget->objectName() : QString();
}

} // namespace

class tst_FormBuilder : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        QTest::failOnWarning(QRegularExpression(QStringLiteral("control of this name|key is not known")));
        m_window = std::make_unique<QWidget>();
        m_builder = std::make_unique<FormBuilder>();
    }
    void cleanup() { m_window.reset(); }

    void makesTheControlsWithTheirSettings()
    {
        QVERIFY(buildOrderForm());
        QCOMPARE(m_window->windowTitle(), QStringLiteral("Zamówienie"));
        auto *number = m_window->findChild<KorNumber *>(QStringLiteral("numPrice"));
        QVERIFY(number);
        QCOMPARE(number->MaskPicture(), QStringLiteral("0.000"));
        QCOMPARE(number->MaxValue(), QVariant(1000.0F));
        QCOMPARE(m_window->findChild<QLabel *>(QStringLiteral("lblPrice"))->text(), QStringLiteral("&Cena:"));
        auto *frame = m_window->findChild<QGroupBox *>(QStringLiteral("fraButtons"));
        QCOMPARE(frame->title(), QStringLiteral("Decyzja"));
        QCOMPARE(frame->findChild<QPushButton *>(QStringLiteral("cmdSave"))->text(), QStringLiteral("&Zapisz"));
    }

    void placesTheControlsInTwips()
    {
        QVERIFY(buildOrderForm());
        const double perPixel = 1440.0 / m_window->logicalDpiX();
        const auto pixels = [perPixel](double twips) { return qRound(twips / perPixel); };
        QCOMPARE(m_window->findChild<QWidget *>(QStringLiteral("numPrice"))->geometry(),
                 QRect(pixels(1207), pixels(300), pixels(1800), pixels(375)));
        QCOMPARE(m_window->findChild<QWidget *>(QStringLiteral("cmdSave"))->pos(), QPoint(pixels(150), pixels(450)));
        QCOMPARE(m_window->size(), QSize(pixels(6000), pixels(3000)));
    }

    void whatTheFileDoesNotPlaceTakesItsOwnSize()
    {
        QVERIFY(buildOrderForm());
        auto *number = m_window->findChild<QWidget *>(QStringLiteral("numDiscount"));
        QCOMPARE(number->geometry(), QRect(QPoint(0, 0), number->sizeHint()));
    }

    void writesTheFormAsItWasRead()
    {
        QVERIFY(buildOrderForm());
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        QCOMPARE(FormFile::serialize(m_builder->toBlock()), withoutComments(orderForm));
    }

    void changesOneLineForOneSetting()
    {
        QVERIFY(buildOrderForm());
        m_window->findChild<KorNumber *>(QStringLiteral("numPrice"))->setMaxValue(20);
        QByteArray expected = withoutComments(orderForm);
        expected.replace("MaxValue = 1000!", "MaxValue = 20!");
        QCOMPARE(FormFile::serialize(m_builder->toBlock()), expected);
    }

    void dropsASettingThatIsBackAtItsDefault()
    {
        QVERIFY(buildOrderForm());
        m_window->findChild<KorNumber *>(QStringLiteral("numPrice"))->setMaskPicture(QStringLiteral("#,##0.00"));
        QByteArray expected = withoutComments(orderForm);
        expected.replace("      MaskPicture = \"0.000\"\n", "");
        QCOMPARE(FormFile::serialize(m_builder->toBlock()), expected);
    }

    void writesTheNewPlaceOfAMovedControl()
    {
        QVERIFY(buildOrderForm());
        auto *number = m_window->findChild<QWidget *>(QStringLiteral("numPrice"));
        number->move(number->x() + 20, number->y());
        const int left = qRound(number->x() * 1440.0 / m_window->logicalDpiX());
        QByteArray expected = withoutComments(orderForm);
        expected.replace("Left = 1207", "Left = " + QByteArray::number(left));
        QCOMPARE(FormFile::serialize(m_builder->toBlock()), expected);
    }

    void keepsTheSizeOfAFormThatStandsOnAPage()
    {
        QVERIFY(buildOrderForm());
        QTabWidget tabs;
        QWidget *page = m_window.release();
        tabs.addTab(page, QStringLiteral("&Zamówienie"));
        tabs.resize(300, 170);
        tabs.show();
        QVERIFY(QTest::qWaitForWindowExposed(&tabs));
        QVERIFY(page->width() <= 300);
        QCOMPARE(FormFile::serialize(m_builder->toBlock()), withoutComments(orderForm));
    }

    void leavesOutADeletedControl()
    {
        QVERIFY(buildOrderForm());
        delete m_window->findChild<QWidget *>(QStringLiteral("fraButtons"));
        QByteArray expected = withoutComments(orderForm);
        expected = expected.left(expected.indexOf("   Begin Frame")) + "End\n";
        QCOMPARE(FormFile::serialize(m_builder->toBlock()), expected);
    }

    void refusesAndBuildsNothing_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("reason");

        const auto changed = [](const char *before, const char *after) {
            return QByteArray(orderForm).replace(before, after);
        };
        // clang-format off
        QTest::newRow("an unknown class")                     << changed("Begin KorDaoUC.KorNumber numPrice", "Begin KorDaoUC.KorNumbr numPrice")
            << "line 14: KorDaoUC.KorNumbr numPrice: the class KorDaoUC.KorNumbr is not known";
        QTest::newRow("an unknown class within a frame")      << changed("Begin CommandButton cmdSave", "Begin Button cmdSave")
            << "line 31: Button cmdSave: the class Button is not known";
        QTest::newRow("a control without its library's name") << changed("Begin KorDaoUC.KorNumber numPrice", "Begin KorNumber numPrice")
            << "line 14: KorNumber numPrice: the class KorNumber is not known";
        QTest::newRow("a form that is none")                  << changed("Begin Form frmOrder", "Begin Frame frmOrder")
            << "line 1: Frame frmOrder: a form is a block of the class Form";
        QTest::newRow("a form within the form")               << changed("Begin Frame fraButtons", "Begin Form fraButtons")
            << "line 25: Form fraButtons: the class Form is not known";
        QTest::newRow("a setting of the wrong kind")          << changed("MaxValue = 1000!", "MaxValue = \"dużo\"")
            << "line 22: KorDaoUC.KorNumber numPrice, MaxValue: error 13: Type mismatch";
        QTest::newRow("a setting whose last repetition is wrong") << changed("Tag = \"price\"", "MaxValue = 5!\n      MaxValue = \"dużo\"").replace("      MaxValue = 1000!\n", "")
            << "line 21: KorDaoUC.KorNumber numPrice, MaxValue: error 13: Type mismatch";
        QTest::newRow("a place that is no number")            << changed("Left = 1207", "Left = \"x\"")
            << "line 16: KorDaoUC.KorNumber numPrice, Left: error 13: Type mismatch";
        QTest::newRow("a place that is Null")                 << changed("Left = 1207", "Left = Null")
            << "line 16: KorDaoUC.KorNumber numPrice, Left: error 94: Invalid use of Null";
        QTest::newRow("a place beyond any screen")            << changed("Left = 1207", "Left = 1e300#")
            << "line 16: KorDaoUC.KorNumber numPrice, Left: error 380: Invalid property value";
        QTest::newRow("a tab index that is no number")        << changed("TabIndex = 1\n", "TabIndex = \"x\"\n")
            << "line 35: CommandButton cmdSave, TabIndex: error 13: Type mismatch";
        QTest::newRow("a font that is none")                  << changed("Caption = \"&Cena:\"", "Font = 5")
            << "line 6: Label lblPrice, Font: error 13: Type mismatch";
        // clang-format on
    }
    void refusesAndBuildsNothing()
    {
        QFETCH(const QByteArray, text);
        QFETCH(const QString, reason);
        m_window->setWindowTitle(QStringLiteral("before"));
        m_window->resize(123, 45);
        const QFont font = m_window->font();
        const std::optional<QString> refusal = m_builder->build(parsed(text), m_window.get());
        QVERIFY(refusal);
        QCOMPARE(*refusal, reason);
        QVERIFY(m_window->findChildren<QWidget *>().isEmpty());
        QCOMPARE(m_window->windowTitle(), QStringLiteral("before"));
        QCOMPARE(m_window->size(), QSize(123, 45));
        QCOMPARE(m_window->font(), font);
    }

    void aFormFromNoTextIsRefusedWithoutLines()
    {
        FormBlock label{QStringLiteral("Label"), QStringLiteral("l"), {}, {}};
        label.properties.append(QStringLiteral("Font"), 5);
        const auto reason = m_builder->build({QStringLiteral("Form"), {}, {}, {label}}, m_window.get());
        QCOMPARE(reason.value_or(QString()), QStringLiteral("Label l, Font: error 13: Type mismatch"));
    }

    void warnsOfTwoControlsOfOneName()
    {
        QTest::ignoreMessage(QtWarningMsg, "line 4: KorDaoUC.KorNumber a: there is a control of this name at line 2");
        QVERIFY(!m_builder->build(parsed("Begin Form f\nBegin Frame a\n\nBegin KorDaoUC.KorNumber a\nEnd\nEnd\n"
                                         "Begin Label\nEnd\nBegin Label\nEnd\nBegin Label A\nEnd\nEnd\n"),
                                  m_window.get()));
    }

    void warnsOfKeysThatNobodyKnows_data()
    {
        QTest::addColumn<QByteArray>("block");
        QTest::addColumn<QByteArrayList>("warnings");

        // clang-format off
        QTest::newRow("an old key is known")          << QByteArray("Begin KorDaoUC.KorListCheck c\nDatabase = 0%\nEnd") << QByteArrayList();
        QTest::newRow("a written key is known")       << QByteArray("Begin KorDaoUC.KorColor c\nValue = 5\nEnd") << QByteArrayList();
        QTest::newRow("a place is known")             << QByteArray("Begin KorDaoUC.KorDate d\nLeft = 1\nTop = 1\nWidth = 1\nHeight = 1\nTabIndex = 1\nEnd") << QByteArrayList();
        QTest::newRow("another control's key")        << QByteArray("Begin KorDaoUC.KorDate d\nText = \"\"\nMaskPicture = \"0\"\nEnd")
            << QByteArrayList{"line 4: KorDaoUC.KorDate d, MaskPicture: the key is not known"};
        QTest::newRow("small letters")                << QByteArray("Begin Label l\ncaption = \"\"\nEnd")
            << QByteArrayList{"line 3: Label l, caption: the key is not known"};
        QTest::newRow("twice")                        << QByteArray("Begin CommandButton b\nTag = 1\n\nTag = 2\nEnd")
            << QByteArrayList{"line 3: CommandButton b, Tag: the key is not known", "line 5: CommandButton b, Tag: the key is not known"};
        QTest::newRow("within a frame")               << QByteArray("Begin Frame f\nBegin KorDaoUC.KorNumber n\nMask = 1\nEnd\nEnd")
            << QByteArrayList{"line 4: KorDaoUC.KorNumber n, Mask: the key is not known"};
        QTest::newRow("of the form")                  << QByteArray("Left = 5\nFont = Font(\"DejaVu Sans\", 9)")
            << QByteArrayList{"line 2: Form f, Left: the key is not known"};
        QTest::newRow("of a host's kind")             << QByteArray("Begin Told t\nText = 1\nTop = 0\nOther = 2\nEnd")
            << QByteArrayList{"line 5: Told t, Other: the key is not known"};
        QTest::newRow("a host's kind that tells none") << QByteArray("Begin Silent t\nText = 1\nOther = 2\nEnd") << QByteArrayList();
        // clang-format on
    }
    void warnsOfKeysThatNobodyKnows()
    {
        QFETCH(const QByteArray, block);
        QFETCH(const QByteArrayList, warnings);
        kor::FormItemKind kind{[](QWidget *parent) { return new QWidget(parent); },
                               [](QWidget &, const kor::PropertyBag &) {}, [](const QWidget &, kor::PropertyBag &) {}};
        m_builder->addKind(QStringLiteral("Silent"), kind);
        kind.keys = QStringList{QStringLiteral("Text")};
        m_builder->addKind(QStringLiteral("Told"), kind);
        for (const QByteArray &warning : warnings)
            QTest::ignoreMessage(QtWarningMsg, warning.constData());
        const FormBlock form = parsed("Begin Form f\n" + block + "\nEnd\n");
        QVERIFY(!m_builder->build(form, m_window.get()));
        QCOMPARE(FormFile::serialize(m_builder->toBlock()).count(" = "), FormFile::serialize(form).count(" = "));
    }

    void aRefusalKeepsWhatTheWindowHadBefore()
    {
        QVERIFY(buildOrderForm());
        const FormBlock before = m_builder->toBlock();
        QVERIFY(m_builder->build(parsed("Begin Form f\nBegin Nothing n\nEnd\nEnd\n"), m_window.get()));
        QVERIFY(m_builder->toBlock() == before);
        QVERIFY(m_window->findChild<KorNumber *>(QStringLiteral("numPrice")));
    }

    void tabFollowsTheTabIndex()
    {
        QVERIFY(buildOrderForm());
        showActive();
        m_window->findChild<QWidget *>(QStringLiteral("cmdSave"))->setFocus();
        QStringList stops;
        for (int presses = 0; presses < 4; ++presses) {
            stops << focusName();
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(stops.join(u' '), QStringLiteral("cmdSave numPrice numDiscount cmdSave"));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab, Qt::ShiftModifier);
        QCOMPARE(focusName(), QStringLiteral("cmdSave"));
    }

    void controlsWithoutTabIndexFollowInFileOrder()
    {
        QVERIFY(
            !m_builder->build(parsed("Begin Form f\n"
                                     "Begin CommandButton c\nEnd\nBegin CommandButton a\nTabIndex = 7%\nEnd\n"
                                     "Begin CommandButton d\nEnd\nBegin CommandButton b\nTabIndex = 7%\nEnd\nEnd\n"),
                              m_window.get()));
        showActive();
        m_window->findChild<QWidget *>(QStringLiteral("a"))->setFocus();
        QString stops;
        for (int presses = 0; presses < 4; ++presses) {
            stops += focusName();
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(stops, QStringLiteral("abcd"));
    }

    void theLetterOfALabelLeadsToTheNextControl()
    {
        QVERIFY(buildOrderForm());
        showActive();
        m_window->findChild<QWidget *>(QStringLiteral("cmdSave"))->setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_C, Qt::AltModifier);
        QCOMPARE(focusName(), QStringLiteral("numPrice"));
    }

    void theLabelBeforeAControlIsItsNameToScreenReaders()
    {
        QVERIFY(!m_builder->build(parsed("Begin Form f\n"
                                         "Begin Label head\nCaption = \"Zamówienie\"\nEnd\n"
                                         "Begin Label l\nCaption = \"Kwota\"\nEnd\nBegin KorDaoUC.KorNumber n\nEnd\n"
                                         "Begin Label u\nCaption = \"&Data\"\nEnd\nBegin KorDaoUC.KorDate d\nEnd\n"
                                         "Begin KorDaoUC.KorNumber alone\nEnd\n"
                                         "Begin Label last\nCaption = \"Razem\"\nEnd\nEnd\n"),
                                  m_window.get()));
        const auto name = [this](const char *control) {
            return nameOf(m_window->findChild<QWidget *>(QString::fromLatin1(control))->focusProxy());
        };
        QCOMPARE(name("n"), QStringLiteral("Kwota"));
        QCOMPARE(name("d"), QStringLiteral("Data"));
        QCOMPARE(name("alone"), QString());
    }

    void theLetterOfAButtonPressesIt()
    {
        QVERIFY(buildOrderForm());
        showActive();
        int presses = 0;
        connect(m_window->findChild<QPushButton *>(QStringLiteral("cmdSave")), &QPushButton::clicked, this,
                [&presses] { ++presses; });
        m_window->findChild<QWidget *>(QStringLiteral("numPrice"))->setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Z, Qt::AltModifier);
        QTRY_COMPARE(presses, 1); // the button is seen to go down first
    }

    void theFontOfTheFormIsThatOfItsControls()
    {
        QVERIFY(!m_builder->build(parsed("Begin Form f\nFont = Font(\"DejaVu Sans\", 17)\n"
                                         "Begin KorDaoUC.KorNumber n\nEnd\n"
                                         "Begin Label l\nFont = Font(\"DejaVu Sans\", 8, Bold)\nEnd\nEnd\n"),
                                  m_window.get()));
        QCOMPARE(m_window->findChild<KorNumber *>()->Font().pointSize(), 17);
        QCOMPARE(m_window->findChild<QLabel *>(QStringLiteral("l"))->font().pointSize(), 8);
        QVERIFY(!m_builder->toBlock().children.front().properties.contains(QStringLiteral("Font")));
    }

    void theHostAddsKindsOfItsOwn()
    {
        m_builder->addKind(QStringLiteral("TextBox"),
                           {
                               [](QWidget *parent) { return new QLineEdit(parent); },
                               [](QWidget &widget, const kor::PropertyBag &settings) {
                                   static_cast<QLineEdit &>(widget).setText(
                                       settings.ReadProperty(QStringLiteral("Text"), QString()).toString());
                               },
                               [](const QWidget &widget, kor::PropertyBag &settings) {
                                   settings.WriteProperty(QStringLiteral("Text"),
                                                          static_cast<const QLineEdit &>(widget).text(), QString());
                               },
                           });
        QVERIFY(!m_builder->build(parsed("Begin Form f\nBegin TextBox t\nText = \"ą\"\nEnd\nEnd\n"), m_window.get()));
        auto *box = m_window->findChild<QLineEdit *>(QStringLiteral("t"));
        QCOMPARE(box->text(), QStringLiteral("ą"));
        box->setText(QStringLiteral("ę"));
        QCOMPARE(FormFile::serialize(m_builder->toBlock()),
                 QByteArray("Begin Form f\n   Begin TextBox t\n      Text = \"ę\"\n   End\nEnd\n"));
    }

    void aFactoryThatMakesNothingIsAnError()
    {
        m_builder->addKind(QStringLiteral("Nothing"), {[](QWidget *) -> QWidget * { return nullptr; }, {}, {}});
        const auto reason =
            m_builder->build(parsed("Begin Form f\nBegin Label l\nEnd\nBegin Nothing n\nEnd\nEnd\n"), m_window.get());
        QCOMPARE(reason.value_or(QString()),
                 QStringLiteral("line 4: Nothing n: error 5: the control could not be made"));
        QVERIFY(m_window->findChildren<QWidget *>().isEmpty());
    }

private:
    //! Builds the form, one key of which nobody knows.
    [[nodiscard]] bool buildOrderForm()
    {
        QTest::ignoreMessage(QtWarningMsg, "line 20: KorDaoUC.KorNumber numPrice, Tag: the key is not known");
        return !m_builder->build(parsed(orderForm), m_window.get());
    }

    void showActive()
    {
        m_window->show();
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    }

    std::unique_ptr<QWidget> m_window;
    std::unique_ptr<FormBuilder> m_builder;
};

QTEST_MAIN(tst_FormBuilder)
#include "tst_formbuilder.moc"
