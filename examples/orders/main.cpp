// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "deskicon.h"
#include "orderstore.h"
#include "orderwindow.h"
#include "pictures.h"
#include "places.h"

#include <KorDaoUC/Locale>

#include <QtCore/QCommandLineParser>
#include <QtCore/QDir>
#include <QtCore/QLibraryInfo>
#include <QtCore/QStandardPaths>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTranslator>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMessageBox>

#include <algorithm>
#include <cstdio>
#include <optional>
#include <string_view>

namespace {

QString standardDatabase()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    QDir().mkpath(folder);
    return QDir(folder).filePath(QStringLiteral("zamowienia.sqlite"));
}

QString placesFile()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation);
    return QDir(folder).filePath(QStringLiteral("okna.ini"));
}

void complain(const QString &text, bool isShown)
{
    std::fprintf(stderr, "orders: %s\n", qPrintable(text));
    if (isShown)
        QMessageBox::critical(nullptr, QStringLiteral("Zamówienia"), text);
}

//! A picture needs no window manager, and the platform without one says of each window that it has none.
void sayWhatMatters(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (!text.startsWith(u"This plugin does not support "))
        std::fprintf(stderr, "%s\n", qPrintable(qFormatLogMessage(type, context, text)));
}

//! No screen is needed for pictures, and they are the same everywhere.
void doWithoutScreen()
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(sayWhatMatters);
    if (!qEnvironmentVariableIsSet("QT_LOGGING_RULES"))
        qputenv("QT_LOGGING_RULES", "qt.qpa.*=false"); // what a platform without windows cannot do
}

//! The desk does so whatever the system speaks, and the toolkit's own dialogs do where its words are installed.
void speakPolish()
{
    auto *words = new QTranslator(qApp);
    if (words->load(QStringLiteral("qtbase_pl"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(words);
    kor::Locale::setSystemDefault(kor::Locale::polish());
}

} // namespace

int main(int argc, char **argv)
{
    const QString screenshotsName = QStringLiteral("screenshots");
    const bool isPictured = std::any_of(argv + 1, argv + argc, [](const char *argument) {
        return std::string_view(argument).starts_with("--screenshots");
    });
    if (isPictured)
        doWithoutScreen();

    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("orders"));
    QApplication::setOrganizationName(QStringLiteral("KorDaoUC"));
    QApplication::setApplicationVersion(QStringLiteral(KORDAOUC_VERSION));
    QApplication::setApplicationDisplayName(QStringLiteral("Zamówienia"));
    QApplication::setWindowIcon(orders::deskIcon());

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Zamówienia: an order desk, the sample application of KorDaoUC."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption database(
        QStringLiteral("database"),
        QStringLiteral("The SQLite file of the orders, made with sample data if it is not there, or the address of a "
                       "database on a PostgreSQL server: postgresql://user@host/name."),
        QStringLiteral("place"));
    const QCommandLineOption screenshots(screenshotsName,
                                         QStringLiteral("Leaves pictures of all windows in a folder and ends."),
                                         QStringLiteral("folder"));
    parser.addOptions({database, screenshots});
    parser.process(application);

    speakPolish();
    if (isPictured) {
        QApplication::setStyle(QStringLiteral("Fusion"));
        QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), 10));
    }
    const QTemporaryDir temporary; // pictures are taken of fresh data
    QString file = isPictured ? temporary.filePath(QStringLiteral("zamowienia.sqlite")) : QString();
    if (parser.isSet(database))
        file = parser.value(database);
    else if (!isPictured)
        file = standardDatabase();
    try {
        orders::OrderStore store(file);
        std::optional<orders::Places> places;
        if (!isPictured)
            places.emplace(placesFile());
        orders::OrderWindow window(store, places ? &*places : nullptr);
        if (isPictured)
            return orders::takePictures(window, parser.value(screenshots)) ? 0 : 1;
        window.show();
        return QApplication::exec();
    } catch (const orders::StoreError &error) {
        complain(error.text(), !isPictured);
    } catch (const std::exception &error) {
        complain(QString::fromUtf8(error.what()), !isPictured);
    }
    return 1;
}
