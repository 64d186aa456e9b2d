// Refuses a second running copy: a lock file in the user's runtime folder, released when the
// program ends (or found stale when it crashed).
#pragma once

#include <QLockFile>
#include <QString>

#include <memory>

class SingleInstance {
public:
    explicit SingleInstance(const QString& name = QStringLiteral("quillmere"));
    // True when this process holds the lock; false when another copy runs.
    bool Acquire();

private:
    std::unique_ptr<QLockFile> Lock;
};
