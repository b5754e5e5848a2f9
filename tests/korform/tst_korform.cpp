// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QRegularExpression>
#include <QtCore/QTemporaryDir>
#include <QtGui/QImage>
#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlQuery>
#include <QtTest/QtTest>

#include <csignal>
#include <memory>
#include <sys/stat.h>

namespace {

//! What came of running the program.
struct Run {
    int exitCode = -1; //!< -1 when it was killed
    QString output{};
    QStringList errors{};
};

QByteArray contents(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(not readable)");
}

bool put(const QString &fileName, const QByteArray &text)
{
    QFile file(fileName);
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
}

const QByteArray order = "Begin Form frmOrder\n   Caption = \"Zamówienie\"\n   Width = 6000\n   Height = 2000\n"
                         "   Begin KorDaoUC.KorNumber numPrice\n      Left = 101\n      Top = 300\n"
                         "      MaskPicture = \"#,##0.00\"\n      Tag = \"ź\"\n   End\nEnd\n";

} // namespace

//! The program korform, run as a user runs it.
class tst_KorForm : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }
    void cleanup() { m_folder.reset(); }

    void wrongArgumentsAreRefused_data();
    void wrongArgumentsAreRefused();
    void helpTellsWhatThePageTells();
    void theVersionIsTold();
    void aFormGoesThereAndBack();
    void whatIsLostIsNamedAndTold();
    void strictWritesNothingThatIsNotWhole();
    void otherScreensAreRemembered();
    void layoutsGivePlaces();
    void aBadSourceLeavesTheTarget_data();
    void aBadSourceLeavesTheTarget();
    void aTargetThatCannotBeWrittenIsRefused_data();
    void aTargetThatCannotBeWrittenIsRefused();
    void aFullDiskLeavesTheOldFile();
    void aKilledRunLeavesAWholeFile();
    void everyFaultIsNamed_data();
    void everyFaultIsNamed();
    void allFilesAreChecked();
    void aFormIsShown_data();
    void aFormIsShown();
    void aShownListIsFilledFromTheDatabase();
    void aShownListIsFilledFromAnMdbFile();
    void aDatabaseThatIsNoneIsRefused_data();
    void aDatabaseThatIsNoneIsRefused();
    void aFormThatCannotBeShownIsRefused_data();
    void aFormThatCannotBeShownIsRefused();

private:
    [[nodiscard]] Run run(const QStringList &arguments, const QString &shellBefore = {}) const;
    [[nodiscard]] QString path(const char *name) const { return m_folder->filePath(QString::fromLatin1(name)); }
    [[nodiscard]] QStringList files() const
    {
        return QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden | QDir::System, QDir::Name);
    }
    //! A file of this name with this text.
    [[nodiscard]] QString file(const char *name, const QByteArray &text) const
    {
        return put(path(name), text) ? path(name) : QString();
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

Run tst_KorForm::run(const QStringList &arguments, const QString &shellBefore) const
{
    QProcess process;
    process.setWorkingDirectory(m_folder->path());
    if (shellBefore.isEmpty())
        process.start(QStringLiteral(KOR_PROGRAM), arguments);
    else
        process.start(QStringLiteral("/bin/sh"),
                      QStringList{QStringLiteral("-c"), shellBefore + QStringLiteral("; exec \"$0\" \"$@\""),
                                  QStringLiteral(KOR_PROGRAM)} +
                          arguments);
    if (!process.waitForFinished(60000))
        return {-2, {}, {QStringLiteral("does not end")}};
    Run result;
    result.exitCode = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    result.output = QString::fromUtf8(process.readAllStandardOutput());
    result.errors = QString::fromUtf8(process.readAllStandardError()).split(u'\n', Qt::SkipEmptyParts);
    return result;
}

void tst_KorForm::wrongArgumentsAreRefused_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("reason");
    const auto words = [](const char *text) { return QString::fromLatin1(text).split(u' ', Qt::SkipEmptyParts); };
    // clang-format off
    QTest::newRow("none")                     << words("")                              << QStringLiteral("korform: a command is missing");
    QTest::newRow("no command")               << words("open a.ui")                     << QStringLiteral("korform: 'open' is no command");
    QTest::newRow("one file of two")          << words("convert a.frm")                 << QStringLiteral("korform: convert needs two files");
    QTest::newRow("three files of two")       << words("convert a b c")                 << QStringLiteral("korform: convert needs two files");
    QTest::newRow("an empty name")            << QStringList{QStringLiteral("check"), QString()} << QStringLiteral("korform: check needs files");
    QTest::newRow("no file to check")         << words("check")                         << QStringLiteral("korform: check needs files");
    QTest::newRow("two files to show")        << words("show a b")                      << QStringLiteral("korform: show needs one file");
    QTest::newRow("no option")                << words("check --fast a")                << QStringLiteral("korform: Unknown option 'fast'.");
    QTest::newRow("another command's option") << words("check --dpi 96 a")              << QStringLiteral("korform: check has no option --dpi");
    QTest::newRow("an option's value")        << words("show a --database")             << QStringLiteral("korform: Missing value after '--database'.");
    QTest::newRow("no resolution")            << words("convert --dpi many a b")        << QStringLiteral("korform: --dpi needs a number from 24 to 2400");
    QTest::newRow("no such resolution")       << words("convert --dpi 0 a b")           << QStringLiteral("korform: --dpi needs a number from 24 to 2400");
    // clang-format on
}

