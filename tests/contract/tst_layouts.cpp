// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "support/stage.h"

#include <KorDaoUC/ControlRegistry>
#include <KorDaoUC/UserControl>

#include <QtCore/QScopeGuard>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QStyle>
#include <QtWidgets/QTableView>
#include <QtWidgets/QVBoxLayout>

using namespace kor;
using namespace kor::test;

namespace {

//! Which parts of a control were asked for a new layout and have none to make.
class VainRequests final : public QObject
{
public:
    explicit VainRequests(const QWidget *control) : m_control(control) { qApp->installEventFilter(this); }
    QStringList asked;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const auto *widget = qobject_cast<QWidget *>(watched);
        const bool isPart = widget && (widget == m_control || m_control->isAncestorOf(widget));
        if (event->type() == QEvent::LayoutRequest && isPart && !widget->layout())
            asked << QString::fromLatin1(watched->metaObject()->className());
        return QObject::eventFilter(watched, event);
    }

private:
    const QWidget *m_control;
};

} // namespace

//! In the toolkit's layouts each control takes the room that the toolkit's own field of its kind takes.
class tst_Layouts : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { failOnWarnings(); }

    void sizesAreThoseOfTheToolkit_data() { controls(); }
    void sizesAreThoseOfTheToolkit();
    void fieldIsAsHighAsTheToolkitsBesideIt_data();
    void fieldIsAsHighAsTheToolkitsBesideIt();
    void entriesHaveRoomAroundTextAndBox_data();
    void entriesHaveRoomAroundTextAndBox();
    void shownFieldAsksForNoNewLayout_data();
    void shownFieldAsksForNoNewLayout();

private:
    void controls();
    [[nodiscard]] static QWidget *peerOf(const QString &name);
    [[nodiscard]] static bool isList(const QString &name) { return name.startsWith(QLatin1String("KorList")); }
    [[nodiscard]] static bool isGrid(const QString &name)
    {
        return name == QLatin1String("KorGrid") || name == QLatin1String("KorParam");
    }
};

void tst_Layouts::controls()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : ControlRegistry::names())
        QTest::newRow(qPrintable(name)) << name;
}

QWidget *tst_Layouts::peerOf(const QString &name)
{
    if (isList(name))
        return new QListView;
    if (isGrid(name)) {
        auto *view = new QTableView;
        view->setFrameShape(QFrame::NoFrame);
        return view;
    }
    if (name == QLatin1String("KorCombo") || name == QLatin1String("KorColor"))
        return new QComboBox;
    return new QLineEdit;
}

void tst_Layouts::sizesAreThoseOfTheToolkit()
{
    QFETCH(QString, name);
    for (const int larger : {0, 6}) {
        const std::unique_ptr<QWidget> control(ControlRegistry::create(name));
        const std::unique_ptr<QWidget> peer(peerOf(name)); // new, since the toolkit's may keep the size of another font
        QFont font;
        font.setPointSize(font.pointSize() + larger);
        control->setFont(font);
        peer->setFont(font);
        QCOMPARE(control->sizePolicy().verticalPolicy(), peer->sizePolicy().verticalPolicy());
        QCOMPARE(control->sizePolicy().controlType(), peer->sizePolicy().controlType());
        QCOMPARE(control->minimumSizeHint().height(), peer->minimumSizeHint().height());
        if (!isList(name)) // a list that leaves the choice to the layout shows some entries, ours the fewer
            QCOMPARE(control->sizeHint().height(), peer->sizeHint().height());
        QVERIFY(control->minimumSizeHint().width() <= control->sizeHint().width());
    }
}

void tst_Layouts::fieldIsAsHighAsTheToolkitsBesideIt_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("layout");
    QTest::addColumn<int>("height");
    for (const QString &name : ControlRegistry::names()) {
        for (const char *layout : {"grid", "form", "vertical"}) {
            QTest::addRow("%s, %s, tall", qPrintable(name), layout) << name << QString::fromLatin1(layout) << 700;
            QTest::addRow("%s, %s, tiny", qPrintable(name), layout) << name << QString::fromLatin1(layout) << 1;
        }
    }
}

