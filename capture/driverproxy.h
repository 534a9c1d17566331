#pragma once

#include <QMap>
#include <QPoint>

#include <cstdint>

constexpr int32_t twoContactsOnBoard = 128;

// What a board's touch driver tells beside a mouse event. All zero where it tells nothing.
struct CDriverExtraInfo {
    int32_t reserved;
    int32_t gestureState; // twoContactsOnBoard, or anything else
    int32_t shadowSize;   // of the contacts' shadow, in units of the driver
};

// To be told of the fingers on the board. Positions in pixels of the screen; the number tells the fingers
// apart.
class IDriverEventListener
{
public:
    virtual ~IDriverEventListener() = default;
    virtual void notifyFingerDown(const QPoint &position, int finger) = 0;
    virtual void notifyFingerMove(const QPoint &position, int finger) = 0;
    virtual void notifyFingerUp(const QPoint &position, int finger) = 0;
};

// Where the board's touch driver is asked. Any touch screen does for a board: a TouchDriver says here where
// its fingers are, and two of them are a gesture, whose shadow reaches from one to the other. GUI thread
// only.
class CDriverProxy
{
public:
    // The one of the process.
    static CDriverProxy *get();

    // Remembers the listener, in place of the one before. It is not owned and must outlive the proxy's use,
    // or be replaced by null.
    void initialize(IDriverEventListener *listener);

    // Fills the record with what is so now.
    void getExtraInfo(CDriverExtraInfo &info) const;

    // Pixels for each unit of the shadow's size: 1.
    double getShadowRatio() const;

    // What the touch screen tells, which goes on to the listener. Of an unknown finger only its coming down
    // counts.
    void fingerDown(const QPoint &position, int finger);
    void fingerMove(const QPoint &position, int finger);
    void fingerUp(const QPoint &position, int finger);
    void allFingersUp();

private:
    CDriverProxy() = default;

    IDriverEventListener *m_listener = nullptr;
    QMap<int, QPoint> m_fingers; // that are down
};
