// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "support/stage.h"

#include <KorDaoUC/GridExport>
#include <KorDaoUC/KorGrid>
#include <KorDaoUC/Variant>

#include <QtCore/QDir>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

#include <csignal>
#include <sys/resource.h>

using namespace kor;

namespace {

using Outcome = ExportResult::Outcome;

QByteArray contents(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(not readable)");
}

void put(const QString &fileName, const QByteArray &bytes)
{
    QFile file(fileName);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
}

//! No file of this program may grow beyond so many bytes while this lives, as on a disk that is full.
class SmallDisk
{
public:
    explicit SmallDisk(rlim_t bytes)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_before);
        rlimit limit = m_before;
        limit.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~SmallDisk() { setrlimit(RLIMIT_FSIZE, &m_before); }
    Q_DISABLE_COPY_MOVE(SmallDisk)

private:
    rlimit m_before{};
};

} // namespace

class tst_GridExport : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { Locale::setSystemDefault(Locale::polish()); }
    void init();
    void theKindFollowsTheName();
    void aTableHasWhatTheGridShows();
    void aColumnTellsWhatItIs();
    void aWorkbookHasTypedCells();
    void aCsvFileIsOfTheCountry();
    void aFolderIsNoTarget_data();
    void aFolderIsNoTarget();
    void aMissingFolderIsSaid();
    void aFullDiskLeavesTheOldFile_data();
    void aFullDiskLeavesTheOldFile();
    void aWorkbookWhoseTemporaryFilesFoundNoRoomIsNotWritten();
    void stoppingLeavesTheOldFile_data();
    void stoppingLeavesTheOldFile();
    void aTextTooLongForASheetIsNamed();
    void tooManyRowsAreRefused();
    void aGridThatEndsMeanwhileStopsTheExport();

private:
    [[nodiscard]] QStringList workbook(const QString &fileName) const
    {
        QProcess reader;
        reader.start(QStringLiteral(KOR_READ_WORKBOOK), {fileName});
        if (!reader.waitForFinished() || reader.exitCode() != 0)
            return {QString::fromUtf8(reader.readAllStandardError())};
        return QString::fromUtf8(reader.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
    }
    [[nodiscard]] QString path(const char *name) const { return m_folder->filePath(QString::fromUtf8(name)); }
    [[nodiscard]] QStringList files() const
    {
        return QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden | QDir::System);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<KorGrid> m_grid;
};

void tst_GridExport::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_grid = std::make_unique<KorGrid>();
    KorGrid &grid = *m_grid;
    grid.setTextControl(0, 0, QStringLiteral("Lp."));
    grid.AddColumn(QStringLiteral("TEXT"), QStringLiteral("Indeks"), 1500, 0);
    grid.AddColumn(QStringLiteral("NUMBER"), QStringLiteral("Ilość"), 1050, 1, false, QStringLiteral("#,##0.00"), 0, 0,
                   {}, {}, 5);
    grid.AddColumn(QStringLiteral("DATE"), QStringLiteral("Dostawa"), 1500, 2);
    grid.AddColumn(QStringLiteral("TEXT"), QStringLiteral("Uwagi"), 3000, 0, true, {}, 0, 0, {}, {}, 0, true);
    grid.AddColumn(QStringLiteral("TEXT"), QStringLiteral("ukryta"), 0, 0);
    grid.setRows(5); // the last one stays blank
    for (int row = 1; row <= 3; ++row)
        grid.setTextControl(row, 0, QString::number(row));
    grid.setTextControl(1, 1, QStringLiteral("00123"));
    grid.setValue(1, 2, 1234.5678);
    grid.setValue(1, 3, QDate(2026, 12, 1));
    grid.setTextControl(1, 4, QStringLiteral("Zażółć gęślą\njaźń \"3\""));
    grid.setTextControl(2, 1, QStringLiteral("=1+1"));
    grid.setValue(2, 2, -5);
    grid.setTextControl(2, 3, QStringLiteral("kiedyś"));
    grid.setTextControl(3, 1, QStringLiteral("a;b"));
}

