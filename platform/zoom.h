#pragma once

#include <QPointF>
#include <QRect>
#include <QSize>

// Digital zoom: how much larger than life a part of the picture is shown, and which part. Places and ways on
// that part count from its middle, in shares of its width and height: half of them is its edge.
class Zoom
{
public:
    static constexpr double step = 1.25; // so much larger or smaller

    // One step in or out. The place stays where it is, unless the part would reach beyond the picture; at the
    // ends nothing changes.
    void in(const QPointF &around = {}) { setFactor(qMin(m_factor * step, most), around); }
    void out(const QPointF &around = {}) { setFactor(qMax(m_factor / step, least), around); }
    // Moves the part that far, up to the picture's edges.
    void move(const QPointF &way);

    bool isNone() const { return m_factor <= least; }

    // The part of a picture of that size which is shown: in the picture's proportions, on even pixels, since
    // most cameras share their colours between two pixels.
    QRect shownPart(const QSize &picture) const;

private:
    void setFactor(double factor, const QPointF &around);
    void setMiddle(const QPointF &middle);

    static constexpr double least = 1.0;
    static constexpr double most = 8.0;

    double m_factor = least;
    QPointF m_middle{0.5, 0.5}; // of the part, in shares of the picture
};
