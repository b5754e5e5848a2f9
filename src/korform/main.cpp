// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT

// korform: converts, checks and shows forms.
#include "korform/command.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QLoggingCategory>
#include <QtWidgets/QApplication>

#include <algorithm>
#include <array>
#include <cstdio>
#include <functional>

namespace korform {

namespace {

constexpr const char *helpText =
    R"(Usage: korform convert [--strict] [--quiet] [--dpi N] FROM TO
       korform check [--strict] [--class NAME]... FILE...
       korform show [--database FILE] [--class NAME]... [--picture FILE] FILE
       korform --help | --version

Converts, checks and shows forms: form files of KorDaoUC, and files of the
form designer (.ui).

convert  turns a form file into a .ui file or a .ui file into a form file. What
         the other kind makes nothing of is kept there and named on the
         standard error ("kept"), and so is what can't be had back ("lost").
         TO is written whole or not at all; an older file is replaced.
check    names every fault of every file with its line.
show     opens a form with living controls; its lists are filled.

  --strict         convert: writes nothing when something would be lost
                   check: warnings are faults, too
  --quiet          names only what is lost
  --dpi N          dots per inch of the screens that the .ui file is drawn for
                   (96; a file that was made with another number knows it)
  --class NAME     a class of blocks that the program adds to form files; shown
                   as an empty frame
  --database FILE  the database of the lists, SQLite or .mdb; is only read
  --picture FILE   leaves a picture (PNG) of the window and ends
  --help           shows this text
  --version        shows the version

Ends with 0 when all is well; with 1 when something was lost (convert) or
faulty (check); with 2 when nothing was done: wrong arguments, or a file that
can't be read, understood or written.
)";

struct Command {
    const char *name;
    int (*run)(const Arguments &);
    qsizetype fewest;
    qsizetype most;
    QStringList options;
};

const std::array<Command, 3> &commands()
{
    static const std::array all{
        Command{"convert", convert, 2, 2, {QStringLiteral("strict"), QStringLiteral("quiet"), QStringLiteral("dpi")}},
        Command{"check", check, 1, 100'000, {QStringLiteral("strict"), QStringLiteral("class")}},
        Command{"show", show, 1, 1, {QStringLiteral("database"), QStringLiteral("class"), QStringLiteral("picture")}},
    };
    return all;
}

int refuse(const QString &reason)
{
    std::fprintf(stderr, "korform: %s\nkorform --help explains.\n", qPrintable(reason));
    return NotDone;
}

//! What a form has to say is heard; what the platform thinks of itself is not.
void hearForms(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (QByteArrayView(context.category).startsWith("kordaouc.") || type == QtFatalMsg)
        std::fprintf(stderr, "%s\n", qPrintable(text));
}

void addOptions(QCommandLineParser &parser)
{
    const auto add = [&parser](const char *name, bool hasValue) {
        QCommandLineOption option{QString::fromLatin1(name)};
        if (hasValue)
            option.setValueName(QStringLiteral("value"));
        parser.addOption(option);
    };
    for (const char *name : {"help", "version", "strict", "quiet"})
        add(name, false);
    for (const char *name : {"dpi", "class", "database", "picture"})
        add(name, true);
}

//! Runs the command of the arguments, once they are understood.
int run(const QCommandLineParser &parser)
{
    QStringList files = parser.positionalArguments();
    if (files.isEmpty())
        return refuse(QStringLiteral("a command is missing"));
    const QString name = files.takeFirst();
    const auto command = std::find_if(commands().begin(), commands().end(),
                                      [&name](const Command &one) { return name == QLatin1String(one.name); });
    if (command == commands().end())
        return refuse(QStringLiteral("'%1' is no command").arg(name));
    for (const QString &option : parser.optionNames()) {
        if (!command->options.contains(option))
            return refuse(QStringLiteral("%1 has no option --%2").arg(name, option));
    }
    if (files.size() < command->fewest || files.size() > command->most || files.contains(QString()))
        return refuse(QStringLiteral("%1 needs %2")
                          .arg(name, command->most == 1   ? QStringLiteral("one file")
                                     : command->most == 2 ? QStringLiteral("two files")
                                                          : QStringLiteral("files")));
    Arguments arguments{files, parser.value(QStringLiteral("database")), parser.value(QStringLiteral("picture")),
                        parser.values(QStringLiteral("class"))};
    arguments.isStrict = parser.isSet(QStringLiteral("strict"));
    arguments.isQuiet = parser.isSet(QStringLiteral("quiet"));
    if (parser.isSet(QStringLiteral("dpi"))) {
        bool isNumber = false;
        arguments.dotsPerInch = parser.value(QStringLiteral("dpi")).toDouble(&isNumber);
        if (!isNumber || !(arguments.dotsPerInch >= 24 && arguments.dotsPerInch <= 2400))
            return refuse(QStringLiteral("--dpi needs a number from 24 to 2400"));
    }
    return command->run(arguments);
}

} // namespace

void say(const QString &file, int line, const char *what, const QString &text)
{
    const QString place = line > 0 ? QStringLiteral("%1:%2").arg(file).arg(line) : file;
    std::fprintf(stderr, "%s: %s: %s\n", qPrintable(place), what, qPrintable(text));
}

} // namespace korform

int main(int argc, char **argv)
{
    // Only a form that is looked at needs a screen.
    const bool isShown = argc > 1 && QByteArrayView(argv[1]) == "show";
    const bool isPictured = std::any_of(
        argv, argv + argc, [](const char *argument) { return QByteArrayView(argument).startsWith("--picture"); });
    if (!isShown || isPictured)
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(korform::hearForms);
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("korform"));

    QCommandLineParser parser;
    korform::addOptions(parser);
    if (!parser.parse(QApplication::arguments()))
        return korform::refuse(parser.errorText());
    if (parser.isSet(QStringLiteral("help")) || parser.isSet(QStringLiteral("version"))) {
        const bool isHelp = parser.isSet(QStringLiteral("help"));
        std::fputs(isHelp ? korform::helpText : "korform " KORDAOUC_VERSION "\n", stdout);
        return std::fflush(stdout) == 0 ? korform::Done : korform::NotDone;
    }
    return korform::run(parser);
}
