// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "designer/designerstage.h"

#include <QtCore/QBuffer>
#include <QtCore/QMetaProperty>
#include <QtCore/QPluginLoader>
#include <QtDesigner/QDesignerDynamicPropertySheetExtension>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowCursorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QDesignerFormWindowManagerInterface>
#include <QtDesigner/QDesignerPropertySheetExtension>
#include <QtDesigner/QExtensionManager>
#include <QtDesigner/QFormBuilder>
#include <QtGui/QActionGroup>
#include <QtGui/QPainter>
#include <QtGui/QUndoStack>
#include <QtTest/QtTest>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyle>

#include <cstdlib>
#include <memory>
#include <vector>

using namespace kor::test;

//! The form designer itself, with the library's plugin in its folder, as a user of it meets the controls.
class tst_Designer : public QObject, private DesignerStage
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { startDesigner(); }
    void cleanupTestCase() { endDesigner(); }
    void init() { newForm(); }
    void cleanup() { closeForm(); }

    void aNewControlStoresItsPlaceOnly_data() { controls(); }
    void aNewControlStoresItsPlaceOnly();
    void everyPropertyThatIsOfferedIsSaved_data() { controls(); }
    void everyPropertyThatIsOfferedIsSaved();
    void aResetPropertyIsNoLongerSaved_data() { controls(); }
    void aResetPropertyIsNoLongerSaved();
    void aRefusedValueIsToldAndTheOldOneStays();
    void refusedValuesOfAFileAreToldInOneMessage();
    void aChangeIsUndone();
    void aRangeIsOfferedWithItsBounds();
    void userModeIsNeitherShownNorSaved_data() { controls(); }
    void userModeIsNeitherShownNorSaved();
    void thePreviewRuns_data();
    void thePreviewRuns();
    void sizesAreTheSameInDesignPreviewAndRun_data();
    void sizesAreTheSameInDesignPreviewAndRun();
    void loadingAndSavingLeavesThePlace_data() { sizesAreTheSameInDesignPreviewAndRun_data(); }
    void loadingAndSavingLeavesThePlace();
    void aMovedControlIsSavedWithItsNewPlace_data() { controls(); }
    void aMovedControlIsSavedWithItsNewPlace();
    void aControlMovedInTheDesignerKeepsItsSize_data() { controls(); }
    void aControlMovedInTheDesignerKeepsItsSize();
    void aRefusedValueOfALoadedFormIsAWarning();
    void everyControlHasItsOwnIcon_data();
    void everyControlHasItsOwnIcon();

private:
    static void controls();
    //! The properties of the library's own that the property editor shows.
    [[nodiscard]] std::vector<QMetaProperty> offered() const;
    void set(const char *property, const QVariant &value);
    [[nodiscard]] QVariant shown(const char *property) const { return control()->property(property); }
    //! The form's preview in a style.
    [[nodiscard]] QWidget *preview(const QString &style);
};

namespace {

QString placed(int x, int y, int width, int height)
{
    return QStringLiteral("<property name=\"geometry\"><rect><x>%1</x><y>%2</y><width>%3</width><height>%4</height>"
                          "</rect></property>")
        .arg(x)
        .arg(y)
        .arg(width)
        .arg(height);
}

//! Another value than the one a property has, and one that its control takes.
QVariant otherThan(const QMetaProperty &property, const QVariant &value)
{
    const QByteArray name = property.name();
    if (property.isEnumType())
        return value.toInt() == 0 ? 1 : 0;
    if (name == "Value")
        return 7; // a spin value in the range, a colour that is none of the named ones
    if (name == "MinValue" || name == "MaxValue")
        return value.toDouble() + 1234.5;
    if (name == "BackStyle")
        return 0;
    switch (property.metaType().id()) {
    case QMetaType::Bool: return !value.toBool();
    case QMetaType::Int: return value.toInt() + 4;
    case QMetaType::QFont: return QFont(QStringLiteral("DejaVu Sans"), 17);
    default: break;
    }
    if (name != "Text")
        return QStringLiteral("inny, \"łódź\"");
    return value.toString().isEmpty() || value == QStringLiteral("Text1") ? QStringLiteral("7") : QString(); // no date
}

bool isRunning(const QWidget *control)
{
    bool userMode = false;
    const bool isCalled =
        QMetaObject::invokeMethod(const_cast<QWidget *>(control), "UserMode", Q_RETURN_ARG(bool, userMode));
    return isCalled && userMode;
}

//! What stands where in a control.
QStringList places(const QWidget *control)
{
    QStringList all;
    for (const QWidget *part : control->findChildren<QWidget *>()) {
        if (part->objectName().isEmpty() || part->objectName().startsWith(QLatin1String("qt_")) || part->isWindow())
            continue;
        if (!part->isVisibleTo(const_cast<QWidget *>(control)))
            continue; // a grid's editors lie nowhere until a cell is edited
        const QRect place(part->mapTo(control, QPoint()), part->size());
        all << QStringLiteral("%1 %2,%3 %4x%5")
                   .arg(part->objectName())
                   .arg(place.x())
                   .arg(place.y())
                   .arg(place.width())
                   .arg(place.height());
    }
    all.sort();
    all.prepend(QStringLiteral("%1x%2").arg(control->width()).arg(control->height()));
    return all;
}

} // namespace

