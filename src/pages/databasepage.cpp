// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "pages/databasepage.h"

#include "pages/latebound.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtWidgets/QFileDialog>

namespace kor {

namespace {

const char nameField[] = "txtDatabaseName";

QString anyFile() { return QStringLiteral("*.mdb"); }

const PageTable &binding()
{
    using Kind = FieldKind;
    // clang-format off
    static const PageTable table{
        "pagKorGrid1",
        QStringLiteral("General"),
        {
            {Kind::Text,       nameField,         "DatabaseName", QStringLiteral("Nazwa bazy danych"), "lblDatabaseName"},
            {Kind::SideButton, "cmdDatabaseName", nullptr,        QStringLiteral("Wybierz bazę danych")},
            {Kind::Text,       "txtRecordSource", "RecordSource", QStringLiteral("Komenda SQL"), "lblRecordSource"},
            {Kind::CheckState, "chkReadOnly",     "ReadOnly",     QStringLiteral("ReadOnly")},
            {Kind::Text,       "txtSlownik",      "Slownik",      QStringLiteral("Słownik"), "labSlownik"},
            {Kind::Button,     "cmdRetrive",      nullptr,        QStringLiteral("&Retrive Fields")},
        },
        {"ReadOnly", "RecordSource", "DatabaseName", "Slownik"},
        {"ReadOnly", "RecordSource", "DatabaseName", "Slownik"},
    };
    // clang-format on
    return table;
}

} // namespace

DatabasePage::DatabasePage(QWidget *parent) : TablePage(binding(), parent), m_dialog(new QFileDialog(this))
{
    m_dialog->setObjectName(QStringLiteral("CMD"));
    prepareDialog();
    onClick("cmdDatabaseName", [this] { chooseFile(); });
    onClick("cmdRetrive", [this] {
        if (QObject *control = firstControl())
            change(*control, [control] { callMember(*control, "RetriveFields()"); });
    });
}

void DatabasePage::prepareDialog()
{
    m_dialog->setWindowTitle(QStringLiteral("Database Name"));
    m_dialog->setAcceptMode(QFileDialog::AcceptOpen);
    m_dialog->setFileMode(QFileDialog::AnyFile); // a name that is no file yet may be meant for another machine
    m_dialog->setNameFilter(QStringLiteral("MS Access Database (*.mdb)"));
    m_dialog->selectFile(anyFile());
    // Kept: the texts "4" and "4096" joined and read as one number, not the two flags; hosts read it back
    m_dialog->setProperty("Flags", 44096);
}

void DatabasePage::chooseFile()
{
    const QPointer<DatabasePage> self = this;
    prepareDialog(); // the host may have used it meanwhile
    const bool isChosen = m_dialog->exec() == QDialog::Accepted;
    if (!self || !isChosen)
        return;
    const QString file = m_dialog->selectedFiles().value(0);
    if (file.isEmpty() || QFileInfo(file).fileName() == anyFile()) // the dialog makes a whole path of it
        return;
    silently([&] { field(nameField).show(QDir::toNativeSeparators(file)); });
    markChanged();
}

} // namespace kor
