// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "contract/publicsurface.h"

#include <QtCore/QDate>
#include <QtCore/QHash>
#include <QtCore/QMetaMethod>
#include <QtCore/QMetaProperty>
#include <QtCore/QPluginLoader>
#include <QtGui/QIcon>
#include <QtTest/QtTest>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

#include <memory>

using namespace kor::test;

//! Every public member, as a host reaches it that does not link the library.
class tst_LateBindingSurface : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup() { m_form.reset(); }

    void everyControlIsDescribed_data() { controls(); }
    void everyControlIsDescribed();
    void everyMemberIsReached_data() { controls(); }
    void everyMemberIsReached();
    void everyPropertyIsSetAndRead_data() { controls(); }
    void everyPropertyIsSetAndRead();

private:
    static QList<QDesignerCustomWidgetInterface *> kinds();
    static void controls();
    [[nodiscard]] bool hasMethod(const QByteArray &name) const;

    std::unique_ptr<QWidget> m_form;
    QWidget *m_control = nullptr;
};

namespace {

//! Another value than the one that a property has, and one that its control takes.
QVariant otherThan(const QString &control, const QMetaProperty &property, const QVariant &value)
{
    static const QHash<QString, QVariant> special{
        {QStringLiteral("KorNumber.Value"), 3.0},
        {QStringLiteral("KorNumber.Text"), QString()}, // no number looks the same in all locales
        {QStringLiteral("KorDate.Value"), QDate(2024, 2, 29)},
        {QStringLiteral("KorDate.Text"), QString()},
        {QStringLiteral("KorClick.Value"), QStringLiteral("klucz")},
        {QStringLiteral("KorCombo.Value"), QStringLiteral("3")},
        {QStringLiteral("KorCombo.Text"), QStringLiteral("Alfa")},
        {QStringLiteral("KorList.Value"), QStringLiteral("3")},
        {QStringLiteral("KorList.Text"), QStringLiteral("Alfa")},
        {QStringLiteral("KorListCheck.Value"), QStringLiteral("3")},
        {QStringLiteral("KorListCheck.Text"), QStringLiteral("Alfa")},
        {QStringLiteral("KorListCheck.ValueChecked"), QStringLiteral("2;")},
        {QStringLiteral("KorColor.Value"), 0x800000}, // a named colour
        {QStringLiteral("KorUpDown.Text"), QStringLiteral("7")},
    };
    const QByteArray name = property.name();
    if (const auto found = special.find(control + u'.' + QLatin1String(name)); found != special.end())
        return *found;
    if (property.isEnumType() || name == "BackStyle")
        return value.toInt() == 0 ? 1 : 0;
    if (name == "ListIndex" || name == "Row" || name == "Col")
        return value.toInt() == 1 ? 2 : 1;
    switch (property.metaType().id()) {
    case QMetaType::Bool: return !value.toBool();
    case QMetaType::Int: return value.toInt() + 1;
    case QMetaType::QFont: return QFont(QStringLiteral("DejaVu Sans"), 17);
    case QMetaType::QVariant: return 50.0F; // a bound
    default: return QStringLiteral("inny");
    }
}

} // namespace

QList<QDesignerCustomWidgetInterface *> tst_LateBindingSurface::kinds()
{
    static QPluginLoader loader(QStringLiteral(KOR_PLUGIN_FOLDER "/libKorDaoUCPlugin.so"));
    auto *collection = qobject_cast<QDesignerCustomWidgetCollectionInterface *>(loader.instance());
    return collection ? collection->customWidgets() : QList<QDesignerCustomWidgetInterface *>();
}

void tst_LateBindingSurface::controls()
{
    QVERIFY(!kinds().isEmpty());
    QTest::addColumn<QString>("name");
    for (const QDesignerCustomWidgetInterface *kind : kinds())
        QTest::newRow(qPrintable(kind->name())) << kind->name();
}

void tst_LateBindingSurface::init()
{
    QFETCH(QString, name);
    m_form = std::make_unique<QWidget>();
    for (QDesignerCustomWidgetInterface *kind : kinds()) {
        if (kind->name() == name)
            m_control = kind->createWidget(m_form.get());
    }
    m_control->setGeometry(10, 10, 200, 80);
}

