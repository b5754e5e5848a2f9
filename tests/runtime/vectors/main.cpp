// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
//
// kor-vectors [--exceptions FILE] FILE...
//
// Runs the vectors of each file and prints every mismatch. With a list of exceptions, the run is good when exactly the
// listed rows fail: a new failure is bad, and so is a listed row that passes by now.

#include "evaluation.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QMap>
#include <QtCore/QSet>
#include <QtCore/QTextStream>

namespace {

QString keyOf(const QString &file, const Vector &vector)
{
    return QStringList{file, vector.locale, vector.type, vector.input, vector.argument}.join(u'\t');
}

//! The listed rows: file, locale, type, input, arg, reason. Every one must have its reason.
bool readExceptions(const QString &path, QSet<QString> &keys, QTextStream &out)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        out << path << ": " << file.errorString() << '\n';
        return false;
    }
    const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
    for (const QString &line : lines.mid(1)) {
        const QStringList fields = fieldsOf(line);
        if (fields.size() != 6 || fields[5].isEmpty()) {
            out << path << ": not a row with a reason: " << line << '\n';
            return false;
        }
        keys.insert(fields.first(5).join(u'\t'));
    }
    return true;
}

struct Tally {
    int passed = 0;
    int failed = 0;
    int skipped = 0;
    int unexpected = 0;
    QMap<QString, int> missingFunctions;
    QSet<QString> failedKeys;
};

void run(const VectorFile &file, const QSet<QString> &exceptions, Tally &tally, QTextStream &out)
{
    for (const Vector &vector : file.vectors) {
        const Outcome outcome = evaluate(file.name, vector);
        switch (outcome.kind) {
        case Outcome::Kind::Passed: ++tally.passed; break;
        case Outcome::Kind::Skipped:
            ++tally.skipped;
            ++tally.missingFunctions[outcome.got];
            break;
        case Outcome::Kind::Failed:
            const QString key = keyOf(file.name, vector);
            ++tally.failed;
            tally.failedKeys.insert(key);
            // A row that two sources agree on is never an exception.
            const bool listed = exceptions.contains(key) && vector.trust != QStringLiteral("high");
            tally.unexpected += listed ? 0 : 1;
            out << file.name << ".tsv:" << vector.line << ": " << vector.locale << ' ' << vector.type << " \""
                << vector.input << "\" \"" << vector.argument << "\" expected \"" << vector.expected << "\" got \""
                << outcome.got << "\" (" << vector.trust << (listed ? ", listed" : "") << ")\n";
            break;
        }
    }
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    QTextStream out(stdout);
    QStringList files = QCoreApplication::arguments().mid(1);
    QSet<QString> exceptions;
    bool good = true;
    if (files.size() > 1 && files.first() == QStringLiteral("--exceptions")) {
        good = readExceptions(files[1], exceptions, out);
        files = files.mid(2);
    }
    if (files.isEmpty()) {
        out << "usage: kor-vectors [--exceptions FILE] FILE...\n";
        return 2;
    }
    Tally tally;
    for (const QString &path : std::as_const(files)) {
        const VectorFile file = readVectorFile(path);
        if (!file.error.isEmpty()) {
            out << path << ": " << file.error << '\n';
            good = false;
        }
        run(file, exceptions, tally, out);
    }
    const QSet<QString> passing = exceptions - tally.failedKeys;
    for (const QString &key : passing)
        out << "listed as an exception, but passes or is gone: " << key << '\n';
    for (auto missing = tally.missingFunctions.cbegin(); missing != tally.missingFunctions.cend(); ++missing)
        out << "skipped: " << missing.key() << " (" << missing.value() << " rows)\n";
    out << tally.passed << " passed, " << tally.failed << " failed, " << tally.skipped << " skipped\n";
    good = good && tally.unexpected == 0 && tally.skipped == 0 && passing.isEmpty();
    return good ? 0 : 1;
}
