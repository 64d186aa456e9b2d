#include "platform/singleinstance.h"

#include <QDir>
#include <QStandardPaths>

SingleInstance::SingleInstance(const QString& name)
{
    QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (folder.isEmpty())
        folder = QDir::tempPath();
    Lock = std::make_unique<QLockFile>(folder + "/" + name + ".lock");
    Lock->setStaleLockTime(0); // only a lock whose owner process is gone counts as stale
}

bool SingleInstance::Acquire() { return Lock->tryLock(0); }
