// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include <KorDaoUC/Currency>
#include <KorDaoUC/FormFile>
#include <KorDaoUC/Variant>

#include <QtCore/QDir>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

#include <algorithm>
#include <ctime>
#include <unistd.h>

namespace FormFile = kor::FormFile;
using kor::FormBlock;
using kor::FormResult;

namespace {

const char *const orderForm = R"(Begin Form frmOrder
   Caption = "Zamówienie"
   Begin KorDaoUC.KorNumber numPrice
      Left = 1200
      MaskPicture = "#,##0.00"
      MaxValue = 1000!
   End
End
)";

QByteArray nested(int depth)
{
    QByteArray text;
    for (int level = 0; level < depth; ++level)
        text += "Begin Frame\n";
    for (int level = 0; level < depth; ++level)
        text += "End\n";
    return text;
}

QStringList keys(const FormBlock &block)
{
    QStringList all;
    for (const auto &entry : block.properties.entries())
        all << entry.first;
    return all;
}

QByteArray contents(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(not readable)");
}

void putContents(const QString &fileName, const QByteArray &text)
{
    QFile file(fileName);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(text), text.size());
}

} // namespace

class tst_FormFile : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void readsNestedBlocks()
    {
        const FormResult result = FormFile::parse(orderForm);
        QVERIFY2(result.form, qPrintable(result.error.reason));
        const FormBlock &form = *result.form;
        QCOMPARE(form.type, QStringLiteral("Form"));
        QCOMPARE(form.name, QStringLiteral("frmOrder"));
        QCOMPARE(form.properties.ReadProperty(QStringLiteral("Caption")), QVariant(QStringLiteral("Zamówienie")));
        QCOMPARE(form.children.size(), 1U);
        const FormBlock &number = form.children.front();
        QCOMPARE(number.type, QStringLiteral("KorDaoUC.KorNumber"));
        QCOMPARE(number.name, QStringLiteral("numPrice"));
        QCOMPARE(number.properties.valueAt(0), QVariant(1200));
        QCOMPARE(number.properties.valueAt(1), QVariant(QStringLiteral("#,##0.00")));
        QVERIFY(kor::isSameSetting(number.properties.valueAt(2), QVariant(1000.0F)));
    }

    void writesWhatItRead() { QCOMPARE(FormFile::serialize(*FormFile::parse(orderForm).form), QByteArray(orderForm)); }

    void readsTheSameForm_data()
    {
        QTest::addColumn<QByteArray>("text");

        const QByteArray plain(orderForm);
        const auto changed = [&plain](const char *before, const char *after) {
            QByteArray text = plain;
            text.replace(before, after);
            return text;
        };
        // clang-format off
        QTest::newRow("with line ends of two characters")     << changed("\n", "\r\n");
        QTest::newRow("with a byte order mark")               << QByteArray("\xef\xbb\xbf") + plain;
        QTest::newRow("with both")                            << QByteArray("\xef\xbb\xbf") + changed("\n", "\r\n");
        QTest::newRow("without the last line end")            << plain.chopped(1);
        QTest::newRow("with blank lines")                     << changed("\n", "\n\n  \t\n");
        QTest::newRow("with comment lines")                   << "' Sales\n" + changed("\n", "\n   ' \"a = comment\n");
        QTest::newRow("with comments behind everything")      << changed("\n", " ' Begin\n");
        QTest::newRow("with comments against the words")      << changed("\n", "'End\n");
        QTest::newRow("without indentation")                  << changed("   ", "");
        QTest::newRow("indented with tabs")                   << changed("   ", "\t");
        QTest::newRow("without blanks around equals signs")   << changed(" = ", "=");
        QTest::newRow("with blanks at the ends of lines")     << changed("\n", "  \t\n");
        QTest::newRow("with names in quotes")                 << changed("numPrice", "\"numPrice\"").replace("Left", "\"Left\"");
        // clang-format on
    }
    void readsTheSameForm()
    {
        QFETCH(const QByteArray, text);
        const FormResult result = FormFile::parse(text);
        QVERIFY2(result.form, qPrintable(QStringLiteral("%1: %2").arg(result.error.line).arg(result.error.reason)));
        QVERIFY(*result.form == *FormFile::parse(orderForm).form);
    }

    void keepsOrderRepeatsAndUnknownKeys()
    {
        const FormResult result = FormFile::parse("Begin KorDaoUC.KorNumber n\n"
                                                  "   Zeta = 1\n   MaxLength = 7\n   MaxLength = 7\n   Alpha = Null\n"
                                                  "   \"not known\" = Empty\n   0TextMatrix = \"\"\n"
                                                  "   Begin B b\n   End\n   Begin A a\n   End\n   Begin B b\n   End\n"
                                                  "End\n");
        QVERIFY(result.form);
        QCOMPARE(keys(*result.form).join(u' '), QStringLiteral("Zeta MaxLength MaxLength Alpha not known 0TextMatrix"));
        QStringList children;
        for (const FormBlock &child : result.form->children)
            children << child.name;
        QCOMPARE(children.join(u' '), QStringLiteral("b a b"));

        const FormResult again = FormFile::parse(FormFile::serialize(*result.form));
        QVERIFY(again.form);
        QVERIFY(*again.form == *result.form);
    }

    void settingsBehindABlockAreWrittenBeforeIt()
    {
        const FormResult result = FormFile::parse("Begin Form f\nBegin Label l\nEnd\nCaption = \"x\"\nEnd\n");
        QVERIFY(result.form);
        QCOMPARE(FormFile::serialize(*result.form),
                 QByteArray("Begin Form f\n   Caption = \"x\"\n   Begin Label l\n   End\nEnd\n"));
    }

    void oddNamesReadBack()
    {
        FormBlock form{QStringLiteral("Begin"), QStringLiteral("End"), {}, {}};
        for (const char *key : {"Begin", "End", "Begin End", "", "'", "a\nb", "\"", "="})
            form.properties.append(QString::fromUtf8(key), 1);
        form.children.push_back({QString(), QStringLiteral("lbl(3)"), {}, {}});
        form.children.push_back({QStringLiteral("My Control"), QString(), {}, {}});
        const FormResult result = FormFile::parse(FormFile::serialize(form));
        QVERIFY2(result.form, qPrintable(result.error.reason));
        QVERIFY(*result.form == form);
    }

    void reportsLineAndReason_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<int>("line");
        QTest::addColumn<QString>("reason"); // a part of it

        // clang-format off
        QTest::newRow("an empty file")                    << QByteArray()                                        << 1 << "no form";
        QTest::newRow("nothing but comments")             << QByteArray("' a\n\n' b\n")                          << 3 << "no form";
        QTest::newRow("a missing End")                    << QByteArray("\nBegin Form f\n   Left = 1\n")         << 2 << "no End";
        QTest::newRow("a missing End of an inner block")  << QByteArray("Begin Form f\nBegin A a\nLeft = 1\nEnd\n") << 1 << "no End";
        QTest::newRow("two missing Ends")                 << QByteArray("Begin Form f\n\nBegin A a\n")           << 3 << "no End";
        QTest::newRow("an End too many")                  << QByteArray("Begin Form f\nEnd\nEnd\n")              << 3 << "End without Begin";
        QTest::newRow("an End at the start")              << QByteArray("End\n")                                 << 1 << "End without Begin";
        QTest::newRow("a second form")                    << QByteArray("Begin A a\nEnd\n\nBegin B b\nEnd\n")    << 4 << "one form";
        QTest::newRow("a setting before the form")        << QByteArray("Left = 1\nBegin A a\nEnd\n")            << 1 << "'Left' stands outside";
        QTest::newRow("a setting behind the form")        << QByteArray("Begin A a\nEnd\nLeft = 1\n")            << 3 << "'Left' stands outside";
        QTest::newRow("a Begin without a class")          << QByteArray("Begin\nEnd\n")                          << 1 << "needs the class";
        QTest::newRow("a third word behind Begin")        << QByteArray("Begin A a b\nEnd\n")                    << 1 << "nothing more";
        QTest::newRow("a word behind End")                << QByteArray("Begin A a\nEnd A\n")                    << 2 << "nothing more";
        QTest::newRow("a key named End without quotes")   << QByteArray("Begin A a\nEnd = 5\n")                  << 2 << "nothing more";
        QTest::newRow("a key without a value")            << QByteArray("Begin A a\n\nLeft\nEnd\n")              << 3 << "'Left' must be followed by '='";
        QTest::newRow("a key with an equals sign only")   << QByteArray("Begin A a\nLeft =\nEnd\n")              << 2 << "value is missing";
        QTest::newRow("a value without a key")            << QByteArray("Begin A a\n= 5\nEnd\n")                 << 2 << "can't begin a name";
        QTest::newRow("two values")                       << QByteArray("Begin A a\nLeft = 5 6\nEnd\n")          << 2 << "nothing more";
        QTest::newRow("a decimal comma")                  << QByteArray("Begin A a\nLeft = 1,5#\nEnd\n")         << 2 << "nothing more";
        QTest::newRow("a text not closed")                << QByteArray("Begin A a\n\n\nT = \"x\nEnd\n")         << 4 << "closing quote";
        QTest::newRow("a text over two lines")            << QByteArray("Begin A a\nT = \"x\ny\"\nEnd\n")        << 2 << "closing quote";
        QTest::newRow("a number too large")               << QByteArray("Begin A a\nT = 40000%\nEnd\n")          << 2 << "out of the range";
        QTest::newRow("line counting with two characters")<< QByteArray("Begin A a\r\n\r\nT = x\r\nEnd\r\n")     << 3 << "no value";
        QTest::newRow("line counting behind the mark")    << QByteArray("\xef\xbb\xbf" "Begin A a\nT = x\n")     << 2 << "no value";
        QTest::newRow("invalid UTF-8 in a text")          << QByteArray("Begin A a\nT = \"\xb3\"\nEnd\n")        << 2 << "not valid UTF-8";
        QTest::newRow("invalid UTF-8 in a comment")       << QByteArray("'\xc5\nBegin A a\nEnd\n")               << 1 << "not valid UTF-8";
        QTest::newRow("overlong UTF-8")                   << QByteArray("Begin A a\nT = \"\xc0\xaf\"\nEnd\n")    << 2 << "not valid UTF-8";
        QTest::newRow("a surrogate in UTF-8")             << QByteArray("Begin A a\nT = \"\xed\xa0\xbd\"\nEnd\n")<< 2 << "not valid UTF-8";
        QTest::newRow("a null byte")                      << QByteArray("Begin A a\nT = \"\0\"\nEnd\n", 22)      << 2 << "control character";
        QTest::newRow("an escape byte in a comment")      << QByteArray("' \x1b[2J\nBegin A a\nEnd\n")           << 1 << "control character";
        QTest::newRow("line ends of one carriage return") << QByteArray("Begin A a\rEnd\r")                      << 1 << "control character";
        QTest::newRow("a second byte order mark")         << QByteArray("\xef\xbb\xbf\xef\xbb\xbf" "Begin A a\nEnd\n") << 1 << "can't begin a name";
        QTest::newRow("a byte order mark further down")   << QByteArray("Begin A a\n\xef\xbb\xbf" "End\n")       << 2 << "can't begin a name";
        QTest::newRow("UTF-16")                           << QByteArray("\xff\xfe" "B\0e\0", 6)                  << 1 << "not valid UTF-8";
        QTest::newRow("keywords in small letters")        << QByteArray("begin Form f\nend\n")                   << 1 << "'begin' stands outside";
        QTest::newRow("one block too deep")               << nested(FormFile::maximumDepth + 1)                  << FormFile::maximumDepth + 1 << "deep";
        QTest::newRow("a million blocks deep")            << nested(1000000)                                     << FormFile::maximumDepth + 1 << "deep";
        QTest::newRow("one byte too many")                << QByteArray(FormFile::maximumSize + 1, '\n')         << 0 << "bytes";
        // clang-format on
    }
    void reportsLineAndReason()
    {
        QFETCH(const QByteArray, text);
        QFETCH(const int, line);
        QFETCH(const QString, reason);
        const FormResult result = FormFile::parse(text);
        QVERIFY(!result.form);
        QVERIFY2(result.error.reason.contains(reason), qPrintable(result.error.reason));
        QCOMPARE(result.error.line, line);
    }

    void readsUpToItsLimits()
    {
        QVERIFY(FormFile::parse(nested(FormFile::maximumDepth)).form);
        QByteArray text = "Begin A a\nEnd\n";
        text += QByteArray(FormFile::maximumSize - text.size(), ' ');
        QVERIFY(FormFile::parse(text).form);
    }

    void timeGrowsWithTheSizeOnly_data()
    {
        QTest::addColumn<QByteArray>("unit");

        // clang-format off
        QTest::newRow("settings")     << QByteArray("   MaskPicture = \"#,##0.00\"\n");
        QTest::newRow("repeated keys")<< QByteArray("A = 1\n");
        QTest::newRow("blocks")       << QByteArray("Begin A a\nEnd\n");
        QTest::newRow("blank lines")  << QByteArray("\n");
        QTest::newRow("quotes")       << QByteArray("T = \"\"\"\"\"\"\"\"\n");
        // clang-format on
    }
    void timeGrowsWithTheSizeOnly()
    {
        QFETCH(const QByteArray, unit);
        // The processor's time, not the clock's: other programs must not make a difference.
        const auto milliseconds = [&unit](qsizetype bytes) {
            const QByteArray text = "Begin F f\n" + unit.repeated(bytes / unit.size()) + "End\n";
            double best = qInf();
            for (int attempt = 0; attempt < 3; ++attempt) {
                const std::clock_t start = std::clock();
                const FormResult result = FormFile::parse(text);
                best = std::min(best, 1000.0 * double(std::clock() - start) / CLOCKS_PER_SEC);
                if (!result.form)
                    return -1.0;
            }
            return best;
        };
        const double small = milliseconds(64 * 1024);
        const double large = milliseconds(1024 * 1024);
        QVERIFY(small >= 0 && large >= 0);
        // Sixteen times the text; quadratic work would take 256 times as long.
        QVERIFY2(large < 64 * std::max(small, 10.0), qPrintable(QStringLiteral("%1 ms, %2 ms").arg(small).arg(large)));
    }

    void savesAndLoads()
    {
        const QTemporaryDir folder;
        const QString fileName = folder.filePath(QStringLiteral("zamówienie.frm"));
        const FormBlock form = *FormFile::parse(orderForm).form;
        QVERIFY(!FormFile::save(form, fileName));
        QCOMPARE(contents(fileName), QByteArray(orderForm));
        const FormResult result = FormFile::load(fileName);
        QVERIFY(result.form);
        QVERIFY(*result.form == form);
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files).size(), 1);
    }

    void saveReplacesALongerFile()
    {
        const QTemporaryDir folder;
        const QString fileName = folder.filePath(QStringLiteral("a.frm"));
        putContents(fileName, QByteArray(100000, 'x'));
        QVERIFY(!FormFile::save(*FormFile::parse(orderForm).form, fileName));
        QCOMPARE(contents(fileName), QByteArray(orderForm));
    }

    void loadNamesTheLine()
    {
        const QTemporaryDir folder;
        const QString fileName = folder.filePath(QStringLiteral("a.frm"));
        putContents(fileName, "Begin A a\nLeft = ?\nEnd\n");
        const FormResult result = FormFile::load(fileName);
        QVERIFY(!result.form);
        QCOMPARE(result.error.line, 2);
    }

    void loadReportsAMissingFile()
    {
        const QTemporaryDir folder;
        const FormResult result = FormFile::load(folder.filePath(QStringLiteral("none.frm")));
        QVERIFY(!result.form);
        QCOMPARE(result.error.line, 0);
        QVERIFY(!result.error.reason.isEmpty());
    }

    void loadReportsAFolder()
    {
        const QTemporaryDir folder;
        const FormResult result = FormFile::load(folder.path());
        QVERIFY(!result.form);
        QVERIFY(!result.error.reason.isEmpty());
    }

    void aFormThatCouldNotBeReadIsNotWritten()
    {
        FormBlock form{QStringLiteral("Frame"), {}, {}, {}};
        for (int level = 0; level < FormFile::maximumDepth; ++level) {
            FormBlock outer{QStringLiteral("Frame"), {}, {}, {}};
            outer.children.push_back(std::move(form));
            form = std::move(outer);
        }
        const QTemporaryDir folder;
        const QString fileName = folder.filePath(QStringLiteral("a.frm"));
        putContents(fileName, orderForm);
        const std::optional<kor::FormError> error = FormFile::save(form, fileName);
        QVERIFY(error);
        QVERIFY2(error->reason.contains(QStringLiteral("deep")), qPrintable(error->reason));
        QCOMPARE(contents(fileName), QByteArray(orderForm));
    }

    void aFailedSaveLeavesTheOldFile()
    {
        const QTemporaryDir folder;
        const QString fileName = folder.filePath(QStringLiteral("a.frm"));
        putContents(fileName, orderForm);
        const QFile::Permissions before = QFile::permissions(folder.path());
        QVERIFY(QFile::setPermissions(folder.path(),
                                      QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther));
        const FormBlock other{QStringLiteral("Form"), QStringLiteral("frmOther"), {}, {}};
        const uid_t user = geteuid();
        if (user == 0) // whom no folder refuses
            QCOMPARE(seteuid(65534), 0);
        const std::optional<kor::FormError> error = FormFile::save(other, fileName);
        QCOMPARE(seteuid(user), 0);
        QVERIFY(QFile::setPermissions(folder.path(), before));
        QVERIFY(error);
        QVERIFY(!error->reason.isEmpty());
        QCOMPARE(contents(fileName), QByteArray(orderForm));
    }

    void aSaveIntoAMissingFolderFails()
    {
        const QTemporaryDir folder;
        const std::optional<kor::FormError> error =
            FormFile::save(*FormFile::parse(orderForm).form, folder.filePath(QStringLiteral("none/a.frm")));
        QVERIFY(error);
        QCOMPARE(error->line, 0);
        QVERIFY(!error->reason.isEmpty());
    }

    void aSaveOntoAFolderFails()
    {
        const QTemporaryDir folder;
        QVERIFY(QDir(folder.path()).mkdir(QStringLiteral("a.frm")));
        const QString fileName = folder.filePath(QStringLiteral("a.frm"));
        QVERIFY(FormFile::save(*FormFile::parse(orderForm).form, fileName));
        QVERIFY(QFileInfo(fileName).isDir());
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files).size(), 0);
    }

    void aSaveOntoAFullDiskLeavesTheOldFile()
    {
        // A limit on the size of files does to this process what a full disk does.
        const QTemporaryDir folder;
        const QString fileName = folder.filePath(QStringLiteral("a.frm"));
        putContents(fileName, orderForm);
        const QString program = QStringLiteral("ulimit -f 64; trap '' XFSZ; exec \"$0\" \"$@\"");
        QProcess child;
        child.start(QStringLiteral("/bin/sh"), {QStringLiteral("-c"), program, QCoreApplication::applicationFilePath(),
                                                QStringLiteral("--save-large"), fileName});
        QVERIFY(child.waitForFinished());
        QCOMPARE(child.readAllStandardOutput().trimmed(), QByteArray("refused"));
        QCOMPARE(contents(fileName), QByteArray(orderForm));
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files).size(), 1);
    }
};

//! The child of aSaveOntoAFullDiskLeavesTheOldFile().
int saveLarge(const QString &fileName)
{
    FormBlock large{QStringLiteral("Form"), {}, {}, {}};
    large.properties.append(QStringLiteral("Text"), QString(200000, u'x'));
    const std::optional<kor::FormError> error = FormFile::save(large, fileName);
    QTextStream(stdout) << (error && !error->reason.isEmpty() ? "refused" : "written") << '\n';
    return 0;
}

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    if (argc == 3 && qstrcmp(argv[1], "--save-large") == 0)
        return saveLarge(QString::fromLocal8Bit(argv[2]));
    tst_FormFile test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_formfile.moc"
