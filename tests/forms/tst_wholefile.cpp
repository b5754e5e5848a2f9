// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include <KorDaoUC/FormFile>
#include <KorDaoUC/wholefile.h>

#include <QtCore/QDir>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <optional>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

enum class Call { None, FirstWrite, LaterWrite, Sync, Close, Rename };

//! The call of the system that fails from now on, as it would on a bad disk.
Call failing = Call::None;
bool isWriting = false; //!< within the function that is tested
bool hasWritten = false;

bool fails(Call call)
{
    if (!isWriting || failing != call)
        return false;
    errno = call == Call::Rename ? EACCES : EIO;
    return true;
}

} // namespace

// These take the place of the system's own in this program, and in the libraries that it uses.
#pragma GCC visibility push(default)
extern "C" {
ssize_t write(int file, const void *bytes, size_t count)
{
    if (fails(Call::FirstWrite))
        return -1;
    if (isWriting && failing == Call::LaterWrite) {
        if (hasWritten) {
            errno = ENOSPC;
            return -1;
        }
        hasWritten = true;
        count /= 2; // what still finds room
    }
    return syscall(SYS_write, file, bytes, count);
}
int fsync(int file) { return fails(Call::Sync) ? -1 : static_cast<int>(syscall(SYS_fsync, file)); }
int close(int file)
{
    const auto result = static_cast<int>(syscall(SYS_close, file));
    return fails(Call::Close) ? -1 : result;
}
int rename(const char *from, const char *to) noexcept
{
    return fails(Call::Rename) ? -1 : static_cast<int>(syscall(SYS_renameat2, AT_FDCWD, from, AT_FDCWD, to, 0));
}
}
#pragma GCC visibility pop

