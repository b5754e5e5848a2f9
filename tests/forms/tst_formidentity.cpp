// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "support/stage.h"

#include <KorDaoUC/ControlRegistry>
#include <KorDaoUC/FormBuilder>
#include <KorDaoUC/FormFile>
#include <KorDaoUC/UserControl>

#include <QtCore/QLoggingCategory>
#include <QtCore/QProcess>
#include <QtCore/QRandomGenerator>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyle>

#include <memory>

namespace FormFile = kor::FormFile;
using namespace kor::test;
using kor::FormBlock;
using kor::FormBuilder;

namespace {

FormBlock parsed(const QByteArray &text)
{
    const kor::FormResult result = FormFile::parse(text);
    return result.form ? *result.form : FormBlock{QStringLiteral("(bad text)"), result.error.reason, {}, {}};
}

QStringList classes()
{
    QStringList all{QStringLiteral("Label"), QStringLiteral("CommandButton"), QStringLiteral("Frame")};
    for (const QString &name : kor::ControlRegistry::names())
        all << QStringLiteral("KorDaoUC.") + name;
    return all;
}

//! A control of the class in many places, on the form and within a frame: twips that are no whole pixels, heights that
//! are no whole rows, with and without each of the four numbers.
QByteArray formWith(const QString &type)
{
    const QByteArrayList places{"Left = 101\nTop = 203\nWidth = 2011\nHeight = 1200\n",
                                "Left = 3007!\nTop = 7#\nWidth = 2000%\nHeight = 1199\n",
                                "Left = 150\nTop = 2000\n",
                                "Height = 301\nTag = \"x\"\nTop = 2600\n",
                                "Width = 1500\nEnabled = False\n",
                                "Font = Font(\"DejaVu Sans\", 13, Bold)\nTop = 2900\nHeight = 1000\nTabIndex = 3\n",
                                ""};
    QByteArray controls;
    int number = 0;
    for (const QByteArray &place : places)
        controls += "Begin " + type.toUtf8() + " c" + QByteArray::number(++number) + '\n' + place + "End\n";
    QByteArray inner = controls;
    inner.replace(" c", " inner");
    return FormFile::serialize(parsed("Begin Form f\nWidth = 7001\nHeight = 6001\n" + controls +
                                      "Begin Frame frame\nLeft = 3001\nWidth = 4001\nHeight = 4001\n" + inner +
                                      "End\nEnd\n"));
}

//! A form in its window, as a program has it.
class OpenForm
{
public:
    explicit OpenForm(const QByteArray &text)
    {
        if (const std::optional<QString> reason = m_builder.build(parsed(text), &m_window))
            qFatal("%s", qPrintable(*reason));
    }
    [[nodiscard]] QByteArray saved() const { return FormFile::serialize(m_builder.toBlock()); }
    [[nodiscard]] QWidget &window() { return m_window; }
    [[nodiscard]] QWidget *widget(const char *name) { return m_window.findChild<QWidget *>(QString::fromLatin1(name)); }

private:
    QWidget m_window;
    FormBuilder m_builder;
};

//! What happens to a form while nobody moves a control.
struct Happening {
    const char *name;
    std::function<void(std::unique_ptr<OpenForm> &)> act;
};

void useFont(int points, bool bold = false)
{
    QFont font = QApplication::font();
    font.setPointSize(points);
    font.setBold(bold);
    QApplication::setFont(font);
}

const std::vector<Happening> happenings = {
    {"show", [](auto &form) { form->window().show(); }},
    {"hide", [](auto &form) { form->window().hide(); }},
    {"wait", [](auto &) { settle(); }},
    {"small font", [](auto &) { useFont(6); }},
    {"large font", [](auto &) { useFont(19, true); }},
    {"usual font", [](auto &) { useFont(9); }},
    {"other style", [](auto &) { QApplication::setStyle(QStringLiteral("Windows")); }},
    {"usual style", [](auto &) { QApplication::setStyle(QStringLiteral("Fusion")); }},
    {"right to left", [](auto &) { QApplication::setLayoutDirection(Qt::RightToLeft); }},
    {"left to right", [](auto &) { QApplication::setLayoutDirection(Qt::LeftToRight); }},
    {"disable", [](auto &form) { form->window().setEnabled(false); }},
    {"enable", [](auto &form) { form->window().setEnabled(true); }},
    {"load again", [](auto &form) { form = std::make_unique<OpenForm>(form->saved()); }},
};

} // namespace