void tst_LateBindingSurface::everyControlIsDescribed()
{
    QFETCH(QString, name);
    QStringList toolTips;
    for (const QDesignerCustomWidgetInterface *kind : kinds()) {
        toolTips << kind->toolTip();
        if (kind->name() != name)
            continue;
        QCOMPARE(kind->group(), QStringLiteral("KorDaoUC"));
        QCOMPARE(kind->includeFile(), QStringLiteral("<KorDaoUC/%1>").arg(name));
        QVERIFY(!kind->toolTip().isEmpty() && kind->toolTip() != name);
        QVERIFY(kind->whatsThis().size() > kind->toolTip().size());
        QVERIFY(!kind->icon().isNull());
        QVERIFY(kind->domXml().contains(QStringLiteral("<width>")));
    }
    QCOMPARE(toolTips.removeDuplicates(), 0);
}

bool tst_LateBindingSurface::hasMethod(const QByteArray &name) const
{
    const QMetaObject *type = m_control->metaObject();
    for (int i = 0; i < type->methodCount(); ++i) {
        if (type->method(i).name() == name && type->method(i).methodType() != QMetaMethod::Signal)
            return true;
    }
    return false;
}

void tst_LateBindingSurface::everyMemberIsReached()
{
    QFETCH(QString, name);
    const PublicSurface surface = publicSurface(name);
    QVERIFY(surface.members.size() >= 7);
    QStringList missing;
    for (const QString &member : surface.members) {
        const bool isProperty = m_control->metaObject()->indexOfProperty(qPrintable(member)) >= 0;
        if (!isProperty && !hasMethod(member.toLatin1()) && !hasMethod("set" + member.toLatin1()))
            missing << member;
    }
    QCOMPARE(missing, QStringList());
}

void tst_LateBindingSurface::everyPropertyIsSetAndRead()
{
    QFETCH(QString, name);
    // Something to choose from, and to stand on
    if (hasMethod("AddEntry")) {
        for (const char *entry : {"1Alfa", "2Beta", "3Gamma"}) {
            const QString key = QString::fromLatin1(entry, 1);
            QVERIFY(QMetaObject::invokeMethod(m_control, "AddEntry", Q_ARG(QVariant, key),
                                              Q_ARG(QString, QString::fromLatin1(entry + 1))));
        }
    }
    for (const char *lines : {"Rows", "Cols"}) {
        if (name == QLatin1String("KorGrid"))
            QVERIFY(m_control->setProperty(lines, 5));
    }
    QStringList wrong;
    int count = 0;
    const QMetaObject *type = m_control->metaObject();
    for (int i = QWidget::staticMetaObject.propertyCount(); i < type->propertyCount(); ++i) {
        const QMetaProperty property = type->property(i);
        const QByteArray member = property.name();
        // Not the toolkit's twins; without a text or an entry there is nothing to select; error 382 at run time
        if (!QChar(QLatin1Char(member[0])).isUpper() || member.startsWith("Sel") || member == "Separator")
            continue;
        const QVariant before = m_control->property(member);
        if (!property.isWritable()) {
            if (m_control->setProperty(member, before))
                wrong << QLatin1String(member) + QStringLiteral(" can be written");
            continue;
        }
        const QVariant other = otherThan(name, property, before);
        const bool isSet = m_control->setProperty(member, other);
        const QVariant after = m_control->property(member);
        const bool isSame =
            property.isEnumType() ? after.toInt() == other.toInt() : after.toString() == other.toString();
        if (!isSet || !isSame || (after == before && !other.toString().isEmpty()))
            wrong << QStringLiteral("%1: %2, not %3").arg(QLatin1String(member), after.toString(), other.toString());
        ++count;
    }
    QCOMPARE(wrong.join(QStringLiteral("; ")), QString());
    QVERIFY(count >= 6);
}

QTEST_MAIN(tst_LateBindingSurface)

#include "tst_latebinding_surface.moc"