void tst_GridExport::theKindFollowsTheName()
{
    QCOMPARE(exportKindOf(QStringLiteral("a.csv")), ExportKind::Csv);
    QCOMPARE(exportKindOf(QStringLiteral("A.XLSX")), ExportKind::Xlsx);
    QCOMPARE(exportKindOf(QStringLiteral("a.xls")), std::nullopt);
}

void tst_GridExport::aTableHasWhatTheGridShows()
{
    const std::optional<ExportTable> table = exportTableOf(*m_grid);
    QVERIFY(table);
    QStringList titles;
    for (const ExportColumn &column : table->columns)
        titles << column.title;
    QCOMPARE(titles.join(u'|'), QStringLiteral("Lp.|Indeks|Ilość|Dostawa|Uwagi"));
    QCOMPARE(table->rows.size(), 3);
    QCOMPARE(table->rows.at(0).at(0), QVariant(1));
    QCOMPARE(table->rows.at(0).at(1), QVariant(QStringLiteral("00123")));
    QCOMPARE(table->rows.at(0).at(2), QVariant(1234.5678)); // the value behind what is shown
    QCOMPARE(table->rows.at(0).at(3), QVariant(QDate(2026, 12, 1)));
    QCOMPARE(table->rows.at(1).at(3), QVariant(QStringLiteral("kiedyś")));
    QVERIFY(kor::isNull(table->rows.at(2).at(2)));
    QVERIFY(table->totals.isEmpty());
}

void tst_GridExport::aColumnTellsWhatItIs()
{
    const ColumnDescription number = m_grid->columnDescription(2);
    QCOMPARE(number.col_type, QStringLiteral("NUMBER"));
    QCOMPARE(number.col_title, QStringLiteral("Ilość"));
    QCOMPARE(number.col_format, QStringLiteral("#,##0.00"));
    QCOMPARE(number.col_width, 1050);
    QCOMPARE(number.col_align, 1);
    QCOMPARE(number.col_value, 5);
    QVERIFY(!number.col_lock);
    QVERIFY(m_grid->columnDescription(4).col_wrap);
    QVERIFY(m_grid->columnDescription(5).col_lock);
    QCOMPARE(m_grid->columnDescription(0).col_type, QStringLiteral("TEXT"));
    QVERIFY_THROWS_EXCEPTION(std::exception, (void)m_grid->columnDescription(6));
}

void tst_GridExport::aWorkbookHasTypedCells()
{
    ExportSettings settings;
    settings.name = QStringLiteral("Pozycje ZAM/1");
    settings.totals = {{1, QStringLiteral("Razem")}, {2, 1229.5678}};
    const QString file = path("pozycje żółte.xlsx");
    QVERIFY(exportGrid(*m_grid, file, ExportKind::Xlsx, settings).isWritten());
    const QStringList lines = workbook(file);
    const QStringList expected{
        QStringLiteral("sheet Pozycje ZAM 1"),
        QStringLiteral("frozen 1"),
        QStringLiteral("widths"),
        QStringLiteral("A1|text|@|bw|Lp."),
        QStringLiteral("B1|text|@|bw|Indeks"),
        QStringLiteral("C1|text|@|bw|Ilość"),
        QStringLiteral("D1|text|@|bw|Dostawa"),
        QStringLiteral("E1|text|@|bw|Uwagi"),
        QStringLiteral("A2|n|0|-|1"),
        QStringLiteral("B2|text|@|-|00123"),
        QStringLiteral("C2|n|#,##0.00|-|1234.5678"),
        QStringLiteral("D2|n|dd\\.mm\\.yyyy|-|46357"),
        QStringLiteral("E2|text|@|w|Zażółć gęślą\\njaźń \"3\""),
        QStringLiteral("A3|n|0|-|2"),
        QStringLiteral("B3|text|@|-|=1+1"),
        QStringLiteral("C3|n|#,##0.00|-|-5"),
        QStringLiteral("D3|text|@|w|kiedyś"),
        QStringLiteral("A4|n|0|-|3"),
        QStringLiteral("B4|text|@|-|a;b"),
        QStringLiteral("A5|n|0|b|"),
        QStringLiteral("B5|text|@|b|Razem"),
        QStringLiteral("C5|n|#,##0.00|b|1229.5678"),
    };
    for (qsizetype line = 0; line < std::min(lines.size(), expected.size()); ++line) {
        if (line != 2) // widths, of which the first is the view's
            QCOMPARE(lines.at(line), expected.at(line));
    }
    QCOMPARE(lines.size(), expected.size() + 2); // the line above the totals goes on to the last column
    QCOMPARE(lines.at(2).split(u' ').size(), 6);
    QVERIFY2(lines.at(2).endsWith(QStringLiteral(" 14 10 14 29")), qPrintable(lines.at(2)));
    QCOMPARE(files(), QStringList{QStringLiteral("pozycje żółte.xlsx")});
}