namespace {

const QByteArray oldText = "Begin Form old\nEnd\n";

std::optional<QString> save(const QString &fileName, const QByteArray &text)
{
    hasWritten = false;
    isWriting = true;
    std::optional<QString> reason = kor::writeWhole(fileName, text);
    isWriting = false;
    return reason;
}

QByteArray contents(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(not readable)");
}

bool put(const QString &fileName, const QByteArray &text)
{
    QFile file(fileName);
    return file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && file.write(text) == text.size();
}

QStringList filesIn(const QString &folder)
{
    return QDir(folder).entryList(QDir::Files | QDir::Hidden | QDir::System, QDir::Name);
}

mode_t modeOf(const QString &fileName)
{
    struct stat status = {};
    return lstat(QFile::encodeName(fileName).constData(), &status) == 0 ? status.st_mode : 0;
}

//! What must be true after each attempt, whatever the room was; the first thing that was not.
QString tryToSave(const QString &folder, qint64 size, qint64 room)
{
    const QString fileName = folder + QStringLiteral("/a.frm");
    const QByteArray text(size, 'n');
    const std::optional<QString> reason = save(fileName, text);
    const QByteArray now = contents(fileName);
    const QString what = QStringLiteral("%1 bytes where there is room for %2: ").arg(size).arg(room);
    if (reason && now != oldText)
        return what + QStringLiteral("an error, and the old file is gone");
    if (!reason && now != text)
        return what + QStringLiteral("no error, and %1 bytes are there").arg(now.size());
    if (reason.has_value() != (size > room))
        return what + reason.value_or(QStringLiteral("no error"));
    if (filesIn(folder) != QStringList{QStringLiteral("a.frm")})
        return what + filesIn(folder).join(u' ');
    return put(fileName, oldText) ? QString() : what + QStringLiteral("the old file can't be put back");
}

//! Sizes from 1 byte to 1 MB: each up to the given one, then about every border of a buffer or page.
QList<qint64> sizes(qint64 each)
{
    QList<qint64> all;
    for (qint64 size = 1; size <= each; ++size)
        all << size;
    for (qint64 size = 16384; size <= 1024 * 1024; size *= 2)
        all << size - 1 << size << size + 1;
    return all;
}

//! In a child on a file system of its own, which is full but for so many pages.
QString saveOnAFullDisk(const QString &disk)
{
    const QString folder = disk + QStringLiteral("/forms");
    const QString ballast = disk + QStringLiteral("/ballast");
    if (!QDir().mkpath(folder) || !put(folder + QStringLiteral("/a.frm"), oldText))
        return QStringLiteral("the folder can't be made");
    struct statvfs status = {};
    for (const qint64 pages : {0, 1, 2, 8, 64}) {
        QFile::remove(ballast);
        if (statvfs(QFile::encodeName(disk).constData(), &status) != 0)
            return QStringLiteral("the disk has no size");
        const auto page = static_cast<qint64>(status.f_bsize);
        if (!put(ballast, QByteArray((static_cast<qint64>(status.f_bavail) - pages) * page, 'b')))
            return QStringLiteral("the disk can't be filled");
        for (const qint64 size : sizes(pages == 1 ? 4200 : 520)) {
            if (const QString failure = tryToSave(folder, size, pages * page); !failure.isEmpty())
                return failure;
        }
    }
    return QStringLiteral("whole");
}

//! In a child that may write no larger files, which is what a quota comes to.
QString saveWithinALimit(const QString &folder)
{
    if (!put(folder + QStringLiteral("/a.frm"), oldText))
        return QStringLiteral("the file can't be made");
    signal(SIGXFSZ, SIG_IGN);
    rlimit before = {};
    getrlimit(RLIMIT_FSIZE, &before);
    for (const qint64 limit : {0, 1, 100, 4096, 65536}) {
        for (const qint64 size :
             {1, 2, 19, 100, 101, 4096, 4097, 65536, 65537, 1024 * 1024}) { // a real disk takes time
            const rlimit narrow{static_cast<rlim_t>(limit), before.rlim_max};
            setrlimit(RLIMIT_FSIZE, &narrow);
            const bool refused = save(folder + QStringLiteral("/a.frm"), QByteArray(size, 'n')).has_value();
            setrlimit(RLIMIT_FSIZE, &before);
            const QByteArray now = contents(folder + QStringLiteral("/a.frm"));
            if (refused != (size > limit) || now != (refused ? oldText : QByteArray(size, 'n')))
                return QStringLiteral("%1 bytes under a limit of %2: %3 bytes").arg(size).arg(limit).arg(now.size());
            if (filesIn(folder) != QStringList{QStringLiteral("a.frm")})
                return filesIn(folder).join(u' ');
            if (!put(folder + QStringLiteral("/a.frm"), oldText))
                return QStringLiteral("the old file can't be put back");
        }
    }
    return QStringLiteral("whole");
}

} // namespace

