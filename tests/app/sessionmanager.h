#pragma once

#include <QByteArray>

#include <memory>

// A session manager of the X session's own protocol, as a log-out needs one: for one client at a time.
class SessionManager
{
public:
    SessionManager();
    ~SessionManager();
    SessionManager(const SessionManager &) = delete;
    SessionManager &operator=(const SessionManager &) = delete;

    // What a client finds in SESSION_MANAGER; empty when nobody can connect.
    QByteArray address() const { return m_address; }

    bool hasClient() const;
    // Asks the client to save, since the session is to end, and whether it says that it has.
    void requestSave();
    bool hasSaved() const;
    // The session goes on after all, or it ends.
    void cancelLogOut();
    void endSession();

private:
    struct Session;

    const std::unique_ptr<Session> m_session;
    QByteArray m_address;
};
