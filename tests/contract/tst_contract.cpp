// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "contract/publicsurface.h"
#include "support/deletion.h"
#include "support/settings.h"
#include "support/stage.h"

#include <KorDaoUC/Color>
#include <KorDaoUC/ControlRegistry>
#include <KorDaoUC/PropertyBag>
#include <KorDaoUC/RunTimeError>
#include <KorDaoUC/UserControl>

#include <QtCore/QMetaMethod>
#include <QtCore/QMetaProperty>
#include <QtGui/QAccessible>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QLabel>

#include <memory>

using namespace kor;
using namespace kor::test;

//! What every control of the library keeps, whatever it shows: each new control is tested by being registered.
class tst_Contract : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();

    void everyControlHasItsTable();
    void membersAreReachedByName_data() { controls(); }
    void membersAreReachedByName();
    void eventsAreReachedByName_data() { controls(); }
    void eventsAreReachedByName();
    void missingMembersAreNotThere_data() { controls(); }
    void missingMembersAreNotThere();
    void userPropertyNotifies_data() { controls(); }
    void userPropertyNotifies();

    void freshControlsStoreNothing_data() { controls(); }
    void freshControlsStoreNothing();
    void settingsRoundTrip_data() { controls(); }
    void settingsRoundTrip();
    void missingKeysYieldTheDefaults_data() { controls(); }
    void missingKeysYieldTheDefaults();
    void everyKeyIsListed_data() { controls(); }
    void everyKeyIsListed();
    void ambientFontIsNotStored_data() { controls(); }
    void ambientFontIsNotStored();
    void dataChangedIsFalseAfterLoading_data() { controls(); }
    void dataChangedIsFalseAfterLoading();
    void letsReportTheirProperty_data() { controls(); }
    void letsReportTheirProperty();
    void enumerationsOutOfRangeAreRefused_data() { controls(); }
    void enumerationsOutOfRangeAreRefused();

    void colorsReachTheConstituent_data() { controls(); }
    void colorsReachTheConstituent();
    void systemColorsFollowThePalette_data() { controls(); }
    void systemColorsFollowThePalette();
    void fontIsTheConstituentsOwn_data() { controls(); }
    void fontIsTheConstituentsOwn();
    void theFormsFontIsFollowedAfterLoading_data() { controls(); }
    void theFormsFontIsFollowedAfterLoading();
    void handleIsThatOfTheConstituent_data() { controls(); }
    void handleIsThatOfTheConstituent();
    void refreshRepaintsAtOnce_data() { controls(); }
    void refreshRepaintsAtOnce();
    void enabledIsTheWidgetsOwn_data() { controls(); }
    void enabledIsTheWidgetsOwn();
    void focusGoesToTheConstituent_data() { controls(); }
    void focusGoesToTheConstituent();
    void screenReadersHearTheLabelsCaption_data() { controls(); }
    void screenReadersHearTheLabelsCaption();
    void screenReadersHearWhoseNameItIs();
    void wheelChangesNothingWithoutTheFocus_data() { controls(); }
    void wheelChangesNothingWithoutTheFocus();
    void aDisabledControlRaisesNothing_data() { controls(); }
    void aDisabledControlRaisesNothing();

private:
    static void controls();
    std::unique_ptr<Stage> m_stage;
    UserControl *m_control = nullptr;
    PublicSurface m_surface;
    [[nodiscard]] bool has(const char *property) const
    {
        return m_control->metaObject()->indexOfProperty(property) >= 0;
    }
    [[nodiscard]] QWidget *constituent() const { return m_control->focusProxy(); }
    //! Whether the control starts in the colours of buttons, not of fields.
    [[nodiscard]] bool isPanel() const { return m_surface.control == u"KorGrid"; }
};

