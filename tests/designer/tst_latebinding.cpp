// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include <QtCore/QBuffer>
#include <QtCore/QMetaMethod>
#include <QtCore/QMetaProperty>
#include <QtTest/QtTest>
#include <QtUiTools/QUiLoader>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>

#include <exception>
#include <memory>

//! A host that does not link the library and creates the controls by their names only.
class tst_LateBinding : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void init();

    void theClassIsTheRealOne();
    void propertiesAreReachedByName();
    void enumerationsTakeNumbers();
    void errorsAreStandardExceptionsThatBeginWithTheirNumber();
    void eventsGiveTheirArgumentsByReference();
    void everyEventOfTheContractIsThere();
    void valueIsTheUserProperty();
    void missingArgumentCountsAsNull();
    void settingsAreReadAndWrittenByName();
    void aDesignersFormLoads();
    void aFormWithRefusedValuesLoadsWithWarnings();
    void errorsAreThrownToWhoeverIsNoFormLoader();

public Q_SLOTS:
    void swallow(int &keyAscii) { keyAscii = keyAscii == '5' ? 0 : keyAscii; }

private:
    QUiLoader m_loader;
    std::unique_ptr<QWidget> m_number;
};

void tst_LateBinding::initTestCase()
{
    m_loader.clearPluginPaths();
    m_loader.addPluginPath(QStringLiteral(KOR_PLUGIN_FOLDER));
}

void tst_LateBinding::init() { m_number.reset(m_loader.createWidget(QStringLiteral("KorNumber"))); }

void tst_LateBinding::theClassIsTheRealOne()
{
    QVERIFY(m_number);
    QCOMPARE(m_number->metaObject()->className(), "KorNumber");
    QVERIFY(m_loader.availableWidgets().contains(QStringLiteral("KorNumber")));
    QVERIFY(m_number->findChild<QLineEdit *>(QStringLiteral("txtNumber")));
}

void tst_LateBinding::propertiesAreReachedByName()
{
    m_number->resize(200, 26);
    QVERIFY(m_number->setProperty("Value", 1234.5));
    QCOMPARE(m_number->property("Value").toDouble(), 1234.5);
    QVERIFY(m_number->property("Text").toString().startsWith(QLatin1Char('1')));
    QCOMPARE(m_number->property("MaskPicture").toString(), QStringLiteral("#,##0.00"));
    QVERIFY(m_number->setProperty("MaxValue", 10));
    QCOMPARE(m_number->property("MaxValue").toFloat(), 10.0F);
    QVERIFY(m_number->setProperty("Enabled", false));
    QVERIFY(!m_number->isEnabled());
    QCOMPARE(m_number->property("UserMode"), QVariant());
    bool userMode = false;
    QVERIFY(QMetaObject::invokeMethod(m_number.get(), "UserMode", Q_RETURN_ARG(bool, userMode)));
    QVERIFY(userMode);
    QVERIFY(QMetaObject::invokeMethod(m_number.get(), "Refresh"));
}

void tst_LateBinding::enumerationsTakeNumbers()
{
    QCOMPARE(m_number->property("Alignment").toInt(), 1);
    QVERIFY(m_number->setProperty("Alignment", 2));
    QCOMPARE(m_number->property("Alignment").toInt(), 2);
    QVERIFY(m_number->setProperty("BorderStyle", 0));
    QCOMPARE(m_number->property("BorderStyle").toInt(), 0);
}

void tst_LateBinding::errorsAreStandardExceptionsThatBeginWithTheirNumber()
{
    QByteArray caught;
    try {
        m_number->setProperty("Alignment", 9);
    } catch (const std::exception &error) {
        caught = error.what();
    }
    QVERIFY2(caught.startsWith("380"), caught.constData());
    QCOMPARE(m_number->property("Alignment").toInt(), 1);
}

