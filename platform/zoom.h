#pragma once

#include <QRect>
#include <QSize>

// Digital zoom: how much larger than life the middle of the picture is shown.
class Zoom
{
public:
    // One step in or out; at the ends nothing changes.
    void in() { m_factor = qMin(m_factor * step, most); }
    void out() { m_factor = qMax(m_factor / step, least); }

    bool isNone() const { return m_factor <= least; }

    // The part of a picture of that size which is shown: around its centre, in the picture's proportions,
    // on even pixels, since most cameras share their colours between two pixels.
    QRect shownPart(const QSize &picture) const;

private:
    static constexpr double step = 1.25;
    static constexpr double least = 1.0;
    static constexpr double most = 8.0;

    double m_factor = least;
};