//! Loading, showing and saving a form changes nothing.
class tst_FormIdentity : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase()
    {
        QLoggingCategory::setFilterRules(QStringLiteral("kordaouc.forms.warning=false")); // of keys that nobody knows
    }

    void cleanup()
    {
        QApplication::setStyle(QStringLiteral("Fusion"));
        QApplication::setLayoutDirection(Qt::LeftToRight);
        QApplication::setFont(m_font);
    }

    void whateverHappensChangesNothing_data() { everyClass(); }
    void whateverHappensChangesNothing()
    {
        QFETCH(const QString, type);
        const QByteArray text = formWith(type);
        QRandomGenerator random(20);
        for (int run = 0; run < 12; ++run) {
            cleanup();
            auto form = std::make_unique<OpenForm>(text);
            QStringList done;
            for (int step = 0; step < 14; ++step) {
                const auto &happening =
                    happenings[static_cast<std::size_t>(random.bounded(static_cast<int>(happenings.size())))];
                happening.act(form);
                done << QString::fromLatin1(happening.name);
                QVERIFY2(form->saved() == text,
                         qPrintable(done.join(QStringLiteral(", ")) + u'\n' + difference(form->saved(), text)));
            }
        }
    }

    void aMovedControlIsSavedWhereItIs_data() { everyClass(); }
    void aMovedControlIsSavedWhereItIs()
    {
        QFETCH(const QString, type);
        for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            QApplication::setLayoutDirection(direction);
            OpenForm form(formWith(type));
            form.window().show();
            settle();
            useFont(17);
            settle();
            QWidget *control = form.widget("c1");
            const int step = direction == Qt::LeftToRight ? 20 : -20;
            const int lineEnd = direction == Qt::LeftToRight ? 0 : 30; // that moves, when the other one stays
            control->setGeometry(control->x() + step - lineEnd, control->y() + 10, control->width() + 30, 75);
            settle();
            QByteArray expected = formWith(type);
            expected.replace("      Left = 101\n      Top = 203\n      Width = 2011\n      Height = 1200\n",
                             twips(7 + 20, 14 + 10, 134 + 30, type == u"KorDaoUC.KorCombo" ? 80 : 75));
            QCOMPARE(form.saved(), expected);

            // And stays there
            OpenForm again(form.saved());
            again.window().show();
            settle();
            QCOMPARE(again.saved(), expected);
            cleanup();
        }
    }

    void aMaximizedFormKeepsItsSize()
    {
        OpenForm form(formWith(QStringLiteral("Label")));
        form.window().show();
        QVERIFY(QTest::qWaitForWindowActive(&form.window())); // by when the window manager has seen its own size
        const QSize before = form.window().size();
        for (const Qt::WindowState state : {Qt::WindowMaximized, Qt::WindowFullScreen}) {
            form.window().setWindowState(state);
            QTRY_VERIFY(form.window().size() != before);
            QCOMPARE(form.saved(), formWith(QStringLiteral("Label")));
            form.window().setWindowState(Qt::WindowNoState);
            QTRY_COMPARE(form.window().size(), before);
        }
    }

    void aHiddenListThatIsSizedIsSavedSo()
    {
        OpenForm form(formWith(QStringLiteral("KorDaoUC.KorList")));
        form.window().show();
        settle();
        form.window().hide();
        form.widget("c1")->resize(134, 111);
        QVERIFY(form.saved().contains(twips(-1, -1, -1, 111)));
        form.window().show();
        settle();
        QVERIFY(form.widget("c1")->height() <= 111);
        QVERIFY(form.saved().contains(twips(-1, -1, -1, 111)));
    }

    void aListShowsWholeRowsOfItsPlace_data()
    {
        QTest::addColumn<QString>("type");
        QTest::newRow("KorList") << "KorDaoUC.KorList";
        QTest::newRow("KorListCheck") << "KorDaoUC.KorListCheck";
    }
    void aListShowsWholeRowsOfItsPlace()
    {
        QFETCH(const QString, type);
        OpenForm form(formWith(type));
        form.window().show();
        settle();
        auto *list = qobject_cast<kor::UserControl *>(form.widget("c1"));
        QCOMPARE(list->givenSize().height(), qRound(1200.0 * list->logicalDpiY() / 1440));
        QVERIFY(list->height() <= list->givenSize().height());
    }

    void placesAreMirroredRightToLeft_data() { everyClass(); }
    void placesAreMirroredRightToLeft()
    {
        QFETCH(const QString, type);
        OpenForm form(formWith(type));
        form.window().show();
        settle();
        const QList<QWidget *> widgets = placed(form);
        QList<QRect> places;
        for (const QWidget *widget : widgets)
            places << widget->geometry();
        const auto compare = [&](bool isMirrored, const char *when) {
            for (int i = 0; i < widgets.size(); ++i) {
                const QWidget *widget = widgets[i];
                const int beyond = widget->parentWidget()->width() - widget->x() - widget->width();
                const int left = isMirrored ? beyond : widget->x();
                QVERIFY2(left == places[i].x() && widget->y() == places[i].y() && widget->size() == places[i].size(),
                         qPrintable(QString::fromLatin1(when) + u' ' + widget->objectName()));
            }
        };
        QApplication::setLayoutDirection(Qt::RightToLeft);
        settle();
        compare(true, "after the change");
        form.window().resize(form.window().width() + 37, form.window().height());
        settle();
        compare(true, "in a wider window");
        form.window().hide();
        form.window().resize(form.window().width() - 11, form.window().height());
        form.window().show();
        settle();
        compare(true, "shown again");
        QApplication::setLayoutDirection(Qt::LeftToRight);
        settle();
        compare(false, "back again");
        QApplication::setLayoutDirection(Qt::RightToLeft);
        OpenForm loaded(formWith(type));
        const QList<QWidget *> mirrored = placed(loaded);
        for (int i = 0; i < mirrored.size(); ++i) {
            const QWidget *widget = mirrored[i];
            QCOMPARE(widget->parentWidget()->width() - widget->x() - widget->width(), places[i].x());
        }
    }

    void aRefusedFormLeavesNoMirrorBehind()
    {
        QWidget window;
        FormBuilder builder;
        QVERIFY(builder.build(parsed("Begin Form f\nBegin Label l\nAlignment = 9\nEnd\nEnd\n"), &window));
        QVERIFY(window.children().isEmpty());
    }

    void aFileGoesThroughAllScales_data()
    {
        QTest::addColumn<QString>("type");
        for (const char *type : {"Label", "KorDaoUC.KorNumber", "KorDaoUC.KorCombo", "KorDaoUC.KorList"})
            QTest::newRow(type) << QString::fromLatin1(type);
    }
    void aFileGoesThroughAllScales()
    {
        QFETCH(const QString, type);
        const QTemporaryDir folder;
        const QString fileName = folder.filePath(QStringLiteral("a.frm"));
        QVERIFY(!FormFile::save(parsed(formWith(type)), fileName));
        const QList<std::pair<QString, QString>> scales{{QStringLiteral("QT_SCALE_FACTOR"), QStringLiteral("1.5")},
                                                        {QStringLiteral("QT_FONT_DPI"), QStringLiteral("144")},
                                                        {QStringLiteral("QT_SCALE_FACTOR"), QStringLiteral("0.75")},
                                                        {QStringLiteral("QT_FONT_DPI"), QStringLiteral("71")}};
        for (const auto &[variable, value] : scales) {
            QProcess child;
            QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
            environment.insert(variable, value);
            child.setProcessEnvironment(environment);
            child.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--save-again"), fileName});
            QVERIFY(child.waitForFinished());
            QCOMPARE(child.exitCode(), 0);
            const kor::FormResult result = FormFile::load(fileName);
            QVERIFY(result.form);
            QCOMPARE(FormFile::serialize(*result.form), formWith(type));
        }
    }

