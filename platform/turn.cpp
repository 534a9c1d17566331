#include "platform/turn.h"

#include <libyuv.h>

namespace
{

libyuv::RotationMode modeOf(const Turn &turn)
{
    return static_cast<libyuv::RotationMode>(turn.degrees());
}

} // namespace

QPointF Turn::turnedBack(const QPointF &way) const
{
    QPointF turned = way;
    for (int i = 0; i < m_quarters; ++i)
        turned = {turned.y(), -turned.x()};
    return turned;
}

void turnPlane(const uint8_t *from, int fromStride, const QSize &size, const Turn &turn, uint8_t *to,
               int toStride)
{
    libyuv::RotatePlane(from, fromStride, to, toStride, size.width(), size.height(), modeOf(turn));
}

void turnPixels(const cv::Mat &from, const Turn &turn, cv::Mat *to)
{
    libyuv::ARGBRotate(from.data, int(from.step), to->data, int(to->step), from.cols, from.rows,
                       modeOf(turn));
}
