#include "platform/zoom.h"

namespace
{

int even(double pixels)
{
    return qMax(2, int(pixels) & ~1);
}

// Where a part of that length begins on a side of the picture.
int beginning(double middle, int part, int side)
{
    return int(qBound(0.0, middle * side - part / 2.0, double(side - part))) & ~1;
}

} // namespace

void Zoom::move(const QPointF &way)
{
    setMiddle(m_middle + way / m_factor);
}

void Zoom::setFactor(double factor, const QPointF &around)
{
    const QPointF place = m_middle + around / m_factor;
    m_factor = factor;
    setMiddle(place - around / m_factor);
}

void Zoom::setMiddle(const QPointF &middle)
{
    const double half = 0.5 / m_factor;
    m_middle = {qBound(half, middle.x(), 1 - half), qBound(half, middle.y(), 1 - half)};
}

QRect Zoom::shownPart(const QSize &picture) const
{
    if (isNone())
        return {QPoint(0, 0), picture};
    const QSize part(even(picture.width() / m_factor), even(picture.height() / m_factor));
    return {QPoint(beginning(m_middle.x(), part.width(), picture.width()),
                   beginning(m_middle.y(), part.height(), picture.height())),
            part};
}
