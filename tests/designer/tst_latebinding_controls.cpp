// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "contract/publicsurface.h"
#include "designer/latebound.h"

#include <QtCore/QMetaMethod>
#include <QtCore/QMetaProperty>
#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlQuery>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>

#include <functional>
#include <memory>
#include <vector>

using namespace kor::test;

namespace {

//! A bag of settings, reached by its name only.
class Bag
{
public:
    ~Bag() { m_type.destroy(m_bag); }
    Bag() = default;
    Q_DISABLE_COPY_MOVE(Bag)

    void writeFrom(QObject *control)
    {
        QVERIFY(QMetaObject::invokeMethod(control, "writeProperties", Qt::DirectConnection,
                                          QGenericArgument("kor::PropertyBag&", m_bag)));
    }
    void readInto(QObject *control) const
    {
        QVERIFY(QMetaObject::invokeMethod(control, "readProperties", Qt::DirectConnection,
                                          QGenericArgument("kor::PropertyBag", m_bag)));
    }
    void append(const QString &key, const QVariant &value)
    {
        QVERIFY(member("append(QString,QVariant)").invokeOnGadget(m_bag, Q_ARG(QString, key), Q_ARG(QVariant, value)));
    }
    [[nodiscard]] int count() const
    {
        int result = -1;
        member("count()").invokeOnGadget(m_bag, Q_RETURN_ARG(int, result));
        return result;
    }
    [[nodiscard]] QString key(int place) const
    {
        QString result;
        member("keyAt(int)").invokeOnGadget(m_bag, Q_RETURN_ARG(QString, result), Q_ARG(int, place));
        return result;
    }
    [[nodiscard]] QVariant value(int place) const
    {
        QVariant result;
        member("valueAt(int)").invokeOnGadget(m_bag, Q_RETURN_ARG(QVariant, result), Q_ARG(int, place));
        return result;
    }
    //! "key=value of type" of each entry.
    [[nodiscard]] QStringList lines() const
    {
        QStringList all;
        for (int place = 0; place < count(); ++place) {
            const QVariant held = value(place);
            all << QStringLiteral("%1=%2 %3").arg(key(place), QLatin1String(held.typeName()), held.toString());
        }
        return all;
    }

private:
    [[nodiscard]] QMetaMethod member(const char *signature) const
    {
        return m_type.metaObject()->method(m_type.metaObject()->indexOfMethod(signature));
    }

    QMetaType m_type = QMetaType::fromName("kor::PropertyBag");
    void *m_bag = m_type.create();
};

} // namespace

//! What a host reaches of every control that knows the names of the members and the plugin's file, and no header.
class tst_LateBindingControls : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void aControlIsItsOwnClass_data() { controls(); }
    void aControlIsItsOwnClass();
    void eventsAreDeclaredInTheirOrder_data() { controls(); }
    void eventsAreDeclaredInTheirOrder();
    void eventsConnectByTheirSignature_data() { controls(); }
    void eventsConnectByTheirSignature();
    void constituentsAreFoundByName_data();
    void constituentsAreFoundByName();
    void popUpsAreFoundByName_data();
    void popUpsAreFoundByName();

    void numbersComeInEveryType_data() { controls(); }
    void numbersComeInEveryType();
    void wrongKindsAreRefused_data() { controls(); }
    void wrongKindsAreRefused();
    void enumerationsOutOfRangeAreRefused_data() { controls(); }
    void enumerationsOutOfRangeAreRefused();
    void readOnlyMembersStayAsTheyAre_data() { controls(); }
    void readOnlyMembersStayAsTheyAre();

    void settingsTravelInABag_data() { controls(); }
    void settingsTravelInABag();
    void settingsOfTheWrongKindAreRefused_data() { controls(); }
    void settingsOfTheWrongKindAreRefused();
    void aPlaceThatABagDoesNotHaveIsRefused();
    void theFormSaysWhetherItIsDesigned_data() { controls(); }
    void theFormSaysWhetherItIsDesigned();

    void aListIsFilledByName_data() { lists(); }
    void aListIsFilledByName();
    void aListReadsAnOpenConnection_data() { lists(); }
    void aListReadsAnOpenConnection();
    void whatIsNoDatabaseChangesNothing_data() { lists(); }
    void whatIsNoDatabaseChangesNothing();
    void theSeparatorIsSetAtDesignTimeOnly();

    void aHandlerSwallowsAKey_data() { controls(); }
    void aHandlerSwallowsAKey();
    void aHandlerTypesAnotherCharacter_data() { fields(); }
    void aHandlerTypesAnotherCharacter();
    void anExceptionOfAHandlerIsAnErrorEvent_data() { controls(); }
    void anExceptionOfAHandlerIsAnErrorEvent();

