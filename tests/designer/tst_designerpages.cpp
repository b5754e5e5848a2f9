// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "designer/designerstage.h"

#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowCursorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QDesignerFormWindowManagerInterface>
#include <QtDesigner/QDesignerPropertySheetExtension>
#include <QtDesigner/QDesignerTaskMenuExtension>
#include <QtDesigner/QDesignerWidgetBoxInterface>
#include <QtDesigner/QExtensionManager>
#include <QtGui/QAction>
#include <QtGui/QClipboard>
#include <QtGui/QUndoStack>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialog>
#include <QtWidgets/QFontDialog>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTabWidget>

using namespace kor::test;

//! Property pages in the form designer, as a programmer uses them who draws a form.
class tst_DesignerPages : public QObject, private DesignerStage
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { startDesigner(); }
    void cleanupTestCase() { endDesigner(); }
    void init() { newForm(); }
    void cleanup();

    void theWidgetBoxOffersEveryControl();
    void aDroppedControlIsSetOnItsPage_data() { controls(); }
    void aDroppedControlIsSetOnItsPage();
    void aMenuOpensThePages_data() { controls(); }
    void aMenuOpensThePages();
    void everyFieldOfAPageIsOneStep_data();
    void everyFieldOfAPageIsOneStep();
    void aFontIsOneStepAndTheFormsOwnIsNotSaved();
    void severalSelectedControlsAreOneStep();
    void severalPagesAreOneStep();
    void aDefaultIsNoLongerSaved();
    void anApplyThatChangesNothingIsNoStep();
    void aRefusedValueLeavesWhatWasWrittenAsOneStep();
    void cancelChangesNothing();
    void thePagesOfAGridWithoutTheirMembersAreClosed();

private:
    static void controls();
    //! A form whose controls lie below each other, named a, b, ...
    void openForm(const QStringList &controls);
    [[nodiscard]] QWidget *control(const char *name) const
    {
        return m_form->findChild<QWidget *>(QString::fromLatin1(name));
    }
    [[nodiscard]] QList<QAction *> menuOf(QWidget *widget) const;
    //! Opens the pages of a control by its menu.
    void openPages(QWidget *widget);
    [[nodiscard]] QDialog *dialog() const;
    template <class Widget>
    [[nodiscard]] Widget *field(const char *name) const
    {
        return dialog()->findChild<Widget *>(QString::fromLatin1(name));
    }
    //! Edits a field by the user's means.
    void edit(const QString &name, const QString &value);
    void press(const char *button) const { QTest::mouseClick(field<QPushButton>(button), Qt::LeftButton); }
    [[nodiscard]] int steps() const { return m_form->commandHistory()->index(); }
    //! Undoes, redoes, loads again: the text is the same each time.
    void checkHistory(const QString &before, int stepsBefore);
};

void tst_DesignerPages::controls()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"KorNumber", "KorDate", "KorCombo", "KorClick", "KorList", "KorListCheck", "KorColor",
                             "KorUpDown", "KorParam", "KorMultiText", "KorGrid"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void tst_DesignerPages::cleanup()
{
    if (QDialog *left = dialog())
        delete left;
    closeForm();
    m_window->hide();
}

void tst_DesignerPages::openForm(const QStringList &controls)
{
    QString form = QStringLiteral("<ui version=\"4.0\"><class>Form</class><widget class=\"QWidget\" name=\"Form\">");
    QString classes;
    for (qsizetype i = 0; i < controls.size(); ++i) {
        form += QStringLiteral("<widget class=\"%1\" name=\"%2\"><property name=\"geometry\"><rect><x>10</x><y>%3</y>"
                               "<width>160</width><height>24</height></rect></property></widget>")
                    .arg(controls[i], QChar(u'a' + static_cast<char16_t>(i)))
                    .arg(30 * i);
        if (!classes.contains(controls[i]))
            classes += QStringLiteral("<customwidget><class>%1</class><extends>QWidget</extends></customwidget>")
                           .arg(controls[i]);
    }
    form += QStringLiteral("</widget><customwidgets>%1</customwidgets></ui>").arg(classes);
    open(form.replace(QStringLiteral("name=\"a\""), QStringLiteral("name=\"field\"")));
}

QList<QAction *> tst_DesignerPages::menuOf(QWidget *widget) const
{
    const auto *menu = qt_extension<QDesignerTaskMenuExtension *>(m_core->extensionManager(), widget);
    return menu ? menu->taskActions() : QList<QAction *>();
}