void tst_Designer::controls()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"KorNumber", "KorDate", "KorCombo", "KorClick", "KorList", "KorListCheck", "KorColor",
                             "KorUpDown", "KorParam", "KorMultiText", "KorGrid"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

std::vector<QMetaProperty> tst_Designer::offered() const
{
    std::vector<QMetaProperty> all;
    const QMetaObject *type = control()->metaObject();
    for (int i = QWidget::staticMetaObject.propertyCount(); i < type->propertyCount(); ++i) {
        const int index = sheet()->indexOf(QString::fromLatin1(type->property(i).name()));
        if (index >= 0 && sheet()->isVisible(index))
            all.push_back(type->property(i));
    }
    return all;
}

void tst_Designer::set(const char *property, const QVariant &value)
{
    m_form->cursor()->setProperty(QString::fromLatin1(property), value);
}

QWidget *tst_Designer::preview(const QString &style)
{
    const QDesignerFormWindowManagerInterface *windows = m_core->formWindowManager();
    const QActionGroup *styles = windows->actionGroup(QDesignerFormWindowManagerInterface::StyledPreviewActionGroup);
    for (QAction *action : styles->actions()) {
        if (action->data().toString().compare(style, Qt::CaseInsensitive) == 0)
            action->trigger();
    }
    for (QWidget *window : QApplication::topLevelWidgets()) {
        auto *field = window->findChild<QWidget *>(QStringLiteral("field"));
        if (field && field != control() && window->isVisible() && !window->isAncestorOf(m_form))
            return field;
    }
    return nullptr;
}

void tst_Designer::aNewControlStoresItsPlaceOnly()
{
    QFETCH(QString, name);
    open(formOf(name));
    QCOMPARE(QString::fromLatin1(control()->metaObject()->className()), name);
    QVERIFY(!isRunning(control()));
    const QString saved = m_form->contents();
    const QString block = saved.section(QStringLiteral("name=\"field\""), 1);
    QVERIFY(block.contains(QStringLiteral("<property name=\"geometry\"")));
    QCOMPARE(block.count(QStringLiteral("<property")), 1);
}

void tst_Designer::everyPropertyThatIsOfferedIsSaved()
{
    QFETCH(QString, name);
    open(formOf(name));
    QVariantMap changed;
    for (const QMetaProperty &property : offered()) {
        set(property.name(), otherThan(property, property.read(control())));
        QVERIFY2(sheet()->isChanged(sheet()->indexOf(QString::fromLatin1(property.name()))), property.name());
        changed.insert(QString::fromLatin1(property.name()), QVariant());
    }
    QVERIFY(changed.size() >= 6);
    for (auto one = changed.begin(); one != changed.end(); ++one)
        one.value() = control()->property(qPrintable(one.key()));
    const QString saved = m_form->contents();
    QCOMPARE(message(), QString());

    // Loaded by the designer again, and by a program that runs
    open(saved);
    QCOMPARE(m_form->contents(), saved);
    const std::unique_ptr<QWidget> running = run(saved);
    QVERIFY(running);
    const auto *run = running->findChild<QWidget *>(QStringLiteral("field"));
    for (auto one = changed.cbegin(); one != changed.cend(); ++one) {
        QVERIFY2(saved.contains(QStringLiteral("<property name=\"%1\"").arg(one.key())), qPrintable(one.key()));
        QCOMPARE(control()->property(qPrintable(one.key())), one.value());
        QCOMPARE(run->property(qPrintable(one.key())), one.value());
    }
}