public Q_SLOTS:
    void plain() {}
    void onKey(int &code, int &)
    {
        m_keys << code;
        if (m_isFailing)
            throw std::runtime_error("chooser is broken");
        code = m_otherKey;
    }
    void onCharacter(int &ascii) { ascii = m_otherCharacter; }
    void onMouse(int &, int &, float &, float &) {}
    void onRow(int &, int &, int &) {}
    void onSymbol(const QString &) {}
    void onError(int &number, QString &description, bool &handled)
    {
        m_errors << QStringLiteral("%1 %2").arg(number).arg(description);
        handled = true;
    }

private:
    static void controls();
    static void lists();
    static void fields();
    [[nodiscard]] bool has(const char *property) const
    {
        return m_control->metaObject()->indexOfProperty(property) >= 0;
    }
    //! The properties that the library adds to the toolkit's, but for the toolkit's twins.
    [[nodiscard]] std::vector<QMetaProperty> properties() const;
    [[nodiscard]] QWidget *focused();

    std::unique_ptr<QWidget> m_form;
    QWidget *m_control = nullptr;
    PublicSurface m_surface;
    QList<int> m_keys;
    QStringList m_errors;
    bool m_isFailing = false;
    int m_otherKey = 0;
    int m_otherCharacter = 0;
};

void tst_LateBindingControls::controls()
{
    QTest::addColumn<QString>("name");
    for (const QDesignerCustomWidgetInterface *kind : kinds())
        QTest::newRow(qPrintable(kind->name())) << kind->name();
}

void tst_LateBindingControls::lists()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"KorCombo", "KorList", "KorListCheck"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void tst_LateBindingControls::fields()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"KorNumber", "KorDate", "KorClick", "KorUpDown", "KorMultiText"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

std::vector<QMetaProperty> tst_LateBindingControls::properties() const
{
    std::vector<QMetaProperty> all;
    const QMetaObject *type = m_control->metaObject();
    for (int i = QWidget::staticMetaObject.propertyCount(); i < type->propertyCount(); ++i) {
        const QMetaProperty property = type->property(i);
        if (QChar(QLatin1Char(property.name()[0])).isUpper())
            all.push_back(property);
    }
    return all;
}

QWidget *tst_LateBindingControls::focused()
{
    m_form->show();
    m_form->activateWindow();
    if (!QTest::qWaitForWindowActive(m_form.get()))
        return nullptr;
    m_control->setFocus();
    QCoreApplication::processEvents();
    QWidget *place = QApplication::focusWidget();
    if (m_control->inherits("KorGrid") && place != m_control->focusProxy())
        QTest::keyClick(place, Qt::Key_F2); // closes the editor of the cell, so that the keys are the grid's
    return QApplication::focusWidget();
}

void tst_LateBindingControls::initTestCase()
{
    QVERIFY(!kinds().isEmpty());
    auto connection = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("shop"));
    connection.setDatabaseName(QStringLiteral(":memory:"));
    QVERIFY(connection.open());
    QSqlQuery query(connection);
    QVERIFY(query.exec(QStringLiteral("CREATE TABLE vat (id INTEGER, name TEXT)")));
    QVERIFY(query.exec(QStringLiteral("INSERT INTO vat VALUES (23, '23 %'), (8, '8 %'), (NULL, 'zw.')")));
}

void tst_LateBindingControls::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral("^(?!This plugin)")));
    m_form = std::make_unique<QWidget>();
    m_form->resize(300, 200);
    m_keys.clear();
    m_errors.clear();
    m_isFailing = false;
    const QString name = QString::fromLatin1(QTest::currentDataTag()).section(QLatin1Char(' '), 0, 0);
    m_surface = publicSurface(name);
    m_control = name.isEmpty() ? nullptr : create(name, m_form.get());
    if (m_control)
        m_control->setGeometry(10, 10, 200, 80);
}