QDialog *tst_DesignerPages::dialog() const
{
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && window->inherits("kor::PropertyPageDialog"))
            return static_cast<QDialog *>(window);
    }
    return nullptr;
}

void tst_DesignerPages::openPages(QWidget *widget)
{
    const QList<QAction *> actions = menuOf(widget);
    QCOMPARE(actions.size(), 1);
    actions.first()->trigger();
    QVERIFY(dialog());
    QVERIFY(QTest::qWaitForWindowActive(dialog()));
}

void tst_DesignerPages::edit(const QString &name, const QString &value)
{
    auto *widget = dialog()->findChild<QWidget *>(name);
    QVERIFY2(widget, qPrintable(name));
    for (QWidget *page = widget; page; page = page->parentWidget()) {
        if (page->inherits("kor::PropertyPage"))
            field<QTabWidget>("tabPages")->setCurrentWidget(page);
    }
    widget->setFocus();
    if (auto *box = qobject_cast<QLineEdit *>(widget)) {
        box->selectAll();
        QTest::keyClicks(box, value);
    } else if (qobject_cast<QCheckBox *>(widget)) {
        QTest::keyClick(widget, Qt::Key_Space);
    } else if (auto *list = qobject_cast<QComboBox *>(widget)) {
        QTest::keyClick(list, Qt::Key_Home);
        for (int i = 0; i < value.toInt(); ++i)
            QTest::keyClick(list, Qt::Key_Down);
    } else { // a system colour
        QTimer::singleShot(0, this, [value] {
            QWidget *chooser = QApplication::activeModalWidget();
            chooser->findChild<QListWidget *>(QStringLiteral("lstSystem"))->setCurrentRow(value.toInt());
            chooser->findChild<QTabWidget *>()->setCurrentIndex(0);
            QTest::keyClick(chooser, Qt::Key_Return);
        });
        QTest::mouseClick(widget, Qt::LeftButton);
    }
}

void tst_DesignerPages::checkHistory(const QString &before, int stepsBefore)
{
    const QString after = m_form->contents();
    QVERIFY(after != before);
    QVERIFY(m_form->isDirty());
    QCOMPARE(steps(), stepsBefore + 1);
    m_form->commandHistory()->undo();
    QCOMPARE(m_form->contents(), before);
    m_form->commandHistory()->redo();
    QCOMPARE(m_form->contents(), after);
    open(after);
    QCOMPARE(m_form->contents(), after);
    QCOMPARE(message(), QString());
}

void tst_DesignerPages::theWidgetBoxOffersEveryControl()
{
    const QDesignerWidgetBoxInterface *box = m_core->widgetBox();
    QStringList offered;
    for (int i = 0; i < box->categoryCount(); ++i) {
        const auto category = box->category(i);
        if (category.name() != QLatin1String("KorDaoUC"))
            continue;
        for (int w = 0; w < category.widgetCount(); ++w)
            offered << category.widget(w).name();
    }
    offered.sort();
    QStringList all{QStringLiteral("KorNumber"),    QStringLiteral("KorDate"),   QStringLiteral("KorCombo"),
                    QStringLiteral("KorClick"),     QStringLiteral("KorList"),   QStringLiteral("KorListCheck"),
                    QStringLiteral("KorColor"),     QStringLiteral("KorUpDown"), QStringLiteral("KorParam"),
                    QStringLiteral("KorMultiText"), QStringLiteral("KorGrid")};
    for (const QString &name : all)
        QVERIFY2(offered.contains(name), qPrintable(name));
}