namespace {

bool isInvokable(const QMetaObject &type, const QString &name)
{
    for (int index = 0; index < type.methodCount(); ++index) {
        const QMetaMethod method = type.method(index);
        if (method.methodType() != QMetaMethod::Signal && QString::fromLatin1(method.name()) == name)
            return true;
    }
    return false;
}

//! Gives the settings that several controls share another value than the default, as far as the control has them.
void setCommonSettings(UserControl &control)
{
    const QList<std::pair<const char *, QVariant>> settings{
        {"BackColor", 0x00C0FFFF},
        {"ForeColor", 0x00800000},
        {"Enabled", false},
        {"BorderStyle", 0},
        {"Appearance", 0},
        {"Alignment", 2},
        {"Locked", true},
        {"MaxLength", 7},
        {"ToolTipText", QStringLiteral("podpowiedź")},
        {"BlockUpDown", true},
        {"EnabledClick", false},
        {"WhatsThisHelpID", 5},
        {"BlockClick", true},
        {"CanBeNull", true},
        {"NullString", QStringLiteral("brak")},
        {"Slownik", QStringLiteral("S")},
    };
    for (const auto &[name, value] : settings) {
        if (control.metaObject()->indexOfProperty(name) >= 0)
            control.setProperty(name, value);
    }
    QFont font = control.Font();
    font.setPointSize(17);
    font.setItalic(true);
    control.setFont(font);
}

} // namespace

void tst_Contract::controls()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : ControlRegistry::names())
        QTest::newRow(qPrintable(name)) << name;
}

void tst_Contract::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral("^(?!This plugin)")));
    m_stage = std::make_unique<Stage>();
    if (!QTest::currentDataTag())
        return;
    const QString name = QString::fromLatin1(QTest::currentDataTag());
    m_control = m_stage->place(ControlRegistry::create(name), 200, 60);
    m_surface = publicSurface(name);
    QVERIFY(m_control);
}

// --- the public surface

void tst_Contract::everyControlHasItsTable()
{
    for (const QString &name : ControlRegistry::names())
        QVERIFY2(!publicSurface(name).members.isEmpty(), qPrintable(name));
}

void tst_Contract::membersAreReachedByName()
{
    QStringList missing;
    for (const QString &member : m_surface.members) {
        const bool isThere = has(qPrintable(member)) || isInvokable(*m_control->metaObject(), member) ||
                             isInvokable(*m_control->metaObject(), QStringLiteral("set") + member);
        if (!isThere)
            missing << member;
    }
    QCOMPARE(missing, QStringList());
}

void tst_Contract::eventsAreReachedByName()
{
    QStringList found;
    const QMetaObject *type = m_control->metaObject();
    for (int index = type->methodOffset(); index < type->methodCount(); ++index) {
        const QMetaMethod method = type->method(index);
        const QString event = QString::fromLatin1(method.name());
        if (method.methodType() != QMetaMethod::Signal || !m_surface.events.contains(event))
            continue;
        found << event;
        QCOMPARE(QString::fromLatin1(method.parameterTypes().join(',')), argumentsOf(event, m_surface.control));
    }
    QCOMPARE(found, m_surface.events);
}

void tst_Contract::missingMembersAreNotThere()
{
    QVERIFY(!has("Nieznana"));
    QVERIFY(!m_control->property("Nieznana").isValid());
    QVERIFY(!isInvokable(*m_control->metaObject(), QStringLiteral("Nieznana")));
}

void tst_Contract::userPropertyNotifies()
{
    const QMetaProperty user = m_control->metaObject()->userProperty();
    QCOMPARE(QString::fromLatin1(user.name()), m_surface.userProperty);
    QCOMPARE(user.isValid() && user.hasNotifySignal(), !m_surface.userProperty.isEmpty());
}

// --- settings

void tst_Contract::freshControlsStoreNothing()
{
    QStringList deliberate;
    if (m_surface.control == u"KorDate")
        deliberate = QStringList{QStringLiteral("Text"), QStringLiteral("Value")}; // of today
    if (m_surface.control == u"KorGrid")
        deliberate = QStringList{QStringLiteral("Value")}; // Null is another value than ""
    QStringList keys = keysOf(settingsOf(*m_control));
    keys.sort();
    QCOMPARE(keys, deliberate);
}

