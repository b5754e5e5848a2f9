// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "designer/designerstage.h"

#include <KorDaoUC/ControlRegistry>
#include <KorDaoUC/PropertyBag>
#include <KorDaoUC/PropertyPage>
#include <KorDaoUC/UserControl>

#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QDesignerTaskMenuExtension>
#include <QtDesigner/QExtensionManager>
#include <QtGui/QAction>
#include <QtGui/QUndoStack>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTabWidget>

using namespace kor::test;

//! A program's own grid, bound to a database, whose columns are one property of its form.
class TableGrid final : public kor::UserControl
{
    Q_OBJECT
    Q_PROPERTY(QString DatabaseName MEMBER m_database)
    Q_PROPERTY(QString RecordSource MEMBER m_source)
    Q_PROPERTY(bool ReadOnly MEMBER m_isReadOnly)
    Q_PROPERTY(QString Slownik MEMBER m_dictionary)
    Q_PROPERTY(QStringList Columns MEMBER m_columns) // "1.Title=..."
    Q_PROPERTY(int ColCount READ ColCount)

public:
    explicit TableGrid(QWidget *parent) : UserControl(parent) { setMainConstituent(new QLineEdit(this)); }
    void initProperties() override {}
    void readProperties(const kor::PropertyBag &) override {}
    void writeProperties(kor::PropertyBag &) const override {}

    static int ColCount() { return 4; }
    Q_INVOKABLE QVariant ReadColProperty(int index, const QString &key)
    {
        const QStringList lines = m_columns.filter(start(index, key));
        return lines.isEmpty() ? QVariant() : lines.first().section(u'=', 1);
    }
    Q_INVOKABLE void SaveColProperty(int index, const QString &key, const QVariant &value)
    {
        m_columns.removeIf([line = start(index, key)](const QString &one) { return one.startsWith(line); });
        if (!value.toString().isEmpty() && value.toString() != u"0")
            m_columns << start(index, key) + value.toString();
        m_columns.sort();
    }
    Q_INVOKABLE void RetriveFields() { m_columns = QStringList{QStringLiteral("1.Title=kod")}; }

private:
    static QString start(int index, const QString &key) { return QStringLiteral("%1.%2=").arg(index).arg(key); }

    QString m_database;
    QString m_source;
    bool m_isReadOnly = false;
    QString m_dictionary;
    QStringList m_columns;
};

//! The pages of a program's own grid in the form designer.
class tst_DesignerColumns : public QObject, private DesignerStage
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase() { endDesigner(); }
    void init();
    void cleanup();

    void anApplyOfAColumnIsOneStepAndIsSaved();
    void eachStepToAnotherColumnIsOneStepToUndo();
    void columnsAndBindingAreOneStep();
    void whatAControlFetchesIsOneStep();
    void anApplyThatChangesNothingIsNoStep();

private:
    [[nodiscard]] static QWidget *dialog();
    template <class Widget>
    [[nodiscard]] static Widget *field(const char *page, const char *name)
    {
        return dialog()
            ->findChild<QWidget *>(QString::fromLatin1(page))
            ->findChild<Widget *>(QString::fromLatin1(name));
    }
    static void type(const char *page, const char *name, const QString &text);
    static void press(const char *button)
    {
        QTest::mouseClick(dialog()->findChild<QPushButton *>(QString::fromLatin1(button)), Qt::LeftButton);
    }
    [[nodiscard]] QString columns() const { return control()->property("Columns").toStringList().join(u' '); }
    [[nodiscard]] int steps() const { return m_form->commandHistory()->index(); }

    QString m_before;
};

void tst_DesignerColumns::initTestCase()
{
    kor::ControlRegistry::add(QStringLiteral("TableGrid"), [](QWidget *parent) { return new TableGrid(parent); });
    for (const char *page : {"pagKorGrid1", "pagKorGrid2"})
        kor::ControlRegistry::addPage(
            QString::fromLatin1(page).replace(QLatin1String("Kor"), QLatin1String("Table")),
            [page](QWidget *parent) { return kor::ControlRegistry::createPage(QString::fromLatin1(page), parent); },
            {QStringLiteral("TableGrid")});
    startDesigner();
}

void tst_DesignerColumns::init()
{
    newForm();
    open(formOf(QStringLiteral("TableGrid")));
    QVERIFY(qobject_cast<TableGrid *>(control()));
    m_before = m_form->contents();
    const auto *menu = qt_extension<QDesignerTaskMenuExtension *>(m_core->extensionManager(), control());
    menu->taskActions().first()->trigger();
    QVERIFY(dialog());
    QVERIFY(QTest::qWaitForWindowActive(dialog()));
}

