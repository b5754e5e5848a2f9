// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "support/contrast.h"
#include "support/heard.h"
#include "support/stage.h"

#include <KorDaoUC/Clock>
#include <KorDaoUC/ControlRegistry>
#include <KorDaoUC/KorDate>
#include <KorDaoUC/KorGrid>
#include <KorDaoUC/KorListCheck>
#include <KorDaoUC/Locale>
#include <KorDaoUC/UserControl>

#include <QtTest/QtTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QListView>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOptionComboBox>
#include <QtWidgets/QTableView>

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

//! The colour that most of a place has.
QColor groundOf(const QImage &picture, const QRect &place)
{
    QHash<QRgb, int> counts;
    QRgb ground = 0;
    for (int y = place.top(); y <= place.bottom(); ++y) {
        for (int x = place.left(); x <= place.right(); ++x) {
            const QRgb pixel = picture.pixel(x, y);
            if (++counts[pixel] > counts.value(ground))
                ground = pixel;
        }
    }
    return QColor(ground);
}

//! How well a text, or whatever else is in a place, is seen there.
double seenIn(const QImage &picture, const QRect &place)
{
    return contrastIn(picture, place, groundOf(picture, place));
}

void themes()
{
    QTest::addColumn<bool>("isDark");
    QTest::newRow("light") << false;
    QTest::newRow("dark") << true;
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
    void textsAreReadOnTheirGrounds_data();
    void textsAreReadOnTheirGrounds();
    void cellsAreReadAndTheCurrentOneIsSeen_data() { themes(); }
    void cellsAreReadAndTheCurrentOneIsSeen();
    void daysAreReadAndTodayIsSeen_data() { themes(); }
    void daysAreReadAndTodayIsSeen();
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

void tst_Themes::textsAreReadOnTheirGrounds_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("isLocked");
    QTest::addColumn<bool>("isDark");
    const auto row = [](const char *name, const char *property, const QVariant &value, bool isLocked = false) {
        for (const bool isDark : {false, true})
            QTest::addRow("%s%s, %s", name, isLocked ? " locked" : "", isDark ? "dark" : "light")
                << QString::fromLatin1(name) << QByteArray(property) << value << isLocked << isDark;
    };
    const QString text = QStringLiteral("MMM");
    row("KorNumber", "Value", 888);
    row("KorNumber", "Value", 888, true);
    row("KorDate", "Text", QStringLiteral("28.08.2028"));
    row("KorDate", "Text", QStringLiteral("28.08.2028"), true);
    row("KorClick", "Text", text);
    row("KorClick", "Text", text, true);
    row("KorUpDown", "Text", QStringLiteral("88"));
    row("KorMultiText", "Text", text);
    row("KorColor", "Value", 0);
    for (const char *list : {"KorCombo", "KorList", "KorListCheck"})
        row(list, "SQL", QStringLiteral("LIST 1;MMMMM"));
}

void tst_Themes::textsAreReadOnTheirGrounds()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, property);
    QFETCH(QVariant, value);
    QFETCH(bool, isLocked);
    QFETCH(bool, isDark);
    if (isDark)
        QApplication::setPalette(darkTheme());
    Stage stage;
    UserControl *control = stage.place(ControlRegistry::create(name), 160, name.contains(u"List") ? 60 : 26);
    control->setProperty(property, value);
    control->Refresh();
    if (name == u"KorCombo")
        control->setProperty("ListIndex", 0);
    else if (name.contains(u"List"))
        control->setProperty("ListIndex", -1); // what is selected has the theme's own colours
    control->setProperty("Locked", isLocked);
    QVERIFY(stage.open());
    stage.button()->setFocus(); // a field that is entered selects its text
    settle();
    const QWidget *box = control->focusProxy();
    const QImage picture = control->grab().toImage();
    const QRect inside =
        QRect(box->mapTo(control, QPoint()), box->size()).adjusted(4, 4, name.contains(u"Co") ? -30 : -4, -4);
    const double seen = seenIn(picture, inside);
    QVERIFY2(seen >= 4.5, qPrintable(QString::number(seen)));
    // A selection has the theme's own two colours, which go together.
    for (const QPalette::ColorRole role : {QPalette::Highlight, QPalette::HighlightedText})
        QCOMPARE(box->palette().color(role), QApplication::palette().color(role));
}

