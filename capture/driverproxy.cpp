#include "capture/driverproxy.h"

#include <QLineF>

CDriverProxy *CDriverProxy::get()
{
    static CDriverProxy proxy;
    return &proxy;
}

void CDriverProxy::initialize(IDriverEventListener *listener)
{
    m_listener = listener;
}

void CDriverProxy::getExtraInfo(CDriverExtraInfo &info) const
{
    info = {};
    if (m_fingers.size() != 2)
        return;
    info.gestureState = twoContactsOnBoard;
    info.shadowSize = qRound(QLineF(m_fingers.first(), m_fingers.last()).length());
}

double CDriverProxy::getShadowRatio() const
{
    return 1.0;
}

void CDriverProxy::fingerDown(const QPoint &position, int finger)
{
    m_fingers[finger] = position;
    if (m_listener)
        m_listener->notifyFingerDown(position, finger);
}

void CDriverProxy::fingerMove(const QPoint &position, int finger)
{
    if (!m_fingers.contains(finger))
        return;
    m_fingers[finger] = position;
    if (m_listener)
        m_listener->notifyFingerMove(position, finger);
}

void CDriverProxy::fingerUp(const QPoint &position, int finger)
{
    if (m_fingers.remove(finger) > 0 && m_listener)
        m_listener->notifyFingerUp(position, finger);
}

void CDriverProxy::allFingersUp()
{
    const QMap<int, QPoint> fingers = m_fingers;
    for (auto finger = fingers.begin(); finger != fingers.end(); ++finger)
        fingerUp(finger.value(), finger.key());
}
