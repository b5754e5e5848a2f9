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

QString reasonOf(int error) { return QString::fromStdString(std::system_category().message(error)); }

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

    [[nodiscard]] std::optional<QString> open()
    {
        constexpr int attempts = 16;
        for (int attempt = 0; attempt < attempts; ++attempt) {
            const QString name = QStringLiteral("/.%1.new").arg(QRandomGenerator::global()->generate64(), 16, 16);
            m_file.setFileName(m_place.absolutePath() + QString(name).replace(u' ', u'0'));
            // Without a buffer, which would keep a failure to itself.
            if (m_file.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered))
                return std::nullopt;
            if (!m_file.exists())
                break;
        }
        const QString reason = m_file.errorString();
        m_file.setFileName(QString()); // somebody else's
        return reason;
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

    [[nodiscard]] std::optional<QString> write(QByteArrayView bytes)
    {
        while (!bytes.isEmpty()) {
            const qint64 written = m_file.write(bytes.data(), bytes.size());
            if (written <= 0)
                return m_file.errorString();
            bytes = bytes.sliced(written); // a part finds room on a disk that is nearly full; the next call says so
        }
        if (!sync(m_file.handle()))
            return reasonOf(errno);
        m_file.close();
        return m_file.error() == QFileDevice::NoError ? std::nullopt : std::optional(m_file.errorString());
    }

    [[nodiscard]] std::optional<QString> succeed()
    {
        const QByteArray from = QFile::encodeName(m_file.fileName());
        if (std::rename(from.constData(), QFile::encodeName(m_place.filePath()).constData()) != 0)
            return reasonOf(errno);
        m_file.setFileName(QString());
        syncFolder(m_place.absolutePath());
        return std::nullopt;
    }

private:
    const QFileInfo &m_place;
    QFile m_file;
};

} // namespace

std::optional<QString> writeWhole(const QString &fileName, QByteArrayView bytes)
{
    QFileInfo place(fileName);
    if (place.isSymLink()) {
        place.setFile(place.canonicalFilePath());
        if (!place.exists())
            return QStringLiteral("the link leads to no file");
    }
    if (place.exists() && !place.isFile())
        return QStringLiteral("this is no regular file");
    if (place.exists() && !place.isWritable())
        return reasonOf(EACCES);

    Successor successor(place);
    if (const auto reason = successor.open())
        return reason;
    successor.takeOverPermissions();
    if (const auto reason = successor.write(bytes))
        return reason;
    return successor.succeed();
}

} // namespace kor