void tst_Designer::aResetPropertyIsNoLongerSaved()
{
    QFETCH(QString, name);
    open(formOf(name));
    const QString before = m_form->contents();
    const std::vector<QMetaProperty> properties = offered();
    QVariantList values;
    for (const QMetaProperty &property : properties)
        values << property.read(control());
    for (std::size_t i = 0; i < properties.size(); ++i) {
        set(properties[i].name(), otherThan(properties[i], values[i]));
        QVERIFY2(properties[i].read(control()) != values[i], properties[i].name());
    }
    QVERIFY(m_form->contents() != before);
    // Backwards: a text comes before the value that writes it
    for (std::size_t i = properties.size(); i-- > 0;)
        m_form->cursor()->resetWidgetProperty(control(), QString::fromLatin1(properties[i].name()));
    for (std::size_t i = 0; i < properties.size(); ++i)
        QCOMPARE(properties[i].read(control()), values[i]);
    QCOMPARE(m_form->contents(), before);
}

void tst_Designer::aRefusedValueIsToldAndTheOldOneStays()
{
    open(formOf(QStringLiteral("KorUpDown")));
    set("Value", 9);
    set("Value", 50);
    set("Increment", 0);
    QCOMPARE(shown("Value"), QVariant(9));
    QCOMPARE(shown("Increment"), QVariant(1));
    QCoreApplication::processEvents();
    QCOMPARE(message(), QStringLiteral("field.Value: Invalid property value\nfield.Increment: Invalid property value"));
    QVERIFY(!m_form->contents().contains(QStringLiteral("<number>50</number>")));
    set("Value", 3);
    QCOMPARE(shown("Value"), QVariant(3));
    QCoreApplication::processEvents();
    QCOMPARE(message(), QString());
}

void tst_Designer::refusedValuesOfAFileAreToldInOneMessage()
{
    open(formOf(QStringLiteral("KorMultiText"),
                QStringLiteral("<property name=\"MaxLength\"><number>-1</number></property>"
                               "<property name=\"OpenLines\"><number>70000</number></property>"
                               "<property name=\"Text\"><string>uwagi</string></property>")));
    QCOMPARE(shown("Text"), QVariant(QStringLiteral("uwagi")));
    QCOMPARE(shown("MaxLength"), QVariant(0));
    QCOMPARE(shown("OpenLines"), QVariant(5));
    QCoreApplication::processEvents();
    QCOMPARE(message(), QStringLiteral("field.MaxLength: Invalid property value\nfield.OpenLines: Overflow"));
}

void tst_Designer::aChangeIsUndone()
{
    open(formOf(QStringLiteral("KorNumber")));
    set("MaskPicture", QStringLiteral("0.000"));
    QVERIFY(m_form->isDirty());
    QCOMPARE(shown("MaskPicture"), QVariant(QStringLiteral("0.000")));
    m_form->commandHistory()->undo();
    QCOMPARE(shown("MaskPicture"), QVariant(QStringLiteral("#,##0.00")));
    QVERIFY(!m_form->contents().contains(QStringLiteral("MaskPicture")));
}

void tst_Designer::aRangeIsOfferedWithItsBounds()
{
    open(formOf(QStringLiteral("KorNumber")));
    for (const char *name : {"MinValue", "MaxValue"}) {
        const int index = sheet()->indexOf(QString::fromLatin1(name));
        QVERIFY(sheet()->isVisible(index));
        QCOMPARE(sheet()->property(index), QVariant(0.0)); // a number, which the property editor can show
    }
    set("MaxValue", 0.7);
    QCOMPARE(shown("MaxValue"), QVariant(0.7F));
    m_form->commandHistory()->undo();
    QCOMPARE(shown("MaxValue"), QVariant(0.0F));
    QVERIFY(!m_form->contents().contains(QStringLiteral("MaxValue")));
}