void tst_DesignerColumns::cleanup()
{
    delete dialog();
    closeForm();
}

QWidget *tst_DesignerColumns::dialog()
{
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && window->inherits("kor::PropertyPageDialog"))
            return window;
    }
    return nullptr;
}

void tst_DesignerColumns::type(const char *page, const char *name, const QString &text)
{
    auto *box = field<QLineEdit>(page, name);
    dialog()->findChild<QTabWidget *>()->setCurrentWidget(dialog()->findChild<QWidget *>(QString::fromLatin1(page)));
    box->setFocus();
    box->selectAll();
    QTest::keyClicks(box, text);
}

void tst_DesignerColumns::anApplyOfAColumnIsOneStepAndIsSaved()
{
    type("pagKorGrid2", "txtTitle", QStringLiteral("Nazwa"));
    type("pagKorGrid2", "txtWidth", QStringLiteral("1200"));
    press("cmdOK");
    QVERIFY(!dialog());
    QCOMPARE(columns(), QStringLiteral("1.Title=Nazwa 1.Width=1200"));
    QCOMPARE(steps(), 1);
    QVERIFY(m_form->isDirty());
    const QString after = m_form->contents();
    QVERIFY(after.contains(QStringLiteral("<string>1.Title=Nazwa</string>")));
    m_form->commandHistory()->undo();
    QCOMPARE(columns(), QString());
    QCOMPARE(m_form->contents(), m_before);
    m_form->commandHistory()->redo();
    QCOMPARE(columns(), QStringLiteral("1.Title=Nazwa 1.Width=1200"));
    open(after);
    QCOMPARE(columns(), QStringLiteral("1.Title=Nazwa 1.Width=1200"));
}

void tst_DesignerColumns::eachStepToAnotherColumnIsOneStepToUndo()
{
    type("pagKorGrid2", "txtTitle", QStringLiteral("Kod"));
    press("cmdNext");
    type("pagKorGrid2", "txtTitle", QStringLiteral("Nazwa"));
    press("cmdPrev");
    QCOMPARE(columns(), QStringLiteral("1.Title=Kod 2.Title=Nazwa"));
    QCOMPARE(steps(), 2);
    press("cmdCancel");
    QCOMPARE(columns(), QStringLiteral("1.Title=Kod 2.Title=Nazwa"));
    m_form->commandHistory()->undo();
    QCOMPARE(columns(), QStringLiteral("1.Title=Kod"));
    m_form->commandHistory()->undo();
    QCOMPARE(m_form->contents(), m_before);
}

void tst_DesignerColumns::columnsAndBindingAreOneStep()
{
    type("pagKorGrid1", "txtRecordSource", QStringLiteral("SELECT 1"));
    type("pagKorGrid2", "txtTitle", QStringLiteral("Kod"));
    press("cmdOK");
    QCOMPARE(control()->property("RecordSource"), QVariant(QStringLiteral("SELECT 1")));
    QCOMPARE(columns(), QStringLiteral("1.Title=Kod"));
    QCOMPARE(steps(), 1);
    m_form->commandHistory()->undo();
    QCOMPARE(columns(), QString());
    QCOMPARE(m_form->contents(), m_before);
}

void tst_DesignerColumns::whatAControlFetchesIsOneStep()
{
    dialog()->findChild<QTabWidget *>()->setCurrentIndex(0);
    press("cmdRetrive");
    QCOMPARE(columns(), QStringLiteral("1.Title=kod"));
    QCOMPARE(steps(), 1);
    QVERIFY(m_form->contents().contains(QStringLiteral("<string>1.Title=kod</string>")));
    m_form->commandHistory()->undo();
    QCOMPARE(m_form->contents(), m_before);
}

void tst_DesignerColumns::anApplyThatChangesNothingIsNoStep()
{
    type("pagKorGrid2", "txtTitle", QStringLiteral("x"));
    QTest::keyClick(field<QLineEdit>("pagKorGrid2", "txtTitle"), Qt::Key_Backspace);
    press("cmdOK");
    QCOMPARE(steps(), 0);
    QVERIFY(!m_form->isDirty());
    QCOMPARE(m_form->contents(), m_before);
}

int main(int argc, char **argv)
{
    qputenv("QT_PLUGIN_PATH", KOR_PLUGIN_FOLDER); // where the designer looks for a folder "designer"
    QApplication application(argc, argv);
    tst_DesignerColumns test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_designercolumns.moc"
