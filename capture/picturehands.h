#pragma once

#include <QObject>
#include <QPoint>

class LiveVideoData;
class QKeySequence;
class QMouseEvent;
class QShortcut;
class QWheelEvent;
class QWidget;

// What hands do to the live picture of any camera: the wheel, the keys + - 0 and two fingers zoom it, all by
// the same steps; a drag with the left button moves what is shown of it; R turns it.
class PictureHands : public QObject
{
    Q_OBJECT

public:
    // The surface lies over the picture, gets what the pointer does there, and owns this. The keys count
    // while it can be seen. The camera is not owned.
    PictureHands(LiveVideoData *camera, QWidget *surface);

    // Lets go of what is being dragged or pinched.
    void letGo();

signals:
    void turned();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QShortcut *addKey(const QKeySequence &key, void (PictureHands::*action)());
    void zoomIn();
    void zoomOut();
    void showWhole();
    void turn();
    void press(const QMouseEvent &event);
    void move(const QMouseEvent &event);
    void pinch(const QPoint &place);
    void roll(const QWheelEvent &event);

    LiveVideoData *m_camera;
    QWidget *m_surface;
    QPoint m_heldAt;
    bool m_isDragging = false;
    bool m_isPinching = false;
    double m_pinchDistance = 0; // at the last step, pixels; 0 without fingers
    int m_rolled = 0;           // by the wheel since the last step
};
