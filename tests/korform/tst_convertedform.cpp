// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "korform/formofall.h"
#include "ui_all.h"

#include <KorDaoUC/Clock>
#include <KorDaoUC/FormBuilder>
#include <KorDaoUC/UiFile>

#include <QtCore/QBuffer>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowCursorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QDesignerFormWindowManagerInterface>
#include <QtDesigner/QDesignerIntegration>
#include <QtDesigner/qdesigner_components.h>
#include <QtTest/QtTest>
#include <QtUiTools/QUiLoader>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMessageBox>

#include <memory>

namespace FormFile = kor::FormFile;
namespace UiFile = kor::UiFile;
using namespace kor::test;

namespace {

//! Whether a setting is read when a form file is loaded, and is a property besides.
bool isTold(const kor::UserControl &control, const QString &key)
{
    if (key == u"DataChanged") // whichever loader sets a text, the control calls it changed
        return false;
    bool isRead = false;
    for (const kor::SavedSetting &setting : control.savedSettings())
        isRead = isRead || (setting.key == key && setting.use != kor::SettingUse::WriteOnly);
    return isRead && control.metaObject()->indexOfProperty(key.toLatin1().constData()) >= 0;
}

//! What can be told of a control that stands on a form.
QString state(QWidget *window, const QString &name)
{
    const auto *control = window->findChild<kor::UserControl *>(name);
    if (!control)
        return QStringLiteral("there is none");
    kor::FormBlock block{QLatin1String(control->metaObject()->className()), name, {}, {}};
    kor::PropertyBag settings;
    control->writeProperties(settings);
    for (const auto &[key, value] : settings.entries()) {
        if (isTold(*control, key))
            block.properties.append(key, value);
    }
    const QRect place(control->mapTo(window, QPoint()), control->size());
    return QStringLiteral("%1,%2 %3x%4\n").arg(place.x()).arg(place.y()).arg(place.width()).arg(place.height()) +
           QString::fromUtf8(FormFile::serialize(block));
}

//! The names of what the Tab key reaches, in its order.
QStringList tabOrder(const QWidget *window)
{
    QStringList names;
    const QWidget *widget = window->nextInFocusChain();
    for (; widget != window; widget = widget->nextInFocusChain()) {
        const bool isItem = qobject_cast<const kor::UserControl *>(widget) || widget->inherits("QPushButton");
        if (isItem && (widget->focusPolicy() & Qt::TabFocus) && widget->objectName().startsWith(QLatin1String("the")))
            names << widget->objectName();
    }
    return names;
}

} // namespace

//! A form with all controls, converted: loaded, compiled and designed it is the same form.
class tst_ConvertedForm : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void theFormCanBeBuilt();
    void loadedAndCompiledAreTheSame_data();
    void loadedAndCompiledAreTheSame();
    void theOrderOfTabIsTheSame();
    void labelsLeadToTheSame();
    void theDesignerKeepsTheForm();
    void theDesignerKeepsTheFormOfTheSample();
    void aChangeInTheDesignerIsOneLine_data();
    void aChangeInTheDesignerIsOneLine();

private:
    //! A .ui file's form after the form designer has opened and saved it, with what `change` did to it.
    QByteArray designed(QByteArray ui, const std::function<void(QDesignerFormWindowInterface &)> &change = {});

    kor::FormBlock m_form;
    QByteArray m_text;
    QByteArray m_ui;
    std::unique_ptr<QWidget> m_built;
    kor::FormBuilder m_builder;
    std::unique_ptr<QWidget> m_loaded;
    std::unique_ptr<QWidget> m_compiled;
    Ui::frmAll m_members;
    std::unique_ptr<QWidget> m_designerWindow;
    QDesignerFormEditorInterface *m_core = nullptr;
};