void tst_DesignerPages::aDroppedControlIsSetOnItsPage()
{
    QFETCH(QString, name);
    QString xml;
    const QDesignerWidgetBoxInterface *box = m_core->widgetBox();
    for (int i = 0; i < box->categoryCount(); ++i) {
        const auto category = box->category(i);
        for (int w = 0; w < category.widgetCount(); ++w) {
            if (category.widget(w).name() == name)
                xml = category.widget(w).domXml();
        }
    }
    open(formOf(QStringLiteral("KorNumber"))); // a form to drop it on
    const QString empty = m_form->contents();
    // What the designer puts there when it copies
    const auto begin = xml.indexOf(QStringLiteral("<widget"));
    QApplication::clipboard()->setText(QStringLiteral("<ui version=\"4.0\"><widget class=\"QWidget\" "
                                                      "name=\"__qt_fake_top_level\">%1</widget></ui>")
                                           .arg(xml.mid(begin, xml.lastIndexOf(QStringLiteral("</ui>")) - begin)));
    m_form->clearSelection();
    m_form->selectWidget(m_form->mainContainer());
    m_core->formWindowManager()->setActiveFormWindow(nullptr);
    m_core->formWindowManager()->setActiveFormWindow(m_form);
    QAction *paste = m_core->formWindowManager()->action(QDesignerFormWindowManagerInterface::PasteAction);
    QVERIFY(paste->isEnabled());
    paste->trigger();
    const QString given = QStringLiteral("kor") + name.mid(3);
    QWidget *dropped = control(qPrintable(given));
    QVERIFY(dropped);
    QCOMPARE(QString::fromLatin1(dropped->metaObject()->className()), name);
    QVERIFY(dropped->width() >= 100);
    QVERIFY(dropped->height() >= 20);
    const QString before = m_form->contents();
    const int stepsBefore = steps();
    m_form->setDirty(false);
    openPages(dropped);
    edit(QStringLiteral("cmdForeColor"), QStringLiteral("13"));
    press("cmdOK");
    QCOMPARE(dropped->property("ForeColor"), QVariant(std::numeric_limits<int>::min() + 13));
    checkHistory(before, stepsBefore);
    const std::unique_ptr<QWidget> running = run(m_form->contents());
    QCOMPARE(running->findChild<QWidget *>(given)->property("ForeColor"),
             QVariant(std::numeric_limits<int>::min() + 13));
}

void tst_DesignerPages::aMenuOpensThePages()
{
    QFETCH(QString, name);
    openForm({name});
    QWidget *widget = control("field");
    const auto *menu = qt_extension<QDesignerTaskMenuExtension *>(m_core->extensionManager(), widget);
    QVERIFY(menu);
    QCOMPARE(menu->taskActions().size(), 1);
    QCOMPARE(menu->taskActions().first()->text(), QStringLiteral("Właściwości..."));
    QCOMPARE(menu->preferredEditAction(), menu->taskActions().first());
    QVERIFY(menuOf(m_window.get()).isEmpty());
    const QString before = m_form->contents();
    openPages(widget);
    QVERIFY(dialog()->isModal());
    QCOMPARE(dialog()->windowTitle(), QStringLiteral("Właściwości: field"));
    press("cmdOK");
    QVERIFY(!dialog());
    QCOMPARE(m_form->contents(), before);
    QVERIFY(!m_form->isDirty());
}

void tst_DesignerPages::everyFieldOfAPageIsOneStep_data()
{
    QTest::addColumn<QString>("control");
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QVariant>("value");
    // clang-format off
    QTest::newRow("range check")       << "KorNumber"    << "chkCheckRange"  << ""            << QByteArray("CheckRange")  << QVariant(true);
    QTest::newRow("mask")              << "KorNumber"    << "txtMaska"       << "0.000"       << QByteArray("MaskPicture") << QVariant(QStringLiteral("0.000"));
    QTest::newRow("lower bound")       << "KorNumber"    << "txtMinValue"    << "-7"          << QByteArray("MinValue")    << QVariant(-7.0F);
    QTest::newRow("upper bound")       << "KorNumber"    << "txtMaxValue"    << "1000"        << QByteArray("MaxValue")    << QVariant(1000.0F);
    QTest::newRow("tool tip")          << "KorCombo"     << "txtToolTipText" << "Miasto"      << QByteArray("ToolTipText") << QVariant(QStringLiteral("Miasto"));
    QTest::newRow("null entry")        << "KorCombo"     << "chkCanBeNull"   << ""            << QByteArray("CanBeNull")   << QVariant(true);
    QTest::newRow("null text")         << "KorCombo"     << "txtNullString"  << "(brak)"      << QByteArray("NullString")  << QVariant(QStringLiteral("(brak)"));
    QTest::newRow("dictionary")        << "KorCombo"     << "txtSlownik"     << "miasta"      << QByteArray("Slownik")     << QVariant(QStringLiteral("miasta"));
    QTest::newRow("source")            << "KorCombo"     << "txtSQL"         << "LIST 1;\"a\" & <b>" << QByteArray("SQL")  << QVariant(QStringLiteral("LIST 1;\"a\" & <b>"));
    QTest::newRow("border")            << "KorNumber"    << "cmbBorderStyle" << "0"           << QByteArray("BorderStyle") << QVariant(0);
    QTest::newRow("flat")              << "KorDate"      << "cmbAppearance"  << "0"           << QByteArray("Appearance")  << QVariant(0);
    QTest::newRow("alignment")         << "KorMultiText" << "cmbAlignment"   << "2"           << QByteArray("Alignment")   << QVariant(2);
    QTest::newRow("transparent")       << "KorUpDown"    << "cmbBackStyle"   << "0"           << QByteArray("BackStyle")   << QVariant(0);
    QTest::newRow("background")        << "KorList"      << "cmdBackColor"   << "15"          << QByteArray("BackColor")   << QVariant(std::numeric_limits<int>::min() + 15);
    // clang-format on
}