void tst_LateBinding::eventsGiveTheirArgumentsByReference()
{
    m_number->show();
    QVERIFY(connect(m_number.get(), SIGNAL(KeyPress(int &)), this, SLOT(swallow(int &))));
    auto *box = m_number->findChild<QLineEdit *>(QStringLiteral("txtNumber"));
    QTest::keyClicks(box, QStringLiteral("4567"));
    QCOMPARE(box->text(), QStringLiteral("467"));
}

void tst_LateBinding::everyEventOfTheContractIsThere()
{
    const QMetaObject *type = m_number->metaObject();
    QStringList events;
    for (int i = type->methodOffset(); i < type->methodCount(); ++i) {
        if (type->method(i).methodType() == QMetaMethod::Signal)
            events << QString::fromLatin1(type->method(i).methodSignature());
    }
    const QString mouse = QStringLiteral("(int&,int&,float&,float&)");
    QCOMPARE(events,
             (QStringList{QStringLiteral("Change()"), QStringLiteral("MouseDown") + mouse,
                          QStringLiteral("MouseMove") + mouse, QStringLiteral("MouseUp") + mouse,
                          QStringLiteral("Click()"), QStringLiteral("DblClick()"), QStringLiteral("KeyDown(int&,int&)"),
                          QStringLiteral("KeyPress(int&)"), QStringLiteral("KeyUp(int&,int&)")}));
}

void tst_LateBinding::valueIsTheUserProperty()
{
    const QMetaProperty user = m_number->metaObject()->userProperty();
    QCOMPARE(user.name(), "Value");
    QCOMPARE(user.notifySignal().methodSignature(), QByteArray("Change()"));
}

void tst_LateBinding::missingArgumentCountsAsNull()
{
    m_number->setProperty("Value", 5);
    const QMetaType missing = QMetaType::fromName("kor::Missing");
    QVERIFY(missing.isValid());
    m_number->setProperty("Value", QVariant(missing, nullptr));
    QCOMPARE(m_number->property("Value").typeId(), int(QMetaType::Nullptr));
    QCOMPARE(m_number->property("Text").toString(), QString());
}

void tst_LateBinding::settingsAreReadAndWrittenByName()
{
    const QMetaType bagType = QMetaType::fromName("kor::PropertyBag");
    QVERIFY(bagType.isValid());
    const std::unique_ptr<void, std::function<void(void *)>> bag(bagType.create(),
                                                                 [&](void *p) { bagType.destroy(p); });
    m_number->setProperty("MaxLength", 7);
    const QGenericArgument argument("kor::PropertyBag&", bag.get());
    QVERIFY(QMetaObject::invokeMethod(m_number.get(), "writeProperties", Qt::DirectConnection, argument));
    const QMetaObject *members = bagType.metaObject();
    int count = 0;
    members->method(members->indexOfMethod("count()")).invokeOnGadget(bag.get(), Q_RETURN_ARG(int, count));
    QCOMPARE(count, 2); // MaxLength is kept twice

    const std::unique_ptr<QWidget> loaded(m_loader.createWidget(QStringLiteral("KorNumber")));
    QVERIFY(QMetaObject::invokeMethod(loaded.get(), "readProperties", Qt::DirectConnection,
                                      QGenericArgument("kor::PropertyBag", bag.get())));
    QCOMPARE(loaded->property("MaxLength").toInt(), 7);
}

void tst_LateBinding::aDesignersFormLoads()
{
    QByteArray form = R"(<ui version="4.0"><class>Form</class><widget class="QWidget" name="Form">
        <widget class="KorNumber" name="numPrice">
          <property name="MaskPicture"><string>0.000</string></property>
          <property name="Alignment"><number>2</number></property>
          <property name="CheckRange"><bool>true</bool></property>
        </widget></widget>
        <customwidgets><customwidget><class>KorNumber</class><extends>QWidget</extends></customwidget></customwidgets>
        </ui>)";
    QBuffer buffer(&form);
    QVERIFY(buffer.open(QIODevice::ReadOnly));
    const std::unique_ptr<QWidget> window(m_loader.load(&buffer));
    QVERIFY(window);
    auto *number = window->findChild<QWidget *>(QStringLiteral("numPrice"));
    QVERIFY(number);
    QCOMPARE(number->metaObject()->className(), "KorNumber"); // a form without the plugin loads as plain widgets
    QCOMPARE(number->property("MaskPicture").toString(), QStringLiteral("0.000"));
    QCOMPARE(number->property("Alignment").toInt(), 2);
    QCOMPARE(number->property("CheckRange").toBool(), true);
}