void tst_ConvertedForm::initTestCase()
{
    kor::Clock::setSource([] { return QDate(2026, 3, 4); });
    m_form = formOfAllControls();
    m_text = FormFile::serialize(m_form);
    const UiFile::Text ui = UiFile::fromForm(m_form);
    QVERIFY(ui.ui);
    m_ui = *ui.ui;
    m_built = std::make_unique<QWidget>();
    QCOMPARE(m_builder.build(m_form, m_built.get()), std::nullopt);

    QUiLoader loader;
    loader.clearPluginPaths();
    loader.addPluginPath(QStringLiteral(KOR_PLUGIN_FOLDER "/designer"));
    QBuffer buffer(&m_ui);
    m_loaded.reset(loader.load(&buffer));
    QVERIFY(m_loaded);
    m_compiled = std::make_unique<QWidget>();
    m_members.setupUi(m_compiled.get());

    for (QWidget *window : {m_built.get(), m_loaded.get(), m_compiled.get()}) {
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window));
    }

    QDesignerComponents::initializeResources();
    m_designerWindow = std::make_unique<QWidget>();
    QWidget *window = m_designerWindow.get();
    m_core = QDesignerComponents::createFormEditor(this);
    m_core->setTopLevel(window);
    m_core->setWidgetBox(QDesignerComponents::createWidgetBox(m_core, window));
    m_core->setPropertyEditor(QDesignerComponents::createPropertyEditor(m_core, window));
    m_core->setObjectInspector(QDesignerComponents::createObjectInspector(m_core, window));
    m_core->setActionEditor(QDesignerComponents::createActionEditor(m_core, window));
    new QDesignerIntegration(m_core, m_core);
    QDesignerComponents::initializePlugins(m_core);
}

void tst_ConvertedForm::cleanupTestCase() { m_designerWindow.reset(); }

void tst_ConvertedForm::theFormCanBeBuilt()
{
    for (const kor::FormFault &fault : kor::FormBuilder().check(m_form))
        QVERIFY2(fault.isWarning, qPrintable(fault.reason));
    const UiFile::Form back = UiFile::toForm(m_ui);
    QCOMPARE(FormFile::serialize(*back.form), m_text);
}

void tst_ConvertedForm::loadedAndCompiledAreTheSame_data()
{
    QTest::addColumn<QString>("name");
    for (const QString &type : kor::ControlRegistry::names()) {
        QTest::newRow(qPrintable(type + QStringLiteral(", changed"))) << QStringLiteral("the") + type;
        QTest::newRow(qPrintable(type + QStringLiteral(", new"))) << QStringLiteral("new") + type;
    }
}

void tst_ConvertedForm::loadedAndCompiledAreTheSame()
{
    QFETCH(const QString, name);
    QCOMPARE(state(m_loaded.get(), name), state(m_built.get(), name));
    QCOMPARE(state(m_compiled.get(), name), state(m_built.get(), name));
}

void tst_ConvertedForm::theOrderOfTabIsTheSame()
{
    const QStringList order = tabOrder(m_built.get());
    QVERIFY(order.size() >= kor::ControlRegistry::names().size());
    QCOMPARE(tabOrder(m_loaded.get()), order);
    QCOMPARE(tabOrder(m_compiled.get()), order);
}

void tst_ConvertedForm::labelsLeadToTheSame()
{
    for (const QString &type : kor::ControlRegistry::names()) {
        const QString name = QStringLiteral("lbl") + type;
        const QWidget *buddy = m_built->findChild<QLabel *>(name)->buddy();
        QVERIFY(buddy);
        for (const QWidget *window : {m_loaded.get(), m_compiled.get()}) {
            const QWidget *other = window->findChild<QLabel *>(name)->buddy();
            QCOMPARE(other ? other->objectName() : QString(), buddy->objectName());
        }
    }
}