void tst_Contract::settingsRoundTrip()
{
    setCommonSettings(*m_control);
    const PropertyBag written = settingsOf(*m_control);
    QVERIFY(written.entries().size() >= 4);
    UserControl *loaded = m_stage->place(ControlRegistry::create(m_surface.control), 200, 60);
    loaded->readProperties(written);
    const PropertyBag again = settingsOf(*loaded);
    QCOMPARE(keysOf(again), keysOf(written));
    QVERIFY(again == written);
    for (const char *name : {"BackColor", "ForeColor", "Enabled", "Font"})
        QCOMPARE(loaded->property(name), m_control->property(name));
}

void tst_Contract::missingKeysYieldTheDefaults()
{
    setCommonSettings(*m_control);
    m_control->readProperties(PropertyBag());
    QCOMPARE(m_control->BackColor(), OLE_COLOR(isPanel() ? ButtonFace : WindowBackground));
    QCOMPARE(m_control->ForeColor(), OLE_COLOR(isPanel() ? ButtonText : WindowText));
    QVERIFY(m_control->Enabled());
    QVERIFY(m_control->usesAmbientFont());
}

void tst_Contract::everyKeyIsListed()
{
    PropertyBag defaults;
    QStringList listed;
    for (const SavedSetting &setting : m_control->savedSettings()) {
        listed << setting.key;
        defaults.append(setting.key, setting.defaultValue);
    }
    QVERIFY(!listed.isEmpty());
    m_control->readProperties(defaults);
    QVERIFY(settingsOf(*m_control).isEmpty());
    setCommonSettings(*m_control);
    for (const QString &key : keysOf(settingsOf(*m_control)))
        QVERIFY2(listed.contains(key), qPrintable(key));
}

void tst_Contract::ambientFontIsNotStored()
{
    QFont font = m_stage->font();
    font.setPointSize(21);
    m_stage->setFont(font);
    QVERIFY(!settingsOf(*m_control).contains(QStringLiteral("Font")));
    m_control->setFont(font);
    QVERIFY(!settingsOf(*m_control).contains(QStringLiteral("Font")));
    font.setPointSize(9);
    m_control->setFont(font);
    QCOMPARE(settingsOf(*m_control).ReadProperty(QStringLiteral("Font")).value<QFont>().pointSize(), 9);
}

void tst_Contract::dataChangedIsFalseAfterLoading()
{
    if (!has("DataChanged"))
        return; // the control has no such flag
    m_control->setProperty("DataChanged", true);
    m_control->readProperties(PropertyBag());
    QVERIFY(!m_control->property("DataChanged").toBool());
}

void tst_Contract::letsReportTheirProperty()
{
    QStringList reported;
    connect(m_control, &UserControl::PropertyChanged, this, [&](const QString &name) { reported << name; });
    QStringList expected;
    const QStringList candidates{QStringLiteral("BackColor"),   QStringLiteral("ForeColor"),
                                 QStringLiteral("Enabled"),     QStringLiteral("BorderStyle"),
                                 QStringLiteral("Appearance"),  QStringLiteral("Alignment"),
                                 QStringLiteral("Locked"),      QStringLiteral("MaxLength"),
                                 QStringLiteral("BlockUpDown"), QStringLiteral("EnabledClick")};
    for (const QString &name : candidates) {
        if (!m_surface.members.contains(name))
            continue;
        m_control->setProperty(qPrintable(name), 0);
        expected << name;
    }
    QCOMPARE(reported, expected);
}

void tst_Contract::enumerationsOutOfRangeAreRefused()
{
    for (const char *name : {"BorderStyle", "Appearance", "Alignment", "OpenDrection"}) {
        if (!has(name))
            continue;
        const QVariant before = m_control->property(name);
        for (const int value : {-1, 9}) {
            try {
                m_control->setProperty(name, value);
                QFAIL(name);
            } catch (const RunTimeError &error) {
                QCOMPARE(error.number(), 380);
            }
        }
        QCOMPARE(m_control->property(name), before);
    }
}

// --- look and focus