void tst_Designer::userModeIsNeitherShownNorSaved()
{
    QFETCH(QString, name);
    const auto isShown = [this] {
        const int index = sheet()->indexOf(QStringLiteral("UserMode"));
        return index >= 0 && sheet()->isVisible(index);
    };
    open(formOf(name));
    QVERIFY(!isShown());
    const auto *dynamic = qt_extension<QDesignerDynamicPropertySheetExtension *>(m_core->extensionManager(), control());
    QVERIFY(!dynamic->canAddDynamicProperty(QStringLiteral("UserMode")));
    QVERIFY(dynamic->canAddDynamicProperty(QStringLiteral("userMode")));

    // A form that holds it already
    for (const char *attribute : {"", " stdset=\"0\""}) {
        const QString old = formOf(name, QStringLiteral("<property name=\"UserMode\"%1><bool>false</bool></property>"
                                                        "<property name=\"toolTip\"><string>x</string></property>")
                                             .arg(QString::fromLatin1(attribute)));
        QVERIFY(isRunning(run(old)->findChild<QWidget *>(QStringLiteral("field"))));
        open(old);
        QVERIFY(!isShown());
        QVERIFY(!isRunning(control()));
        QVERIFY(m_form->contents().contains(QStringLiteral("toolTip")));
        QVERIFY(!m_form->contents().contains(QStringLiteral("UserMode")));
    }
    for (QWidget *parent = control()->parentWidget(); parent != m_form; parent = parent->parentWidget())
        QVERIFY(!parent->dynamicPropertyNames().contains("UserMode")); // in what is saved
}

void tst_Designer::thePreviewRuns_data()
{
    QTest::addColumn<QString>("style");
    QTest::newRow("in the style of the designer") << QApplication::style()->name();
    const auto *styles =
        m_core->formWindowManager()->actionGroup(QDesignerFormWindowManagerInterface::StyledPreviewActionGroup);
    for (const QAction *style : styles->actions()) {
        if (!style->text().isEmpty()) // no separator
            QTest::addRow("in the style %s", qPrintable(style->text())) << style->data().toString();
    }
}

void tst_Designer::thePreviewRuns()
{
    QFETCH(QString, style);
    open(formOf(QStringLiteral("KorDate")));
    QAction command; // which the designer has on that key
    command.setShortcut(Qt::Key_F4);
    command.setShortcutContext(Qt::ApplicationShortcut);
    m_window->addAction(&command);
    m_window->show();
    QSignalSpy commanded(&command, &QAction::triggered);
    QWidget *field = preview(style);
    QVERIFY(field);
    QVERIFY(isRunning(field));
    QVERIFY(!isRunning(control()));
    field->window()->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(field->window()));
    field->setFocus();
    QTest::keyClick(field->findChild<QWidget *>(QStringLiteral("txtDate")), Qt::Key_F4);
    const auto *calendar = field->findChild<QWidget *>(QStringLiteral("frmMonth"));
    QVERIFY(calendar);
    QVERIFY(calendar->isVisible());
    QVERIFY(commanded.isEmpty());
    m_core->formWindowManager()->closeAllPreviews();
    m_window->hide();
}

void tst_Designer::sizesAreTheSameInDesignPreviewAndRun_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("place");
    for (const char *name : {"KorNumber", "KorDate", "KorCombo", "KorClick", "KorList", "KorListCheck", "KorColor",
                             "KorUpDown", "KorParam", "KorMultiText", "KorGrid"}) {
        for (const int height : {16, 22, 61}) {
            QTest::addRow("%s, %d high", name, height) << QString::fromLatin1(name) << placed(10, 10, 150, height);
        }
    }
}

void tst_Designer::sizesAreTheSameInDesignPreviewAndRun()
{
    QFETCH(QString, name);
    QFETCH(QString, place);
    open(formOf(name, place));
    m_window->show();
    m_form->show();
    const QStringList designed = places(control());
    const QWidget *previewed = preview(QApplication::style()->name());
    QVERIFY(previewed);
    QCOMPARE(places(previewed), designed);
    m_core->formWindowManager()->closeAllPreviews();
    const std::unique_ptr<QWidget> form = run(m_form->contents());
    form->show();
    QCOMPARE(places(form->findChild<QWidget *>(QStringLiteral("field"))), designed);
    m_window->hide();
}

void tst_Designer::loadingAndSavingLeavesThePlace()
{
    QFETCH(QString, name);
    QFETCH(QString, place);
    open(formOf(name, place));
    const auto isKept = [&] {
        return m_form->contents().simplified().remove(u' ').contains(QString(place).remove(u' '));
    };
    QVERIFY2(isKept(), "loaded");
    m_window->show();
    m_form->show();
    QFont font = m_form->font();
    font.setPointSize(font.pointSize() + 3);
    m_form->setFont(font);
    QCoreApplication::processEvents();
    const bool isKeptWhenShown = isKept();
    m_window->hide();
    m_form->setFont(QFont());
    QVERIFY2(isKeptWhenShown, "shown in another font");
    open(m_form->contents());
    QVERIFY2(isKept(), "saved and loaded once more");
}

