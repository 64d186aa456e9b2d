// SPDX-License-Identifier: GPL-3.0-or-later
#include "logdb/yearlock.h"

#include "db/datacontrol.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <thread>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace {

// How often a waiting writer tries again.
constexpr std::chrono::milliseconds RetryEvery{10};
// The lock file is left in place: removing it would let two writers lock two different files.
constexpr mode_t LockFileMode = 0644;

} // namespace

QString YearLockPath(const QString& yearFile)
{
    const QFileInfo file(yearFile);
    return file.absoluteDir().filePath('.' + file.fileName() + QStringLiteral(".lock"));
}

YearFileLock::YearFileLock(const QString& yearFile, std::chrono::milliseconds wait)
{
    const QByteArray path = QFile::encodeName(YearLockPath(yearFile));
    const int fd = ::open(path.constData(), O_RDWR | O_CREAT | O_CLOEXEC, LockFileMode);
    if (fd < 0) {
        message_ =
            QStringLiteral("Cannot lock %1 for writing: %2.")
                .arg(QFileInfo(yearFile).fileName(), QString::fromLocal8Bit(std::strerror(errno)));
        return;
    }
    const auto deadline = std::chrono::steady_clock::now() + wait;
    while (::flock(fd, LOCK_EX | LOCK_NB) != 0) {
        if ((errno != EWOULDBLOCK && errno != EINTR) ||
            std::chrono::steady_clock::now() >= deadline) {
            ::close(fd);
            message_ = QStringLiteral("%1 is being changed by another program (Quillmere or "
                                      "quillmere-log); try again when it has finished.")
                           .arg(QFileInfo(yearFile).fileName());
            return;
        }
        std::this_thread::sleep_for(RetryEvery);
    }
    fd_ = fd;
}

YearFileLock::~YearFileLock()
{
    if (fd_ >= 0)
        ::close(fd_); // closing the last descriptor releases the lock
}

DbResult UpdateUnderLock(DataControl& data)
{
    const YearFileLock lock(data.DatabaseName());
    return lock.Held() ? data.Update() : DbResult::Failure(lock.Message());
}