void tst_LateBindingControls::cleanup() { m_form.reset(); }

// --- names

void tst_LateBindingControls::aControlIsItsOwnClass()
{
    QVERIFY(m_control);
    QCOMPARE(QString::fromLatin1(m_control->metaObject()->className()), m_surface.control);
    const QMetaProperty user = m_control->metaObject()->userProperty();
    QCOMPARE(QString::fromLatin1(user.name()), m_surface.userProperty);
    QCOMPARE(user.hasNotifySignal(), user.isValid());
}

void tst_LateBindingControls::eventsAreDeclaredInTheirOrder()
{
    QStringList declared;
    const QMetaObject *type = m_control->metaObject();
    for (int i = type->methodOffset(); i < type->methodCount(); ++i) {
        if (type->method(i).methodType() == QMetaMethod::Signal)
            declared << QString::fromLatin1(type->method(i).methodSignature());
    }
    QStringList expected;
    for (const QString &event : m_surface.events)
        expected << QStringLiteral("%1(%2)").arg(event, argumentsOf(event, m_surface.control));
    QCOMPARE(declared, expected);
}

void tst_LateBindingControls::eventsConnectByTheirSignature()
{
    QStringList refused;
    for (const QString &event : m_surface.events) {
        const QString arguments = argumentsOf(event, m_surface.control);
        const char *slot = arguments.isEmpty()              ? SLOT(plain())
                           : arguments == u"int&"           ? SLOT(onCharacter(int &))
                           : arguments == u"int&,int&"      ? SLOT(onKey(int &, int &))
                           : arguments == u"int&,int&,int&" ? SLOT(onRow(int &, int &, int &))
                           : arguments == u"QString"        ? SLOT(onSymbol(QString))
                                                            : SLOT(onMouse(int &, int &, float &, float &));
        const QByteArray signal = QStringLiteral("2%1(%2)").arg(event, arguments).toLatin1();
        if (!connect(m_control, signal.constData(), this, slot))
            refused << event;
    }
    QCOMPARE(refused, QStringList());
}

