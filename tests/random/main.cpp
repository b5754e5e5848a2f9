// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include "random/user.h"

#include <KorDaoUC/Beep>
#include <KorDaoUC/Clock>
#include <KorDaoUC/ErrorHandler>
#include <KorDaoUC/Locale>

#include <QtCore/QCommandLineParser>
#include <QtCore/QElapsedTimer>
#include <QtCore/QProcess>
#include <QtWidgets/QApplication>

#include <csignal>
#include <cstdio>
#include <ctime>
#include <sys/time.h>
#include <unistd.h>

using namespace kor;
using namespace kor::test;

// A day is done by a process of its own, so that one that crashes or hangs is a finding like any other.

namespace {

constexpr int mostSecondsOfAStep = 10; // of the processor, under sanitizers
constexpr int mostSecondsOfADay = 300;
constexpr int mostTriesToShorten = 150;

void say(const QString &text)
{
    std::fputs(qPrintable(text + u'\n'), stdout);
    std::fflush(stdout);
}

//! Nothing but what a signal handler may do: the step at hand was printed before it began.
void stepHangs(int)
{
    constexpr char message[] = "FOUND: a step takes too long\n";
    (void)!::write(STDOUT_FILENO, message, sizeof message - 1);
    std::abort();
}

//! From now on so many seconds of the processor's time may be used; what else the machine has to do does not count.
void limitProcessorTime(int seconds)
{
    const itimerval limit{{0, 0}, {seconds, 0}};
    setitimer(ITIMER_PROF, &limit, nullptr);
}

[[nodiscard]] double processorSeconds() { return static_cast<double>(std::clock()) / CLOCKS_PER_SEC; }

int replay(int &argc, char **argv, const QList<Step> &steps, const QCommandLineParser &options)
{
    QApplication application(argc, argv);
    Locale::setSystemDefault(Locale::polish());
    Clock::setSource([] { return QDate(2024, 3, 5); });
    setBeepHandler([] {});
    setUnhandledErrorHandler([](QObject *, const RunTimeError &) {});
    std::signal(SIGPROF, stepHangs);
    RandomUser user(options.value(u"only"_qs));
    const bool isTold = options.isSet(u"tell"_qs);
    for (const Step &step : steps) {
        if (isTold)
            say(written({step}));
        const double before = processorSeconds();
        limitProcessorTime(mostSecondsOfAStep);
        const QString found = user.work(step);
        limitProcessorTime(0);
        if (isTold)
            say(QStringLiteral("    %1 (%2 s)").arg(user.description()).arg(processorSeconds() - before, 0, 'f', 2));
        if (!found.isEmpty()) {
            say(u"FOUND: "_qs + found);
            return 1;
        }
    }
    return 0;
}

//! What a day came to: empty when nothing was found, else what tells one finding from another.
QString outcomeOf(const QList<Step> &steps, const QString &only)
{
    QProcess day;
    day.setProcessChannelMode(QProcess::MergedChannels);
    day.start(QCoreApplication::applicationFilePath(), {u"--only"_qs, only, u"--replay"_qs, written(steps)});
    if (!day.waitForFinished(mostSecondsOfADay * 1000)) {
        day.kill();
        day.waitForFinished();
        return u"the day does not end"_qs;
    }
    if (day.exitStatus() == QProcess::NormalExit && day.exitCode() == 0)
        return {};
    for (const QByteArray &line : day.readAll().split('\n')) {
        if (line.startsWith("FOUND: ") || line.startsWith("SUMMARY: ") || line.contains("runtime error:") ||
            line.startsWith("terminate called"))
            return QString::fromUtf8(line);
    }
    return QStringLiteral("the process ended with %1").arg(day.exitCode());
}

//! Whether two outcomes are of one kind: what was typed and held may differ.
bool isSame(const QString &one, const QString &other) { return one.section(u':', 0, 2) == other.section(u':', 0, 2); }

//! Leaves out what the finding does not need: halves first, then ever smaller parts, at last single steps.
QList<Step> shortened(QList<Step> steps, const QString &outcome, const QString &only)
{
    int tries = 0;
    for (qsizetype part = std::max<qsizetype>(1, steps.size() / 2); part > 0;) {
        bool isShorter = false;
        for (qsizetype at = 0; at < steps.size() && tries < mostTriesToShorten;) {
            QList<Step> fewer = steps;
            fewer.remove(at, std::min(part, steps.size() - at));
            ++tries;
            if (isSame(outcomeOf(fewer, only), outcome)) {
                steps = fewer;
                isShorter = true;
            } else {
                at += part;
            }
        }
        if (tries >= mostTriesToShorten)
            break;
        part = part > 1 ? (part + 1) / 2 : (isShorter ? 1 : 0);
    }
    return steps;
}

int days(const QCommandLineParser &options)
{
    const unsigned seed = options.value(u"seed"_qs).toUInt();
    const int seconds = options.value(u"seconds"_qs).toInt();
    const int count = options.value(u"days"_qs).toInt();
    const int length = options.value(u"steps"_qs).toInt();
    const QString only = options.value(u"only"_qs);
    QElapsedTimer elapsed;
    elapsed.start();
    QStringList found;
    unsigned done = 0;
    for (; seconds > 0 ? elapsed.elapsed() < seconds * 1000LL : done < static_cast<unsigned>(count); ++done) {
        const QList<Step> steps = stepsOfDay(seed + done, length);
        const QString outcome = outcomeOf(steps, only);
        const bool isKnown =
            std::any_of(found.cbegin(), found.cend(), [&](const auto &one) { return isSame(one, outcome); });
        if (outcome.isEmpty() || isKnown)
            continue;
        found << outcome;
        say(QStringLiteral("seed %1: %2").arg(seed + done).arg(outcome));
        say(u"  --replay \""_qs + written(shortened(steps, outcome, only)) + u'"');
    }
    say(QStringLiteral("%1 days of %2 steps in %3 s, %4 findings")
            .arg(done)
            .arg(length)
            .arg(elapsed.elapsed() / 1000)
            .arg(found.size()));
    return found.isEmpty() ? 0 : 1;
}

} // namespace