void tst_KorForm::wrongArgumentsAreRefused()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const QString, reason);
    const Run result = run(arguments);
    QCOMPARE(result.exitCode, 2);
    QCOMPARE(result.output, QString());
    QCOMPARE(result.errors, (QStringList{reason, QStringLiteral("korform --help explains.")}));
}

void tst_KorForm::helpTellsWhatThePageTells()
{
    const Run result = run({QStringLiteral("--help")});
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.errors, QStringList());
    QVERIFY(result.output.startsWith(QLatin1String("Usage: korform convert")));
    const QString page = QString::fromUtf8(contents(QStringLiteral(KOR_PAGE)));
    QVERIFY2(page.contains(QStringLiteral("```text\n") + result.output + QStringLiteral("```\n")),
             "docs/korform.md does not show what korform --help prints");
}

void tst_KorForm::theVersionIsTold()
{
    const Run result = run({QStringLiteral("--version")});
    QCOMPARE(result.exitCode, 0);
    QVERIFY(QRegularExpression(QStringLiteral("^korform \\d+\\.\\d+\\.\\d+\n$")).match(result.output).hasMatch());
}

void tst_KorForm::aFormGoesThereAndBack()
{
    const QString from = file("a.korform", order);
    const Run there = run({QStringLiteral("convert"), from, path("a.ui")});
    QCOMPARE(there.exitCode, 0);
    QCOMPARE(there.errors,
             QStringList(from + QStringLiteral(":9: kept: KorDaoUC.KorNumber numPrice, Tag: there is no such "
                                               "property; a .ui file makes nothing of it")));
    QVERIFY(contents(path("a.ui")).startsWith("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<ui version=\"4.0\">\n"));
    const Run back = run({QStringLiteral("convert"), path("a.ui"), path("b.korform")});
    QCOMPARE(back.exitCode, 0);
    QCOMPARE(back.errors, QStringList());
    QCOMPARE(contents(path("b.korform")), order);
    // What is kept may be left unsaid, and an older file is replaced.
    QVERIFY(put(path("a.ui"), "old"));
    QCOMPARE(run({QStringLiteral("convert"), QStringLiteral("--quiet"), from, path("a.ui")}).errors, QStringList());
    QVERIFY(contents(path("a.ui")).size() > 100);
}

void tst_KorForm::whatIsLostIsNamedAndTold()
{
    const QString from = file("a.korform", "' mine\n" + order);
    const Run result = run({QStringLiteral("convert"), QStringLiteral("--quiet"), from, path("a.ui")});
    QCOMPARE(result.exitCode, 1);
    QCOMPARE(result.errors, QStringList(from + QStringLiteral(":1: lost: the comment is not kept")));
    QVERIFY(QFile::exists(path("a.ui")));
}

void tst_KorForm::strictWritesNothingThatIsNotWhole()
{
    const QString from = file("a.korform", order + "' mine\n");
    const Run result = run({QStringLiteral("convert"), QStringLiteral("--strict"), from, path("a.ui")});
    QCOMPARE(result.exitCode, 2);
    QCOMPARE(files(), QStringList(QStringLiteral("a.korform")));
}