void tst_LateBindingControls::constituentsAreFoundByName_data()
{
    QTest::addColumn<QString>("constituent");
    QTest::addColumn<QByteArray>("base");
    QTest::addColumn<bool>("isMain");
    // clang-format off
    QTest::newRow("KorNumber txtNumber")      << QStringLiteral("txtNumber") << QByteArray("QLineEdit")         << true;
    QTest::newRow("KorDate picBack")          << QStringLiteral("picBack")   << QByteArray("QWidget")           << false;
    QTest::newRow("KorDate txtDate")          << QStringLiteral("txtDate")   << QByteArray("QLineEdit")         << true;
    QTest::newRow("KorDate cmdDate")          << QStringLiteral("cmdDate")   << QByteArray("QAbstractButton")   << false;
    QTest::newRow("KorCombo cmbCombo")        << QStringLiteral("cmbCombo")  << QByteArray("QComboBox")         << true;
    QTest::newRow("KorList Lista")            << QStringLiteral("Lista")     << QByteArray("QAbstractItemView") << true;
    QTest::newRow("KorListCheck CheckList")   << QStringLiteral("CheckList") << QByteArray("QAbstractItemView") << true;
    QTest::newRow("KorClick picBack")         << QStringLiteral("picBack")   << QByteArray("QWidget")           << false;
    QTest::newRow("KorClick txtClick")        << QStringLiteral("txtClick")  << QByteArray("QLineEdit")         << true;
    QTest::newRow("KorClick cmdClick")        << QStringLiteral("cmdClick")  << QByteArray("QAbstractButton")   << false;
    QTest::newRow("KorUpDown txtUpDown")      << QStringLiteral("txtUpDown") << QByteArray("QLineEdit")         << true;
    QTest::newRow("KorUpDown cmdUpDown")      << QStringLiteral("cmdUpDown") << QByteArray("QWidget")           << false;
    QTest::newRow("KorColor picBack")         << QStringLiteral("picBack")   << QByteArray("QWidget")           << false;
    QTest::newRow("KorColor cmbColor")        << QStringLiteral("cmbColor")  << QByteArray("QComboBox")         << true;
    QTest::newRow("KorColor picColor")        << QStringLiteral("picColor")  << QByteArray("QWidget")           << false;
    QTest::newRow("KorColor cmdColor")        << QStringLiteral("cmdColor")  << QByteArray("QAbstractButton")   << false;
    QTest::newRow("KorMultiText txtText")     << QStringLiteral("txtText")   << QByteArray("QLineEdit")         << true;
    QTest::newRow("KorMultiText cmdClick")    << QStringLiteral("cmdClick")  << QByteArray("QAbstractButton")   << false;
    QTest::newRow("KorParam grid")            << QStringLiteral("grid")      << QByteArray("QTableView")        << true;
    QTest::newRow("KorParam TxtBox")          << QStringLiteral("TxtBox")    << QByteArray("QLineEdit")         << false;
    QTest::newRow("KorParam KorNum")          << QStringLiteral("KorNum")    << QByteArray("KorNumber")         << false;
    QTest::newRow("KorParam KorDat")          << QStringLiteral("KorDat")    << QByteArray("KorDate")           << false;
    QTest::newRow("KorParam KorCmb")          << QStringLiteral("KorCmb")    << QByteArray("KorCombo")          << false;
    QTest::newRow("KorParam KorClk")          << QStringLiteral("KorClk")    << QByteArray("KorClick")          << false;
    QTest::newRow("KorGrid grid")             << QStringLiteral("grid")      << QByteArray("QTableView")        << true;
    QTest::newRow("KorGrid TxtBox")           << QStringLiteral("TxtBox")    << QByteArray("QLineEdit")         << false;
    QTest::newRow("KorGrid TxtMBox")          << QStringLiteral("TxtMBox")   << QByteArray("QPlainTextEdit")    << false;
    QTest::newRow("KorGrid KorNum")           << QStringLiteral("KorNum")    << QByteArray("KorNumber")         << false;
    QTest::newRow("KorGrid KorDate")          << QStringLiteral("KorDate")   << QByteArray("KorDate")           << false;
    QTest::newRow("KorGrid KorCmb")           << QStringLiteral("KorCmb")    << QByteArray("KorCombo")          << false;
    QTest::newRow("KorGrid KorClick")         << QStringLiteral("KorClick")  << QByteArray("KorClick")          << false;
    // clang-format on
}

void tst_LateBindingControls::constituentsAreFoundByName()
{
    QFETCH(QString, constituent);
    QFETCH(QByteArray, base);
    QFETCH(bool, isMain);
    auto *found = m_control->findChild<QWidget *>(constituent);
    QVERIFY(found);
    QVERIFY(found->inherits(base.constData()));
    QCOMPARE(m_control->focusProxy() == found, isMain);
}

void tst_LateBindingControls::popUpsAreFoundByName_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("popUp");
    QTest::addColumn<QString>("editor");
    QTest::addColumn<QByteArray>("base");
    // clang-format off
    QTest::newRow("KorDate")      << QStringLiteral("cmdDate")  << QStringLiteral("frmMonth")
                                  << QStringLiteral("viewMonth") << QByteArray("QCalendarWidget");
    QTest::newRow("KorMultiText") << QStringLiteral("cmdClick") << QStringLiteral("frmText")
                                  << QStringLiteral("txtMulti") << QByteArray("QPlainTextEdit");
    // clang-format on
}

void tst_LateBindingControls::popUpsAreFoundByName()
{
    QFETCH(QString, button);
    QFETCH(QString, popUp);
    QFETCH(QString, editor);
    QFETCH(QByteArray, base);
    QVERIFY(focused());
    QVERIFY(!m_control->findChild<QWidget *>(popUp)); // made when it is asked for
    QTest::mouseClick(m_control->findChild<QWidget *>(button), Qt::LeftButton);
    const auto *window = m_control->findChild<QWidget *>(popUp);
    QVERIFY(window);
    QVERIFY(window->isWindow() && window->isVisible());
    const auto *edited = window->findChild<QWidget *>(editor);
    QVERIFY(edited);
    QVERIFY(edited->inherits(base.constData()));
    QVERIFY(edited->isAncestorOf(QApplication::focusWidget()) || edited == QApplication::focusWidget());
}