void tst_GridExport::aCsvFileIsOfTheCountry()
{
    ExportSettings settings;
    settings.totals = {{1, QStringLiteral("Razem")}, {2, 1229.5678}};
    QVERIFY(exportGrid(*m_grid, path("a.csv"), ExportKind::Csv, settings).isWritten());
    QCOMPARE(contents(path("a.csv")), QByteArray("\xef\xbb\xbfLp.;Indeks;Ilość;Dostawa;Uwagi\r\n"
                                                 "1;00123;1234,5678;01.12.2026;\"Zażółć gęślą\njaźń \"\"3\"\"\"\r\n"
                                                 "2;'=1+1;-5;kiedyś;\r\n"
                                                 "3;\"a;b\";;;\r\n"
                                                 ";Razem;1229,5678;;\r\n"));
}

void tst_GridExport::aFolderIsNoTarget_data()
{
    QTest::addColumn<ExportKind>("kind");
    QTest::newRow("csv") << ExportKind::Csv;
    QTest::newRow("xlsx") << ExportKind::Xlsx;
}

void tst_GridExport::aFolderIsNoTarget()
{
    QFETCH(const ExportKind, kind);
    QVERIFY(QDir().mkpath(path("folder/inside")));
    const ExportResult result = exportGrid(*m_grid, path("folder"), kind);
    QCOMPARE(result.outcome, Outcome::NotWritten);
    QVERIFY(result.error == std::errc::is_a_directory);
    QVERIFY(!result.reason.isEmpty());
    QVERIFY(QFileInfo(path("folder/inside")).isDir());
}

void tst_GridExport::aMissingFolderIsSaid()
{
    const ExportResult result = exportGrid(*m_grid, path("nie ma/a.csv"), ExportKind::Csv);
    QCOMPARE(result.outcome, Outcome::NotWritten);
    QVERIFY2(result.error == std::errc::no_such_file_or_directory, result.error.message().c_str());
}

void tst_GridExport::aFullDiskLeavesTheOldFile_data() { aFolderIsNoTarget_data(); }
void tst_GridExport::aFullDiskLeavesTheOldFile()
{
    QFETCH(const ExportKind, kind);
    put(path("a"), "stare");
    m_grid->setTextControl(4, 4, QString(2000, u'x'));
    ExportResult result;
    {
        const SmallDisk disk(500);
        result = exportGrid(*m_grid, path("a"), kind);
    }
    QCOMPARE(result.outcome, Outcome::NotWritten);
    QVERIFY(result.error);
    QCOMPARE(contents(path("a")), QByteArray("stare"));
    QCOMPARE(files(), QStringList{QStringLiteral("a")});
}