void tst_KorForm::otherScreensAreRemembered()
{
    const QString from = file("a.korform", order);
    const Run there =
        run({QStringLiteral("convert"), QStringLiteral("--dpi"), QStringLiteral("120"), from, path("a.ui")});
    QCOMPARE(there.exitCode, 0);
    QVERIFY(contents(path("a.ui")).contains("<width>500</width>"));
    QCOMPARE(run({QStringLiteral("convert"), path("a.ui"), path("b.korform")}).exitCode, 0);
    QCOMPARE(contents(path("b.korform")), order);
}

void tst_KorForm::layoutsGivePlaces()
{
    const Run result = run({QStringLiteral("convert"), QStringLiteral(KOR_UI), path("a.korform")});
    QCOMPARE(result.exitCode, 1); // it has a date of today
    const QByteArray form = contents(path("a.korform"));
    QVERIFY2(form.contains("Begin KorDaoUC.KorCombo cmbPaid\n      Left = "), form.constData());
    QVERIFY(form.contains("   ui.layout = \"<layout class=\"\"QFormLayout\"\""));
    QCOMPARE(run({QStringLiteral("convert"), path("a.korform"), path("b.ui")}).exitCode, 0);
    QVERIFY(contents(path("b.ui")).contains("<layout class=\"QFormLayout\" name=\"layout\">"));
}

void tst_KorForm::aBadSourceLeavesTheTarget_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("target");
    QTest::addColumn<QString>("reason"); // behind the name of the file
    // clang-format off
    QTest::newRow("no file")           << QByteArray("none.frm") << QByteArray()                          << QByteArray("t.ui")  << QStringLiteral(": error: No such file or directory");
    QTest::newRow("a folder")          << QByteArray(".")        << QByteArray()                          << QByteArray("t.ui")  << QStringLiteral(": error: this is a folder");
    QTest::newRow("nothing")           << QByteArray("a.frm")    << QByteArray("")                        << QByteArray("t.ui")  << QStringLiteral(":1: error: there is no form in the file");
    QTest::newRow("half a form")       << QByteArray("a.frm")    << QByteArray("Begin Form f\nA = 1\n")   << QByteArray("t.ui")  << QStringLiteral(":1: error: the block that begins here has no End");
    QTest::newRow("no form")           << QByteArray("a.frm")    << QByteArray("Begin Label l\nEnd\n")    << QByteArray("t.ui")  << QStringLiteral(":1: error: a form is a block of the class Form");
    QTest::newRow("bytes")             << QByteArray("a.frm")    << QByteArray("\xff\x01\x00", 3)         << QByteArray("t.ui")  << QStringLiteral(":1: error: the line is not valid UTF-8");
    QTest::newRow("half a .ui file")   << QByteArray("a.ui")     << QByteArray("<ui>\n<widget>\n")        << QByteArray("t.frm") << QStringLiteral(":3: error: Premature end of document.");
    QTest::newRow("an empty .ui file") << QByteArray("a.ui")     << QByteArray("")                        << QByteArray("t.frm") << QStringLiteral(":1: error: Premature end of document.");
    QTest::newRow("another file")      << QByteArray("a.ui")     << QByteArray("<html/>")                 << QByteArray("t.frm") << QStringLiteral(":1: error: this is no form of the form designer");
    // clang-format on
}

void tst_KorForm::aBadSourceLeavesTheTarget()
{
    QFETCH(const QByteArray, name);
    QFETCH(const QByteArray, text);
    QFETCH(const QByteArray, target);
    QFETCH(const QString, reason);
    const QString from = path(name.constData());
    if (name.startsWith("a."))
        QVERIFY(put(from, text));
    const QString to = file(target.constData(), "old");
    const QStringList before = files();
    const Run result = run({QStringLiteral("convert"), from, to});
    QCOMPARE(result.exitCode, 2);
    QCOMPARE(result.errors, QStringList(from + reason));
    QCOMPARE(contents(to), QByteArray("old"));
    QCOMPARE(files(), before);
}