// --- values by name

void tst_LateBindingControls::numbersComeInEveryType()
{
    const QVariantList ones{short(1), 1, 1U, 1LL, 1ULL, 1.0, 1.0F, QStringLiteral("1"), QByteArray("1"), true};
    for (const QMetaProperty &property : properties()) {
        const bool isNumber = property.metaType().id() == QMetaType::Int || property.isEnumType();
        // There is no entry yet, and no cell once a grid has one row and one column.
        const bool isPlace = QByteArrayList{"ListIndex", "Row", "Col"}.contains(property.name());
        if (!isNumber || !property.isWritable() || isPlace)
            continue;
        for (const QVariant &one : ones) {
            QVERIFY2(m_control->setProperty(property.name(), one), property.name());
            const bool isSelection = QByteArray(property.name()).startsWith("Sel"); // there is no text to select in
            QCOMPARE(m_control->property(property.name()).toInt(), isSelection ? 0 : 1);
        }
    }
}

void tst_LateBindingControls::wrongKindsAreRefused()
{
    const QVariantList wrong{QVariantList{1, 2}, QVariant::fromValue<QObject *>(this), QRect(1, 2, 3, 4)};
    const QVariantList noNumbers{QStringLiteral("abc"), QString(), nullVariant(), QFont(), QDate(2020, 2, 3)};
    for (const QMetaProperty &property : properties()) {
        const int type = property.metaType().id();
        if (!property.isWritable() || type == QMetaType::QVariant)
            continue;
        const QVariant before = m_control->property(property.name());
        QVariantList values = wrong;
        if (type == QMetaType::Int || property.isEnumType())
            values += noNumbers;
        else if (type == QMetaType::Bool)
            values << nullVariant() << QFont();
        for (const QVariant &value : values) {
            QVERIFY2(!m_control->setProperty(property.name(), value), property.name());
            QCOMPARE(m_control->property(property.name()), before);
        }
    }
}

void tst_LateBindingControls::enumerationsOutOfRangeAreRefused()
{
    for (const QMetaProperty &property : properties()) {
        if (!property.isEnumType())
            continue;
        const QVariant before = m_control->property(property.name());
        const int count = property.enumerator().keyCount();
        for (const int value : {-1, count, 65536, std::numeric_limits<int>::min()})
            QCOMPARE(errorOf([&] { m_control->setProperty(property.name(), value); }), 380);
        QCOMPARE(m_control->property(property.name()), before);
        for (int value = 0; value < count; ++value) {
            QVERIFY(m_control->setProperty(property.name(), value));
            QCOMPARE(m_control->property(property.name()).toInt(), value);
        }
    }
}

void tst_LateBindingControls::readOnlyMembersStayAsTheyAre()
{
    for (const QMetaProperty &property : properties()) {
        if (property.isWritable())
            continue;
        const QVariant before = m_control->property(property.name());
        QVERIFY2(!m_control->setProperty(property.name(), 1), property.name());
        QCOMPARE(m_control->property(property.name()), before);
    }
}

// --- settings

void tst_LateBindingControls::settingsTravelInABag()
{
    m_control->setProperty("BackColor", 0x112233);
    m_control->setProperty("Font", QFont(QStringLiteral("DejaVu Sans"), 17));
    if (has("MaxLength"))
        m_control->setProperty("MaxLength", 7);
    if (has("ToolTipText"))
        m_control->setProperty("ToolTipText", QStringLiteral("kwota brutto, zł"));
    Bag written;
    written.writeFrom(m_control);
    QVERIFY(written.count() >= 2);
    QCOMPARE(written.key(0), QStringLiteral("BackColor"));
    QCOMPARE(written.value(0), QVariant(0x112233));

    QWidget *loaded = create(m_surface.control, m_form.get());
    written.readInto(loaded);
    Bag again;
    again.writeFrom(loaded);
    QCOMPARE(again.lines(), written.lines());

    QVERIFY(QMetaObject::invokeMethod(loaded, "initProperties"));
    Bag().readInto(loaded);
    const bool isPanel = m_surface.control == QLatin1String("KorGrid");
    QCOMPARE(loaded->property("BackColor").toUInt(), isPanel ? 0x8000000FU : 0x80000005U);
}