void tst_Layouts::fieldIsAsHighAsTheToolkitsBesideIt()
{
    QFETCH(QString, name);
    QFETCH(QString, layout);
    QFETCH(int, height);
    QWidget *control = ControlRegistry::create(name);
    QWidget *peer = peerOf(name);
    Stage window;
    delete window.layout();
    if (layout == QLatin1String("grid")) {
        auto *grid = new QGridLayout(&window);
        grid->addWidget(control, 0, 0);
        grid->addWidget(peer, 0, 1);
    } else if (layout == QLatin1String("form")) {
        auto *form = new QFormLayout(&window);
        form->addRow(QStringLiteral("jeden"), control);
        form->addRow(QStringLiteral("dwa"), peer);
    } else {
        auto *rows = new QVBoxLayout(&window);
        rows->addWidget(control);
        rows->addWidget(peer);
    }
    window.resize(300, height);
    window.show();
    settle();
    if (!isList(name)) {
        QCOMPARE(control->height(), peer->height());
        return;
    }
    const auto *list = control->findChild<QListView *>();
    const int entry = list->fontMetrics().height() * 2; // more than one takes; ours shows no part of one
    QVERIFY(control->height() <= peer->height());
    if (layout != QLatin1String("form")) // which gives each what it asks for
        QVERIFY2(control->height() > peer->height() - entry, qPrintable(QString::number(control->height())));
}

void tst_Layouts::entriesHaveRoomAroundTextAndBox_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("style");
    QTest::addColumn<int>("larger");
    for (const char *name : {"KorList", "KorListCheck"}) {
        for (const char *style : {"Fusion", "Windows"}) {
            for (const int larger : {-3, 0, 9})
                QTest::addRow("%s, %s, letters larger by %d", name, style, larger)
                    << QString::fromLatin1(name) << QString::fromLatin1(style) << larger;
        }
    }
}

void tst_Layouts::entriesHaveRoomAroundTextAndBox()
{
    QFETCH(QString, name);
    QFETCH(QString, style);
    QFETCH(int, larger);
    const QString before = QApplication::style()->name();
    QApplication::setStyle(style);
    const auto restored = qScopeGuard([&] { QApplication::setStyle(before); });
    Stage window;
    auto *control = window.place(ControlRegistry::create(name), 160, 120);
    auto *peer = window.place(new QListWidget, 160, 120);
    auto *entry = new QListWidgetItem(QStringLiteral("Żółw"), peer);
    if (name == QLatin1String("KorListCheck"))
        entry->setCheckState(Qt::Unchecked);
    QFont font = window.font();
    font.setPointSize(font.pointSize() + larger);
    control->setFont(font);
    peer->setFont(font);
    QMetaObject::invokeMethod(control, "AddEntry", Q_ARG(QVariant, 1), Q_ARG(QString, QStringLiteral("Żółw")));
    QVERIFY(window.open());
    settle();
    const auto *list = control->findChild<QListView *>();
    const int height = list->visualRect(list->model()->index(0, 0)).height();
    const int box = list->style()->pixelMetric(QStyle::PM_IndicatorHeight, nullptr, list);
    QVERIFY(height >= peer->visualItemRect(entry).height());
    QVERIFY2(height >= list->fontMetrics().height() + 2, qPrintable(QString::number(height)));
    QVERIFY2(height >= box + 2 || name == QLatin1String("KorList"), qPrintable(QString::number(height)));
}

void tst_Layouts::shownFieldAsksForNoNewLayout_data()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : ControlRegistry::names()) {
        if (!isGrid(name)) // which places its titles and scroll bars when it is shown
            QTest::newRow(qPrintable(name)) << name;
    }
}

// Each such request waits in one queue with all others of a large form, and is looked for there from its beginning.
void tst_Layouts::shownFieldAsksForNoNewLayout()
{
    QFETCH(QString, name);
    Stage window;
    const VainRequests requests(window.place(ControlRegistry::create(name)));
    QVERIFY(window.open());
    settle();
    QCOMPARE(requests.asked, QStringList());
}

QTEST_MAIN(tst_Layouts)
#include "tst_layouts.moc"