void tst_DesignerPages::everyFieldOfAPageIsOneStep()
{
    QFETCH(QString, control);
    QFETCH(QString, field);
    QFETCH(QString, typed);
    QFETCH(QByteArray, property);
    QFETCH(QVariant, value);
    openForm({control});
    const QString before = m_form->contents();
    openPages(this->control("field"));
    edit(field, typed);
    press("cmdOK");
    QVERIFY(!dialog());
    const auto now = [&] { return this->control("field")->property(property); };
    QCOMPARE(value.typeId() == QMetaType::Int ? QVariant(now().toInt()) : now(), value);
    QCOMPARE(m_form->contents().count(QStringLiteral("<property")), before.count(QStringLiteral("<property")) + 1);
    checkHistory(before, 0);
    const std::unique_ptr<QWidget> running = run(m_form->contents());
    const QVariant shown = running->findChild<QWidget *>(QStringLiteral("field"))->property(property);
    QCOMPARE(value.typeId() == QMetaType::Int ? QVariant(shown.toInt()) : shown, value);
}

void tst_DesignerPages::aFontIsOneStepAndTheFormsOwnIsNotSaved()
{
    openForm({QStringLiteral("KorNumber")});
    const QString before = m_form->contents();
    const QFont own = control("field")->property("Font").value<QFont>();
    const auto choose = [this](const QFont &font) {
        openPages(control("field"));
        field<QTabWidget>("tabPages")->setCurrentIndex(1);
        QTimer::singleShot(0, this, [font] {
            auto *chooser = qobject_cast<QFontDialog *>(QApplication::activeModalWidget());
            chooser->setCurrentFont(font);
            chooser->accept();
        });
        press("cmdFont");
        press("cmdOK");
    };
    choose(QFont(QStringLiteral("DejaVu Sans"), 17));
    QCOMPARE(control("field")->property("Font").value<QFont>().pointSize(), 17);
    checkHistory(before, 0);
    choose(own);
    QCOMPARE(m_form->contents(), before);
}

void tst_DesignerPages::severalSelectedControlsAreOneStep()
{
    openForm({QStringLiteral("KorCombo"), QStringLiteral("KorCombo"), QStringLiteral("KorCombo")});
    const QString before = m_form->contents();
    m_form->clearSelection();
    m_form->selectWidget(control("field"));
    m_form->selectWidget(control("c"));
    openPages(control("c"));
    QVERIFY(dialog()->windowTitle().contains(QStringLiteral("(2)")));
    edit(QStringLiteral("txtSlownik"), QStringLiteral("miasta"));
    edit(QStringLiteral("txtSQL"), QStringLiteral("LIST"));
    press("cmdOK");
    for (const char *name : {"field", "c"})
        QCOMPARE(control(name)->property("Slownik"), QVariant(QStringLiteral("miasta")));
    QCOMPARE(control("b")->property("Slownik"), QVariant(QString()));
    checkHistory(before, 0);

    // The menu of one that is not selected is about that one
    m_form->clearSelection();
    m_form->selectWidget(control("field"));
    m_form->selectWidget(control("c"));
    openPages(control("b"));
    QCOMPARE(dialog()->windowTitle(), QStringLiteral("Właściwości: b"));
}