void tst_Contract::colorsReachTheConstituent()
{
    QVERIFY(m_stage->open());
    m_control->setBackColor(0x00112233);
    m_control->setForeColor(0x00FF8000);
    QCOMPARE(constituent()->palette().color(QPalette::Base), QColor(0x33, 0x22, 0x11));
    QCOMPARE(constituent()->palette().color(QPalette::Text), QColor(0x00, 0x80, 0xFF));
    QCOMPARE(m_control->property("BackColor"), QVariant(0x00112233));
}

void tst_Contract::systemColorsFollowThePalette()
{
    QVERIFY(m_stage->open());
    m_control->setForeColor(OLE_COLOR(ButtonFace));
    for (const QColor &color : {QColor(20, 30, 40), QColor(220, 230, 240)}) {
        QPalette palette = m_stage->palette();
        palette.setColor(QPalette::Base, color);
        palette.setColor(QPalette::Button, color.darker());
        m_stage->setPalette(palette);
        settle();
        QCOMPARE(constituent()->palette().color(QPalette::Base), isPanel() ? color.darker() : color);
        QCOMPARE(constituent()->palette().color(QPalette::Text), color.darker());
    }
}

void tst_Contract::fontIsTheConstituentsOwn()
{
    QFont ambient = m_stage->font();
    ambient.setPointSize(19);
    m_stage->setFont(ambient);
    QCOMPARE(m_control->Font().pointSize(), 19);
    QFont own = m_control->Font();
    own.setPointSize(8);
    m_control->setProperty("Font", own);
    QCOMPARE(constituent()->font().pointSize(), 8);
    ambient.setPointSize(23);
    m_stage->setFont(ambient);
    QCOMPARE(m_control->Font().pointSize(), 8);
    QCOMPARE(m_control->property("font").value<QFont>().pointSize(), 8);
}

void tst_Contract::theFormsFontIsFollowedAfterLoading()
{
    QVERIFY(m_stage->open());
    setCommonSettings(*m_control);
    m_control->readProperties(PropertyBag());
    QFont ambient = m_stage->font();
    for (const int size : {19, 7}) {
        ambient.setPointSize(size);
        m_stage->setFont(ambient);
        QCOMPARE(m_control->Font().pointSize(), size);
        QCOMPARE(constituent()->font().pointSize(), size);
        QVERIFY(!settingsOf(*m_control).contains(QStringLiteral("Font")));
    }
}

void tst_Contract::handleIsThatOfTheConstituent()
{
    if (!has("hWnd"))
        return; // the control has no such property
    const auto handle = [this] { return m_control->property("hWnd").value<int>(); };
    const int before = handle(); // a form asks while it loads, before it is shown
    QVERIFY(before != 0);
    QVERIFY(m_stage->open());
    QCOMPARE(before, static_cast<int>(constituent()->effectiveWinId()));
    QCOMPARE(handle(), before);
    QVERIFY(!constituent()->internalWinId());                 // asking gives the constituent no window of its own
    const int own = static_cast<int>(constituent()->winId()); // until the host does
    QCOMPARE(handle(), own);
}

void tst_Contract::refreshRepaintsAtOnce()
{
    if (has("SQL"))
        return; // the lists reload instead
    class Paints : public QObject
    {
    public:
        int count = 0;
        bool eventFilter(QObject *, QEvent *event) override
        {
            count += event->type() == QEvent::Paint ? 1 : 0;
            return false;
        }
    };
    QVERIFY(m_stage->open());
    settle();
    Paints paints;
    constituent()->installEventFilter(&paints);
    QVERIFY(QMetaObject::invokeMethod(m_control, "Refresh"));
    QCOMPARE(paints.count, 1);
}

void tst_Contract::enabledIsTheWidgetsOwn()
{
    static_cast<QWidget *>(m_control)->setEnabled(false);
    QCOMPARE(m_control->property("Enabled"), QVariant(false));
    m_control->setProperty("Enabled", true);
    QVERIFY(m_control->isEnabled());
    m_stage->setEnabled(false);
    QCOMPARE(m_control->property("Enabled"), QVariant(true)); // the form is off, not the control
    QVERIFY(!settingsOf(*m_control).contains(QStringLiteral("Enabled")));
}

