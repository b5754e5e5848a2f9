// SPDX-FileCopyrightText: 2026 The KorDaoUC authors
// SPDX-License-Identifier: MIT
#include <KorDaoUC/wholefile.h>

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QRandomGenerator>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace kor {

namespace {

WriteFailure failureOf(int error)
{
    return {{error, std::generic_category()}, QString::fromStdString(std::system_category().message(error))};
}

//! What the toolkit says of the call that has just failed, with the system's error behind it.
WriteFailure failureOf(const QFile &file, int error)
{
    // Nothing written, and no reason given: there is no room.
    return error == 0 ? failureOf(ENOSPC) : WriteFailure{{error, std::generic_category()}, file.errorString()};
}

//! Whether what was written is on the disk. Where there is no disk to wait for, it is.
bool sync(int file)
{
    int result = 0;
    do
        result = ::fsync(file);
    while (result != 0 && errno == EINTR);
    return result == 0 || errno == EINVAL || errno == ENOTSUP;
}

//! Puts the new name on the disk, too. Without success the name may lead to the old file after a loss of power, which
//! is as whole as the new one: no reason to say that nothing was saved.
void syncFolder(const QString &folder)
{
    const int place = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (place < 0)
        return;
    (void)sync(place);
    (void)::close(place);
}

//! A new file beside the one to be written, which takes its place at the end, or goes.
class Successor
{
public:
    explicit Successor(const QFileInfo &place) : m_place(place) {}
    ~Successor()
    {
        if (m_file.exists())
            m_file.remove();
    }
    Q_DISABLE_COPY_MOVE(Successor)

    [[nodiscard]] std::optional<WriteFailure> open()
    {
        constexpr int attempts = 16;
        for (int attempt = 0; attempt < attempts; ++attempt) {
            const QString name = QStringLiteral("/.%1.new").arg(QRandomGenerator::global()->generate64(), 16, 16);
            m_file.setFileName(m_place.absolutePath() + QString(name).replace(u' ', u'0'));
            errno = 0;
            // Without a buffer, which would keep a failure to itself.
            if (m_file.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered))
                return std::nullopt;
            if (!m_file.exists())
                break;
        }
        const WriteFailure failure = failureOf(m_file, errno);
        m_file.setFileName(QString()); // somebody else's
        return failure;
    }

    //! The old file's owner, as far as that is ours to give, and who may read and write it.
    void takeOverPermissions()
    {
        struct stat old = {};
        if (::stat(QFile::encodeName(m_place.filePath()).constData(), &old) != 0)
            return;
        if (::fchown(m_file.handle(), old.st_uid, old.st_gid) != 0)
            (void)::fchown(m_file.handle(), static_cast<uid_t>(-1), old.st_gid);
        (void)::fchmod(m_file.handle(), old.st_mode & 07777);
    }

    [[nodiscard]] std::optional<WriteFailure> write(QByteArrayView bytes)
    {
        while (!bytes.isEmpty()) {
            errno = 0;
            const qint64 written = m_file.write(bytes.data(), bytes.size());
            if (written <= 0)
                return failureOf(m_file, errno);
            bytes = bytes.sliced(written); // a part finds room on a disk that is nearly full; the next call says so
        }
        if (!sync(m_file.handle()))
            return failureOf(errno);
        errno = 0;
        m_file.close();
        return m_file.error() == QFileDevice::NoError ? std::nullopt : std::optional(failureOf(m_file, errno));
    }

    [[nodiscard]] std::optional<WriteFailure> succeed()
    {
        const QByteArray from = QFile::encodeName(m_file.fileName());
        if (std::rename(from.constData(), QFile::encodeName(m_place.filePath()).constData()) != 0)
            return failureOf(errno);
        m_file.setFileName(QString());
        syncFolder(m_place.absolutePath());
        return std::nullopt;
    }

private:
    const QFileInfo &m_place;
    QFile m_file;
};

} // namespace

std::optional<WriteFailure> tryWriteWhole(const QString &fileName, QByteArrayView bytes)
{
    QFileInfo place(fileName);
    if (place.isSymLink()) {
        place.setFile(place.canonicalFilePath());
        if (!place.exists())
            return WriteFailure{make_error_code(std::errc::no_such_file_or_directory),
                                QStringLiteral("the link leads to no file")};
    }
    if (place.exists() && !place.isFile()) {
        const std::errc error = place.isDir() ? std::errc::is_a_directory : std::errc::not_supported;
        return WriteFailure{make_error_code(error), QStringLiteral("this is no regular file")};
    }
    if (place.exists() && !place.isWritable())
        return failureOf(EACCES);

    Successor successor(place);
    if (auto failure = successor.open())
        return failure;
    successor.takeOverPermissions();
    if (auto failure = successor.write(bytes))
        return failure;
    return successor.succeed();
}

std::optional<QString> writeWhole(const QString &fileName, QByteArrayView bytes)
{
    const std::optional<WriteFailure> failure = tryWriteWhole(fileName, bytes);
    return failure ? std::optional(failure->reason) : std::nullopt;
}

} // namespace kor
