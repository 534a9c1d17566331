#pragma once

#include <QImage>
#include <QObject>
#include <QPointer>
#include <QRect>

class QWidget;

// Paints a live picture on somebody else's widget, in its paint events, so that whatever lies over the
// widget (labels, the mouse overlay) is composed with the picture and never flickers. GUI thread only.
class VideoTarget : public QObject
{
    Q_OBJECT

public:
    explicit VideoTarget(QObject *parent = nullptr);

    // Paints on that widget from now on; it stays its owner's and may go at any time. Null ends the painting.
    void setWidget(QWidget *widget);

    // The picture to paint from now on, centred, on black; a null one leaves the widget black.
    void setPicture(const QImage &picture);

    // Where on the widget the picture is painted, in the widget's own pixels; empty without one.
    QRect pictureArea() const;
    // The box for a picture in device pixels; empty while the widget cannot be seen.
    QSize box() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    // The widget was resized, shown or hidden: box() answers otherwise now.
    void boxChanged();

private:
    QRect pixelArea() const; // of the picture in device pixels, as the next
    QRect widgetArea() const;
    QRect onWidget(const QRect &pixels) const;
    void paint();

    QPointer<QWidget> m_widget;
    QImage m_picture;
};
