#pragma once

#include <QPoint>

#include <cstdint>

// What the board's touch driver tells beside a mouse event. All zero where it tells nothing.
struct CDriverExtraInfo {
    int32_t reserved;
    int32_t gestureState; // 128 while two contacts lie on the board
    int32_t shadowSize;   // of the contacts' shadow, in units of the driver
};

// Told of the fingers on the board. Positions in pixels of the screen; the number tells the fingers apart.
class IDriverEventListener
{
public:
    virtual ~IDriverEventListener() = default;
    virtual void notifyFingerDown(const QPoint &position, int finger) = 0;
    virtual void notifyFingerMove(const QPoint &position, int finger) = 0;
    virtual void notifyFingerUp(const QPoint &position, int finger) = 0;
};

// The board's touch driver. Where there is no touch screen it answers that there is no gesture.
class CDriverProxy
{
public:
    // The one of the process.
    static CDriverProxy *get();

    // Tells the listener of the fingers from now on, in place of the one before. It is not owned and must
    // outlive the proxy's use, or be replaced by null.
    void initialize(IDriverEventListener *listener);

    // Fills the record with the gesture that is under way; all zero when there is none.
    void getExtraInfo(CDriverExtraInfo &info) const;

    // Pixels for each unit of the shadow's size.
    double getShadowRatio() const;

private:
    CDriverProxy() = default;

    IDriverEventListener *m_listener = nullptr;
};
