#include "capture/driverproxy.h"

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
}

double CDriverProxy::getShadowRatio() const
{
    return 1.0;
}
