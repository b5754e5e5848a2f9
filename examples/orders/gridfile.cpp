// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "gridfile.h"

#ifdef ORDERS_EXPORT
#  include "messages.h"
#  include "progress.h"
#  include "savedfile.h"

#  include <KorDaoUC/GridExport>
#endif

namespace orders {

#ifdef ORDERS_EXPORT

namespace {

using Outcome = kor::ExportResult::Outcome;

const QStringList filters{QStringLiteral("Skoroszyt (*.xlsx)"), QStringLiteral("Tekst CSV (*.csv)")};

QString refusal(const kor::ExportResult &result, const kor::ExportTable &table)
{
    switch (result.outcome) {
    case Outcome::TooManyRows: return QStringLiteral("Tyle wierszy nie zmieści się w arkuszu. Zapisz plik CSV.");
    case Outcome::TooManyColumns: return QStringLiteral("Tyle kolumn nie zmieści się w arkuszu. Zapisz plik CSV.");
    case Outcome::TextTooLong:
        return QStringLiteral("W wierszu %1, w kolumnie „%2”, jest więcej tekstu, niż zmieści się w komórce arkusza. "
                              "Zapisz plik CSV.")
            .arg(result.row + 1)
            .arg(table.columns.at(result.column).title);
    case Outcome::Written:
    case Outcome::Stopped:
    case Outcome::NotWritten: break;
    }
    return {};
}

} // namespace

bool canSaveGrids() { return true; }

bool saveGrid(QWidget *parent, const KorGrid &grid, const GridFile &file, const QString &fileName)
{
    Progress progress(parent, file.title, QStringLiteral("Zapisywanie..."));
    kor::ExportSettings settings;
    settings.name = file.title;
    settings.totals = file.totals;
    settings.mayGoOn = [&progress](qint64 done, qint64 all) { return progress.goesOn(done, all); };
    const std::optional<kor::ExportTable> table = kor::exportTableOf(grid, settings);
    if (!table)
        return false;
    const kor::ExportKind kind = kor::exportKindOf(fileName).value_or(kor::ExportKind::Xlsx);
    const kor::ExportResult result = kor::exportTable(*table, fileName, kind, settings);
    progress.end();
    if (result.outcome == Outcome::NotWritten)
        warnOfFile(parent, file.title, fileName, result.error, result.reason);
    else if (const QString text = refusal(result, *table); !text.isEmpty())
        warn(parent, file.title, text);
    return result.isWritten();
}

QString askAndSaveGrid(QWidget *parent, const KorGrid &grid, const GridFile &file)
{
    const QString fileName =
        askForFile(parent, QStringLiteral("Eksport"), file.name + QStringLiteral(".xlsx"), filters);
    if (fileName.isEmpty())
        return {};
    return saveGrid(parent, grid, file, fileName) ? QStringLiteral("Zapisano plik %1.").arg(fileName)
                                                  : QStringLiteral("Nic nie zapisano.");
}

#else

bool canSaveGrids() { return false; }
QString askAndSaveGrid(QWidget *, const KorGrid &, const GridFile &) { return {}; }
bool saveGrid(QWidget *, const KorGrid &, const GridFile &, const QString &) { return false; }

#endif

} // namespace orders