void tst_Contract::focusGoesToTheConstituent()
{
    QVERIFY(constituent());
    QVERIFY(m_control->isAncestorOf(constituent()));
    QVERIFY(m_stage->open());
    m_control->setFocus();
    settle();
    closeCellEditor(m_control);
    QTRY_COMPARE(QApplication::focusWidget(), constituent());
}

void tst_Contract::screenReadersHearTheLabelsCaption()
{
    QFETCH(QString, name);
    Stage stage;
    UserControl *control = stage.place(ControlRegistry::create(name));
    QLabel label(QStringLiteral("&Opis pola"), &stage);
    label.setBuddy(control);
    QVERIFY(stage.open());
    QCOMPARE(QAccessible::queryAccessibleInterface(control->focusProxy())->text(QAccessible::Name),
             QStringLiteral("Opis pola"));
}

void tst_Contract::screenReadersHearWhoseNameItIs()
{
    const QString name = QStringLiteral("KorNumber");
    Stage stage;
    QGroupBox group(QStringLiteral("&Rabaty && dopłaty"), &stage);
    UserControl *inGroup = ControlRegistry::create(name, &group);
    UserControl *labelled = ControlRegistry::create(name, &group);
    UserControl *named = ControlRegistry::create(name, &group);
    named->setAccessibleName(QStringLiteral("Własna"));
    UserControl *alone = stage.place(ControlRegistry::create(name));
    QVERIFY(stage.open());
    UserControl *later = ControlRegistry::create(name, &group);
    auto ended = std::make_unique<QGroupBox>(QStringLiteral("Koniec"), &stage);
    ControlRegistry::create(name, ended.get())->move(0, 0);
    later->show();
    ended->show();
    QLabel label(QStringLiteral("Cena &netto"), &group);
    label.setBuddy(labelled);
    QLabel second(QStringLiteral("Cena brutto"), &group); // made after the control is shown
    second.setBuddy(later);
    ended.reset();
    settle();
    const auto heard = [](const UserControl *control) {
        return QAccessible::queryAccessibleInterface(control->focusProxy())->text(QAccessible::Name);
    };
    QCOMPARE(heard(inGroup), QStringLiteral("Rabaty & dopłaty"));
    QCOMPARE(heard(labelled), QStringLiteral("Cena netto"));
    QCOMPARE(heard(named), QStringLiteral("Własna"));
    QCOMPARE(heard(later), QStringLiteral("Cena brutto"));
    QCOMPARE(heard(alone), QString());
    label.setBuddy(nullptr);
    second.setBuddy(nullptr);
}

void tst_Contract::wheelChangesNothingWithoutTheFocus()
{
    QVERIFY(m_stage->open());
    m_stage->button()->setFocus();
    settle();
    const PropertyBag before = settingsOf(*m_control);
    const QVariant value = m_control->property("Value");
    for (QWidget *place = constituent(); place != m_stage.get(); place = place->parentWidget()) {
        QWheelEvent wheel({3, 3}, place->mapToGlobal(QPointF(3, 3)), {}, QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(place, &wheel);
    }
    QVERIFY(settingsOf(*m_control) == before);
    QCOMPARE(m_control->property("Value"), value);
}

void tst_Contract::aDisabledControlRaisesNothing()
{
    QVERIFY(m_stage->open());
    m_control->setEnabled(false);
    const DeletionOn onKey(m_control, QStringLiteral("KeyDown"));
    const DeletionOn onMouse(m_control, QStringLiteral("MouseDown"));
    const DeletionOn onClick(m_control, QStringLiteral("Click"));
    QTest::keyClick(constituent(), Qt::Key_F9);
    QTest::mouseClick(m_stage->windowHandle(), Qt::LeftButton, {}, m_control->geometry().center());
    settle();
    QVERIFY(!onKey.isDone() && !onMouse.isDone() && !onClick.isDone());
}

QTEST_MAIN(tst_Contract)
#include "tst_contract.moc"