void tst_LateBindingControls::settingsOfTheWrongKindAreRefused()
{
    Bag bag;
    bag.append(QStringLiteral("Enabled"), QStringLiteral("może"));
    QCOMPARE(errorOf([&] { bag.readInto(m_control); }), 13);
    QVERIFY(m_control->property("Enabled").toBool());
}

void tst_LateBindingControls::aPlaceThatABagDoesNotHaveIsRefused()
{
    Bag bag;
    bag.append(QStringLiteral("Text"), QStringLiteral("12"));
    QCOMPARE(bag.count(), 1);
    QCOMPARE(errorOf([&] { (void)bag.key(1); }), 9);
    QCOMPARE(errorOf([&] { (void)bag.value(-1); }), 9);
}

void tst_LateBindingControls::theFormSaysWhetherItIsDesigned()
{
    const auto userMode = [this] {
        bool result = false;
        return QMetaObject::invokeMethod(m_control, "UserMode", Q_RETURN_ARG(bool, result)) && result;
    };
    QVERIFY(userMode());
    m_form->setProperty("UserMode", false);
    QVERIFY(!userMode());
    m_control = create(m_surface.control, m_form.get());
    QVERIFY(!userMode());
    m_form->setProperty("UserMode", true);
    QVERIFY(userMode());
}

// --- lists

void tst_LateBindingControls::aListIsFilledByName()
{
    const auto add = [this](const QVariant &key, const char *name) {
        return QMetaObject::invokeMethod(m_control, "AddEntry", Q_ARG(QVariant, key),
                                         Q_ARG(QString, QString::fromUtf8(name)));
    };
    const auto exists = [this](const QVariant &key) {
        QVariant result;
        QMetaObject::invokeMethod(m_control, "Exists", Q_RETURN_ARG(QVariant, result), Q_ARG(QVariant, key));
        return result;
    };
    QVERIFY(add(1, "jeden") && add(QStringLiteral("b"), "bę") && add(nullVariant(), "nic") && add(QVariant(), "puste"));
    QCOMPARE(m_control->property("ListCount"), QVariant(4));
    QCOMPARE(m_control->property("HasValues"), QVariant(true));
    QCOMPARE(m_control->property("ListIndex"), QVariant(-1));
    QCOMPARE(m_control->property("Value"), nullVariant());
    QCOMPARE(exists(1), QVariant(true));
    QCOMPARE(exists(QStringLiteral("b")), QVariant(true));
    QCOMPARE(exists(nullVariant()), QVariant(false));
    QCOMPARE(exists(0), QVariant(true)); // which the Empty key equals
    QCOMPARE(exists(7), QVariant(false));
    m_control->setProperty("Text", QStringLiteral("bę"));
    QCOMPARE(m_control->property("Value"), QVariant(QStringLiteral("b")));
    QCOMPARE(errorOf([&] { m_control->setProperty("ListIndex", 4); }), 380);
    QCOMPARE(m_control->property("ListIndex"), QVariant(1));
    QVERIFY(QMetaObject::invokeMethod(m_control, "Clear"));
    QCOMPARE(m_control->property("ListCount"), QVariant(0));
    QCOMPARE(m_control->property("HasValues"), QVariant(false));
}

void tst_LateBindingControls::aListReadsAnOpenConnection()
{
    QVERIFY(QMetaObject::invokeMethod(m_control, "setdatabase", Q_ARG(QString, QStringLiteral("shop"))));
    m_control->setProperty("SQL", QStringLiteral("SELECT id, name FROM vat ORDER BY name"));
    QVERIFY(QMetaObject::invokeMethod(m_control, "Refresh"));
    QCOMPARE(m_control->property("ListCount"), QVariant(3));
    m_control->setProperty("Value", 8);
    QCOMPARE(m_control->property("Text"), QVariant(QStringLiteral("8 %")));
    QCOMPARE(m_control->property("Value"), QVariant(8));
    // None again: the list stays as it is
    QVERIFY(QMetaObject::invokeMethod(m_control, "setdatabase", Q_ARG(QObject *, nullptr)));
    m_control->setProperty("SQL", QStringLiteral("SELECT id, name FROM vat WHERE id = 23"));
    QVERIFY(QMetaObject::invokeMethod(m_control, "Refresh"));
    QCOMPARE(m_control->property("ListCount"), QVariant(3));
}