void tst_KorForm::aTargetThatCannotBeWrittenIsRefused_data()
{
    QTest::addColumn<QByteArray>("target");
    QTest::addColumn<QString>("reason");
    // clang-format off
    QTest::newRow("a folder")          << QByteArray("folder.ui")   << QStringLiteral(": error: this is no regular file");
    QTest::newRow("a pipe")            << QByteArray("pipe.ui")     << QStringLiteral(": error: this is no regular file");
    QTest::newRow("no such folder")    << QByteArray("none/a.ui")   << QStringLiteral(": error: No such file or directory");
    QTest::newRow("a link to nothing") << QByteArray("link.ui")     << QStringLiteral(": error: the link leads to no file");
    QTest::newRow("the same kind")     << QByteArray("b.korform")   << QStringLiteral(": error: a form file becomes a .ui file, and so its name must end in .ui");
    // clang-format on
}

void tst_KorForm::aTargetThatCannotBeWrittenIsRefused()
{
    QFETCH(const QByteArray, target);
    QFETCH(const QString, reason);
    const QString from = file("a.korform", order);
    QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("folder.ui")));
    QVERIFY(QFile::link(path("nowhere"), path("link.ui")));
    QCOMPARE(mkfifo(QFile::encodeName(path("pipe.ui")).constData(), 0600), 0);
    const QStringList before = files();
    const Run result = run({QStringLiteral("convert"), QStringLiteral("--quiet"), from, path(target.constData())});
    QCOMPARE(result.exitCode, 2);
    QCOMPARE(result.errors, QStringList(path(target.constData()) + reason));
    QCOMPARE(files(), before);
}

//! A limit on the size of files is what a full disk comes to, and needs nobody's leave.
void tst_KorForm::aFullDiskLeavesTheOldFile()
{
    const QString from = file("a.korform", order);
    const QString to = file("a.ui", "old");
    const Run result = run({QStringLiteral("convert"), QStringLiteral("--quiet"), from, to},
                           QStringLiteral("trap '' XFSZ; ulimit -f 1"));
    QCOMPARE(result.exitCode, 2);
    QCOMPARE(result.errors, QStringList(to + QStringLiteral(": error: File too large")));
    QCOMPARE(contents(to), QByteArray("old"));
    QCOMPARE(files(), (QStringList{QStringLiteral("a.korform"), QStringLiteral("a.ui")}));
}

void tst_KorForm::aKilledRunLeavesAWholeFile()
{
    QByteArray large = "Begin Form f\n";
    for (int control = 0; control < 400; ++control)
        large += "Begin KorDaoUC.KorNumber n" + QByteArray::number(control) + "\nText = \"" + QByteArray(2000, 'x') +
                 "\"\nEnd\n";
    const QString from = file("a.korform", large + "End\n");
    QCOMPARE(run({QStringLiteral("convert"), QStringLiteral("--quiet"), from, path("whole.ui")}).exitCode, 0);
    const QByteArray whole = contents(path("whole.ui"));
    int killed = 0;
    for (int wait = 0; wait < 300; wait += 15) {
        const QString to = file("a.ui", "old");
        QProcess process;
        process.start(QStringLiteral(KOR_PROGRAM), {QStringLiteral("convert"), QStringLiteral("--quiet"), from, to});
        QVERIFY(process.waitForStarted());
        if (!process.waitForFinished(wait)) {
            process.kill();
            QVERIFY(process.waitForFinished());
            ++killed;
        }
        const QByteArray now = contents(to);
        QVERIFY2(now == "old" || now == whole, "half a file");
    }
    QVERIFY(killed > 0);
}

