// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "designer/designerstage.h"

#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtSql/QSqlDatabase>
#include <QtTest/QtTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>

#include <array>
#include <memory>
#include <utility>
#include <vector>

using namespace kor::test;

namespace {

const char connection[] = "lists";

//! Clicks everywhere in a control, strikes its keys, and asks it for all that a program may ask, and tells what came
//! of it.
class Poking
{
public:
    explicit Poking(QWidget &control) : m_control(control), m_before(state()), m_seen(seen())
    {
        QObject::connect(&m_closer, &QTimer::timeout, &control, [this] {
            if (QWidget *dialog = QApplication::activeModalWidget()) {
                m_came << QStringLiteral("dialog");
                dialog->close();
            }
        });
        m_closer.start(5);
    }

    void byTheUser()
    {
        for (const char *signal : {SIGNAL(Click()), SIGNAL(Change()), SIGNAL(Refreshed())}) {
            if (m_control.metaObject()->indexOfSignal(signal + 1) >= 0)
                m_signals.push_back(std::make_unique<QSignalSpy>(&m_control, signal));
        }
        for (const QPointer<QWidget> &part : m_seen) {
            for (const auto &place : {QPointF(0.5, 0.5), QPointF(0.95, 0.5), QPointF(0.5, 0.2)}) {
                if (part)
                    QTest::mouseClick(part, Qt::LeftButton, {},
                                      QPointF(place.x() * part->width(), place.y() * part->height()).toPoint());
                look();
            }
            for (const auto &[key, with] :
                 std::initializer_list<std::pair<Qt::Key, Qt::KeyboardModifiers>>{{Qt::Key_F4, {}},
                                                                                  {Qt::Key_F5, {}},
                                                                                  {Qt::Key_F6, {}},
                                                                                  {Qt::Key_Down, Qt::AltModifier},
                                                                                  {Qt::Key_5, {}},
                                                                                  {Qt::Key_Up, {}},
                                                                                  {Qt::Key_Insert, {}}}) {
                if (part)
                    QTest::keyClick(part, key, with);
                look();
            }
        }
    }

    //! What the designer does not keep from a control.
    void byAProgram()
    {
        for (auto *button : m_control.findChildren<QAbstractButton *>()) {
            if (button->isVisible())
                button->click();
            look();
        }
        QMetaObject::invokeMethod(&m_control, "Refresh");
        if (m_control.metaObject()->indexOfMethod("SetFocusCell(int,int)") >= 0)
            QMetaObject::invokeMethod(&m_control, "SetFocusCell", Q_ARG(int, 1), Q_ARG(int, 1));
        m_control.setFocus();
        QCoreApplication::processEvents(); // a is settled later
        look();
    }

    //! Events that the user caused, windows that opened, editors that showed up, and properties that are others now.
    [[nodiscard]] QStringList whatCame()
    {
        const QStringList now = state();
        for (qsizetype i = 0; i < now.size(); ++i) {
            if (now[i] != m_before[i])
                m_came << QString::fromLatin1(properties[static_cast<std::size_t>(i)]);
        }
        for (const auto &spy : m_signals) {
            if (!spy->isEmpty())
                m_came << QString::fromLatin1(spy->signal());
        }
        m_came.removeDuplicates();
        return m_came;
    }

private:
    static constexpr std::array properties{"Text", "Value", "ListCount", "ListIndex", "ValueChecked"};

    [[nodiscard]] QStringList state() const
    {
        QStringList values;
        for (const char *property : properties)
            values << m_control.property(property).toString();
        return values;
    }
    [[nodiscard]] QList<QPointer<QWidget>> seen() const
    {
        QList<QPointer<QWidget>> parts;
        for (auto *part : m_control.findChildren<QWidget *>()) {
            if (part->isVisible() && part->window() == m_control.window())
                parts << part;
        }
        return parts;
    }
    void look()
    {
        for (QWidget *window : QApplication::topLevelWidgets()) {
            if (window->isVisible() && m_control.isAncestorOf(window->parentWidget())) {
                m_came << QStringLiteral("window");
                window->hide();
            }
        }
        for (const QPointer<QWidget> &part : seen()) {
            if (!m_seen.contains(part))
                m_came << QStringLiteral("editor");
        }
    }

