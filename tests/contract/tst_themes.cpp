// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "support/contrast.h"
#include "support/stage.h"

#include <KorDaoUC/ControlRegistry>
#include <KorDaoUC/KorListCheck>
#include <KorDaoUC/UserControl>

#include <QtTest/QtTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QListView>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOptionComboBox>

using namespace kor;
using namespace kor::test;

namespace {

//! Where a control shows pictures to press on: its buttons, and the arrow of a drop-down list.
QList<QRect> signsOf(const QWidget &control)
{
    QList<QRect> signs;
    for (const QAbstractButton *button : control.findChildren<QAbstractButton *>()) {
        if (button->isVisible() && button->isEnabled())
            signs << QRect(button->mapTo(&control, QPoint()), button->size());
    }
    for (const QComboBox *box : control.findChildren<QComboBox *>()) {
        if (!box->isVisible())
            continue; // a grid's, until a cell is edited
        QStyleOptionComboBox option;
        option.initFrom(box);
        const QRect arrow = box->style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxArrow, box);
        signs << arrow.translated(box->mapTo(&control, QPoint()));
    }
    return signs;
}

} // namespace

//! What is drawn rather than written is seen under light and dark themes.
class tst_Themes : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        failOnWarnings();
        m_before = QApplication::palette();
    }
    void cleanup() { QApplication::setPalette(m_before); }

    void picturesOnButtonsAreSeen_data();
    void picturesOnButtonsAreSeen();
    void edgesOfEmptyCheckBoxesAreSeen_data();
    void edgesOfEmptyCheckBoxesAreSeen();

private:
    QPalette m_before;
};

void tst_Themes::picturesOnButtonsAreSeen_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isDark");
    for (const QString &name : ControlRegistry::names()) {
        QTest::addRow("%s, light", qPrintable(name)) << name << false;
        QTest::addRow("%s, dark", qPrintable(name)) << name << true;
    }
}

void tst_Themes::picturesOnButtonsAreSeen()
{
    QFETCH(QString, name);
    QFETCH(bool, isDark);
    if (isDark)
        QApplication::setPalette(darkTheme());
    Stage stage;
    QWidget *control = stage.place(ControlRegistry::create(name));
    QVERIFY(stage.open());
    const QImage picture = control->grab().toImage();
    for (const QRect &sign : signsOf(*control)) {
        const QRect inside = sign.adjusted(sign.width() / 4, sign.height() / 4, -sign.width() / 4, -sign.height() / 4);
        const QColor ground = picture.pixelColor(sign.left() + 3, sign.center().y());
        const double seen = contrastIn(picture, inside, ground);
        QVERIFY2(seen >= 3, qPrintable(QStringLiteral("%1 at %2").arg(seen).arg(sign.left())));
    }
}

void tst_Themes::edgesOfEmptyCheckBoxesAreSeen_data()
{
    QTest::addColumn<bool>("isDark");
    QTest::addColumn<OLE_COLOR>("paper"); // of the list itself
    QTest::addColumn<OLE_COLOR>("ink");
    QTest::newRow("light theme") << false << OLE_COLOR(WindowBackground) << OLE_COLOR(WindowText);
    QTest::newRow("dark theme") << true << OLE_COLOR(WindowBackground) << OLE_COLOR(WindowText);
    QTest::newRow("dark list of a light theme") << false << OLE_COLOR(0x00303030) << OLE_COLOR(0x00F0F0F0);
    QTest::newRow("light list of a dark theme") << true << OLE_COLOR(0x00FFFFFF) << OLE_COLOR(0x00000000);
}

void tst_Themes::edgesOfEmptyCheckBoxesAreSeen()
{
    QFETCH(bool, isDark);
    QFETCH(OLE_COLOR, paper);
    QFETCH(OLE_COLOR, ink);
    if (isDark)
        QApplication::setPalette(darkTheme());
    Stage stage;
    auto *list = stage.place(new KorListCheck, 160, 100);
    list->setSQL(QStringLiteral("LIST 1;Alfa|2;Beta"));
    list->setBackColor(paper);
    list->setForeColor(ink);
    list->Refresh();
    list->setListIndex(-1);
    QVERIFY(stage.open());
    const auto *box = list->findChild<QListView *>();
    const QImage picture = box->viewport()->grab().toImage();
    const QRect row = box->visualRect(box->model()->index(1, 0));
    const int width = box->style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, box);
    const QRect indicator(row.left(), row.top(), width + 3, row.height());
    const QColor ground = picture.pixelColor(row.right() - 2, row.center().y());
    const double seen = contrastIn(picture, indicator, ground);
    QVERIFY2(seen >= 1.7, qPrintable(QString::number(seen))); // what the style itself gives it on white
}

QTEST_MAIN(tst_Themes)
#include "tst_themes.moc"