void tst_Themes::cellsAreReadAndTheCurrentOneIsSeen()
{
    QFETCH(bool, isDark);
    if (isDark)
        QApplication::setPalette(darkTheme());
    Stage stage;
    auto *grid = stage.place(new KorGrid, 300, 120);
    grid->AddColumn(QStringLiteral("TEXT"), QStringLiteral("MMM"), 1200, 0);
    grid->AddColumn(QStringLiteral("TEXT"), QStringLiteral("MMM"), 1200, 0, true);
    grid->setRows(4);
    for (int row = 0; row < 4; ++row) {
        for (int column = 0; column < 3; ++column)
            grid->setTextControl(row, column, QStringLiteral("MMM"));
    }
    QVERIFY(stage.open());
    grid->setCol(2); // locked, so that no editor lies over it
    grid->setFocus();
    settle();
    auto *view = grid->findChild<QTableView *>(QStringLiteral("grid"));
    const auto place = [&](int row, int column) {
        const QRect cell = view->visualRect(view->model()->index(row - 1, column - 1));
        return cell.translated(view->viewport()->mapTo(grid, QPoint())).adjusted(3, 3, -3, -3);
    };
    QImage picture = grid->grab().toImage();
    for (const QRect &cell : {place(2, 1), place(2, 2), place(2, 1).translated(0, -2 * place(2, 1).height() - 12),
                              place(2, 1).translated(-place(2, 1).left() + 3, 0)}) {
        const double seen = seenIn(picture, cell);
        QVERIFY2(seen >= 4.5, qPrintable(QStringLiteral("%1 at %2,%3").arg(seen).arg(cell.left()).arg(cell.top())));
    }
    const QRect current = place(1, 2).adjusted(-2, -2, 2, -place(1, 2).height() + 2); // the upper line of its frame
    const double frame = contrastIn(picture, current, groundOf(picture, place(1, 2)));
    QVERIFY2(frame >= 3, qPrintable(QString::number(frame)));
    QVERIFY(heard(view)->tableInterface()->selectRow(1));
    settle();
    picture = grid->grab().toImage();
    const QColor ground = groundOf(picture, place(2, 2));
    QCOMPARE(ground, QApplication::palette().color(QPalette::Highlight));
    const double whole = contrast(ground, QApplication::palette().color(QPalette::HighlightedText));
    QVERIFY(contrastIn(picture, place(2, 2), ground) > whole * 0.9);
}

void tst_Themes::daysAreReadAndTodayIsSeen()
{
    QFETCH(bool, isDark);
    Clock::setSource([] { return QDate(2026, 11, 22); }); // a Sunday
    Locale::setSystemDefault(Locale::polish());
    if (isDark)
        QApplication::setPalette(darkTheme());
    Stage stage;
    auto *date = stage.place(new KorDate);
    QVERIFY(stage.open());
    date->setText(QStringLiteral("10.11.2026"));
    date->setFocus();
    settle();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F4);
    auto *days = qobject_cast<QTableView *>(QApplication::focusWidget());
    QVERIFY(days);
    const QImage picture = days->viewport()->grab().toImage();
    for (int column = 1; column < 8; ++column) { // the week of the 16th to the 22nd, free days and today among them
        const QRect cell = days->visualRect(days->model()->index(4, column));
        const double seen = seenIn(picture, cell.adjusted(3, 3, -3, -3));
        QVERIFY2(seen >= 4.5, qPrintable(QStringLiteral("%1 in column %2").arg(seen).arg(column)));
    }
    const QRect today = days->visualRect(days->model()->index(4, 7));
    QCOMPARE(days->model()->index(4, 7).data().toInt(), 22);
    const QRect ring(today.left() + 1, today.top() + 1, today.width() - 2, 1);
    const double seen = contrastIn(picture, ring, groundOf(picture, today));
    QVERIFY2(seen >= 3, qPrintable(QString::number(seen)));
    Clock::setSource({});
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
    QVERIFY2(seen >= 3, qPrintable(QString::number(seen)));
}

QTEST_MAIN(tst_Themes)
#include "tst_themes.moc"