void tst_Designer::aMovedControlIsSavedWithItsNewPlace()
{
    QFETCH(QString, name);
    open(formOf(name, placed(10, 10, 150, 61)));
    control()->move(20, 30);
    const QRect moved = sheet()->property(sheet()->indexOf(QStringLiteral("geometry"))).toRect();
    QCOMPARE(moved, QRect(20, 30, 150, 61)); // not the height of a list's whole rows
    set("geometry", QRect(5, 6, 170, 83));
    QVERIFY(m_form->contents().simplified().remove(u' ').contains(placed(5, 6, 170, 83).remove(u' ')));
}

void tst_Designer::aControlMovedInTheDesignerKeepsItsSize()
{
    QFETCH(QString, name);
    open(formOf(name, placed(10, 10, 150, 61)));
    const auto isSaved = [this](const QString &place) {
        return m_form->contents().simplified().remove(u' ').contains(QString(place).remove(u' '));
    };
    for (const int left : {11, 12}) { // as the arrow keys and the mouse do: with the size that is seen
        set("geometry", QRect(QPoint(left, 10), control()->size()));
        QVERIFY(isSaved(placed(left, 10, 150, 61)));
    }
    m_form->commandHistory()->undo();
    QVERIFY(m_form->contents().contains(QStringLiteral("<height>61</height>")));
    set("geometry", QRect(20, 30, 150, 95));
    QVERIFY(isSaved(placed(20, 30, 150, 95)));
}

// The toolkit's other loader is in the designer's library.
void tst_Designer::aRefusedValueOfALoadedFormIsAWarning()
{
    QFormBuilder builder;
    builder.setPluginPath({QStringLiteral(KOR_PLUGIN_FOLDER "/designer")});
    QByteArray form = formOf(QStringLiteral("KorUpDown"),
                             QStringLiteral("<property name=\"Increment\"><number>-1</number></property>"
                                            "<property name=\"MaxLength\"><number>4</number></property>"))
                          .toUtf8();
    QBuffer buffer(&form);
    QVERIFY(buffer.open(QIODevice::ReadOnly));
    QTest::ignoreMessage(QtWarningMsg,
                         "KorUpDown field, Increment: error 380: Invalid property value; the value stays as "
                         "it was");
    const std::unique_ptr<QWidget> window(builder.load(&buffer, nullptr));
    QVERIFY(window);
    const auto *field = window->findChild<QWidget *>(QStringLiteral("field"));
    QCOMPARE(field->metaObject()->className(), "KorUpDown");
    QCOMPARE(field->property("Increment"), QVariant(1));
    QCOMPARE(field->property("MaxLength"), QVariant(4));
}

void tst_Designer::everyControlHasItsOwnIcon_data()
{
    QTest::addColumn<int>("side");
    for (const int side : {16, 22, 24, 32, 48, 64})
        QTest::addRow("%d pixels", side) << side;
}

void tst_Designer::everyControlHasItsOwnIcon()
{
    QFETCH(int, side);
    QPluginLoader loader(QStringLiteral(KOR_PLUGIN_FOLDER "/designer/libKorDaoUCPlugin.so"));
    const auto *all = qobject_cast<QDesignerCustomWidgetCollectionInterface *>(loader.instance());
    QVERIFY(all);
    QList<QImage> pictures;
    for (const QDesignerCustomWidgetInterface *control : all->customWidgets()) {
        QVERIFY(!control->icon().availableSizes().isEmpty()); // the widget box shows no others
        const QPixmap picture = control->icon().pixmap(QSize(side, side), 1.0);
        QCOMPARE(picture.size(), QSize(side, side));
        for (const QColor ground : {QColor(Qt::white), QColor(30, 30, 30)}) {
            QImage seen(side, side, QImage::Format_RGB32);
            seen.fill(ground);
            QPainter(&seen).drawPixmap(0, 0, picture);
            int different = 0;
            for (int y = 0; y < side; ++y) {
                for (int x = 0; x < side; ++x)
                    different += std::abs(qGray(seen.pixel(x, y)) - qGray(ground.rgb())) > 60;
            }
            QVERIFY2(different > side * side / 8, qPrintable(control->name()));
        }
        QVERIFY2(!pictures.contains(picture.toImage()), qPrintable(control->name()));
        pictures << picture.toImage();
    }
    QVERIFY(!pictures.isEmpty());
}

int main(int argc, char **argv)
{
    qputenv("QT_PLUGIN_PATH", KOR_PLUGIN_FOLDER); // where the designer looks for a folder "designer"
    QApplication application(argc, argv);
    tst_Designer test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_designer.moc"
