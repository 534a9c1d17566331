#pragma once

#include <QString>

// A lock that one process at a time can hold. The kernel gives it back when the holder ends, however it ends,
// so that no lock is ever left over. The file itself stays: removing it would open a gap between two holders.
class UserLock
{
public:
    // path: the lock's file, made for this user alone when it is missing.
    explicit UserLock(const QString &path);
    ~UserLock();
    UserLock(const UserLock &) = delete;
    UserLock &operator=(const UserLock &) = delete;

    // Does not wait. True when this object holds the lock, now or already; false also when the file cannot be
    // made.
    bool tryLock();
    bool isHeld() const { return m_held; }

private:
    int m_descriptor;
    bool m_held = false;
};