    QWidget &m_control;
    QStringList m_before;
    QList<QPointer<QWidget>> m_seen;
    std::vector<std::unique_ptr<QSignalSpy>> m_signals;
    QTimer m_closer;
    QStringList m_came;
};

//! Gives a control what it needs to have something to do: a source of entries, a row.
void prepare(QWidget &control)
{
    control.setProperty("SQL", QStringLiteral("SELECT 1, 'Tak'"));
    const QMetaObject *type = control.metaObject();
    if (type->indexOfMethod("setdatabase(QString)") >= 0)
        QMetaObject::invokeMethod(&control, "setdatabase", Q_ARG(QString, QString::fromLatin1(connection)));
    if (type->indexOfMethod("AddColumn(QString,QString,int,int)") >= 0)
        QMetaObject::invokeMethod(&control, "AddColumn", Q_ARG(QString, QStringLiteral("TEXT")),
                                  Q_ARG(QString, QStringLiteral("Nazwa")), Q_ARG(int, 1500), Q_ARG(int, 0));
    if (type->indexOfMethod("AddParam(QString,QString,QString)") >= 0)
        QMetaObject::invokeMethod(&control, "AddParam", Q_ARG(QString, QStringLiteral("Nazwa")), Q_ARG(QString, {}),
                                  Q_ARG(QString, QStringLiteral("TEXT")));
}

void show(QWidget &window)
{
    window.setFocusPolicy(Qt::StrongFocus);
    window.setFocus(); // not the first control
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
}

} // namespace

//! Controls of a form that is being designed do nothing, whoever asks; those of one that runs do.
class tst_InertControls : public QObject, private DesignerStage
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase() { endDesigner(); }
    void init() { newForm(); }
    void cleanup();

    void aDesignedControlIsInert_data();
    void aDesignedControlIsInert();
};

void tst_InertControls::initTestCase()
{
    QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QString::fromLatin1(connection));
    database.setDatabaseName(QStringLiteral(":memory:"));
    QVERIFY(database.open());
    startDesigner();
}

void tst_InertControls::cleanup()
{
    closeForm();
    m_window->hide();
}

void tst_InertControls::aDesignedControlIsInert_data()
{
    QTest::addColumn<QStringList>("byTheUser");  // of the same control where it runs
    QTest::addColumn<QStringList>("byAProgram"); // empty for a control that knows no difference
    const auto row = [](const char *name, const char *byTheUser, const char *byAProgram) {
        QTest::newRow(name) << QString::fromLatin1(byTheUser).split(u' ', Qt::SkipEmptyParts)
                            << QString::fromLatin1(byAProgram).split(u' ', Qt::SkipEmptyParts);
    };
    // clang-format off
    row("KorNumber",    "Text Value",           "");
    row("KorDate",      "window Change()",      "window");
    row("KorCombo",     "window ListCount",     "ListCount");
    row("KorClick",     "Text Click()",         "");
    row("KorList",      "ListCount",            "ListCount");
    row("KorListCheck", "ListCount",            "ListCount");
    row("KorColor",     "window dialog Value",        "");
    row("KorUpDown",    "Text",                 "");
    row("KorParam",     "editor",                     "editor");
    row("KorMultiText", "window Text",          "window");
    row("KorGrid",      "editor",                     "editor");
    // clang-format on
}

void tst_InertControls::aDesignedControlIsInert()
{
    QFETCH(QStringList, byTheUser);
    QFETCH(QStringList, byAProgram);
    const QString form = formOf(
        QString::fromLatin1(QTest::currentDataTag()),
        QStringLiteral("<property name=\"geometry\"><rect><x>10</x><y>10</y><width>300</width><height>120</height>"
                       "</rect></property>"));

    // Where it runs, something comes of all that is done below
    for (const auto &[poke, things] : {std::pair(&Poking::byTheUser, byTheUser), {&Poking::byAProgram, byAProgram}}) {
        const std::unique_ptr<QWidget> window = run(form);
        auto *running = window->findChild<QWidget *>(QStringLiteral("field"));
        prepare(*running);
        show(*window);
        Poking poking(*running);
        (poking.*poke)();
        const QStringList came = poking.whatCame();
        for (const QString &thing : things)
            QVERIFY2(came.contains(thing), qPrintable(thing + u':' + came.join(u' ')));
    }

    open(form);
    m_window->resize(500, 400);
    m_form->resize(500, 400);
    m_form->show();
    show(*m_window);
    prepare(*control());
    const QString saved = m_form->contents();
    for (const auto &[poke, things] : {std::pair(&Poking::byTheUser, byTheUser), {&Poking::byAProgram, byAProgram}}) {
        if (things.isEmpty())
            continue;
        Poking poking(*control());
        (poking.*poke)();
        QCOMPARE(poking.whatCame().join(u' '), QString());
    }
    QCOMPARE(m_form->contents(), saved);
}

int main(int argc, char **argv)
{
    qputenv("QT_PLUGIN_PATH", KOR_PLUGIN_FOLDER); // where the designer looks for a folder "designer"
    QApplication application(argc, argv);
    tst_InertControls test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_inertcontrols.moc"
