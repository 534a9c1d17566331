#pragma once

#include <QPointF>
#include <QSize>

#include <opencv2/core/mat.hpp>

#include <cstdint>

// Which way up the camera's picture is shown: so many quarter turns clockwise. It is never mirrored.
class Turn
{
public:
    void turnOn() { m_quarters = (m_quarters + 1) % 4; }

    bool isNone() const { return m_quarters == 0; }
    int quarters() const { return m_quarters; }
    int degrees() const { return m_quarters * 90; }

    // The size of a picture after turning, and of one before: the same exchange of its sides.
    QSize turned(const QSize &size) const { return m_quarters % 2 ? size.transposed() : size; }
    // A way on the turned picture, as one on the camera's.
    QPointF turnedBack(const QPointF &way) const;

private:
    int m_quarters = 0;
};

// A plane of bytes turned into another one; that has room for turned(size).
void turnPlane(const uint8_t *from, int fromStride, const QSize &size, const Turn &turn, uint8_t *to,
               int toStride);
// The same for pixels of 32 bits; `to` is of the turned size.
void turnPixels(const cv::Mat &from, const Turn &turn, cv::Mat *to);