// The loader gives the values one after the other, and could catch nothing.
void tst_LateBinding::aFormWithRefusedValuesLoadsWithWarnings()
{
    QByteArray form = R"(<ui version="4.0"><class>Form</class><widget class="QWidget" name="Form">
        <widget class="KorNumber" name="numPrice">
          <property name="Alignment"><number>9</number></property>
          <property name="MaskPicture"><string>0.000</string></property>
        </widget>
        <widget class="KorUpDown" name="spnCount">
          <property name="Increment"><number>-1</number></property>
          <property name="MaxLength"><number>5</number></property>
          <property name="Value"><number>77</number></property>
        </widget></widget>
        <customwidgets><customwidget><class>KorNumber</class><extends>QWidget</extends></customwidget>
        <customwidget><class>KorUpDown</class><extends>QWidget</extends></customwidget></customwidgets>
        </ui>)";
    QBuffer buffer(&form);
    QVERIFY(buffer.open(QIODevice::ReadOnly));
    for (const char *warning :
         {"KorNumber numPrice, Alignment: error 380: Invalid property value; the value stays as it was",
          "KorUpDown spnCount, Increment: error 380: Invalid property value; the value stays as it was",
          "KorUpDown spnCount, Value: error 380: Invalid property value; the value stays as it was"})
        QTest::ignoreMessage(QtWarningMsg, warning);
    std::unique_ptr<QWidget> window;
    window.reset(m_loader.load(&buffer));
    QVERIFY(window);
    const auto *number = window->findChild<QWidget *>(QStringLiteral("numPrice"));
    QCOMPARE(number->property("Alignment").toInt(), 1);
    QCOMPARE(number->property("MaskPicture").toString(), QStringLiteral("0.000"));
    const auto *spin = window->findChild<QWidget *>(QStringLiteral("spnCount"));
    QCOMPARE(spin->property("Increment").toInt(), 1);
    QCOMPARE(spin->property("MaxLength").toInt(), 5);
    QCOMPARE(spin->property("Value").toInt(), 0);
}

//! A loader whose host sets a value itself while the form is loaded.
class ForwardLoader final : public QUiLoader
{
public:
    QWidget *createWidget(const QString &type, QWidget *parent, const QString &name) override
    {
        QWidget *widget = QUiLoader::createWidget(type, parent, name);
        try {
            widget->setProperty("Alignment", 9);
        } catch (const std::exception &error) {
            caught = error.what();
        }
        return widget;
    }
    QByteArray caught;
};

void tst_LateBinding::errorsAreThrownToWhoeverIsNoFormLoader()
{
    ForwardLoader loader;
    loader.clearPluginPaths();
    loader.addPluginPath(QStringLiteral(KOR_PLUGIN_FOLDER));
    QByteArray form = R"(<ui version="4.0"><class>Form</class><widget class="KorNumber" name="numPrice"/>
        <customwidgets><customwidget><class>KorNumber</class><extends>QWidget</extends></customwidget></customwidgets>
        </ui>)";
    QBuffer buffer(&form);
    QVERIFY(buffer.open(QIODevice::ReadOnly));
    const std::unique_ptr<QWidget> number(loader.load(&buffer));
    QVERIFY2(loader.caught.startsWith("380"), loader.caught.constData());
    QByteArray caught;
    const int alignment = number->metaObject()->indexOfProperty("Alignment");
    try {
        number->metaObject()->property(alignment).write(number.get(), -1);
    } catch (const std::exception &error) {
        caught = error.what();
    }
    QVERIFY2(caught.startsWith("380"), caught.constData());
}

QTEST_MAIN(tst_LateBinding)
#include "tst_latebinding.moc"
