// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "savedfile.h"

#include "messages.h"

#include <KorDaoUC/WholeFile>

#include <QtCore/QDir>
#include <QtCore/QRegularExpression>
#include <QtCore/QStandardPaths>
#include <QtWidgets/QFileDialog>

namespace orders {

namespace {

//! "xlsx" of "Skoroszyt (*.xlsx)".
QString endingOf(const QString &filter)
{
    static const QRegularExpression pattern(QStringLiteral("\\*\\.(\\w+)"));
    return pattern.match(filter).captured(1);
}

QString saidOf(std::error_code error)
{
    struct Said {
        std::errc error;
        const char *text;
    };
    static constexpr Said known[] = {
        {std::errc::no_space_on_device, "Na dysku nie ma już miejsca."},
        {std::errc::file_too_large, "Na dysku nie ma miejsca na tak duży plik."},
        {std::errc::is_a_directory, "Pod tą nazwą jest folder."},
        {std::errc::not_supported, "Pod tą nazwą jest coś innego niż plik."},
        {std::errc::no_such_file_or_directory, "Nie ma takiego folderu."},
        {std::errc::not_a_directory, "Nie ma takiego folderu."},
        {std::errc::permission_denied, "Nie wolno tu zapisywać."},
        {std::errc::operation_not_permitted, "Nie wolno tu zapisywać."},
        {std::errc::read_only_file_system, "Ten dysk jest tylko do odczytu."},
        {std::errc::filename_too_long, "Nazwa pliku jest za długa."},
        {std::errc::io_error, "Dysk zgłosił błąd."},
    };
    for (const Said &each : known) {
        if (error == each.error)
            return QString::fromUtf8(each.text);
    }
    return {};
}

QString chosenFolder; // by the clerk, for all windows

QString folderOr(const QString &folder)
{
    return !folder.isEmpty() && QDir(folder).exists()
               ? folder
               : QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

void nameParts(QFileDialog &dialog, const QString &fileName, const QString &accept)
{
    dialog.setLabelText(QFileDialog::LookIn, QStringLiteral("Folder:"));
    dialog.setLabelText(QFileDialog::FileName, fileName);
    dialog.setLabelText(QFileDialog::FileType, QStringLiteral("Rodzaj pliku:"));
    dialog.setLabelText(QFileDialog::Accept, accept);
    dialog.setLabelText(QFileDialog::Reject, QStringLiteral("Anuluj"));
}

//! What is chosen, "" for nothing.
QString chosenIn(QFileDialog &dialog)
{
    const bool isChosen = dialog.exec() == QDialog::Accepted;
    dialog.parentWidget()->activateWindow(); // not every window system does so by itself
    return isChosen ? dialog.selectedFiles().value(0) : QString();
}

} // namespace

void offerFilesIn(const QString &folder) { chosenFolder = folder; }

QString askForFolder(QWidget *parent, const QString &title, const QString &folder)
{
    QFileDialog dialog(parent, title, folderOr(folder));
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    nameParts(dialog, QStringLiteral("&Nazwa folderu:"), QStringLiteral("&Wybierz"));
    return QDir::toNativeSeparators(chosenIn(dialog));
}

QString askForFile(QWidget *parent, const QString &title, const QString &name, const QStringList &filters)
{
    QFileDialog dialog(parent, title, folderOr(chosenFolder));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setNameFilters(filters);
    nameParts(dialog, QStringLiteral("&Nazwa pliku:"), QStringLiteral("&Zapisz"));
    dialog.setDefaultSuffix(endingOf(filters.first()));
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog,
                     [&dialog](const QString &filter) { dialog.setDefaultSuffix(endingOf(filter)); });
    dialog.selectFile(name);
    return chosenIn(dialog);
}

bool saveFile(QWidget *parent, const QString &title, const QString &fileName, QByteArrayView bytes)
{
    const std::optional<kor::WriteFailure> failure = kor::tryWriteWhole(fileName, bytes);
    if (failure)
        warnOfFile(parent, title, fileName, failure->error, failure->reason);
    return !failure;
}

void warnOfFile(QWidget *parent, const QString &title, const QString &fileName, std::error_code error,
                const QString &reason)
{
    const QString said = saidOf(error);
    warn(parent, title, QStringLiteral("Pliku nie udało się zapisać:\n%1").arg(fileName),
         said.isEmpty() ? reason : said);
}

} // namespace orders