QByteArray tst_ConvertedForm::designed(QByteArray ui, const std::function<void(QDesignerFormWindowInterface &)> &change)
{
    QDesignerFormWindowInterface *form = m_core->formWindowManager()->createFormWindow(m_designerWindow.get());
    QBuffer buffer(&ui);
    QString reason;
    if (!buffer.open(QIODevice::ReadOnly) || !form->setContents(&buffer, &reason))
        return "(refused) " + reason.toUtf8();
    m_core->formWindowManager()->setActiveFormWindow(form);
    if (change)
        change(*form);
    const QByteArray saved = form->contents().toUtf8();
    QApplication::processEvents(); // when the designer tells what it was refused
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (const auto *box = qobject_cast<QMessageBox *>(window); box && box->isVisible())
            return "(message) " + box->text().toUtf8();
    }
    delete form;
    const UiFile::Form back = UiFile::toForm(saved);
    return back.form ? FormFile::serialize(*back.form) : "(refused) " + back.error.reason.toUtf8();
}

void tst_ConvertedForm::theDesignerKeepsTheForm()
{
    const QByteArray text = designed(m_ui);
    const QByteArrayList left = m_text.split('\n');
    const QByteArrayList right = text.split('\n');
    for (qsizetype line = 0; line < left.size(); ++line)
        QCOMPARE(right.value(line), left.at(line));
    QCOMPARE(text, m_text);
}

void tst_ConvertedForm::theDesignerKeepsTheFormOfTheSample()
{
    QFile file(QStringLiteral(KOR_FORM));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const kor::FormResult form = FormFile::parse(file.readAll());
    QVERIFY(form.form);
    const UiFile::Text ui = UiFile::fromForm(*form.form);
    QVERIFY(ui.ui);
    QCOMPARE(designed(*ui.ui), FormFile::serialize(*form.form));
}

void tst_ConvertedForm::aChangeInTheDesignerIsOneLine_data()
{
    QTest::addColumn<QString>("widget");
    QTest::addColumn<QString>("property");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QByteArray>("was");
    QTest::addColumn<QByteArray>("is");
    // clang-format off
    QTest::newRow("a text")      << QStringLiteral("theKorNumber") << QStringLiteral("MaskPicture") << QVariant(QStringLiteral("0.00")) << QByteArray("MaskPicture = \"inny, \"\"łódź\"\" & <b>\\nkoniec \"\n         MaxValue = 1234.5!") << QByteArray("MaskPicture = \"0.00\"\n         MaxValue = 1234.5!");
    QTest::newRow("the place")   << QStringLiteral("lblKorNumber") << QStringLiteral("geometry")    << QVariant(QRect(7, 21, 100, 40))  << QByteArray("Left = 100\n         Top = 300\n         Width = 1501") << QByteArray("Left = 100\n         Top = 315\n         Width = 1501");
    QTest::newRow("a caption")   << QStringLiteral("cmdSave")      << QStringLiteral("text")        << QVariant(QStringLiteral("&Tak")) << QByteArray("&Zapisz") << QByteArray("&Tak");
    // clang-format on
}

void tst_ConvertedForm::aChangeInTheDesignerIsOneLine()
{
    QFETCH(const QString, widget);
    QFETCH(const QString, property);
    QFETCH(const QVariant, value);
    QFETCH(const QByteArray, was);
    QFETCH(const QByteArray, is);
    QVERIFY2(m_text.contains(was), m_text.constData());
    const QByteArray text = designed(m_ui, [&](QDesignerFormWindowInterface &form) {
        auto *changed = form.findChild<QWidget *>(widget);
        QVERIFY(changed);
        form.cursor()->setWidgetProperty(changed, property, value);
    });
    QByteArray expected = m_text;
    expected.replace(expected.indexOf(was), was.size(), is);
    QCOMPARE(text, expected);
}

int main(int argc, char **argv)
{
    qputenv("QT_PLUGIN_PATH", KOR_PLUGIN_FOLDER); // where the designer looks for a folder "designer"
    QApplication application(argc, argv);
    tst_ConvertedForm test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_convertedform.moc"