void tst_DesignerPages::severalPagesAreOneStep()
{
    openForm({QStringLiteral("KorNumber")});
    const QString before = m_form->contents();
    openPages(control("field"));
    edit(QStringLiteral("txtMaska"), QStringLiteral("0"));
    edit(QStringLiteral("chkCheckRange"), {});
    edit(QStringLiteral("cmbAlignment"), QStringLiteral("2"));
    press("cmdApply");
    QVERIFY(dialog());
    QCOMPARE(steps(), 1);
    edit(QStringLiteral("txtMaska"), QStringLiteral("00"));
    press("cmdOK");
    QCOMPARE(steps(), 2);
    m_form->commandHistory()->undo();
    QCOMPARE(control("field")->property("MaskPicture"), QVariant(QStringLiteral("0")));
    checkHistory(before, 0);
}

void tst_DesignerPages::aDefaultIsNoLongerSaved()
{
    openForm({QStringLiteral("KorNumber")});
    const QString before = m_form->contents();
    for (const bool isDefault : {false, true}) {
        openPages(control("field"));
        edit(QStringLiteral("txtMaska"), isDefault ? QStringLiteral("#,##0.00") : QStringLiteral("0"));
        edit(QStringLiteral("txtMinValue"), isDefault ? QStringLiteral("0") : QStringLiteral("5"));
        edit(QStringLiteral("cmbAlignment"), isDefault ? QStringLiteral("1") : QStringLiteral("2"));
        edit(QStringLiteral("cmdForeColor"), isDefault ? QStringLiteral("8") : QStringLiteral("13"));
        press("cmdOK");
        QCOMPARE(m_form->contents() == before, isDefault);
    }
    QCOMPARE(steps(), 2);
    m_form->commandHistory()->undo();
    QCOMPARE(control("field")->property("MinValue"), QVariant(5.0F));
    QCOMPARE(control("field")->property("MaskPicture"), QVariant(QStringLiteral("0")));
}

void tst_DesignerPages::anApplyThatChangesNothingIsNoStep()
{
    openForm({QStringLiteral("KorCombo")});
    const QString before = m_form->contents();
    openPages(control("field"));
    edit(QStringLiteral("chkCanBeNull"), {});
    edit(QStringLiteral("chkCanBeNull"), {});
    QVERIFY(field<QPushButton>("cmdApply")->isEnabled());
    press("cmdOK");
    QCOMPARE(steps(), 0);
    QVERIFY(!m_form->isDirty());
    QCOMPARE(m_form->contents(), before);
}

void tst_DesignerPages::aRefusedValueLeavesWhatWasWrittenAsOneStep()
{
    openForm({QStringLiteral("KorNumber")});
    const QString before = m_form->contents();
    openPages(control("field"));
    edit(QStringLiteral("txtMaska"), QStringLiteral("0"));
    edit(QStringLiteral("txtMinValue"), QStringLiteral("abc"));
    edit(QStringLiteral("txtMaxValue"), QStringLiteral("5"));
    QString told;
    QTimer::singleShot(0, this, [&] { told = message(); });
    press("cmdOK");
    QCOMPARE(told.isEmpty(), false);
    QVERIFY(dialog());
    QCOMPARE(control("field")->property("MaskPicture"), QVariant(QStringLiteral("0")));
    QCOMPARE(control("field")->property("MinValue"), QVariant(0.0F));
    QCOMPARE(control("field")->property("MaxValue"), QVariant(0.0F));
    press("cmdCancel");
    checkHistory(before, 0);
}

void tst_DesignerPages::cancelChangesNothing()
{
    openForm({QStringLiteral("KorNumber")});
    const QString before = m_form->contents();
    openPages(control("field"));
    edit(QStringLiteral("txtMaska"), QStringLiteral("0"));
    QTest::keyClick(field<QLineEdit>("txtMaska"), Qt::Key_Escape);
    QVERIFY(!dialog());
    QCOMPARE(m_form->contents(), before);
    QCOMPARE(steps(), 0);
}

void tst_DesignerPages::thePagesOfAGridWithoutTheirMembersAreClosed()
{
    openForm({QStringLiteral("KorGrid")});
    openPages(control("field"));
    const auto *tabs = field<QTabWidget>("tabPages");
    QCOMPARE(tabs->count(), 3);
    QVERIFY(!tabs->isTabEnabled(0));
    QVERIFY(!tabs->isTabEnabled(1));
    QVERIFY(tabs->isTabEnabled(2));
    QCOMPARE(message(), QString());
}

int main(int argc, char **argv)
{
    qputenv("QT_PLUGIN_PATH", KOR_PLUGIN_FOLDER); // where the designer looks for a folder "designer"
    QApplication application(argc, argv);
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    tst_DesignerPages test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_designerpages.moc"