void tst_KorForm::everyFaultIsNamed_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QStringList>("faults"); // behind the name of the file
    QTest::addColumn<int>("exitCode");
    // clang-format off
    QTest::newRow("none") << QByteArray("a.frm") << order.left(order.indexOf("      Tag")) + "   End\nEnd\n" << QStringList() << 0;
    QTest::newRow("spoilt lines") << QByteArray("a.frm")
        << QByteArray("Begin Form f\nA = \nBegin\n= 2\nEnd\n\x01\nB = \"\nEnd\nEnd\nBegin Form g\nEnd\n")
        << QStringList{QStringLiteral(":2: error: the value is missing"), QStringLiteral(":3: error: Begin needs the class of the control"),
                       QStringLiteral(":3: error: : the class  is not known"),
                       QStringLiteral(":4: error: '=' can't begin a name; other names than letters, digits, '_' and '.' stand in quotes"),
                       QStringLiteral(":6: error: the line holds a control character; in texts write it as \\u0000"),
                       QStringLiteral(":7: error: the text has no closing quote"), QStringLiteral(":9: error: End without Begin"),
                       QStringLiteral(":10: error: a file holds one form; this would be the second")} << 1;
    QTest::newRow("refused values") << QByteArray("a.frm")
        << QByteArray("Begin Form f\nWidth = \"x\"\nBegin KorDaoUC.KorNumber n\nLeft = 1e9#\nTabIndex = Null\nAlignment = 7%\nMaxLength = \"a\"\nEnd\nBegin Label l\nEnabled = Null\nEnd\nEnd\n")
        << QStringList{QStringLiteral(":2: error: Form f, Width: error 13: Type mismatch"), QStringLiteral(":4: error: KorDaoUC.KorNumber n, Left: error 380: Invalid property value"),
                       QStringLiteral(":5: error: KorDaoUC.KorNumber n, TabIndex: error 94: Invalid use of Null"), QStringLiteral(":6: error: KorDaoUC.KorNumber n, Alignment: error 380: Invalid property value"),
                       QStringLiteral(":7: error: KorDaoUC.KorNumber n, MaxLength: error 13: Type mismatch"), QStringLiteral(":10: error: Label l, Enabled: error 94: Invalid use of Null")} << 1;
    QTest::newRow("unknown classes") << QByteArray("a.frm") << QByteArray("Begin Form f\nBegin TextBox a\nBegin Other b\nEnd\nEnd\nEnd\n")
        << QStringList{QStringLiteral(":2: error: TextBox a: the class TextBox is not known"), QStringLiteral(":3: error: Other b: the class Other is not known")} << 1;
    QTest::newRow("warnings") << QByteArray("a.frm") << QByteArray("Begin Form f\nBegin Label l\nTag = 1\nEnd\nBegin Label l\nEnd\nEnd\n")
        << QStringList{QStringLiteral(":3: warning: Label l, Tag: the key is not known"), QStringLiteral(":5: warning: Label l: there is a control of this name at line 2")} << 0;
    QTest::newRow("a .ui file") << QByteArray("a.ui")
        << QByteArray("<ui version=\"4.0\">\n<class>f</class><widget class=\"QWidget\" name=\"f\">\n<widget class=\"QLineEdit\" name=\"a\"/>\n<widget class=\"KorNumber\" name=\"n\">\n<property name=\"Alignment\"><enum>kor::Middle</enum></property>\n<property name=\"MaxLength\"><string>5</string></property>\n<property name=\"BorderStyle\"><number>5</number></property>\n</widget></widget></ui>")
        << QStringList{QStringLiteral(":5: error: KorNumber n, Alignment: <enum> holds no member of the enumeration"), QStringLiteral(":6: error: KorNumber n, MaxLength: <string> holds no whole number"),
                       QStringLiteral(":7: error: KorDaoUC.KorNumber n, BorderStyle: error 380: Invalid property value")} << 1;
    const QByteArray form = ">\n<widget class=\"QWidget\" name=\"f\"/></ui>";
    for (const char *head : {"<ui", "<ui version=\"4\"", "<ui version=\"4.1\" language=\"C++\"", "<ui version=\"9.0\" language=\"\""})
        QTest::addRow("a head that the loader takes: %s", head) << QByteArray("a.ui") << head + form << QStringList() << 0;
    QTest::newRow("an old .ui file") << QByteArray("a.ui") << "\n<ui version=\"3.3\"" + form
        << QStringList(QStringLiteral(":2: error: This file was created using Designer from Qt-3.3 and cannot be read.")) << 1;
    QTest::newRow("a .ui file without a version in its place") << QByteArray("a.ui") << "<ui version=\"\"" + form
        << QStringList(QStringLiteral(":1: error: This file was created using Designer from Qt- and cannot be read.")) << 1;
    QTest::newRow("a .ui file of another language") << QByteArray("a.ui") << "<ui language=\"jambi\"" + form
        << QStringList(QStringLiteral(":1: error: This file cannot be read because it was created using jambi.")) << 1;
    QTest::newRow("a spoilt .ui file") << QByteArray("a.ui") << QByteArray("<ui>\n<widget></ui>") << QStringList(QStringLiteral(":2: error: Opening and ending tag mismatch.")) << 1;
    // clang-format on
}