void tst_LateBindingControls::whatIsNoDatabaseChangesNothing()
{
    QVERIFY(QMetaObject::invokeMethod(m_control, "setdatabase", Q_ARG(QString, QStringLiteral("shop"))));
    QVERIFY(QMetaObject::invokeMethod(m_control, "setdatabase", Q_ARG(QObject *, this)));
    m_control->setProperty("SQL", QStringLiteral("SELECT id, name FROM vat"));
    QVERIFY(QMetaObject::invokeMethod(m_control, "Refresh"));
    QCOMPARE(m_control->property("ListCount"), QVariant(3));
}

void tst_LateBindingControls::theSeparatorIsSetAtDesignTimeOnly()
{
    m_control = create(QStringLiteral("KorListCheck"), m_form.get());
    QCOMPARE(errorOf([&] { m_control->setProperty("Separator", QStringLiteral(",")); }), 382);
    QCOMPARE(m_control->property("Separator"), QVariant(QStringLiteral(";")));
    m_form->setProperty("UserMode", false);
    QVERIFY(m_control->setProperty("Separator", QStringLiteral(",")));
    QCOMPARE(m_control->property("Separator"), QVariant(QStringLiteral(",")));
}

// --- keys

void tst_LateBindingControls::aHandlerSwallowsAKey()
{
    if (has("SQL")) {
        m_control->setProperty("SQL", QStringLiteral("LIST 1;a|2;b"));
        QVERIFY(QMetaObject::invokeMethod(m_control, "Refresh"));
    }
    QVERIFY(connect(m_control, SIGNAL(KeyDown(int &, int &)), this, SLOT(onKey(int &, int &))));
    QWidget *place = focused();
    QVERIFY(place);
    const QVariant value = m_control->property("Value");
    const QVariant text = m_control->property("Text");
    QTest::keyClick(place, Qt::Key_5);
    QTest::keyClick(place, Qt::Key_B);
    QTest::keyClick(place, Qt::Key_End);
    QCOMPARE(m_keys, (QList<int>{53, 66, 35}));
    QCOMPARE(m_control->property("Value"), value);
    QCOMPARE(m_control->property("Text"), text);
}

void tst_LateBindingControls::aHandlerTypesAnotherCharacter()
{
    QVERIFY(connect(m_control, SIGNAL(KeyPress(int &)), this, SLOT(onCharacter(int &))));
    auto *box = qobject_cast<QLineEdit *>(focused());
    QVERIFY(box);
    m_control->setProperty("Text", QString());
    m_otherCharacter = '7';
    QTest::keyClick(box, Qt::Key_4);
    m_otherCharacter = 0x0142; // ł
    QTest::keyClick(box, Qt::Key_4);
    m_otherCharacter = 0;
    QTest::keyClick(box, Qt::Key_4);
    QCOMPARE(box->text(), QStringLiteral("7ł"));
    m_otherCharacter = 8;
    QTest::keyClick(box, Qt::Key_4);
    QCOMPARE(box->text(), QStringLiteral("7"));
}

void tst_LateBindingControls::anExceptionOfAHandlerIsAnErrorEvent()
{
    QVERIFY(connect(m_control, SIGNAL(KeyDown(int &, int &)), this, SLOT(onKey(int &, int &))));
    QVERIFY(connect(m_control, SIGNAL(Error(int &, QString &, bool &)), this, SLOT(onError(int &, QString &, bool &))));
    QWidget *place = focused();
    QVERIFY(place);
    m_isFailing = true;
    QTest::keyPress(place, Qt::Key_F9);
    QCOMPARE(m_errors, QStringList(QStringLiteral("51 chooser is broken")));
    m_isFailing = false;
}

QTEST_MAIN(tst_LateBindingControls)
#include "tst_latebinding_controls.moc"
