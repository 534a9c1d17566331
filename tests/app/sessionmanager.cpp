#include "tests/app/sessionmanager.h"

#include <QSocketNotifier>

#include <cstdlib>
#include <functional>
#include <vector>

#include <X11/ICE/ICElib.h>
#include <X11/SM/SMlib.h>

// What the library's callbacks work on.
struct SessionManager::Session {
    static Status accept(SmsConn client, SmPointer self, unsigned long *mask, SmsCallbacks *callbacks,
                         char **);
    void listenTo(int descriptor, const std::function<void(QSocketNotifier *)> &action)
    {
        notifiers.push_back(std::make_unique<QSocketNotifier>(descriptor, QSocketNotifier::Read));
        QSocketNotifier *notifier = notifiers.back().get();
        QObject::connect(notifier, &QSocketNotifier::activated, [=] { action(notifier); });
    }

    SmsConn client = nullptr;
    bool hasSaved = false;
    int listenCount = 0;
    IceListenObj *listeners = nullptr;
    std::vector<std::unique_ptr<QSocketNotifier>> notifiers;
};

namespace
{

SmPointer noData = nullptr;

Bool anybodyOfThisHost(char *)
{
    return True;
}

// Until the client has gone.
void process(IceConn connection, QSocketNotifier *messages)
{
    if (IceProcessMessages(connection, nullptr, nullptr) == IceProcessMessagesSuccess)
        return;
    messages->setEnabled(false);
    IceSetShutdownNegotiation(connection, False);
    IceCloseConnection(connection);
}

Status registerClient(SmsConn client, SmPointer, char *previousId)
{
    free(previousId);
    char *id = SmsGenerateClientID(client);
    const Status isRegistered = SmsRegisterClientReply(client, id);
    free(id);
    return isRegistered;
}

void freeProperties(SmsConn, SmPointer, int count, SmProp **properties)
{
    for (int i = 0; i < count; ++i)
        SmFreeProperty(properties[i]);
    free(properties);
}

void freeNames(SmsConn, SmPointer, int count, char **names)
{
    for (int i = 0; i < count; ++i)
        free(names[i]);
    free(names);
}

} // namespace

Status SessionManager::Session::accept(SmsConn client, SmPointer self, unsigned long *mask,
                                       SmsCallbacks *callbacks, char **)
{
    static_cast<Session *>(self)->client = client;
    *mask = SmsRegisterClientProcMask | SmsInteractRequestProcMask | SmsInteractDoneProcMask |
            SmsSaveYourselfRequestProcMask | SmsSaveYourselfP2RequestProcMask | SmsSaveYourselfDoneProcMask |
            SmsCloseConnectionProcMask | SmsSetPropertiesProcMask | SmsDeletePropertiesProcMask |
            SmsGetPropertiesProcMask;
    callbacks->register_client = {registerClient, noData};
    callbacks->interact_request = {[](SmsConn asking, SmPointer, int) { SmsInteract(asking); }, noData};
    callbacks->interact_done = {[](SmsConn, SmPointer, Bool) {}, noData};
    callbacks->save_yourself_request = {[](SmsConn, SmPointer, int, Bool, int, Bool, Bool) {}, noData};
    callbacks->save_yourself_phase2_request = {[](SmsConn, SmPointer) {}, noData};
    callbacks->save_yourself_done = {
        [](SmsConn, SmPointer session, Bool) { static_cast<Session *>(session)->hasSaved = true; }, self};
    callbacks->close_connection = {
        [](SmsConn, SmPointer session, int, char **) { static_cast<Session *>(session)->client = nullptr; },
        self};
    callbacks->set_properties = {freeProperties, noData};
    callbacks->delete_properties = {freeNames, noData};
    callbacks->get_properties = {[](SmsConn asking, SmPointer) { SmsReturnProperties(asking, 0, nullptr); },
                                 noData};
    return True;
}

SessionManager::SessionManager() : m_session(std::make_unique<Session>())
{
    char error[256] = "";
    IceSetIOErrorHandler([](IceConn) {}); // the library's own ends the process
    Session *session = m_session.get();
    if (!SmsInitialize("test", "1", Session::accept, session, anybodyOfThisHost, sizeof error, error) ||
        !IceListenForConnections(&session->listenCount, &session->listeners, sizeof error, error))
        return;
    for (int i = 0; i < session->listenCount; ++i) {
        IceListenObj listener = session->listeners[i];
        IceSetHostBasedAuthProc(listener, anybodyOfThisHost);
        session->listenTo(IceGetListenConnectionNumber(listener), [session, listener](QSocketNotifier *) {
            IceAcceptStatus status;
            if (IceConn connection = IceAcceptConnection(listener, &status))
                session->listenTo(IceConnectionNumber(connection),
                                  [connection](QSocketNotifier *messages) { process(connection, messages); });
        });
    }
    char *addresses = IceComposeNetworkIdList(session->listenCount, session->listeners);
    m_address = addresses;
    free(addresses);
}

SessionManager::~SessionManager()
{
    if (m_session->listeners)
        IceFreeListenObjs(m_session->listenCount, m_session->listeners);
}

bool SessionManager::hasClient() const
{
    return m_session->client != nullptr;
}

void SessionManager::requestSave()
{
    m_session->hasSaved = false;
    SmsSaveYourself(m_session->client, SmSaveBoth, True, SmInteractStyleNone, False);
    IceFlush(SmsGetIceConnection(m_session->client));
}

bool SessionManager::hasSaved() const
{
    return m_session->hasSaved;
}

void SessionManager::cancelLogOut()
{
    SmsShutdownCancelled(m_session->client);
    IceFlush(SmsGetIceConnection(m_session->client));
}

void SessionManager::endSession()
{
    SmsDie(m_session->client);
    IceFlush(SmsGetIceConnection(m_session->client));
}