void tst_KorForm::everyFaultIsNamed()
{
    QFETCH(const QByteArray, name);
    QFETCH(const QByteArray, text);
    QFETCH(const QStringList, faults);
    QFETCH(const int, exitCode);
    const QString from = file(name.constData(), text);
    const Run result = run({QStringLiteral("check"), from});
    QStringList expected;
    for (const QString &fault : faults)
        expected << from + fault;
    QCOMPARE(result.errors, expected);
    QCOMPARE(result.exitCode, exitCode);
    QCOMPARE(contents(from), text);
    // Warnings count when they are to.
    QCOMPARE(run({QStringLiteral("check"), QStringLiteral("--strict"), from}).exitCode, faults.isEmpty() ? 0 : 1);
}

void tst_KorForm::allFilesAreChecked()
{
    const QString good = file("good.frm", "Begin Form f\nEnd\n");
    const QString bad = file("bad.frm", "Begin Form f\nEn\nEnd\n");
    QCOMPARE(run({QStringLiteral("check"), good, good}).exitCode, 0);
    QCOMPARE(run({QStringLiteral("check"), good, bad}).exitCode, 1);
    const Run result = run({QStringLiteral("check"), path("none.frm"), bad});
    QCOMPARE(result.exitCode, 2);
    QCOMPARE(result.errors.size(), 2);
    // Classes that the program adds are no fault.
    QCOMPARE(run({QStringLiteral("check"), QStringLiteral(KOR_FORM)}).exitCode, 1);
    QCOMPARE(
        run({QStringLiteral("check"), QStringLiteral("--class"), QStringLiteral("TextBox"), QStringLiteral(KOR_FORM)})
            .exitCode,
        0);
}

void tst_KorForm::aFormIsShown_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("a form file") << QStringLiteral(KOR_FORM);
    QTest::newRow("a .ui file") << QStringLiteral(KOR_UI);
    QTest::newRow("a form file with widgets of the designer") << QString();
}

void tst_KorForm::aFormIsShown()
{
    QFETCH(QString, name);
    if (name.isEmpty())
        name = file("a.korform",
                    "Begin Form f\nBegin ui.QLineEdit a\nui.property.text = \"<string>x</string>\"\nEnd\nEnd\n");
    const Run result = run({QStringLiteral("show"), QStringLiteral("--class"), QStringLiteral("TextBox"),
                            QStringLiteral("--picture"), path("a.png"), name});
    QCOMPARE(result.errors, QStringList());
    QCOMPARE(result.exitCode, 0);
    const QImage picture(path("a.png"));
    QVERIFY(picture.width() > 50 && picture.height() > 20);
}

void tst_KorForm::aShownListIsFilledFromTheDatabase()
{
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("seed"));
        database.setDatabaseName(path("a.sqlite"));
        QVERIFY(database.open());
        QSqlQuery query(database);
        QVERIFY(query.exec(QStringLiteral("CREATE TABLE vat (id, name)")));
        QVERIFY(
            query.exec(QStringLiteral("INSERT INTO vat VALUES (1, 'dwadzieścia trzy'), (2, 'osiem'), (3, 'pięć')")));
        database.close();
    }
    QSqlDatabase::removeDatabase(QStringLiteral("seed"));
    const QByteArray before = contents(path("a.sqlite"));
    const QString from =
        file("a.korform", "Begin Form f\nWidth = 3000\nHeight = 3000\nBegin KorDaoUC.KorList l\nWidth = 2800\n"
                          "Height = 2800\nSQL = \"SELECT id, name FROM vat\"\nEnd\nEnd\n");
    QCOMPARE(run({QStringLiteral("show"), QStringLiteral("--picture"), path("empty.png"), from}).exitCode, 0);
    const Run result = run({QStringLiteral("show"), QStringLiteral("--picture"), path("full.png"),
                            QStringLiteral("--database"), path("a.sqlite"), from});
    QCOMPARE(result.errors, QStringList());
    QCOMPARE(result.exitCode, 0);
    QVERIFY(QImage(path("full.png")) != QImage(path("empty.png")));
    QCOMPARE(contents(path("a.sqlite")), before);
    // A statement that fails is said.
    QVERIFY(put(from, "Begin Form f\nBegin KorDaoUC.KorList l\nSQL = \"SELECT id, name FROM none\"\nEnd\nEnd\n"));
    const Run failing = run({QStringLiteral("show"), QStringLiteral("--picture"), path("full.png"),
                             QStringLiteral("--database"), path("a.sqlite"), from});
    QVERIFY2(failing.errors.join(u'\n').contains(QLatin1String("no such table")),
             qPrintable(failing.errors.join(u'\n')));
}