private:
    static void everyClass()
    {
        QTest::addColumn<QString>("type");
        for (const QString &type : classes())
            QTest::newRow(qPrintable(type)) << type;
    }
    static QList<QWidget *> placed(OpenForm &form)
    {
        QList<QWidget *> all;
        for (QWidget *widget : form.window().findChildren<QWidget *>()) {
            if (widget->parentWidget() == &form.window() || widget->parentWidget()->objectName() == u"frame")
                all << widget;
        }
        return all;
    }
    //! The lines of a place in pixels; without those that are -1.
    static QByteArray twips(int left, int top, int width, int height)
    {
        const double perPixel = 1440.0 / QWidget().logicalDpiX();
        QByteArray lines;
        for (const auto &[key, pixels] :
             {std::pair("Left", left), {"Top", top}, {"Width", width}, {"Height", height}}) {
            if (pixels >= 0)
                lines += QByteArray("      ") + key + " = " + QByteArray::number(qRound(pixels * perPixel)) + '\n';
        }
        return lines;
    }
    static QString difference(const QByteArray &now, const QByteArray &before)
    {
        const QByteArrayList lines = now.split('\n');
        const QByteArrayList old = before.split('\n');
        for (int i = 0; i < std::min(lines.size(), old.size()); ++i) {
            if (lines[i] != old[i])
                return QString::fromUtf8("line " + QByteArray::number(i + 1) + ": " + old[i] + " became " + lines[i]);
        }
        return QStringLiteral("other length");
    }

    const QFont m_font = QApplication::font();
};

//! The child of aFileGoesThroughAllScales(): loads, shows and saves.
int saveAgain(const QString &fileName)
{
    const kor::FormResult result = FormFile::load(fileName);
    if (!result.form)
        return 1;
    OpenForm form(FormFile::serialize(*result.form));
    form.window().show();
    settle();
    useFont(15);
    settle();
    return FormFile::save(parsed(form.saved()), fileName) ? 2 : 0;
}

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    if (argc == 3 && qstrcmp(argv[1], "--save-again") == 0)
        return saveAgain(QString::fromLocal8Bit(argv[2]));
    tst_FormIdentity test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_formidentity.moc"
