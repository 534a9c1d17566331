#include "platform/zoom.h"

namespace
{
int even(double pixels)
{
    return qMax(2, int(pixels) & ~1);
}
} // namespace

QRect Zoom::shownPart(const QSize &picture) const
{
    if (isNone())
        return {QPoint(0, 0), picture};
    const QSize part(even(picture.width() / m_factor), even(picture.height() / m_factor));
    const QPoint corner((picture.width() - part.width()) / 2 & ~1,
                        (picture.height() - part.height()) / 2 & ~1);
    return {corner, part};
}