void tst_KorForm::aShownListIsFilledFromAnMdbFile()
{
    const QString database = QStringLiteral(KOR_MDB_FILE);
    if (!QFile::exists(database))
        QSKIP("there is no .mdb file to read; KORDAOUC_MDB_FILE names one");
    const QString from =
        file("a.korform", "Begin Form f\nWidth = 3000\nHeight = 3000\nBegin KorDaoUC.KorList l\nWidth = 2800\n"
                          "Height = 2800\nSQL = \"SELECT CustomerID, CompanyName FROM Customers\"\nEnd\nEnd\n");
    QCOMPARE(run({QStringLiteral("show"), QStringLiteral("--picture"), path("empty.png"), from}).exitCode, 0);
    const Run result = run({QStringLiteral("show"), QStringLiteral("--picture"), path("full.png"),
                            QStringLiteral("--database"), database, from});
    QCOMPARE(result.exitCode, 0);
    QVERIFY(QImage(path("full.png")) != QImage(path("empty.png")));
}

void tst_KorForm::aDatabaseThatIsNoneIsRefused_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QString>("reason");
    // clang-format off
    QTest::newRow("no file")        << QByteArray("none.sqlite") << QStringLiteral(": error: there is no such file");
    QTest::newRow("a folder")       << QByteArray(".")           << QStringLiteral(": error: this is no file");
    QTest::newRow("another file")   << QByteArray("a.korform")   << QStringLiteral(": error: this is no SQLite database: ");
    QTest::newRow("another file, called so") << QByteArray("a.MDB") << QStringLiteral(KOR_MDB_REFUSAL);
    // clang-format on
}

void tst_KorForm::aDatabaseThatIsNoneIsRefused()
{
    QFETCH(const QByteArray, name);
    QFETCH(const QString, reason);
    const QString from = file("a.korform", order + "' " + QByteArray(2000, 'x'));
    QVERIFY(put(path("a.MDB"), "this is none"));
    const QStringList before = files();
    const Run result = run({QStringLiteral("show"), QStringLiteral("--picture"), path("a.png"),
                            QStringLiteral("--database"), path(name.constData()), from});
    QCOMPARE(result.exitCode, 2);
    QCOMPARE(result.errors.size(), 1);
    QVERIFY2(result.errors.first().startsWith(path(name.constData()) + reason), qPrintable(result.errors.first()));
    QCOMPARE(files(), before);
}

void tst_KorForm::aFormThatCannotBeShownIsRefused_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QStringList>("reasons");
    // clang-format off
    QTest::newRow("a spoilt line")   << QByteArray("a.frm") << QByteArray("Begin Form f\nA = \nEnd\n") << QStringList(QStringLiteral(":2: error: the value is missing"));
    QTest::newRow("unknown classes") << QByteArray("a.frm") << QByteArray("Begin Form f\nBegin A a\nEnd\nBegin B b\nEnd\nEnd\n")
        << QStringList{QStringLiteral(":2: error: A a: the class A is not known"), QStringLiteral(":4: error: B b: the class B is not known")};
    QTest::newRow("half a .ui file") << QByteArray("a.ui")  << QByteArray("<ui>\n<widget") << QStringList(QStringLiteral(":2: error: Premature end of document."));
    // clang-format on
}

void tst_KorForm::aFormThatCannotBeShownIsRefused()
{
    QFETCH(const QByteArray, name);
    QFETCH(const QByteArray, text);
    QFETCH(const QStringList, reasons);
    const QString from = file(name.constData(), text);
    const Run result = run({QStringLiteral("show"), QStringLiteral("--picture"), path("a.png"), from});
    QCOMPARE(result.exitCode, 2);
    QStringList expected;
    for (const QString &reason : reasons)
        expected << from + reason;
    QCOMPARE(result.errors, expected);
    QVERIFY(!QFile::exists(path("a.png")));
}

QTEST_GUILESS_MAIN(tst_KorForm)
#include "tst_korform.moc"
