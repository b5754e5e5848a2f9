// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "korform/command.h"
#include "korform/form.h"
#include "korform/loader.h"

#include <KorDaoUC/DictionaryControl>
#include <KorDaoUC/FormBuilder>
#ifdef KORFORM_READS_MDB
#  include "korform/readingprogress.h"

#  include <KorDaoUC/MdbFile>
#endif
#include <KorDaoUC/RunTimeError>
#include <KorDaoUC/UiFile>
#include <KorDaoUC/UserControl>

#include <QtCore/QFileInfo>
#include <QtGui/QPixmap>
#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlError>
#include <QtSql/QSqlQuery>
#include <QtWidgets/QApplication>

namespace korform {

namespace {

const QString connectionName = QStringLiteral("korform");

//! Says why the database is not opened.
bool refuse(const QString &fileName, const QString &reason)
{
    say(fileName, 0, "error", reason);
    return false;
}

//! A copy in memory is what can be asked of an .mdb file.
bool openMdb(const QString &fileName)
{
#ifdef KORFORM_READS_MDB
    QSqlDatabase connection = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connectionName);
    connection.setDatabaseName(QStringLiteral(":memory:"));
    if (!connection.open())
        return refuse(fileName, connection.lastError().text());
    try {
        ReadingProgress progress(fileName);
        const kor::MdbReading reading =
            kor::readMdbFile(fileName, connection, [&progress](const QString &table, qint64 done, qint64 all) { //
                return progress.goesOn(table, done, all);
            });
        for (const QString &remark : reading.remarks)
            say(fileName, 0, "note", remark);
        if (!reading.isComplete)
            return refuse(fileName, QStringLiteral("the reading was stopped"));
    } catch (const kor::RunTimeError &error) {
        return refuse(fileName, QString::fromUtf8(error.what()));
    }
    return true;
#else
    return refuse(fileName,
                  QStringLiteral("korform was built without the reading of .mdb files; SQLite files can be opened"));
#endif
}

//! Opens the database for reading; whether it could, which is said if not.
bool openDatabase(const QString &fileName)
{
    const QFileInfo file(fileName);
    if (!file.exists())
        return refuse(fileName, QStringLiteral("there is no such file"));
    if (!file.isFile())
        return refuse(fileName, QStringLiteral("this is no file"));
    if (file.suffix().compare(u"mdb", Qt::CaseInsensitive) == 0)
        return openMdb(fileName);
    QSqlDatabase connection = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connectionName);
    connection.setDatabaseName(fileName);
    connection.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY"));
    if (!connection.open())
        return refuse(fileName, connection.lastError().text());
    QSqlQuery query(connection);
    if (!query.exec(QStringLiteral("SELECT count(*) FROM sqlite_master")))
        return refuse(fileName, QStringLiteral("this is no SQLite database: ") + query.lastError().driverText());
    return true;
}

//! Builds the form of a form file on the window; whether it could, which is said if not.
bool build(kor::FormBuilder &builder, const kor::FormBlock &form, QWidget &window, const Arguments &arguments)
{
    addOtherKinds(builder, form, arguments.classes);
    QList<kor::FormFault> faults = builder.check(form);
    faults.removeIf([](const kor::FormFault &fault) { return fault.isWarning; });
    for (const kor::FormFault &fault : faults)
        say(arguments.files.first(), fault.line, "error", fault.reason);
    if (!faults.isEmpty())
        return false;
    if (const std::optional<QString> reason = builder.build(form, &window)) {
        say(arguments.files.first(), 0, "error", *reason);
        return false;
    }
    return true;
}

//! The window of the file, or null, the reason of which is said.
std::unique_ptr<QWidget> open(const Source &source, kor::FormBuilder &builder, const Arguments &arguments)
{
    const QString &fileName = arguments.files.first();
    QByteArray ui = source.text;
    if (source.kind == FileKind::Form) {
        const kor::FormResult form = kor::FormFile::parse(source.text);
        if (!form.form) {
            say(fileName, form.error.line, "error", form.error.reason);
            return nullptr;
        }
        if (!hasDesignerWidgets(*form.form)) {
            auto window = std::make_unique<QWidget>();
            return build(builder, *form.form, *window, arguments) ? std::move(window) : nullptr;
        }
        ui = kor::UiFile::fromForm(*form.form).ui.value_or(QByteArray());
    } else if (const kor::UiFile::Form form = kor::UiFile::toForm(ui); !form.form) { // tells more than the loader
        say(fileName, form.error.line, "error", form.error.reason);
        return nullptr;
    }
    Loader loader;
    std::unique_ptr<QWidget> window = loader.loadText(ui);
    if (!window)
        say(fileName, 0, "error", loader.errorString());
    return window;
}

//! Gives the database to all controls that take one, and fills the lists.
void fill(const QWidget &window, const QString &fileName)
{
    for (kor::UserControl *control : window.findChildren<kor::UserControl *>()) {
        try {
            if (!fileName.isEmpty() && control->metaObject()->indexOfMethod("setdatabase(QString)") >= 0)
                QMetaObject::invokeMethod(control, "setdatabase", Q_ARG(QString, connectionName));
            auto *list = qobject_cast<kor::DictionaryControl *>(control);
            if (list && !list->SQL().isEmpty())
                list->Refresh();
        } catch (const kor::RunTimeError &error) {
            say(control->objectName(), 0, "error", QString::fromUtf8(error.what()));
        }
    }
}

} // namespace

int show(const Arguments &arguments)
{
    const std::optional<Source> source = readSource(arguments.files.first());
    if (!source || (!arguments.database.isEmpty() && !openDatabase(arguments.database)))
        return NotDone;
    kor::FormBuilder builder;
    const std::unique_ptr<QWidget> window = open(*source, builder, arguments);
    if (!window)
        return NotDone;
    fill(*window, arguments.database);
    window->show();
    if (arguments.picture.isEmpty())
        return QApplication::exec();
    QApplication::processEvents();
    if (!window->grab().save(arguments.picture, "PNG")) {
        say(arguments.picture, 0, "error", QStringLiteral("can't be written"));
        return NotDone;
    }
    return Done;
}

} // namespace korform