void tst_GridExport::aWorkbookWhoseTemporaryFilesFoundNoRoomIsNotWritten()
{
    put(path("a.xlsx"), "stare");
    ExportTable table;
    table.columns = {{QStringLiteral("Nr")}, {QStringLiteral("Uwagi")}};
    table.rows.fill({QStringLiteral("00001"), QStringLiteral("zawsze to samo")}, 5000);
    ExportResult result;
    {
        const SmallDisk disk(300000); // packed it is small
        result = exportTable(table, path("a.xlsx"), ExportKind::Xlsx);
    }
    QCOMPARE(result.outcome, Outcome::NotWritten);
    QCOMPARE(contents(path("a.xlsx")), QByteArray("stare"));
    QVERIFY(exportTable(table, path("a.xlsx"), ExportKind::Xlsx).isWritten());
    QVERIFY(QFileInfo(path("a.xlsx")).size() < 300000);
    QCOMPARE(workbook(path("a.xlsx")).size(), 3 + 2 * 5001);
}

void tst_GridExport::stoppingLeavesTheOldFile_data() { aFolderIsNoTarget_data(); }
void tst_GridExport::stoppingLeavesTheOldFile()
{
    QFETCH(const ExportKind, kind);
    put(path("a"), "stare");
    ExportTable table;
    constexpr int width = 100; // much to write, whatever the machine, and little to keep
    table.columns.fill({QStringLiteral("Nr")}, width);
    table.rows.fill(QList<QVariant>(width, QStringLiteral("x")), 100000);
    QList<double> parts;
    ExportSettings settings;
    settings.mayGoOn = [&](qint64 done, qint64 all) {
        parts << double(done) / double(all);
        return false;
    };
    QCOMPARE(exportTable(table, path("a"), kind, settings).outcome, Outcome::Stopped);
    QCOMPARE(parts.size(), 1); // who said no is not asked again
    QVERIFY(parts.first() > 0 && parts.first() < 1);
    QCOMPARE(contents(path("a")), QByteArray("stare"));
}

void tst_GridExport::aTextTooLongForASheetIsNamed()
{
    m_grid->setTextControl(2, 4, QString(32768, u'ż'));
    const ExportResult result = exportGrid(*m_grid, path("a.xlsx"), ExportKind::Xlsx);
    QCOMPARE(result.outcome, Outcome::TextTooLong);
    QCOMPARE(result.row, 1);
    QCOMPARE(result.column, 4);
    QVERIFY(!QFile::exists(path("a.xlsx")));
    QVERIFY(exportGrid(*m_grid, path("a.csv"), ExportKind::Csv).isWritten());
    m_grid->setTextControl(2, 4, QString(32767, u'ż'));
    QVERIFY(exportGrid(*m_grid, path("a.xlsx"), ExportKind::Xlsx).isWritten());
}

void tst_GridExport::tooManyRowsAreRefused()
{
    ExportTable table;
    table.columns = {{QStringLiteral("Nr")}};
    table.rows.fill({}, 1048576);
    QCOMPARE(exportTable(table, path("a.xlsx"), ExportKind::Xlsx).outcome, Outcome::TooManyRows);
    table.columns.fill({}, 16385);
    table.rows.clear();
    QCOMPARE(exportTable(table, path("a.xlsx"), ExportKind::Xlsx).outcome, Outcome::TooManyColumns);
    QVERIFY(!QFile::exists(path("a.xlsx")));
}

void tst_GridExport::aGridThatEndsMeanwhileStopsTheExport()
{
    m_grid->setRows(1000000);
    m_grid->setTextControl(999999, 1, QStringLiteral("koniec"));
    ExportSettings settings;
    settings.mayGoOn = [this](qint64, qint64) {
        m_grid.reset();
        return true;
    };
    QCOMPARE(exportGrid(*m_grid, path("a.csv"), ExportKind::Csv, settings).outcome, Outcome::Stopped);
    QVERIFY(!m_grid);
    QVERIFY(!QFile::exists(path("a.csv")));
}

QTEST_MAIN(tst_GridExport)
#include "tst_gridexport.moc"
