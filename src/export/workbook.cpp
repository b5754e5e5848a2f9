// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "export/workbook.h"

#include "export/pace.h"
#include "export/sheetformat.h"
#include "export/workbookcheck.h"

#include <KorDaoUC/convert.h>
#include <KorDaoUC/variant.h>

#include <QtCore/QDateTime>
#include <QtCore/QFile>
#include <QtCore/QScopeGuard>
#include <QtCore/QTemporaryDir>

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <future>
#include <vector>
#include <xlsxwriter.h>

namespace kor {

namespace {

using Outcome = ExportResult::Outcome;

constexpr int paperA4 = 9;
constexpr int twipsPerPixel = 15; // a sheet's pixels are those of 96 to an inch
constexpr int widestColumn = 255 * 7 + 5;
constexpr int mostColumnsUpright = 7;
constexpr int firstYear = 1901; // in the year before, sheets have a day too many

ExportResult failed(const QString &reason, std::errc error = std::errc::io_error)
{
    return {Outcome::NotWritten, make_error_code(error), reason, 0, 0};
}

std::optional<lxw_datetime> sheetDate(const QVariant &value)
{
    const QDateTime time = value.toDateTime();
    if (variantType(value) != VariantType::Date || time.date().year() < firstYear)
        return std::nullopt;
    const QTime clock = time.time();
    return lxw_datetime{time.date().year(), time.date().month(), time.date().day(),
                        clock.hour(),       clock.minute(),      clock.second() + clock.msec() / 1000.0};
}

bool hasTime(const QVariant &value) { return normalized(value).userType() == QMetaType::QDateTime; }

std::optional<double> sheetNumber(const QVariant &value)
{
    switch (variantType(value)) {
    case VariantType::Byte:
    case VariantType::Integer:
    case VariantType::Long:
    case VariantType::Single:
    case VariantType::Double:
    case VariantType::Currency: break;
    default: return std::nullopt;
    }
    const double number = CDbl(value);
    return std::isfinite(number) ? std::optional(number) : std::nullopt;
}

//! The sheet while it is written, row after row.
class Sheet
{
public:
    Sheet(lxw_workbook *book, lxw_worksheet *sheet, const ExportTable &table, const Locale &locale)
        : m_book(book), m_sheet(sheet), m_table(table), m_locale(locale)
    {
        for (const ExportColumn &column : table.columns)
            m_looks.push_back(looksOf(column));
        setUp();
    }

    //! Writes the next row; where and why it does not go, otherwise.
    [[nodiscard]] std::optional<ExportResult> writeRow(const QVariantList &values, bool isTotal)
    {
        for (qsizetype column = 0; column < std::min(values.size(), m_table.columns.size()); ++column) {
            const lxw_error error = write(static_cast<lxw_col_t>(column), normalized(values.at(column)), isTotal);
            if (error == LXW_ERROR_MAX_STRING_LENGTH_EXCEEDED)
                return ExportResult{Outcome::TextTooLong, {}, {}, qsizetype(m_row) - 1, column};
            if (error != LXW_NO_ERROR)
                return failed(QString::fromUtf8(lxw_strerror(error)));
        }
        ++m_row;
        return std::nullopt;
    }
    [[nodiscard]] qint64 cells() const { return m_cells; }

private:
    struct Look {
        lxw_format *plain;
        lxw_format *wrapped;
        lxw_format *day;  //!< a date
        lxw_format *time; //!< a date with its time
    };
    struct Looks {
        Look row;
        Look total;
    };

    lxw_format *format(const ExportColumn &column, const QString &numbers, bool isTotal, bool wraps)
    {
        lxw_format *format = workbook_add_format(m_book);
        const std::array alignments{LXW_ALIGN_LEFT, LXW_ALIGN_RIGHT, LXW_ALIGN_CENTER};
        format_set_align(format, static_cast<uint8_t>(alignments.at(std::clamp(column.alignment, 0, 2))));
        format_set_align(format, LXW_ALIGN_VERTICAL_TOP);
        if (numbers != u"General")
            format_set_num_format(format, numbers.toUtf8().constData());
        if (wraps)
            format_set_text_wrap(format);
        if (isTotal) {
            format_set_bold(format);
            format_set_top(format, LXW_BORDER_THIN);
        }
        return format;
    }
    Look lookOf(const ExportColumn &column, bool isTotal)
    {
        // A text stays one when it is edited in the sheet, its zeros in front and a = as well.
        const QString numbers = column.kind == ExportColumn::Kind::Number
                                    ? sheetFormatOfNumbers(column.format, m_locale)
                                    : QStringLiteral("@");
        return {format(column, numbers, isTotal, column.wraps), format(column, QStringLiteral("@"), isTotal, true),
                format(column, sheetFormatOfDates(m_locale, false), isTotal, false),
                format(column, sheetFormatOfDates(m_locale, true), isTotal, false)};
    }
    Looks looksOf(const ExportColumn &column) { return {lookOf(column, false), lookOf(column, true)}; }

    void setUp()
    {
        for (std::size_t at = 0; at < m_looks.size(); ++at) {
            const ExportColumn &column = m_table.columns.at(qsizetype(at));
            const auto place = static_cast<lxw_col_t>(at);
            const int width = std::clamp(column.width / twipsPerPixel, 1, widestColumn);
            worksheet_set_column_pixels(m_sheet, place, place, static_cast<uint32_t>(width), nullptr);
        }
        worksheet_freeze_panes(m_sheet, 1, 0);
        worksheet_set_paper(m_sheet, paperA4);
        worksheet_fit_to_pages(m_sheet, 1, 0);
        worksheet_repeat_rows(m_sheet, 0, 0);
        if (m_looks.size() > mostColumnsUpright)
            worksheet_set_landscape(m_sheet);
        for (std::size_t at = 0; at < m_looks.size(); ++at) {
            const ExportColumn &column = m_table.columns.at(qsizetype(at));
            lxw_format *look = format(column, QStringLiteral("@"), false, true);
            format_set_bold(look);
            format_set_bottom(look, LXW_BORDER_THIN);
            writeText(static_cast<lxw_col_t>(at), column.title, look);
        }
        m_row = 1;
    }

