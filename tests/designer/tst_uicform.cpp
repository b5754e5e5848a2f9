// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "ui_form.h"

#include <KorDaoUC/Clock>
#include <KorDaoUC/Variant>

#include <QtCore/QDate>
#include <QtCore/QFile>
#include <QtCore/QMetaProperty>
#include <QtTest/QtTest>
#include <QtUiTools/QUiLoader>

#include <memory>

//! One form of the form designer, compiled by uic and loaded at run time.
class tst_UicForm : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void init();
    void compiledAndLoadedAreTheSame();
    void controlsRunThoughTheFormSaysOtherwise();
    void aRangeHasItsBounds();
    void aDateIsTodayUnlessTheFormEmptiesIt();

private:
    std::unique_ptr<QWidget> m_compiled;
    Ui::Form m_form;
    std::unique_ptr<QWidget> m_loaded;
};

void tst_UicForm::initTestCase()
{
    kor::Clock::setSource([] { return QDate(2026, 3, 4); });
}

void tst_UicForm::init()
{
    m_compiled = std::make_unique<QWidget>();
    m_form.setupUi(m_compiled.get());
    QUiLoader loader;
    loader.clearPluginPaths();
    loader.addPluginPath(QStringLiteral(KOR_PLUGIN_FOLDER));
    QFile file(QStringLiteral(KOR_FORM));
    m_loaded.reset(loader.load(&file));
    QVERIFY(m_loaded);
}

void tst_UicForm::compiledAndLoadedAreTheSame()
{
    for (const char *name : {"numPrice", "datDue", "datToday", "cmbPaid"}) {
        const auto *compiled = m_compiled->findChild<QWidget *>(QString::fromLatin1(name));
        const auto *loaded = m_loaded->findChild<QWidget *>(QString::fromLatin1(name));
        QVERIFY(compiled && loaded);
        QCOMPARE(loaded->metaObject()->className(), compiled->metaObject()->className());
        const QMetaObject *type = compiled->metaObject();
        for (int i = QWidget::staticMetaObject.propertyCount(); i < type->propertyCount(); ++i) {
            const QByteArray property = type->property(i).name();
            if (property != "hWnd")
                QVERIFY2(compiled->property(property) == loaded->property(property), name + (' ' + property));
        }
    }
}

void tst_UicForm::controlsRunThoughTheFormSaysOtherwise()
{
    QVERIFY(m_form.numPrice->UserMode());
    bool userMode = false;
    QVERIFY(QMetaObject::invokeMethod(m_loaded->findChild<QWidget *>(QStringLiteral("numPrice")), "UserMode",
                                      Q_RETURN_ARG(bool, userMode)));
    QVERIFY(userMode);
}

void tst_UicForm::aRangeHasItsBounds()
{
    QVERIFY(m_form.numPrice->CheckRange());
    QCOMPARE(m_form.numPrice->MaxValue(), QVariant(1000.5F));
    QCOMPARE(m_form.numPrice->Alignment(), kor::AlignmentType::Center);
}

void tst_UicForm::aDateIsTodayUnlessTheFormEmptiesIt()
{
    QVERIFY(kor::isNull(m_form.datDue->Value()));
    QCOMPARE(m_form.datDue->Text(), QString());
    QCOMPARE(m_form.datToday->Value(), QVariant(QDate(2026, 3, 4)));
    QVERIFY(!m_form.datToday->Text().isEmpty());
}

QTEST_MAIN(tst_UicForm)
#include "tst_uicform.moc"