//! Files that are written whole or not at all.
class tst_WholeFile : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_name = m_folder->filePath(QStringLiteral("a.frm"));
    }
    void cleanup()
    {
        failing = Call::None;
        m_folder.reset();
    }

    void aFullDiskLeavesTheOldFile()
    {
        // Mounted where only the child sees it; a user needs the kernel's leave to do that.
        const QString program =
            QStringLiteral("mount -t tmpfs -o size=4m none \"$1\" && echo mounted && exec \"$0\" --full \"$1\"");
        const QStringList own{QStringLiteral("-rm"), QStringLiteral("/bin/sh"), QStringLiteral("-c"), program};
        QProcess child;
        child.start(QStringLiteral("unshare"), QStringList(own)
                                                   << QCoreApplication::applicationFilePath() << m_folder->path());
        QVERIFY(child.waitForFinished(100000));
        const QString told = QString::fromUtf8(child.readAllStandardOutput()).trimmed();
        if (!told.startsWith(u"mounted"))
            QSKIP("this machine lets nobody mount a file system; aLimitLeavesTheOldFile() stands for it");
        QCOMPARE(told, QStringLiteral("mounted\nwhole"));
        QCOMPARE(child.exitCode(), 0);
    }

    void aLimitLeavesTheOldFile()
    {
        QProcess child;
        child.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--limit"), m_folder->path()});
        QVERIFY(child.waitForFinished(100000));
        QCOMPARE(QString::fromUtf8(child.readAllStandardOutput()).trimmed(), QStringLiteral("whole"));
    }

    void aFailureLeavesTheOldFile_data()
    {
        QTest::addColumn<int>("call");
        QTest::addColumn<qint64>("size");
        // clang-format off
        for (const qint64 size : {1, 19, 4096, 1024 * 1024}) {
            QTest::addRow("the first write, %lld bytes", static_cast<long long>(size)) << int(Call::FirstWrite) << size;
            QTest::addRow("a later write, %lld bytes",   static_cast<long long>(size)) << int(Call::LaterWrite) << size;
            QTest::addRow("the sync, %lld bytes",        static_cast<long long>(size)) << int(Call::Sync)       << size;
            QTest::addRow("the close, %lld bytes",       static_cast<long long>(size)) << int(Call::Close)      << size;
            QTest::addRow("the renaming, %lld bytes",    static_cast<long long>(size)) << int(Call::Rename)     << size;
        }
        // clang-format on
    }
    void aFailureLeavesTheOldFile()
    {
        QFETCH(const int, call);
        QFETCH(const qint64, size);
        QVERIFY(put(m_name, oldText));
        failing = static_cast<Call>(call);
        const std::optional<QString> reason = save(m_name, QByteArray(size, 'n'));
        QVERIFY(reason);
        QVERIFY(!reason->isEmpty());
        QVERIFY2(*reason != QLatin1String("Unknown error"), "a disk that is full must be told");
        QCOMPARE(contents(m_name), oldText);
        QCOMPARE(filesIn(m_folder->path()), QStringList{QStringLiteral("a.frm")});
    }

    void aFailureLeavesNoNewFile_data() { aFailureLeavesTheOldFile_data(); }
    void aFailureLeavesNoNewFile()
    {
        QFETCH(const int, call);
        QFETCH(const qint64, size);
        failing = static_cast<Call>(call);
        QVERIFY(save(m_name, QByteArray(size, 'n')));
        QCOMPARE(filesIn(m_folder->path()), QStringList());
    }

    void whatIsNoRegularFileIsRefused_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("reason");
        const QString notRegular = QStringLiteral("this is no regular file");
        // clang-format off
        QTest::newRow("a folder")                << "folder"       << notRegular;
        QTest::newRow("a pipe")                  << "pipe"         << notRegular;
        QTest::newRow("a device")                << "device"       << notRegular;
        QTest::newRow("a link to a device")      << "device link"  << notRegular;
        QTest::newRow("a link to a folder")      << "folder link"  << notRegular;
        QTest::newRow("a link that leads nowhere") << "dangling link" << "the link leads to no file";
        QTest::newRow("a link to itself")        << "circular link" << "the link leads to no file";
        // clang-format on
    }
    void whatIsNoRegularFileIsRefused()
    {
        QFETCH(const QString, kind);
        QFETCH(const QString, reason);
        QString name = m_name;
        if (kind == u"folder")
            QVERIFY(QDir().mkdir(name));
        else if (kind == u"pipe")
            QCOMPARE(mkfifo(QFile::encodeName(name).constData(), 0600), 0);
        else if (kind == u"device")
            name = QStringLiteral("/dev/full");
        else if (kind == u"device link")
            QVERIFY(QFile::link(QStringLiteral("/dev/full"), name));
        else if (kind == u"folder link")
            QVERIFY(QFile::link(m_folder->path(), name));
        else if (kind == u"dangling link")
            QVERIFY(QFile::link(m_folder->filePath(QStringLiteral("none")), name));
        else
            QVERIFY(QFile::link(name, name));
        const mode_t before = modeOf(name);
        QVERIFY(before != 0);
        const QStringList files = filesIn(m_folder->path());
        for (const char *text : {"", "n", "Begin Form new\nEnd\n"})
            QCOMPARE(save(name, text).value_or(QStringLiteral("(written)")), reason);
        QCOMPARE(modeOf(name), before);
        QCOMPARE(filesIn(m_folder->path()), files);
    }

    void aLinkIsWrittenThrough()
    {
        QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("inner")));
        const QString target = m_folder->filePath(QStringLiteral("inner/b.frm"));
        const QString between = m_folder->filePath(QStringLiteral("c.frm"));
        QVERIFY(put(target, oldText));
        QVERIFY(QFile::link(QStringLiteral("inner/b.frm"), between)); // relative to the link
        QVERIFY(QFile::link(between, m_name));
        QCOMPARE(save(m_name, "new"), std::nullopt);
        QCOMPARE(contents(target), QByteArray("new"));
        QVERIFY(QFileInfo(m_name).isSymLink());
        QVERIFY(QFileInfo(between).isSymLink());
        QCOMPARE(filesIn(m_folder->filePath(QStringLiteral("inner"))), QStringList{QStringLiteral("b.frm")});
    }

    void theOldFilesPermissionsStay()
    {
        QVERIFY(put(m_name, oldText));
        QCOMPARE(chmod(QFile::encodeName(m_name).constData(), 0640), 0);
        QCOMPARE(save(m_name, "new"), std::nullopt);
        QCOMPARE(modeOf(m_name) & 07777, mode_t(0640));
    }

    void aNewFileHasTheUsersPermissions()
    {
        const mode_t before = umask(0027);
        const std::optional<QString> reason = save(m_name, "new");
        umask(before);
        QCOMPARE(reason, std::nullopt);
        QCOMPARE(modeOf(m_name) & 07777, mode_t(0640));
    }

    void aReadOnlyFileIsRefused()
    {
        QVERIFY(put(m_name, oldText));
        QCOMPARE(chmod(QFile::encodeName(m_name).constData(), 0444), 0);
        QCOMPARE(chmod(QFile::encodeName(m_folder->path()).constData(), 0777), 0);
        const bool isAdministrator = geteuid() == 0; // who may write every file
        if (isAdministrator)
            QCOMPARE(setresuid(65534, 65534, 0), 0);
        const std::optional<QString> reason = save(m_name, "new");
        if (isAdministrator)
            QCOMPARE(setresuid(0, 0, 0), 0);
        QVERIFY(reason);
        QCOMPARE(contents(m_name), oldText);
    }

    void theLongestNameCanBeSaved()
    {
        const QString name = m_folder->filePath(QString(255, u'n'));
        QCOMPARE(save(name, "new"), std::nullopt);
        QCOMPARE(save(name, "newer"), std::nullopt);
        QCOMPARE(contents(name), QByteArray("newer"));
    }

    void aSmallFormOverItselfIsSavedThisWay()
    {
        const kor::FormBlock form{QStringLiteral("Form"), QStringLiteral("old"), {}, {}};
        QVERIFY(!kor::FormFile::save(form, m_name));
        QCOMPARE(contents(m_name), oldText);
        failing = Call::FirstWrite;
        isWriting = true;
        const auto error = kor::FormFile::save(form, m_name);
        isWriting = false;
        QVERIFY(error);
        QCOMPARE(error->line, 0);
        QVERIFY(!error->reason.isEmpty());
        QCOMPARE(contents(m_name), oldText);
    }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_name;
};

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    if (argc == 3 && qstrcmp(argv[1], "--full") == 0)
        return puts(qPrintable(saveOnAFullDisk(QString::fromLocal8Bit(argv[2])))) < 0 ? 1 : 0;
    if (argc == 3 && qstrcmp(argv[1], "--limit") == 0)
        return puts(qPrintable(saveWithinALimit(QString::fromLocal8Bit(argv[2])))) < 0 ? 1 : 0;
    tst_WholeFile test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_wholefile.moc"