    lxw_error write(lxw_col_t column, const QVariant &value, bool isTotal)
    {
        const Look &look = isTotal ? m_looks.at(column).total : m_looks.at(column).row;
        if (isNull(value) || isEmpty(value)) {
            if (!isTotal)
                return LXW_NO_ERROR;
            ++m_cells; // for its line
            return worksheet_write_blank(m_sheet, m_row, column, look.plain);
        }
        if (const auto number = sheetNumber(value)) {
            ++m_cells;
            return worksheet_write_number(m_sheet, m_row, column, *number, look.plain);
        }
        if (auto date = sheetDate(value)) {
            ++m_cells;
            return worksheet_write_datetime(m_sheet, m_row, column, &*date, hasTime(value) ? look.time : look.day);
        }
        const QString text = CStr(value, m_locale);
        const bool isOfText = m_table.columns.at(column).kind == ExportColumn::Kind::Text;
        return writeText(column, text, text.contains(u'\n') || !isOfText ? look.wrapped : look.plain);
    }

    lxw_error writeText(lxw_col_t column, QString text, lxw_format *look)
    {
        text.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
        if (text.isEmpty())
            return LXW_NO_ERROR;
        ++m_cells;
        return worksheet_write_string(m_sheet, m_row, column, text.toUtf8().constData(), look);
    }

    lxw_workbook *m_book;
    lxw_worksheet *m_sheet;
    const ExportTable &m_table;
    const Locale &m_locale;
    std::vector<Looks> m_looks;
    lxw_row_t m_row = 0;
    qint64 m_cells = 0;
};

ExportResult writeRows(Sheet &sheet, const ExportTable &table, Pace &pace)
{
    for (qint64 row = 0; row < table.rows.size(); ++row) {
        if (!pace.goesOn(table.rows.size() * readingARow + row * writingARow))
            return {Outcome::Stopped, {}, {}, 0, 0};
        if (auto refused = sheet.writeRow(table.rows.at(row), false))
            return *refused;
    }
    if (!table.totals.isEmpty()) {
        if (auto refused = sheet.writeRow(table.totals, true))
            return *refused;
    }
    return {};
}

//! Packing takes a while and cannot be stopped, so it is done aside: the caller goes on asking the user.
lxw_error pack(lxw_workbook *book, Pace &pace, qint64 rows)
{
    auto packing = std::async(std::launch::async, [book] { return workbook_close(book); });
    while (packing.wait_for(std::chrono::milliseconds(Pace::longestSilence)) != std::future_status::ready)
        (void)pace.goesOn(rows * (readingARow + writingARow));
    return packing.get();
}

ExportResult fits(const ExportTable &table)
{
    const qint64 rows = table.rows.size() + 1 + (table.totals.isEmpty() ? 0 : 1);
    if (rows > LXW_ROW_MAX)
        return {Outcome::TooManyRows, {}, {}, 0, 0};
    if (table.columns.size() > LXW_COL_MAX)
        return {Outcome::TooManyColumns, {}, {}, 0, 0};
    return {};
}

} // namespace

Workbook workbookOf(const ExportTable &table, const ExportSettings &settings)
{
    if (const ExportResult refused = fits(table); !refused.isWritten())
        return {refused, {}};
    const QTemporaryDir folder;
    if (!folder.isValid())
        return {failed(folder.errorString(), std::errc::no_space_on_device), {}};
    QByteArray temporary = QFile::encodeName(folder.path());
    const QString fileName = folder.filePath(QStringLiteral("sheet.xlsx"));
    lxw_workbook_options options = {};
    options.constant_memory = LXW_TRUE; // each row goes to the disk at once
    options.tmpdir = temporary.data();
    lxw_workbook *book = workbook_new_opt(QFile::encodeName(fileName).constData(), &options);
    if (!book)
        return {failed(QStringLiteral("no workbook could be begun"), std::errc::not_enough_memory), {}};
    auto ending = qScopeGuard([book] { workbook_close(book); }); // whatever the caller's progress throws
    const QByteArray name = sheetName(table.name).toUtf8();
    lxw_worksheet *page = workbook_add_worksheet(book, name.isEmpty() ? nullptr : name.constData());
    Pace pace(settings.mayGoOn, wholeWork(table.rows.size()));
    ExportResult result = page ? ExportResult{} : failed(QStringLiteral("no sheet could be begun"));
    qint64 cells = 0;
    if (page) {
        Sheet sheet(book, page, table, settings.locale);
        result = writeRows(sheet, table, pace);
        cells = sheet.cells();
    }
    ending.dismiss();
    const lxw_error error = pack(book, pace, table.rows.size());
    if (!result.isWritten())
        return {result, {}};
    if (!pace.goesOn(wholeWork(table.rows.size())))
        return {{Outcome::Stopped, {}, {}, 0, 0}, {}};
    if (error != LXW_NO_ERROR)
        return {failed(QString::fromUtf8(lxw_strerror(error))), {}};
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return {failed(file.errorString()), {}};
    QByteArray bytes = file.readAll();
    if (cellsInWorkbook(bytes) != cells)
        return {failed(QStringLiteral("the temporary files found no room"), std::errc::no_space_on_device), {}};
    return {{}, std::move(bytes)};
}

} // namespace kor