int main(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    QCommandLineParser options;
    options.setApplicationDescription(u"Uses a form with every control at random, and says what broke."_qs);
    options.addOptions({{u"seed"_qs, u"The first day's seed; the next day has the next one."_qs, u"number"_qs, u"1"_qs},
                        {u"days"_qs, u"How many days."_qs, u"number"_qs, u"10"_qs},
                        {u"seconds"_qs, u"How long, in place of how many days."_qs, u"number"_qs, u"0"_qs},
                        {u"steps"_qs, u"How many steps a day has."_qs, u"number"_qs, u"200"_qs},
                        {u"only"_qs, u"Keeps to the controls of this name."_qs, u"control"_qs},
                        {u"replay"_qs, u"Does these steps, as a finding printed them."_qs, u"steps"_qs},
                        {u"tell"_qs, u"Tells every step of a replay, else of the first day."_qs}});
    const auto help = options.addHelpOption();
    if (!options.parse(arguments)) {
        say(options.errorText());
        return 2;
    }
    if (options.isSet(help)) {
        say(options.helpText());
        return 0;
    }
    if (options.isSet(u"replay"_qs)) {
        const auto steps = readSteps(options.value(u"replay"_qs));
        if (!steps) {
            say(u"These are no steps."_qs);
            return 2;
        }
        return replay(argc, argv, *steps, options);
    }
    if (options.isSet(u"tell"_qs))
        return replay(argc, argv, stepsOfDay(options.value(u"seed"_qs).toUInt(), options.value(u"steps"_qs).toInt()),
                      options);
    const QCoreApplication application(argc, argv);
    return days(options);
}
